// SPDX-License-Identifier: GPL-3.0-or-later
// What a month costs, as the vocabulary asks for it: any one month, and its figures as a table of texts.
//
// The program itself walks the months of a period one after the other (MonthWalk) and makes its texts where
// it shows them. These walk too, up to the month that is asked for.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "engine/month_cost.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// Row 1 of the table of texts that a month function returns. Always with a dollar sign: the cells are
// internal, and whoever shows them formats them anew.
struct MonthCostCells {
  std::string quantity;        // column 0, "##.00"
  std::string unitCost;        // column 1, "$#,##0.00", like all that follow
  std::string monthCost;       // column 2
  std::string reasonableCost;  // column 4, net-units class only
  std::string adjustedCost;    // column 5, net-units class only
  bool net = false;            // six columns instead of four; column 3 is always empty

  int Columns() const { return net ? 6 : 4; }
  const std::string& Column(int column) const;
};

// The figures as texts.
MonthCostCells CellsOf(const CostTerms& terms, const MonthFigures& figures);

// The figures of a single month, its index counted from 1. Where the cost rises by percent an index below 1
// is month 1; on the straight line any index has its figures. Throws Fault(Overflow).
MonthFigures FiguresOfMonth(const CostTerms& terms, double monthIndex, double monthsInPeriod);

// The cost after `monthIndex` increases of yearlyFraction / 12 each (a fraction of one, 0.06 for 6%).
// Month 1 has one increase already; an index of 0 or below has one too. Throws Fault(Overflow).
double CompoundedCost(double cost, std::int16_t monthIndex, double yearlyFraction);

// The days of the n-th month of a period. `monthIndex`, a number as text, becomes the calendar month
// counted on from the start. February always has 28 days, and December of every year after the first
// gives 365/12: the month number is taken modulo 12 and then 0. No amount depends on this figure.
double DayCountOfMonthIndex(std::string& monthIndex, std::string_view startLabel);

// MonthCostSmoking and its eleven like, a function for each cost class with the arguments in its order.
// Costs in money, fractions of one, quantities a day. The flags for the day and for the unit are not read.
// The period is read for its start label alone, whose days then take no part in the cost.
MonthCostCells MonthCostOfPacks(SinWorkspace& ws, double month, double months, double initialCost,
                                double finalCost, double quantity, double yearlyFraction, bool packsFlag,
                                bool percentMode, std::int16_t period);
MonthCostCells MonthCostOfUnits(SinWorkspace& ws, bool perDay, double month, double months,
                                double initialCost, double finalCost, double quantity, double yearlyFraction,
                                bool unitFlag, bool percentMode, std::int16_t period);
MonthCostCells MonthCostOfFlatRate(SinWorkspace& ws, bool perDay, double month, double months,
                                   double costPerDay, double yearlyFraction, bool unitFlag,
                                   std::int16_t period);
MonthCostCells MonthCostOfNetUnits(SinWorkspace& ws, bool perDay, double month, double months,
                                   double grossCost, double finalCost, double quantity, double yearlyFraction,
                                   bool unitFlag, bool percentMode, std::int16_t period,
                                   double reasonableCost);

}  // namespace vicetoll
