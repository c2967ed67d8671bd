// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/loading.h"

#include "default_texts.h"
#include "program_fixture.h"
#include "workspace/parameters.h"

namespace vicetoll {
namespace {

class Loading : public EverySinAndSide {
 protected:
  std::vector<DropDownList*> ValueLists() const {
    std::vector<DropDownList*> lists;
    for (DropDownList* list : {c.quantity, c.comPercentIncrease, c.comInterestRate1, c.comInflationRate1,
                               c.comInitialCost, c.comFinalCost, c.comSubCost})
      if (list != nullptr) lists.push_back(list);
    if (HasListPerUnit(sin.costClass)) lists.push_back(c.comCigsPerDay);
    return lists;
  }
};
INSTANTIATE_TEST_SUITE_P(, Loading, AllSinsAndSides(), NameOfSinAndSide);

TEST_P(Loading, ShowsTheDefaults) {
  const Defaults& expected = kDefaults[position];
  ASSERT_EQ(sin.key, expected.key);
  EXPECT_EQ(c.quantity->Text(), expected.quantity);
  EXPECT_EQ(c.comInitialCost == nullptr ? "" : c.comInitialCost->Text(), expected.initialCost);
  DropDownList* second = c.comFinalCost != nullptr ? c.comFinalCost : c.comSubCost;
  EXPECT_EQ(second == nullptr ? "" : second->Text(), expected.secondCost);
  EXPECT_EQ(c.comPercentIncrease->Text(), expected.percent);
  EXPECT_EQ(c.comInterestRate1->Text(), "5%");
  EXPECT_EQ(c.comInflationRate1->Text(), "3%");
  if (HasListPerUnit(sin.costClass)) {
    EXPECT_EQ(c.comCigsPerDay->Text(), "20");
  }
}

TEST_P(Loading, StoresTheDefaultsOfThePeriods) {
  const Defaults& expected = kDefaults[position];
  for (int p = 1; p <= 4; ++p) {
    const PeriodRecord& record = Record(p);
    EXPECT_TRUE(record.PeriodFresh && record.PeriodEnabled);
    EXPECT_FALSE(record.PeriodSet);
    EXPECT_EQ(record.PeriodSelected, p == 1);
    EXPECT_EQ(record.QuantityListIndex, c.quantity->Position());
    EXPECT_EQ(record.InitialCostText, expected.initialCost);
    if (HasCostModes(sin.costClass)) {
      EXPECT_EQ(record.FinalCostText, expected.secondCost);
    }
    if (c.comSubCost != nullptr) {
      EXPECT_EQ(record.ReasonableCostText, expected.secondCost);
      EXPECT_EQ(record.FinalCostText, "N/A");
    }
    EXPECT_TRUE(record.CostModeFlag);
    // Period 1 is stored from the screen, and four sins start with Per Month.
    EXPECT_EQ(record.QuantityUnitFlag, p > 1 || sin.startUnit == Unit::PerDay);
    EXPECT_EQ(record.PercentIncreaseText, expected.percent);
    EXPECT_EQ(record.InterestRateText, "5%");
    EXPECT_EQ(record.InflationRateText, "3%");
  }
}

TEST_P(Loading, OpensTheFirstPeriodAndNoResults) {
  EXPECT_EQ(ws.Of(side).state.CurrentPeriod, 1);
  EXPECT_EQ(ws.Of(side).state.PreviousPeriod, 1);
  EXPECT_TRUE(ws.SSTab_PastFutureSwitch->Enabled());
  EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
  EXPECT_TRUE(c.quantity->Enabled() && c.quantity->Visible());
  EXPECT_TRUE(c.comPercentIncrease->Enabled() && c.comPercentIncrease->Visible());
  if (c.comCigsPerDay != nullptr) {
    EXPECT_FALSE(c.comCigsPerDay->Enabled() || c.comCigsPerDay->Visible());
  }
  if (c.comInitialCost != nullptr) {
    EXPECT_TRUE(c.comInitialCost->Enabled() && c.comInitialCost->Visible());
  }
  if (c.comFinalCost != nullptr) {
    EXPECT_FALSE(c.comFinalCost->Enabled() || c.comFinalCost->Visible());
  }
  for (int p = 1; p <= 4; ++p) {
    EXPECT_EQ(c.optTimePeriod(p).Enabled(), p == 1);
    EXPECT_EQ(c.frmEnabledDisabledPeriod(p).Enabled(), p == 1);
    EXPECT_FALSE(c.rbnEnabledPeriod(p).Enabled() || c.rbnDisabledPeriod(p).Enabled());
    EXPECT_FALSE(c.txtResultsPeriod(p).Enabled() || c.txtResultsPeriod(p).Visible());
    EXPECT_FALSE(c.txtCumulativeResultsPeriod(p).Enabled() || c.txtCumulativeResultsPeriod(p).Visible());
  }
  EXPECT_FALSE(c.txtResultsTotal->Enabled() || c.txtResultsTotal->Visible());
  for (const Button* button :
       {c.cmdAdvResultsDoc, c.cmdAdvResultsSpd, c.cmdAdvResultsDocSummary, c.cmdAdvResultsSpdSummary})
    EXPECT_FALSE(button->Enabled());
}

// The rest of the captions follows the period; the frame of the daily figure was titled last.
TEST_P(Loading, TitlesTheFrames) {
  EXPECT_EQ(c.frmSetStart->Caption(), PeriodName(side, 1) + std::string(sin.startSuffix[side]));
  EXPECT_EQ(c.frmDaily->Caption(), "Period 1" + std::string(sin.dailySuffix[side]));
  EXPECT_EQ(c.cmdSetPeriodParams->Caption(), "Set " + PeriodName(side, 1) + " Parameters");
}

TEST_P(Loading, LabelsFollowThePeriod) {
  for (std::int16_t period = 1; period <= 4; ++period) {
    LabelMaker(ws.Of(side), period);
    const std::string start = PeriodName(side, period);
    EXPECT_EQ(c.frmSetStart->Caption(), start + std::string(sin.startSuffix[side]));
    EXPECT_EQ(c.frmSetStop->Caption(), start + std::string(sin.stopSuffix[side]));
    EXPECT_EQ(c.frmDaily->Caption(), start + std::string(sin.dailySuffix[side]));
    EXPECT_EQ(c.frmCostChange->Caption(), start + std::string(sin.costChangeSuffix[side]));
    EXPECT_EQ(c.frmRates->Caption(), start + ": Savings and Inflation Rates");
    EXPECT_EQ(c.cmdSetPeriodParams->Caption(), "Set " + start + " Parameters");
  }
}

TEST_P(Loading, ARepeatedLoadAppendsAllEntriesAndSelectsTheFirstCopies) {
  std::vector<std::pair<int, std::string>> before;
  for (const DropDownList* list : ValueLists()) before.emplace_back(list->Position(), StateOf(*list));
  std::vector<int> counts;
  for (const DropDownList* list : ValueLists()) counts.push_back(list->Count());
  LoadParameters(ws.Of(side));
  for (std::size_t i = 0; i < before.size(); ++i) {
    const DropDownList& list = *ValueLists()[i];
    EXPECT_EQ(list.Count(), 2 * counts[i]) << list.FullName();
    EXPECT_EQ(list.Position(), before[i].first) << list.FullName();
    EXPECT_EQ(list.Entries().HeldTexts(), counts[i]) << list.FullName();
    for (int entry = 0; entry < counts[i]; ++entry)
      ASSERT_EQ(list.Entry(entry), list.Entry(entry + counts[i])) << list.FullName();
  }
}

// A click empties the quantity list and fills it for the unit, in all sins but Smoking, which has a list for
// each unit. So both copies are of the unit at the start.
TEST_P(Loading, ARepeatedLoadPutsTheOptionsBack) {
  Option& start = sin.startUnit == Unit::PerDay ? *c.firstUnit : *c.secondUnit;
  Option& other = sin.startUnit == Unit::PerDay ? *c.secondUnit : *c.firstUnit;
  run.Click(start);  // the labels of a click
  const std::string unitLabel = c.quantityLabel->Caption();
  run.Click(other);
  ASSERT_FALSE(start.Value());
  LoadParameters(ws.Of(side));
  EXPECT_TRUE(start.Value());
  EXPECT_EQ(c.quantityLabel->Caption(), unitLabel);
  DropDownList& expected = ws.Add<DropDownList>({"expected"});
  for (int copy = 1; copy <= 2; ++copy) AppendEntries(ws, expected, UnitList(sin, sin.startUnit));
  EXPECT_EQ(c.quantity->Entries().All(), expected.Entries().All());
  EXPECT_EQ(c.quantity->Text(), kDefaults[position].quantity);
  EXPECT_TRUE(c.quantity->Enabled() && c.quantity->Visible());
}

// Coffeeing and Watering: a lower gross cost has made another list of the reasonable ones.
TEST_P(Loading, ARepeatedLoadPutsTheReasonableCostsBack) {
  if (c.comSubCost == nullptr) return;
  run.Pick(*c.comInitialCost, "$0.50");
  ASSERT_EQ(c.comSubCost->Count(), 10);
  LoadParameters(ws.Of(side));
  DropDownList& expected = ws.Add<DropDownList>({"expected"});
  for (int copy = 1; copy <= 2; ++copy) AppendEntries(ws, expected, sin.secondCostList);
  EXPECT_EQ(c.comSubCost->Entries().All(), expected.Entries().All());
  EXPECT_EQ(c.comSubCost->Text(), "$1.10");
  EXPECT_EQ(Record(4).ReasonableCostText, "$1.10");
}

TEST_P(Loading, ARepeatedLoadPutsTheCostModeBack) {
  if (!HasCostModes(sin.costClass)) return;
  run.Click(*c.OptCigInitialFinalCostIncrease);
  LoadParameters(ws.Of(side));
  EXPECT_TRUE(c.OptCigPercentCostIncrease->Value());
  EXPECT_EQ(c.costLabel->Caption(), sin.costLabelPercent);
  EXPECT_EQ(c.percentLabel->Caption(), sin.percentLabelPercent);
  EXPECT_TRUE(c.comPercentIncrease->Visible());
  EXPECT_FALSE(c.comFinalCost->Visible());
  EXPECT_TRUE(Record(1).CostModeFlag);
}

// A load behind every choice that a user can make ends as one behind none. Only labels that have the wording
// of a click keep it, so the options that are on are clicked in both.
TEST_P(Loading, ARepeatedLoadForgetsEveryChoice) {
  RunningProgram other;
  SinWorkspace& untouched = other.Enter(sin.key, side);
  for (SinWorkspace* workspace : {&untouched, &ws}) {
    const SideControls& controls = workspace->Of(side);
    run.Click(sin.startUnit == Unit::PerDay ? *controls.firstUnit : *controls.secondUnit);
    if (HasCostModes(sin.costClass)) run.Click(*controls.OptCigPercentCostIncrease);
  }
  run.Click(sin.startUnit == Unit::PerDay ? *c.secondUnit : *c.firstUnit);
  if (HasCostModes(sin.costClass)) run.Click(*c.OptCigInitialFinalCostIncrease);
  run.Click(*c.optFineDateStart);
  run.Click(*c.optFineDateStop);
  for (DropDownList* list : {c.comStart, c.comStop}) {
    ASSERT_EQ(list->UserFocuses(), UserOutcome::Done);
    run.Pick(*list, 1);
  }
  for (DropDownList* list : ValueLists())
    if (list->Reachable()) run.Pick(*list, 8);
  EXPECT_GE(Changes(StatesOf(untouched), ws).size(), 10u);
  for (SinWorkspace* workspace : {&untouched, &ws}) LoadParameters(workspace->Of(side));
  EXPECT_EQ(Changes(StatesOf(untouched), ws), std::vector<std::string>{});
  for (int p = 1; p <= 4; ++p) {
    const PeriodRecord& expected = untouched.Of(side).Record(p);
    EXPECT_EQ(Record(p).StartLabel, expected.StartLabel);
    EXPECT_EQ(Record(p).StopLabel, expected.StopLabel);
    EXPECT_EQ(Record(p).StopListFirst, expected.StopListFirst);
    EXPECT_EQ(Record(p).QuantityListIndex, expected.QuantityListIndex);
    EXPECT_EQ(Record(p).QuantityUnitFlag, expected.QuantityUnitFlag);
    EXPECT_EQ(Record(p).InitialCostText, expected.InitialCostText);
    EXPECT_EQ(Record(p).ReasonableCostText, expected.ReasonableCostText);
    EXPECT_EQ(Record(p).InterestRateText, expected.InterestRateText);
  }
}

TEST_P(Loading, ALoadThrowsACommittedSideAway) {
  run.Press(ws, side);
  ASSERT_TRUE(Record(1).PeriodSet);
  LoadParameters(ws.Of(side));
  EXPECT_FALSE(Record(1).PeriodSet);
  EXPECT_FALSE(c.txtResultsPeriod(1).Visible());
  EXPECT_FALSE(c.optTimePeriod(2).Enabled());
}

TEST_P(Loading, EurosStandInTheMoneyLists) {
  RunningProgram euros;
  ASSERT_EQ(euros.Smoking().cmdEuro->UserClicks(), UserOutcome::Done);
  const SideControls& inEuros = euros.Enter(sin.key, side).Of(side);
  const auto expectEuros = [](const DropDownList* dollars, const DropDownList* other) {
    if (dollars == nullptr || !dollars->Entry(0).starts_with('$')) return;
    ASSERT_LE(dollars->Count(), other->Count());  // the euro button has filled the Smoking lists already
    for (int i = 0; i < dollars->Count(); ++i)
      ASSERT_EQ(other->Entry(i), "\x80" + dollars->Entry(i).substr(1)) << other->FullName();
    EXPECT_EQ(other->Position(), dollars->Position());
  };
  expectEuros(c.quantity, inEuros.quantity);
  expectEuros(c.comInitialCost, inEuros.comInitialCost);
  expectEuros(c.comFinalCost, inEuros.comFinalCost);
  expectEuros(c.comSubCost, inEuros.comSubCost);
}

// ---- Smoking ----

class SmokingLoading : public EverySideOf {
 protected:
  SmokingLoading() : EverySideOf("Smoking") {}
};
INSTANTIATE_TEST_SUITE_P(, SmokingLoading, testing::ValuesIn(kSides), NameOfSide);

TEST_P(SmokingLoading, CostsStandAtTheirPositions) {
  for (const DropDownList* list : {c.comInitialCost, c.comFinalCost}) {
    ASSERT_EQ(list->Count(), 277);
    const std::pair<int, const char*> kExpected[] = {
        {0, "$0.10"},  {18, "$1.00"}, {19, "$1.10"},   {38, "$3.00"},   {39, "$3.25"},
        {46, "$5.00"}, {54, "$7.00"}, {126, "$25.00"}, {127, "$25.50"}, {276, "$100.00"}};
    for (const auto& [entry, text] : kExpected) EXPECT_EQ(list->Entry(entry), text);
  }
}

TEST_P(SmokingLoading, QuantitiesAndRatesStandAtTheirPositions) {
  ASSERT_EQ(c.quantity->Count(), 200);
  EXPECT_EQ(c.quantity->Entry(0), "0.05");
  EXPECT_EQ(c.quantity->Entry(19), "1.00");
  EXPECT_EQ(c.quantity->Entry(199), "10.00");
  ASSERT_EQ(c.comCigsPerDay->Count(), 300);
  EXPECT_EQ(c.comCigsPerDay->Entry(19), "20");
  for (const DropDownList* list : {c.comPercentIncrease, c.comInterestRate1, c.comInflationRate1}) {
    ASSERT_EQ(list->Count(), 101);
    for (int i = 0; i <= 100; ++i) EXPECT_EQ(list->Entry(i), std::to_string(i) + "%");
  }
}

// ---- Dates ----

constexpr const char* kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                   "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

std::string Label(int month, int year) {
  return std::string(kMonths[month - 1]) + " - " + std::to_string(year);
}

TEST(LoadingDates, ThePastEndsInThePresentMonth) {
  for (int month = 1; month <= 12; ++month) {
    RunningProgram run({month, 2026});
    SinWorkspace& ws = run.Smoking();
    const SideControls& c = ws.Of(Side::Past);
    EXPECT_EQ(c.comStart->Text(), Label(month, 2016));
    EXPECT_EQ(c.comStop->Text(), Label(month, 2026));
    for (const DropDownList* list : {c.comStart, c.comStop}) {
      EXPECT_EQ(list->Count(), 91);
      EXPECT_EQ(list->Entry(0), Label(month, 1936));
      EXPECT_EQ(list->Entry(90), Label(month, 2026));
    }
    for (int p = 2; p <= 4; ++p) {
      const PeriodRecord& record = ws.Of(Side::Past).Record(p);
      EXPECT_EQ(record.StartLabel, Label(month, 2026));
      EXPECT_EQ(record.StopLabel, Label(month, 2026));
      EXPECT_EQ(record.StartListFirst, Label(month, 1936));
      EXPECT_EQ(record.StopListFirst, Label(month, 1936));
      EXPECT_EQ(record.StartListLast, Label(month, 2026));
      EXPECT_EQ(record.StopListLast, Label(month, 2026));
    }
  }
}

// In December the next month is the January eleven months back.
TEST(LoadingDates, TheFutureBeginsInTheNextMonth) {
  for (int month = 1; month <= 12; ++month) {
    RunningProgram run({month, 2026});
    SinWorkspace& ws = run.Enter("Smoking", Side::Future);
    const SideControls& c = ws.Of(Side::Future);
    const int next = month % 12 + 1;
    EXPECT_EQ(c.comStart->Text(), Label(next, 2026));
    EXPECT_EQ(c.comStop->Text(), Label(next, 2036));
    for (const DropDownList* list : {c.comStart, c.comStop}) {
      EXPECT_EQ(list->Count(), 76);
      EXPECT_EQ(list->Entry(0), Label(next, 2026));
      EXPECT_EQ(list->Entry(75), Label(next, 2101));
    }
    for (int p = 2; p <= 4; ++p) {
      const PeriodRecord& record = ws.Of(Side::Future).Record(p);
      EXPECT_EQ(record.StartLabel, Label(next, 2026));
      EXPECT_EQ(record.StopLabel, Label(next, 2026));
      EXPECT_EQ(record.StartListFirst, Label(next, 2026));
      EXPECT_EQ(record.StopListLast, Label(next, 2101));
    }
  }
}

// The first values of the lists, before the end of a load replaces them: the past's begin in a January.
TEST(LoadingDates, TheFirstListsAreShort) {
  RunningProgram run;
  SinWorkspace& ws = run.Smoking();
  InitializeDates(ws.Of(Side::Past), SideIndex(1));
  const SideControls& past = ws.Of(Side::Past);
  EXPECT_EQ(past.comStart->Entry(0), "Jan - 1936");
  EXPECT_EQ(past.comStart->Entry(past.comStart->Count() - 1), "Jun - 2016");
  EXPECT_EQ(past.comStart->Text(), "Jun - 2016");
  EXPECT_EQ(past.comStop->Entries().All(), std::vector<std::string>{"Jun - 2026"});
  InitializeDates(ws.Of(Side::Future), SideIndex(2));
  const SideControls& future = ws.Of(Side::Future);
  EXPECT_EQ(future.comStart->Entries().All(), std::vector<std::string>{"Jul - 2026"});
  EXPECT_EQ(future.comStop->Entry(0), "Jul - 2036");
  EXPECT_EQ(future.comStop->Text(), "Jul - 2036");
  EXPECT_EQ(future.comStop->Entry(future.comStop->Count() - 1), "Jul - 2116");
}

// ---- When a side is loaded ----

TEST(LoadingTheFuture, WaitsForItsTab) {
  RunningProgram run;
  for (const char* key : {"Smoking", "Gambling"}) {
    SinWorkspace& ws = run.Enter(key);
    const SideControls& c = ws.Of(Side::Future);
    EXPECT_EQ(c.quantity->Count(), 0);
    EXPECT_EQ(c.comStart->Count(), 0);
    EXPECT_FALSE(c.txtResultsTotal->Visible() || c.txtResultsPeriod(1).Enabled());
    run.OpenTab(ws, kFutureTab);
    EXPECT_GT(c.quantity->Count(), 0);
  }
}

TEST(LoadingTheFuture, HappensAtEveryArrivalUntilItIsCommitted) {
  RunningProgram run;
  SinWorkspace& ws = run.Enter("Smoking", Side::Future);
  const SideControls& c = ws.Of(Side::Future);
  const std::vector<DropDownList*> kSeven = {c.quantity,         c.comCigsPerDay,     c.comPercentIncrease,
                                             c.comInterestRate1, c.comInflationRate1, c.comInitialCost,
                                             c.comFinalCost};
  std::vector<int> counts;
  for (const DropDownList* list : kSeven) counts.push_back(list->Count());
  run.Pick(*c.comInitialCost, "$9.00");
  run.OpenTab(ws, kPastTab);
  run.OpenTab(ws, kFutureTab);
  EXPECT_EQ(c.comInitialCost->Text(), "$5.00");
  for (std::size_t i = 0; i < kSeven.size(); ++i) EXPECT_EQ(kSeven[i]->Count(), 2 * counts[i]);

  run.Pick(*c.comInitialCost, "$9.00");
  run.Press(ws, Side::Future);
  run.OpenTab(ws, kTotalTab);
  run.OpenTab(ws, kFutureTab);
  EXPECT_EQ(c.comInitialCost->Text(), "$9.00");
  for (std::size_t i = 0; i < kSeven.size(); ++i) EXPECT_EQ(kSeven[i]->Count(), 2 * counts[i]);
}

}  // namespace
}  // namespace vicetoll
