#include "engine/month_cost.h"

#include "base/checked_int.h"
#include "calendar/number_text.h"

namespace vicetoll {
namespace {

constexpr double kMonthsPerYear = 12;
constexpr std::string_view kQuantityFormat = "##.00";
constexpr std::string_view kMoneyFormat = "$#,##0.00";

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

// Of the four classes only these two ever leave the percent mode.
bool RisesByPercent(const CostTerms& terms) { return !HasCostModes(terms.costClass) || terms.percentMode; }

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

double CompoundedCost(double cost, std::int16_t monthIndex, double yearlyFraction) {
  const double factor = 1 + yearlyFraction / kMonthsPerYear;
  cost *= factor;
  for (int i = 1; i < monthIndex; ++i) cost *= factor;
  return Finite(cost);
}

double LinearCost(double initialCost, double finalCost, double monthIndex, double monthsInPeriod) {
  return Finite(initialCost + (finalCost - initialCost) * monthIndex / monthsInPeriod);
}

const std::string& MonthCostCells::Column(int column) const {
  static const std::string kEmpty;
  switch (column) {
    case 0:
      return quantity;
    case 1:
      return unitCost;
    case 2:
      return monthCost;
    case 4:
      return reasonableCost;
    case 5:
      return adjustedCost;
    default:
      return kEmpty;
  }
}

MonthWalk::MonthWalk(const CostTerms& terms, double monthsInPeriod)
    : terms_(terms),
      months_(monthsInPeriod),
      factor_(1 + terms.yearlyFraction / kMonthsPerYear),
      unitCost_(terms.initialCost),
      reasonableCost_(terms.reasonableCost) {}

MonthFigures MonthWalk::Next() {
  ++month_;
  if (!RisesByPercent(terms_))
    return FiguresFrom(terms_, LinearCost(terms_.initialCost, terms_.finalCost, month_, months_), 0);
  unitCost_ = Finite(unitCost_ * factor_);
  reasonableCost_ = Finite(reasonableCost_ * factor_);
  return FiguresFrom(terms_, unitCost_, reasonableCost_);
}

MonthFigures FiguresOfMonth(const CostTerms& terms, double monthIndex, double monthsInPeriod) {
  if (!RisesByPercent(terms))
    return FiguresFrom(terms, LinearCost(terms.initialCost, terms.finalCost, monthIndex, monthsInPeriod), 0);
  const std::int16_t increases = RoundToInt16(monthIndex);
  return FiguresFrom(terms, CompoundedCost(terms.initialCost, increases, terms.yearlyFraction),
                     CompoundedCost(terms.reasonableCost, increases, terms.yearlyFraction));
}

MonthCostCells CellsOf(const CostTerms& terms, const MonthFigures& figures) {
  MonthCostCells cells;
  cells.quantity = FormatNumber(figures.quantity, kQuantityFormat);
  cells.unitCost = FormatNumber(figures.unitCost, kMoneyFormat);
  cells.monthCost = FormatNumber(figures.monthCost, kMoneyFormat);
  if (terms.costClass == CostClass::NetUnitsClass) {
    cells.net = true;
    cells.reasonableCost = FormatNumber(figures.reasonableCost, kMoneyFormat);
    cells.adjustedCost = FormatNumber(figures.AdjustedCost(), kMoneyFormat);
  }
  return cells;
}

}  // namespace vicetoll
