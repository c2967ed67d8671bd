// The months of a report: the one walk over periods, gaps and disabled periods. Grid rows and document
// text are two renderings of what it yields.
//
// The report reckons anew what the workspace's result boxes show, and the two may part across periods: the
// boxes pass a balance on in whole units, the report unrounded; and where a period that does not count
// lies between two that do, the boxes let the whole stretch grow at the rate of the period before it, the
// report lets each month grow at the rate of the period it is listed under.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "workspace/sin_workspace.h"

namespace vicetoll {

enum class MonthKind {
  Active,    // of a period that counts
  Disabled,  // of a period that does not, between two that do
  Gap,       // strictly between two periods
};

// Months in a row of one kind.
struct ReportStretch {
  MonthKind kind;
  Side side;
  std::int16_t period;        // whose rates apply; of a gap the period before it
  std::string_view from, to;  // labels: first and last month, or of a gap the months around it
  std::int16_t months;        // 0 or less where there are none
};

// One month of a report. Amounts of the month itself are rounded to cents (the quantity to hundredths),
// the running totals are not.
struct ReportMonth {
  std::int16_t index;  // its number in the report
  std::string label;
  // Of active months only.
  double quantity = 0, unitCost = 0, reasonableCost = 0, adjustedCost = 0, monthCost = 0;
  double monthWithInterest = 0;  // what the month added to the total with interest
  double cumulativeCost = 0, cumulativeCostWithInterest = 0;
};

// Takes the months as they come.
class MonthSink {
 public:
  virtual ~MonthSink() = default;
  virtual void Begin(const ReportStretch& stretch) = 0;
  virtual void Add(const ReportMonth& month) = 0;
};

// The three walks below number their months on from `index` and carry the two totals on. Afterwards `index`
// is moved by the number of months, and the totals stand in the workspace's fields. A period that is not
// set has no months, and nothing is moved. All throw Fault(Overflow) for an index beyond 16 bits.

// The months of a period, each with its cost.
void WalkPeriod(SinWorkspace& ws, Side side, std::int16_t period, std::int16_t& index, double cumulativeCost,
                double cumulativeCostWithInterest, MonthSink& sink);

// The months without cost between two labels, growing at the rates of `period`. For a gap they are those
// strictly between the labels; where `to` is the month of `from`, their number is -1 and `index` goes down
// by one, so that the next month takes the last one's number again. A disabled period is walked from its
// start to its stop, but its labels run one month late: its own first month is never named, and the month
// after its stop is. Reports have always had it so.
void WalkBetweenPeriods(SinWorkspace& ws, Side side, bool periodIsDisabled, std::int16_t period,
                        std::int16_t& index, double cumulativeCost, double cumulativeCostWithInterest,
                        std::string_view from, std::string_view to, MonthSink& sink);

// A whole side, from the first period that counts to the last one, carrying on from the totals in the
// workspace. Which periods count, and the labels around gaps, are read under `sideIndex`; the months
// themselves are the workspace's own.
void WalkSide(SinWorkspace& ws, Side side, std::int16_t sideIndex, std::int16_t& index, MonthSink& sink);

}  // namespace vicetoll
