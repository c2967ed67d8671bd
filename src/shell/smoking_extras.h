// SPDX-License-Identifier: GPL-3.0-or-later
// What only the Smoking workspace has: the euro button, the advertising panels, the web button.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Sets the handlers of these controls.
void ConnectSmokingExtras(SinWorkspace& smoking);

// Money is shown in euros from here on, and there is no way back. Rebuilds the four cost lists of Smoking;
// the other sins have not filled theirs yet, since the button goes with the first switch. Texts that are
// formatted already keep their symbol.
void ReplaceDollarWithEuro(SinWorkspace& smoking);

}  // namespace vicetoll
