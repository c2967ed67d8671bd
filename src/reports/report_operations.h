// The operations of the month-by-month reports, as a table of names can call them. Each stands for its
// pair of names: ParametersForMonthInPeriodSpdPast and ...Future, BuildDocTextPast and ...Future.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "controls/document_text.h"
#include "controls/grid.h"
#include "reports/doc_text.h"
#include "reports/report_months.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// What a workspace's last report showed, as its FuturePast_Flag says.
enum ShownSides : std::int16_t { kShowsPast = 1, kShowsFuture = 2, kShowsBoth = 3 };

// Of the four month operations: `index` is the number of months so far and moves on; the totals are carried
// on from those given and end up in the workspace's fields. What they list, see reports/report_months.h.
// They throw Fault(Overflow) for an index beyond 16 bits.

// Adds the rows of a period's months at the end of the grid.
void ParametersForMonthInPeriodSpd(SinWorkspace& ws, Side side, Grid& grid, int period, std::int16_t& index,
                                   double cumulativeCost, double cumulativeCostWithInterest);

// Adds the rows of the months between two labels: a gap, or a disabled period.
void ParametersForMonthInPeriodSpdBetweenPeriods(SinWorkspace& ws, Side side, Grid& grid,
                                                 bool periodIsDisabled, int period, std::int16_t& index,
                                                 double cumulativeCost, double cumulativeCostWithInterest,
                                                 std::string_view from, std::string_view to);

// The same months as text: blocks if `docFlag`, table lines otherwise.
std::string ParametersForMonthInPeriodDoc(SinWorkspace& ws, Side side, int period, bool docFlag,
                                          std::int16_t& index, double cumulativeCost,
                                          double cumulativeCostWithInterest);
std::string ParametersForMonthInPeriodDocBetweenPeriods(SinWorkspace& ws, Side side, bool periodIsDisabled,
                                                        int period, bool docFlag, std::int16_t& index,
                                                        double cumulativeCost,
                                                        double cumulativeCostWithInterest,
                                                        std::string_view from, std::string_view to);

// The heading of a sin's grid, as Grid::SetHeading takes it; empty for a key that is no sin's.
std::string_view GridHeaderText(std::string_view sinKey);

// Brings the grid to its final state: heading of that sin, order, sizes, the first cell selected.
void FinishSpdGrid(Grid& grid, std::string_view sinKey);

// Takes all rows away and hides the grid's window: how a report starts.
void ClearSpdGrid(Grid& grid);

// Lists a side of the workspace in the grid. `resetIndex` numbers the rows from 1, `clearGrid` empties the
// grid, hides its window and starts the totals from nothing; without them the rows go on from what stands.
// Which periods count is read under `sideIndex`, the months are the workspace's own.
void BuildSpdRows(SinWorkspace& ws, Side side, Grid& grid, bool resetIndex, bool clearGrid,
                  std::int16_t& index, SideIndex sideIndex);

// The text of a side whose periods were read: the parameters of all of them, the heading of the table, the
// months. The months number from 1 and carry the totals of the state on; it becomes the state behind them.
std::string SideText(const SinWorkspace& ws, Side side, const ReportSide& periods, bool docFlag,
                     ReportState& state);

// The text of a side of the workspace: the parameters of all its periods, the heading of the table, the
// months. The months number from 1 in every run; `resetTotals` starts the totals from nothing.
std::string DocText(SinWorkspace& ws, Side side, bool docFlag, bool resetTotals, std::int16_t& index,
                    SideIndex sideIndex);

// The same, shown in the view as well.
std::string BuildDocText(SinWorkspace& ws, Side side, DocumentText& view, bool docFlag, bool resetTotals,
                         std::int16_t& index, SideIndex sideIndex);

}  // namespace vicetoll
