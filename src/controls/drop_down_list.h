// SPDX-License-Identifier: GPL-3.0-or-later
// A drop-down list: entries, a text, and the position of the entry that the text is.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"
#include "controls/entry_list.h"

namespace vicetoll {

class DropDownList : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::List; }

  int Count() const { return entries_.Count(); }
  const EntryList& Entries() const { return entries_; }

  // The entry at a position from 0; the empty text outside the list.
  const std::string& Entry(int position) const;
  // The entry at a position, the last one for a position past the end, the empty text of an empty list.
  const std::string& EntryOrLast(int position) const;
  // The position of the first entry with this text, or -1.
  int Find(std::string_view text) const;

  const std::string& Text() const { return text_; }
  // The position of the entry that is selected, -1 while no entry equals the text.
  int Position() const { return position_; }

  // Takes any text, also one that is no entry. The position becomes that of the first equal entry.
  void SetText(std::string_view text);
  // Sets the text to the entry at the position (the empty text outside the list).
  void SelectEntry(int position) { SetText(std::string(Entry(position))); }

  // Adds an entry. The text stays, and the position follows its entry; while no entry equalled the text,
  // an added one that does becomes the position. Throws Fault(Index) outside 0..Count().
  void Insert(int position, std::string_view entry);
  void Append(std::string_view entry) { Insert(Count(), entry); }
  void Append(std::vector<std::string> entries);
  // Takes away entries, text and position.
  void Clear();
  void TakeStateOf(const Control& other) override;

  // A list that takes typing besides picking.
  bool TakesTyping() const { return takesTyping_; }
  void SetTakesTyping(bool takesTyping) { takesTyping_ = takesTyping; }

  // What the user picked or typed last, whatever has become of it; empty before he did.
  const std::string& Chosen() const { return chosen_; }

  UserOutcome UserPicks(int position);
  UserOutcome UserPicks(std::string_view entry);
  UserOutcome UserTypes(std::string_view text);  // Refused where the list takes no typing
  std::function<void()> onPick;                  // the user picked an entry, also the present one
  std::function<void()> onType;

 private:
  EntryList entries_;
  std::string text_;
  std::string chosen_;
  int position_ = -1;
  bool takesTyping_ = false;
};

}  // namespace vicetoll
