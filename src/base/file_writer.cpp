#include "base/file_writer.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "base/fault.h"

namespace vicetoll {

void WriteWholeFile(const std::string& path, std::string_view bytes) {
  const auto fail = [&path](int error) {
    const std::string name = path.empty() ? std::string("a file without a name") : "\"" + path + "\"";
    throw Fault(FaultKind::File, "The report could not be written to " + name + ": " +
                                     std::generic_category().message(error) + ".");
  };
  errno = 0;
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) fail(errno);
  const std::size_t written = std::fwrite(bytes.data(), 1, bytes.size(), file);
  const int writeError = errno;
  // A full disk may show only when the last bytes leave the buffer.
  const bool closed = std::fclose(file) == 0;
  if (written != bytes.size()) fail(writeError);
  if (!closed) fail(errno);
}

}  // namespace vicetoll
