// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/month_functions.h"

#include "base/checked_int.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "reports/report_operations.h"

namespace vicetoll {
namespace {

// The terms of a class with cost modes.
CostTerms TermsWithModes(CostClass costClass, double initialCost, double finalCost, double quantity,
                         double yearlyFraction, bool percentMode) {
  return {.costClass = costClass,
          .initialCost = initialCost,
          .finalCost = finalCost,
          .quantity = quantity,
          .percentMode = percentMode,
          .yearlyFraction = yearlyFraction};
}

// The day count of the month is looked up and takes no part in the cost.
MonthCostCells CellsOfMonth(const SinWorkspace& ws, const CostTerms& terms, double month, double months,
                            std::int16_t period) {
  const Side side = ws.FuturePast_Flag == kShowsPast ? Side::Past : Side::Future;
  std::string index = NumberToText(month);
  DayCountOfMonthIndex(index, ws.Of(side).Record(period).StartLabel);
  return CellsOf(terms, FiguresOfMonth(terms, month, months));
}

}  // namespace

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

MonthCostCells CellsOf(const CostTerms& terms, const MonthFigures& figures) {
  static const NumberFormat kQuantity("##.00"), kMoney("$#,##0.00");
  MonthCostCells cells;
  kQuantity.Append(cells.quantity, figures.quantity);
  kMoney.Append(cells.unitCost, figures.unitCost);
  kMoney.Append(cells.monthCost, figures.monthCost);
  if (terms.costClass == CostClass::NetUnitsClass) {
    cells.net = true;
    kMoney.Append(cells.reasonableCost, figures.reasonableCost);
    kMoney.Append(cells.adjustedCost, figures.AdjustedCost());
  }
  return cells;
}

MonthFigures FiguresOfMonth(const CostTerms& terms, double monthIndex, double monthsInPeriod) {
  if (!terms.RisesByPercent()) return MonthWalk(terms, monthsInPeriod, monthIndex - 1).Next();
  MonthWalk walk(terms, monthsInPeriod);
  MonthFigures figures = walk.Next();
  const int wanted = RoundToInt16(monthIndex);
  for (int month = 2; month <= wanted; ++month) figures = walk.Next();
  return figures;
}

double CompoundedCost(double cost, std::int16_t monthIndex, double yearlyFraction) {
  // Nothing is bought, so that no month cost can overflow before the cost itself does.
  const CostTerms terms{.costClass = CostClass::UnitsClass,
                        .initialCost = cost,
                        .quantity = 0,
                        .yearlyFraction = yearlyFraction};
  return FiguresOfMonth(terms, monthIndex, monthIndex).unitCost;
}

double DayCountOfMonthIndex(std::string& monthIndex, std::string_view startLabel) {
  std::int16_t month = Add(RoundToInt16(TextToNumber(monthIndex)), MonthNumberFromLabel(startLabel));
  month = Subtract(month, 1);
  monthIndex = std::to_string(month);
  if (month > kMonthsPerYear) month = static_cast<std::int16_t>(month % kMonthsPerYear);
  switch (month) {
    case 1:
    case 3:
    case 5:
    case 7:
    case 8:
    case 10:
    case 12:
      return 31;
    case 2:
      return 28;
    case 4:
    case 6:
    case 9:
    case 11:
      return 30;
    default:
      return 365.0 / kMonthsPerYear;
  }
}

MonthCostCells MonthCostOfPacks(SinWorkspace& ws, double month, double months, double initialCost,
                                double finalCost, double quantity, double yearlyFraction, bool packsFlag,
                                bool percentMode, std::int16_t period) {
  CostTerms terms =
      TermsWithModes(CostClass::PacksClass, initialCost, finalCost, quantity, yearlyFraction, percentMode);
  terms.packsFlag = packsFlag;
  return CellsOfMonth(ws, terms, month, months, period);
}

MonthCostCells MonthCostOfUnits(SinWorkspace& ws, bool, double month, double months, double initialCost,
                                double finalCost, double quantity, double yearlyFraction, bool,
                                bool percentMode, std::int16_t period) {
  const CostTerms terms =
      TermsWithModes(CostClass::UnitsClass, initialCost, finalCost, quantity, yearlyFraction, percentMode);
  return CellsOfMonth(ws, terms, month, months, period);
}

MonthCostCells MonthCostOfFlatRate(SinWorkspace& ws, bool, double month, double months, double costPerDay,
                                   double yearlyFraction, bool, std::int16_t period) {
  const CostTerms terms{
      .costClass = CostClass::FlatRateClass, .initialCost = costPerDay, .yearlyFraction = yearlyFraction};
  return CellsOfMonth(ws, terms, month, months, period);
}

MonthCostCells MonthCostOfNetUnits(SinWorkspace& ws, bool, double month, double months, double grossCost,
                                   double, double quantity, double yearlyFraction, bool, bool,
                                   std::int16_t period, double reasonableCost) {
  const CostTerms terms{.costClass = CostClass::NetUnitsClass,
                        .initialCost = grossCost,
                        .reasonableCost = reasonableCost,
                        .quantity = quantity,
                        .yearlyFraction = yearlyFraction};
  return CellsOfMonth(ws, terms, month, months, period);
}

}  // namespace vicetoll
