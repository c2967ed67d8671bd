// SPDX-License-Identifier: GPL-3.0-or-later
// The line at the foot of a window: what to do next, what a control is for, what has just come of an action.
#pragma once

#include <string>

namespace vicetoll {

// All texts are in UTF-8, as they may name a file. What is more to the point goes before the rest: the tip of
// the control that the pointer rests on, then news, then the tip of the control that has got the focus, then
// what to do next.
class HintLine {
 public:
  const std::string& Text() const;

  void SetNextStep(std::string text) { nextStep_ = std::move(text); }

  // News of the action that is being carried out. It stays until the user has done something else, and is
  // seen although the pointer rests on the button that was pressed.
  void Say(std::string news);
  // The action is through: older news is old.
  void EndAction();
  const std::string& News() const { return news_; }

  // Tips, empty where there is none.
  void PointAt(std::string tip) { pointed_ = std::move(tip); }
  void Focus(std::string tip) { focused_ = std::move(tip); }

 private:
  std::string pointed_, news_, focused_, nextStep_;
  bool newsIsFresh_ = false;
};

}  // namespace vicetoll
