// SPDX-License-Identifier: GPL-3.0-or-later
// What one month of a period costs.
//
// A month has DaysPerMonth days, always: no calendar month and no leap year reaches a cost. Whoever adds
// months up takes the month's cost as it shows, rounded to cents.
#pragma once

#include "sins/catalogue.h"

namespace vicetoll {

inline constexpr double DaysPerMonth = 30.42;
inline constexpr double kCigarettesPerPack = 20;

// The quantity itself, or a twentieth of it where it counts cigarettes.
double PacksFromQuantity(bool packsFlag, double quantity);

// The cost on the straight line: the first month has moved 1/months of the way, the last is the final
// cost, and beyond it the line goes on.
double LinearCost(double initialCost, double finalCost, double monthIndex, double monthsInPeriod);

// What the months of a period are reckoned from. Money per unit or per day, quantities per day, rates
// as fractions of one.
struct CostTerms {
  CostClass costClass = CostClass::FlatRateClass;
  double initialCost = 0;  // gross cost in the net-units class, cost per day in the flat-rate class
  double finalCost = 0;
  double reasonableCost = 0;
  double quantity = 0;        // packs or cigarettes, units; not used in the flat-rate class
  bool packsFlag = true;      // packs class: the quantity counts packs
  bool percentMode = true;    // the cost rises by a percentage, not from initial to final
  double yearlyFraction = 0;  // of the cost increase

  // Of the four classes only two ever leave the percent mode.
  bool RisesByPercent() const { return !HasCostModes(costClass) || percentMode; }
};

// The figures of one month, unrounded.
struct MonthFigures {
  double quantity = 0;        // packs, units, or the cost per day before any increase
  double unitCost = 0;        // of this month; gross in the net-units class
  double reasonableCost = 0;  // of this month, net-units class
  double monthCost = 0;

  double AdjustedCost() const { return unitCost - reasonableCost; }
};

// The months of a period, one after the other from month 1. Compounded costs are carried from month to
// month; month 1 has one increase of a twelfth of the yearly fraction already.
class MonthWalk {
 public:
  // On the straight line from initial to final cost the walk may start anywhere, behind `monthsGone` months.
  MonthWalk(const CostTerms& terms, double monthsInPeriod, double monthsGone = 0);

  // The next month's figures. Throws Fault(Overflow).
  MonthFigures Next();

 private:
  CostTerms terms_;
  double months_;
  double factor_;  // of one month's increase
  double unitCost_;
  double reasonableCost_;
  double month_;
};

}  // namespace vicetoll
