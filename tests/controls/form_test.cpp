// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/form.h"

#include <gtest/gtest.h>

#include "controls/drop_down_list.h"
#include "fault_of.h"

namespace vicetoll {
namespace {

class Heard : public FormListener {
 public:
  void ControlChanged(Control& control) override { names.push_back(control.FullName()); }
  void FormChanged(Form& form) override { names.push_back(form.Name()); }

  // What was heard since the last question.
  std::vector<std::string> Take() { return std::exchange(names, {}); }

 private:
  std::vector<std::string> names;
};

using Names = std::vector<std::string>;

// ---- Finding ----

class FormNames : public testing::Test {
 protected:
  FormNames() {
    for (int i : {2, 1, 3}) form.Add<Label>({"lbl", i}, "");
    form.Add<Label>({"lblTo"}, "");
    form.Add<Button>({"cmd"}, "");
  }
  Form form{"frmTest", ""};
};

TEST_F(FormNames, FindsByNameAndIndex) {
  EXPECT_EQ(form.Find("lbl(2)")->FullName(), "lbl(2)");
  EXPECT_EQ(form.Find("lbl", 3), form.Find("lbl(3)"));
  EXPECT_EQ(form.Find("cmd")->Name(), "cmd");
}

TEST_F(FormNames, FindsNothingElse) {
  for (const char* name : {"", "lbl", "lbl(4)", "lbl()", "lbl(x)", "lbl(2", "lbl(2)x", "cmd(1)", "lbl(2 )"})
    EXPECT_EQ(form.Find(name), nullptr) << name;
}

TEST_F(FormNames, FindsAnArrayInTheOrderOfItsIndices) {
  Names names;
  for (const Control* control : form.FindAll("lbl")) names.push_back(control->FullName());
  EXPECT_EQ(names, (Names{"lbl(1)", "lbl(2)", "lbl(3)"}));
  EXPECT_EQ(form.FindAll("cmd").size(), 1u);
  EXPECT_TRUE(form.FindAll("nothing").empty());
}

TEST_F(FormNames, KeepsTheOrderOfMakingAndSortsByName) {
  Names made, sorted;
  for (const auto& control : form.Controls()) made.push_back(control->FullName());
  for (const Control* control : form.ControlsByName()) sorted.push_back(control->FullName());
  EXPECT_EQ(made, (Names{"lbl(2)", "lbl(1)", "lbl(3)", "lblTo", "cmd"}));
  EXPECT_EQ(sorted, (Names{"cmd", "lbl(1)", "lbl(2)", "lbl(3)", "lblTo"}));
}

TEST_F(FormNames, AMissingControlIsAFault) {
  EXPECT_EQ(&form.Get<Button>("cmd"), form.Find("cmd"));
  EXPECT_EQ(FaultOf([&] { form.Get<Button>("cmdOther"); }), FaultKind::Index);
}

// ---- What a user reaches ----

class Reach : public testing::Test {
 protected:
  Reach() { form.Show(); }

  Form form{"frmTest", ""};
  TabControl& tabs = form.Add<TabControl>({"tabs"});
  Panel& panel = form.Add<Panel>({"panel", 1, &tabs, 1});
  Frame& frame = form.Add<Frame>({"frame", kNoIndex, &panel}, "");
  Button& button = form.Add<Button>({"button", kNoIndex, &frame}, "");
  Button& bare = form.Add<Button>({"bare"}, "");
};

TEST_F(Reach, NeedsTheTabInFront) {
  EXPECT_FALSE(button.Reachable());
  EXPECT_TRUE(bare.Reachable());
  EXPECT_EQ(tabs.UserSelects(1), UserOutcome::Done);
  EXPECT_TRUE(button.Reachable());
}

TEST_F(Reach, NeedsTheControlAndAllItStandsInVisibleAndEnabled) {
  tabs.SetTab(1);
  for (Control* control : std::initializer_list<Control*>{&tabs, &panel, &frame, &button}) {
    control->SetEnabled(false);
    EXPECT_FALSE(button.Reachable()) << control->Name();
    control->SetEnabled(true);
    control->SetVisible(false);
    EXPECT_FALSE(button.Reachable()) << control->Name();
    control->SetVisible(true);
  }
  EXPECT_TRUE(button.Reachable());
}

TEST_F(Reach, NeedsTheWindowShown) {
  form.Hide();
  EXPECT_FALSE(bare.Reachable());
}

TEST_F(Reach, WhatIsOutOfReachRefusesEveryAction) {
  Option& option = form.Add<Option>({"option", kNoIndex, &frame}, "");
  DropDownList& list = form.Add<DropDownList>({"list", kNoIndex, &frame});
  list.Append("a");
  int events = 0;
  const auto count = [&] { ++events; };
  button.onClick = panel.onClick = option.onClick = list.onPick = list.onFocus = tabs.onChange = count;
  tabs.SetEnabled(false);
  EXPECT_EQ(button.UserClicks(), UserOutcome::Refused);
  EXPECT_EQ(panel.UserClicks(), UserOutcome::Refused);
  EXPECT_EQ(option.UserClicks(), UserOutcome::Refused);
  EXPECT_EQ(list.UserPicks(0), UserOutcome::Refused);
  EXPECT_EQ(list.UserFocuses(), UserOutcome::Refused);
  EXPECT_EQ(tabs.UserSelects(1), UserOutcome::Refused);
  EXPECT_EQ(tabs.Tab(), 0);
  EXPECT_EQ(events, 0);
}

TEST_F(Reach, AControlIsReadAndWrittenOutOfReach) {
  TextBox& box = form.Add<TextBox>({"box", kNoIndex, &frame});
  box.SetText("$5");
  box.SetAvailable(false);
  EXPECT_EQ(box.Text(), "$5");
  box.SetText("$6");
  EXPECT_EQ(box.Text(), "$6");
}

TEST_F(Reach, TheTabEventRunsOnEveryChangeAndOnNoOther) {
  int changes = 0;
  tabs.onChange = [&] { ++changes; };
  tabs.UserSelects(0);
  EXPECT_EQ(changes, 0);
  tabs.UserSelects(2);
  EXPECT_EQ(changes, 1);
  tabs.SetTab(0);  // by program
  EXPECT_EQ(changes, 2);
  tabs.SetTab(0);
  EXPECT_EQ(changes, 2);
}

TEST_F(Reach, AWindowOutOfSightIsNotResized) {
  int resized = 0;
  form.onResize = [&] { ++resized; };
  EXPECT_EQ(form.UserResizes(200, 100), UserOutcome::Done);
  form.UserResizes(200, 100);
  form.Hide();
  EXPECT_EQ(form.UserResizes(300, 100), UserOutcome::Refused);
  EXPECT_EQ(form.Width(), 200);
  EXPECT_EQ(resized, 1);
}

// ---- The listener ----

TEST(Listener, HearsOfEveryChangeAfterIt) {
  Form form("frmTest", "");
  Heard heard;
  form.SetListener(&heard);
  DropDownList& list = form.Add<DropDownList>({"list"});
  TextBox& box = form.Add<TextBox>({"box", 2});
  Label& label = form.Add<Label>({"label"}, "");
  TabControl& tabs = form.Add<TabControl>({"tabs"});
  heard.Take();
  list.Append("a");
  EXPECT_EQ(heard.Take(), Names{"list"});
  list.SetText("a");
  EXPECT_EQ(heard.Take(), Names{"list"});
  list.Clear();
  EXPECT_EQ(heard.Take(), Names{"list"});
  box.SetText("x");
  EXPECT_EQ(heard.Take(), Names{"box(2)"});
  label.SetCaption("x");
  EXPECT_EQ(heard.Take(), Names{"label"});
  label.SetToolTip("x");
  EXPECT_EQ(heard.Take(), Names{"label"});
  label.SetPlace({1, 2, 3, 4});
  EXPECT_EQ(heard.Take(), Names{"label"});
  label.SetAvailable(false);
  EXPECT_EQ(heard.Take(), (Names{"label", "label"}));
  tabs.SetTab(1);
  EXPECT_EQ(heard.Take(), Names{"tabs"});
  form.Show();
  form.SetCaption("x");
  form.Resize(1, 2);
  EXPECT_EQ(heard.Take(), (Names{"frmTest", "frmTest", "frmTest"}));
}

TEST(Listener, HearsNothingWhereNothingChanged) {
  Form form("frmTest", "caption");
  TextBox& box = form.Add<TextBox>({"box"});
  Option& option = form.Add<Option>({"option"}, "caption");
  Heard heard;
  form.SetListener(&heard);
  box.SetText("");
  box.SetEnabled(true);
  box.SetVisible(true);
  option.SetCaption("caption");
  option.SetValue(false);
  form.SetCaption("caption");
  form.Hide();
  EXPECT_EQ(heard.Take(), Names{});
}

TEST(Listener, HearsOfAllMembersOfAGroupThatChange) {
  Form form("frmTest", "");
  ChoiceGroup& group = form.AddGroup();
  for (int i = 0; i < 3; ++i) form.Add<Option>({"option", i}, "").JoinGroup(group);
  form.Get<Option>("option", 0).SetValue(true);
  Heard heard;
  form.SetListener(&heard);
  form.Get<Option>("option", 2).SetValue(true);
  EXPECT_EQ(heard.Take(), (Names{"option(0)", "option(2)"}));
  form.Get<Option>("option", 2).SetColour(kGreen);
  EXPECT_EQ(heard.Take(), Names{"option(2)"});
}

}  // namespace
}  // namespace vicetoll
