// SPDX-License-Identifier: GPL-3.0-or-later
// Reading files that lie beside the program.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace vicetoll {

// The bytes of a regular file of at most so many bytes. Nothing for one that is larger, that cannot be read,
// or that is no regular file: a pipe would never end, nor a device. The path is in the encoding of the file
// system; a link is followed.
std::optional<std::string> ReadWholeFile(const std::string& path, std::int64_t atMost);

}  // namespace vicetoll
