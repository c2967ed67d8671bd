// SPDX-License-Identifier: GPL-3.0-or-later
// What the events of a workspace's own controls do.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Sets the handlers of all controls whose events concern this workspace alone. The buttons that open other
// windows, and exit, get theirs from the program.
void ConnectEvents(SinWorkspace& ws);

}  // namespace vicetoll
