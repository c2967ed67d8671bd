// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/info_window.h"

#include <sys/stat.h>

#include <filesystem>
#include <fstream>

#include "base/version.h"
#include "program_fixture.h"

namespace vicetoll {
namespace {

class Info : public testing::Test {
 protected:
  // A program folder of its own, which goes with the test.
  Info() {
    std::filesystem::create_directories(folder);
    run.platform.programFolder = folder.string();
  }
  ~Info() override { std::filesystem::remove_all(folder); }

  void Write(const std::string& name, const std::string& text) { std::ofstream(folder / name) << text; }
  std::string Text() { return run.program.Info().Get<DocumentText>("rtfInfo").Text(); }
  void Press(const char* button) {
    EXPECT_EQ(run.Front().Get<Button>(button).UserClicks(), UserOutcome::Done);
  }

  const std::filesystem::path folder =
      std::filesystem::path(testing::TempDir()) /
      (std::string("vicetoll-") + testing::UnitTest::GetInstance()->current_test_info()->name());
  RunningProgram run;
};

TEST_F(Info, EachButtonShowsItsTextInTheOneWindow) {
  Write("Sin_help.hlp", "How it works");
  Write("Sin_Info.hlp", "Questions");
  Press("cmdHelp");
  EXPECT_TRUE(run.program.Info().Shown());
  EXPECT_EQ(run.program.Info().Caption(), "info for The Vicetoll Financial Calculator");
  EXPECT_EQ(Text(), "How it works");
  EXPECT_EQ(run.program.Info().File(), (folder / "Sin_help.hlp").string());
  const std::size_t windows = run.program.Windows().size();
  Press("cmdFaq");
  EXPECT_EQ(run.program.Info().Caption(), "Info and FAQ on The Vicetoll Financial Calculator");
  EXPECT_EQ(Text(), "Questions");
  EXPECT_EQ(run.program.Windows().size(), windows);
}

TEST_F(Info, TheTextDoesNotDependOnTheSin) {
  Write("Sin_help.hlp", "How it works");
  for (const char* key : {"Drinking", "Shopping"}) {
    run.Enter(key);
    Press("cmdHelp");
    EXPECT_EQ(Text(), "How it works") << key;
  }
}

// The file is read anew each time, and its Unicode becomes the program's eight-bit text.
TEST_F(Info, ReadsTheFileAtEachPress) {
  Write("Sin_help.hlp", "five \xE2\x82\xAC");
  Press("cmdHelp");
  EXPECT_EQ(Text(), "five \x80");
  Write("Sin_help.hlp", "changed");
  Press("cmdHelp");
  EXPECT_EQ(Text(), "changed");
}

TEST_F(Info, AMissingFileIsNamed) {
  Press("cmdFaq");
  EXPECT_NE(Text().find("Sin_Info.hlp"), std::string::npos) << Text();
  EXPECT_NE(Text().find(folder.string()), std::string::npos) << Text();
  EXPECT_EQ(run.program.Info().Caption(), "Info and FAQ on The Vicetoll Financial Calculator");
}

// A pipe holds whoever opens it; a text without end has no place in memory.
TEST_F(Info, WhatIsNoFileOfASaneSizeIsMissing) {
  ASSERT_EQ(mkfifo((folder / "Sin_help.hlp").c_str(), 0600), 0);
  Press("cmdHelp");
  EXPECT_NE(Text().find("Sin_help.hlp"), std::string::npos) << Text();
  Write("Sin_Info.hlp", "");
  std::filesystem::resize_file(folder / "Sin_Info.hlp", 100'000'000);  // takes no room on the disk
  Press("cmdFaq");
  EXPECT_NE(Text().find("Sin_Info.hlp"), std::string::npos) << Text().substr(0, 100);
}

TEST_F(Info, ExitHidesTheWindow) {
  Press("cmdHelp");
  EXPECT_EQ(run.program.Info().Get<Button>("cmdExit").UserClicks(), UserOutcome::Done);
  EXPECT_FALSE(run.program.Info().Shown());
  EXPECT_FALSE(run.program.Ended());
}

// The text fills the window but for margins of 200 twips and 1200 at the foot; the button stands 400 below
// it.
TEST_F(Info, FollowsTheSizeOfItsWindow) {
  Press("cmdHelp");
  InfoWindow& info = run.program.Info();
  for (const auto& [width, height] : {std::pair(8000, 6000), std::pair(12000, 9000)}) {
    EXPECT_EQ(info.UserResizes(width, height), UserOutcome::Done);
    const Place& text = info.Get<DocumentText>("rtfInfo").GetPlace();
    EXPECT_EQ(text.left, 200);
    EXPECT_EQ(text.top, 200);
    EXPECT_EQ(text.width, width - 400);
    EXPECT_EQ(text.height, height - 1400);
    EXPECT_EQ(info.Get<Button>("cmdExit").GetPlace().top, 200 + (height - 1400) + 400);
  }
}

// The version comes from the build; About names no file, so no picture is looked for beside one.
TEST_F(Info, TellsTheVersionAndTheLicence) {
  Write("Sin_help.hlp", "How it works");
  Press("cmdHelp");
  EXPECT_EQ(run.program.Info().Get<Button>("cmdAbout").UserClicks(), UserOutcome::Done);
  EXPECT_NE(Text().find("Version " + std::string(kVersion) + "\r\n"), std::string::npos);
  EXPECT_NE(Text().find("GNU General Public License, version 3 or any later version"), std::string::npos);
  EXPECT_EQ(run.program.Info().File(), "");
  Press("cmdHelp");
  EXPECT_EQ(Text(), "How it works");
}

}  // namespace
}  // namespace vicetoll
