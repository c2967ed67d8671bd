// SPDX-License-Identifier: GPL-3.0-or-later
// What the line at the foot of a workspace says: the next step, and what has come of the last one. The texts
// are in UTF-8.
#pragma once

#include <string>

#include "workspace/sin_workspace.h"

namespace vicetoll {

// What there is to do on the tab in front.
std::string NextStep(const SinWorkspace& ws);

// After a press of a side's set button. `periodsBefore` is how many of its periods were set before it: a
// press throws later ones away.
std::string PeriodWasSet(const WorkspaceSide& side, int periodsBefore);
int PeriodsSet(const WorkspaceSide& side);

// After a period was left out of the results, or taken in again.
std::string PeriodCounts(const WorkspaceSide& side, int period);

// After the lists were made anew for dates that were to stay: which one shows another now, and why. Empty if
// none does.
std::string DatesMoved(const WorkspaceSide& side, const std::string& start, const std::string& stop);

// The same for the reasonable cost.
std::string ReasonableCostMoved(const WorkspaceSide& side, const std::string& cost);

}  // namespace vicetoll
