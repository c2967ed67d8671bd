// The design of a workspace's window: its controls, in the order of reading.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Where the maker is found.
inline constexpr std::string_view kWebAddress = "www.orvane.example";
inline constexpr std::string_view kWebUrl = "http://www.orvane.example/";

// Makes all controls of the workspace in their design state and enters them in its fields.
void DesignWorkspace(SinWorkspace& workspace);

// Fits the three background panels to the tab control: they leave its head free.
void FitPanels(SinWorkspace& workspace);

}  // namespace vicetoll
