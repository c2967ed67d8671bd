// SPDX-License-Identifier: GPL-3.0-or-later
// What controls are called by those who cannot see where they stand. A name is never the value.
#pragma once

#include <string>
#include <vector>

#include "controls/control.h"

namespace vicetoll {

// A control that fills its window is named as the window is.
bool FillsWindow(const Control& control);

// Whose captions name the control: those it is given, or the frame around it where it has no caption or
// where another control of the window bears the same one. None where its own caption is enough.
std::vector<const CaptionedControl*> Namers(const Control& control);

std::string SpokenName(const Control& control);

}  // namespace vicetoll
