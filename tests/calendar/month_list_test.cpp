// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/month_list.h"

#include <gtest/gtest.h>

#include "fault_of.h"

namespace vicetoll {
namespace {

using Months = std::vector<std::string>;

TEST(MonthListTest, EndsInTheLastMonthAlsoBetweenTwoSteps) {
  EXPECT_EQ(MonthList("Jan - 2000", "Mar - 2001", 12), (Months{"Jan - 2000", "Jan - 2001", "Mar - 2001"}));
}

TEST(MonthListTest, HasTheLastMonthOnceWhereAStepMeetsIt) {
  EXPECT_EQ(MonthList("Jan - 2000", "Jan - 2002", 12), (Months{"Jan - 2000", "Jan - 2001", "Jan - 2002"}));
}

TEST(MonthListTest, EqualEndsAreOneEntry) {
  EXPECT_EQ(MonthList("Jan - 2000", "Jan - 2000", 12), Months{"Jan - 2000"});
}

TEST(MonthListTest, ASpanOfOneStepIsTheTwoEnds) {
  EXPECT_EQ(MonthList("Jan - 2000", "Jan - 2001", 12), (Months{"Jan - 2000", "Jan - 2001"}));
  EXPECT_EQ(MonthList("Jan - 2000", "Feb - 2000", 1), (Months{"Jan - 2000", "Feb - 2000"}));
}

TEST(MonthListTest, ASpanShorterThanAStepIsTheTwoEnds) {
  EXPECT_EQ(MonthList("Jan - 2000", "Dec - 2000", 12), (Months{"Jan - 2000", "Dec - 2000"}));
}

TEST(MonthListTest, AnEndBeforeTheBeginningStandsBehindIt) {
  EXPECT_EQ(MonthList("Jan - 2000", "Jan - 1990", 12), (Months{"Jan - 2000", "Jan - 1990"}));
}

TEST(MonthListTest, StepsGoOverTheEndOfAYear) {
  EXPECT_EQ(MonthList("Nov - 1999", "Feb - 2000", 1),
            (Months{"Nov - 1999", "Dec - 1999", "Jan - 2000", "Feb - 2000"}));
  EXPECT_EQ(MonthList("Jul - 1999", "Jan - 2001", 6),
            (Months{"Jul - 1999", "Jan - 2000", "Jul - 2000", "Jan - 2001"}));
}

TEST(MonthListTest, NeedsYearsAndAStep) {
  EXPECT_EQ(FaultOf([] { MonthList("", "Jan - 2000", 12); }), FaultKind::Conversion);
  EXPECT_EQ(FaultOf([] { MonthList("Jan - 2000", "Jan", 12); }), FaultKind::Conversion);
  EXPECT_EQ(FaultOf([] { MonthList("Jan - 2000", "Jan - 2001", 0); }), FaultKind::Overflow);
}

}  // namespace
}  // namespace vicetoll
