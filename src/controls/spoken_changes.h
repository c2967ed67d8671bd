// SPDX-License-Identifier: GPL-3.0-or-later
// What somebody who listens to a window must be told after an action: what its lists and boxes show by now,
// where that is not his own doing.
#pragma once

#include <string>
#include <unordered_map>

#include "controls/form.h"

namespace vicetoll {

class SpokenChanges {
 public:
  explicit SpokenChanges(const Form& form) : form_(form) {}

  // What came of a user's action on a control (nullptr: on the window): the results that the form says belong
  // to it, or else every list and box in front that shows something new. Empty if there is nothing to tell,
  // and when the window or another tab has come to the front: then everything is new, and he reads it
  // himself.
  std::string After(const Control* by);

 private:
  using Texts = std::unordered_map<const Control*, std::string>;

  Texts Shown() const;
  bool CameToFront();

  const Form& form_;
  Texts known_;
  int timesShown_ = 0;
  int tabs_ = 0;  // the tab in front
};

}  // namespace vicetoll
