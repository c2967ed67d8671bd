// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/date_list.h"

#include <gtest/gtest.h>

#include "calendar/month_list.h"
#include "controls/form.h"
#include "fault_of.h"

namespace vicetoll {
namespace {

using Entries = std::vector<std::string>;

class DateList : public testing::Test {
 protected:
  Entries Fill(const char* first, const char* last, std::int16_t step, bool clear = true) {
    FillDateList(clear, list, first, last, step);
    return list.Entries().All();
  }

  Form form{"test", ""};
  DropDownList& list = form.Add<DropDownList>({"list"});
};

TEST_F(DateList, HoldsTheMonthsOfTheList) {
  Fill("May - 1990", "May - 1995", 1);
  EXPECT_EQ(Fill("Jan - 2000", "Mar - 2001", 12), MonthList("Jan - 2000", "Mar - 2001", 12));
}

TEST_F(DateList, WithoutClearingTheMonthsGoInFrontAndNoneTwice) {
  Fill("Jan - 2005", "Jan - 2006", 6);
  EXPECT_EQ(Fill("Nov - 2004", "Jan - 2005", 1, false),
            (Entries{"Nov - 2004", "Dec - 2004", "Jan - 2005", "Jul - 2005", "Jan - 2006"}));
}

TEST_F(DateList, WithoutClearingTheFirstMonthIsAddedRegardless) {
  Fill("Jan - 2000", "Mar - 2000", 1);
  EXPECT_EQ(Fill("Jan - 2000", "Mar - 2000", 1, false),
            (Entries{"Jan - 2000", "Jan - 2000", "Feb - 2000", "Mar - 2000"}));
}

// The short way, for less than a step, looks for no duplicates at all.
TEST_F(DateList, WithoutClearingAShortSpanAddsBothEndsRegardless) {
  Fill("Mar - 2000", "Mar - 2000", 1);
  EXPECT_EQ(Fill("Feb - 2000", "Mar - 2000", 12, false), (Entries{"Feb - 2000", "Mar - 2000", "Mar - 2000"}));
}

TEST_F(DateList, KeepsTheSelectionWhoseTextIsStillThere) {
  Fill("Jan - 2000", "Jan - 2010", 12);
  list.SetText("Jan - 2003");
  Fill("Jan - 2002", "Jan - 2010", 12);
  EXPECT_EQ(list.Text(), "Jan - 2003");
  EXPECT_EQ(list.Position(), 1);
}

TEST_F(DateList, SelectsTheFirstEntryWhereTheTextIsGone) {
  Fill("Jan - 2000", "Jan - 2010", 12);
  list.SetText("Jan - 2003");
  Fill("Jan - 2004", "Jan - 2010", 12);
  EXPECT_EQ(list.Text(), "Jan - 2004");
  EXPECT_EQ(list.Position(), 0);
}

TEST_F(DateList, ATextThatWasNoEntryIsFoundIfItBecomesOne) {
  list.SetText("Feb - 2000");
  Fill("Jan - 2000", "Mar - 2000", 1);
  EXPECT_EQ(list.Position(), 1);
}

TEST_F(DateList, AMalformedLabelIsAFault) {
  EXPECT_EQ(FaultOf([&] { Fill("", "Jan - 2000", 12); }), FaultKind::Conversion);
  EXPECT_EQ(FaultOf([&] { Fill("Jan - 2000", "never", 12); }), FaultKind::Conversion);
}

}  // namespace
}  // namespace vicetoll
