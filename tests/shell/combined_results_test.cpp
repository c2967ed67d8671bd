// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/combined_results.h"

#include "fault_of.h"
#include "program_fixture.h"

namespace vicetoll {
namespace {

constexpr const char* kCells[] = {"txtOopPastSins", "txtCumPastSins", "txtOopFutSins",
                                  "txtCumFutSins",  "txtOopSins",     "txtCumSins"};
constexpr int kGambling = 2, kDrugging = 6;

using Texts = std::vector<std::string>;

class Combined : public testing::Test {
 protected:
  RunningProgram run;

  // The press of the button on the workspace in front.
  CombinedResults& Open() {
    EXPECT_EQ(run.Front().Get<Button>("cmdCombinedResults").UserClicks(), UserOutcome::Done);
    return run.program.Combined();
  }
  CombinedResults& Table() { return run.program.Combined(); }

  Texts Row(int row) {
    Texts texts;
    for (const char* cell : kCells) texts.push_back(Table().Get<TextBox>(cell, row).Text());
    return texts;
  }
  Texts Totals() {
    Texts texts;
    for (const char* cell : kCells) texts.push_back(Table().Get<TextBox>(std::string(cell) + "Total").Text());
    return texts;
  }
  void Represent(std::string_view entry) { run.Pick(Table().Get<DropDownList>("comDataRep"), entry); }
  void Tick(int row) {
    EXPECT_EQ(Table().Get<CheckBox>("chkWhichSins", row).UserClicks(), UserOutcome::Done);
  }

  // $300 a month without increase. Three months of the past at 12% a year:
  // ((300*1.01 + 300)*1.01 + 300)*1.01 = 918.1203.
  void GamblePast() {
    SinWorkspace& ws = run.Enter("Gambling", Side::Past);
    run.PickMonthly(ws, Side::Past, "$300", "12%");
    run.Commit(ws, Side::Past, "Mar - 2026", "May - 2026");
  }
  // Two months ahead without interest, 600 and 600.
  void GambleFuture() {
    SinWorkspace& ws = run.Enter("Gambling", Side::Future);
    run.PickMonthly(ws, Side::Future, "$300");
    run.Commit(ws, Side::Future, "Jul - 2026", "Aug - 2026");
  }
  // One month ahead, 300 and 300.
  void DrugFuture() {
    SinWorkspace& ws = run.Enter("Drugging", Side::Future);
    run.PickMonthly(ws, Side::Future, "$300");
    run.Commit(ws, Side::Future, "Jul - 2026", "Jul - 2026");
  }
};

TEST_F(Combined, SinsWithoutFiguresShowNoData) {
  Open();
  for (int row = 0; row < kSinCount; ++row) EXPECT_EQ(Row(row), Texts(6, "$0")) << row;
  EXPECT_EQ(Totals(), Texts(6, "$0"));
}

// The past's 918 grows over June at its own rate, 918 * 1.01 = 927.18, and two months of 300 go on top:
// 1527.18, where the two cells together make 1518.
TEST_F(Combined, ThePastIsCarriedForwardAtInterest) {
  GamblePast();
  GambleFuture();
  Open();
  EXPECT_EQ(Row(kGambling), (Texts{"$900", "$918", "$600", "$600", "$1,500", "$1,527"}));
}

TEST_F(Combined, OneSideAloneIsBoth) {
  GamblePast();
  DrugFuture();
  Open();
  EXPECT_EQ(Row(kGambling), (Texts{"$900", "$918", "$0", "$0", "$900", "$918"}));
  EXPECT_EQ(Row(kDrugging), (Texts{"$0", "$0", "$300", "$300", "$300", "$300"}));
  EXPECT_EQ(Totals(), (Texts{"$900", "$918", "$300", "$300", "$1,200", "$1,218"}));
}

TEST_F(Combined, TotalsAddTheTickedRows) {
  GamblePast();
  GambleFuture();
  DrugFuture();
  Open();
  const Texts all = {"$900", "$918", "$900", "$900", "$1,800", "$1,827"};
  EXPECT_EQ(Totals(), all);
  Tick(kGambling);
  EXPECT_EQ(Totals(), (Texts{"$0", "$0", "$300", "$300", "$300", "$300"}));
  for (const char* cell : kCells) {
    EXPECT_FALSE(Table().Get<TextBox>(cell, kGambling).Visible()) << cell;
    EXPECT_TRUE(Table().Get<TextBox>(cell, kDrugging).Visible()) << cell;
  }
  EXPECT_EQ(Row(kGambling)[5], "$1,527");  // hidden, not emptied
  Tick(kGambling);
  EXPECT_EQ(Totals(), all);
  EXPECT_TRUE(Table().Get<TextBox>("txtCumSins", kGambling).Visible());
}

TEST_F(Combined, NoDataIsShownAsTheUserLikes) {
  GamblePast();
  Open();
  Represent("NO DATA");
  EXPECT_EQ(Row(kGambling), (Texts{"$900", "$918", "NO DATA", "NO DATA", "$900", "$918"}));
  EXPECT_EQ(Totals(), (Texts{"$900", "$918", "NO DATA", "NO DATA", "$900", "$918"}));
  Represent("BLANK");
  EXPECT_EQ(Row(kDrugging), Texts(6, ""));
  EXPECT_EQ(Totals(), (Texts{"$900", "$918", "", "", "$900", "$918"}));
}

TEST_F(Combined, TheTableIsASnapshotUntilItIsUpdated) {
  GamblePast();
  Open();
  DrugFuture();
  EXPECT_EQ(Row(kDrugging), Texts(6, "$0"));
  EXPECT_EQ(Table().Get<Button>("cmdUpdate").UserClicks(), UserOutcome::Done);
  EXPECT_EQ(Row(kDrugging)[2], "$300");
}

// A period that is taken out of the sums goes out of the table.
TEST_F(Combined, ADisabledPeriodHasNoFigures) {
  GamblePast();
  EXPECT_EQ(run.Front().Of(Side::Past).rbnDisabledPeriod(1).UserClicks(), UserOutcome::Done);
  Open();
  EXPECT_EQ(Row(kGambling)[0], "$0");
  EXPECT_EQ(Totals()[0], "$0");
}

TEST_F(Combined, TheZeroHasTheCurrencyOfTheWindowsCreation) {
  run.program.GetSession().currency = Currency::Euro;
  Open();
  const std::string zero =
      "\x80"
      "0";
  EXPECT_EQ(Table().Get<DropDownList>("comDataRep").Entries().All(), (Texts{"NO DATA", "BLANK", zero}));
  EXPECT_EQ(Row(kGambling), Texts(6, zero));
}

TEST_F(Combined, ExitHidesTheWindowAndKeepsItsTicks) {
  Open();
  Tick(kGambling);
  EXPECT_EQ(Table().Get<Button>("cmdExit").UserClicks(), UserOutcome::Done);
  EXPECT_FALSE(Table().Shown());
  Open();
  EXPECT_FALSE(Table().Get<CheckBox>("chkWhichSins", kGambling).Value());
}

TEST_F(Combined, ARowOutsideTheTableIsAFault) {
  const SideIndex past = run.Smoking().Of(Side::Past).Index();
  const SideIndex future = run.Smoking().Of(Side::Future).Index();
  for (const int row : {-1, kSinCount})
    EXPECT_EQ(FaultOf([&] { Table().GetIndividualSinValues(run.Smoking(), row, past, future); }),
              FaultKind::Index);
}

}  // namespace
}  // namespace vicetoll
