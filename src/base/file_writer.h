// Writing a report file.
#pragma once

#include <string>
#include <string_view>

namespace vicetoll {

// Writes the bytes as they are, replacing what was there. The path is in the encoding of the file system.
// Throws Fault(File) naming the file and the reason in words.
void WriteWholeFile(const std::string& path, std::string_view bytes);

}  // namespace vicetoll
