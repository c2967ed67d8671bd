// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/month_cost.h"

#include <gtest/gtest.h>

#include "fault_of.h"
#include "month_terms.h"

namespace vicetoll {
namespace {

TEST(MonthCost, WithoutAnIncreaseEveryMonthHasTheInitialCost) {
  for (const CostClass costClass : kClasses) {
    CostTerms terms = kFourCoffees;
    terms.costClass = costClass;
    terms.yearlyFraction = 0;
    MonthWalk walk(terms, 36);
    for (int month = 1; month <= 36; ++month) EXPECT_EQ(walk.Next().unitCost, 3);
  }
}

TEST(MonthCost, EqualInitialAndFinalCostsAreTheCostOfEveryMonth) {
  CostTerms terms = kPackADay;
  terms.percentMode = false;
  MonthWalk walk(terms, 7);
  for (int month = 1; month <= 7; ++month) EXPECT_EQ(walk.Next().unitCost, 2);
}

TEST(MonthCost, TwentyCigarettesAreAPack) {
  EXPECT_EQ(PacksFromQuantity(true, 1.5), 1.5);
  EXPECT_EQ(PacksFromQuantity(false, 30), 1.5);
}

// From 2.00 to 5.00 in three months: the first has moved a third of the way.
TEST(MonthWalk, TheStraightLineEndsInTheFinalCostAndGoesOn) {
  CostTerms terms = kPackADay;
  terms.percentMode = false;
  terms.finalCost = 5;
  MonthWalk walk(terms, 3);
  for (const double cost : {3, 4, 5, 6}) EXPECT_EQ(walk.Next().unitCost, cost);
  EXPECT_EQ(MonthWalk(terms, 1).Next().unitCost, 5);
}

// Gross 3.03 and reasonable 1.111 both rise; 1.919 * 4 * 30.42 = 233.50392. The second month has
// 3.0603 and 1.12211.
TEST(MonthWalk, RaisesGrossAndReasonableAlike) {
  MonthWalk walk(kFourCoffees, 12);
  const MonthFigures first = walk.Next();
  EXPECT_DOUBLE_EQ(first.unitCost, 3.03);
  EXPECT_DOUBLE_EQ(first.reasonableCost, 1.111);
  EXPECT_NEAR(first.AdjustedCost(), 1.919, 1e-12);
  EXPECT_NEAR(first.monthCost, 233.50392, 1e-9);
  const MonthFigures second = walk.Next();
  EXPECT_DOUBLE_EQ(second.unitCost, 3.0603);
  EXPECT_DOUBLE_EQ(second.reasonableCost, 1.12211);
}

// The cost of month n is the first cost multiplied n times by one month's factor, in this order: another
// order could differ in the last bit, and so in a cent.
TEST(MonthWalk, MultipliesOnceAMonth) {
  constexpr int kMonths = 1080;
  for (const CostClass costClass : kClasses) {
    for (const double rate : {0.0, 0.01, 0.05, 0.07, 0.1, 0.29, 1.0}) {
      CostTerms terms = kFourCoffees;
      terms.costClass = costClass;
      terms.initialCost = 7.3;
      terms.yearlyFraction = rate;
      MonthWalk walk(terms, kMonths);
      double cost = 7.3, reasonable = 1.1;
      for (int month = 1; month <= kMonths; ++month) {
        cost *= 1 + rate / 12;
        reasonable *= 1 + rate / 12;
        const MonthFigures figures = walk.Next();
        ASSERT_EQ(figures.unitCost, cost) << "month " << month << " at " << rate;
        ASSERT_EQ(figures.reasonableCost, costClass == CostClass::NetUnitsClass ? reasonable : 0);
      }
    }
  }
}

TEST(MonthWalk, AnAmountBeyondADoubleIsAFault) {
  EXPECT_EQ(FaultOf([] { LinearCost(0, 1e308, 1000, 1); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { MonthWalk({.initialCost = 1e307}, 1).Next(); }), FaultKind::Overflow);
}

}  // namespace
}  // namespace vicetoll
