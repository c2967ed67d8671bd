// SPDX-License-Identifier: GPL-3.0-or-later
// A program that runs, the world it runs in, and the hands of its user.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "scenario/scripted_platform.h"
#include "shell/program.h"

namespace vicetoll {

inline void PrintTo(Side side, std::ostream* out) { *out << OperationSuffix(side); }

inline void PrintTo(UserOutcome outcome, std::ostream* out) {
  constexpr const char* kNames[] = {"done", "refused", "no entry"};
  *out << kNames[static_cast<int>(outcome)];
}

// What a control shows, as one text.
inline std::string StateOf(const Control& control) {
  std::string state = control.Enabled() ? "enabled" : "disabled";
  state += control.Visible() ? " visible" : " hidden";
  if (const auto* list = dynamic_cast<const DropDownList*>(&control)) {
    state += " \"" + list->Text() + "\" at " + std::to_string(list->Position()) + " of";
    for (const std::string& entry : list->Entries().All()) state += "|" + entry;
  }
  if (const auto* box = dynamic_cast<const TextBox*>(&control)) state += " \"" + box->Text() + "\"";
  if (const auto* captioned = dynamic_cast<const CaptionedControl*>(&control))
    state += " '" + captioned->Caption() + "'";
  if (const auto* choice = dynamic_cast<const Choice*>(&control))
    state += (choice->Value() ? " on " : " off ") + std::to_string(choice->Colour());
  if (const auto* tabs = dynamic_cast<const TabControl*>(&control)) state += std::to_string(tabs->Tab());
  return state;
}

using States = std::map<std::string, std::string>;

inline States StatesOf(const Form& form) {
  States states;
  for (const auto& control : form.Controls()) states[control->FullName()] = StateOf(*control);
  return states;
}

// The names of the controls that show something else than they did.
inline std::vector<std::string> Changes(const States& before, const Form& form) {
  std::vector<std::string> names;
  for (const auto& [name, state] : StatesOf(form))
    if (before.at(name) != state) names.push_back(name);
  return names;
}

class RunningProgram {
 public:
  explicit RunningProgram(MonthAndYear now = {6, 2026}) : platform(At(now)), program(platform) {}

  ScriptedPlatform platform;
  Program program;

  SinWorkspace& Smoking() { return program.At(0); }
  SinWorkspace& Front() { return program.Current(); }

  // The user leaves the sin in front for another, through the chooser.
  SinWorkspace& Enter(std::string_view key) {
    if (program.GetSession().CurrentSinKey == key) return Front();
    EXPECT_EQ(Front().cmdSwitchSins->UserClicks(), UserOutcome::Done);
    EXPECT_EQ(program.Chooser().Get<Option>("OptSwitchSins", SinPosition(key)).UserClicks(),
              UserOutcome::Done);
    return Front();
  }

  // The same, and the tab of the side.
  SinWorkspace& Enter(std::string_view key, Side side) {
    SinWorkspace& ws = Enter(key);
    OpenTab(ws, side == Side::Past ? kPastTab : kFutureTab);
    return ws;
  }

  static void OpenTab(SinWorkspace& ws, Tab tab) {
    EXPECT_EQ(ws.SSTab_PastFutureSwitch->UserSelects(tab), UserOutcome::Done);
  }

  static void Click(Choice& choice) {
    EXPECT_EQ(choice.UserClicks(), UserOutcome::Done) << choice.FullName();
  }

  static void Pick(DropDownList& list, std::string_view entry) {
    EXPECT_EQ(list.UserPicks(entry), UserOutcome::Done) << list.FullName() << ": " << entry;
  }

  static void Pick(DropDownList& list, int position) {
    EXPECT_EQ(list.UserPicks(position), UserOutcome::Done) << list.FullName() << ": " << position;
  }

  // The user presses the set button, having touched a list first if a press has disabled the button.
  static void Press(SinWorkspace& ws, Side side) {
    SideControls& c = ws.Of(side);
    if (!c.cmdSetPeriodParams->Enabled()) {
      EXPECT_EQ(c.comInterestRate1->UserFocuses(), UserOutcome::Done);
    }
    EXPECT_EQ(c.cmdSetPeriodParams->UserClicks(), UserOutcome::Done);
  }

  // The user goes to the period.
  static void GoTo(SinWorkspace& ws, Side side, int period) { Click(ws.Of(side).optTimePeriod(period)); }

  // Sets the period on screen to these months, without the detours that date lists ask of a user.
  static void Commit(SinWorkspace& ws, Side side, std::string_view start, std::string_view stop) {
    ws.Of(side).comStart->SetText(start);
    ws.Of(side).comStop->SetText(stop);
    Press(ws, side);
  }

  static void Commit(SinWorkspace& ws, Side side, int period, std::string_view start, std::string_view stop) {
    if (ws.Of(side).state.CurrentPeriod != period) GoTo(ws, side, period);
    Commit(ws, side, start, stop);
  }

  // A cost that stays the same in every month, and the yearly rates. For the flat-rate sins.
  static void PickMonthly(SinWorkspace& ws, Side side, std::string_view cost,
                          std::string_view interest = "0%", std::string_view inflation = "0%") {
    SideControls& c = ws.Of(side);
    Click(*c.secondUnit);
    Pick(*c.quantity, cost);
    Pick(*c.comPercentIncrease, "0%");
    Pick(*c.comInterestRate1, interest);
    Pick(*c.comInflationRate1, inflation);
  }

 private:
  static ScriptedPlatform At(MonthAndYear now) {
    ScriptedPlatform platform;
    platform.now = now;
    return platform;
  }
};

inline std::string NameOfSide(const testing::TestParamInfo<Side>& info) {
  return std::string(OperationSuffix(info.param));
}

using SinAndSide = std::tuple<int, Side>;

inline std::string NameOfSinAndSide(const testing::TestParamInfo<SinAndSide>& info) {
  return std::string(Catalogue()[std::get<0>(info.param)].key) +
         std::string(OperationSuffix(std::get<1>(info.param)));
}

// A sin that the user has just entered, on the tab of a side.
class EverySinAndSide : public testing::TestWithParam<SinAndSide> {
 protected:
  const int position = std::get<0>(GetParam());
  const Side side = std::get<1>(GetParam());
  const SinRow& sin = Catalogue()[position];
  RunningProgram run;
  SinWorkspace& ws = run.Enter(sin.key, side);
  SideControls& c = ws.Of(side);

  PeriodRecord& Record(int period) { return ws.Of(side).Record(period); }
  bool IsFlat() const { return sin.costClass == CostClass::FlatRateClass; }
};

inline auto AllSinsAndSides() {
  return testing::Combine(testing::Range(0, kSinCount), testing::ValuesIn(kSides));
}

inline auto SinsAndSides(bool (*wanted)(const SinRow&)) {
  std::vector<int> positions;
  for (int i = 0; i < kSinCount; ++i)
    if (wanted(Catalogue()[i])) positions.push_back(i);
  return testing::Combine(testing::ValuesIn(positions), testing::ValuesIn(kSides));
}

// One sin, on the tab of a side.
class EverySideOf : public testing::TestWithParam<Side> {
 protected:
  explicit EverySideOf(std::string_view key, MonthAndYear now = {6, 2026})
      : run(now), ws(run.Enter(key, GetParam())) {}

  const Side side = GetParam();
  RunningProgram run;
  SinWorkspace& ws;
  SideControls& c = ws.Of(side);

  PeriodRecord& Record(int period) { return ws.Of(side).Record(period); }
};

}  // namespace vicetoll
