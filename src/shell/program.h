// SPDX-License-Identifier: GPL-3.0-or-later
// The program: all windows of a run and what they share.
//
// There is no main routine beyond this: making a Program creates the Smoking workspace, and that creation
// does all that a start needs. Nothing is kept from one run to the next but what the user saves.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "charts/growth_window.h"
#include "charts/sins_chart_window.h"
#include "controls/spoken_changes.h"
#include "entries/capture.h"
#include "reports/report_windows.h"
#include "shell/balloons.h"
#include "shell/chooser.h"
#include "shell/combined_results.h"
#include "shell/entries_keeper.h"
#include "shell/exporter.h"
#include "shell/info_window.h"

namespace vicetoll {

class Program final : public FreshProgram, public SinSwitching, public ReportWindows {
 public:
  // Starts the program: the Smoking workspace is loaded and shown.
  explicit Program(Platform& platform);
  ~Program() override;

  SinWorkspace& At(int position) override;
  Session& GetSession() override { return session_; }

  // A window by its name: a sin key, "frmSwitchSins", ... It is created if it does not exist yet, and not
  // shown. nullptr where there is no such window.
  Form* Window(std::string_view name);

  // The windows that exist, in the order of their creation.
  const std::vector<Form*>& Windows() const { return windows_; }
  // Called for each window that comes into being.
  std::function<void(Form&)> onWindowCreated;

  SinChooser& Chooser();
  CombinedResults& Combined();
  InfoWindow& Info();
  GrowthWindow& Growth();
  SinsChartWindow& SinsChart();
  SpdWindow& Spd() override;
  DocWindow& Doc() override;
  Balloons& GetBalloons() { return balloons_; }
  EntriesKeeper& Keeper() { return keeper_; }
  Exporter& GetExporter() { return exporter_; }

  SinWorkspace& Enter(int position) override;
  void TurnToEuro() override;

  // Makes this program, with its windows, look and go on as the other one would: the workspaces take over
  // what the other's show, all other windows are closed. The other must run on the same clock.
  void TakeStateOf(Program& other);

  // The way out: asks where a file of entries is in use and something was set since, and ends the run.
  void Exit();
  // Ends the run: every window is closed, nothing is asked, nothing saved.
  void UnloadAllWindows();
  bool Ended() const { return ended_; }

  void ApplyFormLayout(SinWorkspace& workspace) override;
  void AttachToolTips(int position, SinWorkspace& workspace) override;

 private:
  template <class T>
  T& Created(std::unique_ptr<T>& slot, std::unique_ptr<T> made);
  void Connect(SinWorkspace& workspace);
  void StartSmoking();
  // Follows what a user has just done in a window: brings what stands beside its own rules in step, and tells
  // what came of it.
  void FollowUser(Form& window, const Control* by);
  void KeepInStep();
  void FollowCharts();
  // What the line at the foot of a workspace says of a control.
  std::string ShortTip(const SinWorkspace& workspace, const Control& control) const;

  Session session_;
  Balloons balloons_;
  EntriesKeeper keeper_{*this};
  Exporter exporter_{*this};
  std::vector<Form*> windows_;
  std::unordered_map<const Form*, SpokenChanges> spoken_;
  std::array<std::unique_ptr<SinWorkspace>, kSinCount> workspaces_;
  std::unique_ptr<SinChooser> chooser_;
  std::unique_ptr<DocWindow> doc_;
  std::unique_ptr<SpdWindow> spd_;
  std::unique_ptr<CombinedResults> combined_;
  std::unique_ptr<InfoWindow> info_;
  std::unique_ptr<GrowthWindow> growth_;
  std::unique_ptr<SinsChartWindow> sinsChart_;
  bool ended_ = false;
};

}  // namespace vicetoll
