// SPDX-License-Identifier: GPL-3.0-or-later
// What the chart over all sins shows: a bar for each sin, out of pocket and with interest.
#pragma once

#include <vector>

#include "controls/chart.h"

namespace vicetoll {

// The amounts of the table over all sins.
struct SinFigures {
  std::vector<ChartBar> sins;
  ChartBar total;
};

// The sins that have an amount, longest bar first: by what both sides together come to with interest.
ChartContents SinBarsOf(SinFigures figures, Currency currency);

}  // namespace vicetoll
