// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/file_reader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <fstream>

namespace vicetoll {
namespace {

namespace fs = std::filesystem;

class ReadingAFile : public testing::Test {
 protected:
  ReadingAFile() {
    std::string name = (fs::temp_directory_path() / "file-reader-XXXXXX").string();
    folder = mkdtemp(name.data());
  }
  ~ReadingAFile() override { fs::remove_all(folder); }

  std::string Path(const std::string& name) const { return folder + "/" + name; }

  std::string folder;
};

TEST_F(ReadingAFile, GivesItsBytes) {
  const std::string bytes("a\0\r\n\x80", 5);
  std::ofstream(Path("file"), std::ios::binary) << bytes;
  EXPECT_EQ(ReadWholeFile(Path("file"), 5), bytes);
  fs::create_symlink(Path("file"), Path("link"));
  EXPECT_EQ(ReadWholeFile(Path("link"), 5), bytes);
  std::ofstream(Path("empty"));
  EXPECT_EQ(ReadWholeFile(Path("empty"), 5), "");
}

TEST_F(ReadingAFile, GivesNothingWhereThereIsNoneOrTooMuch) {
  std::ofstream(Path("file")) << "123456";
  EXPECT_EQ(ReadWholeFile(Path("file"), 5), std::nullopt);
  EXPECT_EQ(ReadWholeFile(Path("none"), 5), std::nullopt);
  EXPECT_EQ(ReadWholeFile(folder, 5), std::nullopt);
  EXPECT_EQ(ReadWholeFile("", 5), std::nullopt);
}

// To read these as files would never end.
TEST_F(ReadingAFile, LeavesPipesAndDevicesAlone) {
  ASSERT_EQ(mkfifo(Path("pipe").c_str(), 0600), 0);
  EXPECT_EQ(ReadWholeFile(Path("pipe"), 1'000'000), std::nullopt);
  fs::create_symlink("/dev/zero", Path("zeros"));
  EXPECT_EQ(ReadWholeFile(Path("zeros"), 1'000'000), std::nullopt);
  // A file without a size that has one all the same is read up to the bound.
  EXPECT_TRUE(ReadWholeFile("/proc/self/status", 1'000'000).has_value());
}

}  // namespace
}  // namespace vicetoll
