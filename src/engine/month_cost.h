// What one month of a period costs.
//
// A month has DaysPerMonth days, always: no calendar month and no leap year reaches a cost. Whoever adds
// months up takes the month's cost as it shows, rounded to cents.
#pragma once

#include <cstdint>
#include <string>

#include "sins/catalogue.h"

namespace vicetoll {

inline constexpr double DaysPerMonth = 30.42;
inline constexpr double kCigarettesPerPack = 20;

// The quantity itself, or a twentieth of it where it counts cigarettes.
double PacksFromQuantity(bool packsFlag, double quantity);

// The cost after `monthIndex` increases of yearlyFraction / 12 each (a fraction of one, 0.06 for 6%).
// Month 1 has one increase already; an index of 0 or below has one too. Throws Fault(Overflow).
double CompoundedCost(double cost, std::int16_t monthIndex, double yearlyFraction);

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
};

// The figures of one month, unrounded.
struct MonthFigures {
  double quantity = 0;        // packs, units, or the cost per day before any increase
  double unitCost = 0;        // of this month; gross in the net-units class
  double reasonableCost = 0;  // of this month, net-units class
  double monthCost = 0;

  double AdjustedCost() const { return unitCost - reasonableCost; }
};

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

// The months of a period, one after the other from month 1. Compounded costs are carried from month to
// month: the same multiplications in the same order as CompoundedCost does, so no cent can differ.
class MonthWalk {
 public:
  MonthWalk(const CostTerms& terms, double monthsInPeriod);

  // The next month's figures. Throws Fault(Overflow).
  MonthFigures Next();

 private:
  CostTerms terms_;
  double months_;
  double factor_;  // of one month's increase
  double unitCost_;
  double reasonableCost_;
  double month_ = 0;
};

// The figures of a single month, its index counted from 1. Throws Fault(Overflow).
MonthFigures FiguresOfMonth(const CostTerms& terms, double monthIndex, double monthsInPeriod);

// The figures as texts.
MonthCostCells CellsOf(const CostTerms& terms, const MonthFigures& figures);

}  // namespace vicetoll
