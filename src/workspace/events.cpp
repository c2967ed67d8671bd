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

void EnableSetButton(WorkspaceSide& side) { side.cmdSetPeriodParams->SetEnabled(true); }

void SayIfAny(SinWorkspace& ws, std::string news) {
  if (!news.empty()) ws.Say(std::move(news));
}

// The tabs stay shut while date lists are rebuilt.
void OnDateFocus(WorkspaceSide& side, void (*refresh)(WorkspaceSide&)) {
  SinWorkspace& ws = side.Workspace();
  const std::string start = side.comStart->Text();
  const std::string stop = side.comStop->Text();
  ws.SSTab_PastFutureSwitch->SetEnabled(false);
  refresh(side);
  ws.SSTab_PastFutureSwitch->SetEnabled(true);
  // The button stays shut where the lists could not be made and were reset.
  if (side.cmdSetPeriodParams->Enabled())
    SayIfAny(ws, DatesMoved(side, start, stop));
  else
    ws.Say("The date lists were reset; choose both dates anew");
}

// A click on Per Day or Per Month. The stored position is kept and no value converted: 6 a day becomes
// the entry at the same place in the monthly list.
void OnUnit(WorkspaceSide& side) {
  const int period = side.state.CurrentPeriod;
  side.frmDaily->SetCaption(PeriodName(side.Which(), period) +
                            std::string(side.Sin().dailySuffix[side.Which()]));
  EnableSetButton(side);
  RefillUnitList(side, side.Record(period).QuantityListIndex);
}

void OnSetButton(WorkspaceSide& side) {
  const int before = PeriodsSet(side);
  PressSetButton(side);
  side.Workspace().Say(PeriodWasSet(side, before));
}

// A month that was found in a fine list may be missing in the coarse one that brings it back.
void OnTimePeriod(WorkspaceSide& side) {
  SelectPeriod(side, side.Index());
  const PeriodRecord& record = side.Record(side.state.CurrentPeriod);
  SayIfAny(side.Workspace(), DatesMoved(side, record.StartLabel, record.StopLabel));
}

void OnReasonableCostFocus(WorkspaceSide& side) {
  const std::string before = side.comSubCost->Text();
  ReasonableCostEntered(side);
  SayIfAny(side.Workspace(), ReasonableCostMoved(side, before));
}

void OnPacksOrCigarettes(WorkspaceSide& side) {
  EnableSetButton(side);
  ShowPacksOrCigarettes(side);
}

void OnCostMode(WorkspaceSide& side) {
  EnableSetButton(side);
  ShowCostMode(side);
}

void OnEnabledRadio(WorkspaceSide& side) {
  RefreshResults(side, side.Index());
  UpdateResultButtons(side, side.Index());
}

void OnTab(SinWorkspace& ws) {
  GrowFutureRateLists(ws);
  Session& session = ws.GetSession();
  switch (ws.SSTab_PastFutureSwitch->Tab()) {
    case kPastTab:
      session.CurrentSinNumber = ws.Of(Side::Past).Index();
      EnableSetButton(ws.Of(Side::Past));
      break;
    case kFutureTab:
      // Until its period 1 is committed, every arrival loads the side anew and drops what was chosen.
      if (!ws.Of(Side::Future).Record(1).PeriodSet) LoadParameters(ws.Of(Side::Future));
      session.CurrentSinNumber = ws.Of(Side::Future).Index();
      if (ws.cmdEuro != nullptr && ws.cmdEuro->Visible()) RetireEuroButton(ws);
      EnableSetButton(ws.Of(Side::Future));
      break;
    case kTotalTab:
      UpdateTotalTab(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index());
      break;
  }
}

void OnPanel(SinWorkspace& ws) {
  FitPanels(ws);
  Control* reveal = ws.Find("cmdRevealDeveloper", kNoIndex);
  if (reveal != nullptr && !ws.identificationOver) reveal->SetVisible(true);
}

void ConnectSide(WorkspaceSide& side) {
  side.comStart->onFocus = [&side] { OnDateFocus(side, RefreshDatesFromStart); };
  side.comStop->onFocus = [&side] { OnDateFocus(side, RefreshDatesFromStop); };
  for (DropDownList* list : {side.quantity, side.comCigsPerDay, side.comInitialCost, side.comFinalCost,
                             side.comPercentIncrease, side.comInterestRate1, side.comInflationRate1})
    if (list != nullptr) list->onFocus = [&side] { EnableSetButton(side); };
  if (side.comSubCost != nullptr) {
    side.comInitialCost->onPick = [&side] { GrossCostPicked(side); };
    side.comSubCost->onFocus = [&side] { OnReasonableCostFocus(side); };
  }
  for (Option* option : {side.firstUnit, side.secondUnit})
    option->onClick = [&side] { HasListPerUnit(side.Class()) ? OnPacksOrCigarettes(side) : OnUnit(side); };
  for (Option* option : {side.OptCigPercentCostIncrease, side.OptCigInitialFinalCostIncrease})
    if (option != nullptr) option->onClick = [&side] { OnCostMode(side); };
  side.cmdSetPeriodParams->onClick = [&side] { OnSetButton(side); };
  for (int p = 1; p <= kPeriodCount; ++p) {
    side.optTimePeriod(p).onClick = [&side] { OnTimePeriod(side); };
    // The other radio of the pair needs no event: a change of the pair always reaches this one.
    side.rbnEnabledPeriod(p).onChange = [&side] { OnEnabledRadio(side); };
    for (Radio* radio : {&side.rbnEnabledPeriod(p), &side.rbnDisabledPeriod(p)})
      radio->onClick = [&side, p] { side.Workspace().Say(PeriodCounts(side, p)); };
  }
}

}  // namespace

void ConnectEvents(SinWorkspace& ws) {
  ConnectSide(ws.Of(Side::Past));
  ConnectSide(ws.Of(Side::Future));
  ws.SSTab_PastFutureSwitch->onChange = [&ws] { OnTab(ws); };
  for (DropDownList* list :
       {ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot, ws.comCumulativeFutureDateTot}) {
    list->onFocus = [&ws] {
      EnableSetButton(ws.Of(Side::Future));
      ws.cmdCumulativeFutureDateTot->SetEnabled(true);
    };
    // A new choice takes effect only when the button is pressed.
    list->onPick = [&ws] { ws.cmdCumulativeFutureDateTot->SetEnabled(true); };
  }
  ws.cmdCumulativeFutureDateTot->onClick = [&ws] {
    UpdateFutureDateTotal(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index());
  };
  for (int i = kPastTab; i <= kTotalTab; ++i)
    ws.Get<Panel>("SSPanel_BackColor", i).onClick = [&ws] { OnPanel(ws); };
}

}  // namespace vicetoll
