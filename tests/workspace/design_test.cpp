// SPDX-License-Identifier: GPL-3.0-or-later
// What stands on a workspace before anyone has touched it.
#include <set>

#include "program_fixture.h"

namespace vicetoll {
namespace {

class Design : public testing::TestWithParam<int> {
 protected:
  const int position = GetParam();
  const SinRow& sin = Catalogue()[position];
  ScriptedPlatform platform;
  Session session{platform};
  SinWorkspace ws{session, position};

  bool IsSmoking() const { return sin.key == "Smoking"; }
  std::string Caption(const std::string& name) const { return ws.Get<CaptionedControl>(name).Caption(); }
  std::string Caption(const std::string& name, int index) const {
    return ws.Get<CaptionedControl>(name, index).Caption();
  }
  // The name of what a control stands in; empty for the window itself.
  std::string ContainerOf(const std::string& name) const {
    const Control* container = ws.Find(name)->Container();
    return container == nullptr ? "" : container->FullName();
  }
};
INSTANTIATE_TEST_SUITE_P(, Design, testing::Range(0, kSinCount),
                         [](const testing::TestParamInfo<int>& tested) {
                           return std::string(Catalogue()[tested.param].key);
                         });

class Names {
 public:
  explicit Names(std::string suffix) : suffix_(std::move(suffix)) {}
  void Add(std::initializer_list<std::string> names) {
    for (const std::string& name : names) all_.insert(name + suffix_);
  }
  void AddPlain(std::initializer_list<std::string> names) { all_.insert(names.begin(), names.end()); }
  void AddArray(const std::string& name, int first, int last) {
    for (int i = first; i <= last; ++i) all_.insert(name + suffix_ + "(" + std::to_string(i) + ")");
  }
  const std::set<std::string>& All() const { return all_; }

 private:
  std::string suffix_;
  std::set<std::string> all_;
};

// The controls of a side: what all sins have, what the class demands, what the sin alone has.
std::set<std::string> SideNames(const SinRow& sin, Side side) {
  const bool past = side == Side::Past;
  const std::string key(sin.key), stem(sin.stem), word(OperationSuffix(side));
  Names names{std::string(ControlSuffix(side))};
  names.Add({"frmSetStart",
             "comStart",
             "optFineDateStart",
             "optCourseDateStart",
             "frmSetStop",
             "comStop",
             "optFineDateStop",
             "optCourseDateStop",
             "frmDaily",
             "frmCostChange",
             "comPercentIncrease",
             "frmRates",
             "comInterestRate1",
             "comInflationRate1",
             "lblInterestRate",
             "lblInflationRate",
             "cmdSetPeriodParams",
             "frmResults",
             "txtResultsTotal",
             "cmdAdvResultsSpd",
             "cmdAdvResultsDoc",
             "txtResultsTotalSummary",
             "lblResultsTotalSummary",
             "lblSummaryButtons",
             "cmdAdvResultsDocSummary",
             "cmdAdvResultsSpdSummary"});
  names.AddArray("frmEnabledDisabledPeriod", 1, 4);
  names.AddArray("rbnEnabledPeriod", 1, 4);
  names.AddArray("rbnDisabledPeriod", 1, 4);
  names.AddArray("optTimePeriod", 1, 4);
  names.AddArray("lblResultsPeriod", 1, 8);
  names.AddArray("txtResultsPeriod", 1, 8);
  names.AddArray("txtCumulativeResultsPeriod", 1, 8);
  names.AddArray("lblFirstDate", 1, 4);
  names.AddArray("lblLastDate", 1, 4);
  names.AddPlain({"lblCumulativePeriods" + word, "lblIndividualPeriod" + word});
  names.AddPlain({past ? "frmSetTime" + key + "Period" : "SSFrame1"});
  names.AddPlain({past ? "frmSummaryPast" : "frmSummaryfut"});
  names.AddPlain(past ? std::initializer_list<std::string>{"Label1", "Label2"}
                      : std::initializer_list<std::string>{"Label4", "Label6"});
  names.AddPlain({past ? "lblResultsPastTotal" : key == "Slothing" ? "Label5" : "lblResultsFutTotal"});
  const std::set<std::string> kOwnFrame = {"Drinking", "Coffeeing", "Watering", "Soliciting", "Shopping"};
  names.Add({kOwnFrame.contains(key) ? "frmEnableDisable" + key : "frmEnableDisable"});

  switch (sin.costClass) {
    case CostClass::PacksClass:
      names.Add({"OptPacksPerDay", "OptCigsPerDay", "comPacksPerDay", "comCigsPerDay", "lblSmokesPerDay",
                 "lblCigCost", "lblCigPercentIncrease", "comInitialCost", "comFinalCost"});
      break;
    case CostClass::FlatRateClass:
      names.Add({"optPerDay", "optPerMonth", "comCostof", "lblCostOf", "lbl" + stem + "PercentIncrease"});
      break;
    case CostClass::UnitsClass:
      names.Add({"comFinalCost"});
      [[fallthrough]];
    case CostClass::NetUnitsClass:
      names.Add({"optPerDay", "optPerMonth", "comPerPeriod", "comInitialCost", "lbl" + stem + "sPerDay",
                 "lbl" + stem + "Cost", "lbl" + stem + "PercentIncrease"});
  }
  if (HasCostModes(sin.costClass)) names.Add({"OptCigPercentCostIncrease", "OptCigInitialFinalCostIncrease"});
  if (sin.costClass == CostClass::NetUnitsClass) names.Add({"comSubCost", "lblSubCost"});
  if (key == "Drinking") names.Add({"comCigsPerDay"});
  if (key == "Smoking") names.Add({"cmdHideAdvertising"});
  if (key == "Smoking" && past) names.AddPlain({"cmdOrvaneWebsite"});
  return names.All();
}

TEST_P(Design, HasTheControlsOfItsClassAndNoOthers) {
  Names common{""};
  common.AddPlain({"SSTab_PastFutureSwitch",
                   "cmdFaq",
                   "cmdHelp",
                   "cmdExit",
                   "frmToolTipOnOff",
                   "optToolTipDisable",
                   "optToolTipEnable",
                   "cmdCombinedResults",
                   "cmdSwitchSins",
                   "frmSummarytot",
                   "lblResultsTotalSummaryTot",
                   "txtResultsTotalSummaryTot",
                   "lblCumulativeResultsTotalSummaryTot",
                   "txtCumulativeResultsTotalSummaryTot",
                   "lblSummaryButtonsTot",
                   "cmdAdvResultsDocSummaryTot",
                   "cmdAdvResultsSpdSummaryTot",
                   "frmCumulativeResultsTotalFutureDateTot",
                   "lblCumulativeFutureDateTot",
                   "comCumulativeFutureDateTot",
                   "lblInterestRateFutureDateTot",
                   "comInterestRateFutureDateTot",
                   "lblInflationRateFutureDateTot",
                   "comInflationRateFutureDateTot",
                   "cmdCumulativeFutureDateTot",
                   "txtCumulativeFutureDateTot"});
  common.AddArray("SSPanel_BackColor", 0, 2);
  common.AddArray("lblTo", 1, 8);
  if (IsSmoking()) common.AddPlain({"cmdEuro"});
  if (IsSmoking() || sin.key == "Interring") common.AddPlain({"cmdRestoreProgram", "cmdRevealDeveloper"});
  std::set<std::string> expected = common.All();
  for (const Side side : kSides) expected.merge(SideNames(sin, side));
  std::set<std::string> names;
  for (const auto& control : ws.Controls()) names.insert(control->FullName());
  EXPECT_EQ(names, expected);
}

TEST_P(Design, StandsOnItsTabsAndFrames) {
  for (const Side side : kSides) {
    const std::string suffix(ControlSuffix(side));
    const std::string panel = side == Side::Past ? "SSPanel_BackColor(0)" : "SSPanel_BackColor(1)";
    for (const char* frame :
         {"frmSetStart", "frmSetStop", "frmDaily", "frmCostChange", "frmRates", "frmResults"})
      EXPECT_EQ(ContainerOf(frame + suffix), panel) << frame;
    EXPECT_EQ(ContainerOf(std::string(sin.enableFrameName) + suffix), panel);
    EXPECT_EQ(ContainerOf("comStart" + suffix), "frmSetStart" + suffix);
    EXPECT_EQ(ContainerOf("optFineDateStop" + suffix), "frmSetStop" + suffix);
    EXPECT_EQ(ContainerOf("comPercentIncrease" + suffix), "frmCostChange" + suffix);
    EXPECT_EQ(ContainerOf("comInterestRate1" + suffix), "frmRates" + suffix);
    EXPECT_EQ(ContainerOf("cmdSetPeriodParams" + suffix), "SSTab_PastFutureSwitch");
    EXPECT_EQ(ContainerOf("txtResultsPeriod" + suffix + "(4)"), "frmResults" + suffix);
    EXPECT_EQ(ContainerOf("txtResultsPeriod" + suffix + "(5)"),
              side == Side::Past ? "frmSummaryPast" : "frmSummaryfut");
    EXPECT_EQ(ContainerOf("rbnEnabledPeriod" + suffix + "(3)"), "frmEnabledDisabledPeriod" + suffix + "(3)");
    EXPECT_EQ(ContainerOf("frmEnabledDisabledPeriod" + suffix + "(3)"),
              std::string(sin.enableFrameName) + suffix);
    EXPECT_EQ(ContainerOf("optTimePeriod" + suffix + "(1)"),
              side == Side::Past ? std::string(sin.timePeriodFrameName) : "SSFrame1");
    EXPECT_EQ(ws.Get<Button>("cmdSetPeriodParams" + suffix).Page(), side == Side::Past ? 0 : 1);
    const SideControls& c = ws.Of(side);
    EXPECT_EQ(c.quantity->Container(), c.frmDaily);
    EXPECT_EQ(c.quantityLabel->Container(), c.frmDaily);
    EXPECT_EQ(c.firstUnit->Container(), c.frmDaily);
    if (c.comInitialCost != nullptr) {
      EXPECT_EQ(c.comInitialCost->Container(), c.frmCostChange);
    }
  }
  EXPECT_EQ(ContainerOf("comCumulativeFutureDateTot"), "frmCumulativeResultsTotalFutureDateTot");
  EXPECT_EQ(ContainerOf("frmSummarytot"), "SSPanel_BackColor(2)");
  EXPECT_EQ(ContainerOf("lblTo(4)"), "frmSummaryPast");
  EXPECT_EQ(ContainerOf("lblTo(5)"), "frmSummaryfut");
  EXPECT_EQ(ContainerOf("cmdExit"), "");
  EXPECT_EQ(ContainerOf("optToolTipEnable"), "frmToolTipOnOff");
}

TEST_P(Design, CaptionsCarryTheTitleWord) {
  const std::string T(sin.titleWord);
  for (const Side side : kSides) {
    const std::string suffix(ControlSuffix(side)), word(OperationSuffix(side));
    EXPECT_EQ(Caption("frmResults" + suffix), word + " " + T + " Results");
    for (int i = 1; i <= 8; ++i)
      EXPECT_EQ(Caption("lblResultsPeriod" + suffix, i),
                "Period " + std::to_string(i > 4 ? i - 4 : i) + ": " + word + " " + T);
    EXPECT_EQ(Caption(side == Side::Past ? "lblResultsPastTotal" : std::string(sin.futureTotalLabelName)),
              "Total: " + word + " " + T);
    EXPECT_EQ(Caption("lblResultsTotalSummary" + suffix), "Total: " + word + " " + T);
    EXPECT_EQ(Caption(side == Side::Past ? "frmSummaryPast" : "frmSummaryfut"), "Summary: " + word + " " + T);
    EXPECT_EQ(Caption("lblSummaryButtons" + suffix),
              "Detailed Results on " + word + " " + std::string(sin.summaryWord));
  }
  EXPECT_EQ(Caption("frmCumulativeResultsTotalFutureDateTot"), "TOTAL " + T + " at Future Date");
  EXPECT_EQ(Caption("lblCumulativeResultsTotalSummaryTot"), "TOTAL " + T + " (Cumulative)");
  EXPECT_EQ(Caption("lblResultsTotalSummaryTot"), "TOTAL " + T + " (Out of Pocket)");
  EXPECT_EQ(Caption("frmSummarytot"), sin.totalFrame);
  EXPECT_EQ(Caption("lblSummaryButtonsTot"),
            "Detailed Results on (Past + Future) " + std::string(sin.summaryTotWord));
  EXPECT_EQ(ws.Caption(), sin.designCaption);
}

TEST_P(Design, CaptionsAlikeInAllSins) {
  const std::pair<const char*, const char*> kWhole[] = {
      {"cmdFaq", "FAQ and Info"},
      {"cmdHelp", "Help"},
      {"cmdExit", "Exit Program"},
      {"frmToolTipOnOff", "Balloon Help: Enable or Disable"},
      {"optToolTipDisable", "Disable"},
      {"optToolTipEnable", "Enable"},
      {"cmdCombinedResults", "Combined Sins Results"},
      {"cmdSwitchSins", "Switch Sins"},
      {"SSFrame1", "Set Time Period"},
      {"Label1", "Cumulative Cost"},
      {"Label2", "Out of Pocket Expense"},
      {"Label4", "Cumulative Cost"},
      {"Label6", "Out of Pocket Expense"},
      {"lblCumulativeFutureDateTot", "Future Date"},
      {"lblInterestRateFutureDateTot", "Future Savings Rate"},
      {"lblInflationRateFutureDateTot", "Future Inflation Rate"},
      {"cmdCumulativeFutureDateTot", "Update"},
      {"lblCumulativePeriodsPast", "Cumulative Cost"},
      {"lblCumulativePeriodsFuture", "Cumulative Cost"},
      {"lblIndividualPeriodPast", "Out of Pocket Expense"},
      {"lblIndividualPeriodFuture", "Out of Pocket Expense"},
      {"cmdAdvResultsDocSummaryTot", "Advanced Results (Document Style)"},
      {"cmdAdvResultsSpdSummaryTot", "Advanced Results (Spreadsheet Style)"},
      {"lblTo(1)", "To"},
      {"lblFirstDatePast(1)", "Jan - 2000"},
      {"lblLastDatePast(4)", "Jan - 2007"},
      {"lblFirstDateFut(1)", "Jan - 2010"},
      {"lblLastDateFut(4)", "Jan - 2020"},
  };
  for (const auto& [name, caption] : kWhole)
    EXPECT_EQ(dynamic_cast<CaptionedControl&>(*ws.Find(name)).Caption(), caption) << name;
  const std::pair<const char*, const char*> kSided[] = {
      {"optFineDateStart", "Fine: 1 Month"},
      {"optFineDateStop", "Fine: 1 Month"},
      {"optCourseDateStart", "Course: 6-12 Months"},
      {"optCourseDateStop", "Course: 6-12 Months"},
      {"lblInterestRate", "Yearly Interest Rate, Gain, or Yield on Banked Money (%)"},
      {"lblInflationRate", "Yearly Inflation Rate (%)"},
      {"cmdAdvResultsSpd", "Advanced Results (Spreadsheet Style)"},
      {"cmdAdvResultsDoc", "Advanced Results (Document Style)"},
      {"cmdAdvResultsSpdSummary", "Advanced Results (Spreadsheet Style)"},
      {"cmdAdvResultsDocSummary", "Advanced Results (Document Style)"},
  };
  for (const Side side : kSides) {
    const SideControls& c = ws.Of(side);
    const std::string start = PeriodName(side, 1);
    for (const auto& [name, caption] : kSided)
      EXPECT_EQ(Caption(name + std::string(ControlSuffix(side))), caption) << name;
    for (int p = 1; p <= 4; ++p) {
      EXPECT_EQ(c.optTimePeriod(p).Caption(), PeriodName(side, p));
      EXPECT_EQ(c.frmEnabledDisabledPeriod(p).Caption(), PeriodName(side, p));
      EXPECT_EQ(c.rbnEnabledPeriod(p).Caption(), "Enabled");
      EXPECT_EQ(c.rbnDisabledPeriod(p).Caption(), "Disabled");
    }
    EXPECT_EQ(c.cmdSetPeriodParams->Caption(), "Set " + start + " Parameters");
    EXPECT_EQ(c.frmRates->Caption(), start + ": Savings and Inflation Rates");
    EXPECT_EQ(c.frmSetStart->Caption(), start + std::string(sin.startSuffix[side]));
    EXPECT_EQ(c.frmSetStop->Caption(), start + std::string(sin.stopSuffix[side]));
    EXPECT_EQ(c.frmDaily->Caption(), start + std::string(sin.designDailySuffix[side]));
    EXPECT_EQ(c.frmCostChange->Caption(), start + std::string(sin.designCostChangeSuffix[side]));
    EXPECT_EQ(c.firstUnit->Caption(), IsSmoking() ? "Packs (20 Cigs.)" : "Per Day");
    EXPECT_EQ(c.secondUnit->Caption(), IsSmoking() ? "Cigarettes" : "Per Month");
  }
}

TEST_P(Design, ToolTipsExplainDatesPeriodsAndResults) {
  for (const Side side : kSides) {
    const SideControls& c = ws.Of(side);
    const std::string suffix(ControlSuffix(side)), word(OperationSuffix(side)), date(sin.dateTipWord);
    EXPECT_EQ(c.comStart->ToolTip(), "Start " + date + " Date for Period");
    EXPECT_EQ(c.comStop->ToolTip(), "Stop " + date + " Date for Period");
    EXPECT_EQ(c.optFineDateStart->ToolTip(), "+/- 6 months of Combo Value if Allowed");
    EXPECT_EQ(c.optFineDateStop->ToolTip(), "+/- 6 months of Combo Value if Allowed");
    EXPECT_EQ(c.optCourseDateStart->ToolTip(), "");
    EXPECT_EQ(c.optTimePeriod(1).ToolTip(), "");
    for (int p = 2; p <= 4; ++p)
      EXPECT_EQ(c.optTimePeriod(p).ToolTip(), "Set to This Option to Define Period " + std::to_string(p));
    EXPECT_EQ(c.cmdAdvResultsSpd->ToolTip(), "Month by Month Results in an Excel Type Spreadsheet");
    // The word of the smoker, misspelt, in all sins.
    EXPECT_EQ(ws.Get<Label>("lblIndividualPeriod" + word).ToolTip(),
              "Direct Out of Pocket Expense for Cigarrettes for Each Period");
    EXPECT_EQ(ws.Get<Label>("lblCumulativePeriods" + word).ToolTip(),
              "Cumulative Out of Pocket Expense + Accrued Interest if Money Saved");
    EXPECT_EQ(ws.Get<Label>(side == Side::Past ? "lblResultsPastTotal" : sin.futureTotalLabelName).ToolTip(),
              "Simple Addition of Periods (No Interest Between Periods)");
  }
}

TEST_P(Design, StartsWithItsOptionsSetAndItsResultsShut) {
  for (const Side side : kSides) {
    const SideControls& c = ws.Of(side);
    EXPECT_TRUE(c.optCourseDateStart->Value() && c.optCourseDateStop->Value());
    EXPECT_EQ(c.firstUnit->Value(), sin.startUnit == Unit::PerDay);
    EXPECT_EQ(c.secondUnit->Value(), sin.startUnit == Unit::PerMonth);
    if (c.OptCigPercentCostIncrease != nullptr) {
      EXPECT_TRUE(c.OptCigPercentCostIncrease->Value());
    }
    for (int p = 1; p <= 4; ++p) {
      EXPECT_EQ(c.optTimePeriod(p).Value(), p == 1);
      EXPECT_EQ(c.optTimePeriod(p).Colour(), kRed);
      EXPECT_TRUE(c.rbnEnabledPeriod(p).Value());
      EXPECT_FALSE(c.rbnDisabledPeriod(p).Value());
      EXPECT_TRUE(c.txtResultsPeriod(p).Visible());
      EXPECT_FALSE(c.txtResultsPeriod(p + 4).Visible() || c.txtResultsPeriod(p + 4).Enabled());
      EXPECT_FALSE(c.txtCumulativeResultsPeriod(p + 4).Visible());
      EXPECT_EQ(c.txtResultsPeriod(p).Text(), "");
    }
    for (const Button* button :
         {c.cmdAdvResultsDoc, c.cmdAdvResultsSpd, c.cmdAdvResultsDocSummary, c.cmdAdvResultsSpdSummary})
      EXPECT_FALSE(button->Enabled());
  }
  EXPECT_FALSE(ws.cmdAdvResultsDocSummaryTot->Enabled() || ws.cmdAdvResultsSpdSummaryTot->Enabled());
  EXPECT_EQ(ws.comInterestRateFutureDateTot->Text(), "5%");
  EXPECT_EQ(ws.comInflationRateFutureDateTot->Text(), "3%");
  EXPECT_TRUE(ws.Get<Option>("optToolTipEnable").Value());
  EXPECT_EQ(ws.SSTab_PastFutureSwitch->Tab(), kPastTab);
  EXPECT_EQ(ws.SSTab_PastFutureSwitch->PageCaptions(),
            (std::vector<std::string>{"&PAST", "FUT&URE", "&TOTAL"}));
}

// All that is shut or hidden at the start; everything else is open.
TEST_P(Design, IsOtherwiseOpen) {
  for (const auto& control : ws.Controls()) {
    const std::string& name = control->Name();
    const bool copy = control->Index() > 4 && name.starts_with("txt");
    EXPECT_EQ(control->Enabled(), !copy && !name.starts_with("cmdAdvResults")) << control->FullName();
    EXPECT_EQ(control->Visible(), !copy && name != "cmdRevealDeveloper") << control->FullName();
  }
}

TEST_P(Design, ListsTakeNoTyping) {
  for (const auto& control : ws.Controls())
    if (const auto* list = dynamic_cast<const DropDownList*>(control.get())) {
      EXPECT_FALSE(list->TakesTyping()) << list->FullName();
    }
}

// The words that a control of a few sins has, letter for letter.
TEST(DesignWords, OfParticularSins) {
  struct Word {
    const char* key;
    const char* control;
    const char* caption;
  };
  const Word kWords[] = {
      {"Smoking", "cmdEuro", "Replace $ With Euro Symbol Throughout Program"},
      {"Smoking", "cmdRestoreProgram", "Restore Program"},
      {"Smoking", "frmSetStartPast", "Past Period 1: Date Started Smoking"},
      {"Smoking", "frmSetStopFut", "Future Period 1: Date Stopped Smoking"},
      {"Smoking", "frmDailyPast", "Past Period 1: Daily Smoking"},
      {"Smoking", "frmCostChangePast", "Past Period 1: Cigarette Cost Change"},
      {"Smoking", "lblSmokesPerDayPast", "Packs Per Day"},
      {"Smoking", "lblCigCostPast", "Cost per Pack"},
      {"Smoking", "lblCigPercentIncreaseFut", "Yearly Increase Cost (%) of Cigarettes"},
      {"Smoking", "OptCigPercentCostIncreasePast",
       "Percent Yearly Increase In Cost of Cigarettes During Period"},
      {"Smoking", "OptCigInitialFinalCostIncreasePast", "Initial and Final Cost of Cigarettes In Period"},
      {"Smoking", "frmEnableDisablePast", "Enable/Disable Periods of Smoking"},
      {"Smoking", "frmSummarytot", "TOTAL ASHTOLL"},
      {"Smoking", "lblSummaryButtonsTot", "Detailed Results on (Past + Future) Smoking"},
      {"Drinking", "OptCigInitialFinalCostIncreaseFut", "Initial and Final Cost of Alcohol In Period"},
      {"Drinking", "OptCigInitialFinalCostIncreasePast", "Initial and Final Alcohol In Period"},
      {"Drinking", "lblDrinkPercentIncreasePast", "Yearly Increase Cost (%) of Alcohol"},
      {"Drinking", "lblDrinkCostFut", "Cost Per Drink"},
      {"Soliciting", "OptCigPercentCostIncreaseFut",
       "Percent Yearly Increase In Solicitation Cost During Period"},
      {"Soliciting", "OptCigInitialFinalCostIncreasePast", "Initial and Final Solicitaiton Cost In Period"},
      {"Soliciting", "lblSolicitesPerDayFut", "Solicitations Per Month"},
      {"Coffeeing", "lblSubCostPast", "Subtract Reasonable Cost of a Coffee"},
      {"Watering", "lblSubCostFut", "Subtract Reasonable Cost of a Water"},
      {"Coffeeing", "lblSummaryButtonsPast", "Detailed Results on Past Coffee Drinking"},
      {"Coffeeing", "lblSummaryButtonsTot", "Detailed Results on (Past + Future) Coffee"},
      {"Gambling", "frmDailyPast", "Past Period 1:Gambling Cost"},
      {"Gambling", "lblCostOfFut", "Dicetoll, Per Day"},
      {"Gambling", "lblGamblePercentIncreasePast", "Yearly Increase In Gambling Rate"},
      {"Jailing", "frmEnableDisableFut", "Enable/Disable Periods In Jail"},
      {"Jailing", "frmEnableDisablePast", "Enable/Disable Periods in Jail"},
      {"Jailing", "frmSetStopPast", "Past Period 1: Date Released from Jail"},
      {"Jailing", "frmSetStopFut", "Future Period 1: Released from Jail"},
      {"Jailing", "lblCostOfPast", "Celltoll (Lost Wages), Per Month"},
      {"Slothing", "Label5", "Total: Future Sofatoll"},
      {"Interring", "lblInternetPercentIncreaseFut", "Yearly Increase In Internet Sub Rate"},
      {"Shopping", "frmEnableDisableShoppingPast", "Enable/Disable Periods of Shopping"},
      {"Shopping", "lblShopPercentIncreasePast", "Yearly Increase Cost (%) For Shopping"},
  };
  ScriptedPlatform platform;
  Session session(platform);
  for (const Word& word : kWords) {
    const SinWorkspace ws(session, SinPosition(word.key));
    EXPECT_EQ(ws.Get<CaptionedControl>(word.control).Caption(), word.caption)
        << word.key << ": " << word.control;
  }
}

}  // namespace
}  // namespace vicetoll
