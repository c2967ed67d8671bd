// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/operations.h"

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "fault_of.h"
#include "program_fixture.h"
#include "vocabulary/operation_table.h"

namespace vicetoll {
namespace {

class Operations : public testing::Test {
 protected:
  RunningProgram run;

  OperationValue Call(SinWorkspace& ws, const std::string& name, std::vector<std::string> arguments = {}) {
    return CallOperation(run.program, ws, name, Arguments(std::move(arguments)));
  }
  OperationValue Call(const std::string& name, std::vector<std::string> arguments = {}) {
    return Call(run.Smoking(), name, std::move(arguments));
  }
  double Number(const std::string& name, std::vector<std::string> arguments) {
    return std::get<double>(Call(name, std::move(arguments)));
  }
  std::string Text(const std::string& name, std::vector<std::string> arguments) {
    return std::get<std::string>(Call(name, std::move(arguments)));
  }
  std::vector<std::string> Cells(const std::string& name, std::vector<std::string> arguments) {
    const auto cells = std::get<MonthCostCells>(Call(name, std::move(arguments)));
    std::vector<std::string> texts;
    for (int i = 0; i < cells.Columns(); ++i) texts.push_back(cells.Column(i));
    return texts;
  }
  bool Exists(SinWorkspace& ws, const std::string& name, std::vector<std::string> arguments) {
    try {
      Call(ws, name, std::move(arguments));
      return true;
    } catch (const BadCall&) {
      return false;
    }
  }
};

using Texts = std::vector<std::string>;

// ---- Shared functions ----

TEST_F(Operations, ReachTheSharedFunctions) {
  EXPECT_EQ(Number("MonthNumberFromLabel", {"january 1999"}), 1);
  EXPECT_EQ(Number("YearFromLabel", {"Jan - 1999"}), 1999);
  EXPECT_EQ(Text("MakeDateLabel", {"0", "2000"}), "Dec - 2000");
  EXPECT_EQ(Number("MonthsInclusive", {"Dec - 1999", "Jan - 2000"}), 2);
  EXPECT_EQ(Number("DayCountOfMonthIndex", {"24", "Jan - 2000"}), 365.0 / 12);
  EXPECT_EQ(Text("PadRight", {"a", "3"}), "a  ");
  EXPECT_EQ(Text("FormatMoney", {"0", "$#,###"}), "$");
  EXPECT_EQ(Text("StripCurrency", {"\x80"
                                   "5"}),
            "5");
  EXPECT_EQ(Text("FormatMoneyLetter", {"5", "$0.00"}), "$5.00");
  EXPECT_EQ(Text("StripCurrencyLetter", {"e5"}), "5");
  EXPECT_EQ(Number("PacksFromQuantity", {"0", "20"}), 1);
  EXPECT_EQ(Number("CompoundedCost", {"2", "1", "0.06"}), 2.01);
  EXPECT_EQ(Number("LinearCost", {"1", "3", "1", "2"}), 2);
}

TEST_F(Operations, FormatInTheCurrencyOfTheRun) {
  run.program.GetSession().currency = Currency::Euro;
  EXPECT_EQ(Text("FormatMoney", {"5", "$0.00"}),
            "\x80"
            "5.00");
  EXPECT_EQ(Text("FormatMoneyLetter", {"5", "$0.00"}), "e5.00");
}

TEST_F(Operations, FillAListByItsName) {
  Call("FillDateList", {"-1", "comStartPast", "Jan - 2000", "Mar - 2001", "12"});
  EXPECT_EQ(run.Smoking().Of(Side::Past).comStart->Entries().All(),
            (Texts{"Jan - 2000", "Jan - 2001", "Mar - 2001"}));
  Call("FillDateList", {"0", "comStartPast", "Dec - 1999", "Dec - 1999", "12"});
  EXPECT_EQ(run.Smoking().Of(Side::Past).comStart->Count(), 4);
}

// Arguments in the order of each function: a month of 2.00 at 1.005 is 2.01 * 30.42 = 61.1442.
TEST_F(Operations, ReckonAMonthOfEverySin) {
  EXPECT_EQ(Cells("MonthCostSmoking", {"1", "3", "2", "2", "20", "0.06", "0", "-1", "1"}),
            (Texts{"1.00", "$2.01", "$61.14", ""}));
  for (const char* sin : {"Drinking", "Soliciting"})
    EXPECT_EQ(Cells(std::string("MonthCost") + sin, {"-1", "1", "3", "2", "5", "1", "0.06", "-1", "-1", "1"}),
              (Texts{"1.00", "$2.01", "$61.14", ""}));
  for (const char* sin : {"Drinking", "Soliciting"})  // the first of three steps from 2.00 to 5.00
    EXPECT_EQ(Cells(std::string("MonthCost") + sin, {"-1", "1", "3", "2", "5", "1", "0.06", "-1", "0", "1"}),
              (Texts{"1.00", "$3.00", "$91.26", ""}));
  for (const char* sin :
       {"Gambling", "Jailing", "Drugging", "Slothing", "Tobaccoing", "Interring", "Shopping"})
    EXPECT_EQ(Cells(std::string("MonthCost") + sin, {"0", "1", "3", "2", "0.06", "0", "1"}),
              (Texts{"2.00", "$2.01", "$61.14", ""}));
  // 3.015 - 1.005 = 2.01.
  for (const char* sin : {"Coffeeing", "Watering"})
    EXPECT_EQ(
        Cells(std::string("MonthCost") + sin, {"-1", "1", "3", "3", "0", "1", "0.06", "-1", "-1", "1", "1"}),
        (Texts{"1.00", "$3.02", "$61.14", "", "$1.01", "$2.01"}));
}

// ---- The operations of a workspace ----

// Each is seen at work: the caption, the store or the screen of its own sin and side changes.
TEST_F(Operations, BearTheKeyAndTheStemOfTheirSin) {
  for (int i = 0; i < kSinCount; ++i) {
    const std::string key(Catalogue()[i].key), stem(Catalogue()[i].stem);
    SinWorkspace& ws = run.Enter(key);
    for (const Side side : kSides) {
      const std::string name(OperationSuffix(side)), suffix(ControlSuffix(side));
      SCOPED_TRACE(key + name);
      SideControls& c = ws.Of(side);
      Call(ws, "Load" + key + "Parameters" + name);
      EXPECT_EQ(c.comInterestRate1->Text(), "5%");
      Call(ws, "LabelMaker" + stem + suffix, {"2"});
      EXPECT_EQ(c.frmRates->Caption(), PeriodName(side, 2) + ": Savings and Inflation Rates");
      Call(ws, "SetPeriodParameters" + key + name, {"3"});
      EXPECT_TRUE(ws.Of(side).Record(3).PeriodSelected);
      c.comInterestRate1->SetText("9%");
      Call(ws, "Set" + key + "Parameters" + name, {"4"});
      EXPECT_EQ(ws.Of(side).Record(4).InterestRateText, "9%");
      Call(ws, "Get" + key + "Parameters" + name, {"1"});
      EXPECT_EQ(c.comInterestRate1->Text(), "5%");
      Call(ws, "CommitPeriod" + name, {"1", std::to_string(2 * i + (side == Side::Past ? 1 : 2))});
      EXPECT_TRUE(ws.Of(side).Record(1).PeriodSet);
      EXPECT_NE(c.txtResultsTotal->Text(), "");
      Call(ws, "Load" + key + "Parameters" + name);
      EXPECT_FALSE(ws.Of(side).Record(1).PeriodSet);
      Call(ws, "Initialize" + key + "Parameters" + name);
      EXPECT_EQ(ws.Of(side).Record(4).InterestRateText, "5%");
    }
    Call(ws, "Load" + key + "ParametersInitialFuture");
    // Another sin's names are not this one's.
    const std::string other(Catalogue()[(i + 1) % kSinCount].key);
    EXPECT_FALSE(Exists(ws, "Load" + other + "ParametersPast", {}));
    EXPECT_FALSE(Exists(ws, "Set" + other + "ParametersFuture", {"1"}));
    EXPECT_FALSE(Exists(ws, "LabelMaker" + key + "Future", {"1"}));
  }
}

TEST_F(Operations, ActOnTheSideOfTheirName) {
  SinWorkspace& ws = run.Enter("Drinking");
  Call(ws, "LabelMakerDrinkFut", {"3"});
  EXPECT_EQ(ws.Of(Side::Future).frmRates->Caption(), "Future Period 3: Savings and Inflation Rates");
  EXPECT_EQ(ws.Of(Side::Past).frmRates->Caption(), "Past Period 1: Savings and Inflation Rates");
  Call(ws, "SetPeriodParametersDrinkingPast", {"4"});
  EXPECT_TRUE(ws.Of(Side::Past).Record(4).PeriodSelected);
  EXPECT_FALSE(ws.Of(Side::Future).Record(4).PeriodSelected);
}

// The total of a period has two names, and in the flat-rate sins two others. What they give stands in the
// scenario period_totals_by_name; here are those that a sin has not.
TEST_F(Operations, KnowNoPeriodTotalByTheNameOfAnotherClass) {
  for (int i = 0; i < kSinCount; ++i) {
    const std::string key(Catalogue()[i].key);
    const bool flat = Catalogue()[i].costClass == CostClass::FlatRateClass;
    SinWorkspace& ws = run.Enter(key, Side::Future);
    const Texts others =
        flat ? Texts{"TotalCostInCurrentPeriodFuture", "TotalCostInCurrentPeriodPastPast"}
             : Texts{"TotalCostof" + key + "InCurrentPeriodFuture", "TotalCostInCurrentPeriodPast"};
    for (const std::string& name : others)
      EXPECT_THROW(Call(ws, name, {"3", "12", "1"}), BadCall) << key << name;
  }
}

// One month of Jailing at $80 a day with 5% and no rates: past 80 * (1 + 0.05 / 12) * 30.42 = 2443.74,
// future 80 * 30.42 = 2433.60.
TEST_F(Operations, TheFutureTotalOfJailingKnowsNoIncrease) {
  for (const Side side : kSides) {
    SinWorkspace& ws = run.Enter("Jailing", side);
    SideControls& c = ws.Of(side);
    run.Click(*c.firstUnit);
    run.Pick(*c.quantity, "$80");
    run.Pick(*c.comInterestRate1, "0%");
    run.Pick(*c.comInflationRate1, "0%");
    run.Press(ws, side);
    const std::string name =
        side == Side::Past ? "TotalCostInCurrentPeriodPast" : "TotalCostofJailingInCurrentPeriodFuture";
    EXPECT_DOUBLE_EQ(std::get<double>(Call(ws, name, {"1", "12", "1"})),
                     side == Side::Past ? 2443.74 : 2433.6);
    // The period's own cost knows it on both sides.
    ws.Of(side).Record(1).StopLabel = ws.Of(side).Record(1).StartLabel;
    EXPECT_DOUBLE_EQ(std::get<double>(Call(ws, "CostInPeriod" + std::string(OperationSuffix(side)), {"1"})),
                     2443.74);
  }
}

// 180 drinks a month at place 5, $3.00 without increase: past 180 * 3 = 540.00 a month; future takes the
// place itself for the drinks of a day, 5 * 3 * 30.42 = 456.30. Both sides of Soliciting do as the past.
TEST_F(Operations, TheFutureTotalOfDrinkingTakesThePlaceForTheQuantity) {
  for (const char* key : {"Drinking", "Soliciting"}) {
    for (const Side side : kSides) {
      SinWorkspace& ws = run.Enter(key, side);
      SideControls& c = ws.Of(side);
      const bool drinking = ws.Sin().key == "Drinking";
      run.Click(*c.secondUnit);
      run.Pick(*c.quantity, 5);  // 180 drinks, or 6 solicitations
      run.Pick(*c.comInitialCost, drinking ? "$3.00" : "$90.00");
      run.Pick(*c.comPercentIncrease, "0%");
      run.Pick(*c.comInterestRate1, "0%");
      run.Pick(*c.comInflationRate1, "0%");
      run.Press(ws, side);
      const std::string name =
          side == Side::Past ? "TotalCostInCurrentPeriodPastPast" : "TotalCostInCurrentPeriodFuture";
      EXPECT_DOUBLE_EQ(std::get<double>(Call(ws, name, {"1", "12", "1"})),
                       drinking && side == Side::Future ? 456.3 : 540);
    }
  }
}

TEST_F(Operations, WarnOfADateOutOfRange) {
  SinWorkspace& ws = run.Enter("Gambling");
  run.PickMonthly(ws, Side::Past, "$300");
  run.Commit(ws, Side::Past, "Jan - 2000", "Mar - 2000");
  const std::tuple<const char*, double, const char*> kCases[] = {
      {"Apr - 2000", 1700, "Date Beyond End Date1"},
      {"Nov - 1999", 500, "Date Before Start Date1"},
      {"Dec - 1999", 500, nullptr},
      {"Jan - 2000", 800, nullptr}};
  for (const auto& [date, balance, warning] : kCases) {
    run.platform.messages.clear();
    EXPECT_DOUBLE_EQ(std::get<double>(Call(ws, "CumulativeCostInPeriodPast", {"$500", "1", date})), balance);
    ASSERT_EQ(run.platform.messages.size(), warning == nullptr ? 0u : 1u) << date;
    if (warning == nullptr) continue;
    EXPECT_EQ(run.platform.messages[0].title, "");
    EXPECT_EQ(run.platform.messages[0].text, std::string("Warning, Date out of Range\r\n") + warning);
    EXPECT_EQ(run.platform.messages[0].buttons, MessageButtons::Ok);
  }
}

// ---- Modules ----

TEST_F(Operations, StandInTheirModule) {
  const SinRow& drinking = Catalogue()[1];
  const std::pair<const char*, const char*> kModules[] = {{"FormatMoney", "VTL_General"},
                                                          {"MonthCostSmoking", "VTL_General"},
                                                          {"CommitPeriodFuture", "VTL_CombFunctions"},
                                                          {"FineBetweenPast", "VTL_CombFunctions"},
                                                          {"AddBalloon", "ToolTipMod"},
                                                          {"TypeLine", "VTL_Developer"},
                                                          {"SetDrinkingParametersPast", "SinWorkspace"},
                                                          {"PopulateTotals", "frmCombRes"},
                                                          {"DocSinData", "frmAdvResultsDoc"}};
  for (const auto& [name, module] : kModules) EXPECT_EQ(ModuleOfOperation(drinking, name), module) << name;
  EXPECT_THROW(ModuleOfOperation(drinking, "SetSmokingParametersPast"), BadCall);
}

// ---- All of them ----

// The name in that sin, on that side.
std::string NameIn(const SinRow& sin, Side side, std::string name) {
  const std::pair<std::string_view, std::string_view> kPlaceholders[] = {{"{Key}", sin.key},
                                                                         {"{Stem}", sin.stem},
                                                                         {"{Side}", OperationSuffix(side)},
                                                                         {"{Suffix}", ControlSuffix(side)}};
  for (const auto& [placeholder, text] : kPlaceholders)
    if (const std::size_t at = name.find(placeholder); at != std::string::npos)
      name.replace(at, placeholder.size(), text);
  return name;
}

// A scenario that calls an operation shows what it gives and does, on both drivers.
TEST_F(Operations, AreEachCalledInAScenario) {
  std::set<std::string> called;
  for (const auto& entry : std::filesystem::directory_iterator(VICETOLL_CHECKOUT "/tests/scenarios")) {
    if (entry.path().extension() != ".scenario") continue;
    std::ifstream file(entry.path());
    for (std::string line; std::getline(file, line);) {
      std::istringstream words(line);
      std::string command, name;
      if (words >> command >> name && command == "call") called.insert(name);
    }
  }
  ASSERT_GE(called.size(), 100u) << "the scenarios were not found";
  for (const Operation& operation : vicetoll::Operations()) {
    bool found = false;
    for (const SinRow& sin : Catalogue())
      for (const Side side : kSides) found |= called.contains(NameIn(sin, side, std::string(operation.name)));
    EXPECT_TRUE(found) << operation.name;
  }
}

// ---- Bad calls ----

TEST_F(Operations, RefuseWhatTheyCannotUnderstand) {
  EXPECT_THROW(Call("NoSuchOperation"), BadCall);
  EXPECT_THROW(Call("CostInPeriod", {"1"}), BadCall);
  EXPECT_THROW(Call("PadRight", {"a"}), BadCall);
  EXPECT_THROW(Call("PadRight", {"a", "1", "2"}), BadCall);
  EXPECT_THROW(Call("PadRight", {"a", "wide"}), BadCall);
  EXPECT_THROW(Call("FillDateList", {"-1", "cmdExit", "Jan - 2000", "Jan - 2001", "12"}), BadCall);
  EXPECT_THROW(Call("FillDateList", {"-1", "nothing", "Jan - 2000", "Jan - 2001", "12"}), BadCall);
}

TEST_F(Operations, AnswerWithTheFaultsOfWhatTheyCall) {
  EXPECT_EQ(FaultOf([&] { Call("YearFromLabel", {"Jan"}); }), FaultKind::Conversion);
  EXPECT_EQ(FaultOf([&] { Call("MakeDateLabel", {"40000", "2000"}); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([&] { Call("CostInPeriodPast", {"5"}); }), FaultKind::Index);
  EXPECT_EQ(FaultOf([&] { Call("CommitPeriodPast", {"1", "25"}); }), FaultKind::Index);
  EXPECT_EQ(FaultOf([&] { Call("ShowSinChooser", {"12"}); }), FaultKind::Index);
}

}  // namespace
}  // namespace vicetoll
