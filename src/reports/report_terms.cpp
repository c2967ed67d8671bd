// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_terms.h"

#include "calendar/money.h"
#include "workspace/period_operations.h"
#include "workspace/totals.h"

namespace vicetoll {

ReportPeriod ReportPeriodOf(const WorkspaceSide& side, int period, bool counted) {
  const PeriodRecord& record = side.Record(period);
  ReportPeriod read{.side = side.Which(), .number = period, .set = record.PeriodSet, .counted = counted};
  read.terms = read.set && counted ? PeriodTermsOf(side, period) : DatesAndRatesOf(record);
  read.stretchStart = record.StartLabel;
  read.stretchStop = record.StopLabel;
  return read;
}

ReportSide ReportSideOf(const WorkspaceSide& side, SideIndex sideIndex) {
  ReportSide periods;
  for (int p = 1; p <= kPeriodCount; ++p) {
    ReportPeriod& period = periods[p - 1];
    period = ReportPeriodOf(side, p, IsCounted(side, p, sideIndex));
    const PeriodRecord& around = side.Store().At(p, sideIndex);
    period.stretchStart = around.StartLabel;
    period.stretchStop = around.StopLabel;
  }
  return periods;
}

ReportState LastReport(const SinWorkspace& ws) {
  return {ws.CurrentIndexSub, ws.CurrentCumulativeCost, ws.CurrentCumulativeCostWithInterest};
}

void KeepReport(SinWorkspace& ws, std::int16_t& index, const ReportState& state) {
  index = state.index;
  ws.CurrentCumulativeCost = state.cost;
  ws.CurrentCumulativeCostWithInterest = state.withInterest;
}

TotalTerms TotalTermsOf(const SinWorkspace& ws, SideIndex pastIndex, SideIndex futureIndex) {
  const WorkspaceSide& past = ws.Of(Side::Past);
  const WorkspaceSide& future = ws.Of(Side::Future);
  const CountedPeriods pastCounted = CountedOf(past, pastIndex);
  const CountedPeriods futureCounted = CountedOf(future, futureIndex);
  TotalTerms terms{.hasPast = pastCounted.worthCounting, .hasFuture = futureCounted.worthCounting};
  if (terms.hasPast) terms.past = ReportSideOf(past, pastIndex);
  if (terms.hasFuture) terms.future = ReportSideOf(future, futureIndex);
  if (terms.HasBorder()) {
    const int last = pastCounted.last;
    terms.borderPeriod = ReportPeriodOf(past, last, false);
    terms.borderFrom = ws.Store().At(last, pastIndex).StopLabel;
    terms.borderTo = ws.Store().At(futureCounted.first, futureIndex).StartLabel;
    terms.borderCost = MoneyToNumber(past.txtResultsTotal->Text());
    terms.borderWithInterest = MoneyToNumber(past.txtCumulativeResultsPeriod(last).Text());
  }
  return terms;
}

ReportState WalkBorder(const TotalTerms& terms, std::int16_t index, MonthSink& sink) {
  return WalkBetweenPeriods(terms.borderPeriod, false, terms.borderFrom, terms.borderTo,
                            {index, terms.borderCost, terms.borderWithInterest}, sink);
}

ReportState WalkTotal(const TotalTerms& terms, ReportState state, MonthSink& sink) {
  if (terms.hasPast) state = WalkSide(terms.past, {}, sink);
  if (terms.HasBorder()) state = WalkBorder(terms, state.index, sink);
  if (terms.hasFuture) state = WalkSide(terms.future, state, sink);
  return state;
}

}  // namespace vicetoll
