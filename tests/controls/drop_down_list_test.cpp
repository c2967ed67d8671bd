// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/drop_down_list.h"

#include <gtest/gtest.h>

#include "controls/form.h"
#include "fault_of.h"

namespace vicetoll {
namespace {

class List : public testing::Test {
 protected:
  List() {
    form.Show();
    list.onPick = [this] { ++picks; };
    list.onFocus = [this] { ++focuses; };
  }

  void Fill(std::initializer_list<const char*> entries) {
    for (const char* entry : entries) list.Append(entry);
  }

  Form form{"test", ""};
  DropDownList& list = form.Add<DropDownList>({"list"});
  int picks = 0;
  int focuses = 0;
};

TEST_F(List, StartsWithNothing) {
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(list.Position(), -1);
}

TEST_F(List, HasNoPlaceBehindTheOneAfterItsLastEntry) {
  Fill({"a"});
  EXPECT_EQ(FaultOf([&] { list.Insert(2, "b"); }), FaultKind::Index);
  EXPECT_EQ(FaultOf([&] { list.Insert(-1, "b"); }), FaultKind::Index);
  EXPECT_EQ(list.Entries().All(), std::vector<std::string>{"a"});
  list.Insert(1, "b");
  EXPECT_EQ(list.Entry(1), "b");
}

TEST_F(List, FillingSelectsNothing) {
  Fill({"a", "b"});
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(list.Position(), -1);
}

TEST_F(List, TakesAnyTextByProgram) {
  Fill({"a", "b"});
  list.SetText("b");
  EXPECT_EQ(list.Position(), 1);
  list.SetText("something else");
  EXPECT_EQ(list.Text(), "something else");
  EXPECT_EQ(list.Position(), -1);
}

TEST_F(List, ATextIsTheFirstOfEqualEntries) {
  Fill({"a", "b", "c", "b"});
  list.SetText("b");
  EXPECT_EQ(list.Position(), 1);
}

TEST_F(List, APickKeepsThePositionAmongEqualEntries) {
  Fill({"a", "b", "c", "b"});
  EXPECT_EQ(list.UserPicks(3), UserOutcome::Done);
  EXPECT_EQ(list.Text(), "b");
  EXPECT_EQ(list.Position(), 3);
  EXPECT_EQ(list.UserPicks("b"), UserOutcome::Done);
  EXPECT_EQ(list.Position(), 1);
}

TEST_F(List, ThePositionFollowsItsEntry) {
  Fill({"a", "b"});
  list.SetText("b");
  list.Insert(1, "behind a");
  EXPECT_EQ(list.Position(), 2);
  list.Insert(0, "front");
  EXPECT_EQ(list.Position(), 3);
  list.Append("end");
  EXPECT_EQ(list.Position(), 3);
  EXPECT_EQ(list.Text(), "b");
  EXPECT_EQ(list.Entry(list.Position()), "b");
}

TEST_F(List, AnEqualEntryInFrontDoesNotTakeTheSelection) {
  Fill({"a"});
  list.SetText("a");
  list.Insert(0, "a");
  EXPECT_EQ(list.Position(), 1);
}

TEST_F(List, AnAddedEntryThatEqualsTheTextBecomesThePosition) {
  list.SetText("b");
  Fill({"a", "b", "b"});
  EXPECT_EQ(list.Position(), 1);
  EXPECT_EQ(list.Text(), "b");
}

TEST_F(List, ClearingTakesEntriesTextAndPosition) {
  Fill({"a", "b"});
  list.SetText("b");
  list.Clear();
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(list.Position(), -1);
}

TEST_F(List, AnEntryOutsideIsTheEmptyText) {
  Fill({"a", "b"});
  for (int position : {-1, 2, 1000}) EXPECT_EQ(list.Entry(position), "") << position;
  list.SelectEntry(2);
  EXPECT_EQ(list.Text(), "");
}

TEST_F(List, PastTheEndReadsAsTheLastEntryWhereThatIsWanted) {
  EXPECT_EQ(list.EntryOrLast(3), "");
  Fill({"a", "b"});
  EXPECT_EQ(list.EntryOrLast(0), "a");
  EXPECT_EQ(list.EntryOrLast(2), "b");
  EXPECT_EQ(list.EntryOrLast(-1), "");
}

TEST_F(List, ProgramsRaiseNoUserEvent) {
  Fill({"a", "b"});
  list.SetText("b");
  list.SelectEntry(0);
  list.Clear();
  EXPECT_EQ(picks, 0);
}

TEST_F(List, EveryPickRaisesItsEventAndMovesNoFocus) {
  Fill({"a", "b"});
  list.UserPicks(1);
  list.UserPicks(1);  // the entry that is selected already
  EXPECT_EQ(picks, 2);
  EXPECT_EQ(focuses, 0);
  EXPECT_EQ(list.UserFocuses(), UserOutcome::Done);
  EXPECT_EQ(focuses, 1);
}

TEST_F(List, AHandlerSeesThePick) {
  Fill({"a", "b"});
  std::string seen;
  list.onPick = [&] { seen = list.Text(); };
  list.UserPicks(1);
  EXPECT_EQ(seen, "b");
}

TEST_F(List, WhatIsNoEntryCannotBePicked) {
  Fill({"a", "b"});
  list.SetText("a");
  EXPECT_EQ(list.UserPicks(2), UserOutcome::NoEntry);
  EXPECT_EQ(list.UserPicks(-1), UserOutcome::NoEntry);
  EXPECT_EQ(list.UserPicks("c"), UserOutcome::NoEntry);
  EXPECT_EQ(list.Text(), "a");
  EXPECT_EQ(picks, 0);
}

TEST_F(List, WhatCannotBeReachedRefusesAPick) {
  Fill({"a"});
  list.SetEnabled(false);
  EXPECT_EQ(list.UserPicks(0), UserOutcome::Refused);
  EXPECT_EQ(list.UserPicks("nothing"), UserOutcome::Refused);
  EXPECT_EQ(list.Text(), "");
  EXPECT_EQ(picks, 0);
}

TEST_F(List, TakesTypingOnlyWhereItMay) {
  Fill({"a"});
  int typed = 0;
  list.onType = [&] { ++typed; };
  EXPECT_EQ(list.UserTypes("own"), UserOutcome::Refused);
  EXPECT_EQ(list.Text(), "");
  list.SetTakesTyping(true);
  EXPECT_EQ(list.UserTypes("own"), UserOutcome::Done);
  EXPECT_EQ(list.Text(), "own");
  EXPECT_EQ(typed, 1);
}

}  // namespace
}  // namespace vicetoll
