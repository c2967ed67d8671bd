#include "reports/report_months.h"

#include <array>

#include "base/checked_int.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "workspace/period_operations.h"

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

// The two totals of a report as they grow at a period's rates.
class Totals {
 public:
  Totals(double cost, double withInterest, const Rates& rates)
      : cost_(cost),
        withInterest_(withInterest),
        monthlyRate_(rates.NetFraction() / 12),
        factor_(rates.MonthlyFactor()) {}

  // Takes in the month's cost and pays the month's interest on all of it.
  void AddMonth(ReportMonth& month) {
    month.monthWithInterest = month.monthCost * factor_ + withInterest_ * monthlyRate_;
    cost_ = Finite(cost_ + month.monthCost);
    withInterest_ = Finite((withInterest_ + month.monthCost) * factor_);
    month.cumulativeCost = cost_;
    month.cumulativeCostWithInterest = withInterest_;
  }

  void WriteBack(SinWorkspace& ws) const {
    ws.CurrentCumulativeCost = cost_;
    ws.CurrentCumulativeCostWithInterest = withInterest_;
  }

 private:
  double cost_, withInterest_;
  double monthlyRate_, factor_;
};

// The month's figures pass through texts of two decimals before they are added up or shown.
void TakeFigures(ReportMonth& month, const MonthFigures& figures) {
  month.quantity = RoundToCents(figures.quantity);
  month.unitCost = RoundToCents(figures.unitCost);
  month.reasonableCost = RoundToCents(figures.reasonableCost);
  month.adjustedCost = RoundToCents(figures.AdjustedCost());
  month.monthCost = RoundToCents(figures.monthCost);
}

// The stretch between two counted periods q and next.
void WalkFromTo(SinWorkspace& ws, Side side, std::int16_t sideIndex, std::int16_t q, std::int16_t next,
                std::int16_t& index, MonthSink& sink) {
  const auto walk = [&](bool disabled, std::int16_t period, std::string_view from, std::string_view to) {
    WalkBetweenPeriods(ws, side, disabled, period, index, ws.CurrentCumulativeCost,
                       ws.CurrentCumulativeCostWithInterest, from, to, sink);
  };
  for (std::int16_t p = q; p < next; ++p) {
    const PeriodRecord& record = ws.Store().At(p, sideIndex);
    if (p != q) walk(true, p, record.StartLabel, record.StopLabel);
    walk(false, p, record.StopLabel, ws.Store().At(p + 1, sideIndex).StartLabel);
  }
}

}  // namespace

void WalkPeriod(SinWorkspace& ws, Side side, std::int16_t period, std::int16_t& index, double cumulativeCost,
                double cumulativeCostWithInterest, MonthSink& sink) {
  const PeriodRecord& record = ws.Record(side, period);
  if (!record.PeriodSet) return;
  const std::int16_t months = MonthsInclusive(record.StartLabel, record.StopLabel);
  const std::int16_t first = Add(index, 1);
  const std::int16_t last = Add(index, months);
  Totals totals(cumulativeCost, cumulativeCostWithInterest, RatesOf(record));
  if (months > 0) {
    sink.Begin({MonthKind::Active, side, period, record.StartLabel, record.StopLabel, months});
    MonthWalk costs(PeriodTermsOf(ws, side, period).cost, months);
    CalendarMonth calendar(record.StartLabel);
    for (int n = first; n <= last; ++n) {
      ReportMonth month{.index = static_cast<std::int16_t>(n), .label = calendar.Label()};
      calendar.Step();
      TakeFigures(month, costs.Next());
      totals.AddMonth(month);
      sink.Add(month);
    }
  }
  index = last;
  totals.WriteBack(ws);
}

void WalkBetweenPeriods(SinWorkspace& ws, Side side, bool periodIsDisabled, std::int16_t period,
                        std::int16_t& index, double cumulativeCost, double cumulativeCostWithInterest,
                        std::string_view from, std::string_view to, MonthSink& sink) {
  const PeriodRecord& record = ws.Record(side, period);
  if (!record.PeriodSet) return;
  const std::int16_t inclusive = MonthsInclusive(from, to);
  const std::int16_t months = periodIsDisabled ? inclusive : Subtract(inclusive, 2);
  const std::int16_t first = Add(index, 1);
  const std::int16_t last = Add(index, months);
  Totals totals(cumulativeCost, cumulativeCostWithInterest, RatesOf(record));
  if (months > 0) {
    sink.Begin({periodIsDisabled ? MonthKind::Disabled : MonthKind::Gap, side, period, from, to, months});
    CalendarMonth calendar(from);
    for (int n = first; n <= last; ++n) {
      calendar.Step();
      ReportMonth month{.index = static_cast<std::int16_t>(n), .label = calendar.Label()};
      totals.AddMonth(month);
      sink.Add(month);
    }
  }
  index = last;
  totals.WriteBack(ws);
}

void WalkSide(SinWorkspace& ws, Side side, std::int16_t sideIndex, std::int16_t& index, MonthSink& sink) {
  std::array<bool, kPeriodCount + 1> counted{};
  for (std::int16_t p = 1; p <= kPeriodCount; ++p) counted[p] = IsCounted(ws, side, p, sideIndex);
  std::int16_t before = 0;
  for (std::int16_t p = 1; p <= kPeriodCount; ++p) {
    if (!counted[p]) continue;
    if (before != 0) WalkFromTo(ws, side, sideIndex, before, p, index, sink);
    WalkPeriod(ws, side, p, index, ws.CurrentCumulativeCost, ws.CurrentCumulativeCostWithInterest, sink);
    before = p;
  }
}

}  // namespace vicetoll
