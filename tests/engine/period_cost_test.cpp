// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/period_cost.h"

#include <gtest/gtest.h>

#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "fault_of.h"

namespace vicetoll {
namespace {

// A pack a day at one price.
PeriodTerms PackADay(const char* start, const char* stop, double price, Rates rates) {
  return {start,
          stop,
          rates,
          {.costClass = CostClass::PacksClass,
           .initialCost = price,
           .finalCost = price,
           .quantity = 20,
           .packsFlag = false,
           .percentMode = false}};
}

const PeriodTerms kFirst = PackADay("Jan - 2000", "Mar - 2000", 2, {12, 0});
const PeriodTerms kSecond = PackADay("Jun - 2000", "Jul - 2000", 3, {6, 2});

struct Warnings {
  std::vector<DateFault> faults;
  DateWarning Take() {
    return [this](DateFault fault) { faults.push_back(fault); };
  }
};

// The balance, where no warning is due.
double Cumulative(std::string_view start, const PeriodTerms& terms, std::string_view date) {
  return CumulativeCostInPeriod(start, terms, date, [](DateFault) { ADD_FAILURE() << "a warning"; });
}

TEST(PeriodCost, IsTheSumOfTheMonths) {
  EXPECT_EQ(FormatNumber(CostInPeriod(kFirst), "0.00"), "182.52");  // 3 * 2.00 * 30.42
  EXPECT_EQ(FormatNumber(CostInPeriod(kSecond), "0.00"), "182.52");
}

TEST(PeriodCost, AddsMonthsAsRoundedToCents) {
  // 0.10 * 30.42 / 20 = 0.1521 a month: 12 months of 0.15, not 1.8252.
  PeriodTerms terms = PackADay("Jan - 2000", "Dec - 2000", 0.1, {});
  terms.cost.quantity = 1;
  EXPECT_EQ(FormatNumber(CostInPeriod(terms), "0.0000"), "1.8000");
}

// Each month is 1e306 * 30.42, and seven of them are more than a number can hold.
TEST(PeriodCost, ASumBeyondAllBoundsIsAFault) {
  EXPECT_EQ(FaultOf([] { CostInPeriod(PackADay("Jan - 2000", "Jul - 2000", 1e306, {})); }),
            FaultKind::Overflow);
}

// (0 + 60.84) * 1.01 = 61.4484; (61.4484 + 60.84) * 1.01 = 123.511284; then 186.19479684.
TEST(CumulativeCost, PaysInterestOnTheMonthsOwnMoneyToo) {
  EXPECT_EQ(NumberToText(Cumulative("0", kFirst, "Jan - 2000")), "61.4484");
  EXPECT_EQ(NumberToText(Cumulative("0", kFirst, "Feb - 2000")), "123.511284");
  EXPECT_EQ(NumberToText(Cumulative("0", kFirst, "Mar - 2000")), "186.19479684");
}

TEST(CumulativeCost, GrowsInTheMonthsBetweenAtTheRateOfThePeriodThatEnded) {
  // April and May: 186 * 1.01 * 1.01.
  EXPECT_EQ(NumberToText(CumulativeCostBetweenPeriod("$186", kFirst.rates, "Mar - 2000", "Jun - 2000")),
            "189.7386");
}

TEST(CumulativeCost, ContinuesFromTheBalanceGiven) {
  // 281.26 * (1 + 0.04 / 12) = 282.19753..., 373.45753... * (1 + 0.04 / 12) = 374.70239...
  EXPECT_NEAR(Cumulative("$190", kSecond, "Jun - 2000"), 282.1975, 0.0001);
  EXPECT_NEAR(Cumulative("$190", kSecond, "Jul - 2000"), 374.7023, 0.0001);
}

TEST(CumulativeCost, ReadsABalanceAsItIsShown) {
  const double plain = Cumulative("1234", kFirst, "Mar - 2000");
  EXPECT_EQ(Cumulative("$1,234", kFirst, "Mar - 2000"), plain);
  EXPECT_EQ(Cumulative("\x80"
                       "1,234",
                       kFirst, "Mar - 2000"),
            plain);
  EXPECT_EQ(FaultOf([] { Cumulative("", kFirst, "Mar - 2000"); }), FaultKind::Conversion);
}

TEST(CumulativeCost, EqualInterestAndInflationLeaveTheSumOfTheCosts) {
  const PeriodTerms terms = PackADay("Jan - 2000", "Dec - 2009", 2, {7, 7});
  EXPECT_EQ(terms.rates.MonthlyFactor(), 1);
  EXPECT_DOUBLE_EQ(Cumulative("$1,000", terms, "Dec - 2009"), 1000 + CostInPeriod(terms));
}

TEST(CumulativeCost, InflationAboveInterestShrinksTheMoney) {
  const PeriodTerms terms = PackADay("Jan - 2000", "Dec - 2009", 2, {3, 5});
  EXPECT_LT(Cumulative("0", terms, "Dec - 2009"), CostInPeriod(terms));
  EXPECT_GT(Cumulative("0", terms, "Dec - 2009"), 0.8 * CostInPeriod(terms));
}

TEST(CumulativeCost, TheMonthBeforeTheStartIsNoMonthAndNoWarning) {
  EXPECT_EQ(Cumulative("$500", kFirst, "Dec - 1999"), 500);
}

TEST(CumulativeCost, AnEarlierDateWarnsAndGivesTheStartingBalance) {
  Warnings warnings;
  EXPECT_EQ(CumulativeCostInPeriod("$500", kFirst, "Nov - 1999", warnings.Take()), 500);
  EXPECT_EQ(warnings.faults, std::vector{DateFault::BeforeStartDate});
}

// From 1.00 to 2.00 in two months, and on: 1.50, 2.00, 2.50 a day, times 30.42.
TEST(CumulativeCost, ADateBehindTheStopWarnsAndTheMonthsGoOn) {
  PeriodTerms terms = PackADay("Jan - 2000", "Feb - 2000", 1, {});
  terms.cost.finalCost = 2;
  Warnings warnings;
  EXPECT_EQ(FormatNumber(CumulativeCostInPeriod("0", terms, "Mar - 2000", warnings.Take()), "0.00"),
            "182.52");
  EXPECT_EQ(warnings.faults, std::vector{DateFault::BeyondEndDate});
}

TEST(CumulativeCost, NoMonthBetweenLeavesTheBalanceAlone) {
  const Rates rates{12, 0};
  EXPECT_EQ(CumulativeCostBetweenPeriod("$186", rates, "Mar - 2000", "Apr - 2000"), 186);
  EXPECT_EQ(CumulativeCostBetweenPeriod("$186", rates, "Mar - 2000", "Mar - 2000"), 186);
  EXPECT_EQ(CumulativeCostBetweenPeriod("$186", rates, "Mar - 2000", "Jan - 1999"), 186);
  EXPECT_NEAR(CumulativeCostBetweenPeriod("$100", rates, "Dec - 1999", "Feb - 2000"), 101, 1e-9);
}

TEST(CostAfterLastPeriod, GrowsStrictlyBetweenTheTwoMonths) {
  // Five months, August to December, at 7% less nothing: 375 * (1 + 7 / 1200)^5.
  const double expected =
      375 * 1.00583333333333 * 1.00583333333333 * 1.00583333333333 * 1.00583333333333 * 1.00583333333333;
  const double value = CostAfterLastPeriod("$375", 7, "Jul - 2000", "Jan - 2001");
  EXPECT_NEAR(value, expected, 1e-9);
  EXPECT_EQ(FormatNumber(value, "$#,###"), "$386");
}

TEST(CostAfterLastPeriod, AdjacentMonthsLeaveTheBalance) {
  EXPECT_EQ(CostAfterLastPeriod("$375", 7, "Jul - 2000", "Aug - 2000"), 375);
  EXPECT_EQ(CostAfterLastPeriod("$375", 7, "Jul - 2000", "Jul - 2000"), 375);
}

TEST(CostAfterLastPeriod, ANegativeRateShrinksTheBalance) {
  EXPECT_NEAR(CostAfterLastPeriod("100", -12, "Jan - 2000", "Apr - 2000"), 98.01, 1e-9);  // 0.99 * 0.99
}

TEST(BalanceAfterMonths, KnowsNoDates) {
  EXPECT_EQ(NumberToText(BalanceAfterMonths(0, 2, 3, kFirst.cost, kFirst.rates)), "123.511284");
  EXPECT_EQ(BalanceAfterMonths(0, 3, 3, kFirst.cost, kFirst.rates), Cumulative("0", kFirst, "Mar - 2000"));
  EXPECT_EQ(BalanceAfterMonths(0, 0, 3, kFirst.cost, kFirst.rates), 0);
}

TEST(BalanceAfterMonths, TakesTheMonthsThatItIsGiven) {
  CostTerms cost = kFirst.cost;
  cost.finalCost = 4;  // over two months: 3.00, then 4.00, then 5.00 a day
  EXPECT_EQ(FormatNumber(BalanceAfterMonths(0, 3, 2, cost, {}), "0.00"), "365.04");
}

// ---- From the store ----

PeriodRecord Record() {
  PeriodRecord record;
  record.StartLabel = "Jan - 2000";
  record.StopLabel = "Dec - 2000";
  record.InterestRateText = "7%";
  record.InflationRateText = "3%";
  record.PercentIncreaseText = "10%";
  record.InitialCostText = "$5.00";
  record.FinalCostText = "$7.00";
  record.ReasonableCostText = "$1.10";
  record.CostModeFlag = true;
  return record;
}

TEST(TermsOfRecord, ReadsItsTexts) {
  PeriodRecord record = Record();
  record.QuantityUnitFlag = true;
  const PeriodTerms terms = TermsOf(record, CostClass::PacksClass, "1.50", true);
  EXPECT_EQ(terms.Months(), 12);
  EXPECT_EQ(terms.rates.interestPercent, 7);
  EXPECT_EQ(terms.rates.inflationPercent, 3);
  EXPECT_DOUBLE_EQ(terms.rates.NetFraction(), 0.04);
  EXPECT_EQ(terms.cost.initialCost, 5);
  EXPECT_EQ(terms.cost.finalCost, 7);
  EXPECT_EQ(terms.cost.quantity, 1.5);
  EXPECT_EQ(terms.cost.yearlyFraction, 0.1);
  EXPECT_TRUE(terms.cost.packsFlag);
  EXPECT_TRUE(terms.cost.percentMode);
}

TEST(TermsOfRecord, RatesWithoutALeadingNumberAreZero) {
  PeriodRecord record = Record();
  record.InterestRateText = "none";
  record.InflationRateText = "";
  record.PercentIncreaseText = "%";
  const PeriodTerms terms = TermsOf(record, CostClass::FlatRateClass, "$20", true);
  EXPECT_EQ(terms.rates.MonthlyFactor(), 1);
  EXPECT_EQ(terms.cost.yearlyFraction, 0);
}

// Every monthly entry of a flat rate: it becomes a daily figure, and comes back as itself.
TEST(TermsOfRecord, AMonthlyEntryIsTheCostOfItsMonth) {
  PeriodRecord record = Record();
  record.PercentIncreaseText = "0%";
  for (int dollars = 0; dollars <= 300'000; dollars += dollars < 1000 ? 1 : 50) {
    const PeriodTerms terms =
        TermsOf(record, CostClass::FlatRateClass, FormatNumber(dollars, "$#,##0.00"), false);
    ASSERT_EQ(FormatNumber(MonthWalk(terms.cost, 12).Next().monthCost, "$0.00"),
              FormatNumber(dollars, "$0.00"));
  }
}

TEST(TermsOfRecord, AMonthlyQuantityIsDividedByTheDaysOfAMonth) {
  for (const CostClass costClass : {CostClass::UnitsClass, CostClass::NetUnitsClass}) {
    EXPECT_EQ(TermsOf(Record(), costClass, "180", false).cost.quantity, 180 / 30.42);
    EXPECT_EQ(TermsOf(Record(), costClass, "6", true).cost.quantity, 6);
  }
}

// Packs and cigarettes have their own flag, which is the stored one.
TEST(TermsOfRecord, ThePacksClassTakesTheStoredUnit) {
  PeriodRecord record = Record();
  record.QuantityUnitFlag = false;
  const PeriodTerms terms = TermsOf(record, CostClass::PacksClass, "1.00", true);
  EXPECT_EQ(terms.cost.quantity, 1);
  EXPECT_EQ(MonthWalk(terms.cost, 1).Next().quantity, 0.05);
}

TEST(TermsOfRecord, TheCalendarMonthDoesNotMatter) {
  PeriodRecord january = Record(), february = Record();
  january.StopLabel = "Jan - 2000";
  february.StartLabel = february.StopLabel = "Feb - 2000";
  for (const CostClass costClass :
       {CostClass::PacksClass, CostClass::UnitsClass, CostClass::NetUnitsClass, CostClass::FlatRateClass})
    EXPECT_EQ(CostInPeriod(TermsOf(january, costClass, "2", true)),
              CostInPeriod(TermsOf(february, costClass, "2", true)));
}

TEST(TermsOfRecord, ReadsEuros) {
  PeriodRecord record = Record();
  record.InitialCostText =
      "\x80"
      "5.00";
  record.ReasonableCostText =
      "\x80"
      "1.10";
  const PeriodTerms terms = TermsOf(record, CostClass::NetUnitsClass, "3", true);
  EXPECT_EQ(terms.cost.initialCost, 5);
  EXPECT_EQ(terms.cost.reasonableCost, 1.1);
  EXPECT_EQ(TermsOf(record, CostClass::FlatRateClass,
                    "\x80"
                    "2400",
                    true)
                .cost.initialCost,
            2400);
}

TEST(TermsOfRecord, ACostThatIsNoNumberIsAFaultWhereItIsRead) {
  PeriodRecord record = Record();
  record.FinalCostText = "N/A";
  EXPECT_EQ(FaultOf([&] { TermsOf(record, CostClass::PacksClass, "1", true); }), FaultKind::Conversion);
  EXPECT_EQ(FaultOf([&] { TermsOf(record, CostClass::NetUnitsClass, "1", true); }), std::nullopt);
  record.InitialCostText = "";
  EXPECT_EQ(FaultOf([&] { TermsOf(record, CostClass::NetUnitsClass, "1", true); }), FaultKind::Conversion);
  EXPECT_EQ(FaultOf([&] { TermsOf(record, CostClass::FlatRateClass, "1", true); }), std::nullopt);
  EXPECT_EQ(FaultOf([&] { TermsOf(record, CostClass::FlatRateClass, "", true); }), FaultKind::Conversion);
}

}  // namespace
}  // namespace vicetoll
