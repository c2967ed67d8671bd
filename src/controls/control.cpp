// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/control.h"

#include "controls/form.h"

namespace vicetoll {

Control::Control(Form& form, Identity identity) : form_(form), identity_(std::move(identity)) {}

std::string Control::FullName() const {
  if (Index() == kNoIndex) return Name();
  return Name() + "(" + std::to_string(Index()) + ")";
}

void Control::Changed() {
  if (FormListener* listener = form_.Listener()) listener->ControlChanged(*this);
}

UserOutcome Control::Acted() {
  form_.Acted(this);
  return UserOutcome::Done;
}

void Control::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Changed();
}

void Control::SetVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  Changed();
}

void Control::SetAvailable(bool available) {
  SetEnabled(available);
  SetVisible(available);
}

void Control::SetToolTip(std::string_view text) {
  toolTip_ = text;
  Changed();
}

void Control::SetPlace(const Place& place) {
  place_ = place;
  Changed();
}

bool Control::StandsInFront() const {
  if (Container() == nullptr) return form_.Shown();
  return Container()->ShowsPage(Page()) && Container()->Reachable();
}

bool Control::StandsOnPageInFront() const {
  return Container() == nullptr || (Container()->ShowsPage(Page()) && Container()->StandsOnPageInFront());
}

void Control::TakeStateOf(const Control& other) {
  enabled_ = other.enabled_;
  visible_ = other.visible_;
  toolTip_ = other.toolTip_;
  place_ = other.place_;
  Changed();
}

bool Control::TakesFocus() const {
  switch (Kind()) {
    case ControlKind::MenuEntry:
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::Panel:
      return false;
    default:
      return true;
  }
}

UserOutcome Control::UserFocuses() {
  if (!Reachable()) return UserOutcome::Refused;
  if (onFocus) onFocus();
  Acted();
  form_.TellFocus(*this);
  return UserOutcome::Done;
}

void CaptionedControl::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Changed();
}

void CaptionedControl::TakeStateOf(const Control& other) {
  caption_ = dynamic_cast<const CaptionedControl&>(other).caption_;
  Control::TakeStateOf(other);
}

UserOutcome Button::UserClicks() {
  if (!Reachable()) return UserOutcome::Refused;
  if (onClick) onClick();
  return Acted();
}

UserOutcome Panel::UserClicks() {
  if (!Reachable()) return UserOutcome::Refused;
  if (onClick) onClick();
  return Acted();
}

void TextBox::SetText(std::string_view text) {
  if (text_ == text) return;
  text_ = text;
  Changed();
}

void TextBox::TakeStateOf(const Control& other) {
  text_ = dynamic_cast<const TextBox&>(other).text_;
  Control::TakeStateOf(other);
}

void TabControl::TakeStateOf(const Control& other) {
  tab_ = dynamic_cast<const TabControl&>(other).tab_;
  Control::TakeStateOf(other);
}

void TabControl::SetTab(int tab) {
  if (tab_ == tab) return;
  tab_ = tab;
  Changed();
  if (onChange) onChange();
}

UserOutcome TabControl::UserSelects(int tab) {
  if (!Reachable()) return UserOutcome::Refused;
  SetTab(tab);
  return Acted();
}

}  // namespace vicetoll
