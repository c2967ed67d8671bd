// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/choice.h"

#include <gtest/gtest.h>

#include "controls/form.h"

namespace vicetoll {
namespace {

class Choices : public testing::Test {
 protected:
  Choices() { form.Show(); }

  // Three choices of a kind in one group.
  template <class T>
  std::array<T*, 3> Group() {
    ChoiceGroup& group = form.AddGroup();
    std::array<T*, 3> made;
    for (int i = 0; i < 3; ++i) {
      made[i] = &form.Add<T>({"choice", i}, "caption");
      made[i]->JoinGroup(group);
    }
    return made;
  }

  Form form{"test", ""};
};

TEST_F(Choices, OneOfAGroupIsOn) {
  const auto options = Group<Option>();
  options[0]->SetValue(true);
  options[2]->SetValue(true);
  EXPECT_FALSE(options[0]->Value());
  EXPECT_FALSE(options[1]->Value());
  EXPECT_TRUE(options[2]->Value());
}

TEST_F(Choices, GroupsDoNotTouchEachOther) {
  const auto first = Group<Option>();
  const auto second = Group<Option>();
  first[0]->SetValue(true);
  second[1]->SetValue(true);
  EXPECT_TRUE(first[0]->Value());
}

TEST_F(Choices, TurningTheOneOffLeavesNoneOn) {
  const auto options = Group<Option>();
  options[1]->SetValue(true);
  options[1]->SetValue(false);
  for (const Option* option : options) EXPECT_FALSE(option->Value());
}

TEST_F(Choices, AnOptionHearsUsersOnly) {
  const auto options = Group<Option>();
  int clicks = 0;
  options[0]->onClick = [&] { ++clicks; };
  options[0]->SetValue(true);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(options[0]->UserClicks(), UserOutcome::Done);  // it is on already
  EXPECT_EQ(clicks, 1);
  EXPECT_TRUE(options[0]->Value());
  options[1]->UserClicks();
  EXPECT_EQ(clicks, 1);
  EXPECT_FALSE(options[0]->Value());
}

TEST_F(Choices, AClickHandlerSeesTheNewValue) {
  const auto options = Group<Option>();
  options[0]->SetValue(true);
  bool seen = false;
  options[1]->onClick = [&] { seen = options[1]->Value() && !options[0]->Value(); };
  options[1]->UserClicks();
  EXPECT_TRUE(seen);
}

TEST_F(Choices, WhatCannotBeReachedKeepsItsValue) {
  const auto options = Group<Option>();
  int clicks = 0;
  options[0]->onClick = [&] { ++clicks; };
  options[0]->SetEnabled(false);
  EXPECT_EQ(options[0]->UserClicks(), UserOutcome::Refused);
  EXPECT_FALSE(options[0]->Value());
  EXPECT_EQ(clicks, 0);
}

TEST_F(Choices, ARadioHearsEveryChangeOfItsValue) {
  const auto radios = Group<Radio>();
  std::array<int, 3> changes{};
  for (int i = 0; i < 3; ++i) radios[i]->onChange = [&changes, i] { ++changes[i]; };
  radios[0]->SetValue(true);  // by program
  EXPECT_EQ(changes, (std::array{1, 0, 0}));
  radios[0]->SetValue(true);  // it stays
  radios[0]->UserClicks();    // it stays
  EXPECT_EQ(changes, (std::array{1, 0, 0}));
  radios[1]->UserClicks();  // turns the first off
  EXPECT_EQ(changes, (std::array{2, 1, 0}));
  radios[1]->SetValue(false);
  EXPECT_EQ(changes, (std::array{2, 2, 0}));
}

TEST_F(Choices, ARadiosHandlerSeesTheGroupAsItWillBe) {
  const auto radios = Group<Radio>();
  radios[0]->SetValue(true);
  int seen = 0;
  for (Radio* radio : radios)
    radio->onChange = [&] {
      EXPECT_FALSE(radios[0]->Value());
      EXPECT_TRUE(radios[1]->Value());
      ++seen;
    };
  radios[1]->UserClicks();
  EXPECT_EQ(seen, 2);
}

TEST_F(Choices, ACheckBoxTurnsOverAtEveryClick) {
  CheckBox& box = form.Add<CheckBox>({"box"}, "caption");
  int clicks = 0;
  box.onClick = [&] { ++clicks; };
  box.UserClicks();
  EXPECT_TRUE(box.Value());
  box.UserClicks();
  EXPECT_FALSE(box.Value());
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace vicetoll
