// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_window.h"

#include <algorithm>

#include "reports/report_file.h"

namespace vicetoll {
namespace {

// Twips.
constexpr int kReportWidth = 9000;
constexpr int kReportLeft = 350, kReportTop = 200;
constexpr int kBesideReport = 800, kBelowReport = 2000;  // of the window's size, what the report leaves
constexpr int kButtonWidth = 1500, kButtonHeight = 500;
constexpr int kExitWidth = kButtonWidth + 50;

}  // namespace

ReportWindow::ReportWindow(const char* name, const char* caption, Workspaces& workspaces, ReportStyle style,
                           const Shape& shape)
    : Form(name, caption), workspaces_(workspaces), style_(style), shape_(shape) {}

void ReportWindow::Furnish(Control& report) {
  report_ = &report;
  cmdPrint_ = &AddButton("cmdPrint", "Print Results", [this] { Print(); });
  cmdSaveAs_ = &AddButton("cmdSaveAs", "File (Save As)", [this] { SaveAs(); });
  cmdPrint_->SetKeys("Ctrl+P");
  cmdSaveAs_->SetKeys("Ctrl+S");
  AddMenuEntry("cmdSelectAll", "Select All", [this] { SelectAll(); });
  AddMenuEntry("cmdCopy", "Copy", [this] { Copy(); });
  AddMore();
  cmdExit_ = &AddButton("cmdExit", "Exit", [this] { Exit(); });
  onResize = [this] { OnResize(); };
  Resize(kReportWidth, shape_.height);
  SetNextStep("Print or save what is selected, or everything; Exit closes the report");
}

Button& ReportWindow::AddButton(const char* name, const char* caption, std::function<void()> action) {
  Button& button = Add<Button>({name}, caption);
  button.onClick = std::move(action);
  return button;
}

void ReportWindow::AddMenuEntry(const char* name, const char* caption, std::function<void()> action) {
  Add<MenuEntry>({name}, caption).onClick = std::move(action);
}

void ReportWindow::PlaceControls() {
  const Place report{kReportLeft, kReportTop, Width() - kBesideReport, Height() - kBelowReport};
  const int top = report.top + report.height + shape_.buttonsGap;
  const int left = report.left + shape_.buttonsLeft;
  report_->SetPlace(report);
  cmdPrint_->SetPlace({left, top, kButtonWidth, kButtonHeight});
  cmdSaveAs_->SetPlace({left + kButtonWidth, top, kButtonWidth, kButtonHeight});
  cmdExit_->SetPlace({report.left + report.width - kExitWidth, top, kExitWidth, kButtonHeight});
  PlaceBeside(report.left, top);
}

Place ReportWindow::RoomBetweenButtons() const {
  const Place left = cmdSaveAs_->GetPlace(), right = cmdExit_->GetPlace();
  const int begin = left.left + left.width;
  return {begin, left.top, right.left - begin, left.height};
}

void ReportWindow::OnResize() {
  if (GetWindowState() == WindowState::Minimised) return;
  PlaceControls();
  Resize(std::max(Width(), shape_.smallestWidth), std::max(Height(), shape_.smallestHeight));
}

void ReportWindow::SaveAs() {
  const std::string bytes = FileBytes();
  SaveReport(GetPlatform(), filePath_, bytes);
  Say("Saved in " + filePath_);
}

void ReportWindow::Copy() { GetPlatform().SetClipboard(Selection()); }

void ReportWindow::Exit() {
  Leave();
  Hide();
  RestoreResultButtonsOfSin(workspaces_, style_);
}

}  // namespace vicetoll
