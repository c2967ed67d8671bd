// SPDX-License-Identifier: GPL-3.0-or-later
// The chart over all sins: the amounts of the table, as it shows them.
#pragma once

#include "charts/chart_window.h"
#include "charts/sins_points.h"

namespace vicetoll {

class SinsChartWindow : public ChartWindow {
 public:
  explicit SinsChartWindow(Platform& platform)
      : ChartWindow("frmSinsChart", "Chart of All Sins", "chtSins", {}, platform) {}

  void Follow(SinFigures figures, Currency currency) {
    GetChart().SetContents(SinBarsOf(std::move(figures), currency));
  }
};

}  // namespace vicetoll
