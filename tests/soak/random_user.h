// SPDX-License-Identifier: GPL-3.0-or-later
// A user without a plan: does whatever can be reached, the more telling things more often.
#pragma once

#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "soak/user_action.h"

namespace vicetoll {

class RandomUser {
 public:
  struct Habits {
    bool fineDates = true;  // ever turns a date list to months
    bool euro = true;       // may press the euro button
  };

  RandomUser(std::mt19937_64& random, Habits habits) : random_(random), habits_(habits) {}

  // What to do next. One step may be several actions: answers are given before the box opens.
  std::vector<UserAction> Next(Program& program);

 private:
  struct Candidate {
    double weight;
    Control* control;
  };

  Form& PickWindow(Program& program);
  std::vector<Candidate> CandidatesIn(Form& window) const;
  double WeightOf(const Control& control) const;
  std::vector<UserAction> ActionsOn(Control& control);
  UserAction ChooseFrom(DropDownList& list);
  void AddAnswers(const Control& control, std::vector<UserAction>& actions);

  int Below(int limit) { return limit <= 0 ? 0 : static_cast<int>(random_() % limit); }
  bool Chance(double share) { return std::uniform_real_distribution<>(0, 1)(random_) < share; }

  std::mt19937_64& random_;
  Habits habits_;
  std::set<std::string> named_;     // report windows whose save dialog holds a file name
  DropDownList* opened_ = nullptr;  // a date list that has just received the focus and is picked from next
};

}  // namespace vicetoll
