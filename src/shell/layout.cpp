// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/layout.h"

#include "shell/strip.h"
#include "workspace/workspace_design.h"

namespace vicetoll {
namespace {

constexpr int kStretchedWidth = 16000;
constexpr int kStretchedHeight = 15000;
constexpr int kColumnStep = 2550;

Control& Bottom(SinWorkspace& ws, const char* name) { return ws.Get<Control>(name); }

void SetTop(Control& control, int top) {
  Place place = control.GetPlace();
  place.top = top;
  control.SetPlace(place);
}

void SetLeft(Control& control, int left) {
  Place place = control.GetPlace();
  place.left = left;
  control.SetPlace(place);
}

// Left edges from left to right, tops from the window's bottom. Sizes are those of the design.
void PlaceBottomRow(SinWorkspace& ws) {
  Control& switchSins = *ws.cmdSwitchSins;
  Control& combined = Bottom(ws, "cmdCombinedResults");
  Control& tips = Bottom(ws, "frmToolTipOnOff");
  Control& exit = *ws.cmdExit;
  Control& help = Bottom(ws, "cmdHelp");
  Control& faq = Bottom(ws, "cmdFaq");
  const auto fromBottom = [&ws](const Control& control, int margin) {
    return ws.Height() - control.GetPlace().height - margin;
  };
  SetLeft(switchSins, 0);
  SetTop(switchSins, fromBottom(switchSins, 600));
  SetLeft(combined, switchSins.GetPlace().left + kColumnStep);
  SetTop(combined, fromBottom(combined, 600));
  SetLeft(tips, combined.GetPlace().left + kColumnStep);
  SetTop(tips, combined.GetPlace().top - 50);
  SetLeft(exit, tips.GetPlace().left + 2900);
  SetTop(exit, fromBottom(exit, 600));
  SetLeft(help, exit.GetPlace().left + 2225);
  SetTop(help, fromBottom(help, 1025));
  SetLeft(faq, help.GetPlace().left);
  SetTop(faq, help.GetPlace().top + 450);
  PlaceStrip(ws);
}

}  // namespace

void ApplyFormLayout(SinWorkspace& ws) {
  ws.Resize(kWindowWidth, kWindowHeight);
  PlaceBottomRow(ws);
  FitPanels(ws);
  ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
  ws.SSTab_PastFutureSwitch->SetOwnName("Past, future and total");
}

void PlaceWorkspaceControls(SinWorkspace& ws) {
  const bool extended = ws.cmdEuro != nullptr && ws.cmdEuro->Visible();
  const int ownHeight = kWindowHeight + (extended ? kEuroRow : 0);
  if (ws.GetWindowState() == WindowState::Normal) {
    if (ws.Width() > kStretchedWidth || ws.Width() < kWindowWidth) ws.Resize(kWindowWidth, ownHeight);
    if (ws.Height() > kStretchedHeight || ws.Height() < kWindowHeight) ws.Resize(kWindowWidth, ownHeight);
  }
  PlaceBottomRow(ws);
  PlaceEuroButton(ws);
}

void PlaceEuroButton(SinWorkspace& ws) {
  if (ws.cmdEuro == nullptr) return;
  const Place switchSins = ws.cmdSwitchSins->GetPlace();
  Place place = ws.cmdEuro->GetPlace();
  place.left = switchSins.left;
  place.top = ws.Height() - place.height - switchSins.height - 700;
  ws.cmdEuro->SetPlace(place);
}

void PlaceIdentification(SinWorkspace& ws) {
  Control& restore = Bottom(ws, "cmdRestoreProgram");
  const Place exit = ws.cmdExit->GetPlace();
  restore.SetPlace({exit.left, exit.top - 1500, exit.width, exit.height - 300});
  restore.SetVisible(false);
  const RevealSquare& square = *ws.Sin().revealSquare;
  const Place panel = ws.Get<Panel>("SSPanel_BackColor", square.tab).GetPlace();
  ws.Get<Button>("cmdRevealDeveloper").SetOwnName("Developer");
  ws.Get<Button>("cmdRevealDeveloper")
      .SetPlace({panel.width + square.right, panel.height + square.below, 60, 60});
}

}  // namespace vicetoll
