// SPDX-License-Identifier: GPL-3.0-or-later
// Reading files, whatever lies there under their names.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vicetoll {

// Why a file is not read, where it is not for an error of the system.
inline constexpr int kNoRegularFile = -1, kTooLarge = -2;

// Puts the bytes of a regular file of at most so many bytes in the place of `bytes`. A pipe would never end,
// nor a device. The path is in the encoding of the file system; a link is followed. Returns 0, the system's
// error number, or one of the two above.
int ReadRegularFile(const std::string& path, std::int64_t atMost, std::string& bytes);

// The same for those who need no reason: nothing where it is not read.
std::optional<std::string> ReadWholeFile(const std::string& path, std::int64_t atMost);

}  // namespace vicetoll
