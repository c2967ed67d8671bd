// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/month_reports.h"

#include "reports/doc_text.h"
#include "reports/report_terms.h"
#include "reports/spd_rows.h"

namespace vicetoll {
namespace {

// Lists a period's months on from that state. One that is not set leaves the workspace's totals alone.
void ListPeriod(WorkspaceSide& side, int number, std::int16_t& index, const ReportState& state,
                MonthSink& sink) {
  const ReportPeriod period = ReportPeriodOf(side, number, true);
  if (period.set) KeepReport(side.Workspace(), index, WalkPeriod(period, state, sink));
}

void ListBetweenPeriods(WorkspaceSide& side, bool periodIsDisabled, int number, std::int16_t& index,
                        const ReportState& state, std::string_view from, std::string_view to,
                        MonthSink& sink) {
  const ReportPeriod period = ReportPeriodOf(side, number, false);
  if (period.set)
    KeepReport(side.Workspace(), index, WalkBetweenPeriods(period, periodIsDisabled, from, to, state, sink));
}

}  // namespace

void ParametersForMonthInPeriodSpd(WorkspaceSide& side, Grid& grid, int period, std::int16_t& index,
                                   double cumulativeCost, double cumulativeCostWithInterest) {
  SpdRowWriter rows(side.Workspace());
  ListPeriod(side, period, index, {index, cumulativeCost, cumulativeCostWithInterest}, rows);
  grid.Append(rows.Take());
}

void ParametersForMonthInPeriodSpdBetweenPeriods(WorkspaceSide& side, Grid& grid, bool periodIsDisabled,
                                                 int period, std::int16_t& index, double cumulativeCost,
                                                 double cumulativeCostWithInterest, std::string_view from,
                                                 std::string_view to) {
  SpdRowWriter rows(side.Workspace());
  ListBetweenPeriods(side, periodIsDisabled, period, index,
                     {index, cumulativeCost, cumulativeCostWithInterest}, from, to, rows);
  grid.Append(rows.Take());
}

std::string ParametersForMonthInPeriodDoc(WorkspaceSide& side, int period, bool docFlag, std::int16_t& index,
                                          double cumulativeCost, double cumulativeCostWithInterest) {
  std::string text;
  ListPeriod(side, period, index, {index, cumulativeCost, cumulativeCostWithInterest},
             *MakeDocWriter(side.Workspace(), docFlag, text));
  return text;
}

std::string ParametersForMonthInPeriodDocBetweenPeriods(WorkspaceSide& side, bool periodIsDisabled,
                                                        int period, bool docFlag, std::int16_t& index,
                                                        double cumulativeCost,
                                                        double cumulativeCostWithInterest,
                                                        std::string_view from, std::string_view to) {
  std::string text;
  ListBetweenPeriods(side, periodIsDisabled, period, index,
                     {index, cumulativeCost, cumulativeCostWithInterest}, from, to,
                     *MakeDocWriter(side.Workspace(), docFlag, text));
  return text;
}

}  // namespace vicetoll
