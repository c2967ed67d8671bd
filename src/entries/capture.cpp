// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/capture.h"

#include "calendar/number_text.h"
#include "entries/value_lists.h"
#include "workspace/period_operations.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

// "$5.00" as "5.00". Lists of whole units have no decimals.
std::string AmountOf(const std::string& money, std::string_view listFormat) {
  if (listFormat.starts_with('$')) listFormat.remove_prefix(1);
  return FormatNumber(MoneyToNumber(money), listFormat);
}

int PercentOf(const std::string& rate) { return static_cast<int>(LeadingNumber(rate)); }

// The text at a place of the quantity list in a unit: of smoking in the list as it stands, of all others in
// the list as it is filled whenever the period is shown.
std::string QuantityAt(const WorkspaceSide& side, Unit unit, int place) {
  if (!HasListPerUnit(side.Class()))
    return AmountAt(QuantityAmounts(side.Workspace().Position(), unit), place);
  return (unit == Unit::PerDay ? side.quantity : side.comCigsPerDay)->EntryOrLast(place);
}

PeriodEntries CapturePeriod(const WorkspaceSide& side, int p) {
  const SinWorkspace& ws = side.Workspace();
  const PeriodRecord& record = side.Record(p);
  const SinRow& sin = side.Sin();
  PeriodEntries period;
  period.start = record.StartLabel;
  period.stop = record.StopLabel;
  period.startList = {record.StartListFirst, record.StartListLast};
  period.stopList = {record.StopListFirst, record.StopListLast};
  period.unit = record.QuantityUnitFlag ? Unit::PerDay : Unit::PerMonth;
  const Unit other = OtherUnit(period.unit);
  period.quantity = QuantityAt(side, period.unit, record.QuantityListIndex);
  const std::string elsewhere = QuantityAt(side, other, record.QuantityListIndex);
  const int usual = PlaceOf(QuantityAmounts(ws.Position(), period.unit), period.quantity);
  if (elsewhere != AmountAt(QuantityAmounts(ws.Position(), other), usual)) period.otherUnit = elsewhere;
  if (side.Class() != CostClass::FlatRateClass)
    period.cost = AmountOf(record.InitialCostText, sin.costList.format);
  if (HasCostModes(side.Class())) {
    period.finalCost = AmountOf(record.FinalCostText, sin.secondCostList.format);
    period.percentMode = record.CostModeFlag;
  }
  if (side.Class() == CostClass::NetUnitsClass)
    period.reasonableCost = AmountOf(record.ReasonableCostText, sin.secondCostList.format);
  period.increase = PercentOf(record.PercentIncreaseText);
  period.interest = PercentOf(record.InterestRateText);
  period.inflation = PercentOf(record.InflationRateText);
  period.enabled = side.rbnEnabledPeriod(p).Value();
  return period;
}

bool OutOfOrder(const std::vector<PeriodEntries>& periods) {
  for (std::size_t i = 0; i < periods.size(); ++i) {
    if (MonthsBetween(periods[i].start, periods[i].stop) < 0) return true;
    if (i > 0 && MonthsBetween(periods[i - 1].stop, periods[i].start) <= 0) return true;
  }
  return false;
}

// How the results came about. A switch hides what is off, and leaves it out of the total; a press counts all
// that is set, and writes "0" into the boxes of the rest.
CountedIn ResultsBy(const WorkspaceSide& side, const SideEntries& entries) {
  const int count = static_cast<int>(entries.periods.size());
  double all = 0, on = 0;
  for (int p = 1; p <= count; ++p) {
    const double cost = MoneyToNumber(side.txtResultsPeriod(p).Text());
    const bool enabled = entries.periods[p - 1].enabled;
    if (!enabled && p > 1) return CountedIn::Switch;  // a press turns these on
    all += cost;
    if (enabled) on += cost;
  }
  // Compared as they show: sums of more than 15 digits lose their last.
  const std::string allShown = side.Money(all, kResultFormat);
  const bool restIsZero = count == kPeriodCount || side.txtResultsPeriod(count + 1).Text() == "0";
  const bool byPress =
      allShown == side.Money(on, kResultFormat) ? restIsZero : allShown == side.txtResultsTotal->Text();
  if (!byPress) return CountedIn::Switch;
  return side.txtResultsPeriod(1).Enabled() ? CountedIn::Press : CountedIn::PressHidingFirst;
}

// Whether the cost boxes of the side hold what its periods cost in this unit.
bool ShowsResultsIn(const WorkspaceSide& side, int count, Unit unit) {
  for (int p = 1; p <= count; ++p) {
    const PeriodRecord& record = side.Record(p);
    const PeriodTerms terms =
        TermsOf(record, side.Class(), QuantityAt(side, unit, record.QuantityListIndex), unit == Unit::PerDay);
    if (side.Money(CostInPeriod(terms), kResultFormat) != side.txtResultsPeriod(p).Text()) return false;
  }
  return true;
}

SideEntries CaptureSide(WorkspaceSide& side) {
  SideEntries entries;
  for (int p = 1; p <= kPeriodCount && side.Record(p).PeriodSet; ++p)
    entries.periods.push_back(CapturePeriod(side, p));
  if (entries.periods.empty()) return entries;
  entries.outOfOrder = OutOfOrder(entries.periods);
  entries.shownPeriod = side.state.CurrentPeriod;
  entries.shownUnit = side.firstUnit->Value() ? Unit::PerDay : Unit::PerMonth;
  entries.resultsBy = ResultsBy(side, entries);
  const int count = static_cast<int>(entries.periods.size());
  const Unit usual = UsualResultsUnit(entries);
  const bool otherwise = !ShowsResultsIn(side, count, usual) && ShowsResultsIn(side, count, OtherUnit(usual));
  entries.resultsUnit = otherwise ? OtherUnit(usual) : usual;
  return entries;
}

}  // namespace

SinEntries CaptureSin(SinWorkspace& ws) {
  SinEntries sin;
  sin.position = ws.Position();
  for (Side side : kSides) sin.Of(side) = CaptureSide(ws.Of(side));
  sin.total = ws.evaluatedAt;
  sin.oldBalance = OldBalance(ws);
  const FutureDateTerms chosen{ws.comCumulativeFutureDateTot->Text(), ws.comInterestRateFutureDateTot->Text(),
                               ws.comInflationRateFutureDateTot->Text()};
  if (!sin.total) return sin;
  // The button waits also where a list was changed and changed back.
  const bool waits =
      ws.SSTab_PastFutureSwitch->Tab() == kTotalTab && ws.cmdCumulativeFutureDateTot->Enabled();
  if (waits || chosen != *sin.total) sin.totalWaiting = chosen;
  sin.oldFigure = OldFutureDateFigure(ws);
  return sin;
}

Entries Capture(Workspaces& program) {
  const Session& session = program.GetSession();
  Entries entries;
  entries.currency = session.currency;
  entries.front = SinPosition(session.CurrentSinKey);
  entries.tab = static_cast<Tab>(program.At(entries.front).SSTab_PastFutureSwitch->Tab());
  for (int i = 0; i < kSinCount; ++i)
    if (i == entries.front || session.SinVisited[i]) entries.sins.push_back(CaptureSin(program.At(i)));
  return entries;
}

}  // namespace vicetoll
