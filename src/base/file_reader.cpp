// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_reader.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace vicetoll {
namespace {

// Reads to the end, also where the file grows meanwhile; one byte more than allowed is enough to know.
std::optional<std::string> ReadAll(int descriptor, std::size_t atMost) {
  std::string bytes;
  char block[1 << 16];
  while (bytes.size() <= atMost) {
    const ssize_t got = read(descriptor, block, sizeof block);
    if (got == -1 && errno == EINTR) continue;
    if (got == -1) return std::nullopt;
    if (got == 0) return bytes;
    bytes.append(block, static_cast<std::size_t>(got));
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> ReadWholeFile(const std::string& path, std::int64_t atMost) {
  // Opened without waiting: a pipe without a writer would hold the program.
  const int descriptor = open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (descriptor == -1) return std::nullopt;
  struct stat state;
  std::optional<std::string> bytes;
  if (fstat(descriptor, &state) == 0 && S_ISREG(state.st_mode) && state.st_size <= atMost)
    bytes = ReadAll(descriptor, static_cast<std::size_t>(atMost));
  close(descriptor);
  return bytes;
}

}  // namespace vicetoll
