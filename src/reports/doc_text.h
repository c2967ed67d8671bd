// SPDX-License-Identifier: GPL-3.0-or-later
// The months of a report as the text of the document view, in its two layouts: a block of labelled lines a
// month, or a table whose cells are separated by tabs. Lines end in CR LF; figures keep their padding, so
// that many lines end in blanks.
#pragma once

#include <memory>
#include <string>

#include "reports/report_months.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// The parameters of a period as they were entered (ParametersInPeriodDocPast and
// ParametersInPeriodDocFuture); empty unless it is set and enabled. The quantity line has the stored
// position in the quantity list and not the quantity, whatever its words promise.
std::string ParametersInPeriodDoc(const WorkspaceSide& side, int period);

// The column heading of the table layout, five lines and an empty one; empty without `showHeading`.
std::string CsvText(const SinWorkspace& ws, bool showHeading);

// Makes a writer that appends the months to `text`: blocks if `docFlag`, table lines otherwise.
std::unique_ptr<MonthSink> MakeDocWriter(const SinWorkspace& ws, bool docFlag, std::string& text);

}  // namespace vicetoll
