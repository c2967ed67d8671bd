// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/date_label.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "base/checked_int.h"
#include "calendar/number_text.h"

namespace vicetoll {
namespace {

constexpr std::string_view kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                        "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

constexpr char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

// Three letters as one number, alike for small and capital ones.
constexpr std::uint32_t KeyOf(std::string_view letters) {
  std::uint32_t key = 0;
  for (char c : letters.substr(0, 3)) key = key << 8 | static_cast<unsigned char>(Upper(c));
  return key;
}

constexpr auto kMonthKeys = [] {
  std::array<std::uint32_t, kMonthsPerYear> keys{};
  for (std::size_t i = 0; i < keys.size(); ++i) keys[i] = KeyOf(kMonths[i]);
  return keys;
}();

}  // namespace

std::int16_t MonthNumberFromLabel(std::string_view label) {
  if (label.size() < 3) return 0;
  const auto found = std::find(kMonthKeys.begin(), kMonthKeys.end(), KeyOf(label));
  return found == kMonthKeys.end() ? std::int16_t{0}
                                   : static_cast<std::int16_t>(found - kMonthKeys.begin() + 1);
}

std::int16_t YearFromLabel(std::string_view label) {
  if (label.size() > 4) label.remove_prefix(label.size() - 4);
  if (label.size() == 4) {
    // Four digits, as every label of the program ends in; anything else takes the general road.
    int year = 0;
    for (char c : label) year = c >= '0' && c <= '9' && year >= 0 ? year * 10 + (c - '0') : -1;
    if (year >= 0) return static_cast<std::int16_t>(year);
  }
  return RoundToInt16(TextToNumber(label));
}

std::string MakeDateLabel(std::int16_t month, std::int16_t year) {
  if (month < -1 || month > kMonthsPerYear + 1) return {};
  // Lists are made of hundreds of them: written in place, they need one copy.
  char label[16] = "mmm - ";
  kMonths[(month + kMonthsPerYear - 1) % kMonthsPerYear].copy(label, 3);
  return std::string(label, std::to_chars(label + 6, label + sizeof label, year).ptr);
}

std::int16_t MonthsBetween(std::string_view label, std::string_view other) {
  const std::int16_t years = Subtract(YearFromLabel(other), YearFromLabel(label));
  return Add(Multiply(years, kMonthsPerYear),
             Subtract(MonthNumberFromLabel(other), MonthNumberFromLabel(label)));
}

std::int16_t MonthsInclusive(std::string_view first, std::string_view last) {
  return Add(MonthsBetween(first, last), 1);
}

std::string IsoMonth(std::string_view label) {
  const int month = MonthNumberFromLabel(label);
  if (month == 0 || label.size() < 4) return std::string(label);
  std::string iso(label.substr(label.size() - 4));
  iso += month < 10 ? "-0" : "-1";
  iso += static_cast<char>('0' + month % 10);
  return iso;
}

std::string LabelOfIsoMonth(std::string_view iso) {
  if (iso.size() != 7 || iso[4] != '-') return {};
  int number = 0;  // 203106
  for (std::size_t i = 0; i < iso.size(); ++i) {
    if (i == 4) continue;
    if (iso[i] < '0' || iso[i] > '9') return {};
    number = number * 10 + (iso[i] - '0');
  }
  const int month = number % 100, year = number / 100;
  if (month < 1 || month > kMonthsPerYear || year < kFirstIsoYear) return {};
  return MakeDateLabel(static_cast<std::int16_t>(month), static_cast<std::int16_t>(year));
}

std::string MonthAfter(std::string_view label) {
  const std::int16_t month = MonthNumberFromLabel(label);
  const std::int16_t year = YearFromLabel(label);
  return month == kMonthsPerYear ? MakeDateLabel(1, Add(year, 1)) : MakeDateLabel(Add(month, 1), year);
}

}  // namespace vicetoll
