// SPDX-License-Identifier: GPL-3.0-or-later
// The growth chart of the sin in front.
#pragma once

#include "charts/chart_window.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

class GrowthWindow : public ChartWindow {
 public:
  explicit GrowthWindow(Platform& platform);

  // Shows that sin as it stands now.
  void Follow(const SinWorkspace& ws);

 private:
  Platform& platform_;
};

}  // namespace vicetoll
