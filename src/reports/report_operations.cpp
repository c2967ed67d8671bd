// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_operations.h"

#include "controls/form.h"
#include "reports/doc_text.h"
#include "reports/report_terms.h"
#include "reports/spd_rows.h"

namespace vicetoll {
namespace {

// Twips.
constexpr int kHeadingHeight = 900;
constexpr int kColumnWidth = 1000;
// Index and period keep the width of their headings.
constexpr int kFirstFixedColumn = 2;

}  // namespace

std::string_view GridHeaderText(std::string_view sinKey) {
  const int position = SinPosition(sinKey);
  return position == -1 ? std::string_view() : Catalogue().at(position).gridHeading;
}

void FinishSpdGrid(Grid& grid, std::string_view sinKey) {
  grid.SetHeading(GridHeaderText(sinKey));
  grid.SortByFirstCell();
  grid.SetHeadingHeight(kHeadingHeight);
  for (int column = kFirstFixedColumn; column < grid.ColumnCount(); ++column)
    grid.SetColumnWidth(column, kColumnWidth);
  grid.Select(1, 0, 1, 0);
}

void ClearSpdGrid(Grid& grid) {
  grid.Clear();
  grid.Window().Hide();
}

void BuildSpdRows(WorkspaceSide& side, Grid& grid, bool resetIndex, bool clearGrid, std::int16_t& index,
                  SideIndex sideIndex) {
  SinWorkspace& ws = side.Workspace();
  if (resetIndex) index = 0;
  ReportState state = LastReport(ws);
  state.index = index;
  if (clearGrid) {
    ClearSpdGrid(grid);
    state = {.index = index};
  }
  SpdRowWriter rows(ws);
  KeepReport(ws, index, WalkSide(ReportSideOf(side, sideIndex), state, rows));
  grid.Append(rows.Take());
  FinishSpdGrid(grid, side.GetSession().CurrentSinKey);
}

std::string SideText(const WorkspaceSide& side, const ReportSide& periods, bool docFlag, ReportState& state) {
  const SinWorkspace& ws = side.Workspace();
  std::string text;
  for (int p = 1; p <= kPeriodCount; ++p) text += ParametersInPeriodDoc(side, p);
  text += CsvText(ws, !docFlag);
  state.index = 0;
  state = WalkSide(periods, state, *MakeDocWriter(ws, docFlag, text));
  return text;
}

std::string DocText(WorkspaceSide& side, bool docFlag, bool resetTotals, std::int16_t& index,
                    SideIndex sideIndex) {
  SinWorkspace& ws = side.Workspace();
  ReportState state = resetTotals ? ReportState{} : LastReport(ws);
  std::string text = SideText(side, ReportSideOf(side, sideIndex), docFlag, state);
  KeepReport(ws, index, state);
  return text;
}

std::string BuildDocText(WorkspaceSide& side, DocumentText& view, bool docFlag, bool resetTotals,
                         std::int16_t& index, SideIndex sideIndex) {
  std::string text = DocText(side, docFlag, resetTotals, index, sideIndex);
  view.SetText(text);
  return text;
}

}  // namespace vicetoll
