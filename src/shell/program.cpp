// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/program.h"

#include "base/code_page.h"
#include "base/fault.h"
#include "shell/identification.h"
#include "shell/keys.h"
#include "shell/layout.h"
#include "shell/smoking_extras.h"
#include "shell/strip.h"
#include "workspace/hint_sentences.h"
#include "workspace/loading.h"
#include "workspace/workspace_design.h"

namespace vicetoll {

Program::Program(Platform& platform) : session_(platform), balloons_(*this) {
  balloons_.onChanged = [this](int position) {
    if (workspaces_.at(position)) workspaces_[position]->HelpChanged();
  };
  StartSmoking();
}

Program::~Program() = default;

template <class T>
T& Program::Created(std::unique_ptr<T>& slot, std::unique_ptr<T> made) {
  slot = std::move(made);
  windows_.push_back(slot.get());
  spoken_.try_emplace(slot.get(), *slot);
  slot->onUserActed = [this, window = slot.get()](const Control* by) { FollowUser(*window, by); };
  if (onWindowCreated) onWindowCreated(*slot);
  return *slot;
}

SinWorkspace& Program::At(int position) {
  if (position < 0 || position >= kSinCount) throw Fault(FaultKind::Index, "There is no such sin.");
  std::unique_ptr<SinWorkspace>& slot = workspaces_[position];
  if (slot) return *slot;
  SinWorkspace& ws = Created(slot, std::make_unique<SinWorkspace>(session_, position));
  MakeStrip(ws);
  GiveKeys(ws);
  vicetoll::ApplyFormLayout(ws);
  Connect(ws);
  // The start does this and more for the window that the program starts with.
  if (!ws.Sin().startsTheProgram) {
    ws.SetCaption(ws.Sin().windowCaption);
    if (ws.Sin().revealSquare) PlaceIdentification(ws);
  }
  return ws;
}

void Program::StartSmoking() {
  SinWorkspace& ws = At(0);
  vicetoll::ApplyFormLayout(ws);
  ws.Resize(ws.Width(), ws.Height() + kEuroRow);
  AttachToolTips(0, ws);
  LoadParameters(ws.Of(Side::Past));
  LoadParametersInitialFuture(ws);
  ws.SetCaption(std::string(ws.Sin().windowCaption) + " (" + std::string(kWebAddress) + ")");
  for (const char* panel : {"cmdHideAdvertisingPast", "cmdHideAdvertisingFut"})
    ws.Get<Button>(panel).SetVisible(true);
  session_.SinVisited = {};
  session_.SinVisited[0] = true;
  PlaceIdentification(ws);
  ws.cmdEuro->SetPlace({0, 0, kWindowWidth, ws.cmdSwitchSins->GetPlace().height - 100});
  PlaceEuroButton(ws);
  ws.SetNextStep(NextStep(ws));
  ws.Show();
}

void Program::Connect(SinWorkspace& ws) {
  ws.helpOn = [this, &ws](const Control& control) { return balloons_.TextFor(ws.Position(), control); };
  ws.shortTip = [this, &ws](const Control& control) { return ShortTip(ws, control); };
  ws.onResize = [&ws] { PlaceWorkspaceControls(ws); };
  ws.cmdSwitchSins->onClick = [this, &ws] { Chooser().Open(ws); };
  ws.cmdExit->onClick = [this] { Exit(); };
  ws.Get<Button>("cmdCombinedResults").onClick = [this] {
    Combined().Show();
    Combined().PopulateCombResultsText();
  };
  ws.Get<Button>("cmdOpenEntries").onClick = [this] { keeper_.Open(); };
  ws.Get<Button>("cmdSaveEntries").onClick = [this] { keeper_.Save(); };
  ws.Get<Button>("cmdSaveEntriesAs").onClick = [this] { keeper_.SaveAs(); };
  ws.Get<Button>("cmdHelp").onClick = [this] { Info().ShowHelpFile(); };
  ws.Get<Button>("cmdFaq").onClick = [this] { Info().ShowInfoFile(); };
  ws.Get<Button>("cmdGrowthChart").onClick = [this] { Growth().Show(); };
  ConnectReports(ws, *this, *this);
  balloons_.ConnectOptions(ws);
  ConnectIdentification(ws);
  if (ws.Sin().startsTheProgram) ConnectSmokingExtras(ws);
}

void Program::FollowUser(Form& window, const Control* by) {
  if (ended_) return;
  KeepInStep();
  // What another window has to tell is told at the foot of the workspace too: that window may be closed next.
  if (&window != &Current() && !window.News().empty()) Current().PassOn(window.News());
  const std::string changed = spoken_.at(&window).After(by);
  const std::string told = changed.empty() ? FromUtf8(window.News()) : changed;
  if (!told.empty()) window.Announce(told);
}

void Program::KeepInStep() {
  SinWorkspace& front = Current();
  UpdateStrip(front);
  front.SetStatus(keeper_.Status());
  front.SetNextStep(NextStep(front));
  FollowCharts();
}

std::string Program::ShortTip(const SinWorkspace& ws, const Control& control) const {
  // The pointer is nearly always over some frame: that is nothing to tell.
  if (control.Kind() == ControlKind::Frame) return {};
  if (!control.ToolTip().empty()) return control.ToolTip();
  return balloons_.SentenceOn(ws.Position(), control);
}

void Program::FollowCharts() {
  if (growth_ && growth_->Shown()) growth_->Follow(Current());
  if (sinsChart_ && sinsChart_->Shown()) sinsChart_->Follow(Combined().Figures(), session_.currency);
}

void Program::ApplyFormLayout(SinWorkspace& workspace) { vicetoll::ApplyFormLayout(workspace); }

void Program::AttachToolTips(int position, SinWorkspace& workspace) {
  balloons_.AttachToolTips(position, workspace);
}

SinChooser& Program::Chooser() {
  return chooser_ ? *chooser_ : Created(chooser_, std::make_unique<SinChooser>(*this, *this));
}

SpdWindow& Program::Spd() {
  if (spd_) return *spd_;
  SpdWindow& made = Created(spd_, std::make_unique<SpdWindow>(*this));
  made.onFilled = [this](SinWorkspace& ws, ReportScope scope) { exporter_.Remember(ws, scope); };
  made.Get<Button>("cmdExport").onClick = [this] { exporter_.ExportGrid(*spd_); };
  made.Get<Button>("cmdPrintPreview").onClick = [this] { exporter_.PreviewGrid(); };
  return made;
}

DocWindow& Program::Doc() { return doc_ ? *doc_ : Created(doc_, std::make_unique<DocWindow>(*this)); }

CombinedResults& Program::Combined() {
  if (combined_) return *combined_;
  CombinedResults& made = Created(combined_, std::make_unique<CombinedResults>(*this));
  made.Get<Button>("cmdChart").onClick = [this] { SinsChart().Show(); };
  made.Get<Button>("cmdExport").onClick = [this] {
    exporter_.ExportSins(*combined_, combined_->TickedRows(),
                         SinBarsOf(combined_->Figures(), session_.currency));
  };
  return made;
}

InfoWindow& Program::Info() {
  return info_ ? *info_ : Created(info_, std::make_unique<InfoWindow>(session_.platform));
}

GrowthWindow& Program::Growth() {
  if (growth_) return *growth_;
  GrowthWindow& made = Created(growth_, std::make_unique<GrowthWindow>(session_.platform));
  made.Get<Button>("cmdExport").onClick = [this] {
    exporter_.ExportGrowth(*growth_, Current(), growth_->GetChart().Contents());
  };
  return made;
}

SinsChartWindow& Program::SinsChart() {
  return sinsChart_ ? *sinsChart_ : Created(sinsChart_, std::make_unique<SinsChartWindow>(session_.platform));
}

Form* Program::Window(std::string_view name) {
  if (const int position = SinPosition(name); position != -1) return &At(position);
  if (name == "frmSwitchSins") return &Chooser();
  if (name == "frmAdvResultsDoc") return &Doc();
  if (name == "frmAdvResultsSpd") return &Spd();
  if (name == "frmCombRes") return &Combined();
  if (name == "frmInfo") return &Info();
  if (name == "frmGrowth") return &Growth();
  if (name == "frmSinsChart") return &SinsChart();
  return nullptr;
}

SinWorkspace& Program::Enter(int position) {
  if (session_.CurrentSinKey != Catalogue().at(position).key) {
    Chooser().Open(Current());
    Chooser().Get<Option>("OptSwitchSins", position).UserClicks();
  }
  return At(position);
}

void Program::TurnToEuro() { ReplaceDollarWithEuro(At(0)); }

void Program::TakeStateOf(Program& other) {
  session_.TakeStateOf(other.session_);
  balloons_.TakeStateOf(other.balloons_);
  for (int i = 0; i < kSinCount; ++i)
    if (workspaces_[i] || other.workspaces_[i]) At(i).TakeStateOf(other.At(i));
  for (Form* window : windows_)
    if (dynamic_cast<SinWorkspace*>(window) == nullptr) window->Hide();
  Current().Show();
  KeepInStep();
}

void Program::Exit() {
  if (keeper_.MayEnd()) UnloadAllWindows();
}

void Program::UnloadAllWindows() {
  for (int i = 0; i < kSinCount; ++i) At(i).Hide();
  Chooser().Hide();
  Doc().Hide();
  Spd().Hide();
  Combined().Hide();
  Info().Hide();
  if (growth_) growth_->Hide();
  if (sinsChart_) sinsChart_->Hide();
  ended_ = true;
}

}  // namespace vicetoll
