// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace vicetoll {
namespace {

// Reads to the end, also where the file grows meanwhile; one byte more than allowed is enough to know.
int ReadAll(int descriptor, std::size_t atMost, std::string& bytes) {
  char block[1 << 16];
  bytes.clear();
  while (bytes.size() <= atMost) {
    const ssize_t got = read(descriptor, block, sizeof block);
    if (got == -1 && errno == EINTR) continue;
    if (got == -1) return errno;
    if (got == 0) return 0;
    bytes.append(block, static_cast<std::size_t>(got));
  }
  return kTooLarge;
}

int ReadOpened(int descriptor, std::int64_t atMost, std::string& bytes) {
  struct stat state;
  if (fstat(descriptor, &state) != 0) return errno;
  if (!S_ISREG(state.st_mode)) return kNoRegularFile;
  if (state.st_size > atMost) return kTooLarge;
  return ReadAll(descriptor, static_cast<std::size_t>(atMost), bytes);
}

}  // namespace

int ReadRegularFile(const std::string& path, std::int64_t atMost, std::string& bytes) {
  // Opened without waiting: a pipe without a writer would hold the program.
  const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (descriptor == -1) return errno;
  const int error = ReadOpened(descriptor, atMost, bytes);
  close(descriptor);
  return error;
}

std::optional<std::string> ReadWholeFile(const std::string& path, std::int64_t atMost) {
  std::string bytes;
  if (ReadRegularFile(path, atMost, bytes) != 0) return std::nullopt;
  return bytes;
}

}  // namespace vicetoll
