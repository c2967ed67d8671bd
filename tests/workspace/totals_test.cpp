// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/totals.h"

#include "calendar/number_text.h"
#include "program_fixture.h"

namespace vicetoll {
namespace {

std::string Last(const DropDownList& list) { return list.Entry(list.Count() - 1); }

// Gambling with plain figures: so much in each month, at rates that are told.
class TotalTab : public testing::Test {
 protected:
  RunningProgram run;
  SinWorkspace& ws = run.Enter("Gambling");
  SideControls& past = ws.Of(Side::Past);
  SideControls& future = ws.Of(Side::Future);

  void Commit(Side side, int period, const char* start, const char* stop, const char* cost = "$300",
              const char* interest = "0%") {
    run.OpenTab(ws, side == Side::Past ? kPastTab : kFutureTab);
    if (ws.Of(side).state.CurrentPeriod != period) run.GoTo(ws, side, period);
    run.PickMonthly(ws, side, cost, interest);
    run.Commit(ws, side, start, stop);
  }

  void Open() { run.OpenTab(ws, kTotalTab); }
  void Update() { ASSERT_EQ(ws.cmdCumulativeFutureDateTot->UserClicks(), UserOutcome::Done); }

  void ExpectTotals(const char* cost, const char* balance) {
    EXPECT_EQ(ws.txtResultsTotalSummaryTot->Text(), cost);
    EXPECT_EQ(ws.txtCumulativeResultsTotalSummaryTot->Text(), balance);
  }

  void ExpectNothing() {
    ExpectTotals("n/a", "n/a");
    EXPECT_EQ(ws.txtCumulativeFutureDateTot->Text(), "n/a");
    for (const Control* control : std::initializer_list<Control*>{
             ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot, ws.txtCumulativeFutureDateTot,
             ws.txtCumulativeResultsTotalSummaryTot, ws.comCumulativeFutureDateTot,
             ws.cmdAdvResultsDocSummaryTot, ws.cmdAdvResultsSpdSummaryTot})
      EXPECT_FALSE(control->Enabled()) << control->FullName();
  }

  const DropDownList& Dates() { return *ws.comCumulativeFutureDateTot; }
};

// ---- The four ways ----

TEST_F(TotalTab, NothingAtAllIsNotAvailable) {
  Open();
  ExpectNothing();
  EXPECT_EQ(past.txtResultsTotal->Text(), "0");
  EXPECT_EQ(future.txtResultsTotal->Text(), "0");
}

// Two months of 300; its stop is where the date list begins.
TEST_F(TotalTab, OneFuturePeriodStandsByItself) {
  Commit(Side::Future, 1, "Aug - 2026", "Sep - 2026", "$300", "12%");
  Open();
  ExpectTotals("$600", "$609");  // 303, then 609.03
  EXPECT_EQ(Dates().Entry(0), "Sep - 2026");
  EXPECT_EQ(Dates().Text(), "Jun - 2031");
  EXPECT_EQ(Last(Dates()), "Jun - 2131");
  for (const Control* control : std::initializer_list<Control*>{
           ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot, ws.txtCumulativeFutureDateTot,
           ws.txtCumulativeResultsTotalSummaryTot, ws.comCumulativeFutureDateTot,
           ws.cmdAdvResultsDocSummaryTot, ws.cmdAdvResultsSpdSummaryTot})
    EXPECT_TRUE(control->Enabled()) << control->FullName();
  EXPECT_FALSE(ws.cmdCumulativeFutureDateTot->Enabled());
}

TEST_F(TotalTab, ThePastByItselfLooksFiftyYearsFarther) {
  Commit(Side::Past, 1, "Feb - 2010", "Mar - 2010", "$300", "12%");
  Open();
  ExpectTotals("$600", "$609");
  EXPECT_EQ(Dates().Entry(0), "Mar - 2010");
  EXPECT_EQ(Dates().Text(), "Jan - 2015");
  EXPECT_EQ(Last(Dates()), "Jan - 2165");
}

// The past's 609 grow through July and August at 1% (621.24), and the future goes on from there.
TEST_F(TotalTab, ThePastIsCarriedIntoTheFuture) {
  Commit(Side::Past, 1, "May - 2026", "Jun - 2026", "$300", "12%");
  Commit(Side::Future, 1, "Sep - 2026", "Sep - 2026", "$150");
  Open();
  ExpectTotals("$750", "$771");
  EXPECT_EQ(Dates().Entry(0), "Sep - 2026");
  EXPECT_EQ(Last(Dates()), "Jun - 2131");
  // The future side's own boxes begin with nothing.
  EXPECT_EQ(future.txtCumulativeResultsPeriod(1).Text(), "$150");
}

TEST_F(TotalTab, AdjacentSidesLeaveNoGap) {
  Commit(Side::Past, 1, "May - 2026", "Jun - 2026", "$300", "12%");
  Commit(Side::Future, 1, "Jul - 2026", "Jul - 2026", "$150");
  Open();
  ExpectTotals("$750", "$759");
}

TEST_F(TotalTab, TheGapEndsAtTheFirstCountedFuturePeriod) {
  Commit(Side::Past, 1, "Jun - 2026", "Jun - 2026", "$300", "12%");
  Commit(Side::Future, 1, "Aug - 2026", "Aug - 2026", "$150");
  Commit(Side::Future, 2, "Sep - 2026", "Sep - 2026", "$150");
  Commit(Side::Future, 3, "Nov - 2026", "Nov - 2026", "$300");
  run.Click(future.rbnDisabledPeriod(1));
  run.Click(future.rbnDisabledPeriod(2));
  Open();
  // 303 over July to October are 315.30, and so 315 when a later period opens with them.
  ExpectTotals("$600", "$615");
}

TEST_F(TotalTab, TheLastCountedPastPeriodIsCarriedOver) {
  Commit(Side::Past, 1, "Jan - 2020", "Jan - 2020", "$300", "12%");
  Commit(Side::Past, 2, "Apr - 2026", "Apr - 2026", "$150");
  run.Click(past.rbnDisabledPeriod(2));
  Commit(Side::Future, 1, "Jul - 2026", "Jul - 2026", "$150");
  Open();
  // 303 from January 2020 to July 2026: 77 months between at 1%.
  double balance = 303;
  for (int month = 0; month < 77; ++month) balance *= 1.01;
  ExpectTotals("$450", FormatNumber(balance + 150, "$#,##0").c_str());
}

TEST_F(TotalTab, EverythingDisabledIsNotAvailable) {
  Commit(Side::Past, 1, "May - 2026", "Jun - 2026");
  Commit(Side::Future, 1, "Jul - 2026", "Jul - 2026");
  run.Click(future.rbnDisabledPeriod(1));
  run.OpenTab(ws, kPastTab);
  run.Click(past.rbnDisabledPeriod(1));
  Open();
  ExpectNothing();
}

// A press counts a disabled first period in the total, though nothing of the side counts.
// It is added to the sum of the costs as it stands on the screen, but it takes no way.
TEST_F(TotalTab, ATotalOfWhichNothingCountsTakesNoWay) {
  Commit(Side::Past, 1, "May - 2026", "Jun - 2026");
  run.Click(past.rbnDisabledPeriod(1));
  run.Press(ws, Side::Past);
  ASSERT_EQ(past.txtResultsTotal->Text(), "$600");
  Open();
  ExpectNothing();
  Commit(Side::Future, 1, "Jul - 2026", "Jul - 2026");
  Open();
  ExpectTotals("$900", "$300");
}

// "$0" is not "0", but it is a zero total.
TEST_F(TotalTab, ACountedPeriodThatCostsNothingIsNotAvailable) {
  Commit(Side::Past, 1, "May - 2026", "Jun - 2026", "$0");
  ASSERT_EQ(past.txtResultsTotal->Text(), "$0");
  Open();
  ExpectNothing();
  UpdateFutureDateTotal(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index());
  EXPECT_EQ(ws.Of(Side::Past).state.BeginManualDate, "Jun - 2026");
  EXPECT_EQ(ws.Of(Side::Future).state.BeginManualDate, "");
}

// ---- The date list ----

TEST_F(TotalTab, TheDefaultDateLiesFiveYearsOnInJanuaryOrJune) {
  const std::pair<const char*, const char*> kDates[] = {{"Apr - 2030", "Jan - 2035"},
                                                        {"May - 2030", "Jan - 2035"},
                                                        {"Jun - 2030", "Jun - 2035"},
                                                        {"Dec - 2030", "Jun - 2035"},
                                                        {"Jan - 2030", "Jan - 2035"}};
  for (const auto& [stop, date] : kDates) {
    Commit(Side::Future, 1, "Jul - 2026", stop);
    Open();
    EXPECT_EQ(Dates().Text(), date);
  }
}

// Monthly for about five years, then half-yearly for a hundred.
TEST_F(TotalTab, TheDatesGoMonthlyAndThenHalfYearly) {
  Commit(Side::Future, 1, "Jul - 2026", "Sep - 2026");
  Open();
  const int joint = Dates().Find("Jun - 2031");
  EXPECT_EQ(joint, MonthsBetween("Sep - 2026", "Jun - 2031"));
  EXPECT_EQ(Dates().Position(), joint);
  EXPECT_EQ(Dates().Count(), joint + 1 + 200);
  for (int i = 1; i < Dates().Count(); ++i)
    ASSERT_EQ(MonthsBetween(Dates().Entry(i - 1), Dates().Entry(i)), i <= joint ? 1 : 6);
}

// ---- The value at the chosen date ----

TEST_F(TotalTab, TheChosenDateCountsWhenTheButtonIsPressed) {
  Commit(Side::Future, 1, "Jul - 2026", "Jul - 2026", "$300");
  Open();
  const std::string before = ws.txtCumulativeFutureDateTot->Text();
  run.Pick(*ws.comInterestRateFutureDateTot, "12%");
  run.Pick(*ws.comInflationRateFutureDateTot, "0%");
  run.Pick(*ws.comCumulativeFutureDateTot, "Oct - 2026");
  EXPECT_EQ(ws.txtCumulativeFutureDateTot->Text(), before);
  EXPECT_TRUE(ws.cmdCumulativeFutureDateTot->Enabled());
  const int entries = Dates().Count();
  Update();
  EXPECT_EQ(ws.txtCumulativeFutureDateTot->Text(), "$306");  // August and September: 300 * 1.0201
  EXPECT_FALSE(ws.cmdCumulativeFutureDateTot->Enabled());
  EXPECT_EQ(Dates().Text(), "Oct - 2026");
  EXPECT_EQ(Dates().Count(), entries);
  // The next date starts from the same month again.
  run.Pick(*ws.comCumulativeFutureDateTot, "Aug - 2026");
  Update();
  EXPECT_EQ(ws.txtCumulativeFutureDateTot->Text(), "$300");
}

TEST_F(TotalTab, OpeningTheTabEvaluatesAtTheDefaultDate) {
  Commit(Side::Future, 1, "Jul - 2026", "Jul - 2026", "$300");
  Open();
  // 5% less 3% from August 2026 to May 2031: 58 months.
  double value = 300;
  for (int month = 0; month < 58; ++month) value *= 1 + 2 / 1200.0;
  EXPECT_EQ(ws.txtCumulativeFutureDateTot->Text(), FormatNumber(value, "$#,##0"));
}

TEST_F(TotalTab, TheAnchorIsThatOfTheFutureWhereItCounts) {
  Commit(Side::Past, 1, "May - 2026", "Jun - 2026");
  Open();
  ws.comCumulativeFutureDateTot->UserFocuses();
  Update();
  EXPECT_EQ(ws.Of(Side::Past).state.BeginManualDate, "Jun - 2026");
  Commit(Side::Future, 1, "Aug - 2026", "Sep - 2026");
  Commit(Side::Future, 2, "Oct - 2026", "Nov - 2026");
  Open();
  run.Pick(*ws.comInterestRateFutureDateTot, "12%");
  run.Pick(*ws.comInflationRateFutureDateTot, "0%");
  run.Pick(*ws.comCumulativeFutureDateTot, "Jan - 2027");
  Update();
  EXPECT_EQ(ws.Of(Side::Future).state.BeginManualDate, "Nov - 2026");
  EXPECT_EQ(ws.txtCumulativeFutureDateTot->Text(), "$1,818");  // 1,800 and one month, December
}

// The sum of the costs keeps what it had.
TEST_F(TotalTab, AnUpdateOfNothingLeavesTheSumOfTheCosts) {
  Commit(Side::Future, 1, "Jul - 2026", "Jul - 2026");
  Open();
  ws.Of(Side::Future).Record(1).PeriodEnabled = false;
  ws.comCumulativeFutureDateTot->UserFocuses();
  Update();
  ExpectTotals("$300", "n/a");
  EXPECT_EQ(ws.txtCumulativeFutureDateTot->Text(), "n/a");
  for (const Control* control :
       std::initializer_list<Control*>{ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot,
                                       ws.txtCumulativeFutureDateTot, ws.txtCumulativeResultsTotalSummaryTot,
                                       ws.comCumulativeFutureDateTot, ws.cmdCumulativeFutureDateTot})
    EXPECT_FALSE(control->Enabled()) << control->FullName();
}

TEST_F(TotalTab, FocusOnItsListsOpensItsButton) {
  Commit(Side::Future, 1, "Jul - 2026", "Jul - 2026");
  Open();
  for (DropDownList* list :
       {ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot, ws.comCumulativeFutureDateTot}) {
    ws.cmdCumulativeFutureDateTot->SetEnabled(false);
    future.cmdSetPeriodParams->SetEnabled(false);
    past.cmdSetPeriodParams->SetEnabled(false);
    ASSERT_EQ(list->UserFocuses(), UserOutcome::Done);
    EXPECT_TRUE(ws.cmdCumulativeFutureDateTot->Enabled());
    EXPECT_TRUE(future.cmdSetPeriodParams->Enabled());
    EXPECT_FALSE(past.cmdSetPeriodParams->Enabled());
  }
}

// ---- The rate lists ----

TEST_F(TotalTab, TheRatesGrowAtEveryChangeOfTab) {
  EXPECT_EQ(ws.comInterestRateFutureDateTot->Text(), "5%");
  EXPECT_EQ(ws.comInflationRateFutureDateTot->Text(), "3%");
  EXPECT_EQ(ws.comInterestRateFutureDateTot->Count(), 0);
  const Tab kTabs[] = {kTotalTab, kPastTab, kTotalTab, kFutureTab};
  int changes = 0;
  for (const Tab tab : kTabs) {
    run.OpenTab(ws, tab);
    ++changes;
    for (const DropDownList* list : {ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot}) {
      EXPECT_EQ(list->Count(), 101 * changes);
      EXPECT_EQ(list->Entry(0), "0%");
      EXPECT_EQ(Last(*list), "100%");
    }
    run.OpenTab(ws, tab);  // no change, no growth
    EXPECT_EQ(ws.comInterestRateFutureDateTot->Count(), 101 * changes);
  }
  EXPECT_EQ(ws.comInterestRateFutureDateTot->Text(), "5%");
  EXPECT_EQ(ws.comInterestRateFutureDateTot->Position(), 5);
  EXPECT_EQ(ws.comInflationRateFutureDateTot->Text(), "3%");
}

TEST_F(TotalTab, TheGrownRatesAreHeldOnce) {
  for (int i = 0; i < 1500; ++i)
    for (const Tab tab : {kTotalTab, kPastTab}) run.OpenTab(ws, tab);
  for (const DropDownList* list : {ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot}) {
    EXPECT_EQ(list->Count(), 3000 * 101);
    EXPECT_EQ(list->Entries().HeldTexts(), 101);
    EXPECT_EQ(Last(*list), "100%");
  }
}

// ---- What the tab shows of the sides ----

TEST_F(TotalTab, ShowsTheDatesOfWhatCounts) {
  Commit(Side::Past, 1, "Jan - 2020", "Feb - 2020");
  Commit(Side::Past, 2, "May - 2020", "Jun - 2020");
  Commit(Side::Future, 1, "Aug - 2026", "Sep - 2026");
  run.OpenTab(ws, kPastTab);
  run.Click(past.rbnDisabledPeriod(1));
  Open();
  for (const Side side : kSides) {
    for (int p = 1; p <= 4; ++p) {
      const bool counts = side == Side::Past ? p == 2 : p == 1;
      const SideControls& c = ws.Of(side);
      for (const Label* label :
           {&c.lblFirstDate(p), &c.lblLastDate(p), &ws.lblTo(side == Side::Past ? p : p + 4)})
        EXPECT_EQ(label->Visible(), counts) << label->FullName();
      if (!counts) continue;
      EXPECT_EQ(c.lblFirstDate(p).Caption(), ws.Of(side).Record(p).StartLabel);
      EXPECT_EQ(c.lblLastDate(p).Caption(), ws.Of(side).Record(p).StopLabel);
    }
  }
}

TEST_F(TotalTab, CopiesTheBoxesOfTheSides) {
  Commit(Side::Past, 1, "Jan - 2020", "Feb - 2020");
  Commit(Side::Past, 2, "May - 2020", "Jun - 2020");
  Commit(Side::Future, 1, "Aug - 2026", "Sep - 2026", "$600");
  run.OpenTab(ws, kPastTab);
  run.Click(past.rbnDisabledPeriod(1));
  Open();
  for (const SideControls* c : {&past, &future}) {
    for (const auto* boxes : {&c->txtResultsPeriod, &c->txtCumulativeResultsPeriod}) {
      for (int p = 1; p <= 4; ++p) {
        EXPECT_EQ((*boxes)(p + 4).Text(), (*boxes)(p).Text());
        EXPECT_EQ((*boxes)(p + 4).Visible(), (*boxes)(p).Visible());
        EXPECT_EQ((*boxes)(p + 4).Enabled(), (*boxes)(p).Enabled());
      }
    }
    EXPECT_EQ(c->txtResultsTotalSummary->Text(), c->txtResultsTotal->Text());
  }
  EXPECT_EQ(past.txtResultsTotalSummary->Text(), "$600");
  EXPECT_EQ(future.txtResultsTotalSummary->Text(), "$1,200");
}

TEST_F(TotalTab, TheSummariesOfAnEmptySideAreCopiedBeforeItBecomesZero) {
  Open();
  EXPECT_EQ(past.txtResultsTotalSummary->Text(), "");
  run.OpenTab(ws, kPastTab);
  Open();
  EXPECT_EQ(past.txtResultsTotalSummary->Text(), "0");
}

// ---- The chain of a side ----

TEST_F(TotalTab, APeriodBehindADisabledOneOpensFromTheOneBefore) {
  for (const Side side : kSides) {
    SideControls& c = ws.Of(side);
    Commit(side, 1, "Jan - 2020", "Jan - 2020", "$300", "12%");  // 303
    Commit(side, 2, "Mar - 2020", "Mar - 2020", "$300", "60%");
    Commit(side, 3, "May - 2020", "May - 2020", "$150");
    run.Click(c.rbnDisabledPeriod(2));
    EXPECT_EQ(c.txtCumulativeResultsPeriod(3).Text(), "$462");  // 303 * 1.01^3 = 312.18, and 150
    EXPECT_EQ(c.txtResultsTotal->Text(), "$450");
  }
}

TEST_F(TotalTab, OnlyTheThirdPeriodOpensWithNothing) {
  Commit(Side::Future, 1, "Aug - 2026", "Aug - 2026");
  Commit(Side::Future, 2, "Sep - 2026", "Sep - 2026");
  Commit(Side::Future, 3, "Oct - 2026", "Oct - 2026", "$150");
  run.Click(future.rbnDisabledPeriod(1));
  run.Click(future.rbnDisabledPeriod(2));
  EXPECT_EQ(future.txtCumulativeResultsPeriod(3).Text(), "$150");
  Open();
  ExpectTotals("$150", "$150");
}

TEST_F(TotalTab, AFutureChainFromAnOpening) {
  Commit(Side::Future, 1, "Aug - 2026", "Aug - 2026");
  const SideIndex side = ws.Of(Side::Future).Index();
  EXPECT_EQ(CumulativeChainFuture(ws, side, "1000.4"), "$1,300");
  run.Click(future.rbnDisabledPeriod(1));
  EXPECT_EQ(CumulativeChainFuture(ws, side, "1000.4"), "");
}

}  // namespace
}  // namespace vicetoll
