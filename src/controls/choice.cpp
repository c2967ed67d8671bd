// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/choice.h"

#include <algorithm>

namespace vicetoll {

std::vector<Control*> ChoiceGroup::All() const { return {members_.begin(), members_.end()}; }

Control* ChoiceGroup::Stop() const {
  Control* first = nullptr;
  for (Choice* member : members_) {
    if (!member->Reachable()) continue;
    if (member->Value()) return member;
    if (first == nullptr) first = member;
  }
  return first;
}

Control* ChoiceGroup::Next(const Control& from, Arrow arrow) const {
  const auto here = std::ranges::find(members_, &from);
  if (here == members_.end()) return nullptr;
  const std::size_t count = members_.size();
  const std::size_t step = arrow == Arrow::Right || arrow == Arrow::Down ? 1 : count - 1;
  auto place = static_cast<std::size_t>(here - members_.begin());
  for (std::size_t i = 1; i < count; ++i) {
    place = (place + step) % count;
    if (members_[place]->Reachable()) return members_[place];
  }
  return nullptr;
}

void Choice::SetColour(int colour) {
  if (colour_ == colour) return;
  colour_ = colour;
  Changed();
}

void Choice::TakeStateOf(const Control& other) {
  const auto& choice = dynamic_cast<const Choice&>(other);
  value_ = choice.value_;
  colour_ = choice.colour_;
  CaptionedControl::TakeStateOf(other);
}

void Choice::JoinGroup(ChoiceGroup& group) {
  group_ = &group;
  group.Add(*this);
}

void Choice::SetValue(bool value) {
  if (value_ == value) return;
  // All values stand before the first change event runs: a handler must see the group as it will be.
  std::vector<Choice*> turnedOff;
  if (value && group_ != nullptr) {
    for (Choice* other : group_->Members()) {
      if (other == this || !other->value_) continue;
      other->value_ = false;
      other->Changed();
      turnedOff.push_back(other);
    }
  }
  value_ = value;
  Changed();
  for (Choice* other : turnedOff) other->ValueChanged();
  ValueChanged();
}

UserOutcome Choice::UserClicks() {
  if (!Reachable()) return UserOutcome::Refused;
  SetValue(ValueAfterClick());
  if (onClick) onClick();
  return Acted();
}

}  // namespace vicetoll
