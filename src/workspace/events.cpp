// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/events.h"

#include "workspace/commit.h"
#include "workspace/date_rules.h"
#include "workspace/hint_sentences.h"
#include "workspace/loading.h"
#include "workspace/parameters.h"
#include "workspace/reasonable_cost.h"
#include "workspace/totals.h"
#include "workspace/workspace_design.h"

namespace vicetoll {
namespace {

void EnableSetButton(SinWorkspace& ws, Side side) { ws.Of(side).cmdSetPeriodParams->SetEnabled(true); }

void SayIfAny(SinWorkspace& ws, std::string news) {
  if (!news.empty()) ws.Say(std::move(news));
}

// The tabs stay shut while date lists are rebuilt.
void OnDateFocus(SinWorkspace& ws, Side side, void (*refresh)(SinWorkspace&, Side)) {
  const std::string start = ws.Of(side).comStart->Text();
  const std::string stop = ws.Of(side).comStop->Text();
  ws.SSTab_PastFutureSwitch->SetEnabled(false);
  refresh(ws, side);
  ws.SSTab_PastFutureSwitch->SetEnabled(true);
  // The button stays shut where the lists could not be made and were reset.
  if (ws.Of(side).cmdSetPeriodParams->Enabled())
    SayIfAny(ws, DatesMoved(ws, side, start, stop));
  else
    ws.Say("The date lists were reset; choose both dates anew");
}

// A click on Per Day or Per Month. The stored position is kept and no value converted: 6 a day becomes
// the entry at the same place in the monthly list.
void OnUnit(SinWorkspace& ws, Side side) {
  const int period = ws.State(side).CurrentPeriod;
  ws.Of(side).frmDaily->SetCaption(std::string(PeriodPrefix(side)) + std::to_string(period) +
                                   std::string(ws.Sin().dailySuffix[side]));
  EnableSetButton(ws, side);
  RefillUnitList(ws, side, ws.Record(side, period).QuantityListIndex);
}

void OnSetButton(SinWorkspace& ws, Side side) {
  const int before = PeriodsSet(ws, side);
  PressSetButton(ws, side);
  ws.Say(PeriodWasSet(ws, side, before));
}

// A month that was found in a fine list may be missing in the coarse one that brings it back.
void OnTimePeriod(SinWorkspace& ws, Side side) {
  SelectPeriod(ws, side, ws.SideIndex(side));
  const PeriodRecord& record = ws.Record(side, ws.State(side).CurrentPeriod);
  SayIfAny(ws, DatesMoved(ws, side, record.StartLabel, record.StopLabel));
}

void OnReasonableCostFocus(SinWorkspace& ws, Side side) {
  const std::string before = ws.Of(side).comSubCost->Text();
  ReasonableCostEntered(ws, side);
  SayIfAny(ws, ReasonableCostMoved(ws, side, before));
}

void OnPacksOrCigarettes(SinWorkspace& ws, Side side) {
  EnableSetButton(ws, side);
  ShowPacksOrCigarettes(ws, side);
}

void OnCostMode(SinWorkspace& ws, Side side) {
  EnableSetButton(ws, side);
  ShowCostMode(ws, side);
}

void OnEnabledRadio(SinWorkspace& ws, Side side) {
  RefreshResults(ws, side, ws.SideIndex(side));
  UpdateResultButtons(ws, side, ws.SideIndex(side));
}

void OnTab(SinWorkspace& ws) {
  GrowFutureRateLists(ws);
  Session& session = ws.GetSession();
  switch (ws.SSTab_PastFutureSwitch->Tab()) {
    case kPastTab:
      session.CurrentSinNumber = ws.SideIndex(Side::Past);
      EnableSetButton(ws, Side::Past);
      break;
    case kFutureTab:
      // Until its period 1 is committed, every arrival loads the side anew and drops what was chosen.
      if (!ws.Record(Side::Future, 1).PeriodSet) LoadParameters(ws, Side::Future);
      session.CurrentSinNumber = ws.SideIndex(Side::Future);
      if (ws.cmdEuro != nullptr && ws.cmdEuro->Visible()) RetireEuroButton(ws);
      EnableSetButton(ws, Side::Future);
      break;
    case kTotalTab:
      UpdateTotalTab(ws, ws.SideIndex(Side::Past), ws.SideIndex(Side::Future));
      break;
  }
}

void OnPanel(SinWorkspace& ws) {
  FitPanels(ws);
  Control* reveal = ws.Find("cmdRevealDeveloper", kNoIndex);
  if (reveal != nullptr && !ws.identificationOver) reveal->SetVisible(true);
}

void ConnectSide(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  c.comStart->onFocus = [&ws, side] { OnDateFocus(ws, side, RefreshDatesFromStart); };
  c.comStop->onFocus = [&ws, side] { OnDateFocus(ws, side, RefreshDatesFromStop); };
  for (DropDownList* list : {c.quantity, c.comCigsPerDay, c.comInitialCost, c.comFinalCost,
                             c.comPercentIncrease, c.comInterestRate1, c.comInflationRate1})
    if (list != nullptr) list->onFocus = [&ws, side] { EnableSetButton(ws, side); };
  if (c.comSubCost != nullptr) {
    c.comInitialCost->onPick = [&ws, side] { GrossCostPicked(ws, side); };
    c.comSubCost->onFocus = [&ws, side] { OnReasonableCostFocus(ws, side); };
  }
  for (Option* option : {c.firstUnit, c.secondUnit})
    option->onClick = [&ws, side] {
      HasListPerUnit(ws.Class()) ? OnPacksOrCigarettes(ws, side) : OnUnit(ws, side);
    };
  for (Option* option : {c.OptCigPercentCostIncrease, c.OptCigInitialFinalCostIncrease})
    if (option != nullptr) option->onClick = [&ws, side] { OnCostMode(ws, side); };
  c.cmdSetPeriodParams->onClick = [&ws, side] { OnSetButton(ws, side); };
  for (int p = 1; p <= kPeriodCount; ++p) {
    c.optTimePeriod(p).onClick = [&ws, side] { OnTimePeriod(ws, side); };
    // The other radio of the pair needs no event: a change of the pair always reaches this one.
    c.rbnEnabledPeriod(p).onChange = [&ws, side] { OnEnabledRadio(ws, side); };
    for (Radio* radio : {&c.rbnEnabledPeriod(p), &c.rbnDisabledPeriod(p)})
      radio->onClick = [&ws, side, p] { ws.Say(PeriodCounts(ws, side, p)); };
  }
}

}  // namespace

void ConnectEvents(SinWorkspace& ws) {
  ConnectSide(ws, Side::Past);
  ConnectSide(ws, Side::Future);
  ws.SSTab_PastFutureSwitch->onChange = [&ws] { OnTab(ws); };
  for (DropDownList* list :
       {ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot, ws.comCumulativeFutureDateTot}) {
    list->onFocus = [&ws] {
      EnableSetButton(ws, Side::Future);
      ws.cmdCumulativeFutureDateTot->SetEnabled(true);
    };
    // A new choice takes effect only when the button is pressed.
    list->onPick = [&ws] { ws.cmdCumulativeFutureDateTot->SetEnabled(true); };
  }
  ws.cmdCumulativeFutureDateTot->onClick = [&ws] {
    UpdateFutureDateTotal(ws, ws.SideIndex(Side::Past), ws.SideIndex(Side::Future));
  };
  for (int i = kPastTab; i <= kTotalTab; ++i)
    ws.Get<Panel>("SSPanel_BackColor", i).onClick = [&ws] { OnPanel(ws); };
}

}  // namespace vicetoll
