// SPDX-License-Identifier: GPL-3.0-or-later
// A text of many lines that a user may edit, with a selection.
#pragma once

#include <string>
#include <string_view>

#include "controls/control.h"

namespace vicetoll {

// Characters of the longest line that text from outside may make.
inline constexpr int kLongestLine = 500'000;

// Lines end in CR LF, which counts as two characters in every position and length.
class DocumentText : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::DocumentText; }

  const std::string& Text() const { return text_; }
  // Takes the text as it stands. A new text has nothing selected, position 0.
  void SetText(std::string text);
  // How many new texts were set. What is replaced in a text leaves it the same one: that can be undone.
  int TextsSet() const { return textsSet_; }

  int Length() const { return static_cast<int>(text_.size()); }
  int SelStart() const { return start_; }
  int SelLength() const { return length_; }
  std::string_view SelText() const { return std::string_view(text_).substr(start_, length_); }
  // A selection that runs out of the text is cut at its end.
  void Select(int start, int length);
  void SelectAll() { Select(0, Length()); }
  // Puts the text in the place of the selection; the position moves behind it. Without a selection the text
  // goes in at the position. All line ends are CR LF then, also one that the selection had cut in two.
  void ReplaceSelection(std::string_view text);
  // Whether the text may go there: no line would grow beyond what a window lays out while a user waits.
  bool HasRoomFor(std::string_view text) const;

  // A text to read only; a user's typing is refused.
  bool ReadOnly() const { return readOnly_; }
  void SetReadOnly(bool readOnly) { readOnly_ = readOnly; }

  // The user replaces the whole text by typing, its line ends turned into CR LF.
  UserOutcome UserTypes(std::string_view text);
  UserOutcome UserSelects(int start, int length);
  std::function<void()> onNoRoom;  // a text that there was no room for stayed outside

 private:
  void Put(std::string text);

  std::string text_;
  int textsSet_ = 0;
  int start_ = 0;
  int length_ = 0;
  bool readOnly_ = false;
};

}  // namespace vicetoll
