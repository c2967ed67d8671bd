// SPDX-License-Identifier: GPL-3.0-or-later
// What the program is asked for on its command line.
#pragma once

#include <optional>
#include <string>

namespace vicetoll {

struct CommandLine {
  // The run is over before it began, with this exit status: help or version were told, or the line was not
  // understood.
  std::optional<int> status;
  std::string file;           // entries to open, in the encoding of the file system
  std::string tourFolder;     // take the tour and draw it into this folder, in the same encoding
  bool namesDisplay = false;  // the toolkit is told where to open its windows
};

// Reads the line, and tells help, version or what is wrong with it. Options of the toolkit ("-style fusion")
// are left to the toolkit. No display is needed.
CommandLine ReadCommandLine(int argc, char** argv);

}  // namespace vicetoll
