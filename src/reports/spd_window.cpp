#include "reports/spd_window.h"

#include <algorithm>

#include "reports/report_columns.h"
#include "reports/report_file.h"
#include "reports/result_buttons.h"

namespace vicetoll {
namespace {

// Twips.
constexpr int kWidth = 9000, kHeight = 7845;
constexpr int kSmallest = 5500;  // in both directions
constexpr int kGridLeft = 350, kGridTop = 200;
constexpr int kBesideGrid = 800, kBelowGrid = 2000;  // of the window's size, what the grid leaves
constexpr int kButtonWidth = 1500, kButtonHeight = 500;

// What the grid's selection reads while nobody has selected anything: the first cell of a report.
constexpr std::string_view kUntouchedClip = "1 ";

}  // namespace

SpdWindow::SpdWindow(Workspaces& workspaces)
    : Form("frmAdvResultsSpd", "Advanced Smoking Results - SpreadSheet Style"), workspaces_(workspaces) {
  Design();
  onResize = [this] { OnResize(); };
  Resize(kWidth, kHeight);
}

void SpdWindow::Design() {
  fgdAdvResultsSpd_ = &Add<Grid>({"fgdAdvResultsSpd"}, kReportColumnCount);
  const auto connect = [this](Button& button, void (SpdWindow::*action)()) {
    button.onClick = [this, action] { (this->*action)(); };
    return &button;
  };
  cmdPrint_ = connect(Add<Button>({"cmdPrint"}, "Print Results"), &SpdWindow::Print);
  cmdSaveAs_ = connect(Add<Button>({"cmdSaveAs"}, "File (Save As)"), &SpdWindow::SaveAs);
  cmdExit_ = connect(Add<Button>({"cmdExit"}, "Exit"), &SpdWindow::Exit);
  connect(Add<MenuEntry>({"cmdSelectAll"}, "Select All"), &SpdWindow::SelectAll);
  connect(Add<MenuEntry>({"cmdCopy"}, "Copy"), &SpdWindow::Copy);
}

void SpdWindow::PlaceControls() {
  const Place grid{kGridLeft, kGridTop, Width() - kBesideGrid, Height() - kBelowGrid};
  const int top = grid.top + grid.height + 100;
  fgdAdvResultsSpd_->SetPlace(grid);
  cmdPrint_->SetPlace({grid.left, top, kButtonWidth, kButtonHeight});
  cmdSaveAs_->SetPlace({grid.left + kButtonWidth, top, kButtonWidth, kButtonHeight});
  cmdExit_->SetPlace({grid.left + grid.width - 1550, top, kButtonWidth + 50, kButtonHeight});
}

void SpdWindow::OnResize() {
  if (GetWindowState() == WindowState::Minimised) return;
  PlaceControls();
  Resize(std::max(Width(), kSmallest), std::max(Height(), kSmallest));
}

void SpdWindow::Print() {
  Platform& platform = workspaces_.GetSession().platform;
  platform.SetClipboard(Rows().Clip());
  if (Rows().Clip() == kUntouchedClip) {
    SelectAll();
    Copy();
  }
  platform.PrintKeepingPageOpen(Rows().Clip(), true);
}

void SpdWindow::SaveAs() {
  // A line is one quoted text of all eleven columns, each followed by a tab. The heading is left out.
  std::string bytes;
  for (int row = 1; row < Rows().RowCount(); ++row) {
    bytes += '"';
    for (int column = 0; column < Rows().ColumnCount(); ++column) {
      bytes += Rows().Cell(row, column);
      bytes += '\t';
    }
    bytes += "\"\r\n";
  }
  SaveReport(workspaces_.GetSession().platform, filePath_, bytes);
}

void SpdWindow::SelectAll() {
  // From the row that is current, which a report leaves at the first one below the heading.
  Rows().Select(Rows().Row(), 0, std::max(Rows().RowCount() - 1, 0), Rows().ColumnCount() - 1);
}

void SpdWindow::Copy() { workspaces_.GetSession().platform.SetClipboard(Rows().Clip()); }

void SpdWindow::Exit() {
  Rows().Clear();
  Hide();
  RestoreResultButtonsOfSin(workspaces_, ReportStyle::Spreadsheet);
}

}  // namespace vicetoll
