// SPDX-License-Identifier: GPL-3.0-or-later
// What the main functions of the two drivers share.
#pragma once

#include <functional>
#include <iosfwd>

#include "scenario/player.h"

namespace vicetoll {

// Plays the file that the command line names ("-" is standard input) and returns the exit status. `play` is
// given the lines and what prints a line.
int PlayFile(int argc, char** argv, const std::function<PlayResult(std::istream&, const PrintLine&)>& play);

}  // namespace vicetoll
