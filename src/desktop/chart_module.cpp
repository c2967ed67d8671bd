// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/chart_module.h"

#include <QLabel>

#include "base/fault.h"
#include "base/module.h"
#include "desktop/desktop.h"
#include "desktop/themes.h"

namespace vicetoll {
namespace {

// Of a picture for paper, in pixels: its letters come out as large as those around it.
constexpr QSize kDrawnSize{760, 380};

ChartStyle StyleIn(Theme theme) {
  return {.ground = Colour(Tone::BoxGround, theme),
          .text = Colour(Tone::Text, theme),
          .hint = Colour(Tone::Hint, theme),
          .grid = Colour(Tone::ChartGrid, theme),
          .outOfPocket = Colour(Tone::ChartLine1, theme),
          .withInterest = Colour(Tone::ChartLine2, theme),
          .focus = Colour(Tone::Focus, theme)};
}

constexpr const char* kChartModule = "charts";

std::string NotDrawn(const std::string& reason) { return "The chart cannot be drawn: " + reason + "."; }

class ChartView : public ControlView {
 public:
  ChartView(Chart& chart, ChartWidget* widget, Desktop& desktop)
      : ControlView(chart, widget), chart_(chart), widget_(widget) {
    // A picture is for paper and for the papers of others, whatever the theme here.
    chart.draw = [widget](PictureFormat format) { return widget->Picture(format, StyleIn(Theme::Light)); };
    widget->onPoint = [&chart, &desktop](int month) { desktop.Enter([&] { chart.UserPoints(month); }); };
    widget->onMove = [&chart, &desktop](int months) { desktop.Enter([&] { chart.UserMoves(months); }); };
  }
  ~ChartView() override { chart_.draw = nullptr; }

  void TakeTheme() override { Update(); }

 protected:
  void UpdateContents() override {
    widget_->SetStyle(StyleIn(CurrentTheme()));
    widget_->SetContents(chart_.Contents());
    widget_->SetCursorMonth(chart_.Cursor());
  }

 private:
  Chart& chart_;
  ChartWidget* widget_;
};

// What stands in the place of a chart that cannot be drawn.
class NoChartView : public ControlView {
 public:
  NoChartView(Chart& chart, QWidget* parent, const std::string& error)
      : ControlView(chart, new QLabel(QString::fromStdString(NotDrawn(error)), parent)), chart_(chart) {
    static_cast<QLabel*>(Widget())->setWordWrap(true);
    chart.draw = [error](PictureFormat) -> std::string { throw Fault(FaultKind::File, NotDrawn(error)); };
  }
  ~NoChartView() override { chart_.draw = nullptr; }

 protected:
  void UpdateContents() override {}

 private:
  Chart& chart_;
};

}  // namespace

std::unique_ptr<ControlView> MakeChartView(Chart& chart, QWidget* parent, Desktop& desktop) {
  std::string error;
  const auto make = FromModule<MakeChartWidgetFunction>(kChartModule, kMakeChartWidget, error);
  if (make == nullptr) return std::make_unique<NoChartView>(chart, parent, error);
  return std::make_unique<ChartView>(chart, make(parent), desktop);
}

std::string DrawChart(const ChartContents& contents) {
  std::string error;
  const auto make = FromModule<MakeChartWidgetFunction>(kChartModule, kMakeChartWidget, error);
  if (make == nullptr) throw Fault(FaultKind::File, NotDrawn(error));
  const std::unique_ptr<ChartWidget> widget(make(nullptr));
  widget->resize(kDrawnSize);
  widget->SetStyle(StyleIn(Theme::Light));
  widget->SetContents(contents);
  return widget->Picture(PictureFormat::Svg, StyleIn(Theme::Light));
}

bool PaintPicture(QPainter& painter, const QRectF& room, std::string_view svg) {
  std::string error;
  const auto paint = FromModule<PaintSvgFunction>(kChartModule, kPaintSvg, error);
  return paint != nullptr && paint(painter, room, QByteArray(svg.data(), static_cast<qsizetype>(svg.size())));
}

}  // namespace vicetoll
