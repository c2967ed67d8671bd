// SPDX-License-Identifier: GPL-3.0-or-later
// What a user entered, as a plain value: what is saved, and what opening a file brings back.
//
// Months are labels ("Jun - 2031"), amounts decimal texts without a symbol ("5.00"), rates whole percent a
// year. Results are no part of it: they are reckoned anew.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "base/side.h"
#include "calendar/money.h"
#include "sins/catalogue.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// The months from and to which a date list runs.
struct MonthRange {
  std::string first, last;
  bool operator==(const MonthRange&) const = default;
};

// A period that is set. A sin uses the costs of its class.
struct PeriodEntries {
  std::string start, stop;  // both included
  // What the period's date lists offered when it was set. A list shows a month only if it lies whole years
  // behind the list's first, so without them a period might come back with other dates.
  MonthRange startList, stopList;
  std::string quantity;  // in the flat-rate class the amount of money
  Unit unit = Unit::PerDay;
  // The program notes a quantity by its place in the list, and reckons all periods of a side in the unit that
  // is on. This is what stands at the place in the other unit's list, where that differs from what stands at
  // the first place of `quantity`; empty otherwise.
  std::string otherUnit;
  std::string cost, finalCost, reasonableCost;
  bool percentMode = true;  // the cost rises by `increase`, not from cost to final cost
  int increase = 0, interest = 0, inflation = 0;
  bool enabled = true;
  bool operator==(const PeriodEntries&) const = default;
};

// Which periods the results of a side count.
enum class CountedIn {
  Press,             // of the set button: all of them, also those that are off
  Switch,            // of a radio: those that are on
  PressHidingFirst,  // a press that had to force a radio on, while period 1 was off: its boxes go, its sums
                     // stay
};

struct SideEntries {
  std::vector<PeriodEntries> periods;  // period p at p - 1
  // The date rules let dates get out of order in a few rare ways.
  bool outOfOrder = false;
  int shownPeriod = 1;
  Unit shownUnit = Unit::PerDay;
  // How the results on screen came about. Unless told otherwise: in the unit of the last period, and by a
  // switch if any period is off.
  Unit resultsUnit = Unit::PerDay;
  CountedIn resultsBy = CountedIn::Press;
  bool operator==(const SideEntries&) const = default;
};

// The two values that resultsUnit and resultsBy have unless told otherwise. For a side with periods.
Unit UsualResultsUnit(const SideEntries& side);
CountedIn UsualResultsBy(const SideEntries& side);

struct SinEntries {
  int position = 0;
  SideEntries past, future;
  // Of the TOTAL tab, once it was opened: what its figure at a future date was reckoned with, and a choice
  // that still waits for its button.
  std::optional<FutureDateTerms> total, totalWaiting;
  // The figure that stood there, whole units, where periods have changed since it was reckoned; empty for
  // "n/a". Nobody sees it before it is reckoned anew, but the growth chart goes by it.
  std::optional<std::string> oldFigure;
  // The balance that the TOTAL tab or the table over all sins reckoned last, whole units, where it is not
  // what reckoning the tab anew gives. Either reckons anew when it is opened, but the table shows this where
  // nothing counts and yet both sides have a total: that of a disabled period 1 that was set again.
  std::optional<std::string> oldBalance;

  const SideEntries& Of(Side side) const { return side == Side::Past ? past : future; }
  SideEntries& Of(Side side) { return side == Side::Past ? past : future; }
  bool operator==(const SinEntries&) const = default;
};

struct Entries {
  Currency currency = Currency::Dollar;
  int front = 0;  // position of the sin in front
  Tab tab = kPastTab;
  std::vector<SinEntries> sins;  // those visited, in the order of the catalogue
  bool operator==(const Entries&) const = default;
};

}  // namespace vicetoll
