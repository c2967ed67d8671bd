// SPDX-License-Identifier: GPL-3.0-or-later
// The operations of the month-by-month reports, as a table of names can call them. Each stands for its
// pair of names: BuildSpdRowsPast and ...Future, BuildDocTextPast and ...Future.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/document_text.h"
#include "controls/grid.h"
#include "reports/report_months.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// What a workspace's last report showed, as its FuturePast_Flag says.
enum ShownSides : std::int16_t { kShowsPast = 1, kShowsFuture = 2, kShowsBoth = 3 };

// The heading of a sin's grid, as Grid::SetHeading takes it; empty for a key that is no sin's.
std::string_view GridHeaderText(std::string_view sinKey);

// Brings the grid to its final state: heading of that sin, order, sizes, the first cell selected.
void FinishSpdGrid(Grid& grid, std::string_view sinKey);

// Takes all rows away and hides the grid's window: how a report starts.
void ClearSpdGrid(Grid& grid);

// Lists a side of the workspace in the grid. `resetIndex` numbers the rows from 1, `clearGrid` empties the
// grid, hides its window and starts the totals from nothing; without them the rows go on from what stands.
// Which periods count is read under `sideIndex`, the months are the workspace's own.
void BuildSpdRows(WorkspaceSide& side, Grid& grid, bool resetIndex, bool clearGrid, std::int16_t& index,
                  SideIndex sideIndex);

// The text of a side whose periods were read: the parameters of all of them, the heading of the table, the
// months. The months number from 1 and carry the totals of the state on; it becomes the state behind them.
std::string SideText(const WorkspaceSide& side, const ReportSide& periods, bool docFlag, ReportState& state);

// The text of a side of the workspace: the parameters of all its periods, the heading of the table, the
// months. The months number from 1 in every run; `resetTotals` starts the totals from nothing.
std::string DocText(WorkspaceSide& side, bool docFlag, bool resetTotals, std::int16_t& index,
                    SideIndex sideIndex);

// The same, shown in the view as well.
std::string BuildDocText(WorkspaceSide& side, DocumentText& view, bool docFlag, bool resetTotals,
                         std::int16_t& index, SideIndex sideIndex);

}  // namespace vicetoll
