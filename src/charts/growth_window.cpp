// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/growth_window.h"

#include "charts/chart_text.h"
#include "charts/growth_points.h"

namespace vicetoll {

GrowthWindow::GrowthWindow(Platform& platform)
    : ChartWindow("frmGrowth", "Growth Chart", "chtGrowth", "lblReadout", platform, true),
      platform_(platform) {
  GetChart().onCursor = [this] {
    const ChartContents& contents = GetChart().Contents();
    readout_->SetCaption(contents.Empty() ? contents.emptyText : Readout(contents, GetChart().Cursor()));
  };
}

std::vector<const Control*> GrowthWindow::ResultsOf(const Control& by) const {
  if (&by != &GetChart()) return {};
  return {readout_};
}

void GrowthWindow::Follow(const SinWorkspace& ws) {
  SetCaption("Growth Chart: " + std::string(ws.Sin().checkCaption));
  GetChart().SetContents(GrowthOf(ws, platform_.Now()));
}

}  // namespace vicetoll
