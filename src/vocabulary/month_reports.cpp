// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/month_reports.h"

#include "reports/doc_text.h"
#include "reports/report_terms.h"
#include "reports/spd_rows.h"

namespace vicetoll {
namespace {

// Lists a period's months on from that state. One that is not set leaves the workspace's totals alone.
void ListPeriod(SinWorkspace& ws, Side side, int number, std::int16_t& index, const ReportState& state,
                MonthSink& sink) {
  const ReportPeriod period = ReportPeriodOf(ws, side, number, true);
  if (period.set) KeepReport(ws, index, WalkPeriod(period, state, sink));
}

void ListBetweenPeriods(SinWorkspace& ws, Side side, bool periodIsDisabled, int number, std::int16_t& index,
                        const ReportState& state, std::string_view from, std::string_view to,
                        MonthSink& sink) {
  const ReportPeriod period = ReportPeriodOf(ws, side, number, false);
  if (period.set) KeepReport(ws, index, WalkBetweenPeriods(period, periodIsDisabled, from, to, state, sink));
}

}  // namespace

void ParametersForMonthInPeriodSpd(SinWorkspace& ws, Side side, Grid& grid, int period, std::int16_t& index,
                                   double cumulativeCost, double cumulativeCostWithInterest) {
  SpdRowWriter rows(ws);
  ListPeriod(ws, side, period, index, {index, cumulativeCost, cumulativeCostWithInterest}, rows);
  grid.Append(rows.Take());
}

void ParametersForMonthInPeriodSpdBetweenPeriods(SinWorkspace& ws, Side side, Grid& grid,
                                                 bool periodIsDisabled, int period, std::int16_t& index,
                                                 double cumulativeCost, double cumulativeCostWithInterest,
                                                 std::string_view from, std::string_view to) {
  SpdRowWriter rows(ws);
  ListBetweenPeriods(ws, side, periodIsDisabled, period, index,
                     {index, cumulativeCost, cumulativeCostWithInterest}, from, to, rows);
  grid.Append(rows.Take());
}

std::string ParametersForMonthInPeriodDoc(SinWorkspace& ws, Side side, int period, bool docFlag,
                                          std::int16_t& index, double cumulativeCost,
                                          double cumulativeCostWithInterest) {
  std::string text;
  ListPeriod(ws, side, period, index, {index, cumulativeCost, cumulativeCostWithInterest},
             *MakeDocWriter(ws, docFlag, text));
  return text;
}

std::string ParametersForMonthInPeriodDocBetweenPeriods(SinWorkspace& ws, Side side, bool periodIsDisabled,
                                                        int period, bool docFlag, std::int16_t& index,
                                                        double cumulativeCost,
                                                        double cumulativeCostWithInterest,
                                                        std::string_view from, std::string_view to) {
  std::string text;
  ListBetweenPeriods(ws, side, periodIsDisabled, period, index,
                     {index, cumulativeCost, cumulativeCostWithInterest}, from, to,
                     *MakeDocWriter(ws, docFlag, text));
  return text;
}

}  // namespace vicetoll
