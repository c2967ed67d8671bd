// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/chooser.h"

#include <algorithm>

#include "base/fault.h"
#include "workspace/loading.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

// In twips.
constexpr Place kFramePlace = {200, 150, 3600, 5100};
constexpr Place kExitPlace = {1150, 5450, 1700, 500};
constexpr int kChooserWidth = 4000, kChooserHeight = 6200;
constexpr int kRowHeight = 390;

}  // namespace

SinChooser::SinChooser(Workspaces& workspaces, SinSwitching& switching)
    : Form("frmSwitchSins", "Switch Sins"), workspaces_(workspaces), switching_(switching) {
  frameSwitchSins_ = &Add<Frame>({"frameSwitchSins"}, "Switch Sins");
  frameSwitchSins_->SetPlace(kFramePlace);
  ChoiceGroup& group = AddGroup();
  group.SetArrowsClick(false);
  for (int i = 0; i < kSinCount; ++i) {
    Option& option = Add<Option>({"OptSwitchSins", i, frameSwitchSins_}, Catalogue()[i].chooserCaption);
    option.SetPlace({250, 320 + i * kRowHeight, 3200, 330});
    option.JoinGroup(group);
    option.onClick = [this] { Switch(); };
    OptSwitchSins_[i] = &option;
  }
  cmdExit_ = &Add<Button>({"cmdExit"}, "Exit");
  cmdExit_->SetPlace(kExitPlace);
  cmdExit_->onClick = [this] { Leave(); };
  // Smaller, its entries would be out of reach.
  onResize = [this] { Resize(std::max(Width(), kChooserWidth), std::max(Height(), kChooserHeight)); };
  Resize(kChooserWidth, kChooserHeight);
}

Control* SinChooser::FirstFocus() const { return OptSwitchSins_[workspaces_.Current().Position()]; }

void SinChooser::Open(SinWorkspace& from) {
  from.cmdSwitchSins->SetEnabled(false);
  ShowSinChooser(from.Position());
  if (from.cmdEuro != nullptr) RetireEuroButton(from);
}

void SinChooser::ShowSinChooser(int position) {
  ClearOptions();
  Show();
  if (position < 0 || position >= kSinCount) throw Fault(FaultKind::Index, "There is no such sin.");
  workspaces_.GetSession().SinVisited[position] = true;
}

void SinChooser::ShowAndHideForms(SinWorkspace& target) {
  for (int i = 0; i < kSinCount; ++i) workspaces_.At(i).Hide();
  target.Show();
}

void SinChooser::Switch() {
  for (int i = 0; i < kSinCount; ++i)
    if (OptSwitchSins_[i]->Value()) return SwitchTo(i);
}

void SinChooser::SwitchTo(int position) {
  // While the switch runs nothing in the chooser can be pressed.
  frameSwitchSins_->SetVisible(false);
  cmdExit_->SetEnabled(false);
  SinWorkspace& target = workspaces_.At(position);
  Session& session = workspaces_.GetSession();
  switching_.ApplyFormLayout(target);
  session.CurrentSinKey = target.Sin().key;
  session.CurrentSinNumber = target.Of(Side::Past).Index();
  // The first visit: a workspace without results that was never left through the chooser.
  const bool noResults = target.Of(Side::Past).txtResultsTotal->Text().empty() &&
                         target.Of(Side::Future).txtResultsTotal->Text().empty();
  if (noResults && !session.SinVisited[position]) {
    if (!target.Sin().startsTheProgram) switching_.AttachToolTips(position, target);
    LoadParameters(target.Of(Side::Past));
    LoadParametersInitialFuture(target);
  }
  ShowAndHideForms(target);
  if (target.Sin().startsTheProgram) {
    target.SetCaption("The \"Ashtoll\"");
    target.cmdSwitchSins->SetAvailable(true);
    for (const char* panel : {"cmdHideAdvertisingPast", "cmdHideAdvertisingFut"})
      target.Get<Button>(panel).SetVisible(false);
  }
  frameSwitchSins_->SetVisible(true);
  cmdExit_->SetEnabled(true);
  Hide();
  EnableSwitchButtons();
}

void SinChooser::Leave() {
  ClearOptions();
  EnableSwitchButtons();
  Hide();
}

void SinChooser::ClearOptions() {
  for (Option* option : OptSwitchSins_) option->SetValue(false);
}

void SinChooser::EnableSwitchButtons() {
  for (int i = 0; i < kSinCount; ++i) workspaces_.At(i).cmdSwitchSins->SetEnabled(true);
}

}  // namespace vicetoll
