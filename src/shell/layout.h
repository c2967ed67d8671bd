// SPDX-License-Identifier: GPL-3.0-or-later
// The layout of a workspace beyond its design: the window's size and what follows it, in twips (1440 to the
// inch).
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// The size of every workspace; Smoking is higher by kEuroRow while its euro button is shown.
inline constexpr int kWindowWidth = 12000;
inline constexpr int kWindowHeight = 10500;

// Brings the window to its fixed size, lays out the bottom row and the panels, and returns to the first
// tab. Called at the start and at each switch of sins.
void ApplyFormLayout(SinWorkspace& ws);

// After a change of the window's size: a size beyond what a user may stretch it to snaps back, and the
// bottom row follows the height.
void PlaceWorkspaceControls(SinWorkspace& ws);

// Smoking's euro button, and the buttons of the identification sequence, in the places that the creation
// of their workspace gives them.
void PlaceEuroButton(SinWorkspace& ws);
void PlaceIdentification(SinWorkspace& ws);

}  // namespace vicetoll
