// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/month_report.h"

#include <gtest/gtest.h>

#include "reports/report_world.h"
#include "reports/total_reports.h"

namespace vicetoll {
namespace {

class MonthReportTest : public ::testing::Test {
 protected:
  ReportWorld world;
  SinWorkspace& ws = world.At("Smoking");

  std::vector<std::string> Labels(const MonthReport& report) {
    std::vector<std::string> labels;
    for (const ReportMonth& month : report.months) labels.push_back(month.label);
    return labels;
  }
};

// One pack a day at $2.00 is 60.84 a month; at 12% a month's money is worth 61.4484 at its end.
TEST_F(MonthReportTest, MonthsOfAPeriodAreNotRounded) {
  Write(ws, Side::Future, 1, {"Jan - 2000", "Mar - 2000"});
  const MonthReport report = ReportOf(ws, ReportScope::Future);

  ASSERT_EQ(report.months.size(), 3u);
  const ReportMonth& first = report.months[0];
  EXPECT_EQ(first.index, 1);
  EXPECT_EQ(first.kind, MonthKind::Active);
  EXPECT_EQ(first.side, Side::Future);
  EXPECT_EQ(first.period, 1);
  EXPECT_EQ(first.label, "Jan - 2000");
  EXPECT_EQ(first.quantity, 1);
  EXPECT_EQ(first.unitCost, 2);
  EXPECT_EQ(first.monthCost, 60.84);
  EXPECT_NEAR(first.monthWithInterest, 61.4484, 1e-9);
  // 60.84 * 3, and (123.511284 + 60.84) * 1.01.
  EXPECT_EQ(report.months[2].label, "Mar - 2000");
  EXPECT_NEAR(report.months[2].cumulativeCost, 182.52, 1e-9);
  EXPECT_NEAR(report.months[2].cumulativeCostWithInterest, 186.19479684, 1e-9);
  EXPECT_EQ(report.after.index, 3);
  EXPECT_NEAR(report.after.cost, 182.52, 1e-9);
  EXPECT_NEAR(report.after.withInterest, 186.19479684, 1e-9);
}

TEST_F(MonthReportTest, GapsAndDisabledPeriodsAreOfTheirKind) {
  Write(ws, Side::Past, 1, {"Jan - 2000", "Jan - 2000"});
  Write(ws, Side::Past, 2, {.start = "Mar - 2000", .stop = "Mar - 2000", .enabled = false});
  Write(ws, Side::Past, 3, {"May - 2000", "May - 2000"});
  const MonthReport report = ReportOf(ws, ReportScope::Past);

  // The disabled March is named a month late.
  EXPECT_EQ(Labels(report),
            (std::vector<std::string>{"Jan - 2000", "Feb - 2000", "Apr - 2000", "Apr - 2000", "May - 2000"}));
  const std::vector<MonthKind> kinds{MonthKind::Active, MonthKind::Gap, MonthKind::Disabled, MonthKind::Gap,
                                     MonthKind::Active};
  const std::vector<std::int16_t> periods{1, 1, 2, 2, 3};
  for (std::size_t i = 0; i < kinds.size(); ++i) {
    EXPECT_EQ(report.months[i].kind, kinds[i]) << i;
    EXPECT_EQ(report.months[i].period, periods[i]) << i;
  }
}

// The past ends with the boxes' 100 and 200; April and May of the gap pay 1% of 200 and of 202, and June's
// 60.84 goes in: (204.02 + 60.84) * 1.01 = 267.5086.
TEST_F(MonthReportTest, TheTotalGoesOnFromTheResultBoxes) {
  Write(ws, Side::Past, 1, {"Mar - 2000", "Mar - 2000"});
  Write(ws, Side::Future, 1, {"Jun - 2000", "Jun - 2000"});
  ws.Of(Side::Past).txtResultsTotal->SetText("$100");
  ws.Of(Side::Past).txtCumulativeResultsPeriod(1).SetText("$200");
  ws.Of(Side::Future).txtResultsTotal->SetText("$61");
  const MonthReport report = ReportOf(ws, ReportScope::Total);

  EXPECT_EQ(Labels(report),
            (std::vector<std::string>{"Mar - 2000", "Apr - 2000", "May - 2000", "Jun - 2000"}));
  EXPECT_NEAR(report.months[0].cumulativeCost, 60.84, 1e-9);
  EXPECT_NEAR(report.months[1].cumulativeCost, 100, 1e-9);
  EXPECT_NEAR(report.months[2].cumulativeCostWithInterest, 204.02, 1e-9);
  EXPECT_EQ(report.months[2].side, Side::Past);
  EXPECT_EQ(report.months[3].side, Side::Future);
  EXPECT_EQ(report.after.index, 4);
  EXPECT_NEAR(report.after.cost, 160.84, 1e-9);
  EXPECT_NEAR(report.after.withInterest, 267.5086, 1e-9);
}

TEST_F(MonthReportTest, NothingCountsNothing) {
  for (ReportScope scope : {ReportScope::Past, ReportScope::Future, ReportScope::Total}) {
    const MonthReport report = ReportOf(ws, scope);
    EXPECT_TRUE(report.months.empty());
    EXPECT_EQ(report.after.index, 0);
    EXPECT_EQ(report.after.cost, 0);
  }
}

// A chart beside an open grid: the grid's rows and the fields from which it would go on stay as they are.
TEST_F(MonthReportTest, AskingForAReportChangesNothing) {
  Write(ws, Side::Past, 1, {"Mar - 2000", "Mar - 2000"});
  Write(ws, Side::Future, 1, {"Jun - 2000", "Jun - 2000"});
  for (Side side : kSides) ws.Of(side).txtResultsTotal->SetText("$61");
  ws.Of(Side::Past).txtCumulativeResultsPeriod(1).SetText("$61");
  Grid& grid = world.Spd().Rows();
  BuildSpdRows(ws.Of(Side::Past), grid, true, true, ws.CurrentIndexSub, ws.Of(Side::Past).Index());
  ws.FuturePast_Flag = kShowsPast;
  const std::string row(grid.RowText(1));

  for (ReportScope scope : {ReportScope::Past, ReportScope::Future, ReportScope::Total}) ReportOf(ws, scope);

  EXPECT_EQ(grid.RowCount(), 2);
  EXPECT_EQ(grid.RowText(1), row);
  EXPECT_EQ(ws.CurrentIndexSub, 1);
  EXPECT_NEAR(ws.CurrentCumulativeCost, 60.84, 1e-9);
  EXPECT_NEAR(ws.CurrentCumulativeCostWithInterest, 61.4484, 1e-9);
  EXPECT_EQ(ws.FuturePast_Flag, kShowsPast);
  EXPECT_EQ(ws.Of(Side::Past).state.BeginManualDate, "");
  EXPECT_TRUE(world.platform.messages.empty());
}

// The grid of a sin without a past goes on from what the last report left; a value starts from nothing.
TEST_F(MonthReportTest, WithoutAPastTheTotalStartsFromNothing) {
  Write(ws, Side::Future, 1, {"Jun - 2000", "Jun - 2000"});
  ws.Of(Side::Future).txtResultsTotal->SetText("$61");
  ws.CurrentIndexSub = 7;
  ws.CurrentCumulativeCost = 1000;
  const MonthReport report = ReportOf(ws, ReportScope::Total);
  ASSERT_EQ(report.months.size(), 1u);
  EXPECT_EQ(report.months[0].index, 1);
  EXPECT_NEAR(report.after.cost, 60.84, 1e-9);
}

}  // namespace
}  // namespace vicetoll
