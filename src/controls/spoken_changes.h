// SPDX-License-Identifier: GPL-3.0-or-later
// What somebody who listens to a window must be told after an action: what its lists and boxes show by now,
// where that is not his own doing.
#pragma once

#include <string>
#include <vector>

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
  // A list or box. `known` is what it showed after the action before, empty if it was not in front.
  struct Teller {
    const Control* control;
    const std::string* text;
    std::string known;
  };
  // Those that stand in the same place, one behind the other: they come to the front together.
  struct Neighbours {
    std::vector<Teller> tellers;
    bool inFront = false;  // after the action before; else nothing is known of them
  };

  void FindWhatTells();
  bool CameToFront();

  const Form& form_;
  std::vector<Neighbours> neighbours_;
  const TabControl* tabs_ = nullptr;
  std::size_t controlsSeen_ = 0;
  int timesShown_ = 0;
  int tab_ = 0;  // the one in front
};

}  // namespace vicetoll
