// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_writer.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "base/fault.h"

namespace vicetoll {
namespace {

namespace fs = std::filesystem;

class ReplacingAFile : public testing::Test {
 protected:
  ReplacingAFile() {
    std::string name = (fs::temp_directory_path() / "file-writer-XXXXXX").string();
    folder = mkdtemp(name.data());
  }
  ~ReplacingAFile() override { fs::remove_all(folder); }

  std::string Path(const std::string& name) const { return folder + "/" + name; }
  static std::string Read(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  std::size_t FileCount() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(folder), {}));
  }

  std::string folder;
};

TEST_F(ReplacingAFile, PutsTheNewInThePlaceOfTheOld) {
  EXPECT_EQ(ReplaceFile(Path("a"), "one"), 0);
  EXPECT_EQ(ReplaceFile(Path("a"), std::string("t\0o", 3)), 0);
  EXPECT_EQ(Read(Path("a")), std::string("t\0o", 3));
  EXPECT_EQ(FileCount(), 1u);
}

TEST_F(ReplacingAFile, KeepsRightsAndLinks) {
  ReplaceFile(Path("a"), "one");
  chmod(Path("a").c_str(), 0640);
  fs::create_symlink("a", Path("link"));
  EXPECT_EQ(ReplaceFile(Path("link"), "two"), 0);
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ(Read(Path("a")), "two");
  EXPECT_EQ(fs::status(Path("a")).permissions(), fs::perms(0640));
}

TEST_F(ReplacingAFile, FollowsALinkToAFileThatIsNotThereYet) {
  fs::create_directory(Path("folder"));
  fs::create_symlink("folder/second", Path("first"));
  fs::create_symlink("../file", Path("folder/second"));
  EXPECT_EQ(ReplaceFile(Path("first"), "one"), 0);
  EXPECT_EQ(Read(Path("file")), "one");
  EXPECT_TRUE(fs::is_symlink(Path("first")) && fs::is_symlink(Path("folder/second")));
  fs::create_symlink(Path("none/file"), Path("nowhere"));
  EXPECT_EQ(ReplaceFile(Path("nowhere"), "x"), ENOENT);
  EXPECT_TRUE(fs::is_symlink(Path("nowhere")));
}

// As a full disk would: the limit of the shell for the size of files.
TEST_F(ReplacingAFile, LeavesTheOldOneWhereTheNewOneHasNoRoom) {
  const std::string old(12'000, 'x');
  ASSERT_EQ(ReplaceFile(Path("a"), old), 0);
  rlimit before;
  getrlimit(RLIMIT_FSIZE, &before);
  rlimit small = before;
  small.rlim_cur = 4096;
  setrlimit(RLIMIT_FSIZE, &small);
  const int error = ReplaceFile(Path("a"), std::string(20'000, 'y'));
  const int errorOfNew = ReplaceFile(Path("b"), std::string(20'000, 'y'));
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(error, EFBIG);
  EXPECT_EQ(errorOfNew, EFBIG);
  EXPECT_EQ(Read(Path("a")), old);
  EXPECT_EQ(FileCount(), 1u);
}

TEST_F(ReplacingAFile, TakesAwayWhatAKilledRunLeft) {
  const char* kOld[] = {".a.new-killed", ".a.new-link12", ".a.new-longer12", ".b.new-killed", "a.new-killed"};
  for (const char* name : kOld) std::ofstream(Path(name)) << "half";
  fs::remove(Path(".a.new-link12"));
  fs::create_symlink("a.new-killed", Path(".a.new-link12"));
  for (const char* name : {".a.new-killed", ".a.new-longer12", ".b.new-killed", "a.new-killed"})
    fs::last_write_time(Path(name), fs::file_time_type::clock::now() - std::chrono::hours(1));
  std::ofstream(Path(".a.new-young1")) << "half";
  EXPECT_EQ(ReplaceFile(Path("a"), "one"), 0);
  EXPECT_FALSE(fs::exists(Path(".a.new-killed")));
  for (const char* name :
       {".a.new-link12", ".a.new-longer12", ".b.new-killed", "a.new-killed", ".a.new-young1"})
    EXPECT_TRUE(fs::exists(Path(name))) << name;
}

TEST_F(ReplacingAFile, DoesNotWaitForAReader) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(ReplaceFile(Path("pipe"), "x"), ENXIO);
  EXPECT_EQ(ReplaceFile("/dev/full", "x"), ENOSPC);
  EXPECT_EQ(ReplaceFile("/dev/null", "x"), 0);
  EXPECT_EQ(ReplaceFile(folder, "x"), EISDIR);
  EXPECT_EQ(ReplaceFile("", "x"), ENOENT);
}

// Reads a pipe slowly, and no more than so many bytes.
class Reader {
 public:
  Reader(const std::string& path, std::size_t atMost)
      : descriptor_(open(path.c_str(), O_RDONLY | O_NONBLOCK)), thread_([this, atMost] { Read(atMost); }) {}
  ~Reader() {
    done_ = true;
    thread_.join();
    close(descriptor_);
  }
  std::size_t Arrived() const { return arrived_; }

 private:
  void Read(std::size_t atMost) {
    char block[1 << 15];
    while (!done_ && arrived_ < atMost) {
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
      if (const ssize_t got = read(descriptor_, block, sizeof block); got > 0)
        arrived_ += static_cast<std::size_t>(got);
    }
  }

  std::atomic<bool> done_ = false;
  std::atomic<std::size_t> arrived_ = 0;
  int descriptor_;
  std::thread thread_;
};

TEST_F(ReplacingAFile, WaitsForAReaderButNotForEver) {
  const std::string report(300'000, 'x');
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  {
    const Reader slow(Path("pipe"), report.size());
    EXPECT_EQ(ReplaceFile(Path("pipe"), report), 0);
    EXPECT_GT(slow.Arrived(), report.size() / 2);  // the rest is in the pipe
  }
  const Reader idle(Path("pipe"), 0);
  EXPECT_EQ(ReplaceFile(Path("pipe"), report), ETIMEDOUT);
}

TEST_F(ReplacingAFile, OutlivesAReaderThatGoes) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  const int reader = open(Path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
  std::thread leaving([reader] {
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    close(reader);
  });
  EXPECT_EQ(ReplaceFile(Path("pipe"), std::string(300'000, 'x')), EPIPE);
  leaving.join();
}

TEST_F(ReplacingAFile, NamesFileAndReasonInUtf8) {
  try {
    WriteWholeFile("/no/h\xC3\xA4\xC3\x9F-\xE2\x82\xAC.txt", "x");
    FAIL();
  } catch (const Fault& fault) {
    EXPECT_STREQ(fault.what(),
                 "The file \"/no/h\xC3\xA4\xC3\x9F-\xE2\x82\xAC.txt\" could not be written: "
                 "No such file or directory.");
  }
}

}  // namespace
}  // namespace vicetoll
