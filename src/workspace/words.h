// SPDX-License-Identifier: GPL-3.0-or-later
// Names and captions with gaps, as the rows of the design have them: "Period {n}: {Future} {title}".
//
//   {Fut}     the side in names of controls: Past or Fut
//   {Future}  the side in captions: Past or Future
//   {title}   the sin's title word: Ashtoll
//   {sin}     the word of the catalogue that stands beside the text
//   {i}       the index of the element
//   {n}       its period: elements 5 to 8 stand for periods 1 to 4 too
//   {page}    the tab
//   {web}     where the maker is found
//
// A gap of another name does not compile.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "controls/control.h"
#include "sins/catalogue.h"

namespace vicetoll {

// A word of a catalogue row, on both sides alike or one for each; or none.
struct SinWord {
  constexpr SinWord() = default;
  constexpr SinWord(std::string_view SinRow::*one) : alike(one) {}
  constexpr SinWord(BySide SinRow::*one) : sided(one) {}
  constexpr bool IsSet() const { return alike != nullptr || sided != nullptr; }

  std::string_view SinRow::*alike = nullptr;
  BySide SinRow::*sided = nullptr;
};

// Where a text with gaps is used. What stands once in a window has no side.
struct Spot {
  const SinRow& sin;
  std::optional<Side> side;
  int page = kAnyPage;
  int index = kNoIndex;
};

class Words {
 public:
  constexpr Words() = default;
  constexpr Words(const char* both, SinWord word = {}) : Words(both, both, word) {}
  constexpr Words(const char* past, const char* future, SinWord word = {})
      : text_(past, future), word_(word) {
    if ((Check(text_.past) + Check(text_.future) > 0) != word.IsSet())
      throw std::logic_error("A text and its word of the catalogue do not belong together.");
  }
  constexpr Words(std::string_view SinRow::*word) : Words("{sin}", word) {}
  constexpr Words(BySide SinRow::*word) : Words("{sin}", word) {}

  // As it stands in the row, gaps and all.
  constexpr std::string_view Pattern() const { return text_.past; }
  constexpr bool IsEmpty() const { return text_.past.empty() && text_.future.empty(); }

  // The text with its gaps filled. Throws std::logic_error where there is nothing to fill one with.
  std::string Fill(const Spot& spot) const;
  // The same, in `room` where there are gaps to fill: most texts have none, and need no copy.
  std::string_view FillIn(std::string& room, const Spot& spot) const;

 private:
  static constexpr std::string_view kGaps[] = {"{Fut}", "{Future}", "{title}", "{sin}",
                                               "{i}",   "{n}",      "{page}",  "{web}"};

  // How many gaps take the word of the catalogue.
  static constexpr int Check(std::string_view text) {
    int words = 0;
    for (std::size_t open = text.find('{'); open != text.npos; open = text.find('{', open + 1)) {
      const std::string_view gap = text.substr(open, text.find('}', open) + 1 - open);
      bool known = false;
      for (std::string_view name : kGaps) known = known || gap == name;
      if (!known) throw std::logic_error("A text has a gap of no known name.");
      if (gap == "{sin}") ++words;
    }
    return words;
  }

  void AppendFilling(std::string& text, std::string_view gap, const Spot& spot) const;

  BySide text_;
  SinWord word_;
};

}  // namespace vicetoll
