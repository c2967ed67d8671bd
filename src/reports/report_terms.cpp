// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_terms.h"

#include "calendar/money.h"
#include "workspace/period_operations.h"
#include "workspace/totals.h"

namespace vicetoll {

ReportPeriod ReportPeriodOf(const SinWorkspace& ws, Side side, int period, bool counted) {
  const PeriodRecord& record = ws.Record(side, period);
  ReportPeriod read{.side = side, .number = period, .set = record.PeriodSet, .counted = counted};
  if (read.set && counted) {
    read.terms = PeriodTermsOf(ws, side, period);
  } else {
    read.terms.StartLabel = record.StartLabel;
    read.terms.StopLabel = record.StopLabel;
    read.terms.rates = RatesOf(record);
  }
  read.stretchStart = record.StartLabel;
  read.stretchStop = record.StopLabel;
  return read;
}

ReportSide ReportSideOf(const SinWorkspace& ws, Side side, SideIndex sideIndex) {
  ReportSide periods;
  for (int p = 1; p <= kPeriodCount; ++p) {
    ReportPeriod& period = periods[p - 1];
    period = ReportPeriodOf(ws, side, p, IsCounted(ws, side, p, sideIndex));
    const PeriodRecord& around = ws.Store().At(p, sideIndex);
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

TotalTerms TotalTermsOf(const SinWorkspace& ws, SideIndex past, SideIndex future) {
  const CountedPeriods pastCounted = CountedOf(ws, Side::Past, past);
  const CountedPeriods futureCounted = CountedOf(ws, Side::Future, future);
  TotalTerms terms{.hasPast = pastCounted.worthCounting, .hasFuture = futureCounted.worthCounting};
  if (terms.hasPast) terms.past = ReportSideOf(ws, Side::Past, past);
  if (terms.hasFuture) terms.future = ReportSideOf(ws, Side::Future, future);
  if (terms.HasBorder()) {
    const SideControls& boxes = ws.Of(Side::Past);
    const int last = pastCounted.last;
    terms.borderPeriod = ReportPeriodOf(ws, Side::Past, last, false);
    terms.borderFrom = ws.Store().At(last, past).StopLabel;
    terms.borderTo = ws.Store().At(futureCounted.first, future).StartLabel;
    terms.borderCost = MoneyToNumber(boxes.txtResultsTotal->Text());
    terms.borderWithInterest = MoneyToNumber(boxes.txtCumulativeResultsPeriod(last).Text());
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
