// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_months.h"

#include "base/checked_int.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"

namespace vicetoll {
namespace {

constexpr std::int16_t kDecember = 12;

// A calendar month that moves on.
class CalendarMonth {
 public:
  explicit CalendarMonth(std::string_view label)
      : month_(MonthNumberFromLabel(label)), year_(YearFromLabel(label)) {}

  std::string Label() const { return MakeDateLabel(month_, year_); }
  void Step() {
    if (month_ < kDecember) {
      ++month_;
    } else {
      month_ = 1;
      year_ = Add(year_, 1);
    }
  }

 private:
  std::int16_t month_, year_;
};

// The month's figures pass through texts of two decimals before they are added up or shown.
void TakeFigures(ReportMonth& month, const MonthFigures& figures) {
  month.quantity = RoundToCents(figures.quantity);
  month.unitCost = RoundToCents(figures.unitCost);
  month.reasonableCost = RoundToCents(figures.reasonableCost);
  month.adjustedCost = RoundToCents(figures.AdjustedCost());
  month.monthCost = RoundToCents(figures.monthCost);
}

// The months of a stretch, at these rates; `cost` is what the active ones cost.
ReportState WalkStretch(const ReportStretch& stretch, const Rates& rates, const CostTerms& cost,
                        ReportState state, MonthSink& sink) {
  const int first = Add(state.index, 1);
  const std::int16_t last = Add(state.index, stretch.months);
  state.index = last;
  if (stretch.months <= 0) return state;
  const bool active = stretch.kind == MonthKind::Active;
  const double monthlyRate = rates.NetFraction() / 12;
  const double factor = rates.MonthlyFactor();
  sink.Begin(stretch);
  MonthWalk costs(cost, stretch.months);
  CalendarMonth calendar(stretch.from);
  for (int n = first; n <= last; ++n) {
    if (!active) calendar.Step();
    ReportMonth month{.index = static_cast<std::int16_t>(n),
                      .kind = stretch.kind,
                      .side = stretch.side,
                      .period = stretch.period,
                      .label = calendar.Label()};
    if (active) {
      calendar.Step();
      TakeFigures(month, costs.Next());
    }
    // The month's cost goes in first, and the month's interest is paid on all of it.
    month.monthWithInterest = month.monthCost * factor + state.withInterest * monthlyRate;
    month.cumulativeCost = state.cost = Finite(state.cost + month.monthCost);
    month.cumulativeCostWithInterest = state.withInterest =
        Finite((state.withInterest + month.monthCost) * factor);
    sink.Add(month);
  }
  return state;
}

}  // namespace

ReportState WalkPeriod(const ReportPeriod& period, ReportState state, MonthSink& sink) {
  if (!period.set) return state;
  const PeriodTerms& terms = period.terms;
  return WalkStretch(
      {MonthKind::Active, period.side, period.number, terms.StartLabel, terms.StopLabel, terms.Months()},
      terms.rates, terms.cost, state, sink);
}

ReportState WalkBetweenPeriods(const ReportPeriod& period, bool periodIsDisabled, std::string_view from,
                               std::string_view to, ReportState state, MonthSink& sink) {
  if (!period.set) return state;
  const std::int16_t inclusive = MonthsInclusive(from, to);
  const MonthKind kind = periodIsDisabled ? MonthKind::Disabled : MonthKind::Gap;
  const std::int16_t months = periodIsDisabled ? inclusive : Subtract(inclusive, 2);
  return WalkStretch({kind, period.side, period.number, from, to, months}, period.terms.rates, {}, state,
                     sink);
}

ReportState WalkSide(const ReportSide& side, ReportState state, MonthSink& sink) {
  const ReportPeriod* before = nullptr;  // the nearest that counts
  for (const ReportPeriod& period : side) {
    if (!period.counted) continue;
    // Each gap, and each period in between, is listed under the period it follows.
    for (; before != nullptr && before != &period; ++before) {
      const ReportPeriod& next = *(before + 1);
      state = WalkBetweenPeriods(*before, false, before->stretchStop, next.stretchStart, state, sink);
      if (&next != &period)
        state = WalkBetweenPeriods(next, true, next.stretchStart, next.stretchStop, state, sink);
    }
    state = WalkPeriod(period, state, sink);
    before = &period;
  }
  return state;
}

}  // namespace vicetoll
