// SPDX-License-Identifier: GPL-3.0-or-later
// The date rules: which months the date lists offer.
//
// There is no validation of a date after it was chosen. A date list is rebuilt when it receives the
// focus, from the resolution option beside it and from the neighbouring dates, so that only legal months
// are offered.
#pragma once

#include <string>

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Rebuild both lists of a side, when its start or its stop list receives the focus. A fault on the way
// shows a message and resets the side's dates; it never ends the run.
void RefreshDatesFromStart(WorkspaceSide& side);
void RefreshDatesFromStop(WorkspaceSide& side);

// The fine list around `thisDate` where start and stop differ.
void FineBetween(WorkspaceSide& side, DropDownList& list, const std::string& thisDate,
                 const std::string& otherDate, const std::string& previousStop);
// The fine start list where start and stop are equal.
void FineStart(WorkspaceSide& side, DropDownList& list, const std::string& thisDate,
               const std::string& previousStop);
// The fine stop list where start and stop are equal.
void FineStop(WorkspaceSide& side, DropDownList& list, const std::string& thisDate);

// Seeds the lists of period p on the first forward step onto it: one month long, right behind the stop
// of the period before.
void PrepareNextPeriodDates(WorkspaceSide& side, int period, SideIndex sideIndex);

// Recovery after a fault: the side's dates and period options as at the beginning. Store and flags stay.
void ResetDateLists(WorkspaceSide& side);

}  // namespace vicetoll
