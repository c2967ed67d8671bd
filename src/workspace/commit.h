// SPDX-License-Identifier: GPL-3.0-or-later
// The press of the set button, the steps between periods, and the radios that take a period out of the
// sums and put it back.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// The press itself: stores the period on screen and commits all periods up to it.
void PressSetButton(WorkspaceSide& side);

// Commits the first `count` periods: results, chain and total of the side. Throws all later ones away.
void CommitPeriod(WorkspaceSide& side, int count, SideIndex sideIndex);

// The click on a period's option: seeds the period on the first forward step onto it, and shows what is
// stored.
void SelectPeriod(WorkspaceSide& side, SideIndex sideIndex);

// Opens the side's four result buttons if at least one set period is on, closes them otherwise.
void UpdateResultButtons(WorkspaceSide& side, SideIndex sideIndex);

}  // namespace vicetoll
