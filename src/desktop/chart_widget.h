// SPDX-License-Identifier: GPL-3.0-or-later
// A widget that draws a chart. What draws it is a module of its own, loaded when the first chart is shown: a
// program that shows none does not pay for it.
#pragma once

#include <QColor>
#include <QWidget>
#include <functional>
#include <string>

#include "controls/chart.h"

namespace vicetoll {

// The colours of a chart. The two lines also differ in dash, and can be told apart by the colour-blind.
struct ChartStyle {
  QColor ground, text, hint, grid;
  QColor outOfPocket, withInterest;  // lines and bars
  QColor focus;                      // the ring while the chart has the focus

  bool operator==(const ChartStyle&) const = default;
};

class ChartWidget : public QWidget {
 public:
  using QWidget::QWidget;

  // Draws what differs from what is drawn.
  virtual void SetStyle(const ChartStyle& style) = 0;
  virtual void SetContents(const ChartContents& contents) = 0;
  virtual void SetCursorMonth(int month) = 0;

  // What is seen, without the cursor, as the bytes of a file: PNG in twice as many pixels. In the style
  // given.
  virtual std::string Picture(PictureFormat format, const ChartStyle& style) const = 0;

  // What stands on the plot, read off it: months with their amounts, bands and labels, or bars.
  virtual ChartContents Plotted() const = 0;

  // The months in view, by their places, both ends in it. The user zooms; all of them is where it starts.
  struct Span {
    int first = 0, last = 0;
    bool operator==(const Span&) const = default;
  };
  virtual Span MonthsInView() const = 0;
  // Whether there are months to zoom into: more than one.
  virtual bool ZoomsInTime() const = 0;
  // Where a month stands on the widget.
  virtual QPoint PointOf(int month) const = 0;

  // The user points at a month, or moves the cursor on by so many.
  std::function<void(int month)> onPoint;
  std::function<void(int months)> onMove;
};

// What the module offers, each under its name: a widget, and painting a picture in SVG as large as it fits
// into the room. The latter returns whether the bytes are such a picture.
using MakeChartWidgetFunction = ChartWidget* (*)(QWidget* parent);
inline constexpr const char* kMakeChartWidget = "MakeChartWidget";
using PaintSvgFunction = bool (*)(QPainter& painter, const QRectF& room, const QByteArray& svg);
inline constexpr const char* kPaintSvg = "PaintSvg";

}  // namespace vicetoll
