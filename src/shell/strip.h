// SPDX-License-Identifier: GPL-3.0-or-later
// The strip at the foot of a workspace, beside the hint line: what the program offers beyond the sin's own
// rules. Its buttons are made after all others, so that they come last for the Tab key and take no letter
// away.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Makes the strip's buttons. Called once, when all else of the workspace is made.
void MakeStrip(SinWorkspace& ws);

// Lays the strip out below the bottom row, following the window's height.
void PlaceStrip(SinWorkspace& ws);

// Where the strip begins, in twips from the window's left edge. What lies to the left of it is free.
int StripLeft();

// Enables what has something to work on.
void UpdateStrip(SinWorkspace& ws);

}  // namespace vicetoll
