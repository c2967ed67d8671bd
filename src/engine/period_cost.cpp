// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/period_cost.h"

#include "base/checked_int.h"
#include "calendar/date_label.h"
#include "calendar/money.h"
#include "calendar/number_text.h"

namespace vicetoll {
namespace {

// The balance grown over the months strictly between two labels; none or fewer leave it alone.
double GrowBetween(double balance, double factor, std::string_view stop, std::string_view start) {
  const int gap = Subtract(MonthsInclusive(stop, start), 2);
  for (int i = 0; i < gap; ++i) balance *= factor;
  return Finite(balance);
}

}  // namespace

Rates RatesOf(const PeriodRecord& record) {
  return {LeadingNumber(record.InterestRateText), LeadingNumber(record.InflationRateText)};
}

std::int16_t PeriodTerms::Months() const { return MonthsInclusive(StartLabel, StopLabel); }

PeriodTerms DatesAndRatesOf(const PeriodRecord& record) {
  PeriodTerms terms;
  terms.StartLabel = record.StartLabel;
  terms.StopLabel = record.StopLabel;
  terms.rates = RatesOf(record);
  return terms;
}

PeriodTerms TermsOf(const PeriodRecord& record, CostClass costClass, std::string_view quantityText,
                    bool perDay) {
  PeriodTerms terms = DatesAndRatesOf(record);
  terms.cost.costClass = costClass;
  terms.cost.yearlyFraction = LeadingNumber(record.PercentIncreaseText) / 100;
  double quantity = MoneyToNumber(quantityText);
  if (costClass != CostClass::PacksClass && !perDay) quantity /= DaysPerMonth;
  if (costClass == CostClass::FlatRateClass) {
    terms.cost.initialCost = quantity;
    return terms;
  }
  terms.cost.quantity = quantity;
  terms.cost.initialCost = MoneyToNumber(record.InitialCostText);
  if (costClass == CostClass::NetUnitsClass) {
    terms.cost.reasonableCost = MoneyToNumber(record.ReasonableCostText);
  } else {
    terms.cost.finalCost = MoneyToNumber(record.FinalCostText);
    terms.cost.packsFlag = record.QuantityUnitFlag;
    terms.cost.percentMode = record.CostModeFlag;
  }
  return terms;
}

double CostInPeriod(const PeriodTerms& terms) {
  const std::int16_t months = terms.Months();
  MonthWalk walk(terms.cost, months);
  double total = 0;
  for (int i = 1; i <= months; ++i) total += RoundToCents(walk.Next().monthCost);
  return Finite(total);
}

double BalanceAfterMonths(double balance, std::int16_t count, double months, const CostTerms& cost,
                          const Rates& rates) {
  const double factor = rates.MonthlyFactor();
  MonthWalk walk(cost, months);
  for (int i = 1; i <= count; ++i) balance = (balance + RoundToCents(walk.Next().monthCost)) * factor;
  return Finite(balance);
}

double CumulativeCostInPeriod(std::string_view startingCost, const PeriodTerms& terms,
                              std::string_view calculateToDate, const DateWarning& warn) {
  const std::int16_t months = terms.Months();
  const std::int16_t count = MonthsInclusive(terms.StartLabel, calculateToDate);
  if (count > months) warn(DateFault::BeyondEndDate);
  if (count < 0) warn(DateFault::BeforeStartDate);
  return BalanceAfterMonths(MoneyToNumber(startingCost), count, months, terms.cost, terms.rates);
}

double CumulativeCostBetweenPeriod(std::string_view startingCost, const Rates& rates, std::string_view stop,
                                   std::string_view start) {
  return GrowBetween(MoneyToNumber(startingCost), rates.MonthlyFactor(), stop, start);
}

double CostAfterLastPeriod(std::string_view startingCost, double interestRate, std::string_view from,
                           std::string_view to) {
  return GrowBetween(MoneyToNumber(startingCost), 1 + interestRate / 1200, from, to);
}

}  // namespace vicetoll
