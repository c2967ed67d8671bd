// SPDX-License-Identifier: GPL-3.0-or-later
// The period operations of a workspace: the engine's, fed from the workspace's store and lists.
#pragma once

#include <string_view>

#include "engine/side_chain.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// A period of the workspace's own side as plain values. The quantity is read live: from the list of the
// unit option that is on now, at the stored position. Throws Fault(Conversion).
PeriodTerms PeriodTermsOf(const WorkspaceSide& side, int period);

// Whether the period counts in sums: its cost box is enabled, and so is the period.
bool IsCounted(const WorkspaceSide& side, int period, SideIndex sideIndex);

// All four periods with what counts.
SideTerms SideTermsOf(const WorkspaceSide& side, SideIndex sideIndex);

// Shows the message for a date out of range and lets the calculation go on.
DateWarning WarningOf(const SinWorkspace& ws);

// The operations under the workspace's names; labels, balances and rates as in the engine. Where they have no
// month to walk they read no cost from the store, which may hold none yet.
double CostInPeriod(const WorkspaceSide& side, int period);
double CumulativeCostInPeriod(const WorkspaceSide& side, std::string_view startingCost, int period,
                              std::string_view calculateToDate);
double CumulativeCostBetweenPeriod(const WorkspaceSide& side, std::string_view startingCost, int period,
                                   std::string_view stop, std::string_view start);

}  // namespace vicetoll
