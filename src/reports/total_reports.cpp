#include "reports/total_reports.h"

#include "calendar/money.h"
#include "reports/report_operations.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

// What a report over both sides is made of.
struct Sides {
  CountedPeriods past, future;
  bool HavePast() const { return past.worthCounting; }
  bool HaveFuture() const { return future.worthCounting; }
  bool HaveBoth() const { return HavePast() && HaveFuture(); }
};

Sides SidesOf(SinWorkspace& ws, std::int16_t past, std::int16_t future) {
  return {CountedOf(ws, Side::Past, past), CountedOf(ws, Side::Future, future)};
}

// The months between the last period of the past and the first of the future.
struct Border {
  std::int16_t period;
  std::string from, to;
};

// Finds the border and moves the totals from what the report reckoned to what the result boxes show.
Border CrossBorder(SinWorkspace& ws, const Sides& sides, std::int16_t past, std::int16_t future) {
  const SideControls& boxes = ws.Of(Side::Past);
  Border border{static_cast<std::int16_t>(sides.past.last), ws.Store().At(sides.past.last, past).StopLabel,
                ws.Store().At(sides.future.first, future).StartLabel};
  ws.CurrentCumulativeCostWithInterest =
      MoneyToNumber(boxes.txtCumulativeResultsPeriod(border.period).Text());
  ws.State(Side::Past).BeginManualDate = border.from;
  ws.CurrentCumulativeCost = MoneyToNumber(boxes.txtResultsTotal->Text());
  return border;
}

}  // namespace

void BuildTotalSpdRows(SinWorkspace& ws, Grid& grid) {
  const std::int16_t past = ws.SideIndex(Side::Past);
  const std::int16_t future = ws.SideIndex(Side::Future);
  const Sides sides = SidesOf(ws, past, future);
  std::int16_t& index = ws.CurrentIndexSub;
  if (sides.HavePast()) BuildSpdRows(ws, Side::Past, grid, true, true, index, past);
  ws.FuturePast_Flag = kShowsPast;
  if (sides.HaveBoth()) {
    const Border border = CrossBorder(ws, sides, past, future);
    ParametersForMonthInPeriodSpdBetweenPeriods(ws, Side::Past, grid, false, border.period, index,
                                                ws.CurrentCumulativeCost,
                                                ws.CurrentCumulativeCostWithInterest, border.from, border.to);
  }
  if (sides.HaveFuture()) BuildSpdRows(ws, Side::Future, grid, false, false, index, future);
  ws.FuturePast_Flag = kShowsFuture;  // not both: a layout switch of the document then shows the future only
}

std::string TotalDocText(SinWorkspace& ws, bool docFlag, std::int16_t past, std::int16_t future,
                         IndexUse indexUse) {
  const Sides sides = SidesOf(ws, past, future);
  std::int16_t copy = 0;
  // The count to use: the workspace's own, or for each step a fresh copy of it.
  const auto index = [&]() -> std::int16_t& {
    if (indexUse == IndexUse::Moved) return ws.CurrentIndexSub;
    copy = ws.CurrentIndexSub;
    return copy;
  };
  std::string text;
  if (sides.HavePast()) text += DocText(ws, Side::Past, docFlag, true, index(), past);
  if (sides.HaveBoth()) {
    const Border border = CrossBorder(ws, sides, past, future);
    text += ParametersForMonthInPeriodDocBetweenPeriods(
        ws, Side::Past, false, border.period, docFlag, index(), ws.CurrentCumulativeCost,
        ws.CurrentCumulativeCostWithInterest, border.from, border.to);
  }
  if (sides.HaveFuture()) text += DocText(ws, Side::Future, docFlag, false, index(), future);
  return text;
}

}  // namespace vicetoll
