// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/date_label.h"

#include <gtest/gtest.h>

#include "fault_of.h"

namespace vicetoll {
namespace {

constexpr const char* kMonthNames[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

TEST(DateLabel, MonthIsReadFromTheFirstThreeCharactersInAnyCase) {
  EXPECT_EQ(MonthNumberFromLabel("january 1999"), 1);
  EXPECT_EQ(MonthNumberFromLabel("DECEMBER"), 12);
  EXPECT_EQ(MonthNumberFromLabel("sEp"), 9);
}

TEST(DateLabel, WhatNamesNoMonthIsMonthZero) {
  for (const char* label : {"xxx - 1999", "", "Ja", " Jan - 1999", "1999"})
    EXPECT_EQ(MonthNumberFromLabel(label), 0) << label;
}

TEST(DateLabel, EveryMonthIsMadeAndReadBack) {
  for (std::int16_t month = 1; month <= 12; ++month) {
    const std::string label = MakeDateLabel(month, 1915);
    EXPECT_EQ(label, std::string(kMonthNames[month - 1]) + " - 1915");
    EXPECT_EQ(MonthNumberFromLabel(label), month);
    EXPECT_EQ(YearFromLabel(label), 1915);
  }
}

TEST(DateLabel, MonthsBesideTheYearKeepTheYear) {
  EXPECT_EQ(MakeDateLabel(-1, 2000), "Nov - 2000");
  EXPECT_EQ(MakeDateLabel(0, 2000), "Dec - 2000");
  EXPECT_EQ(MakeDateLabel(13, 2000), "Jan - 2000");
}

TEST(DateLabel, OtherMonthsGiveNoLabelAtAll) {
  for (const std::int16_t month : std::initializer_list<std::int16_t>{-32768, -2, 14, 32767})
    EXPECT_EQ(MakeDateLabel(month, 2000), "") << month;
}

TEST(DateLabel, YearIsTheLastFourCharacters) {
  EXPECT_EQ(YearFromLabel("Jun - 1915"), 1915);
  EXPECT_EQ(YearFromLabel("Jun - 12026"), 2026);
  EXPECT_EQ(YearFromLabel("199"), 199);
}

TEST(DateLabel, AYearThatIsNoNumberIsAFault) {
  for (const char* label : {"Jan - 20x0", "January", ""})
    EXPECT_EQ(FaultOf([&] { YearFromLabel(label); }), FaultKind::Conversion) << label;
}

TEST(DateLabel, MonthsAreCountedWithBothEnds) {
  EXPECT_EQ(MonthsInclusive("Jan - 2000", "Jan - 2000"), 1);
  EXPECT_EQ(MonthsInclusive("Dec - 1999", "Jan - 2000"), 2);
  EXPECT_EQ(MonthsInclusive("Jan - 2000", "Dec - 2009"), 120);
  EXPECT_EQ(MonthsInclusive("Feb - 2000", "Jan - 2000"), 0);
  EXPECT_EQ(MonthsInclusive("Jan - 2000", "Jan - 1999"), -11);
}

TEST(DateLabel, NoMonthLiesBetweenAdjacentPeriods) {
  EXPECT_EQ(MonthsInclusive("Dec - 1999", "Jan - 2000") - 2, 0);
  EXPECT_EQ(MonthsInclusive("Mar - 2000", "Jun - 2000") - 2, 2);  // April and May
}

TEST(DateLabel, DistanceCountsNoEnd) {
  EXPECT_EQ(MonthsBetween("Jan - 2000", "Jan - 2000"), 0);
  EXPECT_EQ(MonthsBetween("Nov - 1999", "Feb - 2000"), 3);
  EXPECT_EQ(MonthsBetween("Feb - 2000", "Nov - 1999"), -3);
}

// A count of months is a 16-bit number: 2730 years are 32760 months, so July is the last month that fits.
TEST(DateLabel, ACountThatLeavesSixteenBitsIsAFault) {
  EXPECT_EQ(MonthsInclusive("Jan - 0000", "Jul - 2730"), 32767);
  EXPECT_EQ(FaultOf([] { MonthsInclusive("Jan - 0000", "Aug - 2730"); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { MonthsInclusive("Jan - 0001", "Jan - 9999"); }), FaultKind::Overflow);
}

TEST(DateLabel, AMonthInFiguresIsItsLabelAndBack) {
  EXPECT_EQ(IsoMonth("Jun - 2031"), "2031-06");
  EXPECT_EQ(IsoMonth("Dec - 1000"), "1000-12");
  EXPECT_EQ(LabelOfIsoMonth("2031-06"), "Jun - 2031");
  EXPECT_EQ(LabelOfIsoMonth("9999-10"), "Oct - 9999");
  EXPECT_EQ(IsoMonth("n/a"), "n/a");
}

TEST(DateLabel, WhatIsNoMonthInFiguresHasNoLabel) {
  for (const char* text : {"", "2031", "2031-6", "2031-006", "2031-00", "2031-13", "0999-06", "2031/06",
                           "2031-0x", "20x1-06", " 2031-06", "+031-06", "12031-06"})
    EXPECT_EQ(LabelOfIsoMonth(text), "") << text;
}

TEST(DateLabel, TheMonthAfterDecemberIsJanuaryOfTheNextYear) {
  EXPECT_EQ(MonthAfter("Dec - 1999"), "Jan - 2000");
  EXPECT_EQ(MonthAfter("Nov - 1999"), "Dec - 1999");
  EXPECT_EQ(MonthAfter("Jan - 1999"), "Feb - 1999");
}

}  // namespace
}  // namespace vicetoll
