// SPDX-License-Identifier: GPL-3.0-or-later
// The months of a single period, or of the stretch between two, as the vocabulary asks for them one by one.
//
// The program lists whole sides (BuildSpdRows, BuildDocText). These go through the same walk, grid rows and
// document text.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/grid.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// Of the four month operations: `index` is the number of months so far and moves on; the totals are carried
// on from those given and end up in the workspace's fields. What they list, see reports/report_months.h.
// They throw Fault(Overflow) for an index beyond 16 bits.

// Adds the rows of a period's months at the end of the grid.
void ParametersForMonthInPeriodSpd(WorkspaceSide& side, Grid& grid, int period, std::int16_t& index,
                                   double cumulativeCost, double cumulativeCostWithInterest);

// Adds the rows of the months between two labels: a gap, or a disabled period.
void ParametersForMonthInPeriodSpdBetweenPeriods(WorkspaceSide& side, Grid& grid, bool periodIsDisabled,
                                                 int period, std::int16_t& index, double cumulativeCost,
                                                 double cumulativeCostWithInterest, std::string_view from,
                                                 std::string_view to);

// The same months as text: blocks if `docFlag`, table lines otherwise.
std::string ParametersForMonthInPeriodDoc(WorkspaceSide& side, int period, bool docFlag, std::int16_t& index,
                                          double cumulativeCost, double cumulativeCostWithInterest);
std::string ParametersForMonthInPeriodDocBetweenPeriods(WorkspaceSide& side, bool periodIsDisabled,
                                                        int period, bool docFlag, std::int16_t& index,
                                                        double cumulativeCost,
                                                        double cumulativeCostWithInterest,
                                                        std::string_view from, std::string_view to);

}  // namespace vicetoll
