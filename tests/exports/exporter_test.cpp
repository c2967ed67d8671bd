// SPDX-License-Identifier: GPL-3.0-or-later
// The Export button: what it asks, what it writes, what it remembers.
#include "exports/report_export.h"
#include "program_fixture.h"

namespace vicetoll {
namespace {

class Export : public testing::Test {
 protected:
  RunningProgram run{{1, 2000}};
  SinWorkspace& ws = run.Smoking();
  SpdWindow& grid = run.program.Spd();

  void OpenGrid() {
    RunningProgram::Commit(ws, Side::Past, "Jan - 1999", "Mar - 1999");
    ASSERT_EQ(ws.Of(Side::Past).cmdAdvResultsSpd->UserClicks(), UserOutcome::Done);
  }
  void PressWith(std::optional<std::string> answer) {
    run.platform.answers.files.push_back(std::move(answer));
    EXPECT_EQ(grid.Get<Button>("cmdExport").UserClicks(), UserOutcome::Done);
  }
  std::vector<std::string> Written() const {
    std::vector<std::string> names;
    for (const auto& [name, bytes] : run.platform.files) names.push_back(name);
    return names;
  }
};

TEST_F(Export, CancelWritesNothing) {
  OpenGrid();
  PressWith(std::nullopt);
  PressWith("");
  EXPECT_TRUE(run.platform.files.empty());
  EXPECT_TRUE(run.platform.messages.empty());
}

// The program itself shows no grid without a report.
TEST_F(Export, AGridWithoutAReportTellsSo) {
  grid.Show();
  for (const char* button : {"cmdExport", "cmdPrintPreview"}) {
    EXPECT_EQ(grid.Get<Button>(button).UserClicks(), UserOutcome::Done);
    ASSERT_EQ(run.platform.messages.size(), 1u) << button;
    EXPECT_EQ(run.platform.messages[0].text, "There is no report here that can be exported.");
    run.platform.messages.clear();
  }
  EXPECT_TRUE(run.platform.savePathsOffered.empty());
  EXPECT_TRUE(run.platform.previewed.empty());
}

TEST_F(Export, TheSuffixDecidesInAnyCase) {
  OpenGrid();
  for (const char* name : {"a.csv", "b.CSV", "c.xlsx", "d.Xlsx", "e", "f.txt"}) PressWith(name);
  EXPECT_EQ(Written(),
            (std::vector<std::string>{"a.csv", "b.CSV", "c.xlsx", "d.Xlsx", "e.csv", "f.txt.csv"}));
  EXPECT_TRUE(run.platform.files["d.Xlsx"].starts_with("PK"));
  EXPECT_EQ(run.platform.files["f.txt.csv"], run.platform.files["a.csv"]);
}

TEST_F(Export, TheDialogStartsFromTheNameChosenLast) {
  OpenGrid();
  PressWith("a");
  PressWith(std::nullopt);
  EXPECT_EQ(run.platform.savePathsOffered, (std::vector<std::string>{"", "a.csv"}));
}

TEST_F(Export, TheSameReportGivesTheSameBytes) {
  OpenGrid();
  PressWith("a.xlsx");
  PressWith("b.xlsx");
  EXPECT_EQ(run.platform.files["a.xlsx"], run.platform.files["b.xlsx"]);
}

TEST_F(Export, WithoutWindowsThereIsNoPdfAndAMessage) {
  OpenGrid();
  PressWith("a.pdf");
  EXPECT_TRUE(run.platform.files.empty());
  EXPECT_EQ(run.platform.messages.size(), 1u);
}

TEST_F(Export, ThePreviewShowsTheGridsRows) {
  OpenGrid();
  EXPECT_EQ(grid.Get<Button>("cmdPrintPreview").UserClicks(), UserOutcome::Done);
  ASSERT_EQ(run.platform.previewed.size(), 1u);
  const Pages& pages = run.platform.previewed.front();
  EXPECT_EQ(pages.title, "Smoking");
  EXPECT_EQ(pages.subtitle, "Past, Jan - 1999 to Mar - 1999");
  ASSERT_EQ(pages.rows.rows.size(), 4u);  // and the totals
  for (int row = 1; row <= 3; ++row)
    for (int column = 0; column < 9; ++column) {
      std::string shown(grid.Rows().Cell(row, column));
      shown.erase(shown.find_last_not_of(' ') + 1);
      EXPECT_EQ(pages.rows.rows[row - 1][column], shown);
    }
}

TEST_F(Export, AReportOfNothingHasHeadingsAlone) {
  OpenGrid();
  ASSERT_EQ(grid.Get<Button>("cmdExit").UserClicks(), UserOutcome::Done);
  RunningProgram::Click(ws.Of(Side::Past).rbnDisabledPeriod(1));
  const ReportExport report = ReportExportOf(ws, ReportScope::Past);
  EXPECT_TRUE(MonthsTable(report).rows.empty());
  EXPECT_EQ(MonthsTable(report).columns.size(), 9u);
  EXPECT_EQ(WorkbookOf(report).sheets[0].rows.size(), 1u);
  EXPECT_EQ(WorkbookOf(report).chart.points, 0u);
}

TEST_F(Export, RemembersNothingThatTheWorkspaceWouldNotice) {
  OpenGrid();
  const States before = StatesOf(ws);
  const auto index = ws.CurrentIndexSub;
  PressWith("a.csv");
  PressWith("a.xlsx");
  EXPECT_EQ(StatesOf(ws), before);
  EXPECT_EQ(ws.CurrentIndexSub, index);
}

}  // namespace
}  // namespace vicetoll
