// SPDX-License-Identifier: GPL-3.0-or-later
// The total of a period, as the vocabulary asks for it: by a number of months, without dates. The program
// carries the balances of a side from period to period (engine/side_chain.h), by the same walk.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

// The balance from nothing after `count` months of `months`. Where that is none, nothing is read from the
// store: 0, also for a period that holds no texts yet. Two sins differ: the future side of Drinking
// takes the stored list position for the daily quantity, and the future side of Jailing knows no yearly
// increase.
double TotalCostInCurrentPeriod(const WorkspaceSide& side, double count, double months, int period);

}  // namespace vicetoll
