// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/side_chain.h"

#include <gtest/gtest.h>

#include "calendar/number_text.h"

namespace vicetoll {
namespace {

using Texts = std::array<std::string, 4>;

// A period that costs so much in each month, in cents.
PeriodTerms Monthly(const char* start, const char* stop, double cost, Rates rates = {}) {
  return {start, stop, rates, {.initialCost = cost / DaysPerMonth}};
}

DateWarning NoWarning() {
  return [](DateFault) { ADD_FAILURE() << "a warning"; };
}

SideTerms FourMonths(double cost) {
  SideTerms side;
  side.periods = {Monthly("Jan - 2000", "Jan - 2000", cost), Monthly("Feb - 2000", "Feb - 2000", cost),
                  Monthly("Mar - 2000", "Mar - 2000", cost), Monthly("Apr - 2000", "Apr - 2000", cost)};
  side.counted.fill(true);
  return side;
}

SideResults Evaluate(const SideTerms& side) { return EvaluateSide(side, NoWarning()); }

// 3 months of 60.84 at 12%, two months nothing, 2 months of 91.26 at 6% less 2%.
SideTerms TwoPeriods() {
  SideTerms side = FourMonths(0);
  side.periods[0] = Monthly("Jan - 2000", "Mar - 2000", 60.84, {12, 0});
  side.periods[1] = Monthly("Jun - 2000", "Jul - 2000", 91.26, {6, 2});
  side.counted = {true, true, false, false};
  return side;
}

// 186.19 shows as 186; over April and May 186 * 1.0201 = 189.74, as 190; then 374.70, as 375. Both costs
// are 182.52, and the total adds what their boxes show.
TEST(SideChain, CarriesTheShownBalanceOverTheGap) {
  const SideResults results = Evaluate(TwoPeriods());
  EXPECT_EQ(results.costs[0], "$183");
  EXPECT_EQ(results.costs[1], "$183");
  EXPECT_EQ(results.balances[0], "$186");
  EXPECT_EQ(results.balances[1], "$375");
  EXPECT_EQ(results.total, "$366");
}

TEST(SideChain, TheTotalAddsWholeUnits) {
  EXPECT_EQ(Evaluate(FourMonths(0.6)).total, "$4");  // four times "$1", not 2.40
  EXPECT_EQ(Evaluate(FourMonths(0.4)).total, "$0");
}

TEST(SideChain, EveryBalanceIsRoundedBeforeTheNextStepReadsIt) {
  EXPECT_EQ(Evaluate(FourMonths(0.4)).balances, (Texts{"$0", "$0", "$0", "$0"}));
  EXPECT_EQ(Evaluate(FourMonths(0.6)).balances, (Texts{"$1", "$2", "$3", "$4"}));
}

// 1,000 of period 1 grow by 1% in each month up to period 3: February to April, 1030.301 and so "$1,030".
TEST(SideChain, APeriodThatDoesNotCountIsSteppedOver) {
  SideTerms side = FourMonths(0);
  side.periods[0] = Monthly("Jan - 2000", "Jan - 2000", 1000 / 1.01, {12, 0});
  side.periods[1] = Monthly("Mar - 2000", "Mar - 2000", 500, {36, 0});
  side.periods[2] = Monthly("May - 2000", "May - 2000", 0);
  side.periods[3] = Monthly("Jun - 2000", "Jun - 2000", 0);
  side.counted = {true, false, true, true};
  const SideResults results = Evaluate(side);
  EXPECT_EQ(results.balances[0], "$1,000");
  EXPECT_EQ(results.balances[2], "$1,030");
  EXPECT_EQ(results.balances[3], "$1,030");
  EXPECT_EQ(results.total, "$990");  // 1000 / 1.01 = 990.10
  // What does not count is reckoned all the same: (1010 + 500) * 1.03 = 1555.30.
  EXPECT_EQ(results.costs[1], "$500");
  EXPECT_EQ(results.balances[1], "$1,555");
}

TEST(SideChain, OnlyTheThirdPeriodOpensWithNothing) {
  SideTerms side = FourMonths(100);
  side.counted = {false, false, true, false};
  const SideResults results = Evaluate(side);
  EXPECT_EQ(results.balances[2], "$100");
  EXPECT_EQ(results.total, "$100");
  // The fourth goes on from the third, though it does not count itself.
  EXPECT_EQ(results.balances[3], "$200");
}

// The nearest counted period before each one, for all sixteen ways to count: with 1 a month and no
// interest, a balance is the number of counted periods before it and its own.
TEST(SideChain, OpensWithTheNearestCountedPeriodBefore) {
  for (unsigned mask = 0; mask < 16; ++mask) {
    SideTerms side = FourMonths(1);
    for (unsigned p = 0; p < 4; ++p) side.counted[p] = (mask >> p & 1) != 0;
    const SideResults results = Evaluate(side);
    int before = 0;
    std::string last;
    for (unsigned p = 0; p < 4; ++p) {
      EXPECT_EQ(results.balances[p], FormatNumber(before + 1, "$0")) << "period " << p << " of " << mask;
      if (!side.counted[p]) continue;
      ++before;
      last = results.balances[p];
    }
    EXPECT_EQ(results.total, FormatNumber(before, "$0"));
    EXPECT_EQ(CumulativeChain(side, "0", NoWarning()), last);
  }
}

TEST(CumulativeChain, IsEmptyWhereNothingCounts) {
  SideTerms side = FourMonths(100);
  side.counted.fill(false);
  EXPECT_EQ(CumulativeChain(side, "500", NoWarning()), "");
}

// The first period takes the opening with its cents, a later one as it would show.
TEST(CumulativeChain, OpensWithTheOpeningGiven) {
  SideTerms side = FourMonths(0.2);
  side.counted = {true, false, false, false};
  EXPECT_EQ(CumulativeChain(side, "100.4", NoWarning()), "$101");
  side.counted = {false, true, false, false};
  EXPECT_EQ(CumulativeChain(side, "100.4", NoWarning()), "$100");
  side.counted = {true, true, false, false};
  EXPECT_EQ(CumulativeChain(side, "$1,100", NoWarning()), "$1,100");
}

TEST(SideChain, BalancesOfTheFirstPeriodsOnly) {
  EXPECT_EQ(ChainBalances(FourMonths(1), 2, "0", NoWarning()), (Texts{"$1", "$2", "", ""}));
}

// Negative costs too must survive their way through euro texts.
TEST(SideChain, GoesOnInEuros) {
  SideTerms side = FourMonths(-1200.5);
  side.currency = Currency::Euro;
  const SideResults results = Evaluate(side);
  EXPECT_EQ(results.costs[0],
            "-\x80"
            "1,201");
  EXPECT_EQ(results.total,
            "-\x80"
            "4,804");
  // -1200.50, -1201 - 1200.50 = -2401.50, -2402 - 1200.50 ...
  EXPECT_EQ(results.balances, (Texts{"-\x80"
                                     "1,201",
                                     "-\x80"
                                     "2,402",
                                     "-\x80"
                                     "3,603",
                                     "-\x80"
                                     "4,804"}));
}

}  // namespace
}  // namespace vicetoll
