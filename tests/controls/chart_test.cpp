// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/chart.h"

#include <gtest/gtest.h>

#include "controls/form.h"

namespace vicetoll {
namespace {

class ChartControl : public testing::Test {
 protected:
  ChartControl() { form.Show(); }
  static ChartContents Months(std::initializer_list<const char*> labels) {
    ChartContents contents;
    for (const char* label : labels) contents.months.push_back({.label = label});
    return contents;
  }

  Form form{"frmGrowth", ""};
  Chart& chart = form.Add<Chart>({"chtGrowth"});
};

TEST_F(ChartControl, HasItsCursorOnTheLastMonthAtFirst) {
  EXPECT_EQ(chart.Cursor(), -1);
  chart.SetContents(Months({"Jan - 2000", "Feb - 2000", "Mar - 2000"}));
  EXPECT_EQ(chart.Cursor(), 2);
  chart.SetContents({});
  EXPECT_EQ(chart.Cursor(), -1);
}

TEST_F(ChartControl, KeepsTheCursorOnItsMonth) {
  chart.SetContents(Months({"Jan - 2000", "Feb - 2000", "Mar - 2000"}));
  chart.UserPoints(1);
  chart.SetContents(Months({"Dec - 1999", "Jan - 2000", "Feb - 2000", "Mar - 2000"}));
  EXPECT_EQ(chart.Cursor(), 2);
  chart.SetContents(Months({"Dec - 1999", "Jan - 2000"}));
  EXPECT_EQ(chart.Cursor(), 1);
}

TEST_F(ChartControl, StopsTheCursorAtTheEnds) {
  EXPECT_EQ(chart.UserMoves(1), UserOutcome::NoEntry);
  chart.SetContents(Months({"Jan - 2000", "Feb - 2000", "Mar - 2000"}));
  EXPECT_EQ(chart.UserMoves(12), UserOutcome::Done);
  EXPECT_EQ(chart.Cursor(), 2);
  chart.UserMoves(-12);
  EXPECT_EQ(chart.Cursor(), 0);
  form.Hide();
  EXPECT_EQ(chart.UserMoves(1), UserOutcome::Refused);
  EXPECT_EQ(chart.Cursor(), 0);
}

TEST_F(ChartControl, TellsOfItsCursorAndNotOfTheSameContents) {
  int told = 0;
  chart.onCursor = [&told] { ++told; };
  chart.SetContents(Months({"Jan - 2000", "Feb - 2000"}));
  chart.SetContents(Months({"Jan - 2000", "Feb - 2000"}));
  EXPECT_EQ(told, 1);
  chart.UserPoints(1);
  EXPECT_EQ(told, 1);
  chart.UserPoints(0);
  EXPECT_EQ(told, 2);
}

}  // namespace
}  // namespace vicetoll
