#include "controls/choice.h"

namespace vicetoll {

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
