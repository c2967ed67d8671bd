// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/period_functions.h"

#include <cmath>

#include "base/checked_int.h"
#include "workspace/period_operations.h"

namespace vicetoll {

double TotalCostInCurrentPeriod(const WorkspaceSide& side, double count, double months, int period) {
  if (count < 1) return 0;  // the period may hold no texts yet
  PeriodTerms terms = PeriodTermsOf(side, period);
  if (!side.IsPast() && side.Sin().futureTotalTakesListPosition)
    terms.cost.quantity = side.Record(period).QuantityListIndex;
  if (!side.IsPast() && side.Sin().futureTotalHasNoIncrease) terms.cost.yearlyFraction = 0;
  // A part of a month is no month.
  return BalanceAfterMonths(0, RoundToInt16(std::floor(count)), months, terms.cost, terms.rates);
}

}  // namespace vicetoll
