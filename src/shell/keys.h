// SPDX-License-Identifier: GPL-3.0-or-later
// The keys of a workspace's buttons.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Keys that mean the same in every window of the program: those of buttons of the workspace in front.
inline constexpr const char* kEverywhereKeys[] = {"F1", "Ctrl+Q"};

// Gives the buttons their access letters, the same in all twelve sins, and the keys that work from
// everywhere. Called once, when all buttons are made.
void GiveKeys(SinWorkspace& ws);

}  // namespace vicetoll
