// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/parameters.h"

#include <algorithm>

#include "base/checked_int.h"
#include "calendar/number_text.h"
#include "workspace/date_list.h"

namespace vicetoll {
namespace {

// The list of the unit option that is on.
const DropDownList& QuantityListOf(const SinWorkspace& ws, const SideControls& c) {
  return HasListPerUnit(ws.Class()) && !c.firstUnit->Value() ? *c.comCigsPerDay : *c.quantity;
}

// The part of SetParameters that all sins share.
void SaveSharedParameters(SinWorkspace& ws, Side side, int period) {
  SideControls& c = ws.Of(side);
  PeriodRecord& record = ws.Record(side, period);
  record.PeriodSelected = true;
  record.StartLabel = c.comStart->Text();
  record.StopLabel = c.comStop->Text();
  const auto last = [](const DropDownList& list) { return list.Entry(list.Count() - 1); };
  // In fine mode the ends of the coarse lists stay as they were.
  if (c.optCourseDateStart->Value()) {
    record.StartListFirst = c.comStart->Entry(0);
    record.StartListLast = last(*c.comStart);
  }
  // The past side asks the start option here too: the stop list of a past period is saved when the start
  // list is coarse, whatever the stop option says.
  const Option* stopMode = side == Side::Past ? c.optCourseDateStart : c.optCourseDateStop;
  if (stopMode->Value()) {
    record.StopListFirst = c.comStop->Entry(0);
    record.StopListLast = last(*c.comStop);
  }
  c.optCourseDateStart->SetValue(true);
  c.optCourseDateStop->SetValue(true);
  record.PercentIncreaseText = c.comPercentIncrease->Text();
  record.InterestRateText = c.comInterestRate1->Text();
  record.InflationRateText = c.comInflationRate1->Text();
}

// The position of the quantity that is stored. A repeated load appends the list again; an entry of a later
// copy is stored at its place in the first, which is there also when the list is filled anew. -1 where the
// text is no entry.
std::int16_t QuantityPosition(const SinWorkspace& ws, const SideControls& c) {
  const Unit unit = c.firstUnit->Value() ? Unit::PerDay : Unit::PerMonth;
  const DropDownList& list = QuantityListOf(ws, c);
  const int entries = std::max(EntryCount(UnitList(ws.Sin(), unit)), 1);  // of every list; none is empty
  return static_cast<std::int16_t>(list.Position() % entries);
}

// The position of the first entry with the stored cost, comparing texts without the euro sign, and where
// none is equal, amounts: what was stored in dollars is found again in euros. -1 where there is none.
int FindCost(const DropDownList& list, const std::string& stored) {
  const std::string wanted = StripCurrency(stored);
  for (int i = 0; i < list.Count(); ++i)
    if (StripCurrency(list.Entry(i)) == wanted) return i;
  if (!IsNumeric(wanted)) return -1;
  for (int i = 0; i < list.Count(); ++i)
    if (MoneyToNumber(list.Entry(i)) == TextToNumber(wanted)) return i;
  return -1;
}

void ShowCost(DropDownList* list, const std::string& stored) {
  if (list != nullptr) list->SelectEntry(FindCost(*list, stored));
}

}  // namespace

void SetPeriodParameters(SinWorkspace& ws, Side side, std::string_view period) {
  for (int p = 1; p <= kPeriodCount; ++p) ws.Record(side, p).PeriodSelected = false;
  ws.Record(side, RoundToInt16(TextToNumber(period))).PeriodSelected = true;
  ws.Of(side).frmDaily->SetCaption("Period " + std::string(period) + std::string(ws.Sin().dailySuffix[side]));
}

void SetParameters(SinWorkspace& ws, Side side, int period) {
  SaveSharedParameters(ws, side, period);
  SideControls& c = ws.Of(side);
  PeriodRecord& record = ws.Record(side, period);
  const bool keepsUnit = side == Side::Future && ws.Sin().futureKeepsUnit;
  if (!keepsUnit) record.QuantityUnitFlag = c.firstUnit->Value();
  record.QuantityListIndex = QuantityPosition(ws, c);
  if (c.comInitialCost != nullptr) record.InitialCostText = c.comInitialCost->Text();
  if (c.comFinalCost != nullptr) {
    record.FinalCostText = c.comFinalCost->Text();
    record.CostModeFlag = c.OptCigPercentCostIncrease->Value();
  }
  if (c.comSubCost != nullptr) {
    const bool plain = side == Side::Past && ws.Sin().pastStoresPlainReasonableCost;
    record.ReasonableCostText = plain ? StripCurrency(c.comSubCost->Text()) : c.comSubCost->Text();
  }
}

void LoadSharedParameters(SinWorkspace& ws, Side side, int period) {
  SideControls& c = ws.Of(side);
  const PeriodRecord& record = ws.Record(side, period);
  c.optCourseDateStart->SetValue(true);
  c.optCourseDateStop->SetValue(true);
  c.comStart->Clear();
  FillDateList(true, *c.comStart, record.StartListFirst, record.StartListLast, kCoarseStep);
  c.comStop->Clear();
  FillDateList(true, *c.comStop, record.StopListFirst, record.StopListLast, kCoarseStep);
  // A month chosen in fine mode may be in neither list. The start then shows as the first entry, the
  // stop as the entry at the place where the start was found. The store keeps the months chosen.
  int position = 0;
  if (const int found = c.comStart->Find(record.StartLabel); found != -1) position = found;
  c.comStart->SetText(c.comStart->EntryOrLast(position));
  if (const int found = c.comStop->Find(record.StopLabel); found != -1) position = found;
  c.comStop->SetText(c.comStop->EntryOrLast(position));
  c.comPercentIncrease->SetText(record.PercentIncreaseText);
  c.comInterestRate1->SetText(record.InterestRateText);
  c.comInflationRate1->SetText(record.InflationRateText);
}

void GetParameters(SinWorkspace& ws, Side side, int period) {
  LoadSharedParameters(ws, side, period);
  SideControls& c = ws.Of(side);
  const PeriodRecord& record = ws.Record(side, period);
  (record.QuantityUnitFlag ? c.firstUnit : c.secondUnit)->SetValue(true);
  ShowCost(c.comInitialCost, record.InitialCostText);
  ShowCost(c.comFinalCost, record.FinalCostText);
  if (c.OptCigPercentCostIncrease != nullptr) {
    (record.CostModeFlag ? c.OptCigPercentCostIncrease : c.OptCigInitialFinalCostIncrease)->SetValue(true);
    ShowCostMode(ws, side);
  }
  if (c.comSubCost != nullptr) {
    // The list follows the gross cost and may not hold the stored entry now; it is shown all the same.
    const int found = FindCost(*c.comSubCost, record.ReasonableCostText);
    c.comSubCost->SetText(found == -1 ? record.ReasonableCostText : c.comSubCost->Entry(found));
  }
  if (HasListPerUnit(ws.Class())) {
    ShowPacksOrCigarettes(ws, side);
    c.quantity->SetText(c.quantity->EntryOrLast(record.QuantityListIndex));
    c.comCigsPerDay->SetText(c.comCigsPerDay->EntryOrLast(record.QuantityListIndex));
  } else {
    RefillUnitList(ws, side, record.QuantityListIndex);
  }
}

void OpenPeriodOptions(SinWorkspace& ws, Side side, int n) {
  for (int p = 2; p <= kPeriodCount; ++p) ws.Of(side).optTimePeriod(p).SetEnabled(p <= n);
}

void OpenPeriodRadios(SinWorkspace& ws, Side side, int n) {
  SideControls& c = ws.Of(side);
  for (int p = 2; p <= kPeriodCount; ++p) {
    c.frmEnabledDisabledPeriod(p).SetEnabled(p <= n);
    c.rbnEnabledPeriod(p).SetEnabled(p <= n);
    c.rbnDisabledPeriod(p).SetEnabled(p <= n);
  }
}

void ShowPacksOrCigarettes(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  const bool packs = c.firstUnit->Value();
  c.quantity->SetAvailable(packs);
  c.comCigsPerDay->SetAvailable(!packs);
  c.quantityLabel->SetCaption(packs ? ws.Sin().quantityLabelPerDay : ws.Sin().quantityLabelPerMonth);
}

void RefillUnitList(SinWorkspace& ws, Side side, int position) {
  SideControls& c = ws.Of(side);
  const SinRow& sin = ws.Sin();
  const Unit unit = c.firstUnit->Value() ? Unit::PerDay : Unit::PerMonth;
  if (ws.Class() == CostClass::FlatRateClass)
    c.quantityLabel->SetCaption(unit == Unit::PerDay ? sin.flatLabelPerDay[side] : sin.flatLabelPerMonth);
  else
    c.quantityLabel->SetCaption(unit == Unit::PerDay ? sin.quantityLabelPerDay : sin.quantityLabelPerMonth);
  c.quantity->Clear();
  AppendEntries(ws, *c.quantity, UnitList(sin, unit));
  c.quantity->SetText(c.quantity->EntryOrLast(position));
}

void ShowCostMode(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  const SinRow& sin = ws.Sin();
  const bool percent = c.OptCigPercentCostIncrease->Value();
  c.comInitialCost->SetAvailable(true);
  c.comFinalCost->SetAvailable(!percent);
  c.comPercentIncrease->SetAvailable(percent);
  // The percent list's label is borrowed for the final cost.
  c.costLabel->SetCaption(percent ? sin.costLabelPercent : sin.costLabelInitial);
  c.percentLabel->SetCaption(percent ? sin.percentLabelPercent : sin.costLabelFinal);
}

const std::string& QuantityText(const SinWorkspace& ws, Side side, int period) {
  return QuantityListOf(ws, ws.Of(side)).EntryOrLast(ws.Record(side, period).QuantityListIndex);
}

std::vector<std::string> EntriesOf(const SinWorkspace& ws, const ListDefinition& definition) {
  const NumberFormat format = definition.format.starts_with('$')
                                  ? MoneyFormat(ws.GetSession().currency, definition.format)
                                  : NumberFormat(definition.format);
  std::vector<std::string> entries;
  entries.reserve(EntryCount(definition));
  for (const Run& run : definition.runs) {
    for (int i = run.first; i <= run.last; ++i) {
      const double value = static_cast<double>(i) * run.multiplier / run.divisor;
      format.Append(entries.emplace_back(), value);
    }
  }
  return entries;
}

void AppendEntries(const SinWorkspace& ws, DropDownList& list, const ListDefinition& definition) {
  list.Append(EntriesOf(ws, definition));
}

int EntryCount(const ListDefinition& definition) {
  int count = 0;
  for (const Run& run : definition.runs) count += run.last - run.first + 1;
  return count;
}

const ListDefinition& UnitList(const SinRow& sin, Unit unit) {
  return unit == Unit::PerDay ? sin.perDayList : sin.perMonthList;
}

}  // namespace vicetoll
