#include "shell/layout.h"

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

void SetSize(Control& control, int width, int height) {
  Place place = control.GetPlace();
  place.width = width;
  place.height = height;
  control.SetPlace(place);
}

// Left edges from left to right, tops from the window's bottom. Sizes stay.
void PlaceBottomRow(SinWorkspace& ws) {
  const int H = ws.Height();
  Control& switchSins = *ws.cmdSwitchSins;
  Control& combined = Bottom(ws, "cmdCombinedResults");
  Control& tips = Bottom(ws, "frmToolTipOnOff");
  Control& exit = *ws.cmdExit;
  Control& help = Bottom(ws, "cmdHelp");
  Control& faq = Bottom(ws, "cmdFaq");
  const auto fromBottom = [H](const Control& control, int margin) {
    return H - control.GetPlace().height - margin;
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
}

void SizeBottomRow(SinWorkspace& ws) {
  Control& exit = *ws.cmdExit;
  SetSize(*ws.cmdSwitchSins, 2500, 800);
  SetSize(Bottom(ws, "cmdCombinedResults"), 2500, 800);
  SetSize(Bottom(ws, "frmToolTipOnOff"), 2800, Bottom(ws, "frmToolTipOnOff").GetPlace().height);
  SetSize(exit, 2500 - 300, 800 + 75);
  for (const char* name : {"cmdHelp", "cmdFaq"})
    SetSize(Bottom(ws, name), exit.GetPlace().width - 550, exit.GetPlace().height / 2);
}

}  // namespace

void PlaceDesign(SinWorkspace& ws) {
  ws.SSTab_PastFutureSwitch->SetPlace({0, 0, 11990, 8950});
  for (int i = kPastTab; i <= kTotalTab; ++i) ws.Get<Panel>("SSPanel_BackColor", i).SetPlace({150, 0, 0, 0});
  FitPanels(ws);
  Bottom(ws, "frmToolTipOnOff").SetPlace({0, 0, 2800, 900});
  SizeBottomRow(ws);
}

void ApplyFormLayout(SinWorkspace& ws) {
  ws.Resize(kWindowWidth, kWindowHeight);
  SizeBottomRow(ws);
  PlaceBottomRow(ws);
  FitPanels(ws);
  ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
}

void PlaceWorkspaceControls(SinWorkspace& ws) {
  const bool extended = ws.cmdEuro != nullptr && ws.cmdEuro->Visible();
  const int ownHeight = kWindowHeight + (extended ? kEuroRow : 0);
  if (ws.GetWindowState() == WindowState::Normal) {
    if (ws.Width() > kStretchedWidth || ws.Width() < kWindowWidth) ws.Resize(kWindowWidth, ownHeight);
    if (ws.Height() > kStretchedHeight || ws.Height() < kWindowHeight) ws.Resize(kWindowWidth, ownHeight);
  }
  PlaceBottomRow(ws);
  if (ws.IsSmoking()) PlaceEuroButton(ws);
}

void PlaceEuroButton(SinWorkspace& ws) {
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
  // A tiny square; on Interring it lies just outside its panel.
  const Place panel = ws.Get<Panel>("SSPanel_BackColor", ws.IsSmoking() ? kTotalTab : kPastTab).GetPlace();
  const int left = ws.IsSmoking() ? panel.width - 400 : panel.width + 300;
  const int top = ws.IsSmoking() ? panel.height - 400 : panel.height + 200;
  ws.Get<Button>("cmdRevealDeveloper").SetPlace({left, top, 60, 60});
}

}  // namespace vicetoll
