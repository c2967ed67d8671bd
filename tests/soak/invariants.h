// SPDX-License-Identifier: GPL-3.0-or-later
// What holds after every action of a user, whatever was done before.
#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>

#include "soak/user_action.h"

namespace vicetoll {

// What does not hold: a short name that stays the same while the actions are cut down, and the particulars.
struct Violation {
  std::string check;
  std::string detail;
};

class Invariants {
 public:
  explicit Invariants(Program& program) : program_(program) {}

  // Both are told of every action, before and after it is done.
  void Before(const UserAction& action);
  std::optional<Violation> After(const UserAction& action);

 private:
  // Which evaluation wrote a side's total last.
  enum class Evaluated { Never, ByPress, ByRadio };

  // How the dates of a side came about, as far as the rules let them get out of order by it.
  struct SideHistory {
    Evaluated evaluated = Evaluated::Never;
    std::array<bool, kPeriodCount + 1> seededLoose{};  // while a date list was fine, or at the end of time
    std::array<bool, kPeriodCount + 1> rebuiltFine{};  // a date list was rebuilt while one was fine
  };

  using Texts = std::map<const TextBox*, std::string>;

  SinWorkspace* WorkspaceOf(const UserAction& action) const;
  void NoteDates(SinWorkspace& ws, Side side, const UserAction& action);
  void NoteEvaluation(SinWorkspace& ws, Side side, const UserAction& action);
  bool MayWrite(SinWorkspace& ws, Side side, int box, const UserAction& action) const;

  void CheckLists();
  void CheckBoxes(const UserAction& action);
  void CheckFront();
  void CheckPeriods(SinWorkspace& ws, Side side);
  void CheckDates(SinWorkspace& ws, Side side);
  void CheckTotal(SinWorkspace& ws, Side side);
  void CheckSetButton(SinWorkspace& ws, Side side);
  void Fail(const std::string& check, const std::string& detail);

  Program& program_;
  std::map<int, SideHistory> histories_;  // by SideIndex
  Texts texts_;                           // of the result boxes, before the action
  std::array<bool, kPeriodCount + 1> radios_{};
  std::optional<Violation> violation_;
};

}  // namespace vicetoll
