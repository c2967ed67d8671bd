// SPDX-License-Identifier: GPL-3.0-or-later
// The buttons around a chart.
#include "charts/chart_window.h"

#include <gtest/gtest.h>

#include "base/file_writer.h"
#include "charts/sins_chart_window.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {
namespace {

// Files go where they are to go, and here there is no such folder.
struct RealFiles : ScriptedPlatform {
  void WriteFile(const std::string& path, std::string_view bytes) override { WriteWholeFile(path, bytes); }
};

TEST(ChartWindow, TellsWhyAPictureWasNotSavedAndGoesOn) {
  RealFiles platform;
  SinsChartWindow window(platform);
  window.Show();
  platform.answers.files.push_back("/no/h\xC3\xA4\xC3\x9F.png");  // in UTF-8, as file systems have names
  EXPECT_EQ(window.Get<Button>("cmdSaveAs").UserClicks(), UserOutcome::Done);
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].text,
            "The file \"/no/h\xE4\xDF.png\" could not be written: No such file or directory.");
  EXPECT_EQ(window.News(), "");
}

}  // namespace
}  // namespace vicetoll
