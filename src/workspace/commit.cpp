// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/commit.h"

#include "calendar/date_label.h"
#include "workspace/date_rules.h"
#include "workspace/loading.h"
#include "workspace/parameters.h"
#include "workspace/period_operations.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

std::string PeriodCaption(Side side, int period) {
  return std::string(PeriodPrefix(side)) + std::to_string(period);
}

void ClosePeriod(SideControls& c, Side side, int p, PeriodRecord& record) {
  c.optTimePeriod(p).SetEnabled(false);
  c.optTimePeriod(p).SetCaption(PeriodCaption(side, p));
  c.optTimePeriod(p).SetColour(kRed);
  c.frmEnabledDisabledPeriod(p).SetEnabled(false);
  c.rbnEnabledPeriod(p).SetEnabled(false);
  c.rbnDisabledPeriod(p).SetEnabled(false);
  record.PeriodSet = false;
  c.txtResultsPeriod(p).SetAvailable(false);
  c.txtCumulativeResultsPeriod(p).SetAvailable(false);
  c.txtResultsPeriod(p).SetText("0");
}

void SetPeriod(SinWorkspace& ws, SideControls& c, Side side, int p, PeriodRecord& record) {
  c.optTimePeriod(p).SetEnabled(true);
  c.optTimePeriod(p).SetCaption(PeriodCaption(side, p) + " SET to Dates: (" + record.StartLabel + ") to (" +
                                record.StopLabel + ")");
  c.optTimePeriod(p).SetColour(kGreen);
  c.frmEnabledDisabledPeriod(p).SetEnabled(true);
  c.rbnEnabledPeriod(p).SetEnabled(true);
  c.rbnDisabledPeriod(p).SetEnabled(true);
  record.PeriodSet = true;
  c.txtResultsPeriod(p).SetAvailable(true);
  c.txtCumulativeResultsPeriod(p).SetAvailable(true);
  c.txtResultsPeriod(p).SetText(ws.Money(CostInPeriod(ws, side, p), kResultFormat));
}

// A past period that stops in the present month leaves no room behind it. The future side has the same
// rule moved by its one month, which closes it at the wrong end of time; in December the 13th month
// equals none.
bool ClosesTheSide(Side side, const Present& now, std::int16_t stopMonth, std::int16_t stopYear) {
  return stopMonth == now.M + (side == Side::Past ? 0 : 1) && stopYear == now.Y;
}

}  // namespace

void PressSetButton(SinWorkspace& ws, Side side) {
  const int period = ws.State(side).CurrentPeriod;
  SetParameters(ws, side, period);
  CommitPeriod(ws, side, period, ws.SideIndex(side));
  // Every press of the past side lowers the window, also when the button has long gone.
  if (ws.cmdEuro != nullptr && side == Side::Past) RetireEuroButton(ws);
}

void CommitPeriod(SinWorkspace& ws, Side side, int count, SideIndex sideIndex) {
  const Present now(ws.GetSession());
  ++ws.GetSession().timesSet;
  SideControls& c = ws.Of(side);
  PeriodStore& store = ws.Store();
  const std::int16_t stopMonth = MonthNumberFromLabel(c.comStop->Text());
  const std::int16_t stopYear = YearFromLabel(c.comStop->Text());
  for (int p = 1; p <= kPeriodCount; ++p) {
    if (p > count)
      ClosePeriod(c, side, p, store.At(p, sideIndex));
    else
      SetPeriod(ws, c, side, p, store.At(p, sideIndex));
  }
  if (count != kPeriodCount)
    c.optTimePeriod(count + 1).SetEnabled(!ClosesTheSide(side, now, stopMonth, stopYear));
  c.txtResultsTotal->SetAvailable(true);
  // Period 1 is left out on purpose. A radio that changes here runs its change event at once.
  for (int p = 2; p <= kPeriodCount; ++p) c.rbnEnabledPeriod(p).SetValue(true);
  for (int p = 1; p <= count; ++p) store.At(p, sideIndex).PeriodEnabled = c.rbnEnabledPeriod(p).Value();
  c.cmdSetPeriodParams->SetEnabled(false);
  if (store.At(1, sideIndex).PeriodSet) {
    for (Button* button :
         {c.cmdAdvResultsDoc, c.cmdAdvResultsSpd, c.cmdAdvResultsDocSummary, c.cmdAdvResultsSpdSummary})
      button->SetEnabled(true);
    if (side == Side::Past) {  // the future press never opens these two
      ws.cmdAdvResultsDocSummaryTot->SetEnabled(true);
      ws.cmdAdvResultsSpdSummaryTot->SetEnabled(true);
    }
  }
  if (count < 1) return;  // no period is set, and none is reckoned
  // Fresh again: all that come after the period set last, and, but for a full side, period 1.
  if (count < kPeriodCount)
    for (int p = 1; p <= kPeriodCount; ++p)
      if (p == 1 || p > count) store.At(p, sideIndex).PeriodFresh = true;

  // The total adds all four boxes, also those of disabled periods. A radio event above may have written
  // results into the boxes of periods that are not set.
  double total = 0;
  for (int p = 1; p <= kPeriodCount; ++p) {
    if (p > count) c.txtResultsPeriod(p).SetText("0");
    total += MoneyToNumber(c.txtResultsPeriod(p).Text());
  }
  c.txtResultsTotal->SetText(ws.Money(total, kResultFormat));

  SideTerms terms = SideTermsOf(ws, side, sideIndex);
  terms.counted.fill(true);  // a press chains disabled periods too
  const auto balances = ChainBalances(terms, count, "0", WarningOf(ws));
  for (int p = 1; p <= kPeriodCount; ++p)
    c.txtCumulativeResultsPeriod(p).SetText(p <= count ? balances[p - 1] : "0");
}

void SelectPeriod(SinWorkspace& ws, Side side, SideIndex sideIndex) {
  SideControls& c = ws.Of(side);
  SideState& state = ws.State(side);
  c.cmdSetPeriodParams->SetEnabled(false);
  for (int p = 1; p <= kPeriodCount; ++p) {
    if (!c.optTimePeriod(p).Value()) continue;
    state.CurrentPeriod = p;
    PeriodRecord& record = ws.Store().At(p, sideIndex);
    if (p != 1 && p > state.PreviousPeriod && record.PeriodFresh) {
      // All parameters but the dates are those of the period that was on screen.
      PrepareNextPeriodDates(ws, side, p, sideIndex);
      SetParameters(ws, side, p);
      record.PeriodFresh = false;
    }
    state.PreviousPeriod = p;
    GetParameters(ws, side, p);
    LabelMaker(ws, side, p);
  }
  c.cmdSetPeriodParams->SetEnabled(true);
}

void UpdateResultButtons(SinWorkspace& ws, Side side, SideIndex sideIndex) {
  SideControls& c = ws.Of(side);
  bool any = false;
  for (int p = 1; p <= kPeriodCount; ++p)
    any = any || (ws.Store().At(p, sideIndex).PeriodSet && c.rbnEnabledPeriod(p).Value());
  for (Button* button :
       {c.cmdAdvResultsDoc, c.cmdAdvResultsSpd, c.cmdAdvResultsDocSummary, c.cmdAdvResultsSpdSummary})
    button->SetEnabled(any);
}

}  // namespace vicetoll
