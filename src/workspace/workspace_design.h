// SPDX-License-Identifier: GPL-3.0-or-later
// Makes a workspace's window from the rows of its design.
#pragma once

#include "workspace/control_rows.h"

namespace vicetoll {

// Where the maker is found.
inline constexpr std::string_view kWebAddress = "www.orvane.example";
inline constexpr std::string_view kWebUrl = "http://www.orvane.example/";

// Makes the controls of the workspace in their design state and places, enters them in its fields and names
// them. Throws std::logic_error, which says which row and why, where a row does not fit: a container, a
// label or a word of the catalogue that is not there, a name or a field that is taken, a wrong kind.
void DesignWorkspace(SinWorkspace& workspace, std::span<const DesignSection> design = WorkspaceDesign());

// Fits the three background panels to the tab control: they leave its head free.
void FitPanels(SinWorkspace& workspace);

}  // namespace vicetoll
