// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/number_text.h"
#include "entries/capture.h"
#include "entries/value_lists.h"
#include "workspace/commit.h"
#include "workspace/date_list.h"
#include "workspace/parameters.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

void ShowAmount(const SinWorkspace& ws, DropDownList* list, const std::string& amount,
                std::string_view format) {
  if (list != nullptr) list->SetText(ws.Money(TextToNumber(amount), format));
}

void ShowMonths(DropDownList& list, const MonthRange& range, const std::string& month) {
  FillDateList(true, list, range.first, range.last, kCoarseStep);
  list.SetText(month);
}

// Turns the unit option on as a click does, all but the set button.
void ShowUnit(WorkspaceSide& side, Unit unit, int place) {
  (unit == Unit::PerDay ? side.firstUnit : side.secondUnit)->SetValue(true);
  if (!HasListPerUnit(side.Class())) return RefillUnitList(side, place);
  ShowPacksOrCigarettes(side);
  for (DropDownList* list : {side.quantity, side.comCigsPerDay}) list->SetText(list->EntryOrLast(place));
}

void ShowUnitOf(WorkspaceSide& side, Unit unit) {
  if ((unit == Unit::PerDay ? side.firstUnit : side.secondUnit)->Value()) return;
  ShowUnit(side, unit, side.Record(side.state.CurrentPeriod).QuantityListIndex);
}

void ShowPeriod(WorkspaceSide& side, const PeriodEntries& period, int place) {
  SinWorkspace& ws = side.Workspace();
  const SinRow& sin = side.Sin();
  ShowMonths(*side.comStart, period.startList, period.start);
  ShowMonths(*side.comStop, period.stopList, period.stop);
  ShowUnit(side, period.unit, place);
  ShowAmount(ws, side.comInitialCost, period.cost, sin.costList.format);
  ShowAmount(ws, side.comFinalCost, period.finalCost, sin.secondCostList.format);
  ShowAmount(ws, side.comSubCost, period.reasonableCost, sin.secondCostList.format);
  if (side.OptCigPercentCostIncrease != nullptr) {
    (period.percentMode ? side.OptCigPercentCostIncrease : side.OptCigInitialFinalCostIncrease)
        ->SetValue(true);
    ShowCostMode(side);
  }
  side.comPercentIncrease->SetText(RateText(period.increase));
  side.comInterestRate1->SetText(RateText(period.interest));
  side.comInflationRate1->SetText(RateText(period.inflation));
}

void GoToPeriod(WorkspaceSide& side, int p) {
  side.optTimePeriod(p).SetValue(true);
  SelectPeriod(side, side.Index());
}

// The results as they came about when the entries were captured.
void Reckon(WorkspaceSide& side, const SideEntries& entries) {
  const auto count = static_cast<std::int16_t>(entries.periods.size());
  const SideIndex sideIndex = side.Index();
  const auto switchOff = [&] {
    for (int p = 1; p <= count; ++p)
      if (!entries.periods[p - 1].enabled) side.rbnDisabledPeriod(p).SetValue(true);
  };
  if (entries.resultsBy != CountedIn::Switch) {
    // A press forces all radios on but that of period 1, and counts it none the less.
    CommitPeriod(side, count, sideIndex);
    if (entries.periods[0].enabled && entries.resultsUnit == entries.periods.back().unit) return;
    switchOff();
    ShowUnitOf(side, entries.resultsUnit);
    if (entries.resultsBy == CountedIn::PressHidingFirst) side.rbnDisabledPeriod(kPeriodCount).SetValue(true);
    CommitPeriod(side, count, sideIndex);
    return;
  }
  CommitPeriod(side, count, sideIndex);
  ShowUnitOf(side, entries.resultsUnit);
  switchOff();
  RefreshResults(side, sideIndex);
  UpdateResultButtons(side, sideIndex);
}

void ApplySide(WorkspaceSide& side, const SideEntries& entries) {
  SinWorkspace& ws = side.Workspace();
  if (entries.periods.empty()) return;
  const QuantityPlaces places = PlacesOf(ws.Position(), entries).value();
  // Each arrival on a future tab without a set period appends its lists once more.
  for (int i = 0; i < places.copies; ++i) {
    ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
    if (!side.IsPast()) ws.SSTab_PastFutureSwitch->SetTab(kFutureTab);
  }
  const int count = static_cast<int>(entries.periods.size());
  for (int p = 1; p <= count; ++p) {
    if (p > 1) GoToPeriod(side, p);
    ShowPeriod(side, entries.periods[p - 1], places.places[p - 1]);
    SetParameters(side, static_cast<std::int16_t>(p));
    PeriodRecord& record = side.Record(p);
    record.QuantityListIndex = static_cast<std::int16_t>(places.places[p - 1]);
    record.QuantityUnitFlag = entries.periods[p - 1].unit == Unit::PerDay;
    if (ws.cmdEuro != nullptr && side.IsPast()) RetireEuroButton(ws);
  }
  Reckon(side, entries);
  const int shown = entries.shownPeriod;
  if (shown != count && shown <= count + 1 && side.optTimePeriod(shown).Enabled()) GoToPeriod(side, shown);
  ShowUnitOf(side, entries.shownUnit);
}

void ChooseFutureDate(SinWorkspace& ws, const FutureDateTerms& terms) {
  if (!terms.date.empty()) ws.comCumulativeFutureDateTot->SetText(terms.date);
  ws.comInterestRateFutureDateTot->SetText(terms.interest);
  ws.comInflationRateFutureDateTot->SetText(terms.inflation);
}

void ApplyFutureDate(SinWorkspace& ws, const SinEntries& sin) {
  if (!sin.total) return;
  ws.SSTab_PastFutureSwitch->SetTab(kTotalTab);
  // Without a period that counts there is no date to choose.
  const bool open = ws.comCumulativeFutureDateTot->Enabled();
  ChooseFutureDate(ws, *sin.total);
  if (open)
    UpdateFutureDateTotal(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index());
  else
    ws.evaluatedAt = sin.total;
  if (sin.oldFigure) ShowOldFutureDateFigure(ws, *sin.oldFigure);
  if (!sin.totalWaiting) return;
  ChooseFutureDate(ws, *sin.totalWaiting);
  ws.cmdCumulativeFutureDateTot->SetEnabled(open);
}

void ApplyTotal(SinWorkspace& ws, const SinEntries& sin) {
  ApplyFutureDate(ws, sin);
  if (sin.oldBalance) ShowOldBalance(ws, *sin.oldBalance);
}

}  // namespace

void Apply(FreshProgram& program, const Entries& entries) {
  if (entries.currency == Currency::Euro) program.TurnToEuro();
  const SinEntries* front = nullptr;
  for (const SinEntries& sin : entries.sins) {
    SinWorkspace& ws = program.Enter(sin.position);
    for (Side side : kSides) ApplySide(ws.Of(side), sin.Of(side));
    // The way back to the sin in front, and its TOTAL tab, would undo a date chosen there.
    if (sin.position == entries.front && entries.tab == kTotalTab)
      front = &sin;
    else
      ApplyTotal(ws, sin);
  }
  SinWorkspace& ws = program.Enter(entries.front);
  if (front != nullptr) ApplyTotal(ws, *front);
  ws.SSTab_PastFutureSwitch->SetTab(entries.tab);
}

}  // namespace vicetoll
