// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/entries.h"

#include <algorithm>

namespace vicetoll {

Unit UsualResultsUnit(const SideEntries& side) { return side.periods.back().unit; }

CountedIn UsualResultsBy(const SideEntries& side) {
  const bool anyOff = std::any_of(side.periods.begin(), side.periods.end(),
                                  [](const PeriodEntries& period) { return !period.enabled; });
  return anyOff ? CountedIn::Switch : CountedIn::Press;
}

}  // namespace vicetoll
