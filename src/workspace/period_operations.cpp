// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/period_operations.h"

#include "calendar/date_label.h"
#include "workspace/parameters.h"

namespace vicetoll {

PeriodTerms PeriodTermsOf(const WorkspaceSide& side, int period) {
  return TermsOf(side.Record(period), side.Class(), QuantityText(side, period), side.firstUnit->Value());
}

bool IsCounted(const WorkspaceSide& side, int period, SideIndex sideIndex) {
  return side.txtResultsPeriod(period).Enabled() && side.Store().At(period, sideIndex).PeriodEnabled;
}

SideTerms SideTermsOf(const WorkspaceSide& side, SideIndex sideIndex) {
  SideTerms terms;
  terms.currency = side.GetSession().currency;
  for (int p = 1; p <= kPeriodCount; ++p) {
    terms.periods[p - 1] = PeriodTermsOf(side, p);
    terms.counted[p - 1] = IsCounted(side, p, sideIndex);
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

double CostInPeriod(const WorkspaceSide& side, int period) {
  const PeriodRecord& record = side.Record(period);
  if (MonthsInclusive(record.StartLabel, record.StopLabel) < 1) return 0;
  return CostInPeriod(PeriodTermsOf(side, period));
}

double CumulativeCostInPeriod(const WorkspaceSide& side, std::string_view startingCost, int period,
                              std::string_view calculateToDate) {
  const PeriodRecord& record = side.Record(period);
  const bool anyMonth = MonthsInclusive(record.StartLabel, calculateToDate) > 0;
  return CumulativeCostInPeriod(startingCost,
                                anyMonth ? PeriodTermsOf(side, period) : DatesAndRatesOf(record),
                                calculateToDate, WarningOf(side.Workspace()));
}

double CumulativeCostBetweenPeriod(const WorkspaceSide& side, std::string_view startingCost, int period,
                                   std::string_view stop, std::string_view start) {
  return CumulativeCostBetweenPeriod(startingCost, RatesOf(side.Record(period)), stop, start);
}

}  // namespace vicetoll
