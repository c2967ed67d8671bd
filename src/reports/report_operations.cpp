#include "reports/report_operations.h"

#include "controls/form.h"
#include "reports/report_months.h"
#include "reports/spd_rows.h"

namespace vicetoll {
namespace {

// Twips.
constexpr int kHeadingHeight = 900;
constexpr int kColumnWidth = 1000;
// Index and period keep the width of their headings.
constexpr int kFirstFixedColumn = 2;

void ResetTotals(SinWorkspace& ws) {
  ws.CurrentCumulativeCostWithInterest = 0;
  ws.CurrentCumulativeCost = 0;
}

}  // namespace

void ParametersForMonthInPeriodSpd(SinWorkspace& ws, Side side, Grid& grid, std::int16_t period,
                                   std::int16_t& index, double cumulativeCost,
                                   double cumulativeCostWithInterest) {
  SpdRowWriter rows(ws);
  WalkPeriod(ws, side, period, index, cumulativeCost, cumulativeCostWithInterest, rows);
  grid.Append(rows.Take());
}

void ParametersForMonthInPeriodSpdBetweenPeriods(SinWorkspace& ws, Side side, Grid& grid,
                                                 bool periodIsDisabled, std::int16_t period,
                                                 std::int16_t& index, double cumulativeCost,
                                                 double cumulativeCostWithInterest, std::string_view from,
                                                 std::string_view to) {
  SpdRowWriter rows(ws);
  WalkBetweenPeriods(ws, side, periodIsDisabled, period, index, cumulativeCost, cumulativeCostWithInterest,
                     from, to, rows);
  grid.Append(rows.Take());
}

std::string ParametersForMonthInPeriodDoc(SinWorkspace& ws, Side side, std::int16_t period, bool docFlag,
                                          std::int16_t& index, double cumulativeCost,
                                          double cumulativeCostWithInterest) {
  std::string text;
  WalkPeriod(ws, side, period, index, cumulativeCost, cumulativeCostWithInterest,
             *MakeDocWriter(ws, docFlag, text));
  return text;
}

std::string ParametersForMonthInPeriodDocBetweenPeriods(SinWorkspace& ws, Side side, bool periodIsDisabled,
                                                        std::int16_t period, bool docFlag,
                                                        std::int16_t& index, double cumulativeCost,
                                                        double cumulativeCostWithInterest,
                                                        std::string_view from, std::string_view to) {
  std::string text;
  WalkBetweenPeriods(ws, side, periodIsDisabled, period, index, cumulativeCost, cumulativeCostWithInterest,
                     from, to, *MakeDocWriter(ws, docFlag, text));
  return text;
}

std::string_view GridHeaderText(std::string_view sinKey) {
  const int position = SinPosition(sinKey);
  return position == -1 ? std::string_view() : Catalogue().at(position).gridHeading;
}

void FinishSpdGrid(Grid& grid, std::string_view sinKey) {
  grid.SetHeading(GridHeaderText(sinKey));
  grid.SortByFirstCell();
  grid.SetHeadingHeight(kHeadingHeight);
  for (int column = kFirstFixedColumn; column < Grid::kColumns; ++column)
    grid.SetColumnWidth(column, kColumnWidth);
  grid.Select(1, 0, 1, 0);
}

void BuildSpdRows(SinWorkspace& ws, Side side, Grid& grid, bool resetIndex, bool clearGrid,
                  std::int16_t& index, std::int16_t sideIndex) {
  if (resetIndex) index = 0;
  if (clearGrid) {
    grid.Clear();
    grid.Window().Hide();
    ResetTotals(ws);
  }
  SpdRowWriter rows(ws);
  WalkSide(ws, side, sideIndex, index, rows);
  grid.Append(rows.Take());
  FinishSpdGrid(grid, ws.GetSession().CurrentSinKey);
}

std::string DocText(SinWorkspace& ws, Side side, bool docFlag, bool resetTotals, std::int16_t& index,
                    std::int16_t sideIndex) {
  std::string text;
  for (std::int16_t p = 1; p <= kPeriodCount; ++p) text += ParametersInPeriodDoc(ws, side, p);
  text += CsvText(ws, !docFlag);
  index = 0;
  if (resetTotals) ResetTotals(ws);
  WalkSide(ws, side, sideIndex, index, *MakeDocWriter(ws, docFlag, text));
  return text;
}

std::string BuildDocText(SinWorkspace& ws, Side side, DocumentText& view, bool docFlag, bool resetTotals,
                         std::int16_t& index, std::int16_t sideIndex) {
  std::string text = DocText(ws, side, docFlag, resetTotals, index, sideIndex);
  view.SetText(text);
  return text;
}

}  // namespace vicetoll
