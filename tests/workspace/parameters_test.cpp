// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/parameters.h"

#include "calendar/number_text.h"
#include "program_fixture.h"
#include "workspace/period_operations.h"

namespace vicetoll {
namespace {

// ---- Dates, alike in all sins ----

class DateMovers : public EverySideOf {
 protected:
  DateMovers() : EverySideOf("Smoking") {}

  static void FillWith(DropDownList& list, std::initializer_list<const char*> entries) {
    list.Clear();
    for (const char* entry : entries) list.Append(entry);
  }
};
INSTANTIATE_TEST_SUITE_P(, DateMovers, testing::ValuesIn(kSides), NameOfSide);

// The ends of the lists are saved in coarse mode only. The past side asks its start option about both lists.
TEST_P(DateMovers, SaveTheEndsOfCoarseLists) {
  for (const bool startCoarse : {true, false}) {
    for (const bool stopCoarse : {true, false}) {
      PeriodRecord& record = Record(1);
      record.StartListFirst = record.StartListLast = record.StopListFirst = record.StopListLast = "old";
      FillWith(*c.comStart, {"Jan - 2011", "Jan - 2012", "Jan - 2013"});
      FillWith(*c.comStop, {"Feb - 2014", "Feb - 2015"});
      c.comStart->SetText("Mar - 2012");
      c.comStop->SetText("Feb - 2015");
      (startCoarse ? c.optCourseDateStart : c.optFineDateStart)->SetValue(true);
      (stopCoarse ? c.optCourseDateStop : c.optFineDateStop)->SetValue(true);
      SetParameters(ws.Of(side), 1);
      SCOPED_TRACE(testing::Message() << "start coarse " << startCoarse << ", stop coarse " << stopCoarse);
      EXPECT_EQ(record.StartLabel, "Mar - 2012");
      EXPECT_EQ(record.StopLabel, "Feb - 2015");
      EXPECT_EQ(record.StartListFirst, startCoarse ? "Jan - 2011" : "old");
      EXPECT_EQ(record.StartListLast, startCoarse ? "Jan - 2013" : "old");
      const bool stopSaved = side == Side::Past ? startCoarse : stopCoarse;
      EXPECT_EQ(record.StopListFirst, stopSaved ? "Feb - 2014" : "old");
      EXPECT_EQ(record.StopListLast, stopSaved ? "Feb - 2015" : "old");
      // The saved screen is coarse again.
      EXPECT_TRUE(c.optCourseDateStart->Value() && c.optCourseDateStop->Value());
      EXPECT_FALSE(c.optFineDateStart->Value() || c.optFineDateStop->Value());
    }
  }
}

TEST_P(DateMovers, AMonthChosenInFineModeShowsAsTheFirstEntryAndStays) {
  PeriodRecord& record = Record(1);
  record.StartListFirst = record.StopListFirst = "Jan - 2010";
  record.StartListLast = record.StopListLast = "Jan - 2020";
  record.StartLabel = "Mar - 2012";
  record.StopLabel = "Jan - 2015";
  GetParameters(ws.Of(side), 1);
  EXPECT_EQ(c.comStart->Text(), "Jan - 2010");
  EXPECT_EQ(c.comStop->Text(), "Jan - 2015");
  EXPECT_EQ(record.StartLabel, "Mar - 2012");
}

TEST_P(DateMovers, AStopThatIsNoEntryShowsAsTheEntryWhereTheStartWasFound) {
  PeriodRecord& record = Record(1);
  record.StartListFirst = "Jan - 2010";
  record.StopListFirst = "Jan - 2012";
  record.StartListLast = record.StopListLast = "Jan - 2020";
  record.StartLabel = "Jan - 2012";  // the third entry
  record.StopLabel = "Mar - 2015";
  GetParameters(ws.Of(side), 1);
  EXPECT_EQ(c.comStart->Position(), 2);
  EXPECT_EQ(c.comStop->Text(), "Jan - 2014");
  EXPECT_EQ(record.StopLabel, "Mar - 2015");
}

TEST_P(DateMovers, APlacePastTheEndShowsTheLastEntry) {
  PeriodRecord& record = Record(1);
  record.StartListFirst = "Jan - 2010";
  record.StopListFirst = "Jan - 2019";
  record.StartListLast = record.StopListLast = "Jan - 2020";
  record.StartLabel = "Jan - 2018";  // the ninth entry, and the stop list has two
  record.StopLabel = "Mar - 2019";
  GetParameters(ws.Of(side), 1);
  EXPECT_EQ(c.comStop->Text(), "Jan - 2020");
}

TEST_P(DateMovers, LoadingGoesBackToCoarseMode) {
  c.optFineDateStart->SetValue(true);
  c.optFineDateStop->SetValue(true);
  GetParameters(ws.Of(side), 1);
  EXPECT_TRUE(c.optCourseDateStart->Value() && c.optCourseDateStop->Value());
  EXPECT_FALSE(c.optFineDateStart->Value() || c.optFineDateStop->Value());
}

// ---- Every sin ----

class Movers : public EverySinAndSide {};
INSTANTIATE_TEST_SUITE_P(, Movers, AllSinsAndSides(), NameOfSinAndSide);

TEST_P(Movers, SelectOnePeriodAndTitleItsFrame) {
  for (const char* number : {"3", "1", "4", "2"}) {
    SetPeriodParameters(ws.Of(side), number);
    for (int p = 1; p <= 4; ++p) EXPECT_EQ(Record(p).PeriodSelected, std::to_string(p) == number);
    EXPECT_EQ(c.frmDaily->Caption(), "Period " + std::string(number) + std::string(sin.dailySuffix[side]));
  }
}

TEST_P(Movers, StoreTheScreen) {
  c.comPercentIncrease->SetText("11%");
  c.comInterestRate1->SetText("12%");
  c.comInflationRate1->SetText("13%");
  c.quantity->SelectEntry(7);
  if (c.comInitialCost != nullptr) c.comInitialCost->SelectEntry(8);
  if (c.comFinalCost != nullptr) c.comFinalCost->SelectEntry(9);
  if (c.comSubCost != nullptr) c.comSubCost->SelectEntry(10);
  c.firstUnit->SetValue(true);
  SetParameters(ws.Of(side), 3);
  const PeriodRecord& record = Record(3);
  EXPECT_TRUE(record.PeriodSelected);
  EXPECT_EQ(record.PercentIncreaseText, "11%");
  EXPECT_EQ(record.InterestRateText, "12%");
  EXPECT_EQ(record.InflationRateText, "13%");
  EXPECT_EQ(record.QuantityListIndex, 7);
  EXPECT_TRUE(record.QuantityUnitFlag);
  if (c.comInitialCost != nullptr) {
    EXPECT_EQ(record.InitialCostText, c.comInitialCost->Entry(8));
  }
  if (c.comFinalCost != nullptr) {
    EXPECT_EQ(record.FinalCostText, c.comFinalCost->Entry(9));
    EXPECT_TRUE(record.CostModeFlag);
    c.OptCigInitialFinalCostIncrease->SetValue(true);
    SetParameters(ws.Of(side), 3);
    EXPECT_FALSE(record.CostModeFlag);
  }
  if (c.comSubCost != nullptr) {
    EXPECT_EQ(record.ReasonableCostText, c.comSubCost->Entry(10));
  }
}

// The future side of Drugging alone keeps the unit that the store had before.
TEST_P(Movers, StoreTheUnit) {
  for (const bool before : {true, false}) {
    for (const bool first : {true, false}) {
      Record(1).QuantityUnitFlag = before;
      (first ? c.firstUnit : c.secondUnit)->SetValue(true);
      SetParameters(ws.Of(side), 1);
      const bool keeps = sin.key == "Drugging" && side == Side::Future;
      EXPECT_EQ(Record(1).QuantityUnitFlag, keeps ? before : first);
    }
  }
}

// The past side of Watering alone takes the currency off the reasonable cost.
TEST_P(Movers, StoreCostsWithTheirCurrency) {
  run.program.GetSession().currency = Currency::Euro;
  if (c.comInitialCost != nullptr)
    c.comInitialCost->SetText(
        "\x80"
        "4.00");
  if (c.comFinalCost != nullptr)
    c.comFinalCost->SetText(
        "\x80"
        "6.00");
  if (c.comSubCost != nullptr)
    c.comSubCost->SetText(
        "\x80"
        "2.00");
  SetParameters(ws.Of(side), 1);
  if (c.comInitialCost != nullptr) {
    EXPECT_EQ(Record(1).InitialCostText,
              "\x80"
              "4.00");
  }
  if (c.comFinalCost != nullptr) {
    EXPECT_EQ(Record(1).FinalCostText,
              "\x80"
              "6.00");
  }
  if (c.comSubCost != nullptr) {
    EXPECT_EQ(Record(1).ReasonableCostText, sin.key == "Watering" && side == Side::Past ? "2.00"
                                                                                        : "\x80"
                                                                                          "2.00");
  }
}

// Whatever was picked, a period comes back as it was entered, though another was entered meanwhile.
TEST_P(Movers, BringAPeriodBackAsItWasEntered) {
  // Drugging forgets the future unit, so there the unit it knows is taken.
  const bool keepsUnit = sin.key == "Drugging" && side == Side::Future;
  if (!keepsUnit) run.Click(*c.secondUnit);
  run.Pick(*(HasListPerUnit(sin.costClass) ? c.comCigsPerDay : c.quantity), 8);
  if (c.comFinalCost != nullptr) {
    run.Click(*c.OptCigInitialFinalCostIncrease);
    run.Pick(*c.comInitialCost, 20);
    run.Pick(*c.comFinalCost, 21);
  } else {
    run.Pick(*c.comPercentIncrease, "7%");
    if (c.comInitialCost != nullptr) run.Pick(*c.comInitialCost, 30);
    if (c.comSubCost != nullptr) run.Pick(*c.comSubCost, 25);
  }
  run.Pick(*c.comInterestRate1, "8%");
  run.Pick(*c.comInflationRate1, "9%");
  run.Commit(ws, side, side == Side::Past ? "Jun - 2017" : "Jul - 2027",
             side == Side::Past ? "Jun - 2018" : "Jul - 2028");
  // After a first visit nothing but the texts of the store decides.
  run.GoTo(ws, side, 1);
  const States entered = StatesOf(ws);

  run.GoTo(ws, side, 2);
  run.Click(*c.firstUnit);
  run.Pick(*c.quantity, 3);
  if (c.comFinalCost != nullptr) run.Click(*c.OptCigPercentCostIncrease);
  if (c.comInitialCost != nullptr) run.Pick(*c.comInitialCost, 5);  // below the reasonable cost
  run.Pick(*c.comPercentIncrease, "1%");
  run.Pick(*c.comInterestRate1, "2%");
  run.Pick(*c.comInflationRate1, "3%");
  run.Press(ws, side);
  run.GoTo(ws, side, 1);

  for (DropDownList* list : {c.comStart, c.comStop, c.quantity, c.comInitialCost, c.comFinalCost,
                             c.comPercentIncrease, c.comInterestRate1, c.comInflationRate1}) {
    if (list == nullptr) continue;
    EXPECT_EQ(StateOf(*list), entered.at(list->FullName())) << list->FullName();
  }
  for (Control* control : std::initializer_list<Control*>{
           c.comCigsPerDay, c.quantityLabel, c.firstUnit, c.secondUnit, c.OptCigPercentCostIncrease,
           c.OptCigInitialFinalCostIncrease, c.costLabel, c.percentLabel, c.frmDaily, c.frmSetStart,
           c.frmSetStop, c.frmCostChange, c.frmRates, c.cmdSetPeriodParams}) {
    if (control == nullptr) continue;
    EXPECT_EQ(StateOf(*control), entered.at(control->FullName())) << control->FullName();
  }
  if (c.comSubCost != nullptr) {
    EXPECT_EQ(c.comSubCost->Text(), "$1.50");  // its entry 25, though it is none of its list now
    EXPECT_EQ(c.comSubCost->Position(), -1);
  }
}

TEST_P(Movers, APositionPastTheEndShowsAndCountsTheLastEntry) {
  Record(1).QuantityListIndex = 30'000;
  EXPECT_EQ(QuantityText(ws.Of(side), 1), c.quantity->Entry(c.quantity->Count() - 1));
  GetParameters(ws.Of(side), 1);
  EXPECT_EQ(c.quantity->Text(), c.quantity->Entry(c.quantity->Count() - 1));
  EXPECT_EQ(c.quantity->Position(), c.quantity->Find(c.quantity->Text()));
}

// However often the list was appended: its last entry is the last of the first copy.
TEST_P(Movers, StoreAnEntryOfALaterCopyAtItsPlaceInTheFirst) {
  constexpr int kBeyond16Bits = 32768;
  const int oneCopy = c.quantity->Count();
  while (c.quantity->Count() <= kBeyond16Bits) AppendEntries(ws, *c.quantity, UnitList(sin, sin.startUnit));
  ASSERT_EQ(c.quantity->UserPicks(c.quantity->Count() - 1), UserOutcome::Done);
  SetParameters(ws.Of(side), 1);
  EXPECT_EQ(Record(1).QuantityListIndex, oneCopy - 1);
  EXPECT_EQ(QuantityText(ws.Of(side), 1), c.quantity->Text());
}

TEST_P(Movers, OpenThePeriodsUpToACount) {
  const bool first = c.optTimePeriod(1).Enabled();
  const bool firstRadio = c.rbnEnabledPeriod(1).Enabled();
  for (int n = 1; n <= 4; ++n) {
    OpenPeriodOptions(ws.Of(side), n);
    OpenPeriodRadios(ws.Of(side), n);
    EXPECT_EQ(c.optTimePeriod(1).Enabled(), first);
    EXPECT_EQ(c.rbnEnabledPeriod(1).Enabled(), firstRadio);
    for (int p = 2; p <= 4; ++p) {
      EXPECT_EQ(c.optTimePeriod(p).Enabled(), p <= n);
      EXPECT_EQ(c.frmEnabledDisabledPeriod(p).Enabled(), p <= n);
      EXPECT_EQ(c.rbnEnabledPeriod(p).Enabled(), p <= n);
      EXPECT_EQ(c.rbnDisabledPeriod(p).Enabled(), p <= n);
    }
  }
}

TEST_P(Movers, LeavePeriodOneAloneWhenTheyOpenAndClose) {
  c.optTimePeriod(1).SetEnabled(false);
  c.rbnEnabledPeriod(1).SetEnabled(false);
  OpenPeriodOptions(ws.Of(side), 4);
  OpenPeriodRadios(ws.Of(side), 4);
  EXPECT_FALSE(c.optTimePeriod(1).Enabled());
  EXPECT_FALSE(c.rbnEnabledPeriod(1).Enabled());
}

// ---- Costs ----

class CostMovers : public EverySideOf {
 protected:
  CostMovers() : EverySideOf("Drinking") {}
};
INSTANTIATE_TEST_SUITE_P(, CostMovers, testing::ValuesIn(kSides), NameOfSide);

TEST_P(CostMovers, ACostOfNoEntryShowsNothing) {
  Record(1).InitialCostText = "$3.01";
  GetParameters(ws.Of(side), 1);
  EXPECT_EQ(c.comInitialCost->Text(), "");
  EXPECT_EQ(c.comFinalCost->Text(), "$5.50");
}

TEST_P(CostMovers, TheCurrencyDoesNotMatterWhenACostIsLookedFor) {
  Record(1).InitialCostText =
      "\x80"
      "2.00";
  GetParameters(ws.Of(side), 1);
  EXPECT_EQ(c.comInitialCost->Text(), "$2.00");
}

TEST(CostMoversInEuros, FindWhatWasStoredInDollars) {
  RunningProgram run;
  SinWorkspace& ws = run.Smoking();
  SideControls& c = ws.Of(Side::Past);
  ASSERT_EQ(ws.cmdEuro->UserClicks(), UserOutcome::Done);
  ASSERT_EQ(ws.Of(Side::Past).Record(1).InitialCostText, "$5.00");
  run.GoTo(ws, Side::Past, 1);
  EXPECT_EQ(c.comInitialCost->Text(),
            "\x80"
            "5.00");
  EXPECT_EQ(c.comFinalCost->Text(),
            "\x80"
            "7.00");
  EXPECT_EQ(c.comInitialCost->Position(), 46);
}

// ---- Smoking ----

class SmokingMovers : public EverySideOf {
 protected:
  SmokingMovers() : EverySideOf("Smoking") {}
};
INSTANTIATE_TEST_SUITE_P(, SmokingMovers, testing::ValuesIn(kSides), NameOfSide);

TEST_P(SmokingMovers, CigarettesAreStoredByTheirOwnList) {
  run.Pick(*c.quantity, "2.00");
  run.Click(*c.secondUnit);
  EXPECT_FALSE(c.quantity->Visible());
  EXPECT_EQ(c.quantity->Text(), "2.00");
  run.Pick(*c.comCigsPerDay, "15");
  run.Press(ws, side);
  EXPECT_EQ(Record(1).QuantityListIndex, 14);
  EXPECT_FALSE(Record(1).QuantityUnitFlag);
}

// The list is that of the unit on screen, the division that of the period: position 19 of the packs is
// 1.00, taken for a cigarette; 5.00 / 20 * 30.42 = 7.605 a month.
TEST_P(SmokingMovers, APeriodOfCigarettesReadsThePacksWhileTheyAreOnScreen) {
  run.Click(*c.secondUnit);
  run.Pick(*c.comCigsPerDay, "20");
  run.Pick(*c.comInitialCost, "$5.00");
  run.Pick(*c.comPercentIncrease, "0%");
  run.Commit(ws, side, "Jun - 2026", "Jun - 2026");
  EXPECT_EQ(FormatNumber(CostInPeriod(ws.Of(side), 1), "0.00"), "152.10");  // a pack: 5.00 * 30.42
  c.firstUnit->SetValue(true);
  EXPECT_EQ(FormatNumber(CostInPeriod(ws.Of(side), 1), "0.00"), "7.61");
}

}  // namespace
}  // namespace vicetoll
