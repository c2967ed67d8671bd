// SPDX-License-Identifier: GPL-3.0-or-later
// The identification sequence: the TOTAL tab fades away piece by piece, and a text, typed letter by letter
// on the bare window, names the writer. The only place of the program that serves events while it works.
#pragma once

#include <string_view>

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Sets the handlers of cmdRevealDeveloper and cmdRestoreProgram, where the workspace has them.
void ConnectIdentification(SinWorkspace& ws);

// The sequence. cmdExit is disabled until it is through.
void RevealDeveloper(SinWorkspace& ws);

// Brings everything back. All controls of the sequence are shown, also those that were hidden before it
// because their period was not set; what they were is not remembered.
void RestoreProgram(SinWorkspace& ws);

// Shows or hides the controls of the TOTAL tab one after the other, pausing `delay` milliseconds each time.
void SetSummaryVisibility(SinWorkspace& ws, bool visible, int delay);

void WriteRevealText(SinWorkspace& ws);

// Types a line at `left` twips, pausing `delay` milliseconds before each letter, with so many line ends
// before and after it.
void TypeLine(SinWorkspace& ws, std::string_view text, int delay, int left, int blankLinesBefore,
              int blankLinesAfter);

}  // namespace vicetoll
