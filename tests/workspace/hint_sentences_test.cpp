// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/hint_sentences.h"

#include "program_fixture.h"

namespace vicetoll {
namespace {

class Hints : public testing::Test {
 protected:
  RunningProgram run;
  SinWorkspace& ws = run.Smoking();
  SideControls& past = ws.Of(Side::Past);

  // One pack a day at two dollars, without interest: 60.84 a month, 182.52 in three.
  void CommitAtTwoDollars(int period, std::string_view start, std::string_view stop) {
    if (period != ws.Of(Side::Past).state.CurrentPeriod) run.GoTo(ws, Side::Past, period);
    run.Pick(*past.comInitialCost, "$2.00");
    run.Pick(*past.comPercentIncrease, "0%");
    run.Pick(*past.comInterestRate1, "0%");
    run.Pick(*past.comInflationRate1, "0%");
    run.Commit(ws, Side::Past, start, stop);
  }
};

TEST_F(Hints, BeginWithWhatToChooseAndPress) {
  EXPECT_EQ(ws.Hint(), "Choose dates, amount and cost, then press Set Past Period 1 Parameters");
  run.OpenTab(ws, kFutureTab);
  EXPECT_EQ(ws.Hint(), "Choose dates, amount and cost, then press Set Future Period 1 Parameters");
  run.OpenTab(ws, kTotalTab);
  EXPECT_EQ(ws.Hint(), "Set a period on the PAST or the FUTURE tab first");
}

TEST_F(Hints, AreThoseOfTheSinThatComesToTheFront) {
  SinWorkspace& gambling = run.Enter("Gambling");
  EXPECT_EQ(gambling.Hint(), "Choose dates, cost and rates, then press Set Past Period 1 Parameters");
}

TEST_F(Hints, TellWhatAPressHasSetAndWhereToGoOn) {
  CommitAtTwoDollars(1, "Jan - 2000", "Mar - 2000");
  EXPECT_EQ(ws.Hint(),
            "Past Period 1 is set (Jan - 2000 to Mar - 2000): $183 out of pocket, $183 cumulative; "
            "go on with Past Period 2");
  past.comInterestRate1->UserFocuses();
  past.comInterestRate1->UserPicks("0%");
  EXPECT_EQ(ws.Hint(), "Go on with Past Period 2, or see the results on the TOTAL tab");
}

TEST_F(Hints, TellThatAStopAtThePresentLeavesNoRoom) {
  CommitAtTwoDollars(1, "Apr - 2026", "Jun - 2026");
  EXPECT_TRUE(ws.Hint().ends_with("; its stop leaves no room for another")) << ws.Hint();
  run.Pick(*past.comInterestRate1, "0%");
  EXPECT_EQ(
      ws.Hint(),
      "See the results on the TOTAL tab, or choose what differs and press Set Past Period 1 Parameters");
}

// Thirteen months: 13 x 60.84 = 790.92.
TEST_F(Hints, TellThatLaterPeriodsAreGone) {
  CommitAtTwoDollars(1, "Jun - 2016", "Jun - 2017");
  CommitAtTwoDollars(2, "Jul - 2017", "Jul - 2018");
  run.GoTo(ws, Side::Past, 1);
  EXPECT_EQ(
      ws.Hint(),
      "Choose what differs and press Set Past Period 1 Parameters; the later periods are then to be set "
      "again");
  run.Press(ws, Side::Past);
  EXPECT_EQ(ws.Hint(),
            "Past Period 1 is set (Jun - 2016 to Jun - 2017): $791 out of pocket, $791 cumulative; "
            "the later periods are gone; go on with Past Period 2");
}

// "Jan - 2000" was found in a fine list, and is in no yearly one.
TEST_F(Hints, TellThatAPeriodComesBackWithOtherDates) {
  CommitAtTwoDollars(1, "Jan - 2000", "Mar - 2000");
  CommitAtTwoDollars(2, "Apr - 2000", "Jun - 2000");
  run.GoTo(ws, Side::Past, 1);
  EXPECT_EQ(ws.Hint(), "The start list shows whole years; Jan - 2000 is not among them, it now shows " +
                           past.comStart->Text() +
                           "; the stop list shows whole years; Mar - 2000 is not among them, it now shows " +
                           past.comStop->Text());
}

TEST_F(Hints, TellWhetherAPeriodCounts) {
  CommitAtTwoDollars(1, "Jan - 2000", "Mar - 2000");
  run.Click(past.rbnDisabledPeriod(1));
  EXPECT_EQ(ws.Hint(), "Past Period 1 is left out of the results");
  run.Click(past.rbnEnabledPeriod(1));
  EXPECT_EQ(ws.Hint(), "Past Period 1 counts in the results again");
}

// June 2016 to June 2026 at the start: the yearly list ends in the stop, so "Feb - 2017" is not in it and the
// first entry, ninety years back, takes its place.
TEST_F(Hints, TellWhichDateAListHasMoved) {
  past.comStart->SetText("Feb - 2017");
  past.comStart->UserFocuses();
  EXPECT_EQ(past.comStart->Text(), "Jun - 1936");
  EXPECT_EQ(ws.Hint(),
            "The start list shows whole years; Feb - 2017 is not among them, it now shows Jun - 1936");
  past.comStart->UserFocuses();
  EXPECT_EQ(ws.Hint(), "Start Smoking Date for Period");
}

TEST_F(Hints, TellBothDatesThatMoved) {
  EXPECT_EQ(DatesMoved(ws.Of(Side::Past), past.comStart->Text(), past.comStop->Text()), "");
  run.Click(*past.optFineDateStop);
  EXPECT_EQ(DatesMoved(ws.Of(Side::Past), "Feb - 2017", "Feb - 2018"),
            "The start list shows whole years; Feb - 2017 is not among them, it now shows Jun - 2016; "
            "the stop list shows single months; Feb - 2018 is not among them, it now shows Jun - 2026");
}

TEST_F(Hints, TellThatTheReasonableCostMoved) {
  SinWorkspace& coffee = run.Enter("Coffeeing");
  SideControls& c = coffee.Of(Side::Past);
  c.comSubCost->UserFocuses();
  const std::string now = c.comSubCost->Text();
  c.comSubCost->UserPicks(0);
  c.comSubCost->UserFocuses();
  EXPECT_EQ(coffee.Hint(), "The reasonable cost list holds the amounts below the price and now shows " + now);
}

// ---- Tips ----

TEST_F(Hints, GiveTheToolTipOfWhatIsPointedAtOrTheFirstSentenceOfItsBalloon) {
  ws.UserPointsAt(past.comStart);
  EXPECT_EQ(ws.Hint(), "Start Smoking Date for Period");
  ws.UserPointsAt(past.comInterestRate1);
  EXPECT_EQ(ws.Hint(),
            "Set the Average Rate of Return you feel you can obtain on money saved in financial institutions "
            "during the Period");
  // It has none of its own; its frame's is about it too.
  ws.UserPointsAt(past.quantity);
  EXPECT_EQ(
      ws.Hint(),
      "Set Parameters related to the frequency of use or cost per time the one inbibes in this particular "
      "Sin");
  ws.UserPointsAt(past.frmDaily);
  EXPECT_EQ(ws.Hint(), "Choose dates, amount and cost, then press Set Past Period 1 Parameters");
}

TEST_F(Hints, GiveTipsAlsoWhileBalloonsAreOff) {
  run.Click(ws.Get<Option>("optToolTipDisable"));
  past.comInflationRate1->UserFocuses();
  EXPECT_EQ(ws.Hint(), "Set the Inflation Rate during the Period");
}

// ---- Of other windows ----

TEST_F(Hints, TellWhereAReportWasSavedAndThatAPageIsOpen) {
  run.Press(ws, Side::Past);
  past.cmdAdvResultsSpd->UserClicks();
  Form& report = run.program.Spd();
  EXPECT_EQ(report.Hint(), "Print or save what is selected, or everything; Exit closes the report");
  run.platform.answers.files.push_back("/tmp/grid.txt");
  report.Get<Button>("cmdSaveAs").UserClicks();
  EXPECT_EQ(report.Hint(), "Saved in /tmp/grid.txt");
  EXPECT_EQ(ws.Hint(), "Saved in /tmp/grid.txt");
  report.Get<Button>("cmdPrint").UserClicks();
  EXPECT_EQ(ws.Hint(), "Printed; the page is finished by the next print or at exit");
  report.UserCloses();
  EXPECT_EQ(report.Hint(), "Use Exit to close \"Advanced Smoking Results - SpreadSheet Style\"");
  EXPECT_TRUE(report.Shown());
}

TEST_F(Hints, AskForNothingMoreWhereADialogWasCancelledAndTheOldNameHolds) {
  run.Press(ws, Side::Past);
  past.cmdAdvResultsDoc->UserClicks();
  Form& report = run.program.Doc();
  run.platform.answers.files = {"/tmp/first.txt", std::nullopt};
  report.Get<Button>("cmdSaveAs").UserClicks();
  report.Get<Button>("cmdSaveAs").UserClicks();
  EXPECT_EQ(ws.Hint(), "Saved in /tmp/first.txt");
}

}  // namespace
}  // namespace vicetoll
