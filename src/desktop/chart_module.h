// SPDX-License-Identifier: GPL-3.0-or-later
// Shows chart controls, with the module that draws them.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "controls/chart.h"
#include "desktop/chart_widget.h"
#include "desktop/control_view.h"

namespace vicetoll {

// The view of a chart. The module lies beside the program and is loaded by the first view; where it cannot
// be, the view says why.
std::unique_ptr<ControlView> MakeChartView(Chart& chart, QWidget* parent, Desktop& desktop);

// A chart on white as a picture in SVG, without a window. Throws Fault(File) with the reason if the module
// cannot be loaded.
std::string DrawChart(const ChartContents& contents);

// Paints a picture of a chart, in SVG, as large as it fits into the room. False if that cannot be done.
bool PaintPicture(QPainter& painter, const QRectF& room, std::string_view svg);

}  // namespace vicetoll
