// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/parameters.h"

#include <algorithm>

#include "base/checked_int.h"
#include "calendar/number_text.h"
#include "workspace/date_list.h"

namespace vicetoll {
namespace {

// The list of the unit option that is on.
const DropDownList& QuantityListOf(const WorkspaceSide& side) {
  return HasListPerUnit(side.Class()) && !side.firstUnit->Value() ? *side.comCigsPerDay : *side.quantity;
}

// The part of SetParameters that all sins share.
void SaveSharedParameters(WorkspaceSide& side, int period) {
  PeriodRecord& record = side.Record(period);
  record.PeriodSelected = true;
  record.StartLabel = side.comStart->Text();
  record.StopLabel = side.comStop->Text();
  const auto last = [](const DropDownList& list) { return list.Entry(list.Count() - 1); };
  // In fine mode the ends of the coarse lists stay as they were.
  if (side.optCourseDateStart->Value()) {
    record.StartListFirst = side.comStart->Entry(0);
    record.StartListLast = last(*side.comStart);
  }
  // The past side asks the start option here too: the stop list of a past period is saved when the start
  // list is coarse, whatever the stop option says.
  const Option* stopMode = side.IsPast() ? side.optCourseDateStart : side.optCourseDateStop;
  if (stopMode->Value()) {
    record.StopListFirst = side.comStop->Entry(0);
    record.StopListLast = last(*side.comStop);
  }
  side.optCourseDateStart->SetValue(true);
  side.optCourseDateStop->SetValue(true);
  record.PercentIncreaseText = side.comPercentIncrease->Text();
  record.InterestRateText = side.comInterestRate1->Text();
  record.InflationRateText = side.comInflationRate1->Text();
}

// The position of the quantity that is stored. A repeated load appends the list again; an entry of a later
// copy is stored at its place in the first, which is there also when the list is filled anew. -1 where the
// text is no entry.
std::int16_t QuantityPosition(const WorkspaceSide& side) {
  const Unit unit = side.firstUnit->Value() ? Unit::PerDay : Unit::PerMonth;
  const DropDownList& list = QuantityListOf(side);
  const int entries = std::max(EntryCount(UnitList(side.Sin(), unit)), 1);  // of every list; none is empty
  return static_cast<std::int16_t>(list.Position() % entries);
}

// The position of the first entry with the stored cost, comparing texts without the euro sign, and where
// none is equal, amounts: what was stored in dollars is found again in euros. -1 where there is none.
int FindCost(const DropDownList& list, const std::string& stored) {
  const std::string wanted = StripCurrency(stored);
  for (int i = 0; i < list.Count(); ++i)
    if (StripCurrency(list.Entry(i)) == wanted) return i;
  if (!IsNumeric(wanted)) return -1;
  const double amount = TextToNumber(wanted);
  for (int i = 0; i < list.Count(); ++i)
    if (MoneyToNumber(list.Entry(i)) == amount) return i;
  return -1;
}

void ShowCost(DropDownList* list, const std::string& stored) {
  if (list != nullptr) list->SelectEntry(FindCost(*list, stored));
}

}  // namespace

void SetPeriodParameters(WorkspaceSide& side, std::string_view period) {
  for (int p = 1; p <= kPeriodCount; ++p) side.Record(p).PeriodSelected = false;
  side.Record(RoundToInt16(TextToNumber(period))).PeriodSelected = true;
  side.frmDaily->SetCaption("Period " + std::string(period) +
                            std::string(side.Sin().dailySuffix[side.Which()]));
}

void SetParameters(WorkspaceSide& side, int period) {
  SaveSharedParameters(side, period);
  PeriodRecord& record = side.Record(period);
  const bool keepsUnit = !side.IsPast() && side.Sin().futureKeepsUnit;
  if (!keepsUnit) record.QuantityUnitFlag = side.firstUnit->Value();
  record.QuantityListIndex = QuantityPosition(side);
  if (side.comInitialCost != nullptr) record.InitialCostText = side.comInitialCost->Text();
  if (side.comFinalCost != nullptr) {
    record.FinalCostText = side.comFinalCost->Text();
    record.CostModeFlag = side.OptCigPercentCostIncrease->Value();
  }
  if (side.comSubCost != nullptr) {
    const bool plain = side.IsPast() && side.Sin().pastStoresPlainReasonableCost;
    record.ReasonableCostText = plain ? StripCurrency(side.comSubCost->Text()) : side.comSubCost->Text();
  }
}

void LoadSharedParameters(WorkspaceSide& side, int period) {
  const PeriodRecord& record = side.Record(period);
  side.optCourseDateStart->SetValue(true);
  side.optCourseDateStop->SetValue(true);
  side.comStart->Clear();
  FillDateList(true, *side.comStart, record.StartListFirst, record.StartListLast, kCoarseStep);
  side.comStop->Clear();
  FillDateList(true, *side.comStop, record.StopListFirst, record.StopListLast, kCoarseStep);
  // A month chosen in fine mode may be in neither list. The start then shows as the first entry, the
  // stop as the entry at the place where the start was found. The store keeps the months chosen.
  int position = 0;
  if (const int found = side.comStart->Find(record.StartLabel); found != -1) position = found;
  side.comStart->SetText(side.comStart->EntryOrLast(position));
  if (const int found = side.comStop->Find(record.StopLabel); found != -1) position = found;
  side.comStop->SetText(side.comStop->EntryOrLast(position));
  side.comPercentIncrease->SetText(record.PercentIncreaseText);
  side.comInterestRate1->SetText(record.InterestRateText);
  side.comInflationRate1->SetText(record.InflationRateText);
}

void GetParameters(WorkspaceSide& side, int period) {
  LoadSharedParameters(side, period);
  const PeriodRecord& record = side.Record(period);
  (record.QuantityUnitFlag ? side.firstUnit : side.secondUnit)->SetValue(true);
  ShowCost(side.comInitialCost, record.InitialCostText);
  ShowCost(side.comFinalCost, record.FinalCostText);
  if (side.OptCigPercentCostIncrease != nullptr) {
    (record.CostModeFlag ? side.OptCigPercentCostIncrease : side.OptCigInitialFinalCostIncrease)
        ->SetValue(true);
    ShowCostMode(side);
  }
  if (side.comSubCost != nullptr) {
    // The list follows the gross cost and may not hold the stored entry now; it is shown all the same.
    const int found = FindCost(*side.comSubCost, record.ReasonableCostText);
    side.comSubCost->SetText(found == -1 ? record.ReasonableCostText : side.comSubCost->Entry(found));
  }
  if (HasListPerUnit(side.Class())) {
    ShowPacksOrCigarettes(side);
    side.quantity->SetText(side.quantity->EntryOrLast(record.QuantityListIndex));
    side.comCigsPerDay->SetText(side.comCigsPerDay->EntryOrLast(record.QuantityListIndex));
  } else {
    RefillUnitList(side, record.QuantityListIndex);
  }
}

void OpenPeriodOptions(WorkspaceSide& side, int n) {
  for (int p = 2; p <= kPeriodCount; ++p) side.optTimePeriod(p).SetEnabled(p <= n);
}

void OpenPeriodRadios(WorkspaceSide& side, int n) {
  for (int p = 2; p <= kPeriodCount; ++p) {
    side.frmEnabledDisabledPeriod(p).SetEnabled(p <= n);
    side.rbnEnabledPeriod(p).SetEnabled(p <= n);
    side.rbnDisabledPeriod(p).SetEnabled(p <= n);
  }
}

void ShowPacksOrCigarettes(WorkspaceSide& side) {
  const bool packs = side.firstUnit->Value();
  side.quantity->SetAvailable(packs);
  side.comCigsPerDay->SetAvailable(!packs);
  side.quantityLabel->SetCaption(packs ? side.Sin().quantityLabelPerDay : side.Sin().quantityLabelPerMonth);
}

void RefillUnitList(WorkspaceSide& side, int position) {
  const SinRow& sin = side.Sin();
  const Unit unit = side.firstUnit->Value() ? Unit::PerDay : Unit::PerMonth;
  if (side.Class() == CostClass::FlatRateClass)
    side.quantityLabel->SetCaption(unit == Unit::PerDay ? sin.flatLabelPerDay[side.Which()]
                                                        : sin.flatLabelPerMonth);
  else
    side.quantityLabel->SetCaption(unit == Unit::PerDay ? sin.quantityLabelPerDay
                                                        : sin.quantityLabelPerMonth);
  side.quantity->Clear();
  AppendEntries(side.Workspace(), *side.quantity, UnitList(sin, unit));
  side.quantity->SetText(side.quantity->EntryOrLast(position));
}

void ShowCostMode(WorkspaceSide& side) {
  const SinRow& sin = side.Sin();
  const bool percent = side.OptCigPercentCostIncrease->Value();
  side.comInitialCost->SetAvailable(true);
  side.comFinalCost->SetAvailable(!percent);
  side.comPercentIncrease->SetAvailable(percent);
  // The percent list's label is borrowed for the final cost.
  side.costLabel->SetCaption(percent ? sin.costLabelPercent : sin.costLabelInitial);
  side.percentLabel->SetCaption(percent ? sin.percentLabelPercent : sin.costLabelFinal);
}

const std::string& QuantityText(const WorkspaceSide& side, int period) {
  return QuantityListOf(side).EntryOrLast(side.Record(period).QuantityListIndex);
}

std::vector<std::string> EntriesOf(const SinWorkspace& ws, const ListDefinition& definition) {
  return EntriesIn(definition.format.starts_with('$')
                       ? MoneyFormat(ws.GetSession().currency, definition.format)
                       : NumberFormat(definition.format),
                   definition);
}

std::vector<std::string> EntriesIn(const NumberFormat& format, const ListDefinition& definition) {
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
