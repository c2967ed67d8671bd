// SPDX-License-Identifier: GPL-3.0-or-later
// What those who listen are told: the names of controls, and what changed without their doing.
#include <gtest/gtest.h>

#include "controls/spoken_changes.h"
#include "controls/spoken_name.h"
#include "program_fixture.h"

namespace vicetoll {
namespace {

TEST(SpokenName, IsTheCaptionWhereThatIsEnough) {
  Form form{"frm", "Window"};
  Frame& frame = form.Add<Frame>({"frame"}, "Costs");
  const Button& update = form.Add<Button>({"cmd", kNoIndex, &frame}, "Update");
  EXPECT_EQ(SpokenName(update), "Update");
  const Button& twin = form.Add<Button>({"cmdTwin"}, "Update");
  EXPECT_EQ(SpokenName(update), "Costs, Update");
  EXPECT_EQ(SpokenName(twin), "Update");  // nothing stands around it
  const auto& list = form.Add<DropDownList>({"com", kNoIndex, &frame});
  EXPECT_EQ(SpokenName(list), "Costs");
  const auto& grid = form.Add<TabControl>({"tabs"});
  EXPECT_EQ(SpokenName(grid), "Window");
  frame.SetOwnName("All costs");
  EXPECT_EQ(SpokenName(frame), "All costs");
  EXPECT_EQ(SpokenName(list), "Costs");
}

class SpokenList : public testing::Test {
 protected:
  SpokenList() {
    for (DropDownList* list : {&start, &stop})
      for (const char* entry : {"Jan - 2000", "Feb - 2000", "Mar - 2000"}) list->Append(entry);
    start.SelectEntry(0);
    stop.SelectEntry(2);
    start.SetOwnName("Start");
    stop.SetOwnName("Stop");
    total.SetOwnName("Total");
    form.Show();
    changes.After(nullptr);
  }

  Form form{"frm", "Window"};
  DropDownList& start = form.Add<DropDownList>({"comStart"});
  DropDownList& stop = form.Add<DropDownList>({"comStop"});
  TextBox& total = form.Add<TextBox>({"txtTotal"});
  SpokenChanges changes{form};
};

TEST_F(SpokenList, TheUsersOwnChoiceIsNoNews) {
  start.UserPicks(1);
  EXPECT_EQ(changes.After(&start), "");
}

TEST_F(SpokenList, AChoiceThatIsCorrectedIs) {
  start.onPick = [this] { start.SelectEntry(2); };
  start.UserPicks(1);
  EXPECT_EQ(changes.After(&start), "Start: Mar - 2000");
  EXPECT_EQ(changes.After(&start), "");
}

TEST_F(SpokenList, SoIsWhatAnActionElsewhereBrings) {
  stop.SelectEntry(1);
  total.SetText("$5");
  EXPECT_EQ(changes.After(&start), "Stop: Feb - 2000; Total: $5");
  total.SetText("");
  EXPECT_EQ(changes.After(nullptr), "Total: empty");
}

TEST_F(SpokenList, WhatIsNotInFrontIsNot) {
  stop.SetVisible(false);
  stop.SelectEntry(1);
  EXPECT_EQ(changes.After(&start), "");
  stop.SetVisible(true);
  EXPECT_EQ(changes.After(&start), "Stop: Feb - 2000");
  // A window that comes up is read by the user himself.
  form.Show();
  stop.SelectEntry(0);
  EXPECT_EQ(changes.After(&start), "");
}

class Announced : public testing::Test {
 protected:
  ScriptedPlatform platform{[](const std::string&) {}};
  Program program{platform};
  SinWorkspace& smoking = program.At(0);
  SideControls& past = smoking.Of(Side::Past);
};

TEST_F(Announced, APressTellsThePeriodAndTheTotal) {
  past.cmdSetPeriodParams->UserClicks();
  const std::string told = smoking.Announcement();
  EXPECT_NE(told.find("Cumulative Cost: " + past.txtCumulativeResultsPeriod(1).Text()), std::string::npos)
      << told;
  EXPECT_TRUE(told.ends_with("Total: Past Ashtoll, Out of Pocket Expense: " + past.txtResultsTotal->Text()))
      << told;
  // Also when it brings nothing new.
  past.comInterestRate1->UserFocuses();
  past.cmdSetPeriodParams->UserClicks();
  EXPECT_EQ(smoking.AnnouncementsMade(), 2);
  EXPECT_EQ(smoking.Announcement(), told);
}

// Under Course the list offers every year's month: a month between them is lost.
TEST_F(Announced, ADateThatARuleMovedIsTold) {
  past.optFineDateStart->UserClicks();
  past.comStart->UserFocuses();
  past.comStart->UserPicks(1);
  const std::string chosen = past.comStart->Text();
  EXPECT_EQ(smoking.AnnouncementsMade(), 0);
  past.optCourseDateStart->UserClicks();
  past.comStart->UserFocuses();
  ASSERT_NE(past.comStart->Text(), chosen);
  EXPECT_EQ(smoking.Announcement(), "Past Period 1: Date Started Smoking: " + past.comStart->Text());
}

TEST_F(Announced, TheTableTellsItsTotals) {
  past.cmdSetPeriodParams->UserClicks();
  smoking.Get<Button>("cmdCombinedResults").UserClicks();
  CombinedResults& table = program.Combined();
  table.Get<CheckBox>("chkWhichSins", 0).UserClicks();
  EXPECT_TRUE(table.Announcement().starts_with("Total, OutOfPocket Cost Past Sins: $0; "))
      << table.Announcement();
}

}  // namespace
}  // namespace vicetoll
