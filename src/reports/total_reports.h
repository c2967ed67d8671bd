// SPDX-License-Identifier: GPL-3.0-or-later
// The reports over both sides: the past, the months to the future, the future.
#pragma once

#include <string>

#include "controls/grid.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// Lists both sides in the grid, rows numbered throughout. A side without a total is left out; without a
// past nothing is emptied or reset, and the rows go on from what stands. Between the sides the totals
// become those of the result boxes.
void BuildTotalSpdRows(SinWorkspace& ws, Grid& grid);

// Whether a report moves the workspace's own count of months, or leaves it and numbers the months between
// the sides on from what stands there.
enum class IndexUse { Moved, Kept };

// The text of both sides. Each has its own headers, and its months number from 1. Past and future are the
// numbers under which the counted periods are read.
std::string TotalDocText(SinWorkspace& ws, bool docFlag, SideIndex past, SideIndex future, IndexUse indexUse);

}  // namespace vicetoll
