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

// Marks a period as set, in green and with what it costs, or closes it.
void MarkPeriod(WorkspaceSide& side, int p, PeriodRecord& record, bool set) {
  const std::string dates = " SET to Dates: (" + record.StartLabel + ") to (" + record.StopLabel + ")";
  Option& option = side.optTimePeriod(p);
  option.SetEnabled(set);
  option.SetCaption(PeriodName(side.Which(), p) + (set ? dates : ""));
  option.SetColour(set ? kGreen : kRed);
  side.frmEnabledDisabledPeriod(p).SetEnabled(set);
  side.rbnEnabledPeriod(p).SetEnabled(set);
  side.rbnDisabledPeriod(p).SetEnabled(set);
  record.PeriodSet = set;
  side.txtResultsPeriod(p).SetAvailable(set);
  side.txtCumulativeResultsPeriod(p).SetAvailable(set);
  side.txtResultsPeriod(p).SetText(set ? side.Money(CostInPeriod(side, p), kResultFormat) : "0");
}

// The total adds all four boxes, also those of disabled periods. The event of a radio that the press has
// changed may have written results into the boxes of periods that are not set.
void ShowTotalAndBalances(WorkspaceSide& side, int count, SideIndex sideIndex) {
  double total = 0;
  for (int p = 1; p <= kPeriodCount; ++p) {
    if (p > count) side.txtResultsPeriod(p).SetText("0");
    total += MoneyToNumber(side.txtResultsPeriod(p).Text());
  }
  side.txtResultsTotal->SetText(side.Money(total, kResultFormat));

  SideTerms terms = SideTermsOf(side, sideIndex);
  terms.counted.fill(true);  // a press chains disabled periods too
  const auto balances = ChainBalances(terms, count, "0", WarningOf(side.Workspace()));
  for (int p = 1; p <= kPeriodCount; ++p)
    side.txtCumulativeResultsPeriod(p).SetText(p <= count ? balances[p - 1] : "0");
}

// A past period that stops in the present month leaves no room behind it. The future side has the same
// rule moved by its one month, which closes it at the wrong end of time; in December the 13th month
// equals none.
bool ClosesTheSide(Side side, const Present& now, std::int16_t stopMonth, std::int16_t stopYear) {
  return stopMonth == now.M + (side == Side::Past ? 0 : 1) && stopYear == now.Y;
}

}  // namespace

void PressSetButton(WorkspaceSide& side) {
  SinWorkspace& ws = side.Workspace();
  const int period = side.state.CurrentPeriod;
  SetParameters(side, period);
  CommitPeriod(side, period, side.Index());
  // Every press of the past side lowers the window, also when the button has long gone.
  if (ws.cmdEuro != nullptr && side.IsPast()) RetireEuroButton(ws);
}

void CommitPeriod(WorkspaceSide& side, int count, SideIndex sideIndex) {
  SinWorkspace& ws = side.Workspace();
  const Present now(side.GetSession());
  ++side.GetSession().timesSet;
  PeriodStore& store = side.Store();
  const std::int16_t stopMonth = MonthNumberFromLabel(side.comStop->Text());
  const std::int16_t stopYear = YearFromLabel(side.comStop->Text());
  for (int p = 1; p <= kPeriodCount; ++p) MarkPeriod(side, p, store.At(p, sideIndex), p <= count);
  if (count != kPeriodCount)
    side.optTimePeriod(count + 1).SetEnabled(!ClosesTheSide(side.Which(), now, stopMonth, stopYear));
  side.txtResultsTotal->SetAvailable(true);
  // Period 1 is left out on purpose. A radio that changes here runs its change event at once.
  for (int p = 2; p <= kPeriodCount; ++p) side.rbnEnabledPeriod(p).SetValue(true);
  for (int p = 1; p <= count; ++p) store.At(p, sideIndex).PeriodEnabled = side.rbnEnabledPeriod(p).Value();
  side.cmdSetPeriodParams->SetEnabled(false);
  if (store.At(1, sideIndex).PeriodSet) {
    for (Button* button : side.ResultButtons()) button->SetEnabled(true);
    if (side.IsPast()) {  // the future press never opens these two
      ws.cmdAdvResultsDocSummaryTot->SetEnabled(true);
      ws.cmdAdvResultsSpdSummaryTot->SetEnabled(true);
    }
  }
  if (count < 1) return;  // no period is set, and none is reckoned
  // Fresh again: all that come after the period set last, and, but for a full side, period 1.
  if (count < kPeriodCount)
    for (int p = 1; p <= kPeriodCount; ++p)
      if (p == 1 || p > count) store.At(p, sideIndex).PeriodFresh = true;
  ShowTotalAndBalances(side, count, sideIndex);
}

void SelectPeriod(WorkspaceSide& side, SideIndex sideIndex) {
  side.cmdSetPeriodParams->SetEnabled(false);
  for (int p = 1; p <= kPeriodCount; ++p) {
    if (!side.optTimePeriod(p).Value()) continue;
    side.state.CurrentPeriod = p;
    PeriodRecord& record = side.Store().At(p, sideIndex);
    if (p != 1 && p > side.state.PreviousPeriod && record.PeriodFresh) {
      // All parameters but the dates are those of the period that was on screen.
      PrepareNextPeriodDates(side, p, sideIndex);
      SetParameters(side, p);
      record.PeriodFresh = false;
    }
    side.state.PreviousPeriod = p;
    GetParameters(side, p);
    LabelMaker(side, p);
  }
  side.cmdSetPeriodParams->SetEnabled(true);
}

void UpdateResultButtons(WorkspaceSide& side, SideIndex sideIndex) {
  bool any = false;
  for (int p = 1; p <= kPeriodCount; ++p)
    any = any || (side.Store().At(p, sideIndex).PeriodSet && side.rbnEnabledPeriod(p).Value());
  for (Button* button : side.ResultButtons()) button->SetEnabled(any);
}

}  // namespace vicetoll
