// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/smoking_extras.h"

#include "workspace/parameters.h"
#include "workspace/totals.h"
#include "workspace/workspace_design.h"

namespace vicetoll {
namespace {

// Both panels go. The web button goes only by the way of the past panel.
void HideAdvertising(SinWorkspace& smoking, Side clicked) {
  smoking.SetCaption(smoking.Sin().windowCaption);
  for (const char* panel : {"cmdHideAdvertisingPast", "cmdHideAdvertisingFut"})
    smoking.Get<Button>(panel).SetVisible(false);
  if (clicked == Side::Past) smoking.Get<Button>("cmdOrvaneWebsite").SetVisible(false);
}

}  // namespace

void ReplaceDollarWithEuro(SinWorkspace& smoking) {
  RetireEuroButton(smoking);
  smoking.GetSession().currency = Currency::Euro;
  ++smoking.GetSession().timesSet;
  const SinRow& sin = smoking.Sin();
  for (Side side : {Side::Future, Side::Past}) {
    SideControls& c = smoking.Of(side);
    c.comInitialCost->Clear();
    c.comFinalCost->Clear();
    AppendEntries(smoking, *c.comInitialCost, sin.costList);
    AppendEntries(smoking, *c.comFinalCost, sin.secondCostList);
    c.comInitialCost->SelectEntry(sin.costDefault);
    c.comFinalCost->SelectEntry(sin.secondCostDefault);
  }
}

void ConnectSmokingExtras(SinWorkspace& smoking) {
  smoking.cmdEuro->onClick = [&smoking] { ReplaceDollarWithEuro(smoking); };
  smoking.Get<Button>("cmdHideAdvertisingPast").onClick = [&smoking] {
    HideAdvertising(smoking, Side::Past);
  };
  smoking.Get<Button>("cmdHideAdvertisingFut").onClick = [&smoking] {
    HideAdvertising(smoking, Side::Future);
  };
  smoking.Get<Button>("cmdOrvaneWebsite").onClick = [&smoking] { smoking.GetPlatform().Browse(kWebUrl); };
}

}  // namespace vicetoll
