// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/month_cost.h"

#include "base/checked_int.h"
#include "calendar/date_label.h"

namespace vicetoll {
namespace {

double QuantityUsed(const CostTerms& terms) {
  switch (terms.costClass) {
    case CostClass::PacksClass:
      return PacksFromQuantity(terms.packsFlag, terms.quantity);
    case CostClass::FlatRateClass:
      return terms.initialCost;
    default:
      return terms.quantity;
  }
}

MonthFigures FiguresFrom(const CostTerms& terms, double unitCost, double reasonableCost) {
  MonthFigures figures;
  figures.quantity = QuantityUsed(terms);
  figures.unitCost = unitCost;
  switch (terms.costClass) {
    case CostClass::FlatRateClass:
      figures.monthCost = Finite(unitCost * DaysPerMonth);
      break;
    case CostClass::NetUnitsClass:
      figures.reasonableCost = reasonableCost;
      figures.monthCost = Finite(figures.AdjustedCost() * figures.quantity * DaysPerMonth);
      break;
    default:
      figures.monthCost = Finite(unitCost * figures.quantity * DaysPerMonth);
  }
  return figures;
}

}  // namespace

double PacksFromQuantity(bool packsFlag, double quantity) {
  return packsFlag ? quantity : quantity / kCigarettesPerPack;
}

double LinearCost(double initialCost, double finalCost, double monthIndex, double monthsInPeriod) {
  return Finite(initialCost + (finalCost - initialCost) * monthIndex / monthsInPeriod);
}

MonthWalk::MonthWalk(const CostTerms& terms, double monthsInPeriod, double monthsGone)
    : terms_(terms),
      months_(monthsInPeriod),
      factor_(1 + terms.yearlyFraction / kMonthsPerYear),
      unitCost_(terms.initialCost),
      reasonableCost_(terms.reasonableCost),
      month_(monthsGone) {}

MonthFigures MonthWalk::Next() {
  ++month_;
  if (!terms_.RisesByPercent())
    return FiguresFrom(terms_, LinearCost(terms_.initialCost, terms_.finalCost, month_, months_), 0);
  unitCost_ = Finite(unitCost_ * factor_);
  reasonableCost_ = Finite(reasonableCost_ * factor_);
  return FiguresFrom(terms_, unitCost_, reasonableCost_);
}

}  // namespace vicetoll
