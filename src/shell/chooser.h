// SPDX-License-Identifier: GPL-3.0-or-later
// The chooser: leaving one sin for another. A switch saves and resets nothing; every workspace goes on
// existing, hidden, as the user left it.
#pragma once

#include <array>

#include "controls/form.h"
#include "workspace/workspaces.h"

namespace vicetoll {

// What the program does for a switch.
class SinSwitching {
 public:
  virtual ~SinSwitching() = default;
  virtual void ApplyFormLayout(SinWorkspace& workspace) = 0;
  virtual void AttachToolTips(int position, SinWorkspace& workspace) = 0;
};

class SinChooser : public Form {
 public:
  SinChooser(Workspaces& workspaces, SinSwitching& switching);

  Button* CloseButton() const override { return cmdExit_; }
  // The sin in front.
  Control* FirstFocus() const override;

  // The press of cmdSwitchSins on a workspace.
  void Open(SinWorkspace& from);

  // Shows the chooser with nothing chosen. From here on the sin counts as visited, whether or not the user
  // then really switches. Throws Fault(Index) for a position outside 0..11.
  void ShowSinChooser(int position);

  // Hides all twelve workspaces, creating those that do not exist yet, and shows the target.
  void ShowAndHideForms(SinWorkspace& target);

 private:
  void Switch();
  void SwitchTo(int position);
  void Leave();
  void ClearOptions();
  void EnableSwitchButtons();

  Workspaces& workspaces_;
  SinSwitching& switching_;
  Frame* frameSwitchSins_;
  Button* cmdExit_;
  std::array<Option*, kSinCount> OptSwitchSins_{};
};

}  // namespace vicetoll
