// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/loading.h"

#include "workspace/date_list.h"
#include "workspace/parameters.h"

namespace vicetoll {
namespace {

// How far the first list of future stops reaches, which the next steps of a load replace.
constexpr int kFirstFutureYears = 90;
// The default length of period 1.
constexpr int kDefaultYears = 10;

// Puts the unit and the cost mode back to those of the start, as a click on their options would, labels and
// lists included. Options that stand there already are left alone, and so are their labels.
void PutOptionsBack(WorkspaceSide& side) {
  Option& startUnit = side.Sin().startUnit == Unit::PerDay ? *side.firstUnit : *side.secondUnit;
  if (!startUnit.Value()) {
    startUnit.SetValue(true);
    if (HasListPerUnit(side.Class()))
      ShowPacksOrCigarettes(side);
    else
      RefillUnitList(side, side.Record(side.state.CurrentPeriod).QuantityListIndex);
  }
  if (side.OptCigPercentCostIncrease != nullptr && !side.OptCigPercentCostIncrease->Value()) {
    side.OptCigPercentCostIncrease->SetValue(true);
    ShowCostMode(side);
  }
}

// The list of reasonable costs becomes another one as the gross cost moves. Where it did, it is filled anew,
// so that the copy which the load appends stands behind an equal one.
void PutReasonableCostsBack(WorkspaceSide& side) {
  DropDownList* list = side.comSubCost;
  if (list == nullptr) return;
  const std::vector<std::string> entries = EntriesOf(side.Workspace(), side.Sin().secondCostList);
  const int size = static_cast<int>(entries.size());
  bool copies = list->Count() % size == 0;
  for (int i = 0; copies && i < list->Count(); ++i) copies = list->Entry(i) == entries[i % size];
  if (copies) return;
  list->Clear();
  list->Append(entries);
}

void FillValueLists(WorkspaceSide& side) {
  SinWorkspace& ws = side.Workspace();
  const SinRow& sin = side.Sin();
  if (HasListPerUnit(side.Class())) {
    AppendEntries(ws, *side.quantity, sin.perDayList);
    AppendEntries(ws, *side.comCigsPerDay, sin.perMonthList);
  } else {
    AppendEntries(ws, *side.quantity, UnitList(sin, sin.startUnit));
  }
  AppendEntries(ws, *side.comPercentIncrease, kRateList);
  AppendEntries(ws, *side.comInterestRate1, kRateList);
  AppendEntries(ws, *side.comInflationRate1, kRateList);
  if (side.comInitialCost != nullptr) AppendEntries(ws, *side.comInitialCost, sin.costList);
  if (side.comFinalCost != nullptr) AppendEntries(ws, *side.comFinalCost, sin.secondCostList);
  if (side.comSubCost != nullptr) AppendEntries(ws, *side.comSubCost, sin.secondCostList);
}

void SelectDefaults(WorkspaceSide& side) {
  const SinRow& sin = side.Sin();
  side.quantity->SelectEntry(sin.quantityDefault);
  if (HasListPerUnit(side.Class())) side.comCigsPerDay->SelectEntry(sin.quantityDefault);
  if (side.comInitialCost != nullptr) side.comInitialCost->SelectEntry(sin.costDefault);
  if (side.comFinalCost != nullptr) side.comFinalCost->SelectEntry(sin.secondCostDefault);
  if (side.comSubCost != nullptr) side.comSubCost->SelectEntry(sin.secondCostDefault);
  side.comPercentIncrease->SelectEntry(sin.percentDefault);
  side.comInterestRate1->SelectEntry(kInterestDefault);
  side.comInflationRate1->SelectEntry(kInflationDefault);
}

void HideResults(WorkspaceSide& side) {
  for (int p = 1; p <= kPeriodCount; ++p) {
    side.txtResultsPeriod(p).SetAvailable(false);
    side.txtCumulativeResultsPeriod(p).SetAvailable(false);
  }
  side.txtResultsTotal->SetAvailable(false);
}

}  // namespace

void LoadParameters(WorkspaceSide& side) {
  SinWorkspace& ws = side.Workspace();
  PutOptionsBack(side);
  PutReasonableCostsBack(side);
  ws.SSTab_PastFutureSwitch->SetEnabled(false);
  side.cmdSetPeriodParams->SetEnabled(false);
  side.state.PreviousPeriod = 1;
  side.state.CurrentPeriod = 1;
  for (int p = 1; p <= kPeriodCount; ++p) {
    side.Record(p).PeriodFresh = true;
    side.Record(p).PeriodEnabled = true;
  }
  FillValueLists(side);
  SelectDefaults(side);
  InitializeParameters(side);
  LoadSharedParameters(side, 1);
  SetParameters(side, side.state.CurrentPeriod);
  side.quantity->SetAvailable(true);
  if (side.comCigsPerDay != nullptr) side.comCigsPerDay->SetAvailable(false);
  if (side.comInitialCost != nullptr) side.comInitialCost->SetAvailable(true);
  if (side.comFinalCost != nullptr) side.comFinalCost->SetAvailable(false);
  LabelMaker(side, 1);
  SetPeriodParameters(side, "1");
  ResetSideScreen(side);
  ws.SSTab_PastFutureSwitch->SetEnabled(true);
}

void LoadParametersInitialFuture(SinWorkspace& ws) { HideFutureResults(ws); }

void HideFutureResults(SinWorkspace& ws) { HideResults(ws.Of(Side::Future)); }

void InitializeParameters(WorkspaceSide& side) {
  InitializeDates(side, side.Index());
  for (int p = 1; p <= kPeriodCount; ++p) {
    PeriodRecord& record = side.Record(p);
    record.QuantityListIndex = static_cast<std::int16_t>(side.quantity->Position());
    record.QuantityUnitFlag = true;
    record.CostModeFlag = true;
    if (side.comInitialCost != nullptr) record.InitialCostText = side.comInitialCost->Text();
    if (side.comFinalCost != nullptr) record.FinalCostText = side.comFinalCost->Text();
    if (side.comSubCost != nullptr) {
      record.FinalCostText = "N/A";  // nothing reads it
      record.ReasonableCostText = side.comSubCost->Text();
    }
  }
}

void InitializeDates(WorkspaceSide& side, SideIndex sideIndex) {
  const Present now(side.GetSession());
  const bool past = side.IsPast();
  const std::string present = past ? now.Label(0, 0) : now.Label(1, 0);
  const std::string first = past ? now.Label(0, kPastYears) : present;
  const std::string last = past ? present : now.Label(1, kFutureYears);
  for (int p = 1; p <= kPeriodCount; ++p) {
    PeriodRecord& record = side.Store().At(p, sideIndex);
    record.PeriodSet = false;
    record.PeriodSelected = false;
    record.StartLabel = record.StopLabel = present;
    record.StartListFirst = record.StopListFirst = first;
    record.StartListLast = record.StopListLast = last;
    record.PercentIncreaseText = side.comPercentIncrease->Text();
    record.InterestRateText = side.comInterestRate1->Text();
    record.InflationRateText = side.comInflationRate1->Text();
  }
  if (past) {
    // The list begins in January of its first year, unlike the stored bound; the next steps replace it.
    const std::string start = now.Label(0, -kDefaultYears);
    FillDateList(true, *side.comStart, MakeDateLabel(1, Int16(now.Y + kPastYears)), start, kCoarseStep);
    side.comStart->SetText(start);
    FillDateList(true, *side.comStop, present, present, kCoarseStep);
    side.comStop->SetText(present);
  } else {
    const std::string stop = now.Label(1, kDefaultYears);
    FillDateList(true, *side.comStart, present, present, kCoarseStep);
    side.comStart->SetText(present);
    FillDateList(true, *side.comStop, stop, now.Label(1, kFirstFutureYears), kCoarseStep);
    side.comStop->SetText(stop);
  }
}

void ResetSideScreen(WorkspaceSide& side) {
  const Present now(side.GetSession());
  const bool past = side.IsPast();
  const std::string first = past ? now.Label(0, kPastYears) : now.Label(1, 0);
  const std::string last = past ? now.Label(0, 0) : now.Label(1, kFutureYears);
  side.comPercentIncrease->SetAvailable(true);
  FillDateList(true, *side.comStart, first, last, kCoarseStep);
  // FillDateList kept the text that was there; the past side starts ten years back.
  if (past) side.comStart->SetText(now.Label(0, -kDefaultYears));
  FillDateList(true, *side.comStop, first, last, kCoarseStep);
  side.comStop->SetText(past ? last : now.Label(1, kDefaultYears));
  HideResults(side);
  OpenPeriodOptions(side, 1);
  OpenPeriodRadios(side, 1);
  // Period 1 is open, but there is nothing yet to take out of the sums. Its frame stays as it is.
  side.rbnEnabledPeriod(1).SetEnabled(false);
  side.rbnDisabledPeriod(1).SetEnabled(false);
  for (Button* button : side.ResultButtons()) button->SetEnabled(false);
  side.cmdSetPeriodParams->SetEnabled(true);
}

void LabelMaker(WorkspaceSide& side, int period) {
  const SinRow& sin = side.Sin();
  const std::string start = PeriodName(side.Which(), period);
  const auto caption = [&](std::string_view suffix) { return start + std::string(suffix); };
  side.frmSetStart->SetCaption(caption(sin.startSuffix[side.Which()]));
  side.frmSetStop->SetCaption(caption(sin.stopSuffix[side.Which()]));
  side.frmDaily->SetCaption(caption(sin.dailySuffix[side.Which()]));
  side.frmCostChange->SetCaption(caption(sin.costChangeSuffix[side.Which()]));
  side.frmRates->SetCaption(caption(": Savings and Inflation Rates"));
  side.cmdSetPeriodParams->SetCaption("Set " + caption(" Parameters"));
}

}  // namespace vicetoll
