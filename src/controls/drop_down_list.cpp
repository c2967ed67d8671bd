// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/drop_down_list.h"

#include <algorithm>
#include <utility>

#include "base/fault.h"

namespace vicetoll {
namespace {
const std::string kNoEntry;
}  // namespace

const std::string& DropDownList::Entry(int position) const {
  return position >= 0 && position < Count() ? entries_.At(position) : kNoEntry;
}

const std::string& DropDownList::EntryOrLast(int position) const {
  return Entry(std::min(position, Count() - 1));
}

int DropDownList::Find(std::string_view text) const { return entries_.Find(text); }

void DropDownList::SetText(std::string_view text) {
  text_ = text;
  position_ = Find(text_);
  Changed();
}

void DropDownList::Insert(int position, std::string_view entry) {
  if (position < 0 || position > Count())
    throw Fault(FaultKind::Index, "A list of " + std::to_string(Count()) + " entries has no place " +
                                      std::to_string(position) + ".");
  entries_.Insert(position, entry);
  if (position_ >= position)
    ++position_;
  else if (position_ == -1 && entry == text_)
    position_ = position;
  Changed();
}

void DropDownList::Append(std::vector<std::string> entries) {
  if (position_ == -1) {
    const auto found = std::find(entries.begin(), entries.end(), text_);
    if (found != entries.end()) position_ = Count() + static_cast<int>(found - entries.begin());
  }
  entries_.Append(std::move(entries));
  Changed();
}

void DropDownList::Clear() {
  entries_.Clear();
  text_.clear();
  position_ = -1;
  Changed();
}

void DropDownList::TakeStateOf(const Control& other) {
  const auto& list = dynamic_cast<const DropDownList&>(other);
  entries_ = list.entries_;
  text_ = list.text_;
  position_ = list.position_;
  takesTyping_ = list.takesTyping_;
  Control::TakeStateOf(other);
}

UserOutcome DropDownList::UserPicks(int position) {
  if (!Reachable()) return UserOutcome::Refused;
  if (position < 0 || position >= Count()) return UserOutcome::NoEntry;
  chosen_ = text_ = entries_.At(position);
  position_ = position;
  Changed();
  if (onPick) onPick();
  return Acted();
}

UserOutcome DropDownList::UserPicks(std::string_view entry) {
  if (!Reachable()) return UserOutcome::Refused;
  return UserPicks(Find(entry));
}

UserOutcome DropDownList::UserTypes(std::string_view text) {
  if (!Reachable() || !takesTyping_) return UserOutcome::Refused;
  chosen_ = text;
  SetText(text);
  if (onType) onType();
  return Acted();
}

}  // namespace vicetoll
