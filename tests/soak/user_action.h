// SPDX-License-Identifier: GPL-3.0-or-later
// One thing a user does, as data: done to a program, and written as the lines of a scenario.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "scenario/scripted_platform.h"
#include "scenario/stage.h"
#include "shell/program.h"

namespace vicetoll {

enum class ActionKind { Focus, Choose, Click, Tab, Resize, Type, SelectText, SelectCells, AnswerBox };

struct UserAction {
  ActionKind kind = ActionKind::Click;
  std::string window;            // a sin key, "frmSwitchSins", ...
  std::string control;           // empty where the action is on the window
  std::array<int, 4> numbers{};  // position; tab; width, height; start, length; row, col, rowSel, colSel
  std::string text;              // typed; or the box and its answer: "message ok"

  bool Clicks(std::string_view name) const { return kind == ActionKind::Click && control == name; }
};

// Does it, where the user can reach the control. An unreachable one is left alone, as a scenario does.
void Perform(const UserAction& action, Program& program, Stage& stage, ScriptedPlatform& platform);

// The actions as a scenario file.
std::string ScenarioOf(const MonthAndYear& now, const std::vector<UserAction>& actions);

}  // namespace vicetoll
