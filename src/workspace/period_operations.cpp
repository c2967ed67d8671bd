// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/period_operations.h"

#include "calendar/date_label.h"
#include "workspace/parameters.h"

namespace vicetoll {

PeriodTerms PeriodTermsOf(const SinWorkspace& ws, Side side, int period) {
  return TermsOf(ws.Record(side, period), ws.Class(), QuantityText(ws, side, period),
                 ws.Of(side).firstUnit->Value());
}

bool IsCounted(const SinWorkspace& ws, Side side, int period, SideIndex sideIndex) {
  return ws.Of(side).txtResultsPeriod(period).Enabled() && ws.Store().At(period, sideIndex).PeriodEnabled;
}

SideTerms SideTermsOf(const SinWorkspace& ws, Side side, SideIndex sideIndex) {
  SideTerms terms;
  terms.currency = ws.GetSession().currency;
  for (int p = 1; p <= kPeriodCount; ++p) {
    terms.periods[p - 1] = PeriodTermsOf(ws, side, p);
    terms.counted[p - 1] = IsCounted(ws, side, p, sideIndex);
  }
  return terms;
}

DateWarning WarningOf(const SinWorkspace& ws) {
  Platform& platform = ws.GetPlatform();
  return [&platform](DateFault fault) {
    // The stray digit is part of the message.
    const char* line =
        fault == DateFault::BeyondEndDate ? "Date Beyond End Date1" : "Date Before Start Date1";
    platform.ShowMessage("", "Warning, Date out of Range\r\n" + std::string(line), MessageButtons::Ok);
  };
}

double CostInPeriod(const SinWorkspace& ws, Side side, int period) {
  const PeriodRecord& record = ws.Record(side, period);
  if (MonthsInclusive(record.StartLabel, record.StopLabel) < 1) return 0;
  return CostInPeriod(PeriodTermsOf(ws, side, period));
}

double CumulativeCostInPeriod(const SinWorkspace& ws, Side side, std::string_view startingCost, int period,
                              std::string_view calculateToDate) {
  const PeriodRecord& record = ws.Record(side, period);
  const bool anyMonth = MonthsInclusive(record.StartLabel, calculateToDate) > 0;
  return CumulativeCostInPeriod(startingCost,
                                anyMonth ? PeriodTermsOf(ws, side, period) : DatesAndRatesOf(record),
                                calculateToDate, WarningOf(ws));
}

double CumulativeCostBetweenPeriod(const SinWorkspace& ws, Side side, std::string_view startingCost,
                                   int period, std::string_view stop, std::string_view start) {
  return CumulativeCostBetweenPeriod(startingCost, RatesOf(ws.Record(side, period)), stop, start);
}

}  // namespace vicetoll
