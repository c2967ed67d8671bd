// SPDX-License-Identifier: GPL-3.0-or-later
// The options of quantity and cost: units, packs or cigarettes, percent or initial and final cost.
#include "calendar/number_text.h"
#include "program_fixture.h"
#include "workspace/period_operations.h"

namespace vicetoll {
namespace {

bool IsAvailable(const Control& control) { return control.Enabled() && control.Visible(); }
bool IsGone(const Control& control) { return !control.Enabled() && !control.Visible(); }

// ---- Per Day and Per Month ----

class UnitOptions : public EverySinAndSide {};
INSTANTIATE_TEST_SUITE_P(, UnitOptions, SinsAndSides([](const SinRow& sin) { return sin.key != "Smoking"; }),
                         NameOfSinAndSide);

class FlatUnits : public EverySinAndSide {};
INSTANTIATE_TEST_SUITE_P(, FlatUnits, SinsAndSides([](const SinRow& sin) {
                           return sin.costClass == CostClass::FlatRateClass;
                         }),
                         NameOfSinAndSide);

// The monthly list of Soliciting is not its daily one times thirty.
class ThirtyfoldUnits : public EverySinAndSide {};
INSTANTIATE_TEST_SUITE_P(, ThirtyfoldUnits, SinsAndSides([](const SinRow& sin) {
                           return sin.key != "Smoking" && sin.key != "Soliciting";
                         }),
                         NameOfSinAndSide);

TEST_P(UnitOptions, StartInTheUnitOfTheSin) {
  const bool perMonth =
      sin.key == "Jailing" || sin.key == "Slothing" || sin.key == "Soliciting" || sin.key == "Interring";
  EXPECT_EQ(c.firstUnit->Value(), !perMonth);
  EXPECT_EQ(c.secondUnit->Value(), perMonth);
}

// The place in the list is kept and no value converted: a month is thirty days to the lists.
TEST_P(ThirtyfoldUnits, KeepThePlaceInTheList) {
  const int stored = Record(1).QuantityListIndex;
  for (int round = 0; round < 2; ++round) {
    run.Click(*c.firstUnit);
    EXPECT_EQ(c.quantity->Position(), stored);
    const double perDay = MoneyToNumber(c.quantity->Text());
    run.Click(*c.secondUnit);
    EXPECT_EQ(c.quantity->Position(), stored);
    EXPECT_EQ(MoneyToNumber(c.quantity->Text()), 30 * perDay);
  }
}

TEST_P(UnitOptions, TitleTheFrameAndOpenTheSetButton) {
  for (Option* option : {c.firstUnit, c.secondUnit, c.secondUnit}) {
    c.cmdSetPeriodParams->SetEnabled(false);
    c.frmDaily->SetCaption("");
    run.Click(*option);
    EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
    EXPECT_EQ(c.frmDaily->Caption(), PeriodName(side, 1) + std::string(sin.dailySuffix[side]));
  }
}

TEST_P(UnitOptions, AreStoredByThePressOnly) {
  const bool before = Record(1).QuantityUnitFlag;
  run.Click(before ? *c.secondUnit : *c.firstUnit);
  EXPECT_EQ(Record(1).QuantityUnitFlag, before);
  run.Press(ws, side);
  const bool keeps = sin.key == "Drugging" && side == Side::Future;
  EXPECT_EQ(Record(1).QuantityUnitFlag, keeps ? before : !before);
}

TEST_P(UnitOptions, ShowThePositionOfThePeriodOnScreen) {
  run.Pick(*c.quantity, 4);
  run.Commit(ws, side, "Jun - 2020", "Jun - 2021");
  run.GoTo(ws, side, 2);
  run.Pick(*c.quantity, 7);
  run.Press(ws, side);
  run.GoTo(ws, side, 1);
  run.Click(*(c.firstUnit->Value() ? c.firstUnit : c.secondUnit));
  EXPECT_EQ(c.quantity->Position(), 4);
}

struct UnitLabels {
  const char* key;
  const char* perDay;
  const char* perMonth;
  bool futurePerDaySaysMonth;  // the label is wrong, the amount is not
};

constexpr UnitLabels kUnitLabels[] = {
    {"Drinking", "Drinks Per Day", "Drinks Per Month", false},
    {"Gambling", "Dicetoll, Per Day", "Dicetoll, Per Month", true},
    {"Coffeeing", "Coffees Per Day", "Coffees Per Month", false},
    {"Watering", "Waters Per Day", "Waters Per Month", false},
    {"Jailing", "Celltoll (Lost Wages), Per Day", "Celltoll (Lost Wages), Per Month", false},
    {"Drugging", "Pilltoll, Per Day", "Pilltoll, Per Month", true},
    {"Slothing", "Sofatoll, Per Day", "Sofatoll, Per Month", true},
    {"Soliciting", "Solicitations Per Day", "Solicitations Per Month", false},
    {"Tobaccoing", "Leaftoll, Per Day", "Leaftoll, Per Month", true},
    {"Interring", "Webtoll Sub, Per Day", "Webtoll Sub, Per Month", false},
    {"Shopping", "Cost of Excess Shopping, Per Day", "Cost of Excess Shopping, Per Month", false},
};

TEST_P(UnitOptions, WriteTheirLabels) {
  const UnitLabels& labels = kUnitLabels[position - 1];
  ASSERT_EQ(sin.key, labels.key);
  run.Click(*c.firstUnit);
  const bool wrong = side == Side::Future && labels.futurePerDaySaysMonth;
  EXPECT_EQ(c.quantityLabel->Caption(), wrong ? labels.perMonth : labels.perDay);
  run.Click(*c.secondUnit);
  EXPECT_EQ(c.quantityLabel->Caption(), labels.perMonth);
}

// A monthly figure is the cost of its month; a daily one 30.42 times as much, whatever the label says.
TEST_P(FlatUnits, CountTheAmountByTheirUnit) {
  run.Pick(*c.comPercentIncrease, "0%");
  run.Click(*c.secondUnit);
  run.Pick(*c.quantity, "$600");
  run.Commit(ws, side, "Jun - 2026", "Jun - 2026");
  EXPECT_EQ(FormatNumber(CostInPeriod(ws.Of(side), 1), "0.00"), "600.00");
  run.Click(*c.firstUnit);
  run.Pick(*c.quantity, "$20");
  run.Press(ws, side);
  EXPECT_EQ(FormatNumber(CostInPeriod(ws.Of(side), 1), "0.00"), "608.40");
}

TEST_P(FlatUnits, ACostOfNothingCanBeChosen) {
  run.Pick(*c.quantity, "$0");
  run.Press(ws, side);
  EXPECT_EQ(c.txtResultsPeriod(1).Text(), "$0");
  EXPECT_EQ(c.txtResultsTotal->Text(), "$0");
}

struct Switch {
  const char* key;
  int place;
  const char* perDay;
  const char* perMonth;
};

TEST(UnitLists, MatchPlaceByPlace) {
  for (const Switch& expected : {Switch{"Drinking", 5, "6", "180"},
                                 {"Gambling", 20, "$20", "$600"},
                                 {"Jailing", 56, "$80", "$2400"},
                                 {"Jailing", 256, "$10000", "$300000"},
                                 {"Watering", 74, "75", "2250"}}) {
    for (const Side side : kSides) {
      RunningProgram run;
      SinWorkspace& ws = run.Enter(expected.key, side);
      SideControls& c = ws.Of(side);
      run.Pick(*c.quantity, expected.place);
      run.Press(ws, side);
      run.Click(*c.firstUnit);
      EXPECT_EQ(c.quantity->Text(), expected.perDay);
      run.Click(*c.secondUnit);
      EXPECT_EQ(c.quantity->Text(), expected.perMonth);
    }
  }
}

// ---- Soliciting ----

class SolicitingUnits : public EverySideOf {
 protected:
  SolicitingUnits() : EverySideOf("Soliciting") {}
};
INSTANTIATE_TEST_SUITE_P(, SolicitingUnits, testing::ValuesIn(kSides), NameOfSide);

TEST_P(SolicitingUnits, ThirtyStandsTwiceAndThePlaceTellsThemApart) {
  ASSERT_EQ(c.quantity->Count(), 40);
  for (const int place : {29, 30}) {
    run.Pick(*c.quantity, place);
    EXPECT_EQ(c.quantity->Text(), "30");
    EXPECT_EQ(c.quantity->Position(), place);
    run.Press(ws, side);
    EXPECT_EQ(Record(1).QuantityListIndex, place);
  }
}

TEST_P(SolicitingUnits, APlacePastTheShorterListIsItsLastEntry) {
  run.Pick(*c.quantity, "300");
  run.Press(ws, side);
  run.Click(*c.firstUnit);
  EXPECT_EQ(c.quantity->Count(), 10);
  EXPECT_EQ(c.quantity->Text(), "10");
  EXPECT_EQ(Record(1).QuantityListIndex, 39);
  run.Click(*c.secondUnit);
  EXPECT_EQ(c.quantity->Text(), "300");
}

// ---- Packs and cigarettes ----

class PackOptions : public EverySideOf {
 protected:
  PackOptions() : EverySideOf("Smoking") {}
};
INSTANTIATE_TEST_SUITE_P(, PackOptions, testing::ValuesIn(kSides), NameOfSide);

TEST_P(PackOptions, ShowTheListOfTheUnit) {
  run.Click(*c.secondUnit);
  EXPECT_TRUE(IsGone(*c.quantity));
  EXPECT_TRUE(IsAvailable(*c.comCigsPerDay));
  EXPECT_EQ(c.quantityLabel->Caption(), "Cigarettes Per Day");
  run.Click(*c.firstUnit);
  EXPECT_TRUE(IsAvailable(*c.quantity));
  EXPECT_TRUE(IsGone(*c.comCigsPerDay));
  EXPECT_EQ(c.quantityLabel->Caption(), "Packs Per Day");
}

TEST_P(PackOptions, AClickOnTheOptionThatIsOnOpensTheSetButtonOnly) {
  for (Option* option :
       {c.firstUnit, c.secondUnit, c.OptCigInitialFinalCostIncrease, c.OptCigPercentCostIncrease}) {
    run.Click(*option);
    c.cmdSetPeriodParams->SetEnabled(false);
    const States before = StatesOf(ws);
    run.Click(*option);
    EXPECT_EQ(Changes(before, ws), std::vector{c.cmdSetPeriodParams->FullName()}) << option->FullName();
  }
}

// ---- Percent, or initial and final cost ----

struct CostWords {
  const char* key;
  const char* cost;
  const char* initial;
  const char* final;
  const char* percent;
};

constexpr CostWords kCostWords[] = {
    {"Smoking", "Cost Per Pack", "Cost Per Pack: Initial", "Cost Per Pack: Final",
     "Yearly Increase Cost (%) of Cigarettes"},
    {"Drinking", "Cost Per Drink", "Cost Per Drink: Initial", "Cost Per Drink: Final",
     "Yearly Increase Cost (%) of a Drink"},
    {"Soliciting", "Cost Per Solicitation", "Cost Per Solicitation: Initial", "Cost Per Solicitation: Final",
     "Yearly Increase Cost (%) of Solicitation"},
};

TEST(CostOptions, ShowTheListsOfTheModeWithTheirLabels) {
  for (const CostWords& words : kCostWords) {
    for (const Side side : kSides) {
      SCOPED_TRACE(std::string(words.key) + std::string(OperationSuffix(side)));
      RunningProgram run;
      SideControls& c = run.Enter(words.key, side).Of(side);
      c.cmdSetPeriodParams->SetEnabled(false);
      run.Click(*c.OptCigInitialFinalCostIncrease);
      EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
      EXPECT_TRUE(IsAvailable(*c.comInitialCost) && IsAvailable(*c.comFinalCost));
      EXPECT_TRUE(IsGone(*c.comPercentIncrease));
      EXPECT_EQ(c.costLabel->Caption(), words.initial);
      EXPECT_EQ(c.percentLabel->Caption(), words.final);
      c.cmdSetPeriodParams->SetEnabled(false);
      run.Click(*c.OptCigPercentCostIncrease);
      EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
      EXPECT_TRUE(IsAvailable(*c.comInitialCost) && IsAvailable(*c.comPercentIncrease));
      EXPECT_TRUE(IsGone(*c.comFinalCost));
      EXPECT_EQ(c.costLabel->Caption(), words.cost);
      EXPECT_EQ(c.percentLabel->Caption(), words.percent);
    }
  }
}

TEST(Options, SetByProgramRunNoHandler) {
  RunningProgram run;
  SinWorkspace& ws = run.Smoking();
  SideControls& c = ws.Of(Side::Past);
  c.cmdSetPeriodParams->SetEnabled(false);
  c.secondUnit->SetValue(true);
  c.OptCigInitialFinalCostIncrease->SetValue(true);
  EXPECT_TRUE(IsAvailable(*c.quantity));
  EXPECT_TRUE(IsGone(*c.comFinalCost));
  EXPECT_FALSE(c.cmdSetPeriodParams->Enabled());
}

}  // namespace
}  // namespace vicetoll
