// SPDX-License-Identifier: GPL-3.0-or-later
// The reasonable cost of Coffeeing and Watering: a list that follows the gross cost.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// After a pick in the gross list: where the reasonable cost is now above the gross cost, its list is
// rebuilt below it and a lower entry selected, well below the gross cost rather than next to it.
void GrossCostPicked(WorkspaceSide& side);

// When the reasonable list receives the focus: it is rebuilt, and its selection moved to entry 21, or to
// the last entry of a list of at most 22.
void ReasonableCostEntered(WorkspaceSide& side);

}  // namespace vicetoll
