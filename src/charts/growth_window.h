// SPDX-License-Identifier: GPL-3.0-or-later
// The growth chart of the sin in front.
#pragma once

#include "charts/chart_window.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

class GrowthWindow : public ChartWindow {
 public:
  explicit GrowthWindow(Platform& platform);

  // Whoever listens to the chart hears the month that the cursor has come to.
  std::vector<const Control*> ResultsOf(const Control& by) const override;

  // Shows that sin as it stands now.
  void Follow(const SinWorkspace& ws);

 private:
  Platform& platform_;
};

}  // namespace vicetoll
