// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/spd_window.h"

#include <algorithm>

#include "base/line_ends.h"
#include "reports/report_columns.h"

namespace vicetoll {
namespace {

// What the grid's selection reads while nobody has selected anything: the first cell of a report.
constexpr std::string_view kUntouchedClip = "1 ";

// Of the buttons that take a report along, in twips.
constexpr int kAdditionWidth = 1500, kAdditionGap = 100;

}  // namespace

SpdWindow::SpdWindow(Workspaces& workspaces)
    : ReportWindow("frmAdvResultsSpd", "Advanced Smoking Results - SpreadSheet Style", workspaces,
                   ReportStyle::Spreadsheet,
                   {.height = 7845,
                    .smallestWidth = 5500,
                    .smallestHeight = 5500,
                    .buttonsLeft = 0,
                    .buttonsGap = 100}) {
  fgdAdvResultsSpd_ = &Add<Grid>({"fgdAdvResultsSpd"}, kReportColumnCount);
  Furnish(*fgdAdvResultsSpd_);
}

void SpdWindow::AddMore() {
  additions_ = {&Add<Button>({"cmdExport"}, kExportCaption), &Add<Button>({"cmdPrintPreview"}, "Preview")};
  additions_[0]->SetKeys(kExportKeys);
}

// Between the other buttons, or below them where they leave no room.
void SpdWindow::PlaceBeside(int left, int) {
  Place place = RoomBetweenButtons();
  const int wanted = static_cast<int>(additions_.size()) * (kAdditionWidth + kAdditionGap) + kAdditionGap;
  if (place.width >= wanted) {
    place.left += kAdditionGap;
  } else {
    place.left = left;
    place.top += place.height + kAdditionGap;
  }
  place.width = kAdditionWidth;
  for (Button* button : additions_) {
    button->SetPlace(place);
    place.left += kAdditionWidth + kAdditionGap;
  }
}

void SpdWindow::Print() {
  Copy();
  if (Rows().Clip() == kUntouchedClip) {
    SelectAll();
    Copy();
  }
  if (GetPlatform().PrintKeepingPageOpen(Rows().Clip(), true))
    Say("Printed; the page is finished by the next print or at exit");
}

std::string SpdWindow::FileBytes() {
  // A line is one quoted text of all columns, each followed by a tab. The heading is left out.
  std::string bytes;
  for (int row = 1; row < Rows().RowCount(); ++row) {
    bytes += '"';
    for (int column = 0; column < Rows().ColumnCount(); ++column) {
      bytes += Rows().Cell(row, column);
      bytes += '\t';
    }
    bytes += '"';
    bytes += kLineEnd;
  }
  return bytes;
}

void SpdWindow::SelectAll() {
  // From the row that is current, which a report leaves at the first one below the heading.
  Rows().Select(Rows().Row(), 0, std::max(Rows().RowCount() - 1, 0), Rows().ColumnCount() - 1);
}

}  // namespace vicetoll
