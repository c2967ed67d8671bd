// SPDX-License-Identifier: GPL-3.0-or-later
// Balloon help: which balloons hang at which workspace, and the two levels on which they are switched.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "workspace/workspaces.h"

namespace vicetoll {

// One balloon for a control, or one for all elements of a control array, under its bare name.
struct Balloon {
  std::string control;
  std::string text;  // lines broken by CR LF
};

class Balloons {
 public:
  explicit Balloons(Workspaces& workspaces) : workspaces_(workspaces) {}

  // Both throw Fault(Index) for a position outside 0..11.
  // Hangs the balloons at the controls that the workspace has, in the order of the table, active. What
  // hung there before is dropped.
  void AttachToolTips(int position, SinWorkspace& workspace);
  void AddBalloon(int position, std::string_view control, std::string_view text);

  // The option pair of a workspace. Smoking and Drinking switch all balloons and all option pairs; the
  // other ten only their own balloons.
  void ConnectOptions(SinWorkspace& workspace);

  // Takes over what hangs at the windows of another run.
  void TakeStateOf(const Balloons& other) { sins_ = other.sins_; }

  const std::vector<Balloon>& Of(int position) const { return sins_.at(position).balloons; }
  bool Active(int position) const { return sins_.at(position).active; }
  // The text for a control while the sin's balloons are active, empty otherwise.
  std::string_view TextFor(int position, const Control& control) const;

  // The first sentence that balloons, active or not, would say of a control or of what it stands in: "Set
  // Parameters related to ...". Empty if they say nothing.
  std::string SentenceOn(int position, const Control& control) const;

  // Called when the texts of a sin's balloons changed, or whether they are active.
  std::function<void(int position)> onChanged;

  void EnableToolTips() { SwitchAll(true); }
  void DisableToolTips() { SwitchAll(false); }

 private:
  struct OfSin {
    std::vector<Balloon> balloons;
    bool active = true;  // also before any hang there: those that come later are active

    std::string_view TextOn(const Control& control) const;
  };

  OfSin& At(int position);
  void Changed(int position) const;
  void SwitchAll(bool on);
  void SwitchOne(int position, bool on);

  Workspaces& workspaces_;
  std::array<OfSin, kSinCount> sins_;
};

}  // namespace vicetoll
