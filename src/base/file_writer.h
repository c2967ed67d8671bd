// SPDX-License-Identifier: GPL-3.0-or-later
// Writing files so that whatever happens the old one or the new one is there, whole.
#pragma once

#include <string>
#include <string_view>

namespace vicetoll {

enum class FileKind {
  Own,     // of a user: there for good, also through a loss of power
  Remade,  // can be made again, and is one of thousands: a new one is as whole, but not waited for
};

// Puts a file with these bytes in the place of the one that is there: written beside it, flushed to the disk,
// then renamed. If that fails the old file is untouched and no other is left behind. A link is followed. What
// is no regular file (a device, a pipe) is written to as it is; a pipe is an error where nobody has it open
// and, for a file of a user, where its reader reads nothing for three seconds. Where the folder takes no new
// file, one that is there is written in place, and put back if that fails. Paths are in the encoding of the
// file system. Returns 0, or the system's error number.
//
// A run that is killed leaves the file that it was writing beside the other one; the next time that one is
// written, what was left more than a minute ago and nobody is writing is taken away.
int ReplaceFile(const std::string& path, std::string_view bytes, FileKind kind = FileKind::Own);

// The same. Throws Fault(File) naming the file and the reason, in UTF-8.
void WriteWholeFile(const std::string& path, std::string_view bytes, FileKind kind = FileKind::Own);

// While one lives, a write beyond the shell's limit for files, or to a pipe whose reader has gone, fails and
// does not kill the program.
class NoKillByWriting {
 public:
  NoKillByWriting();
  ~NoKillByWriting();
  NoKillByWriting(const NoKillByWriting&) = delete;
  NoKillByWriting& operator=(const NoKillByWriting&) = delete;

 private:
  void (*fileSizeBefore_)(int);
  void (*pipeBefore_)(int);
};

// "The file "/home/häß.txt" could not be written: No space left on device.", in UTF-8.
std::string NotWritten(const std::string& path, int error);
std::string NotWritten(const std::string& path, const std::string& reason);  // a sentence of its own

// The system's reason for an error number, in English whatever the locale is.
std::string ReasonOf(int error);

}  // namespace vicetoll
