// SPDX-License-Identifier: GPL-3.0-or-later
// What a period costs, and what its money would have grown to.
//
// The months of a period are walked one by one; a balance passes between the operations as the text that
// a result box holds ("$1,235" or "0"), so what the box does not show is lost on purpose.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "calendar/period_store.h"
#include "engine/month_cost.h"

namespace vicetoll {

// The yearly rates of a period, in percent. Inflation reduces interest; the difference may be negative.
struct Rates {
  double interestPercent = 0;
  double inflationPercent = 0;

  // Yearly, as a fraction of one.
  double NetFraction() const { return interestPercent / 100 - inflationPercent / 100; }
  // 1 + a twelfth of the net yearly rate; compounded monthly.
  double MonthlyFactor() const { return 1 + NetFraction() / 12; }
};

// The rates in a record's texts; a text without a leading number counts as 0.
Rates RatesOf(const PeriodRecord& record);

// A period as plain values.
struct PeriodTerms {
  std::string StartLabel, StopLabel;
  Rates rates;
  CostTerms cost;

  // Throws Fault(Conversion) for a malformed label.
  std::int16_t Months() const;
};

// The labels and rates of the period in a record, without its cost: for a walk over none of its months.
PeriodTerms DatesAndRatesOf(const PeriodRecord& record);

// The period in a record, its quantity given as the text of the list entry. A monthly entry (perDay
// false) is turned into the daily figure by DaysPerMonth. Throws Fault(Conversion).
PeriodTerms TermsOf(const PeriodRecord& record, CostClass costClass, std::string_view quantityText,
                    bool perDay);

// A date that a balance is asked for, outside the period it is asked of.
enum class DateFault { BeyondEndDate, BeforeStartDate };

// Told of such a date before the calculation goes on all the same.
using DateWarning = std::function<void(DateFault)>;

// The sum of the month costs, each rounded to cents. No interest.
double CostInPeriod(const PeriodTerms& terms);

// The balance after the first `count` months of a period of `months` months: each month's cost goes in
// first, and the month's interest is paid on all of it. Beyond the period the months go on with the same
// formulas.
double BalanceAfterMonths(double balance, std::int16_t count, double months, const CostTerms& cost,
                          const Rates& rates);

// The balance at the end of the month `calculateToDate`, which may lie beyond the period's stop.
double CumulativeCostInPeriod(std::string_view startingCost, const PeriodTerms& terms,
                              std::string_view calculateToDate, const DateWarning& warn);

// The balance after the months strictly between two labels, at the period's rates.
double CumulativeCostBetweenPeriod(std::string_view startingCost, const Rates& rates, std::string_view stop,
                                   std::string_view start);

// The same at a rate in percent, already net of inflation.
double CostAfterLastPeriod(std::string_view startingCost, double interestRate, std::string_view from,
                           std::string_view to);

}  // namespace vicetoll
