#include "workspace/period_operations.h"

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
  return CostInPeriod(PeriodTermsOf(ws, side, period));
}

double CumulativeCostInPeriod(const SinWorkspace& ws, Side side, std::string_view startingCost, int period,
                              std::string_view calculateToDate) {
  return CumulativeCostInPeriod(startingCost, PeriodTermsOf(ws, side, period), calculateToDate,
                                WarningOf(ws));
}

double CumulativeCostBetweenPeriod(const SinWorkspace& ws, Side side, std::string_view startingCost,
                                   int period, std::string_view stop, std::string_view start) {
  return CumulativeCostBetweenPeriod(startingCost, RatesOf(ws.Record(side, period)), stop, start);
}

double TotalCostInCurrentPeriod(const SinWorkspace& ws, Side side, double count, double months, int period) {
  if (count < 1) return 0;  // the period may hold no texts yet
  PeriodTerms terms = PeriodTermsOf(ws, side, period);
  if (side == Side::Future && ws.Sin().futureTotalTakesListPosition)
    terms.cost.quantity = ws.Record(side, period).QuantityListIndex;
  if (side == Side::Future && ws.Sin().futureTotalHasNoIncrease) terms.cost.yearlyFraction = 0;
  return TotalCostInCurrentPeriod(count, months, terms.rates, terms.cost);
}

}  // namespace vicetoll
