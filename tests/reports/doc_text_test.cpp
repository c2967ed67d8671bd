// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/doc_text.h"

#include <gtest/gtest.h>

#include "reports/report_world.h"
#include "reports/total_reports.h"
#include "vocabulary/month_reports.h"

namespace vicetoll {
namespace {

using Texts = std::vector<std::string>;

const std::string kRule(88, '_');

class DocTextTest : public ::testing::Test {
 protected:
  ReportWorld world;

  std::string Build(SinWorkspace& ws, Side side, bool docFlag) {
    return BuildDocText(ws.Of(side), world.Doc().Text(), docFlag, true, ws.CurrentIndexSub,
                        ws.Of(side).Index());
  }

  // The months of one period, without headers.
  Texts Months(SinWorkspace& ws, Side side, bool docFlag) {
    std::int16_t index = 0;
    return Lines(ParametersForMonthInPeriodDoc(ws.Of(side), 1, docFlag, index, 0, 0));
  }

  Texts Between(SinWorkspace& ws, Side side, bool disabled, bool docFlag) {
    std::int16_t index = 0;
    return Lines(ParametersForMonthInPeriodDocBetweenPeriods(ws.Of(side), disabled, 1, docFlag, index, 100,
                                                             200, "Mar - 2000", "May - 2000"));
  }
};

// The figures are those of the grid (see SpdRowsTest), the month's own with its cents: 61.4484.
TEST_F(DocTextTest, BlockOfAMonth) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000"});
  EXPECT_EQ(Months(ws, Side::Future, true),
            (Texts{" Month Number 1: Smoking Results for the Beginning to End of Jan - 2000 of Period 1",
                   " Period 1: Jan - 2000 to Jan - 2000", " Packs Smoked Per Day: 1.00        ",
                   " Cost of a Pack of Cigarettes: $2.00           ",
                   " Out of Pocket Monthly Cost of Cigarettes: $60.84        ",
                   " Monthly Cost of Cigarettes Including Interest for Month: $61.45        ",
                   " Cumulative Cost of Cigarettes Thru Month: $61           ",
                   " Cumulative Cost of Cigarettes Thru Month with Interest: $61           ", kRule}));
}

TEST_F(DocTextTest, TableLinesOfAPeriod) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Mar - 2000"});
  const Texts lines = Months(ws, Side::Future, false);
  ASSERT_EQ(lines.size(), 3u);
  EXPECT_EQ(lines[0], CellText("1") + CellText("1") + CellText("Jan - 2000") + CellText("1.00", 12) +
                          CellText("$2.00", 16) + CellText("$60.84", 14) + CellText("$61.45", 14) +
                          CellText("$61", 14) + PadRight("$61", 14));
  EXPECT_EQ(Trimmed(lines[1]),
            (Texts{"2", "1", "Feb - 2000", "1.00", "$2.00", "$60.84", "$62.06", "$122", "$124"}));
  EXPECT_EQ(Trimmed(lines[2]),
            (Texts{"3", "1", "Mar - 2000", "1.00", "$2.00", "$60.84", "$62.68", "$183", "$186"}));
  EXPECT_NEAR(ws.CurrentCumulativeCostWithInterest, 186.19479684, 1e-9);
}

// One month strictly between March and May. 1% of 200 is 2. The month cost is two characters wider than
// in months that have one.
TEST_F(DocTextTest, GapMonth) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Mar - 2000"});
  EXPECT_EQ(Between(ws, Side::Past, false, true),
            (Texts{" Month Number 1: Smoking Results for the Beginning to End of Apr - 2000",
                   " Period 1: Mar - 2000 to May - 2000", " Packs Smoked Per Day: 0.00        ",
                   " Cost of a Pack of Cigarettes: N/A             ",
                   " Out of Pocket Monthly Cost of Cigarettes: $0.00           ",
                   " Monthly Cost of Cigarettes Including Interest for Month: $2.00         ",
                   " Cumulative Cost of Cigarettes Thru Month: $100          ",
                   " Cumulative Cost of Cigarettes Thru Month with Interest: $202          ", kRule}));
  const Texts table = Between(ws, Side::Past, false, false);
  ASSERT_EQ(table.size(), 1u);
  EXPECT_EQ(table[0], CellText("1") + CellText("N/A") + CellText("Apr - 2000") + CellText("0.00", 12) +
                          CellText("N/A", 16) + CellText("$0.00", 16) + CellText("$2.00", 14) +
                          CellText("$100", 14) + PadRight("$202", 14));
}

// From March to May is a disabled period of three months; its labels run one month late.
TEST_F(DocTextTest, DisabledMonths) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Mar - 2000"});
  const Texts blocks = Between(ws, Side::Past, true, true);
  ASSERT_EQ(blocks.size(), 27u);
  EXPECT_EQ(blocks[0], " Month Number 1: Smoking Results for the Beginning to End of Apr - 2000 of Period 1");
  EXPECT_EQ(blocks[18],
            " Month Number 3: Smoking Results for the Beginning to End of Jun - 2000 of Period 1");
  EXPECT_EQ(blocks[19], " Period 1: Mar - 2000 to May - 2000");
  const Texts table = Between(ws, Side::Past, true, false);
  ASSERT_EQ(table.size(), 3u);
  EXPECT_EQ(Trimmed(table[2]).at(1), "1");
  EXPECT_EQ(Trimmed(table[2]).at(2), "Jun - 2000");
}

TEST_F(DocTextTest, PeriodHeaderWithFinalCost) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Past, 2, {"Jan - 2000", "Mar - 2000", "12%", "3%"}).FinalCostText = "$2.50";
  EXPECT_EQ(
      Lines(ParametersInPeriodDoc(ws.Of(Side::Past), 2)),
      (Texts{"Past Period 2 Set and Enabled and has the following Parmeters:",
             "Start Smoking Date for Period is: Jan - 2000", "Stop Smoking Date for Period is: Mar - 2000",
             "Initial Cost of Cigarettes at Start Smoking Date: $2.00",
             "Final Cost of Cigarettes at Stop Smoking Date: $2.50",
             "Pack of Cigarettes Smoked Per Day During Period: 19",  // the position, not the packs
             "Yearly Savings Rate One can Earn on Saved Money: 12%", "Yearly Inflation Rate: 3%", kRule}));
}

TEST_F(DocTextTest, PeriodHeaderWithPercentIncrease) {
  SinWorkspace& ws = world.At("Drinking");
  PeriodRecord& record = Write(ws, Side::Future, 1, {"Jan - 2000", "Mar - 2000"});
  record.CostModeFlag = true;
  record.PercentIncreaseText = "10%";
  const Texts lines = Lines(ParametersInPeriodDoc(ws.Of(Side::Future), 1));
  ASSERT_EQ(lines.size(), 9u);
  EXPECT_EQ(lines[0], "Future Period 1 Set and Enabled and has the following Parmeters:");
  EXPECT_EQ(lines[3], "Initial Cuptoll at Start Drinking Date: $2.00");
  EXPECT_EQ(lines[4], "Yearly Percent Increase in Drinking Cost in Drinking Period: 10%");
  EXPECT_EQ(lines[5], "Pack of Cigarettes Drinkd Per Day During Period: 5");
}

TEST_F(DocTextTest, PeriodHeaderOfFlatRateEndsItsCostLineWithThePosition) {
  SinWorkspace& ws = world.At("Gambling");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Mar - 2000"});
  EXPECT_EQ(
      Lines(ParametersInPeriodDoc(ws.Of(Side::Past), 1)),
      (Texts{"Past Period 1 Set and Enabled and has the following Parmeters:",
             "Start Gambling Date for Period is: Jan - 2000", "Stop Gambling Date for Period is: Mar - 2000",
             "Gambling Cost Per Day During Period: 20",
             "Yearly Savings Rate One can Earn on Saved Money: 12%", "Yearly Inflation Rate: 0%", kRule}));
}

TEST_F(DocTextTest, PeriodHeaderOfNetUnits) {
  SinWorkspace& ws = world.At("Coffeeing");
  Write(ws, Side::Past, 1, {"Jan - 2000", "Mar - 2000"});
  const Texts lines = Lines(ParametersInPeriodDoc(ws.Of(Side::Past), 1));
  ASSERT_EQ(lines.size(), 11u);
  EXPECT_EQ(lines[3], "Initial Beantoll at Start Coffee Drinking  Date: $2.00");
  EXPECT_EQ(lines[4], "Reasonable Cost of a Coffee at Start Coffee Drinking Date: $0.50");
  EXPECT_EQ(lines[5], "Excess Beantoll: $1.50");
  EXPECT_EQ(lines[6], "Yearly Percent Increase in Coffee Cost in Coffee Drinking Period: 0%");
  EXPECT_EQ(lines[7], "Pack of Cigarettes Drinkd Per Day During Period: 2");
  // Nothing in excess has no digit before the point.
  Write(ws, Side::Past, 1, {.start = "Jan - 2000", .stop = "Mar - 2000", .cost = "$0.50"});
  EXPECT_EQ(Lines(ParametersInPeriodDoc(ws.Of(Side::Past), 1)).at(5), "Excess Beantoll: $.00");
}

TEST_F(DocTextTest, HeaderNeedsAPeriodThatIsSetAndEnabled) {
  SinWorkspace& ws = world.At("Smoking");
  EXPECT_EQ(ParametersInPeriodDoc(ws.Of(Side::Past), 1), "");
  Write(ws, Side::Past, 1, {.start = "Jan - 2000", .stop = "Mar - 2000", .enabled = false});
  EXPECT_EQ(ParametersInPeriodDoc(ws.Of(Side::Past), 1), "");
}

TEST_F(DocTextTest, TableHeadingOfSmoking) {
  SinWorkspace& ws = world.At("Smoking");
  EXPECT_EQ(CsvText(ws, false), "");
  const Texts lines = Lines(CsvText(ws, true));
  ASSERT_EQ(lines.size(), 6u);
  EXPECT_EQ(lines[0],
            "Index\tPeriod\tEval.           \tPacks          \tCost of             \tSmoking            \t"
            "Smoking Cost:      \tCumulative         \tCumulative          ");
  // The empty cell puts the words one tab further right.
  EXPECT_EQ(lines[3],
            "     \t      \t                \t               \t                    \t\tOut of             \t"
            "                   \tOut of             \tWith                ");
  EXPECT_EQ(lines[5], "");
}

TEST_F(DocTextTest, NothingEnabledLeavesTheHeadingAlone) {
  SinWorkspace& ws = world.At("Smoking");
  EXPECT_EQ(Build(ws, Side::Past, true), "");
  EXPECT_EQ(Build(ws, Side::Past, false), CsvText(ws, true));
  EXPECT_EQ(world.Doc().Text().Text(), CsvText(ws, true));
}

// Headers first, of the enabled periods only; then all months, those of the disabled period among them:
// 1 of period 1, a gap of 1, 1 disabled, a gap of 1, 1 of period 3.
TEST_F(DocTextTest, DriverPutsHeadersBeforeMonths) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000"});
  Write(ws, Side::Future, 2, {.start = "Mar - 2000", .stop = "Mar - 2000", .enabled = false});
  Write(ws, Side::Future, 3, {"May - 2000", "May - 2000"});
  ws.CurrentIndexSub = 50;
  ws.CurrentCumulativeCost = 1000;
  const Texts lines = Lines(Build(ws, Side::Future, true));
  ASSERT_EQ(lines.size(), 2u * 9 + 5 * 9);
  EXPECT_EQ(lines[0], "Future Period 1 Set and Enabled and has the following Parmeters:");
  EXPECT_EQ(lines[9], "Future Period 3 Set and Enabled and has the following Parmeters:");
  EXPECT_EQ(lines[18], " Month Number 1: Smoking Results for the Beginning to End of Jan - 2000 of Period 1");
  EXPECT_EQ(lines[27], " Month Number 2: Smoking Results for the Beginning to End of Feb - 2000");
  EXPECT_EQ(lines[36], " Month Number 3: Smoking Results for the Beginning to End of Apr - 2000 of Period 2");
  EXPECT_EQ(lines[45], " Month Number 4: Smoking Results for the Beginning to End of Apr - 2000");
  EXPECT_EQ(lines[54], " Month Number 5: Smoking Results for the Beginning to End of May - 2000 of Period 3");
  EXPECT_EQ(ws.CurrentIndexSub, 5);
  EXPECT_NEAR(ws.CurrentCumulativeCost, 121.68, 1e-9);
}

TEST_F(DocTextTest, IndexIsResetInEveryRunTheTotalsOnDemand) {
  SinWorkspace& ws = world.At("Smoking");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000"});
  ws.CurrentIndexSub = 50;
  ws.CurrentCumulativeCost = 1000;
  DocText(ws.Of(Side::Future), false, false, ws.CurrentIndexSub, SideIndex(2));
  EXPECT_EQ(ws.CurrentIndexSub, 1);
  EXPECT_NEAR(ws.CurrentCumulativeCost, 1060.84, 1e-9);
}

// The letter "e" stands for the euro sign; the parameters are shown as they are stored.
TEST_F(DocTextTest, EuroShowsAsALetter) {
  world.session.currency = Currency::Euro;
  SinWorkspace& ws = world.At("Coffeeing");
  Write(ws, Side::Past, 1,
        {.start = "Jan - 2000",
         .stop = "Jan - 2000",
         .cost = "\x80"
                 "2.00",
         .reasonable = "\x80"
                       "0.50"});
  EXPECT_EQ(Lines(ParametersInPeriodDoc(ws.Of(Side::Past), 1)).at(3),
            "Initial Beantoll at Start Coffee Drinking  Date: \x80"
            "2.00");
  EXPECT_EQ(Lines(ParametersInPeriodDoc(ws.Of(Side::Past), 1)).at(5), "Excess Beantoll: e1.50");
  EXPECT_EQ(Trimmed(Months(ws, Side::Past, false).at(0)),
            (Texts{"1", "1", "Jan - 2000", "3.00", "e2.00", "e0.50", "e1.50", "e136.89", "e138.26", "e137",
                   "e138"}));
  EXPECT_EQ(Trimmed(Between(ws, Side::Past, false, false).at(0)).at(6), "N/A");
  EXPECT_EQ(Trimmed(Between(ws, Side::Past, false, false).at(0)).at(7), "e0.00");
}

// The flat-rate class leaves the unit cost out of its table, but not out of its blocks.
TEST_F(DocTextTest, FlatRateMonths) {
  SinWorkspace& ws = world.At("Gambling");
  Write(ws, Side::Future, 1, {"Jan - 2000", "Jan - 2000"});
  EXPECT_EQ(Months(ws, Side::Future, false).at(0), CellText("1") + CellText("1") + CellText("Jan - 2000") +
                                                       CellText("20.00", 12) + CellText("$608.40", 14) +
                                                       CellText("$614.48", 14) + CellText("$608", 14) +
                                                       PadRight("$614", 14));
  const Texts block = Months(ws, Side::Future, true);
  ASSERT_EQ(block.size(), 9u);
  EXPECT_EQ(block[2], " Gambles Per Day: 20.00       ");
  EXPECT_EQ(block[3], " Cost of a Gamble: $20.00          ");
  EXPECT_EQ(block[4], " Out of Pocket Monthly Dicetoll: $608.40       ");
}

// The second blank after "Drinking" belongs to the past months and to the gaps of the future.
TEST_F(DocTextTest, HeadingBlanksOfNetUnits) {
  for (const auto& [key, word] : {std::pair("Coffeeing", "Coffee"), std::pair("Watering", "Water")}) {
    SinWorkspace& ws = world.At(key);
    const auto heading = [&](const Texts& lines) {
      return lines.at(0).substr(0, lines.at(0).find(" Results"));
    };
    const std::string one = std::string(" Month Number 1: ") + word + " Drinking";
    for (Side side : kSides) Write(ws, side, 1, {"Jan - 2000", "Jan - 2000"});
    EXPECT_EQ(heading(Months(ws, Side::Past, true)), one + " ");
    EXPECT_EQ(heading(Months(ws, Side::Future, true)), one);
    EXPECT_EQ(heading(Between(ws, Side::Past, false, true)), one);
    EXPECT_EQ(heading(Between(ws, Side::Future, true, true)), one + " ");
  }
}

TEST_F(DocTextTest, BlocksOfNetUnits) {
  SinWorkspace& ws = world.At("Coffeeing");
  for (Side side : kSides) Write(ws, side, 1, {"Jan - 2000", "Jan - 2000"});
  const Texts past = Months(ws, Side::Past, true);
  ASSERT_EQ(past.size(), 11u);
  EXPECT_EQ(past[2], " Coffees Per Day: 3.00        ");
  EXPECT_EQ(past[3], " Gross: Cost of a Coffee: $2.00           ");
  EXPECT_EQ(past[4], " Subtracted Reasonable Coffee Cost: $0.50           ");
  EXPECT_EQ(past[5], " Adjusted: Cost of a Coffee: $1.50           ");
  EXPECT_EQ(past[6], " Out of Pocket Monthly Beantoll: $136.89       ");
  // In the future the quantity gives way to the gross cost a second time.
  const Texts future = Months(ws, Side::Future, true);
  ASSERT_EQ(future.size(), 11u);
  EXPECT_EQ(future[2], " Gross: Cost of a Coffee: $2.00           ");
  EXPECT_EQ(future[4], " Adjusted: Cost of a Coffee: $1.50           ");
  EXPECT_EQ(future[5], " Cost of a Coffee: $2.00           ");
  EXPECT_EQ(future[6], " Out of Pocket Monthly Beantoll: $136.89       ");
  // But not in its gaps, where only the first "N/A" is padded.
  const Texts gap = Between(ws, Side::Future, false, true);
  ASSERT_EQ(gap.size(), 11u);
  EXPECT_EQ(gap[2], " Coffees Per Day: 0.00        ");
  EXPECT_EQ(gap[3], " Gross: Cost of a Coffee: N/A             ");
  EXPECT_EQ(gap[4], " Subtracted Reasonable Coffee Cost: N/A");
  EXPECT_EQ(gap[5], " Adjusted: Cost of a Coffee: N/A");
}

TEST_F(DocTextTest, TableLinesHaveTheCellsOfTheGrid) {
  for (const SinRow& sin : Catalogue()) {
    SinWorkspace& ws = world.Switch(sin.key);
    Write(ws, Side::Past, 1, {"Jan - 2000", "Jan - 2000", "12%", "0%", "$15.00"});
    BuildSpdRows(ws.Of(Side::Past), world.Spd().Rows(), true, true, ws.CurrentIndexSub,
                 ws.Of(Side::Past).Index());
    EXPECT_EQ(Trimmed(Months(ws, Side::Past, false).at(0)).size(),
              Trimmed(world.Spd().Rows().RowText(1)).size())
        << sin.key;
  }
}

}  // namespace
}  // namespace vicetoll
