// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/commit.h"

#include "calendar/number_text.h"
#include "program_fixture.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

using Texts = std::vector<std::string>;

class Committing : public EverySideOf {
 protected:
  // A sin whose figures are plain: $300 in each month, no rates.
  Committing() : EverySideOf("Gambling") { run.PickMonthly(ws, side, "$300"); }

  // Sets the first `count` periods, each of two months with one month between.
  void CommitPeriods(int count) {
    for (int p = 1; p <= count; ++p)
      run.Commit(ws, side, p, MakeDateLabel(static_cast<std::int16_t>(3 * p - 2), 2015),
                 MakeDateLabel(static_cast<std::int16_t>(3 * p - 1), 2015));
  }

  Texts Costs() const { return TextsOf(c.txtResultsPeriod); }
  Texts Balances() const { return TextsOf(c.txtCumulativeResultsPeriod); }

  std::vector<bool> Fresh() {
    std::vector<bool> fresh;
    for (int p = 1; p <= 4; ++p) fresh.push_back(Record(p).PeriodFresh);
    return fresh;
  }

  bool ButtonsAreOpen() const {
    const bool open = c.cmdAdvResultsDoc->Enabled();
    for (const Button* button : {c.cmdAdvResultsSpd, c.cmdAdvResultsDocSummary, c.cmdAdvResultsSpdSummary})
      EXPECT_EQ(button->Enabled(), open);
    return open;
  }

  // A period as the four states of the screen have it.
  void ExpectClosed(int p) { ExpectUnset(p, false); }
  void ExpectOffered(int p) { ExpectUnset(p, true); }
  void ExpectSet(int p, bool enabled) {
    SCOPED_TRACE(testing::Message() << "period " << p);
    EXPECT_TRUE(Record(p).PeriodSet);
    EXPECT_EQ(Record(p).PeriodEnabled, enabled);
    EXPECT_TRUE(c.optTimePeriod(p).Enabled());
    EXPECT_EQ(c.optTimePeriod(p).Colour(), kGreen);
    EXPECT_EQ(c.optTimePeriod(p).Caption(),
              Caption(p) + " SET to Dates: (" + Record(p).StartLabel + ") to (" + Record(p).StopLabel + ")");
    EXPECT_TRUE(c.frmEnabledDisabledPeriod(p).Enabled());
    EXPECT_TRUE(c.rbnEnabledPeriod(p).Enabled() && c.rbnDisabledPeriod(p).Enabled());
    EXPECT_EQ(c.rbnEnabledPeriod(p).Value(), enabled);
    EXPECT_EQ(c.rbnDisabledPeriod(p).Value(), !enabled);
  }
  void ExpectShown(int p, bool shown) {
    for (const TextBox* box : {&c.txtResultsPeriod(p), &c.txtCumulativeResultsPeriod(p)}) {
      EXPECT_EQ(box->Visible(), shown) << box->FullName();
      EXPECT_EQ(box->Enabled(), shown) << box->FullName();
    }
  }

 private:
  static Texts TextsOf(const ControlArray<TextBox, 8>& boxes) {
    Texts texts;
    for (int p = 1; p <= 4; ++p) texts.push_back(boxes(p).Text());
    return texts;
  }
  std::string Caption(int p) const { return PeriodName(side, p); }
  void ExpectUnset(int p, bool offered) {
    SCOPED_TRACE(testing::Message() << "period " << p);
    EXPECT_FALSE(Record(p).PeriodSet);
    EXPECT_EQ(c.optTimePeriod(p).Enabled(), offered);
    EXPECT_EQ(c.optTimePeriod(p).Colour(), kRed);
    EXPECT_EQ(c.optTimePeriod(p).Caption(), Caption(p));
    EXPECT_FALSE(c.frmEnabledDisabledPeriod(p).Enabled());
    EXPECT_FALSE(c.rbnEnabledPeriod(p).Enabled() || c.rbnDisabledPeriod(p).Enabled());
    ExpectShown(p, false);
  }
};
INSTANTIATE_TEST_SUITE_P(, Committing, testing::ValuesIn(kSides), NameOfSide);

// ---- The press ----

TEST_P(Committing, TheFirstPressShowsOnePeriod) {
  CommitPeriods(1);
  EXPECT_EQ(Costs(), (Texts{"$600", "0", "0", "0"}));
  EXPECT_EQ(Balances(), (Texts{"$600", "0", "0", "0"}));
  EXPECT_EQ(c.txtResultsTotal->Text(), "$600");
  EXPECT_TRUE(c.txtResultsTotal->Visible() && c.txtResultsTotal->Enabled());
  ExpectSet(1, true);
  ExpectShown(1, true);
  ExpectOffered(2);
  ExpectClosed(3);
  ExpectClosed(4);
  EXPECT_FALSE(c.cmdSetPeriodParams->Enabled());
  EXPECT_EQ(ws.Of(side).state.CurrentPeriod, 1);
}

TEST_P(Committing, FourPeriodsAddUp) {
  CommitPeriods(4);
  EXPECT_EQ(Costs(), (Texts{"$600", "$600", "$600", "$600"}));
  EXPECT_EQ(Balances(), (Texts{"$600", "$1,200", "$1,800", "$2,400"}));
  EXPECT_EQ(c.txtResultsTotal->Text(), "$2,400");
  for (int p = 1; p <= 4; ++p) {
    ExpectSet(p, true);
    ExpectShown(p, true);
  }
}

TEST_P(Committing, ReadsEachBalanceBackFromItsBox) {
  run.Pick(*c.comInterestRate1, "12%");
  CommitPeriods(2);
  // 300 a month: 303, then 609.03 as "$609"; 615.09 as "$615"; 924.15, then 1236.3915.
  EXPECT_EQ(Balances(), (Texts{"$609", "$1,236", "0", "0"}));
}

TEST_P(Committing, AnEarlierPressThrowsTheLaterPeriodsAway) {
  CommitPeriods(4);
  const std::string stop = Record(3).StopLabel;
  run.Commit(ws, side, 1, "Jan - 2015", "Feb - 2015");
  EXPECT_EQ(Costs(), (Texts{"$600", "0", "0", "0"}));
  EXPECT_EQ(Balances(), (Texts{"$600", "0", "0", "0"}));
  EXPECT_EQ(c.txtResultsTotal->Text(), "$600");
  ExpectOffered(2);
  ExpectClosed(3);
  ExpectClosed(4);
  EXPECT_EQ(Record(3).StopLabel, stop);  // what was stored stays
}

TEST_P(Committing, OpensTheResultButtons) {
  EXPECT_FALSE(ButtonsAreOpen());
  CommitPeriods(1);
  EXPECT_TRUE(ButtonsAreOpen());
  // Only the past opens those of the total.
  EXPECT_EQ(ws.cmdAdvResultsDocSummaryTot->Enabled(), side == Side::Past);
  EXPECT_EQ(ws.cmdAdvResultsSpdSummaryTot->Enabled(), side == Side::Past);
}

TEST_P(Committing, MakesLaterPeriodsFreshAgain) {
  const std::vector<bool> kAfter[] = {{},
                                      {true, true, true, true},
                                      {true, false, true, true},
                                      {true, false, false, true},
                                      {false, false, false, false}};
  for (int count = 1; count <= 4; ++count) {
    for (int p = 1; p <= 4; ++p) Record(p).PeriodFresh = false;
    CommitPeriod(ws.Of(side), static_cast<std::int16_t>(count), ws.Of(side).Index());
    EXPECT_EQ(Fresh(), kAfter[count]) << count;
  }
}

// With the side's end reached nothing can follow, and another stop opens it again.
TEST_P(Committing, AStopAtTheEndLeavesNoRoom) {
  const char* closing = side == Side::Past ? "Jun - 2026" : "Jul - 2026";
  run.Commit(ws, side, "Jan - 2015", closing);
  ExpectClosed(2);
  run.Commit(ws, side, "Jan - 2015", "May - 2026");
  ExpectOffered(2);
  run.Commit(ws, side, "Jan - 2015", side == Side::Past ? "Jun - 2025" : "Jul - 2027");
  ExpectOffered(2);
}

TEST(CommittingInDecember, TheFutureNeverCloses) {
  RunningProgram run({12, 2026});
  for (const char* stop : {"Jan - 2026", "Jan - 2027", "Dec - 2026"}) {
    SinWorkspace& ws = run.Enter("Gambling", Side::Future);
    run.Commit(ws, Side::Future, "Jan - 2026", stop);
    EXPECT_TRUE(ws.Of(Side::Future).optTimePeriod(2).Enabled()) << stop;
  }
}

// ---- Steps between periods ----

TEST_P(Committing, TheFirstStepForwardSeedsThePeriod) {
  CommitPeriods(1);
  run.Pick(*c.comInterestRate1, "9%");  // on the screen of period 1, not committed
  run.GoTo(ws, side, 2);
  EXPECT_EQ(Record(2).StartLabel, "Mar - 2015");
  EXPECT_EQ(Record(2).StopLabel, "Mar - 2015");
  EXPECT_EQ(Record(2).InterestRateText, "9%");
  EXPECT_FALSE(Record(2).PeriodFresh);
  EXPECT_FALSE(Record(2).PeriodSet);
  EXPECT_EQ(c.comStart->Text(), "Mar - 2015");
  EXPECT_EQ(c.comInterestRate1->Text(), "9%");
  EXPECT_EQ(c.quantity->Text(), "$300");
  EXPECT_EQ(ws.Of(side).state.CurrentPeriod, 2);
  EXPECT_EQ(ws.Of(side).state.PreviousPeriod, 2);
  EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
  EXPECT_EQ(c.cmdSetPeriodParams->Caption(), "Set " + PeriodName(side, 2) + " Parameters");
}

TEST_P(Committing, StepsBackAndForthShowWhatIsStored) {
  CommitPeriods(1);
  run.GoTo(ws, side, 2);
  run.Pick(*c.comInterestRate1, "9%");
  run.Commit(ws, side, "Aug - 2015", "Sep - 2015");
  run.GoTo(ws, side, 1);
  EXPECT_EQ(c.comInterestRate1->Text(), "0%");
  run.Pick(*c.comInterestRate1, "8%");  // not committed, and so lost
  run.GoTo(ws, side, 2);
  EXPECT_EQ(Record(2).StartLabel, "Aug - 2015");
  EXPECT_EQ(c.comInterestRate1->Text(), "9%");
  run.GoTo(ws, side, 1);
  EXPECT_EQ(c.comInterestRate1->Text(), "0%");
}

// A reset of the dates leaves the previous period behind: the step to 2 is then one back.
TEST_P(Committing, AStepBackSeedsNothing) {
  CommitPeriods(1);
  ws.Of(side).state.PreviousPeriod = 3;
  const std::string start = Record(2).StartLabel;
  run.GoTo(ws, side, 2);
  EXPECT_EQ(Record(2).StartLabel, start);
  EXPECT_TRUE(Record(2).PeriodFresh);
  EXPECT_EQ(ws.Of(side).state.PreviousPeriod, 2);
}

TEST_P(Committing, AnEarlierPressMakesTheStepSeedAgain) {
  CommitPeriods(2);
  run.GoTo(ws, side, 1);
  run.Commit(ws, side, "Jan - 2012", "Nov - 2012");
  run.GoTo(ws, side, 2);
  EXPECT_EQ(Record(2).StartLabel, "Dec - 2012");
}

// ---- The radios ----

TEST_P(Committing, ADisabledPeriodLeavesTheSums) {
  CommitPeriods(3);
  run.Click(c.rbnDisabledPeriod(2));
  ExpectSet(2, false);
  ExpectShown(2, false);
  EXPECT_EQ(c.txtResultsTotal->Text(), "$1,200");
  EXPECT_EQ(Balances()[2], "$1,200");
  run.Click(c.rbnEnabledPeriod(2));
  ExpectSet(2, true);
  ExpectShown(2, true);
  EXPECT_EQ(c.txtResultsTotal->Text(), "$1,800");
  EXPECT_EQ(Balances()[2], "$1,800");
}

TEST_P(Committing, AClickOnTheRadioThatIsOnRunsNothing) {
  CommitPeriods(2);
  c.txtResultsTotal->SetText("untouched");
  run.Click(c.rbnEnabledPeriod(1));
  EXPECT_EQ(c.txtResultsTotal->Text(), "untouched");
}

TEST_P(Committing, HiddenBoxesKeepTheirText) {
  CommitPeriods(2);
  run.Click(c.rbnDisabledPeriod(2));
  EXPECT_EQ(Costs()[1], "$600");
  EXPECT_FALSE(c.txtResultsPeriod(2).Visible());
}

TEST_P(Committing, TheButtonsCloseWhereAllPeriodsAreDisabled) {
  CommitPeriods(4);
  for (int p = 1; p <= 4; ++p) {
    EXPECT_TRUE(ButtonsAreOpen());
    run.Click(c.rbnDisabledPeriod(p));
  }
  EXPECT_FALSE(ButtonsAreOpen());
  run.Click(c.rbnEnabledPeriod(3));
  EXPECT_TRUE(ButtonsAreOpen());
}

TEST_P(Committing, APressTurnsALaterPeriodOnAgain) {
  CommitPeriods(2);
  run.Click(c.rbnDisabledPeriod(2));
  run.Commit(ws, side, 3, "Jul - 2015", "Aug - 2015");
  ExpectSet(2, true);
  ExpectShown(2, true);
  EXPECT_EQ(c.txtResultsTotal->Text(), "$1,800");
  EXPECT_EQ(Balances(), (Texts{"$600", "$1,200", "$1,800", "0"}));
}

// Period 1 alone keeps its radio; the press counts it all the same, until a radio changes.
TEST_P(Committing, APressCountsADisabledFirstPeriodUntilTheNextRadio) {
  CommitPeriods(1);
  run.Click(c.rbnDisabledPeriod(1));
  EXPECT_EQ(c.txtResultsTotal->Text(), "$0");
  run.Commit(ws, side, 2, "Apr - 2015", "May - 2015");
  ExpectSet(1, false);
  EXPECT_EQ(c.txtResultsTotal->Text(), "$1,200");
  EXPECT_EQ(Balances(), (Texts{"$600", "$1,200", "0", "0"}));
  run.Click(c.rbnDisabledPeriod(2));
  run.Click(c.rbnEnabledPeriod(2));
  EXPECT_EQ(c.txtResultsTotal->Text(), "$600");
  EXPECT_EQ(Balances()[1], "$600");
  ExpectShown(1, false);
}

// The radio of a period that was closed while disabled is turned on by the next press, and the results
// that its event writes for periods that are not set must not reach the total.
TEST_P(Committing, ARadioInsideAPressLeavesNoTraceInTheTotal) {
  CommitPeriods(3);
  run.Click(c.rbnDisabledPeriod(3));
  run.Commit(ws, side, 1, "Jan - 2015", "Feb - 2015");
  EXPECT_TRUE(c.rbnEnabledPeriod(3).Value());
  EXPECT_EQ(Costs(), (Texts{"$600", "0", "0", "0"}));
  EXPECT_EQ(Balances(), (Texts{"$600", "0", "0", "0"}));
  EXPECT_EQ(c.txtResultsTotal->Text(), "$600");
  ExpectClosed(3);
  CommitPeriods(3);
  ExpectSet(3, true);
  EXPECT_EQ(c.txtResultsTotal->Text(), "$1,800");
}

// ---- A stop before the start ----

// Fine stop lists of later periods can offer one. The press says so and goes on.
TEST_P(Committing, AStopBeforeTheStartWarnsAndCostsNothing) {
  CommitPeriods(1);
  run.Commit(ws, side, 2, "Aug - 2015", "Jun - 2015");
  ASSERT_EQ(run.platform.messages.size(), 1u);
  EXPECT_EQ(run.platform.messages[0].text, "Warning, Date out of Range\r\nDate Before Start Date1");
  EXPECT_EQ(Costs(), (Texts{"$600", "$0", "0", "0"}));
  EXPECT_EQ(Balances(), (Texts{"$600", "$600", "0", "0"}));
  ExpectSet(2, true);
  // One month before the start there is simply no month.
  run.platform.messages.clear();
  run.Commit(ws, side, "Aug - 2015", "Jul - 2015");
  EXPECT_TRUE(run.platform.messages.empty());
}

// ---- Every sin ----

class CommittingEverySin : public EverySinAndSide {};
INSTANTIATE_TEST_SUITE_P(, CommittingEverySin, AllSinsAndSides(), NameOfSinAndSide);

TEST_P(CommittingEverySin, TheDefaultsCanBeSetAtOnce) {
  run.Press(ws, side);
  EXPECT_EQ(c.txtResultsTotal->Text(), c.txtResultsPeriod(1).Text());
  EXPECT_GT(MoneyToNumber(c.txtResultsPeriod(1).Text()), 0);
  EXPECT_TRUE(Record(1).PeriodSet);
  EXPECT_TRUE(run.platform.messages.empty());
  for (int p = 2; p <= 4; ++p) EXPECT_EQ(c.txtCumulativeResultsPeriod(p).Text(), "0");
}

TEST_P(CommittingEverySin, OneSideLeavesTheOtherAlone) {
  run.OpenTab(ws, side == Side::Past ? kFutureTab : kPastTab);
  const Side other = side == Side::Past ? Side::Future : Side::Past;
  run.Press(ws, other);
  EXPECT_FALSE(Record(1).PeriodSet);
  EXPECT_EQ(c.txtResultsTotal->Text(), "");
}

// ---- The worked example ----

class WorkedExample : public EverySideOf {
 protected:
  WorkedExample() : EverySideOf("Smoking", {11, 1999}) {}

  void PickCosts(const char* cost, const char* interest, const char* inflation) {
    run.Pick(*c.comInitialCost, cost);
    run.Pick(*c.comFinalCost, cost);
    run.Pick(*c.comInterestRate1, interest);
    run.Pick(*c.comInflationRate1, inflation);
  }
};
INSTANTIATE_TEST_SUITE_P(, WorkedExample, testing::ValuesIn(kSides), NameOfSide);

// A pack a day. 3 * 60.84 = 182.52 out of pocket, and with 1% a month 186.19; over two months 189.74, and
// then 2 * 91.26 at a net 4%: 374.70. The two costs as shown make 366.
TEST_P(WorkedExample, ComesOutInTheBoxes) {
  run.Click(*c.OptCigInitialFinalCostIncrease);
  PickCosts("$2.00", "12%", "0%");
  run.Commit(ws, side, "Jan - 2000", "Mar - 2000");
  run.GoTo(ws, side, 2);
  PickCosts("$3.00", "6%", "2%");
  run.Commit(ws, side, "Jun - 2000", "Jul - 2000");
  EXPECT_EQ(c.txtResultsPeriod(1).Text(), "$183");
  EXPECT_EQ(c.txtCumulativeResultsPeriod(1).Text(), "$186");
  EXPECT_EQ(c.txtResultsPeriod(2).Text(), "$183");
  EXPECT_EQ(c.txtCumulativeResultsPeriod(2).Text(), "$375");
  EXPECT_EQ(c.txtResultsTotal->Text(), "$366");

  // To January of the next year at a net 7%: five months, 375 to 386.07.
  run.OpenTab(ws, kTotalTab);
  run.Pick(*ws.comCumulativeFutureDateTot, "Jan - 2001");
  run.Pick(*ws.comInterestRateFutureDateTot, "10%");
  run.Pick(*ws.comInflationRateFutureDateTot, "3%");
  ASSERT_EQ(ws.cmdCumulativeFutureDateTot->UserClicks(), UserOutcome::Done);
  EXPECT_EQ(ws.txtCumulativeFutureDateTot->Text(), "$386");
}

// ---- Smoking's window ----

TEST(CommittingSmoking, EveryPastPressLowersTheWindow) {
  RunningProgram run;
  SinWorkspace& ws = run.Smoking();
  const int height = ws.Height();
  for (int press = 1; press <= 2; ++press) {
    run.Press(ws, Side::Past);
    EXPECT_FALSE(ws.cmdEuro->Visible() || ws.cmdEuro->Enabled());
  }
  // Below its own height the window snaps back to it.
  EXPECT_EQ(ws.Height(), height - 750);
  ws.UserResizes(12000, 14000);
  run.Press(ws, Side::Past);
  EXPECT_EQ(ws.Height(), 14000 - 750);
  run.OpenTab(ws, kFutureTab);
  run.Press(ws, Side::Future);
  EXPECT_EQ(ws.Height(), 14000 - 750);
}

}  // namespace
}  // namespace vicetoll
