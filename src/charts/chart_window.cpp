// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/chart_window.h"

#include <algorithm>

#include "base/fault.h"
#include "base/file_suffix.h"
#include "charts/chart_text.h"

namespace vicetoll {
namespace {

// Twips.
constexpr int kWidth = 13500, kHeight = 9000;
constexpr int kSmallestWidth = 9000, kSmallestHeight = 5500;
constexpr int kMargin = 150;
constexpr int kReadoutHeight = 375;
constexpr int kButtonWidth = 2000, kButtonHeight = 500, kGap = 100;

}  // namespace

ChartWindow::ChartWindow(std::string_view name, std::string_view caption, std::string_view chartName,
                         std::string_view readoutName, Platform& platform, bool exports)
    : Form(name, caption), platform_(platform) {
  chart_ = &Add<Chart>({std::string(chartName)});
  if (!readoutName.empty()) readout_ = &Add<Label>({std::string(readoutName)}, "");
  AddButton("cmdCopy", "Copy Picture", &ChartWindow::Copy);
  AddButton("cmdSaveAs", "Save Picture\x85", &ChartWindow::SaveAs);
  AddButton("cmdPrint", "Print", &ChartWindow::Print);
  if (exports) {
    buttons_.push_back(&Add<Button>({"cmdExport"}, kExportCaption));
    buttons_.back()->SetKeys(kExportKeys);
  }
  AddButton("cmdExit", "Close", &ChartWindow::Exit);
  onResize = [this] {
    if (GetWindowState() == WindowState::Minimised) return;
    PlaceControls();
    Resize(std::max(Width(), kSmallestWidth), std::max(Height(), kSmallestHeight));
  };
  Resize(kWidth, kHeight);
}

void ChartWindow::AddButton(std::string_view name, std::string_view caption, void (ChartWindow::*action)()) {
  Button& button = Add<Button>({std::string(name)}, caption);
  button.onClick = [this, action] { (this->*action)(); };
  buttons_.push_back(&button);
}

// The buttons stand in a row at the foot, narrower where there is little room, the last one at its right end.
void ChartWindow::PlaceControls() {
  const int width = Width() - 2 * kMargin;
  const int row = Height() - kMargin - kButtonHeight;
  int bottom = row - kGap;
  if (readout_ != nullptr) {
    bottom -= kReadoutHeight;
    readout_->SetPlace({kMargin, bottom, width, kReadoutHeight});
    bottom -= kGap;
  }
  chart_->SetPlace({kMargin, kMargin, width, bottom - kMargin});
  const int count = static_cast<int>(buttons_.size());
  const int each = std::min(kButtonWidth, (width - (count - 1) * kGap) / count);
  int left = kMargin;
  for (Button* button : buttons_) {
    if (button == buttons_.back()) left = kMargin + width - each;
    button->SetPlace({left, row, each, kButtonHeight});
    left += each + kGap;
  }
}

// A picture is not worth a run: the user is told why there is none and goes on.
void ChartWindow::Guarded(const std::function<void()>& action) const {
  try {
    action();
  } catch (const Fault& fault) {
    platform_.ShowFileMessage(fault.what(), MessageButtons::Ok);
  }
}

void ChartWindow::Copy() {
  Guarded([this] {
    platform_.SetClipboardPicture(chart_->Picture(PictureFormat::Png), TabSeparated(chart_->Contents()));
  });
}

void ChartWindow::SaveAs() {
  const auto chosen = platform_.AskSavePath(filePath_);
  if (!chosen || chosen->empty()) return;
  filePath_ = *chosen;
  Guarded([this] {
    platform_.WriteFile(filePath_, chart_->Picture(PictureFormatOf(filePath_)));
    Say("Saved in " + filePath_);
  });
}

void ChartWindow::Print() {
  Guarded([this] {
    platform_.PrintPicture(chart_->Picture(PictureFormat::Svg), TabSeparated(chart_->Contents()));
  });
}

PictureFormat PictureFormatOf(std::string_view path) {
  if (HasSuffix(path, ".svg")) return PictureFormat::Svg;
  if (HasSuffix(path, ".pdf")) return PictureFormat::Pdf;
  return PictureFormat::Png;
}

}  // namespace vicetoll
