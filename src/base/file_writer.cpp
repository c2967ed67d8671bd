// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_writer.h"

#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <limits>
#include <memory>

#include "base/fault.h"
#include "base/file_reader.h"

namespace vicetoll {
namespace {

// How long the reader of a pipe may read nothing before a user's windows go on, in milliseconds.
constexpr int kReadersTime = 3000;

// The operations return 0 or the error number.
class OpenFile {
 public:
  explicit OpenFile(int descriptor) : descriptor_(descriptor) {}
  ~OpenFile() { Close(); }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  bool Good() const { return descriptor_ != -1; }
  int Descriptor() const { return descriptor_; }

  // Where nothing can be written at once, waits for so many milliseconds (-1: as long as it takes).
  int Write(std::string_view bytes, int patience = 0) const {
    while (!bytes.empty()) {
      const ssize_t written = write(descriptor_, bytes.data(), bytes.size());
      if (written == -1 && errno == EINTR) continue;
      if (written == -1 && errno == EAGAIN && WaitForRoom(patience)) continue;
      if (written == -1) return errno;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return 0;
  }

  // Some disks tell only now that they are full.
  int Flush() const { return fsync(descriptor_) == 0 || errno == EINVAL ? 0 : errno; }

  int Close() {
    if (descriptor_ == -1) return 0;
    const int result = close(descriptor_);
    descriptor_ = -1;
    return result == 0 ? 0 : errno;
  }

 private:
  // Sets errno where there is none in time.
  bool WaitForRoom(int patience) const {
    pollfd room{descriptor_, POLLOUT, 0};
    const int ready = poll(&room, 1, patience);
    if (ready == 0) errno = ETIMEDOUT;
    return ready > 0 || (ready == -1 && errno == EINTR);
  }

  int descriptor_;
};

// Where links lead to, also one whose file is not there yet.
std::string Followed(const std::string& path) {
  if (const std::unique_ptr<char, void (*)(void*)> whole(realpath(path.c_str(), nullptr), std::free); whole)
    return whole.get();
  // Neither links in a circle, nor an open pipe, which is there but has no path.
  std::error_code noLink;
  if (errno != ENOENT || std::filesystem::exists(path, noLink)) return path;
  const std::filesystem::path target = std::filesystem::read_symlink(path, noLink);
  return noLink ? path : Followed(std::filesystem::path(path).parent_path() / target);
}

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return "./";
  return path.substr(0, slash + 1);
}

int WriteAsItIs(const std::string& path, std::string_view bytes, FileKind kind) {
  OpenFile file(open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC));
  if (!file.Good()) return errno;
  // A pipe holds no more than a part of a report, and its reader may take its time. But one that reads
  // nothing must not hold a user's windows for ever.
  if (const int error = file.Write(bytes, kind == FileKind::Own ? kReadersTime : -1)) return error;
  return file.Close();
}

int Overwrite(const std::string& path, std::string_view bytes) {
  OpenFile file(open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC));
  if (!file.Good()) return errno;
  if (const int error = file.Write(bytes)) return error;
  if (const int error = file.Flush()) return error;
  return file.Close();
}

int WriteInPlace(const std::string& path, std::string_view bytes, int folderError) {
  if (access(path.c_str(), W_OK) != 0) return folderError;
  std::string before;
  if (ReadRegularFile(path, std::numeric_limits<std::int64_t>::max(), before) != 0) return folderError;
  const int error = Overwrite(path, bytes);
  if (error != 0) Overwrite(path, before);
  return error;
}

// A new file gets the rights that any program gives one, an old one keeps its own.
mode_t RightsFor(const struct stat* old) {
  if (old != nullptr) return old->st_mode & 07777;
  const mode_t mask = umask(0);
  umask(mask);
  return 0666 & ~mask;
}

// What a file is called while it is written, less six letters: hidden, and known by the other one's name.
std::string NameWhileWritten(const std::string& path) {
  constexpr std::size_t kMostBytes = 200;  // the system takes 255
  return "." + path.substr(path.rfind('/') + 1).substr(0, kMostBytes) + ".new-";
}

// Takes away what a killed run left. A file that is being written is locked, and young.
void RemoveLeftovers(const std::string& folder, const std::string& start) {
  constexpr std::time_t kYoung = 60;  // seconds
  const std::unique_ptr<DIR, int (*)(DIR*)> entries(opendir(folder.c_str()), closedir);
  if (!entries) return;
  while (const dirent* entry = readdir(entries.get())) {
    const std::string_view name = entry->d_name;
    if (!name.starts_with(start) || name.size() != start.size() + 6) continue;
    const std::string path = folder + entry->d_name;
    struct stat status;
    if (lstat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode) || status.st_uid != geteuid()) continue;
    if (std::time(nullptr) - status.st_mtime < kYoung) continue;
    const OpenFile file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (file.Good() && flock(file.Descriptor(), LOCK_EX | LOCK_NB) == 0) unlink(path.c_str());
  }
}

int FillAndRename(OpenFile& file, const std::string& beside, const std::string& path, std::string_view bytes,
                  mode_t rights, bool flush) {
  if (const int error = file.Write(bytes)) return error;
  if (fchmod(file.Descriptor(), rights) != 0) return errno;
  if (const int error = flush ? file.Flush() : 0) return error;
  if (const int error = file.Close()) return error;
  return std::rename(beside.c_str(), path.c_str()) == 0 ? 0 : errno;
}

}  // namespace

NoKillByWriting::NoKillByWriting()
    : fileSizeBefore_(std::signal(SIGXFSZ, SIG_IGN)), pipeBefore_(std::signal(SIGPIPE, SIG_IGN)) {}
NoKillByWriting::~NoKillByWriting() {
  std::signal(SIGXFSZ, fileSizeBefore_);
  std::signal(SIGPIPE, pipeBefore_);
}

int ReplaceFile(const std::string& name, std::string_view bytes, FileKind kind) {
  const NoKillByWriting noKill;
  const std::string path = Followed(name);
  struct stat old;
  const bool exists = stat(path.c_str(), &old) == 0;
  if (exists && S_ISDIR(old.st_mode)) return EISDIR;
  if (exists && !S_ISREG(old.st_mode)) return WriteAsItIs(path, bytes, kind);
  if (exists && access(path.c_str(), W_OK) != 0) return errno;  // a file that is not to be changed
  if (path.empty()) return ENOENT;

  const std::string folderName = FolderOf(path), start = NameWhileWritten(path);
  if (kind == FileKind::Own) RemoveLeftovers(folderName, start);
  std::string beside = folderName + start + "XXXXXX";
  OpenFile file(mkostemp(beside.data(), O_CLOEXEC));
  if (!file.Good()) {
    const int error = errno;
    return exists && (error == EACCES || error == EPERM) ? WriteInPlace(path, bytes, error) : error;
  }
  flock(file.Descriptor(), LOCK_EX | LOCK_NB);  // where locks do not work, nobody takes leftovers away
  const bool flush = exists || kind == FileKind::Own;
  const int error = FillAndRename(file, beside, path, bytes, RightsFor(exists ? &old : nullptr), flush);
  if (error != 0) {
    unlink(beside.c_str());
    return error;
  }
  if (!flush) return 0;
  // The new name lasts through a loss of power once the folder is on the disk too.
  const OpenFile folder(open(folderName.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.Good()) folder.Flush();
  return 0;
}

std::string ReasonOf(int error) {
  const char* reason = strerrordesc_np(error);
  return reason != nullptr ? reason : "error " + std::to_string(error);
}

std::string NotWritten(const std::string& path, int error) { return NotWritten(path, ReasonOf(error) + "."); }

std::string NotWritten(const std::string& path, const std::string& reason) {
  const std::string name = path.empty() ? std::string("A file without a name") : "The file \"" + path + "\"";
  return name + " could not be written: " + reason;
}

void WriteWholeFile(const std::string& path, std::string_view bytes, FileKind kind) {
  if (const int error = ReplaceFile(path, bytes, kind)) throw Fault(FaultKind::File, NotWritten(path, error));
}

}  // namespace vicetoll
