// SPDX-License-Identifier: GPL-3.0-or-later
// A report of a workspace as a value: its months and where they lead, for whoever shows, draws or writes
// them. Asking for one changes nothing in the workspace or on the screen, and it shows no message: a grid
// that stands open keeps its numbers.
#pragma once

#include <vector>

#include "reports/report_months.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// Which of a workspace's reports: those of cmdAdvResultsSpdPast, cmdAdvResultsSpdFut and
// cmdAdvResultsSpdSummaryTot.
enum class ReportScope { Past, Future, Total };

struct MonthReport {
  // As the walk comes to them; empty where nothing counts. The grid puts them in the order of their indexes,
  // which differs only where a period starts before the one before it has ended.
  std::vector<ReportMonth> months;
  // Behind the last month. Of a side this is its total out of pocket and with interest, unrounded.
  ReportState after;
};

// The months as that report shows them now. It always starts from nothing, also the Total report of a sin
// without a past, which the grid appends to whatever was reported last. In the Total report the running
// totals become those of the result boxes, whole units, where the past ends and a future follows.
// Throws Fault(Conversion) or Fault(Overflow) for what the periods hold, as the grid would; periods that a
// user has set hold nothing of that kind.
MonthReport ReportOf(const SinWorkspace& ws, ReportScope scope);

}  // namespace vicetoll
