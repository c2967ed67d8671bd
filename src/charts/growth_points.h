// SPDX-License-Identifier: GPL-3.0-or-later
// What the growth chart of a sin shows: month by month over past, gap and future, the running cost out of
// pocket and what it would have grown to.
#pragma once

#include "base/platform.h"
#include "controls/chart.h"
#include "reports/month_report.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// The months and running totals of the Total report, unrounded; of the side that counts alone, where the
// other does not. A figure at a future date adds the months that lead there, the last of which is the number
// in its box. Changes nothing in the workspace.
ChartContents GrowthOf(const SinWorkspace& ws, const MonthAndYear& present);

// The same of the months of a report, without those ahead.
ChartContents GrowthOf(const SinWorkspace& ws, const MonthReport& report, const MonthAndYear& present);

// The report whose months the chart of the sin shows.
ReportScope GrowthScopeOf(const SinWorkspace& ws);

}  // namespace vicetoll
