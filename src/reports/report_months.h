// SPDX-License-Identifier: GPL-3.0-or-later
// The months of a report: the one walk over periods, gaps and disabled periods. It reads plain values and
// changes nothing; grid rows, document text, charts and files are renderings of the months it yields.
//
// The report reckons anew what the workspace's result boxes show, and the two may part across periods: the
// boxes pass a balance on in whole units, the report unrounded; and where a period that does not count
// lies between two that do, the boxes let the whole stretch grow at the rate of the period before it, the
// report lets each month grow at the rate of the period it is listed under.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/side.h"
#include "engine/period_cost.h"

namespace vicetoll {

enum class MonthKind {
  Active,    // of a period that counts
  Disabled,  // of a period that does not, between two that do
  Gap,       // strictly between two periods
};

// A period of a side, as a report reads it.
struct ReportPeriod {
  Side side = Side::Past;
  int number = 0;    // 1 to 4
  bool set = false;  // a period that is not has no months
  bool counted = false;
  PeriodTerms terms{};  // of its own months; the cost only where it counts
  // The labels that the stretches before and behind it run between. They are those of its own months but
  // where a report reads the counted periods under another sin's number.
  std::string stretchStart{}, stretchStop{};
};

// The periods of a side, period p at p - 1.
using ReportSide = std::array<ReportPeriod, kPeriodCount>;

// What a walk hands on: how many months there were, and the two running totals, unrounded.
struct ReportState {
  std::int16_t index = 0;
  double cost = 0;          // out of pocket
  double withInterest = 0;  // what the money would have grown to
};

// Months in a row of one kind.
struct ReportStretch {
  MonthKind kind;
  Side side;
  int period;                 // whose rates apply; of a gap the period before it
  std::string_view from, to;  // labels: first and last month, or of a gap the months around it
  std::int16_t months;
};

// One month of a report. Amounts of the month itself are rounded to cents (the quantity to hundredths),
// what it added with interest and the running totals are not.
struct ReportMonth {
  std::int16_t index;  // its number in the report
  MonthKind kind;
  Side side;
  int period;         // 1 to 4, whose rates apply; of a gap the period before it
  std::string label;  // "Jan - 2000"
  // Of active months only.
  double quantity = 0, unitCost = 0, reasonableCost = 0, adjustedCost = 0, monthCost = 0;
  double monthWithInterest = 0;  // what the month added to the total with interest
  double cumulativeCost = 0, cumulativeCostWithInterest = 0;
};

// Takes the months as they come.
class MonthSink {
 public:
  virtual ~MonthSink() = default;
  // Before the first of a row of months; there is at least one.
  virtual void Begin(const ReportStretch& stretch) = 0;
  virtual void Add(const ReportMonth& month) = 0;
};

// The three walks below number their months on from the state and carry its totals on; they return the
// state behind the last month. A period that is not set has no months, and the state stays. All throw
// Fault(Overflow) for an index beyond 16 bits and Fault(Conversion) for a label that is none.

// The months of a period, each with its cost.
ReportState WalkPeriod(const ReportPeriod& period, ReportState state, MonthSink& sink);

// The months without cost between two labels, growing at the rates of `period`. For a gap they are those
// strictly between the labels; where `to` is the month of `from`, their number is -1 and the index goes down
// by one, so that the next month takes the last one's number again. A disabled period is walked from its
// start to its stop, but its labels run one month late: its own first month is never named, and the month
// after its stop is. Reports have always had it so.
ReportState WalkBetweenPeriods(const ReportPeriod& period, bool periodIsDisabled, std::string_view from,
                               std::string_view to, ReportState state, MonthSink& sink);

// A whole side, from the first period that counts to the last one.
ReportState WalkSide(const ReportSide& side, ReportState state, MonthSink& sink);

}  // namespace vicetoll
