// SPDX-License-Identifier: GPL-3.0-or-later
// Saving a report: the dialog, and the name that it keeps.
#pragma once

#include <string>
#include <string_view>

#include "base/platform.h"

namespace vicetoll {

// Asks for a file name and writes the bytes there. `path` is the name the dialog holds: the one chosen
// last. A cancelled dialog does not stop the saving: the file chosen before is written once more. Throws
// Fault(File) where there is no name yet, and where the file cannot be written.
void SaveReport(Platform& platform, std::string& path, std::string_view bytes);

}  // namespace vicetoll
