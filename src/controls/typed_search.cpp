// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/typed_search.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace vicetoll {
namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

// Letters, digits and points in a row, and a minus that leads a number. A comma within a number is no end.
std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words;
  bool inside = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char letter = Lower(text[i]);
    if (letter == ',') continue;
    const bool leads = letter == '-' && !inside && i + 1 < text.size() && IsDigit(text[i + 1]);
    const bool counts = (letter >= 'a' && letter <= 'z') || IsDigit(letter) || letter == '.' || leads;
    if (counts && !inside) words.emplace_back();
    if (counts) words.back() += letter;
    inside = counts;
  }
  return words;
}

// A lone number.
std::optional<double> AmountOf(const std::vector<std::string>& words) {
  if (words.size() != 1) return {};
  double amount = 0;
  const char* const end = words[0].data() + words[0].size();
  const auto [stop, error] = std::from_chars(words[0].data(), end, amount);
  if (stop != end || error != std::errc()) return {};
  return amount;
}

// Whether the words typed stand in the entry in a row, the last of them perhaps not to its end.
bool Begins(const std::vector<std::string>& entry, const std::vector<std::string>& typed) {
  for (std::size_t at = 0; at + typed.size() <= entry.size(); ++at) {
    bool fits = entry[at + typed.size() - 1].starts_with(typed.back());
    for (std::size_t i = 0; fits && i + 1 < typed.size(); ++i) fits = entry[at + i] == typed[i];
    if (fits) return true;
  }
  return false;
}

bool IsOneLetter(std::string_view typed) {
  return typed.size() > 1 && !IsDigit(typed[0]) && typed[0] != ' ' &&
         typed.find_first_not_of(typed[0]) == std::string_view::npos;
}

}  // namespace

int FindTyped(const std::vector<std::string>& entries, std::string_view typed, int from) {
  const std::vector<std::string> words = WordsOf(typed);
  const int count = static_cast<int>(entries.size());
  if (words.empty() || count == 0) return -1;
  if (const auto amount = AmountOf(words))
    for (int i = 0; i < count; ++i)
      if (AmountOf(WordsOf(entries[i])) == amount) return i;
  for (int i = 0; i < count; ++i)
    if (Begins(WordsOf(entries[i]), words)) return i;
  if (!IsOneLetter(typed)) return -1;
  const std::vector<std::string> letter = {words[0].substr(0, 1)};
  for (int i = 1; i <= count; ++i) {
    const int place = (std::max(from, -1) + i) % count;
    if (Begins(WordsOf(entries[place]), letter)) return place;
  }
  return -1;
}

}  // namespace vicetoll
