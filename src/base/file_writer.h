// Writing files so that whatever happens the old one or the new one is there, whole.
#pragma once

#include <string>
#include <string_view>

namespace vicetoll {

// Puts a file with these bytes in the place of the one that is there: written beside it, flushed to the disk,
// then renamed. If that fails the old file is untouched and no other is left behind. A link is followed. What
// is no regular file (a device, a pipe) is written to as it is, without waiting for a reader. Where the
// folder takes no new file, one that is there is written in place, and put back if that fails. Paths are in
// the encoding of the file system. Returns 0, or the system's error number.
int ReplaceFile(const std::string& path, std::string_view bytes);

// The same. Throws Fault(File) naming the file and the reason, in UTF-8.
void WriteWholeFile(const std::string& path, std::string_view bytes);

// "the file "/home/häß.txt" could not be written: No space left on device.", in UTF-8.
std::string NotWritten(const std::string& path, int error);

// The system's reason for an error number, in English whatever the locale is.
std::string ReasonOf(int error);

}  // namespace vicetoll
