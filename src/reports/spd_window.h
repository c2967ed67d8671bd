// SPDX-License-Identifier: GPL-3.0-or-later
// The spreadsheet results window: month rows in a grid, to read, print, save and copy.
#pragma once

#include <array>
#include <functional>
#include <string>

#include "controls/grid.h"
#include "reports/month_report.h"
#include "reports/report_window.h"

namespace vicetoll {

class SpdWindow : public ReportWindow {
 public:
  // One window serves all sins. Its caption speaks of smoking and never changes: the reports write their
  // titles into the document window's. There is no way out but cmdExit.
  explicit SpdWindow(Workspaces& workspaces);

  Grid& Rows() const { return *fgdAdvResultsSpd_; }

  // Told which report the grid shows, each time it is filled.
  std::function<void(SinWorkspace&, ReportScope)> onFilled;

 private:
  std::string Selection() const override { return Rows().Clip(); }
  void SelectAll() override;
  void Print() override;
  std::string FileBytes() override;
  void Leave() override { Rows().Clear(); }
  void AddMore() override;
  void PlaceBeside(int left, int top) override;

  Grid* fgdAdvResultsSpd_ = nullptr;
  std::array<Button*, 2> additions_{};
};

}  // namespace vicetoll
