// SPDX-License-Identifier: GPL-3.0-or-later
// A window around a chart: the chart, and the buttons that take its picture along.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "base/platform.h"
#include "controls/chart.h"
#include "controls/form.h"

namespace vicetoll {

class ChartWindow : public Form {
 public:
  Chart& GetChart() const { return *chart_; }
  Button* CloseButton() const override { return buttons_.back(); }
  Control* FirstFocus() const override { return chart_; }

 protected:
  // `readoutName` is that of a label below the chart, empty if there is none. A window that exports has a
  // button for it, which whoever makes the window gives its action.
  ChartWindow(std::string_view name, std::string_view caption, std::string_view chartName,
              std::string_view readoutName, Platform& platform, bool exports = false);

  Label* readout_ = nullptr;

 private:
  void AddButton(std::string_view name, std::string_view caption, void (ChartWindow::*action)());
  void PlaceControls();
  void Copy();
  void SaveAs();
  void Print();
  void Exit() { Hide(); }
  void Guarded(const std::function<void()>& action) const;

  Platform& platform_;
  Chart* chart_ = nullptr;
  std::vector<Button*> buttons_;
  std::string filePath_;  // chosen last
};

// The format that a file's suffix asks for: ".svg", ".pdf", in any case, and else PNG.
PictureFormat PictureFormatOf(std::string_view path);

}  // namespace vicetoll
