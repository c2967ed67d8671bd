// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/month_functions.h"

#include <gtest/gtest.h>

#include "calendar/number_text.h"
#include "fault_of.h"
#include "month_terms.h"

namespace vicetoll {
namespace {

MonthCostCells Cells(const CostTerms& terms, std::int16_t month, std::int16_t months) {
  return CellsOf(terms, FiguresOfMonth(terms, month, months));
}

// A month's increase is 1.005: 2.01 * 30.42 = 61.1442, then 2.02005 * 30.42 = 61.449921.
TEST(MonthCost, OfAPackADay) {
  const MonthCostCells first = Cells(kPackADay, 1, 3);
  EXPECT_EQ(first.quantity, "1.00");
  EXPECT_EQ(first.unitCost, "$2.01");
  EXPECT_EQ(first.monthCost, "$61.14");
  const MonthCostCells second = Cells(kPackADay, 2, 3);
  EXPECT_EQ(second.unitCost, "$2.02");
  EXPECT_EQ(second.monthCost, "$61.45");
}

TEST(MonthCost, OfUnitsTakesTheQuantityAsItIs) {
  // 6 * 3.00 * 30.42 = 547.56.
  const CostTerms terms{
      .costClass = CostClass::UnitsClass, .initialCost = 3, .quantity = 6, .packsFlag = false};
  const MonthCostCells cells = Cells(terms, 1, 1);
  EXPECT_EQ(cells.quantity, "6.00");
  EXPECT_EQ(cells.monthCost, "$547.56");
}

// 20 * (1 + 0.05 / 12) = 20.08333, and the month 608.40 + 2.535 = 610.935, a tie in decimal.
TEST(MonthCost, OfAFlatRateShowsTheCostPerDayBeforeAndAfterTheIncrease) {
  const CostTerms terms{.initialCost = 20, .yearlyFraction = 0.05};
  const MonthCostCells cells = Cells(terms, 1, 12);
  EXPECT_EQ(cells.quantity, "20.00");
  EXPECT_EQ(cells.unitCost, "$20.08");
  EXPECT_EQ(cells.monthCost, "$610.94");
}

// Gross 3.03 and reasonable 1.111 both rise; 1.919 * 4 * 30.42 = 233.50392.
TEST(MonthCost, OfNetUnitsRaisesGrossAndReasonableAlike) {
  const MonthCostCells cells = Cells(kFourCoffees, 1, 12);
  EXPECT_EQ(cells.quantity, "4.00");
  EXPECT_EQ(cells.unitCost, "$3.03");
  EXPECT_EQ(cells.reasonableCost, "$1.11");
  EXPECT_EQ(cells.adjustedCost, "$1.92");
  EXPECT_EQ(cells.monthCost, "$233.50");
}

TEST(MonthCost, CellsStandInTheirColumns) {
  for (const CostClass costClass : kClasses) {
    CostTerms terms = kFourCoffees;
    terms.costClass = costClass;
    const bool net = costClass == CostClass::NetUnitsClass;
    const MonthCostCells cells = Cells(terms, 1, 12);
    EXPECT_EQ(cells.Columns(), net ? 6 : 4);
    EXPECT_EQ(cells.Column(0), cells.quantity);
    EXPECT_EQ(cells.Column(1), cells.unitCost);
    EXPECT_EQ(cells.Column(2), cells.monthCost);
    EXPECT_EQ(cells.Column(3), "");
    EXPECT_EQ(cells.Column(4), net ? "$1.11" : "");
    EXPECT_EQ(cells.Column(5), net ? "$1.92" : "");
  }
}

// The first month has an increase already.
TEST(MonthCost, CompoundsMonthly) {
  double cost = 100;
  for (std::int16_t month = 1; month <= 12; ++month) {
    cost *= 1.01;
    EXPECT_DOUBLE_EQ(CompoundedCost(100, month, 0.12), cost);
  }
  EXPECT_NEAR(cost, 112.6825, 0.0001);  // 12.68% a year, not 12%
}

TEST(MonthCost, AnIndexBelowOneHasOneIncrease) {
  for (const std::int16_t month : std::initializer_list<std::int16_t>{0, -1, -32768})
    EXPECT_EQ(CompoundedCost(100, month, 0.12), 100 * 1.01);
}

TEST(MonthCost, AnAmountBeyondADoubleIsAFault) {
  EXPECT_EQ(FaultOf([] { CompoundedCost(1e308, 1000, 1); }), FaultKind::Overflow);
}

TEST(MonthCost, HalfAPackShowsWithoutALeadingZero) {
  CostTerms terms = kPackADay;
  terms.quantity = 10;
  EXPECT_EQ(Cells(terms, 1, 1).quantity, ".50");
}

TEST(MonthCost, IsNothingWhereGrossIsReasonable) {
  CostTerms terms = kFourCoffees;
  terms.reasonableCost = terms.initialCost;
  EXPECT_EQ(Cells(terms, 5, 12).monthCost, "$0.00");
}

// (1.00 - 2.00) * 4 * 30.42 = -121.68.
TEST(MonthCost, IsBelowZeroWhereReasonableIsAboveGross) {
  CostTerms terms = kFourCoffees;
  terms.initialCost = 1;
  terms.reasonableCost = 2;
  terms.yearlyFraction = 0;
  const MonthCostCells cells = Cells(terms, 1, 12);
  EXPECT_EQ(cells.adjustedCost, "-$1.00");
  EXPECT_EQ(cells.monthCost, "-$121.68");
}

TEST(MonthCost, ClassesWithoutCostModesKnowNoStraightLine) {
  for (const CostClass costClass : {CostClass::NetUnitsClass, CostClass::FlatRateClass}) {
    CostTerms terms = kFourCoffees;
    terms.costClass = costClass;
    terms.percentMode = false;
    terms.finalCost = 100;
    EXPECT_EQ(Cells(terms, 2, 2).unitCost, "$3.06");  // 3.00 * 1.01 * 1.01 = 3.0603
  }
}

// What is added up is what the cell shows.
TEST(MonthCost, CountsAsItShows) {
  for (const CostTerms& terms :
       {kPackADay, kFourCoffees, CostTerms{.initialCost = 20, .yearlyFraction = 0.05}}) {
    MonthWalk walk(terms, 240);
    for (int month = 1; month <= 240; ++month) {
      const MonthFigures figures = walk.Next();
      EXPECT_EQ(RoundToCents(figures.monthCost), TextToNumber(CellsOf(terms, figures).monthCost));
    }
  }
}

// Any month of the straight line can be asked for, also those that no period has.
TEST(MonthCost, TheStraightLineGoesOnBothWays) {
  CostTerms terms = kPackADay;
  terms.percentMode = false;
  terms.finalCost = 5;
  EXPECT_EQ(Cells(terms, 0, 3).unitCost, "$2.00");
  EXPECT_EQ(Cells(terms, -1, 3).unitCost, "$1.00");
  EXPECT_EQ(FiguresOfMonth(terms, 1.5, 3).unitCost, 3.5);
}

double DayCount(std::string index, const char* start) { return DayCountOfMonthIndex(index, start); }

TEST(DayCount, IsThatOfTheCalendarMonthInAYearOf365Days) {
  constexpr double kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (std::int16_t month = 1; month <= 12; ++month) {
    EXPECT_EQ(DayCount("1", MakeDateLabel(month, 2000).c_str()), kDays[month - 1]) << month;
    EXPECT_EQ(DayCount(std::to_string(month), "Jan - 2000"), kDays[month - 1]) << month;
  }
}

TEST(DayCount, LaterYearsRepeatTheFirstButForDecember) {
  EXPECT_EQ(DayCount("12", "Jan - 2000"), 31);
  EXPECT_EQ(DayCount("13", "Jan - 2000"), 31);  // the second January
  EXPECT_EQ(DayCount("14", "Jan - 2000"), 28);
  EXPECT_EQ(DayCount("24", "Jan - 2000"), 365.0 / 12);
  EXPECT_EQ(DayCount("36", "Jan - 2000"), 365.0 / 12);
  EXPECT_EQ(DayCount("10", "Mar - 2000"), 31);          // the first December
  EXPECT_EQ(DayCount("22", "Mar - 2000"), 365.0 / 12);  // the second
}

TEST(DayCount, WritesTheCalendarMonthBack) {
  std::string index = "3";
  DayCountOfMonthIndex(index, "Mar - 2000");
  EXPECT_EQ(index, "5");
}

TEST(DayCount, AnIndexThatIsNoNumberIsAFault) {
  EXPECT_EQ(FaultOf([] { DayCount("one", "Jan - 2000"); }), FaultKind::Conversion);
}

}  // namespace
}  // namespace vicetoll
