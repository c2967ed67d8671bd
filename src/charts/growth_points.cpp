// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/growth_points.h"

#include "calendar/date_label.h"
#include "reports/month_report.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

bool Counts(const WorkspaceSide& side) { return CountedOf(side, side.Index()).last != 0; }
bool IsWorthCounting(const WorkspaceSide& side) { return CountedOf(side, side.Index()).worthCounting; }

ChartMonthKind KindOf(MonthKind kind) {
  switch (kind) {
    case MonthKind::Disabled:
      return ChartMonthKind::Disabled;
    case MonthKind::Gap:
      return ChartMonthKind::Gap;
    case MonthKind::Active:
      break;
  }
  return ChartMonthKind::Active;
}

// A month behind the last period has what CostAfterLastPeriod gives for it: its own month earns nothing.
void AddMonthsAhead(const FutureDateFigure& figure, std::vector<ChartMonth>& months) {
  const int count = MonthsBetween(figure.from, figure.date);
  const double factor = Rates{.interestPercent = figure.netRate}.MonthlyFactor();
  ChartMonth month = months.back();
  month.kind = ChartMonthKind::Ahead;
  month.label = figure.from;
  month.withInterest = figure.balance;
  for (int n = 1; n <= count; ++n) {
    month.label = MonthAfter(month.label);
    if (n > 1) month.withInterest *= factor;
    months.push_back(month);
  }
  if (count > 0) months.back().withInterest = figure.value;
}

std::string BandName(const ChartMonth& month) {
  if (month.kind == ChartMonthKind::Gap) return {};
  if (month.kind == ChartMonthKind::Ahead) return "Afterwards";
  return PeriodName(month.side, month.period);
}

std::vector<ChartBand> BandsOf(const std::vector<ChartMonth>& months) {
  std::vector<ChartBand> bands;
  for (int i = 0; i < static_cast<int>(months.size()); ++i) {
    const ChartMonth& month = months[i];
    const bool goesOn = !bands.empty() && bands.back().kind == month.kind &&
                        bands.back().side == month.side && bands.back().period == month.period;
    if (!goesOn) bands.push_back({i, i, month.kind, month.side, month.period, BandName(month)});
    bands.back().last = i;
  }
  return bands;
}

ChartContents NothingYet(const SinWorkspace& ws) {
  ChartContents contents;
  contents.currency = ws.GetSession().currency;
  contents.emptyText = "Nothing is set and enabled for " + std::string(ws.Sin().checkCaption) +
                       ". Set a period, or enable one, and its growth is drawn here.";
  return contents;
}

ChartContents MonthsOf(const SinWorkspace& ws, const MonthReport& report) {
  ChartContents contents = NothingYet(ws);
  for (const ReportMonth& month : report.months)
    contents.months.push_back({month.label, KindOf(month.kind), month.side, month.period,
                               month.cumulativeCost, month.cumulativeCostWithInterest});
  return contents;
}

// What stands beside the months: bands, the present, the title.
void Describe(const SinWorkspace& ws, const MonthAndYear& present, ChartContents& contents) {
  contents.bands = BandsOf(contents.months);
  const std::string now =
      MakeDateLabel(static_cast<std::int16_t>(present.month), static_cast<std::int16_t>(present.year));
  for (int i = 0; i < static_cast<int>(contents.months.size()) && contents.present == -1; ++i)
    if (contents.months[i].label == now) contents.present = i;
  contents.title = std::string(ws.Sin().checkCaption) + ": cost out of pocket and with interest, " +
                   contents.months.front().label + " to " + contents.months.back().label;
}

}  // namespace

// The Total report leaves out a side that comes to nothing. Where both do, one of them is shown all the same:
// a sin that costs nothing is a line along the axis.
ReportScope GrowthScopeOf(const SinWorkspace& ws) {
  for (Side side : kSides)
    if (IsWorthCounting(ws.Of(side))) return ReportScope::Total;
  return Counts(ws.Of(Side::Past)) ? ReportScope::Past : ReportScope::Future;
}

ChartContents GrowthOf(const SinWorkspace& ws, const MonthAndYear& present) {
  if (!Counts(ws.Of(Side::Past)) && !Counts(ws.Of(Side::Future))) return NothingYet(ws);
  ChartContents contents = MonthsOf(ws, ReportOf(ws, GrowthScopeOf(ws)));
  if (contents.months.empty()) return contents;
  if (const auto figure = FutureDateFigureOf(ws)) AddMonthsAhead(*figure, contents.months);
  Describe(ws, present, contents);
  return contents;
}

ChartContents GrowthOf(const SinWorkspace& ws, const MonthReport& report, const MonthAndYear& present) {
  ChartContents contents = MonthsOf(ws, report);
  if (!contents.months.empty()) Describe(ws, present, contents);
  return contents;
}

}  // namespace vicetoll
