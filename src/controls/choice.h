// SPDX-License-Identifier: GPL-3.0-or-later
// Controls that are on or off: options, radios, check boxes.
#pragma once

#include <vector>

#include "controls/control.h"
#include "controls/focus_group.h"

namespace vicetoll {

class Choice;

// Choices of which one at most is on. The arrows choose, round and round.
class ChoiceGroup : public FocusGroup {
 public:
  void Add(Choice& choice) { members_.push_back(&choice); }
  const std::vector<Choice*>& Members() const { return members_; }

  std::vector<Control*> All() const override;
  // The one that is on, else the first that a user gets at.
  Control* Stop() const override;
  Control* Next(const Control& from, Arrow arrow) const override;
  bool ArrowsClick() const override { return arrowsClick_; }
  // For choices that act at once, like buttons: there an arrow must not choose.
  void SetArrowsClick(bool click) { arrowsClick_ = click; }

 private:
  std::vector<Choice*> members_;
  bool arrowsClick_ = true;
};

class Choice : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  bool Value() const { return value_; }
  int Colour() const { return colour_; }
  void SetColour(int colour);

  // Sets the value. Turning a member of a group on turns the others off; turning it off leaves the
  // group without one that is on. Runs the change events of radios whose value changed.
  void SetValue(bool value);

  void TakeStateOf(const Control& other) override;

  void JoinGroup(ChoiceGroup& group);

  // Runs on a user's click, also on a choice that is on already, and never by program.
  UserOutcome UserClicks();
  std::function<void()> onClick;

 protected:
  virtual bool ValueAfterClick() const { return true; }
  virtual void ValueChanged() {}

 private:
  ChoiceGroup* group_ = nullptr;
  bool value_ = false;
  int colour_ = -1;  // -1: the window's own
};

class Option : public Choice {
 public:
  using Choice::Choice;
  ControlKind Kind() const override { return ControlKind::Option; }
};

// A radio has a change event: it runs whenever the value changes, by user or program.
class Radio : public Choice {
 public:
  using Choice::Choice;
  ControlKind Kind() const override { return ControlKind::Radio; }
  std::function<void()> onChange;

 protected:
  void ValueChanged() override {
    if (onChange) onChange();
  }
};

class CheckBox : public Choice {
 public:
  using Choice::Choice;
  ControlKind Kind() const override { return ControlKind::CheckBox; }

 protected:
  bool ValueAfterClick() const override { return !Value(); }
};

}  // namespace vicetoll
