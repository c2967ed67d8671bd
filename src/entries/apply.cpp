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

constexpr std::int16_t kCoarseStep = 12;

std::string RateText(int percent) { return std::to_string(percent) + "%"; }

void ShowAmount(const SinWorkspace& ws, DropDownList* list, const std::string& amount,
                std::string_view format) {
  if (list != nullptr) list->SetText(ws.Money(TextToNumber(amount), format));
}

void ShowMonths(DropDownList& list, const MonthRange& range, const std::string& month) {
  FillDateList(true, list, range.first, range.last, kCoarseStep);
  list.SetText(month);
}

// Turns the unit option on as a click does, all but the set button.
void ShowUnit(SinWorkspace& ws, Side side, Unit unit, int place) {
  SideControls& c = ws.Of(side);
  (unit == Unit::PerDay ? c.firstUnit : c.secondUnit)->SetValue(true);
  if (!HasListPerUnit(ws.Class())) return RefillUnitList(ws, side, place);
  ShowPacksOrCigarettes(ws, side);
  for (DropDownList* list : {c.quantity, c.comCigsPerDay}) list->SetText(list->EntryOrLast(place));
}

void ShowUnitOf(SinWorkspace& ws, Side side, Unit unit) {
  const SideControls& c = ws.Of(side);
  if ((unit == Unit::PerDay ? c.firstUnit : c.secondUnit)->Value()) return;
  ShowUnit(ws, side, unit, ws.Record(side, ws.State(side).CurrentPeriod).QuantityListIndex);
}

void ShowPeriod(SinWorkspace& ws, Side side, const PeriodEntries& period, int place) {
  SideControls& c = ws.Of(side);
  const SinRow& sin = ws.Sin();
  ShowMonths(*c.comStart, period.startList, period.start);
  ShowMonths(*c.comStop, period.stopList, period.stop);
  ShowUnit(ws, side, period.unit, place);
  ShowAmount(ws, c.comInitialCost, period.cost, sin.costList.format);
  ShowAmount(ws, c.comFinalCost, period.finalCost, sin.secondCostList.format);
  ShowAmount(ws, c.comSubCost, period.reasonableCost, sin.secondCostList.format);
  if (c.OptCigPercentCostIncrease != nullptr) {
    (period.percentMode ? c.OptCigPercentCostIncrease : c.OptCigInitialFinalCostIncrease)->SetValue(true);
    ShowCostMode(ws, side);
  }
  c.comPercentIncrease->SetText(RateText(period.increase));
  c.comInterestRate1->SetText(RateText(period.interest));
  c.comInflationRate1->SetText(RateText(period.inflation));
}

void GoToPeriod(SinWorkspace& ws, Side side, int p) {
  ws.Of(side).optTimePeriod(p).SetValue(true);
  SelectPeriod(ws, side, ws.SideIndex(side));
}

// The results as they came about when the entries were captured.
void Reckon(SinWorkspace& ws, Side side, const SideEntries& entries) {
  SideControls& c = ws.Of(side);
  const auto count = static_cast<std::int16_t>(entries.periods.size());
  const SideIndex sideIndex = ws.SideIndex(side);
  const auto switchOff = [&] {
    for (int p = 1; p <= count; ++p)
      if (!entries.periods[p - 1].enabled) c.rbnDisabledPeriod(p).SetValue(true);
  };
  if (entries.resultsBy != CountedIn::Switch) {
    // A press forces all radios on but that of period 1, and counts it none the less.
    CommitPeriod(ws, side, count, sideIndex);
    if (entries.periods[0].enabled && entries.resultsUnit == entries.periods.back().unit) return;
    switchOff();
    ShowUnitOf(ws, side, entries.resultsUnit);
    if (entries.resultsBy == CountedIn::PressHidingFirst) c.rbnDisabledPeriod(kPeriodCount).SetValue(true);
    CommitPeriod(ws, side, count, sideIndex);
    return;
  }
  CommitPeriod(ws, side, count, sideIndex);
  ShowUnitOf(ws, side, entries.resultsUnit);
  switchOff();
  RefreshResults(ws, side, sideIndex);
  UpdateResultButtons(ws, side, sideIndex);
}

void ApplySide(SinWorkspace& ws, Side side, const SideEntries& entries) {
  if (entries.periods.empty()) return;
  const QuantityPlaces places = PlacesOf(ws.Position(), entries).value();
  // Each arrival on a future tab without a set period appends its lists once more.
  for (int i = 0; i < places.copies; ++i) {
    ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
    if (side == Side::Future) ws.SSTab_PastFutureSwitch->SetTab(kFutureTab);
  }
  const int count = static_cast<int>(entries.periods.size());
  for (int p = 1; p <= count; ++p) {
    if (p > 1) GoToPeriod(ws, side, p);
    ShowPeriod(ws, side, entries.periods[p - 1], places.places[p - 1]);
    SetParameters(ws, side, static_cast<std::int16_t>(p));
    PeriodRecord& record = ws.Record(side, p);
    record.QuantityListIndex = static_cast<std::int16_t>(places.places[p - 1]);
    record.QuantityUnitFlag = entries.periods[p - 1].unit == Unit::PerDay;
    if (ws.cmdEuro != nullptr && side == Side::Past) RetireEuroButton(ws);
  }
  Reckon(ws, side, entries);
  const int shown = entries.shownPeriod;
  if (shown != count && shown <= count + 1 && ws.Of(side).optTimePeriod(shown).Enabled())
    GoToPeriod(ws, side, shown);
  ShowUnitOf(ws, side, entries.shownUnit);
}

void ChooseFutureDate(SinWorkspace& ws, const FutureDateTerms& terms) {
  if (!terms.date.empty()) ws.comCumulativeFutureDateTot->SetText(terms.date);
  ws.comInterestRateFutureDateTot->SetText(terms.interest);
  ws.comInflationRateFutureDateTot->SetText(terms.inflation);
}

void ApplyTotal(SinWorkspace& ws, const SinEntries& sin) {
  if (!sin.total) return;
  ws.SSTab_PastFutureSwitch->SetTab(kTotalTab);
  // Without a period that counts there is no date to choose.
  const bool open = ws.comCumulativeFutureDateTot->Enabled();
  ChooseFutureDate(ws, *sin.total);
  if (open)
    UpdateFutureDateTotal(ws, ws.SideIndex(Side::Past), ws.SideIndex(Side::Future));
  else
    ws.evaluatedAt = sin.total;
  if (sin.oldFigure) ShowOldFutureDateFigure(ws, *sin.oldFigure);
  if (!sin.totalWaiting) return;
  ChooseFutureDate(ws, *sin.totalWaiting);
  ws.cmdCumulativeFutureDateTot->SetEnabled(open);
}

}  // namespace

void Apply(FreshProgram& program, const Entries& entries) {
  if (entries.currency == Currency::Euro) program.TurnToEuro();
  const SinEntries* front = nullptr;
  for (const SinEntries& sin : entries.sins) {
    SinWorkspace& ws = program.Enter(sin.position);
    for (Side side : kSides) ApplySide(ws, side, sin.Of(side));
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
