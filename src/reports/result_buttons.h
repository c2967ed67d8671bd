// SPDX-License-Identifier: GPL-3.0-or-later
// The result buttons of a workspace while a report window is open: closed when it opens, given back when
// it is left.
#pragma once

#include "workspace/workspaces.h"

namespace vicetoll {

// The two report windows, each with five buttons on every workspace.
enum class ReportStyle { Spreadsheet, Document };

// Closes the style's five buttons and notes in the workspace's flags which of them were open.
void DisableResultButtons(SinWorkspace& ws, ReportStyle style);
// Opens those that are noted. The notes stay.
void RestoreResultButtons(SinWorkspace& ws, ReportStyle style);

// The same for the sin that is current now, which need not be the one whose report is shown. For water
// they reach the workspace of coffee: with water current its own buttons stay as they are. Users know it
// so.
void DisableResultButtonsOfSin(Workspaces& workspaces, ReportStyle style);
void RestoreResultButtonsOfSin(Workspaces& workspaces, ReportStyle style);

}  // namespace vicetoll
