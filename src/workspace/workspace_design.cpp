#include "workspace/workspace_design.h"

namespace vicetoll {
namespace {

constexpr std::string_view kFineTip = "+/- 6 months of Combo Value if Allowed";
constexpr std::string_view kSpreadsheetCaption = "Advanced Results (Spreadsheet Style)";
constexpr std::string_view kDocumentCaption = "Advanced Results (Document Style)";

std::string Text(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (std::string_view part : parts) text += part;
  return text;
}

// "Past" and "Future", as captions of results have it.
std::string_view Word(Side side) { return OperationSuffix(side); }

// Makes the controls of one window. Containers are handed on as places to stand in.
class Designer {
 public:
  explicit Designer(SinWorkspace& workspace) : ws_(workspace), sin_(workspace.Sin()) {}

  void Window() {
    tab_ = &ws_.Add<TabControl>({"SSTab_PastFutureSwitch"});
    ws_.SSTab_PastFutureSwitch = tab_;
    for (int page = kPastTab; page <= kTotalTab; ++page)
      panels_[page] = &ws_.Add<Panel>({"SSPanel_BackColor", page, tab_, page});
    SideTab(Side::Past);
    SideTab(Side::Future);
    TotalTab();
    BottomRow();
  }

 private:
  struct Container {
    Control* control = nullptr;
    int page = kAnyPage;
  };

  template <class T, class... Args>
  T* Make(Container in, std::string name, Args&&... args) {
    return MakeElement<T>(in, std::move(name), kNoIndex, std::forward<Args>(args)...);
  }
  template <class T, class... Args>
  T* MakeElement(Container in, std::string name, int index, Args&&... args) {
    return &ws_.Add<T>({std::move(name), index, in.control, in.page}, std::forward<Args>(args)...);
  }

  std::string Sided(std::string_view name) const { return Text({name, ControlSuffix(side_)}); }
  Container On(Tab page) { return {tab_, page}; }
  Container InPanel(Tab page) { return {panels_[page]}; }

  Frame* SidedFrame(Tab page, std::string_view name, std::string_view caption) {
    return Make<Frame>(InPanel(page), Sided(name), caption);
  }

  // "Past Period 1" and a suffix.
  std::string PeriodOne(std::string_view suffix) const { return Text({PeriodPrefix(side_), "1", suffix}); }

  // Two options of which the first is on or the second.
  void Pair(Option*& first, Option*& second, bool firstIsOn) {
    ChoiceGroup& group = ws_.AddGroup();
    first->JoinGroup(group);
    second->JoinGroup(group);
    (firstIsOn ? first : second)->SetValue(true);
  }

  void SideTab(Side side) {
    side_ = side;
    const Tab page = side == Side::Past ? kPastTab : kFutureTab;
    SideControls& c = ws_.Of(side);
    TimePeriods(c, page);
    Dates(c.frmSetStart, page, "frmSetStart", sin_.startSuffix[side], "comStart", "Start ", c.comStart,
          "optFineDateStart", c.optFineDateStart, "optCourseDateStart", c.optCourseDateStart);
    Dates(c.frmSetStop, page, "frmSetStop", sin_.stopSuffix[side], "comStop", "Stop ", c.comStop,
          "optFineDateStop", c.optFineDateStop, "optCourseDateStop", c.optCourseDateStop);
    Quantity(c, page);
    CostChange(c, page);
    c.frmRates = SidedFrame(page, "frmRates", PeriodOne(": Savings and Inflation Rates"));
    Make<Label>({c.frmRates}, Sided("lblInterestRate"),
                "Yearly Interest Rate, Gain, or Yield on Banked Money (%)");
    c.comInterestRate1 = Make<DropDownList>({c.frmRates}, Sided("comInterestRate1"));
    Make<Label>({c.frmRates}, Sided("lblInflationRate"), "Yearly Inflation Rate (%)");
    c.comInflationRate1 = Make<DropDownList>({c.frmRates}, Sided("comInflationRate1"));
    c.cmdSetPeriodParams = Make<Button>(On(page), Sided("cmdSetPeriodParams"),
                                        Text({"Set ", PeriodPrefix(side), "1 Parameters"}));
    EnableRadios(c, page);
    Results(c, page);
    if (sin_.startsTheProgram) {
      Make<Button>(On(page), Sided("cmdHideAdvertising"), Text({kWebAddress, " Click to Hide This AD"}));
      if (side == Side::Past)
        Make<Button>(On(page), "cmdOrvaneWebsite", Text({"Go To ", kWebAddress, " Website"}));
    }
  }

  void TimePeriods(SideControls& c, Tab page) {
    // Only the PAST tab's frame bears the sin's name.
    const std::string name(side_ == Side::Past ? sin_.timePeriodFrameName : "SSFrame1");
    Frame* frame = Make<Frame>(InPanel(page), name, "Set Time Period");
    ChoiceGroup& group = ws_.AddGroup();
    for (int p = 1; p <= kPeriodCount; ++p) {
      const std::string number = std::to_string(p);
      Option* option =
          MakeElement<Option>({frame}, Sided("optTimePeriod"), p, Text({PeriodPrefix(side_), number}));
      option->SetColour(kRed);
      option->JoinGroup(group);
      if (p > 1) option->SetToolTip("Set to This Option to Define Period " + number);
      c.optTimePeriod.Set(p, *option);
    }
    c.optTimePeriod(1).SetValue(true);
  }

  void Dates(Frame*& frame, Tab page, std::string_view frameName, std::string_view suffix,
             std::string_view listName, std::string_view tipStart, DropDownList*& list,
             std::string_view fineName, Option*& fine, std::string_view courseName, Option*& course) {
    frame = SidedFrame(page, frameName, PeriodOne(suffix));
    list = Make<DropDownList>({frame}, Sided(listName));
    list->SetToolTip(Text({tipStart, sin_.dateTipWord, " Date for Period"}));
    fine = Make<Option>({frame}, Sided(fineName), "Fine: 1 Month");
    fine->SetToolTip(kFineTip);
    course = Make<Option>({frame}, Sided(courseName), "Course: 6-12 Months");
    Pair(fine, course, false);
  }

  void Quantity(SideControls& c, Tab page) {
    c.frmDaily = SidedFrame(page, "frmDaily", PeriodOne(sin_.designDailySuffix[side_]));
    const Container in{c.frmDaily};
    switch (sin_.costClass) {
      case CostClass::PacksClass:
        c.firstUnit = Make<Option>(in, Sided("OptPacksPerDay"), "Packs (20 Cigs.)");
        c.secondUnit = Make<Option>(in, Sided("OptCigsPerDay"), "Cigarettes");
        c.quantity = Make<DropDownList>(in, Sided("comPacksPerDay"));
        break;
      case CostClass::FlatRateClass:
        PerDayOrMonth(c);
        c.quantity = Make<DropDownList>(in, Sided("comCostof"));
        break;
      default:
        PerDayOrMonth(c);
        c.quantity = Make<DropDownList>(in, Sided("comPerPeriod"));
    }
    Pair(c.firstUnit, c.secondUnit, sin_.startUnit == Unit::PerDay);
    if (sin_.hasCigaretteList) c.comCigsPerDay = Make<DropDownList>(in, Sided("comCigsPerDay"));
    const bool flat = sin_.costClass == CostClass::FlatRateClass;
    c.quantityLabel = Make<Label>(in, Sided(flat ? sin_.costLabelName : sin_.quantityLabelName),
                                  flat ? sin_.costLabelDesign : sin_.quantityLabelDesign);
  }

  void PerDayOrMonth(SideControls& c) {
    c.firstUnit = Make<Option>({c.frmDaily}, Sided("optPerDay"), "Per Day");
    c.secondUnit = Make<Option>({c.frmDaily}, Sided("optPerMonth"), "Per Month");
  }

  void CostChange(SideControls& c, Tab page) {
    c.frmCostChange = SidedFrame(page, "frmCostChange", PeriodOne(sin_.designCostChangeSuffix[side_]));
    const Container in{c.frmCostChange};
    if (HasCostModes(sin_.costClass)) {
      c.OptCigPercentCostIncrease =
          Make<Option>(in, Sided("OptCigPercentCostIncrease"), sin_.percentOptionCaption[side_]);
      c.OptCigInitialFinalCostIncrease =
          Make<Option>(in, Sided("OptCigInitialFinalCostIncrease"), sin_.initialFinalOptionCaption[side_]);
      Pair(c.OptCigPercentCostIncrease, c.OptCigInitialFinalCostIncrease, true);
    }
    if (sin_.costClass != CostClass::FlatRateClass) {
      c.costLabel = Make<Label>(in, Sided(sin_.costLabelName), sin_.costLabelDesign);
      c.comInitialCost = Make<DropDownList>(in, Sided("comInitialCost"));
    }
    if (sin_.costClass == CostClass::NetUnitsClass) {
      Make<Label>(in, Sided("lblSubCost"), sin_.subCostLabel);
      c.comSubCost = Make<DropDownList>(in, Sided("comSubCost"));
    }
    c.percentLabel = Make<Label>(in, Sided(sin_.percentLabelName), sin_.percentLabelDesign);
    if (HasCostModes(sin_.costClass)) c.comFinalCost = Make<DropDownList>(in, Sided("comFinalCost"));
    c.comPercentIncrease = Make<DropDownList>(in, Sided("comPercentIncrease"));
  }

  void EnableRadios(SideControls& c, Tab page) {
    Frame* outer = SidedFrame(page, sin_.enableFrameName, sin_.enableFrameCaption[side_]);
    for (int p = 1; p <= kPeriodCount; ++p) {
      Frame* frame = MakeElement<Frame>({outer}, Sided("frmEnabledDisabledPeriod"), p,
                                        Text({PeriodPrefix(side_), std::to_string(p)}));
      Radio* enabled = MakeElement<Radio>({frame}, Sided("rbnEnabledPeriod"), p, "Enabled");
      Radio* disabled = MakeElement<Radio>({frame}, Sided("rbnDisabledPeriod"), p, "Disabled");
      ChoiceGroup& group = ws_.AddGroup();
      enabled->JoinGroup(group);
      disabled->JoinGroup(group);
      enabled->SetValue(true);
      c.frmEnabledDisabledPeriod.Set(p, *frame);
      c.rbnEnabledPeriod.Set(p, *enabled);
      c.rbnDisabledPeriod.Set(p, *disabled);
    }
  }

  Button* ResultButton(Container in, std::string name, std::string_view caption) {
    Button* button = Make<Button>(in, std::move(name), caption);
    button->SetEnabled(false);
    return button;
  }

  // The label, cost box and balance box of a period, on the side's tab (1..4) or the TOTAL tab (5..8).
  void PeriodRow(SideControls& c, Container in, int position) {
    const int period = position > kPeriodCount ? position - kPeriodCount : position;
    MakeElement<Label>(in, Sided("lblResultsPeriod"), position,
                       Text({"Period ", std::to_string(period), ": ", Word(side_), " ", sin_.titleWord}));
    c.txtResultsPeriod.Set(position, *MakeElement<TextBox>(in, Sided("txtResultsPeriod"), position));
    c.txtCumulativeResultsPeriod.Set(
        position, *MakeElement<TextBox>(in, Sided("txtCumulativeResultsPeriod"), position));
  }

  std::string TotalCaption() const { return Text({"Total: ", Word(side_), " ", sin_.titleWord}); }

  void Results(SideControls& c, Tab page) {
    Frame* frame = SidedFrame(page, "frmResults", Text({Word(side_), " ", sin_.titleWord, " Results"}));
    const Container in{frame};
    // These two end in the operations' word for the side: lblCumulativePeriodsFuture.
    Make<Label>(in, Text({"lblIndividualPeriod", Word(side_)}), "Out of Pocket Expense")
        ->SetToolTip("Direct Out of Pocket Expense for Cigarrettes for Each Period");
    Make<Label>(in, Text({"lblCumulativePeriods", Word(side_)}), "Cumulative Cost")
        ->SetToolTip("Cumulative Out of Pocket Expense + Accrued Interest if Money Saved");
    for (int p = 1; p <= kPeriodCount; ++p) PeriodRow(c, in, p);
    Make<Label>(in, std::string(side_ == Side::Past ? "lblResultsPastTotal" : sin_.futureTotalLabelName),
                TotalCaption())
        ->SetToolTip("Simple Addition of Periods (No Interest Between Periods)");
    c.txtResultsTotal = Make<TextBox>(in, Sided("txtResultsTotal"));
    c.cmdAdvResultsSpd = ResultButton(in, Sided("cmdAdvResultsSpd"), kSpreadsheetCaption);
    c.cmdAdvResultsSpd->SetToolTip("Month by Month Results in an Excel Type Spreadsheet");
    c.cmdAdvResultsDoc = ResultButton(in, Sided("cmdAdvResultsDoc"), kDocumentCaption);
  }

  void Summary(Side side) {
    side_ = side;
    SideControls& c = ws_.Of(side);
    const bool past = side == Side::Past;
    // The future frame's name is written with a small f.
    Frame* frame = Make<Frame>(InPanel(kTotalTab), past ? "frmSummaryPast" : "frmSummaryfut",
                               Text({"Summary: ", Word(side), " ", sin_.titleWord}));
    const Container in{frame};
    Make<Label>(in, past ? "Label2" : "Label6", "Out of Pocket Expense");
    Make<Label>(in, past ? "Label1" : "Label4", "Cumulative Cost");
    for (int p = 1; p <= kPeriodCount; ++p) {
      PeriodRow(c, in, p + kPeriodCount);
      c.txtResultsPeriod(p + kPeriodCount).SetAvailable(false);
      c.txtCumulativeResultsPeriod(p + kPeriodCount).SetAvailable(false);
      c.lblFirstDate.Set(
          p, *MakeElement<Label>(in, Sided("lblFirstDate"), p, past ? "Jan - 2000" : "Jan - 2010"));
      const int to = past ? p : p + kPeriodCount;
      ws_.lblTo.Set(to, *MakeElement<Label>(in, "lblTo", to, "To"));
      c.lblLastDate.Set(p,
                        *MakeElement<Label>(in, Sided("lblLastDate"), p, past ? "Jan - 2007" : "Jan - 2020"));
    }
    Make<Label>(in, Sided("lblResultsTotalSummary"), TotalCaption());
    c.txtResultsTotalSummary = Make<TextBox>(in, Sided("txtResultsTotalSummary"));
    Make<Label>(in, Sided("lblSummaryButtons"),
                Text({"Detailed Results on ", Word(side), " ", sin_.summaryWord}));
    c.cmdAdvResultsDocSummary = ResultButton(in, Sided("cmdAdvResultsDocSummary"), kDocumentCaption);
    c.cmdAdvResultsSpdSummary = ResultButton(in, Sided("cmdAdvResultsSpdSummary"), kSpreadsheetCaption);
  }

  void TotalTab() {
    Summary(Side::Past);
    Summary(Side::Future);
    const std::string_view T = sin_.titleWord;
    const Container total{Make<Frame>(InPanel(kTotalTab), "frmSummarytot", sin_.totalFrame)};
    Make<Label>(total, "lblResultsTotalSummaryTot", Text({"TOTAL ", T, " (Out of Pocket)"}));
    ws_.txtResultsTotalSummaryTot = Make<TextBox>(total, "txtResultsTotalSummaryTot");
    Make<Label>(total, "lblCumulativeResultsTotalSummaryTot", Text({"TOTAL ", T, " (Cumulative)"}));
    ws_.txtCumulativeResultsTotalSummaryTot = Make<TextBox>(total, "txtCumulativeResultsTotalSummaryTot");
    Make<Label>(total, "lblSummaryButtonsTot",
                Text({"Detailed Results on (Past + Future) ", sin_.summaryTotWord}));
    ws_.cmdAdvResultsDocSummaryTot = ResultButton(total, "cmdAdvResultsDocSummaryTot", kDocumentCaption);
    ws_.cmdAdvResultsSpdSummaryTot = ResultButton(total, "cmdAdvResultsSpdSummaryTot", kSpreadsheetCaption);

    const Container atDate{Make<Frame>(InPanel(kTotalTab), "frmCumulativeResultsTotalFutureDateTot",
                                       Text({"TOTAL ", T, " at Future Date"}))};
    Make<Label>(atDate, "lblCumulativeFutureDateTot", "Future Date");
    ws_.comCumulativeFutureDateTot = Make<DropDownList>(atDate, "comCumulativeFutureDateTot");
    Make<Label>(atDate, "lblInterestRateFutureDateTot", "Future Savings Rate");
    ws_.comInterestRateFutureDateTot = Make<DropDownList>(atDate, "comInterestRateFutureDateTot");
    ws_.comInterestRateFutureDateTot->SetText("5%");
    Make<Label>(atDate, "lblInflationRateFutureDateTot", "Future Inflation Rate");
    ws_.comInflationRateFutureDateTot = Make<DropDownList>(atDate, "comInflationRateFutureDateTot");
    ws_.comInflationRateFutureDateTot->SetText("3%");
    ws_.cmdCumulativeFutureDateTot = Make<Button>(atDate, "cmdCumulativeFutureDateTot", "Update");
    ws_.txtCumulativeFutureDateTot = Make<TextBox>(atDate, "txtCumulativeFutureDateTot");
    if (sin_.revealSquare) Make<Button>(InPanel(kTotalTab), "cmdRevealDeveloper", "")->SetVisible(false);
  }

  void BottomRow() {
    if (sin_.startsTheProgram)
      ws_.cmdEuro = Make<Button>({}, "cmdEuro", "Replace $ With Euro Symbol Throughout Program");
    ws_.cmdSwitchSins = Make<Button>({}, "cmdSwitchSins", "Switch Sins");
    Make<Button>({}, "cmdCombinedResults", "Combined Sins Results");
    Frame* tips = Make<Frame>({}, "frmToolTipOnOff", "Balloon Help: Enable or Disable");
    Option* enable = Make<Option>({tips}, "optToolTipEnable", "Enable");
    Option* disable = Make<Option>({tips}, "optToolTipDisable", "Disable");
    Pair(enable, disable, true);
    if (sin_.revealSquare) Make<Button>({}, "cmdRestoreProgram", "Restore Program");
    ws_.cmdExit = Make<Button>({}, "cmdExit", "Exit Program");
    Make<Button>({}, "cmdHelp", "Help");
    Make<Button>({}, "cmdFaq", "FAQ and Info");
  }

  SinWorkspace& ws_;
  const SinRow& sin_;
  Side side_ = Side::Past;
  TabControl* tab_ = nullptr;
  Panel* panels_[3] = {};
};

}  // namespace

void DesignWorkspace(SinWorkspace& workspace) { Designer(workspace).Window(); }

void FitPanels(SinWorkspace& workspace) {
  constexpr int kHead = 900, kMargins = 310;
  const Place tab = workspace.SSTab_PastFutureSwitch->GetPlace();
  for (int i = kPastTab; i <= kTotalTab; ++i) {
    Panel& panel = workspace.Get<Panel>("SSPanel_BackColor", i);
    panel.SetPlace({panel.GetPlace().left, kHead, tab.width - kMargins, tab.height - kHead});
  }
}

}  // namespace vicetoll
