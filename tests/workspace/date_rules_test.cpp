// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/date_rules.h"

#include "program_fixture.h"

namespace vicetoll {
namespace {

using Entries = std::vector<std::string>;

std::string Last(const DropDownList& list) { return list.Entry(list.Count() - 1); }

// ---- The fine rules ----

enum class Rule { Between, Start, Stop };

struct FineCase {
  const char* why;
  Rule rule;
  Side side;
  MonthAndYear now;
  const char* thisDate;
  const char* otherDate;
  const char* first;
  const char* last;
  int period = 1;
  const char* previousStop = "Jun - 1915";
};

constexpr MonthAndYear kJune{6, 2026};
constexpr Side kPast = Side::Past;
constexpr Side kFuture = Side::Future;

const FineCase kFineCases[] = {
    // Six months before and after.
    {"about a year", Rule::Between, kFuture, kJune, "Mar - 2040", "Mar - 2050", "Sep - 2039", "Sep - 2040"},
    {"about a year", Rule::Between, kPast, kJune, "Mar - 2000", "Mar - 2010", "Sep - 1999", "Sep - 2000"},
    {"into next year", Rule::Between, kFuture, kJune, "Sep - 2040", "Sep - 2050", "Mar - 2040", "Mar - 2041"},
    {"into next year", Rule::Between, kPast, kJune, "Sep - 2000", "Sep - 2010", "Mar - 2000", "Mar - 2001"},
    {"July is above six", Rule::Between, kPast, kJune, "Jul - 2000", "Jul - 2010", "Jan - 2000",
     "Jan - 2001"},
    {"June reaches 18 months ahead", Rule::Between, kFuture, kJune, "Jun - 2040", "Jun - 2050", "Dec - 2039",
     "Dec - 2041"},
    {"June stays in the year", Rule::Between, kPast, kJune, "Jun - 2000", "Jun - 2010", "Dec - 1999",
     "Dec - 2000"},
    // The other date of the period.
    {"stop is near", Rule::Between, kFuture, kJune, "Mar - 2040", "Aug - 2040", "Sep - 2039", "Aug - 2040"},
    {"stop is near", Rule::Between, kPast, kJune, "Mar - 2000", "Apr - 2000", "Sep - 1999", "Apr - 2000"},
    {"start is near", Rule::Between, kFuture, kJune, "Mar - 2040", "Oct - 2039", "Oct - 2039", "Sep - 2040"},
    {"start is near", Rule::Between, kPast, kJune, "Mar - 2000", "Feb - 2000", "Feb - 2000", "Sep - 2000"},
    {"six months are not near", Rule::Between, kPast, kJune, "Mar - 2000", "Sep - 1999", "Sep - 1999",
     "Sep - 2000"},
    {"six months are not near", Rule::Between, kFuture, kJune, "Jun - 2040", "Dec - 2040", "Dec - 2039",
     "Dec - 2041"},
    {"six months are not near", Rule::Between, kFuture, kJune, "Sep - 2026", "Mar - 2026", "Jul - 2026",
     "Mar - 2027"},
    // The present.
    {"not before next month", Rule::Between, kFuture, kJune, "Sep - 2026", "Sep - 2036", "Jul - 2026",
     "Mar - 2027"},
    {"the start comes before the present", Rule::Between, kFuture, kJune, "Aug - 2026", "Jun - 2026",
     "Jun - 2026", "Feb - 2027"},
    {"next year is not seen as near",
     Rule::Between,
     kFuture,
     {11, 2026},
     "Jan - 2027",
     "Jan - 2037",
     "Jul - 2026",
     "Jul - 2027"},
    {"not behind this month", Rule::Between, kPast, kJune, "Mar - 2026", "Mar - 2020", "Sep - 2025",
     "Jun - 2026"},
    {"last autumn is near in March",
     Rule::Between,
     kPast,
     {3, 2026},
     "Oct - 2025",
     "Oct - 2020",
     "Apr - 2025",
     "Mar - 2026"},
    {"September is far from March",
     Rule::Between,
     kPast,
     {3, 2026},
     "Sep - 2025",
     "Sep - 2020",
     "Mar - 2025",
     "Mar - 2026"},
    {"the stop comes before the present", Rule::Between, kPast, kJune, "Mar - 2026", "May - 2026",
     "Sep - 2025", "May - 2026"},
    // The previous period.
    {"behind the previous stop", Rule::Between, kFuture, kJune, "Mar - 2040", "Mar - 2050", "Feb - 2040",
     "Sep - 2040", 2, "Jan - 2040"},
    {"behind a stop in December", Rule::Between, kPast, kJune, "Mar - 2000", "Mar - 2010", "Jan - 2000",
     "Sep - 2000", 3, "Dec - 1999"},
    {"six months between", Rule::Between, kFuture, kJune, "Mar - 2040", "Mar - 2050", "Oct - 2039",
     "Sep - 2040", 2, "Sep - 2039"},
    {"seven months between", Rule::Between, kFuture, kJune, "Feb - 2040", "Feb - 2050", "Aug - 2039",
     "Aug - 2040", 2, "Jul - 2039"},
    {"period 1 has no previous one", Rule::Between, kFuture, kJune, "Mar - 2040", "Mar - 2050", "Sep - 2039",
     "Sep - 2040", 1, "Jan - 2040"},
    // Start and stop equal: the start list ends at the date, the stop list begins there.
    {"start ends at the date", Rule::Start, kFuture, kJune, "Mar - 2040", "", "Sep - 2039", "Mar - 2040"},
    {"start ends at the date", Rule::Start, kPast, kJune, "Sep - 2000", "", "Mar - 2000", "Sep - 2000"},
    {"start not before next month", Rule::Start, kFuture, kJune, "Sep - 2026", "", "Jul - 2026",
     "Sep - 2026"},
    {"the past start knows no present", Rule::Start, kPast, kJune, "Mar - 2026", "", "Sep - 2025",
     "Mar - 2026"},
    {"start behind the previous stop", Rule::Start, kPast, kJune, "Mar - 2000", "", "Feb - 2000",
     "Mar - 2000", 2, "Jan - 2000"},
    {"start far behind it", Rule::Start, kPast, kJune, "Feb - 2000", "", "Aug - 1999", "Feb - 2000", 2,
     "Jul - 1999"},
    {"seven months before it", Rule::Start, kFuture, kJune, "Jan - 2040", "", "Jul - 2039", "Jan - 2040", 2,
     "Aug - 2040"},
    {"stop begins at the date", Rule::Stop, kFuture, kJune, "Mar - 2040", "", "Mar - 2040", "Sep - 2040"},
    {"stop reaches 18 months", Rule::Stop, kFuture, kJune, "Jun - 2040", "", "Jun - 2040", "Dec - 2041"},
    {"stop reaches six months", Rule::Stop, kPast, kJune, "Jun - 2000", "", "Jun - 2000", "Dec - 2000"},
    {"stop not behind this month", Rule::Stop, kPast, kJune, "Mar - 2026", "", "Mar - 2026", "Jun - 2026"},
    {"the future stop knows no present", Rule::Stop, kFuture, kJune, "Jul - 2026", "", "Jul - 2026",
     "Jan - 2027"},
};

TEST(FineDates, OfferAboutAYearAsFarAsAllowed) {
  for (const FineCase& fine : kFineCases) {
    SCOPED_TRACE(testing::Message() << fine.why << ": " << fine.thisDate << ' '
                                    << OperationSuffix(fine.side));
    RunningProgram run(fine.now);
    WorkspaceSide& side = run.Smoking().Of(fine.side);
    side.state.CurrentPeriod = fine.period;
    DropDownList& list = *side.comStart;
    list.SetText(fine.thisDate);
    switch (fine.rule) {
      case Rule::Between:
        FineBetween(side, list, fine.thisDate, fine.otherDate, fine.previousStop);
        break;
      case Rule::Start:
        FineStart(side, list, fine.thisDate, fine.previousStop);
        break;
      case Rule::Stop:
        FineStop(side, list, fine.thisDate);
        break;
    }
    EXPECT_EQ(list.Entry(0), fine.first);
    EXPECT_EQ(Last(list), fine.last);
    EXPECT_EQ(list.Count(), MonthsInclusive(fine.first, fine.last));
    EXPECT_EQ(list.Text(), fine.thisDate);
  }
}

// ---- What the lists do on the screen ----

class DateLists : public EverySideOf {
 protected:
  DateLists() : EverySideOf("Smoking", {1, 2026}) {}

  void Put(const char* start, const char* stop) {
    c.comStart->SetText(start);
    c.comStop->SetText(stop);
  }
  void Focus(DropDownList* list) { EXPECT_EQ(list->UserFocuses(), UserOutcome::Done); }

  // In one text: "Jan - 2010..Jan - 2020 x 11: Jan - 2012".
  static std::string Summary(const DropDownList& list) {
    return list.Entry(0) + ".." + Last(list) + " x " + std::to_string(list.Count()) + ": " + list.Text();
  }
};
INSTANTIATE_TEST_SUITE_P(, DateLists, testing::ValuesIn(kSides), NameOfSide);

TEST_P(DateLists, CoarseListsBoundEachOther) {
  const bool past = side == Side::Past;
  past ? Put("Jan - 2010", "Jan - 2020") : Put("Feb - 2030", "Feb - 2040");
  Focus(c.comStart);
  EXPECT_EQ(Summary(*c.comStart),
            past ? "Jan - 1936..Jan - 2020 x 85: Jan - 2010" : "Feb - 2026..Feb - 2040 x 15: Feb - 2030");
  EXPECT_EQ(Summary(*c.comStop),
            past ? "Jan - 2010..Jan - 2026 x 17: Jan - 2020" : "Feb - 2030..Feb - 2101 x 72: Feb - 2040");
  // From the other list the same, but each list now ends where it did.
  Focus(c.comStop);
  EXPECT_EQ(Summary(*c.comStart),
            past ? "Jan - 1936..Jan - 2020 x 85: Jan - 2010" : "Feb - 2026..Feb - 2040 x 15: Feb - 2030");
  EXPECT_EQ(Summary(*c.comStop),
            past ? "Jan - 2010..Jan - 2026 x 17: Jan - 2020" : "Feb - 2030..Feb - 2101 x 72: Feb - 2040");
}

// The list with the focus takes its far end from the store, the other one keeps the one it has.
TEST_P(DateLists, TheFarEndsComeFromTheStoreOrTheList) {
  Put("Feb - 2030", "Feb - 2040");
  PeriodRecord& record = Record(1);
  record.StartListFirst = "Feb - 2028";
  record.StopListLast = "Feb - 2050";
  const std::string firstStart = c.comStart->Entry(0), lastStop = Last(*c.comStop);
  Focus(c.comStart);
  EXPECT_EQ(c.comStart->Entry(0), "Feb - 2028");
  EXPECT_EQ(Last(*c.comStop), lastStop);
  record.StartListFirst = firstStart;
  Focus(c.comStop);
  EXPECT_EQ(c.comStart->Entry(0), "Feb - 2028");
  EXPECT_EQ(Last(*c.comStop), "Feb - 2050");
}

// In a coarse list a month may be no entry: the start falls to the first one, the stop to the last.
TEST_P(DateLists, WhatIsNoEntryFallsToTheEndOfItsList) {
  const bool past = side == Side::Past;
  for (DropDownList* list : {c.comStart, c.comStop}) {
    past ? Put("Mar - 2010", "Jun - 2020") : Put("Mar - 2030", "Jun - 2040");
    const std::string first = c.comStart->Entry(0), last = Last(*c.comStop);
    Focus(list);
    EXPECT_EQ(c.comStart->Text(), first);
    EXPECT_EQ(c.comStop->Text(), last);
  }
}

TEST_P(DateLists, EqualEndsLeaveOneEntry) {
  const std::string first = c.comStart->Entry(0);
  Put(first.c_str(), first.c_str());
  Focus(c.comStart);
  EXPECT_EQ(c.comStart->Entries().All(), Entries{first});
}

TEST_P(DateLists, AnOptionAloneChangesNothing) {
  const States before = StatesOf(ws);
  run.Click(*c.optFineDateStart);
  run.Click(*c.optFineDateStop);
  EXPECT_EQ(Changes(before, ws).size(), 4u);  // the four options
  Focus(c.comStart);
  EXPECT_EQ(c.comStart->Entry(1), MonthAfter(c.comStart->Entry(0)));
  EXPECT_EQ(c.comStop->Entry(1), MonthAfter(c.comStop->Entry(0)));
}

TEST_P(DateLists, EqualDatesInFineListsMeet) {
  const bool past = side == Side::Past;
  const std::string date = past ? "Jun - 2010" : "Jun - 2040";
  run.Click(*c.optFineDateStart);
  run.Click(*c.optFineDateStop);
  for (DropDownList* list : {c.comStart, c.comStop}) {
    Put(date.c_str(), date.c_str());
    Focus(list);
    EXPECT_EQ(Summary(*c.comStart), (past ? "Dec - 2009.." : "Dec - 2039..") + date + " x 7: " + date);
    EXPECT_EQ(Summary(*c.comStop), date + (past ? "..Dec - 2010 x 7: " : "..Dec - 2041 x 19: ") + date);
  }
}

TEST_P(DateLists, EachListHasItsOwnResolution) {
  run.Click(*c.optFineDateStop);
  Put("Jun - 2010", "Jun - 2020");
  for (DropDownList* list : {c.comStart, c.comStop}) {
    Focus(list);
    EXPECT_EQ(Last(*c.comStart), "Jun - 2020");
    EXPECT_EQ(c.comStop->Entry(0), "Dec - 2019");
    EXPECT_EQ(c.comStop->Text(), "Jun - 2020");
  }
}

// A period's fine start list keeps behind the stop of the period before it.
TEST_P(DateLists, FineListsOfALaterPeriodKeepBehindThePreviousStop) {
  run.Commit(ws, side, "Jan - 2008", "Jan - 2010");
  run.GoTo(ws, side, 2);
  Put("Mar - 2010", "Mar - 2020");
  run.Click(*c.optFineDateStart);
  Focus(c.comStart);
  EXPECT_EQ(c.comStart->Entry(0), "Feb - 2010");
}

TEST_P(DateLists, RebuildingKeepsTabsAndButtonOpen) {
  for (DropDownList* list : {c.comStart, c.comStop}) {
    c.cmdSetPeriodParams->SetEnabled(false);
    Focus(list);
    EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
    EXPECT_TRUE(ws.SSTab_PastFutureSwitch->Enabled());
  }
}

TEST_P(DateLists, TabsAndButtonAreShutWhileTheListsAreRebuilt) {
  // Seen from inside: a listener that looks whenever the start list changes.
  struct Watch : FormListener {
    Watch(SinWorkspace& workspace, Side watched) : ws(workspace), side(watched) {}
    void ControlChanged(Control& control) override {
      if (&control != ws.Of(side).comStart) return;
      ++looks;
      open = open || ws.Of(side).cmdSetPeriodParams->Enabled() || ws.SSTab_PastFutureSwitch->Enabled();
    }
    void FormChanged(Form&) override {}
    SinWorkspace& ws;
    Side side;
    int looks = 0;
    bool open = false;
  } watch(ws, side);
  ws.SetListener(&watch);
  Focus(c.comStart);
  ws.SetListener(nullptr);
  EXPECT_GT(watch.looks, 0);
  EXPECT_FALSE(watch.open);
}

// ---- Recovery ----

constexpr const char* kRecovery =
    "A minor error occurred due to a bug\r\n"
    "The Date Listboxes will be reset to default values\r\n"
    "Manually reset dates and proceed or Exit and Restart Program1";

TEST_P(DateLists, AFaultShowsAMessageAndResetsTheDates) {
  const bool past = side == Side::Past;
  for (DropDownList* list : {c.comStart, c.comStop}) {
    run.platform.messages.clear();
    c.cmdSetPeriodParams->SetEnabled(true);
    Put("some day", past ? "Jan - 2020" : "Feb - 2040");
    Focus(list);
    ASSERT_EQ(run.platform.messages.size(), 1u);
    EXPECT_EQ(run.platform.messages[0].title, "");
    EXPECT_EQ(run.platform.messages[0].text, kRecovery);
    EXPECT_EQ(run.platform.messages[0].buttons, MessageButtons::Ok);
    EXPECT_FALSE(c.cmdSetPeriodParams->Enabled());
    EXPECT_TRUE(ws.SSTab_PastFutureSwitch->Enabled());
    EXPECT_EQ(Summary(*c.comStart),
              past ? "Jan - 1936..Jan - 2026 x 91: Jan - 1936" : "Feb - 2026..Feb - 2111 x 86: Feb - 2026");
    EXPECT_EQ(Summary(*c.comStop),
              past ? "Jan - 1936..Jan - 2026 x 91: Jan - 2026" : "Feb - 2026..Feb - 2111 x 86: Feb - 2111");
  }
  // The next focus works again, and opens the button.
  Focus(c.comStart);
  EXPECT_EQ(run.platform.messages.size(), 1u);
  EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
}

TEST_P(DateLists, AnEmptyListIsAFaultToo) {
  c.comStop->Clear();
  Focus(c.comStart);
  EXPECT_EQ(run.platform.messages.size(), 1u);
}

// The reset leaves the store; the options of the periods close, and the current period of the future side
// goes back to 1 whichever side is reset.
TEST_P(DateLists, AResetLeavesStoreAndPastPeriod) {
  run.Commit(ws, side, "Jan - 2008", "Jan - 2010");
  run.GoTo(ws, side, 2);
  run.Commit(ws, side, "Feb - 2010", "Feb - 2012");
  run.Click(c.rbnDisabledPeriod(1));
  ws.Of(Side::Future).state.CurrentPeriod = 2;
  ws.Of(Side::Past).state.CurrentPeriod = 2;
  ResetDateLists(ws.Of(side));
  EXPECT_EQ(ws.Of(Side::Future).state.CurrentPeriod, 1);
  EXPECT_EQ(ws.Of(Side::Past).state.CurrentPeriod, 2);
  EXPECT_TRUE(c.optFineDateStart->Value() && c.optFineDateStop->Value());
  EXPECT_FALSE(c.optCourseDateStart->Value() || c.optCourseDateStop->Value());
  for (int p = 1; p <= 4; ++p) {
    EXPECT_EQ(c.optTimePeriod(p).Enabled(), p == 1);
    EXPECT_EQ(c.optTimePeriod(p).Value(), p == 1);
    EXPECT_TRUE(c.rbnEnabledPeriod(p).Value());
    EXPECT_FALSE(c.rbnDisabledPeriod(p).Value());
  }
  EXPECT_TRUE(Record(2).PeriodSet);
  EXPECT_EQ(Record(2).StopLabel, "Feb - 2012");
}

// ---- The next period ----

TEST_P(DateLists, TheNextPeriodBeginsOneMonthLongBehindThePreviousOne) {
  for (const auto& [stop, next] :
       {std::pair("Mar - 2020", "Apr - 2020"), std::pair("Dec - 2020", "Jan - 2021")}) {
    Record(1).StopLabel = stop;
    PrepareNextPeriodDates(ws.Of(side), 2, ws.Of(side).Index());
    for (const DropDownList* list : {c.comStart, c.comStop}) {
      EXPECT_EQ(list->Text(), next);
      EXPECT_EQ(list->Position(), 0);
      EXPECT_EQ(Last(*list), side == Side::Past ? "Jan - 2026" : "Feb - 2101");
    }
  }
}

// ---- December ----

// The month after December is the 13th of the same year: its January, eleven months back.
TEST(DecemberDates, BeginTheFutureInTheJanuaryBehind) {
  RunningProgram run({12, 2026});
  SinWorkspace& ws = run.Enter("Smoking", Side::Future);
  SideControls& c = ws.Of(Side::Future);
  EXPECT_EQ(c.comStart->Text(), "Jan - 2026");
  FineStart(ws.Of(Side::Future), *c.comStart, "Mar - 2026", "Jun - 1915");
  EXPECT_EQ(c.comStart->Entry(0), "Jan - 2026");
  EXPECT_EQ(run.platform.messages.size(), 0u);
}

}  // namespace
}  // namespace vicetoll
