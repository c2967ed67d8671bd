// SPDX-License-Identifier: GPL-3.0-or-later
// The rooms of src/: what their files include, against the list in docs/architecture.md.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace vicetoll {
namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& path) {
  std::ifstream file(path);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// The rooms from top to bottom: the first cells of the table below the heading "The rooms".
std::vector<std::string> RoomsOf(const std::string& document) {
  static const std::regex kRow(R"(\| `([a-z]+)` \|.*)");
  std::vector<std::string> rooms;
  bool inList = false;
  for (const std::string& line : LinesOf(document)) {
    std::smatch row;
    if (line.starts_with("# ")) inList = line == "# The rooms";
    if (inList && std::regex_match(line, row, kRow)) rooms.push_back(row[1]);
  }
  return rooms;
}

// By path below src/, '/' between folders.
using Sources = std::map<std::string, std::string>;

Sources SourcesBelow(const fs::path& folder) {
  Sources sources;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    const std::string extension = entry.path().extension().string();
    if (extension == ".h" || extension == ".cpp")
      sources[entry.path().lexically_relative(folder).generic_string()] = ReadText(entry.path());
  }
  return sources;
}

// The folder at the head of a path, empty for a file of no room.
std::string RoomOf(const std::string& path) {
  const auto slash = path.find('/');
  return slash == std::string::npos ? "" : path.substr(0, slash);
}

// The arrows that must not be. An arrow that runs up only leaves no way to a circle.
std::vector<std::string> BadArrows(const Sources& sources, const std::vector<std::string>& rooms) {
  static const std::regex kInclude(R"re(\s*#\s*include\s*"([^"]+)".*)re");
  const auto placeOf = [&](const std::string& room) {
    return std::ranges::find(rooms, room) - rooms.begin();
  };
  const auto known = [&](const std::string& room) { return std::ranges::count(rooms, room) == 1; };
  std::vector<std::string> bad;
  for (const auto& [path, text] : sources) {
    const std::string room = RoomOf(path);
    if (!room.empty() && !known(room)) bad.push_back(path + " stands in no known room");
    for (const std::string& line : LinesOf(text)) {
      std::smatch include;
      if (!std::regex_match(line, include, kInclude)) continue;
      const std::string included = include[1], target = RoomOf(included);
      const std::string arrow = path + " includes " + included;
      if (!known(target)) {
        bad.push_back(arrow + ", of no known room");
      } else if (target == "vocabulary" && room != "vocabulary") {
        bad.push_back(arrow + ", which is for drivers and tests");
      } else if (room == "vocabulary" && target == "desktop") {
        bad.push_back(arrow + ", but needs no toolkit");
      } else if (known(room) && placeOf(target) > placeOf(room)) {
        bad.push_back(arrow + ", a room below");
      }
    }
  }
  return bad;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string text;
  for (const std::string& line : lines) text += "\n  " + line;
  return text;
}

const fs::path kCheckout = VICETOLL_CHECKOUT;

TEST(Rooms, IncludeTheRoomsAboveThemAlone) {
  const auto rooms = RoomsOf(ReadText(kCheckout / "docs" / "architecture.md"));
  const Sources sources = SourcesBelow(kCheckout / "src");
  ASSERT_GE(rooms.size(), 10u) << "the list of rooms was not found";
  ASSERT_GE(sources.size(), 100u) << "the sources were not found";
  const auto bad = BadArrows(sources, rooms);
  EXPECT_TRUE(bad.empty()) << Joined(bad);
}

TEST(Rooms, AreTheFoldersOfTheSources) {
  std::vector<std::string> rooms = RoomsOf(ReadText(kCheckout / "docs" / "architecture.md")), folders;
  for (const auto& entry : fs::directory_iterator(kCheckout / "src"))
    if (entry.is_directory()) folders.push_back(entry.path().filename().string());
  std::ranges::sort(rooms);
  std::ranges::sort(folders);
  EXPECT_EQ(folders, rooms);
}

// The libraries that the programs of the build are made of, tests and benches aside.
TEST(Rooms, TheProgramsDoWithoutTheVocabulary) {
  const std::string libraries = VICETOLL_PROGRAM_LIBRARIES;
  if (libraries.empty()) GTEST_SKIP() << "built without the windows";
  EXPECT_NE(libraries.find("vicetoll_core"), std::string::npos) << libraries;
  EXPECT_EQ(libraries.find("vicetoll_vocabulary"), std::string::npos) << libraries;
}

// ---- What the check finds ----

constexpr const char* kList =
    "# The rooms\n| `base` | x |\n| `sins` | x |\n| `vocabulary` | x |\n"
    "| `desktop` | x |\n# Other\n| `attic` | x |\n";

std::vector<std::string> Found(const Sources& sources) { return BadArrows(sources, RoomsOf(kList)); }

TEST(RoomsCheck, ReadsTheListAndNoOtherTable) {
  EXPECT_EQ(RoomsOf(kList), (std::vector<std::string>{"base", "sins", "vocabulary", "desktop"}));
}

TEST(RoomsCheck, LetsArrowsUpAndWithinARoomBe) {
  EXPECT_TRUE(Found({{"base/a.h", "#include <string>\n#include \"base/b.h\"\n"},
                     {"sins/a.h", "#include \"base/a.h\"\n"},
                     {"vocabulary/a.cpp", "#include \"sins/a.h\"\n#include \"vocabulary/a.h\"\n"},
                     {"main.cpp", "#include \"desktop/a.h\"\n"}})
                  .empty());
}

TEST(RoomsCheck, FindsAnArrowDown) {
  EXPECT_EQ(Found({{"base/a.h", "#include \"sins/b.h\"\n"}}),
            (std::vector<std::string>{"base/a.h includes sins/b.h, a room below"}));
  // Of a circle one arrow always runs down.
  EXPECT_EQ(
      Found({{"base/a.h", "  #  include \"sins/b.h\"\n"}, {"sins/b.h", "#include \"base/a.h\"\n"}}).size(),
      1u);
}

TEST(RoomsCheck, FindsRoomsThatAreNotInTheList) {
  EXPECT_EQ(Found({{"attic/a.h", ""}}), (std::vector<std::string>{"attic/a.h stands in no known room"}));
  EXPECT_EQ(Found({{"sins/a.h", "#include \"attic/b.h\"\n#include \"c.h\"\n"}}),
            (std::vector<std::string>{"sins/a.h includes attic/b.h, of no known room",
                                      "sins/a.h includes c.h, of no known room"}));
}

TEST(RoomsCheck, KeepsTheVocabularyApart) {
  EXPECT_EQ(Found({{"desktop/a.h", "#include \"vocabulary/b.h\"\n"},
                   {"main.cpp", "#include \"vocabulary/b.h\"\n"},
                   {"vocabulary/b.h", "#include \"desktop/a.h\"\n"}})
                .size(),
            3u);
}

}  // namespace
}  // namespace vicetoll
