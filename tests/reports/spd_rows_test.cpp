// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "fault_of.h"
#include "reports/report_world.h"
#include "vocabulary/month_reports.h"

namespace vicetoll {
namespace {

using Cells = std::vector<std::string>;

class SpdRowsTest : public ::testing::Test {
 protected:
  ReportWorld world;

  Grid& Rows() { return world.Spd().Rows(); }

  void Build(SinWorkspace& ws, Side side) {
    BuildSpdRows(ws.Of(side), Rows(), true, true, ws.CurrentIndexSub, ws.Of(side).Index());
  }

  Cells RowCells(int row) { return Trimmed(Rows().RowText(row)); }

  // The cells of one column below the heading, without their blanks.
  Cells Column(int column) {
    Cells cells;
    for (int row = 1; row < Rows().RowCount(); ++row) cells.push_back(RowCells(row).at(column));
    return cells;
  }
};

// One pack a day at $2.00 costs 2 * 30.42 = 60.84 a month; at 12% less 0% the monthly factor is 1.01.
//   month 1: 60.84 * 1.01 = 61.4484 added, total 61.4484
//   month 2: 61.4484 + 0.614484 = 62.062884 added, total 123.511284
//   month 3: 61.4484 + 1.23511284 = 62.68351284 added, total 186.19479684
TEST_F(SpdRowsTest, ActiveRowsOfSmoking) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Mar - 2000"});
  Build(ws, Side::Future);

  ASSERT_EQ(Rows().RowCount(), 4);
  EXPECT_EQ(Rows().RowText(1), CellText("1") + CellText("1") + CellText("Jan - 2000") + CellText("1.00", 12) +
                                   CellText("$2.00", 16) + CellText("$60.84", 12) + CellText("$61", 11) +
                                   CellText("$61", 14) + PadRight("$61", 14));
  EXPECT_EQ(RowCells(2), (Cells{"2", "1", "Feb - 2000", "1.00", "$2.00", "$60.84", "$62", "$122", "$124"}));
  EXPECT_EQ(RowCells(3), (Cells{"3", "1", "Mar - 2000", "1.00", "$2.00", "$60.84", "$63", "$183", "$186"}));
  EXPECT_EQ(ws.CurrentIndexSub, 3);
  EXPECT_NEAR(ws.CurrentCumulativeCost, 182.52, 1e-9);
  EXPECT_NEAR(ws.CurrentCumulativeCostWithInterest, 186.19479684, 1e-9);
}

// Two months between the periods, at the first one's factor 1.01: 1.8619... and 1.8805... are added, the
// total is 189.937312256. Then 3 * 30.42 = 91.26 a month at 6% less 2%, a factor of 1 + 0.04 / 12:
//   month 6: 91.5642 + 0.633124... = 92.197324..., total 282.134636..., costs 273.78
//   month 7: 91.5642 + 0.940448... = 92.504648..., total 374.639285..., costs 365.04
TEST_F(SpdRowsTest, GapRowsGrowAtTheRateOfThePeriodBefore) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Mar - 2000"});
  Write(ws, Side::Future, 2, {"Jun - 2000", "Jul - 2000", "6%", "2%", "$3.00"});
  Build(ws, Side::Future);

  ASSERT_EQ(Rows().RowCount(), 8);
  EXPECT_EQ(Rows().RowText(4), CellText("4") + CellText("N/A") + CellText("Apr - 2000") + CellText("0", 12) +
                                   CellText("N/A", 16) + CellText("$0") + CellText("$2", 11) +
                                   CellText("$183", 14) + PadRight("$188", 14));
  EXPECT_EQ(RowCells(5), (Cells{"5", "N/A", "May - 2000", "0", "N/A", "$0", "$2", "$183", "$190"}));
  EXPECT_EQ(RowCells(6), (Cells{"6", "2", "Jun - 2000", "1.00", "$3.00", "$91.26", "$92", "$274", "$282"}));
  EXPECT_EQ(RowCells(7), (Cells{"7", "2", "Jul - 2000", "1.00", "$3.00", "$91.26", "$93", "$365", "$375"}));
}

// Period 2 is listed with its number, without cost, at its own rate, and one month late: its June is
// never named, August twice. Its rate holds on over the gap behind it:
//   189.937312256 * 1.00333... = 190.570..., 191.205..., 191.843..., 192.482500...
//   then (192.482500 + 60.84) * 1.01 = 255.855725...
TEST_F(SpdRowsTest, DisabledPeriodBetweenEnabledOnes) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Mar - 2000"});
  Write(ws, Side::Past, 2,
        {.start = "Jun - 2000", .stop = "Jul - 2000", .interest = "6%", .inflation = "2%", .enabled = false});
  Write(ws, Side::Past, 3, {"Oct - 2000", "Oct - 2000"});
  Build(ws, Side::Past);

  EXPECT_EQ(Column(0), (Cells{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
  EXPECT_EQ(Column(1), (Cells{"1", "1", "1", "N/A", "N/A", "2", "2", "N/A", "N/A", "3"}));
  EXPECT_EQ(Column(2), (Cells{"Jan - 2000", "Feb - 2000", "Mar - 2000", "Apr - 2000", "May - 2000",
                              "Jul - 2000", "Aug - 2000", "Aug - 2000", "Sep - 2000", "Oct - 2000"}));
  EXPECT_EQ(Column(5), (Cells{"$60.84", "$60.84", "$60.84", "$0", "$0", "$0", "$0", "$0", "$0", "$60.84"}));
  EXPECT_EQ(Column(8),
            (Cells{"$61", "$124", "$186", "$188", "$190", "$191", "$191", "$192", "$192", "$256"}));
}

TEST_F(SpdRowsTest, NoEnabledPeriodLeavesTheHeadingAlone) {
  SinWorkspace& ws = world.At("Smoking");
  Build(ws, Side::Future);
  EXPECT_EQ(Rows().RowCount(), 1);
  EXPECT_EQ(Rows().Cell(0, 0), "Index");
  EXPECT_EQ(Rows().Clip(), "");
}

TEST_F(SpdRowsTest, OnePeriodOfOneMonth) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Dec - 1999", "Dec - 1999"});
  Build(ws, Side::Future);
  ASSERT_EQ(Rows().RowCount(), 2);
  EXPECT_EQ(Rows().Cell(1, 0), "1 ");
  EXPECT_EQ(Rows().Cell(1, 2), "Dec - 1999 ");
  EXPECT_EQ(Rows().Row(), 1);
  EXPECT_EQ(Rows().RowSel(), 1);
  EXPECT_EQ(Rows().Col(), 0);
  EXPECT_EQ(Rows().ColSel(), 0);
  EXPECT_EQ(Rows().Clip(), "1 ");
}

TEST_F(SpdRowsTest, ListingStartsAtTheFirstEnabledPeriod) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {.start = "Jan - 2000", .stop = "Mar - 2000", .enabled = false});
  Write(ws, Side::Future, 2, {"Dec - 2000", "Jan - 2001"});
  Write(ws, Side::Future, 3, {.start = "Mar - 2001", .stop = "Mar - 2001", .enabled = false});
  ws.CurrentCumulativeCost = 1000;
  Build(ws, Side::Future);
  EXPECT_EQ(Column(0), (Cells{"1", "2"}));
  EXPECT_EQ(Column(2), (Cells{"Dec - 2000", "Jan - 2001"}));
  EXPECT_EQ(Column(7), (Cells{"$61", "$122"}));  // from nothing
}

TEST_F(SpdRowsTest, AdjacentPeriodsHaveNoGap) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Mar - 2000"});
  Write(ws, Side::Future, 2, {"Apr - 2000", "Apr - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(Column(1), (Cells{"1", "1", "1", "2"}));
  EXPECT_EQ(Column(0), (Cells{"1", "2", "3", "4"}));
}

// The gap from March to March has -1 months: the next row takes the number 3 once more.
TEST_F(SpdRowsTest, PeriodThatStartsInTheLastStopRepeatsARowNumber) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Mar - 2000"});
  Write(ws, Side::Future, 2, {"Mar - 2000", "Apr - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(Column(0), (Cells{"1", "2", "3", "3", "4"}));
  EXPECT_EQ(Column(1), (Cells{"1", "1", "1", "2", "2"}));
  EXPECT_EQ(ws.CurrentIndexSub, 4);
}

// The next period lies 12 months back: the gap has MonthsInclusive = -10, less 2, and the numbers run from
// 2 - 12 + 1 = -9 on. The rows are put in their order.
TEST_F(SpdRowsTest, RowsAreSortedByNumber) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Nov - 2000", "Dec - 2000"});
  Write(ws, Side::Future, 2, {"Jan - 2000", "Feb - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(Rows().Cell(0, 0), "Index");
  EXPECT_EQ(Column(0), (Cells{"-9", "-8", "1", "2"}));
  EXPECT_EQ(Column(1), (Cells{"2", "2", "1", "1"}));
}

// 0% less 12%: a factor of 0.99. 60.84 * 0.99 = 60.2316; the gap takes 0.602316 off.
TEST_F(SpdRowsTest, InflationAboveInterestShowsAMinus) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000", "0%", "12%"});
  Write(ws, Side::Future, 2, {"Mar - 2000", "Mar - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(RowCells(2), (Cells{"2", "N/A", "Feb - 2000", "0", "N/A", "$0", "-$1", "$61", "$60"}));
}

TEST_F(SpdRowsTest, InterestEqualToInflationAddsTheCostAlone) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000", "3%", "3%"});
  Write(ws, Side::Future, 2, {"Mar - 2000", "Mar - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(RowCells(1).at(6), "$61");
  EXPECT_EQ(RowCells(2).at(6), "$0");
  EXPECT_EQ(RowCells(2).at(8), "$61");
}

TEST_F(SpdRowsTest, DisabledBoxCountsAsNotEnabled) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000"});
  Write(ws, Side::Future, 2, {"Mar - 2000", "Mar - 2000"});
  ws.Of(Side::Future).txtResultsPeriod(2).SetEnabled(false);
  Build(ws, Side::Future);
  EXPECT_EQ(Column(0), (Cells{"1"}));
}

// The stretches of a period that is not set have no rows: from May on the report goes straight to October.
TEST_F(SpdRowsTest, PeriodNotSetBetweenTwoIsSkipped) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Mar - 2000"});
  Write(ws, Side::Future, 2, {.start = "Jun - 2000", .stop = "Jul - 2000", .enabled = false}).PeriodSet =
      false;
  Write(ws, Side::Future, 3, {"Oct - 2000", "Oct - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(Column(2),
            (Cells{"Jan - 2000", "Feb - 2000", "Mar - 2000", "Apr - 2000", "May - 2000", "Oct - 2000"}));
  EXPECT_EQ(Column(0).back(), "6");
}

TEST_F(SpdRowsTest, PeriodNotSetMovesNothing) {
  SinWorkspace& ws = world.At("Smoking");
  std::int16_t index = 7;
  ws.CurrentCumulativeCost = 5;
  ParametersForMonthInPeriodSpd(ws.Of(Side::Past), Rows(), 1, index, 100, 200);
  ParametersForMonthInPeriodSpdBetweenPeriods(ws.Of(Side::Past), Rows(), false, 1, index, 100, 200,
                                              "Jan - 2000", "Dec - 2000");
  EXPECT_EQ(index, 7);
  EXPECT_EQ(ws.CurrentCumulativeCost, 5);
  EXPECT_EQ(Rows().RowCount(), 0);
}

TEST_F(SpdRowsTest, MonthOperationCarriesOnFromWhatItIsGiven) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Jan - 2000"});
  std::int16_t index = 41;
  ParametersForMonthInPeriodSpd(ws.Of(Side::Past), Rows(), 1, index, 100, 200);
  EXPECT_EQ(index, 42);
  EXPECT_NEAR(ws.CurrentCumulativeCost, 160.84, 1e-9);
  EXPECT_NEAR(ws.CurrentCumulativeCostWithInterest, 260.84 * 1.01, 1e-9);
  ASSERT_EQ(Rows().RowCount(), 1);
  EXPECT_EQ(Trimmed(Rows().RowText(0)).at(0), "42");
  EXPECT_EQ(ws.CurrentIndexSub, 0);  // the index given is another
}

TEST_F(SpdRowsTest, IndexBeyond16BitsIsAFault) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Mar - 2000"});
  std::int16_t index = 32765;
  EXPECT_EQ(FaultOf([&] { ParametersForMonthInPeriodSpd(ws.Of(Side::Past), Rows(), 1, index, 0, 0); }),
            FaultKind::Overflow);
}

// $20 a day costs 608.40 a month; with 1% interest 614.484. There is no cell for the unit cost.
TEST_F(SpdRowsTest, FlatRateRowsHaveEightCells) {
  SinWorkspace& ws = world.Switch("Gambling");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000"});
  Write(ws, Side::Future, 2, {"Mar - 2000", "Mar - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(Rows().RowText(1), CellText("1") + CellText("1") + CellText("Jan - 2000") +
                                   CellText("20.00", 12) + CellText("$608.40", 12) + CellText("$614", 11) +
                                   CellText("$608", 14) + PadRight("$614", 14));
  // 6.14484 more in February: 620.62884.
  EXPECT_EQ(Rows().RowText(2), CellText("2") + CellText("N/A") + CellText("Feb - 2000") + CellText("0", 12) +
                                   CellText("$0") + CellText("$6", 11) + CellText("$608", 14) +
                                   PadRight("$621", 14));
}

// Three coffees at $2.00 gross, $0.50 of it reasonable: 3 * 1.50 * 30.42 = 136.89; with 1% 138.2589.
TEST_F(SpdRowsTest, NetUnitsRowsHaveElevenCells) {
  SinWorkspace& ws = world.Switch("Coffeeing");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000"});
  Write(ws, Side::Future, 2, {"Mar - 2000", "Mar - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(Rows().RowText(1), CellText("1") + CellText("1") + CellText("Jan - 2000") + CellText("3.00", 12) +
                                   CellText("$2.00", 16) + CellText("$0.50", 16) + CellText("$1.50", 16) +
                                   CellText("$136.89", 12) + CellText("$138", 11) + CellText("$137", 14) +
                                   PadRight("$138", 14));
  // Only the first of the three "N/A" is padded. 1.382589 more: 139.641489.
  EXPECT_EQ(Rows().RowText(2), CellText("2") + CellText("N/A") + CellText("Feb - 2000") + CellText("0", 12) +
                                   CellText("N/A", 16) + CellText("N/A") + CellText("N/A") + CellText("$0") +
                                   CellText("$1", 11) + CellText("$137", 14) + PadRight("$140", 14));
}

// The heading has eleven columns over rows of eight cells.
TEST_F(SpdRowsTest, ShoppingRowsStandUnderTheWrongHeadings) {
  SinWorkspace& ws = world.Switch("Shopping");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(Rows().Cell(0, 4), "Gross: Carttoll");
  EXPECT_EQ(Rows().Cell(0, 10), " Cumulative Shopping Cost: With Interest");
  EXPECT_EQ(Rows().Cell(1, 4), "$608.40      ");
  EXPECT_EQ(Rows().Cell(1, 8), "");
  EXPECT_EQ(Rows().Cell(1, 10), "");
}

TEST_F(SpdRowsTest, EveryClassHasItsNumberOfCells) {
  for (const SinRow& sin : Catalogue()) {
    SinWorkspace& ws = world.Switch(sin.key);
    Write(ws, Side::Past, 1, {"Jan - 2000", "Jan - 2000", "12%", "0%", "$15.00"});
    Write(ws, Side::Past, 2, {"Mar - 2000", "Mar - 2000", "12%", "0%", "$15.00"});
    Build(ws, Side::Past);
    const std::size_t cells = sin.costClass == CostClass::FlatRateClass   ? 8
                              : sin.costClass == CostClass::NetUnitsClass ? 11
                                                                          : 9;
    for (int row = 1; row <= 3; ++row) EXPECT_EQ(RowCells(row).size(), cells) << sin.key << row;
  }
}

TEST_F(SpdRowsTest, EuroIsShownInEveryMoneyCell) {
  world.session.currency = Currency::Euro;
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1,
        {"Jan - 2000", "Jan - 2000", "12%", "0%",
         "\x80"
         "2.00"});
  Write(ws, Side::Future, 2, {"Mar - 2000", "Mar - 2000"});
  Build(ws, Side::Future);
  EXPECT_EQ(RowCells(1), (Cells{"1", "1", "Jan - 2000", "1.00",
                                "\x80"
                                "2.00",
                                "\x80"
                                "60.84",
                                "\x80"
                                "61",
                                "\x80"
                                "61",
                                "\x80"
                                "61"}));
  EXPECT_EQ(RowCells(2).at(5),
            "\x80"
            "0");
}

TEST_F(SpdRowsTest, SizesAndAlignmentOfTheGrid) {
  SinWorkspace& ws = world.At("Smoking");
  Build(ws, Side::Future);
  EXPECT_EQ(Rows().HeadingHeight(), 900);
  EXPECT_EQ(Rows().ColumnWidth(1), Grid::kOwnSize);
  EXPECT_EQ(Rows().ColumnWidth(2), 1000);
  EXPECT_EQ(Rows().ColumnWidth(10), 1000);
  EXPECT_EQ(Rows().ColumnAlignment(0), Grid::Alignment::Left);
  EXPECT_EQ(Rows().ColumnAlignment(8), Grid::Alignment::Centre);
}

TEST_F(SpdRowsTest, HeadingIsThatOfTheCurrentSin) {
  SinWorkspace& ws = world.At("Smoking");
  world.session.CurrentSinKey = "Drinking";
  Build(ws, Side::Future);
  EXPECT_EQ(Rows().Cell(0, 3), "Drinks Per Day");
  EXPECT_EQ(GridHeaderText("Smoking").substr(0, 14), "<Index|^Period");
  EXPECT_EQ(GridHeaderText("smoking"), "");
}

// Which periods count is read under the number given, the months are the workspace's own.
TEST_F(SpdRowsTest, CountedPeriodsAreReadUnderTheGivenNumber) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Feb - 2000"});
  Write(ws, Side::Past, 2, {"Mar - 2000", "Mar - 2000"});
  world.session.store.At(1, SideIndex(3)).PeriodEnabled = false;
  world.session.store.At(2, SideIndex(3)).PeriodEnabled = true;
  BuildSpdRows(ws.Of(Side::Past), Rows(), true, true, ws.CurrentIndexSub, SideIndex(3));
  EXPECT_EQ(Column(2), (Cells{"Mar - 2000"}));
}

// So are the labels around gaps: Smoking's own two periods follow each other.
TEST_F(SpdRowsTest, GapsAreReadUnderTheGivenNumber) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Feb - 2000"});
  Write(ws, Side::Past, 2, {"Mar - 2000", "Mar - 2000"});
  for (int p : {1, 2}) world.session.store.At(p, SideIndex(3)).PeriodEnabled = true;
  world.session.store.At(1, SideIndex(3)).StopLabel = "Jan - 1990";
  world.session.store.At(2, SideIndex(3)).StartLabel = "Mar - 1990";
  BuildSpdRows(ws.Of(Side::Past), Rows(), true, true, ws.CurrentIndexSub, SideIndex(3));
  EXPECT_EQ(Column(2), (Cells{"Jan - 2000", "Feb - 2000", "Feb - 1990", "Mar - 2000"}));
}

TEST_F(SpdRowsTest, WithoutClearingTheRowsGoOn) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Feb - 2000"});
  Build(ws, Side::Future);
  world.Spd().Show();
  BuildSpdRows(ws.Of(Side::Future), Rows(), false, false, ws.CurrentIndexSub, SideIndex(2));
  EXPECT_EQ(Column(0), (Cells{"1", "2", "3", "4"}));
  EXPECT_EQ(Column(7), (Cells{"$61", "$122", "$183", "$243"}));  // 243.36
  EXPECT_TRUE(world.Spd().Shown());
  Build(ws, Side::Future);
  EXPECT_EQ(Rows().RowCount(), 3);
  EXPECT_FALSE(world.Spd().Shown());
}

}  // namespace
}  // namespace vicetoll
