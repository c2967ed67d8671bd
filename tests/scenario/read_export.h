// SPDX-License-Identifier: GPL-3.0-or-later
// What a file holds that was exported, read by programs that know nothing of this one.
#pragma once

#include <string>
#include <vector>

namespace vicetoll {

// The lines of the answer to `export "PATH"`, as UTF-8. Throws std::runtime_error where the reader is
// missing.
std::vector<std::string> ReadExport(const std::string& path);

}  // namespace vicetoll
