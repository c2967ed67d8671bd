// SPDX-License-Identifier: GPL-3.0-or-later
// Bringing a side to life: value lists, defaults, first values in the store, the screen of period 1.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Loads a side (LoadSmokingParametersPast and its like): period 1 on screen, nothing committed, from any
// state. Unit and cost mode go back to those of the start. The value lists are not emptied first, so a
// repeated load appends all their entries again; selection by position and by text always finds the first
// copy, and all copies in a list are equal.
void LoadParameters(WorkspaceSide& side);

// LoadSmokingParametersInitialFuture and its like: a workspace starts with its future lists still empty.
void LoadParametersInitialFuture(SinWorkspace& ws);

// First values of the side's four periods from the lists as they stand.
void InitializeParameters(WorkspaceSide& side);
void InitializeDates(WorkspaceSide& side, SideIndex sideIndex);

// The last step of a load: the date lists in full, no results, period 1 alone open.
void ResetSideScreen(WorkspaceSide& side);

void HideFutureResults(SinWorkspace& ws);

// The captions that follow the period number (LabelMakerSmokePast and its like).
void LabelMaker(WorkspaceSide& side, int period);

}  // namespace vicetoll
