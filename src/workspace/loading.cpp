// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/loading.h"

#include "workspace/date_list.h"
#include "workspace/parameters.h"

namespace vicetoll {
namespace {

// The earliest past month lies so many years back, the latest future month so many ahead.
constexpr int kPastYears = -90;
constexpr int kFutureYears = 75;
// The default length of period 1.
constexpr int kDefaultYears = 10;

// Puts the unit and the cost mode back to those of the start, as a click on their options would, labels and
// lists included. Options that stand there already are left alone, and so are their labels.
void PutOptionsBack(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  Option& startUnit = ws.Sin().startUnit == Unit::PerDay ? *c.firstUnit : *c.secondUnit;
  if (!startUnit.Value()) {
    startUnit.SetValue(true);
    if (HasListPerUnit(ws.Class()))
      ShowPacksOrCigarettes(ws, side);
    else
      RefillUnitList(ws, side, ws.Record(side, ws.State(side).CurrentPeriod).QuantityListIndex);
  }
  if (c.OptCigPercentCostIncrease != nullptr && !c.OptCigPercentCostIncrease->Value()) {
    c.OptCigPercentCostIncrease->SetValue(true);
    ShowCostMode(ws, side);
  }
}

// The list of reasonable costs becomes another one as the gross cost moves. Where it did, it is filled anew,
// so that the copy which the load appends stands behind an equal one.
void PutReasonableCostsBack(SinWorkspace& ws, Side side) {
  DropDownList* list = ws.Of(side).comSubCost;
  if (list == nullptr) return;
  const std::vector<std::string> entries = EntriesOf(ws, ws.Sin().secondCostList);
  const int size = static_cast<int>(entries.size());
  bool copies = list->Count() % size == 0;
  for (int i = 0; copies && i < list->Count(); ++i) copies = list->Entry(i) == entries[i % size];
  if (copies) return;
  list->Clear();
  list->Append(entries);
}

void FillValueLists(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  const SinRow& sin = ws.Sin();
  if (HasListPerUnit(ws.Class())) {
    AppendEntries(ws, *c.quantity, sin.perDayList);
    AppendEntries(ws, *c.comCigsPerDay, sin.perMonthList);
  } else {
    AppendEntries(ws, *c.quantity, UnitList(sin, sin.startUnit));
  }
  AppendEntries(ws, *c.comPercentIncrease, kRateList);
  AppendEntries(ws, *c.comInterestRate1, kRateList);
  AppendEntries(ws, *c.comInflationRate1, kRateList);
  if (c.comInitialCost != nullptr) AppendEntries(ws, *c.comInitialCost, sin.costList);
  if (c.comFinalCost != nullptr) AppendEntries(ws, *c.comFinalCost, sin.secondCostList);
  if (c.comSubCost != nullptr) AppendEntries(ws, *c.comSubCost, sin.secondCostList);
}

void SelectDefaults(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  const SinRow& sin = ws.Sin();
  c.quantity->SelectEntry(sin.quantityDefault);
  if (HasListPerUnit(ws.Class())) c.comCigsPerDay->SelectEntry(sin.quantityDefault);
  if (c.comInitialCost != nullptr) c.comInitialCost->SelectEntry(sin.costDefault);
  if (c.comFinalCost != nullptr) c.comFinalCost->SelectEntry(sin.secondCostDefault);
  if (c.comSubCost != nullptr) c.comSubCost->SelectEntry(sin.secondCostDefault);
  c.comPercentIncrease->SelectEntry(sin.percentDefault);
  c.comInterestRate1->SelectEntry(kInterestDefault);
  c.comInflationRate1->SelectEntry(kInflationDefault);
}

void HideResults(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  for (int p = 1; p <= kPeriodCount; ++p) {
    c.txtResultsPeriod(p).SetAvailable(false);
    c.txtCumulativeResultsPeriod(p).SetAvailable(false);
  }
  c.txtResultsTotal->SetAvailable(false);
}

}  // namespace

void LoadParameters(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  PutOptionsBack(ws, side);
  PutReasonableCostsBack(ws, side);
  ws.SSTab_PastFutureSwitch->SetEnabled(false);
  c.cmdSetPeriodParams->SetEnabled(false);
  SideState& state = ws.State(side);
  state.PreviousPeriod = 1;
  state.CurrentPeriod = 1;
  for (int p = 1; p <= kPeriodCount; ++p) {
    ws.Record(side, p).PeriodFresh = true;
    ws.Record(side, p).PeriodEnabled = true;
  }
  FillValueLists(ws, side);
  SelectDefaults(ws, side);
  InitializeParameters(ws, side);
  LoadSharedParameters(ws, side, 1);
  SetParameters(ws, side, state.CurrentPeriod);
  c.quantity->SetAvailable(true);
  if (c.comCigsPerDay != nullptr) c.comCigsPerDay->SetAvailable(false);
  if (c.comInitialCost != nullptr) c.comInitialCost->SetAvailable(true);
  if (c.comFinalCost != nullptr) c.comFinalCost->SetAvailable(false);
  LabelMaker(ws, side, 1);
  SetPeriodParameters(ws, side, "1");
  ResetSideScreen(ws, side);
  ws.SSTab_PastFutureSwitch->SetEnabled(true);
}

void LoadParametersInitialFuture(SinWorkspace& ws) { HideFutureResults(ws); }

void HideFutureResults(SinWorkspace& ws) { HideResults(ws, Side::Future); }

void InitializeParameters(SinWorkspace& ws, Side side) {
  InitializeDates(ws, side, ws.SideIndex(side));
  const SideControls& c = ws.Of(side);
  for (int p = 1; p <= kPeriodCount; ++p) {
    PeriodRecord& record = ws.Record(side, p);
    record.QuantityListIndex = static_cast<std::int16_t>(c.quantity->Position());
    record.QuantityUnitFlag = true;
    record.CostModeFlag = true;
    if (c.comInitialCost != nullptr) record.InitialCostText = c.comInitialCost->Text();
    if (c.comFinalCost != nullptr) record.FinalCostText = c.comFinalCost->Text();
    if (c.comSubCost != nullptr) {
      record.FinalCostText = "N/A";  // nothing reads it
      record.ReasonableCostText = c.comSubCost->Text();
    }
  }
}

void InitializeDates(SinWorkspace& ws, Side side, SideIndex sideIndex) {
  const Present now(ws.GetSession());
  SideControls& c = ws.Of(side);
  const bool past = side == Side::Past;
  const std::string present = past ? now.Label(0, 0) : now.Label(1, 0);
  const std::string first = past ? now.Label(0, kPastYears) : present;
  const std::string last = past ? present : now.Label(1, kFutureYears);
  for (int p = 1; p <= kPeriodCount; ++p) {
    PeriodRecord& record = ws.Store().At(p, sideIndex);
    record.PeriodSet = false;
    record.PeriodSelected = false;
    record.StartLabel = record.StopLabel = present;
    record.StartListFirst = record.StopListFirst = first;
    record.StartListLast = record.StopListLast = last;
    record.PercentIncreaseText = c.comPercentIncrease->Text();
    record.InterestRateText = c.comInterestRate1->Text();
    record.InflationRateText = c.comInflationRate1->Text();
  }
  if (past) {
    // The list begins in January of its first year, unlike the stored bound; the next steps replace it.
    const std::string start = now.Label(0, -kDefaultYears);
    FillDateList(true, *c.comStart, MakeDateLabel(1, Int16(now.Y + kPastYears)), start, kCoarseStep);
    c.comStart->SetText(start);
    FillDateList(true, *c.comStop, present, present, kCoarseStep);
    c.comStop->SetText(present);
  } else {
    const std::string stop = now.Label(1, kDefaultYears);
    FillDateList(true, *c.comStart, present, present, kCoarseStep);
    c.comStart->SetText(present);
    FillDateList(true, *c.comStop, stop, now.Label(1, 90), kCoarseStep);
    c.comStop->SetText(stop);
  }
}

void ResetSideScreen(SinWorkspace& ws, Side side) {
  const Present now(ws.GetSession());
  SideControls& c = ws.Of(side);
  const bool past = side == Side::Past;
  const std::string first = past ? now.Label(0, kPastYears) : now.Label(1, 0);
  const std::string last = past ? now.Label(0, 0) : now.Label(1, kFutureYears);
  c.comPercentIncrease->SetAvailable(true);
  FillDateList(true, *c.comStart, first, last, kCoarseStep);
  // FillDateList kept the text that was there; the past side starts ten years back.
  if (past) c.comStart->SetText(now.Label(0, -kDefaultYears));
  FillDateList(true, *c.comStop, first, last, kCoarseStep);
  c.comStop->SetText(past ? last : now.Label(1, kDefaultYears));
  HideResults(ws, side);
  OpenPeriodOptions(ws, side, 1);
  OpenPeriodRadios(ws, side, 1);
  // Period 1 is open, but there is nothing yet to take out of the sums. Its frame stays as it is.
  c.rbnEnabledPeriod(1).SetEnabled(false);
  c.rbnDisabledPeriod(1).SetEnabled(false);
  c.cmdAdvResultsDoc->SetEnabled(false);
  c.cmdAdvResultsSpd->SetEnabled(false);
  c.cmdAdvResultsDocSummary->SetEnabled(false);
  c.cmdAdvResultsSpdSummary->SetEnabled(false);
  c.cmdSetPeriodParams->SetEnabled(true);
}

void LabelMaker(SinWorkspace& ws, Side side, int period) {
  SideControls& c = ws.Of(side);
  const SinRow& sin = ws.Sin();
  const std::string start = std::string(PeriodPrefix(side)) + std::to_string(period);
  const auto caption = [&](std::string_view suffix) { return start + std::string(suffix); };
  c.frmSetStart->SetCaption(caption(sin.startSuffix[side]));
  c.frmSetStop->SetCaption(caption(sin.stopSuffix[side]));
  c.frmDaily->SetCaption(caption(sin.dailySuffix[side]));
  c.frmCostChange->SetCaption(caption(sin.costChangeSuffix[side]));
  c.frmRates->SetCaption(caption(": Savings and Inflation Rates"));
  c.cmdSetPeriodParams->SetCaption("Set " + caption(" Parameters"));
}

}  // namespace vicetoll
