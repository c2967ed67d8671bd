// SPDX-License-Identifier: GPL-3.0-or-later
// Draws charts with QCustomPlot. Nothing else of the program knows that library.
#include <qcustomplot.h>

#include <QBuffer>
#include <QPageSize>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cmath>

#include "calendar/date_label.h"
#include "charts/chart_text.h"
#include "desktop/chart_widget.h"
#include "desktop/text.h"
#include "desktop/zoom_input.h"

namespace vicetoll {
namespace {

// Pixels, where letters are as high as those of the design.
constexpr double kDesignLetters = 12;
constexpr double kLineWidth = 2.2;
constexpr int kHatchStep = 9;
constexpr int kEndGap = 8;          // between the end of a line and its amount
constexpr int kNameMargin = 4;      // around a band's name
constexpr int kAxisPadding = 10;    // beyond the labels of an axis
constexpr int kTitleTop = 8;        // above the title
constexpr int kTitleBottom = 6;     // and below it
constexpr int kLeastMargin = 15;    // on the other sides of the plot
constexpr int kTickGap = 26;        // between the labels of the months' axis
constexpr int kBesideAxis = 170;    // about what the months' axis leaves to amounts on both sides
constexpr int kLeastDrag = 5;       // a shorter drag is a click
constexpr double kHeadroom = 1.12;  // above the highest amount, where the bands have their names

constexpr int kLeastMonths = 4;  // in view
constexpr int kMonthsOfAYear = 12;

// A length as it is on a plot of larger letters; smaller ones leave it as it is.
double Scaled(const QCustomPlot& plot, double pixels) {
  return pixels * std::max(1.0, QFontInfo(plot.font()).pixelSize() / kDesignLetters);
}
int ScaledToPixel(const QCustomPlot& plot, double pixels) {
  return static_cast<int>(std::lround(Scaled(plot, pixels)));
}

QColor Faint(QColor colour, double opacity) {
  colour.setAlphaF(static_cast<float>(opacity));
  return colour;
}

// The value within bounds; the lower one where there is no room between them, as in a window not laid out
// yet.
double Between(double value, double lower, double upper) { return std::max(lower, std::min(value, upper)); }

// ---- Axes ----

// Marks at the beginning of months, years, decades, whatever there is room for.
class MonthTicker : public QCPAxisTicker {
 public:
  void SetMonths(const std::vector<ChartMonth>& months) {
    months_.clear();
    for (const ChartMonth& month : months)
      months_.push_back({ToQt(month.label), MonthNumberFromLabel(month.label), YearFromLabel(month.label)});
  }
  explicit MonthTicker(const QCustomPlot& plot) : plot_(plot) {
    const QFontMetrics metrics(plot.font());
    monthWidth_ = metrics.horizontalAdvance(QStringLiteral("Mmm - 0000")) + ScaledToPixel(plot, kTickGap);
    yearWidth_ = metrics.horizontalAdvance(QStringLiteral("0000")) + ScaledToPixel(plot, kTickGap);
  }
  QString LabelOf(int month) const { return months_.at(static_cast<std::size_t>(month)).label; }

  void generate(const QCPRange& range, const QLocale&, QChar, int, QVector<double>& ticks,
                QVector<double>* subTicks, QVector<QString>* labels) override {
    ticks.clear();
    if (subTicks != nullptr) subTicks->clear();
    if (labels != nullptr) labels->clear();
    const int first = std::max(0, static_cast<int>(std::ceil(range.lower)));
    const int last = std::min(static_cast<int>(months_.size()) - 1, static_cast<int>(range.upper));
    const int step = StepFor(last - first + 1);
    for (int i = first; i <= last; ++i) {
      if (!IsMark(months_[i], step)) continue;
      ticks.append(i);
      if (labels != nullptr)
        labels->append(step < kMonthsOfAYear ? months_[i].label : QString::number(months_[i].year));
    }
    if (!ticks.isEmpty() || last < first) return;
    ticks.append(first);
    if (labels != nullptr) labels->append(months_[first].label);
  }

 private:
  struct Month {
    QString label;
    int month, year;
  };

  // Months between marks.
  int StepFor(int months) const {
    constexpr int kSteps[] = {1, 2, 3, 6, 12, 24, 60, 120, 240, 600, 1200};
    // The axis does not know its own width yet.
    const int room = plot_.viewport().width() - ScaledToPixel(plot_, kBesideAxis);
    for (const int step : kSteps)
      if (months * (step < kMonthsOfAYear ? monthWidth_ : yearWidth_) <= step * room) return step;
    return std::end(kSteps)[-1];
  }
  static bool IsMark(const Month& month, int step) {
    if (step < kMonthsOfAYear) return (month.month - 1) % step == 0;
    return month.month == 1 && month.year % (step / kMonthsOfAYear) == 0;
  }

  std::vector<Month> months_;
  const QCustomPlot& plot_;
  int monthWidth_ = 1, yearWidth_ = 1;
};

class MoneyTicker : public QCPAxisTicker {
 public:
  void SetCurrency(Currency currency) { currency_ = currency; }

 protected:
  QVector<double> createTickVector(double step, const QCPRange& range) override {
    step_ = step;
    largest_ = std::max(std::abs(range.lower), std::abs(range.upper));
    return QCPAxisTicker::createTickVector(step, range);
  }
  QString getTickLabel(double tick, const QLocale&, QChar, int) override {
    // What is left of a sum of steps is no amount.
    const double value = std::abs(tick) < step_ / 1000 ? 0 : tick;
    return ToQt(AxisAmount(currency_, value, largest_, step_));
  }

 private:
  Currency currency_ = Currency::Dollar;
  double step_ = 1, largest_ = 1;
};

// ---- What stands on the plot beside lines and bars ----

// An item that takes no clicks and has the place of its plot's axes.
class PlotItem : public QCPAbstractItem {
 public:
  using QCPAbstractItem::QCPAbstractItem;
  double selectTest(const QPointF&, bool, QVariant*) const override { return -1; }

 protected:
  QRectF Area() const { return QRectF(mParentPlot->axisRect()->rect()); }
  double X(double month) const { return mParentPlot->xAxis->coordToPixel(month); }
  double Y(double amount) const { return mParentPlot->yAxis->coordToPixel(amount); }
  double Length(double pixels) const { return Scaled(*mParentPlot, pixels); }
};

class BandItem : public PlotItem {
 public:
  BandItem(QCustomPlot* plot, const ChartBand& band, const ChartStyle& style, bool tinted)
      : PlotItem(plot), band_(band), style_(style), tinted_(tinted) {}

  const ChartBand& Band() const { return band_; }

 protected:
  void draw(QCPPainter* painter) override {
    const QRectF room =
        QRectF(QPointF(X(band_.first - 0.5), Area().top()), QPointF(X(band_.last + 0.5), Area().bottom()))
            .intersected(Area());
    if (room.width() <= 0) return;
    if (tinted_) painter->fillRect(room, Faint(style_.text, 0.06));
    if (band_.kind == ChartMonthKind::Disabled || band_.kind == ChartMonthKind::Gap) Hatch(*painter, room);
    DrawName(*painter, room);
  }

 private:
  // Line by line: not every kind of picture file knows hatched brushes or clipping.
  void Hatch(QCPPainter& painter, const QRectF& room) const {
    painter.setPen(QPen(Faint(style_.hint, 0.35), Length(1)));
    const double height = room.height();
    const int lines = static_cast<int>(std::ceil((room.width() + height) / Length(kHatchStep)));
    for (int i = 0; i < lines; ++i) {
      const double x = room.left() - height + i * Length(kHatchStep);
      // From the lower end at x upwards to the right, as far as it lies in the room.
      const double from = std::max(x, room.left()), to = std::min(x + height, room.right());
      if (from < to)
        painter.drawLine(QPointF(from, room.bottom() - (from - x)), QPointF(to, room.bottom() - (to - x)));
    }
  }
  // In full, or as much of it as there is room for.
  void DrawName(QCPPainter& painter, const QRectF& room) const {
    const QString full = ToQt(band_.name);
    if (full.isEmpty()) return;
    const QString brief = QString(full).remove(QStringLiteral("Period "));
    const QString off = band_.kind == ChartMonthKind::Disabled ? QStringLiteral(" (disabled)") : QString();
    painter.setFont(mParentPlot->font());
    const QFontMetrics metrics(painter.font());
    for (const QString& name : {full + off, brief + off, brief, brief.section(u' ', -1)}) {
      const QRectF text(room.left(), room.top() + Length(kNameMargin), room.width(), metrics.height());
      if (metrics.horizontalAdvance(name) + 2 * kNameMargin > text.width()) continue;
      painter.setPen(style_.hint);
      painter.drawText(text, Qt::AlignHCenter, name);
      return;
    }
  }

  ChartBand band_;
  ChartStyle style_;
  bool tinted_;
};

// The present month: a line with its name at the foot.
class PresentItem : public PlotItem {
 public:
  PresentItem(QCustomPlot* plot, int month, const ChartStyle& style)
      : PlotItem(plot), month_(month), style_(style) {}
  int Month() const { return month_; }

 protected:
  void draw(QCPPainter* painter) override {
    const double x = X(month_);
    if (x < Area().left() || x > Area().right()) return;
    painter->setPen(QPen(style_.hint, Length(1), Qt::DotLine));
    const QFontMetrics metrics(mParentPlot->font());
    const double top = Area().top() + Length(2 * kNameMargin) + 2 * metrics.height();
    painter->drawLine(QPointF(x, top), QPointF(x, Area().bottom()));
    const QString now = QStringLiteral("now");
    const double width = metrics.horizontalAdvance(now) + 2;
    const double left = Between(x - width / 2, Area().left(), Area().right() - width);
    const QRectF room(left, top - metrics.height(), width, metrics.height());
    painter->fillRect(room, style_.ground);  // no line goes through it
    painter->setFont(mParentPlot->font());
    painter->setPen(style_.text);
    painter->drawText(room, Qt::AlignCenter, now);
  }

 private:
  int month_;
  ChartStyle style_;
};

// The amounts at the ends of the lines, in the margin beside them.
class EndItem : public PlotItem {
 public:
  struct End {
    QString name, amount;
    double value = 0;
    QColor colour;
  };

  EndItem(QCustomPlot* plot, int month, std::array<End, 2> ends, const ChartStyle& style)
      : PlotItem(plot), month_(month), ends_(std::move(ends)), style_(style) {
    setClipToAxisRect(false);
  }
  int Width() const {
    const QFontMetrics metrics(mParentPlot->font());
    int width = 0;
    for (const End& end : ends_)
      for (const QString& text : {end.name, end.amount})
        width = std::max(width, metrics.horizontalAdvance(text));
    return width + ScaledToPixel(*mParentPlot, kEndGap);
  }

 protected:
  void draw(QCPPainter* painter) override {
    if (!mParentPlot->xAxis->range().contains(month_)) return;
    const QFontMetrics metrics(mParentPlot->font());
    const double height = 2 * metrics.height() + 4;
    // The higher one first; the other makes room for it.
    const bool swap = ends_[0].value > ends_[1].value;
    const End& upper = swap ? ends_[0] : ends_[1];
    const End& lower = swap ? ends_[1] : ends_[0];
    const double lowest = Area().bottom() - height;
    const double upperTop = Between(Y(upper.value) - height / 2, Area().top() - height / 2, lowest - height);
    const double lowerTop = Between(Y(lower.value) - height / 2, upperTop + height, lowest);
    for (const auto& [end, top] : {std::pair(&upper, upperTop), std::pair(&lower, lowerTop)}) {
      const QRectF room(Area().right() + Length(kEndGap), top, Width(), height);
      painter->setFont(mParentPlot->font());
      painter->setPen(end->colour);
      painter->drawText(room, Qt::AlignLeft | Qt::AlignTop, end->name);
      painter->setPen(style_.text);
      painter->drawText(room.adjusted(0, metrics.height(), 0, 0), Qt::AlignLeft | Qt::AlignTop, end->amount);
    }
  }

 private:
  int month_;
  std::array<End, 2> ends_;
  ChartStyle style_;
};

// The cursor: a line through a month, and a dot on each curve.
class CursorItem : public PlotItem {
 public:
  using PlotItem::PlotItem;
  void Put(int month, std::array<double, 2> amounts, std::array<QColor, 2> colours, const QColor& line) {
    month_ = month;
    amounts_ = amounts;
    colours_ = colours;
    line_ = line;
  }

 protected:
  void draw(QCPPainter* painter) override {
    if (month_ < 0 || !mParentPlot->xAxis->range().contains(month_)) return;
    painter->setPen(QPen(line_, Length(1)));
    painter->drawLine(QPointF(X(month_), Area().top()), QPointF(X(month_), Area().bottom()));
    for (std::size_t i = 0; i < amounts_.size(); ++i) {
      painter->setBrush(colours_[i]);
      painter->drawEllipse(QPointF(X(month_), Y(amounts_[i])), Length(4), Length(4));
    }
  }

 private:
  int month_ = -1;
  std::array<double, 2> amounts_{};
  std::array<QColor, 2> colours_;
  QColor line_;
};

// ---- The two kinds of charts ----

// A chart on a plot that was empty before.
class Scene {
 public:
  explicit Scene(QCustomPlot& plot, const ChartContents& contents, const ChartStyle& style)
      : plot_(plot), contents_(contents), style_(style) {
    plot_.setBackground(style.ground);
    StyleAxis(*plot_.xAxis);
    StyleAxis(*plot_.yAxis);
    auto* title = new QCPTextElement(&plot_, ToQt(contents.title));
    title->setTextColor(style.text);
    title->setFont(plot_.font());
    title->setMargins({0, Length(kTitleTop), 0, 0});
    const int side = Length(kLeastMargin);
    plot_.axisRect()->setMinimumMargins({side, Length(kTitleBottom), side, side});
    plot_.plotLayout()->insertRow(0);
    plot_.plotLayout()->addElement(0, 0, title);
  }
  virtual ~Scene() = default;

  virtual ChartContents Plotted() const = 0;
  virtual ChartWidget::Span InView() const { return {}; }
  virtual void SetInView(ChartWidget::Span) {}
  virtual void SetCursor(int) {}
  virtual int MonthAt(double) const { return -1; }
  virtual QPoint PointOf(int) const { return {}; }

 protected:
  int Length(double pixels) const { return ScaledToPixel(plot_, pixels); }
  void StyleAxis(QCPAxis& axis) const {
    axis.setPadding(Length(kAxisPadding));
    axis.setTickLabelPadding(Length(axis.tickLabelPadding()));
    axis.setBasePen(style_.hint);
    axis.setTickPen(style_.hint);
    axis.setSubTicks(false);
    axis.setTickLabelColor(style_.text);
    axis.setTickLabelFont(plot_.font());
    axis.grid()->setPen(QPen(style_.grid, 1, Qt::SolidLine));
    axis.grid()->setZeroLinePen(QPen(style_.hint, 1));
  }

  QCustomPlot& plot_;
  ChartContents contents_;
  ChartStyle style_;
};

// Nothing to draw: it says so.
class WordsItem : public PlotItem {
 public:
  WordsItem(QCustomPlot* plot, const QString& words, const ChartStyle& style)
      : PlotItem(plot), words_(words), style_(style) {
    setClipToAxisRect(false);
  }

 protected:
  void draw(QCPPainter* painter) override {
    const QRect all = mParentPlot->viewport();
    painter->setFont(mParentPlot->font());
    painter->setPen(style_.text);
    painter->drawText(all.adjusted(all.width() / 8, 0, -all.width() / 8, 0),
                      Qt::AlignCenter | Qt::TextWordWrap, words_);
  }

 private:
  QString words_;
  ChartStyle style_;
};

class EmptyScene : public Scene {
 public:
  EmptyScene(QCustomPlot& plot, const ChartContents& contents, const ChartStyle& style)
      : Scene(plot, contents, style) {
    for (QCPAxis* axis : {plot.xAxis, plot.yAxis}) {
      axis->setVisible(false);
      axis->grid()->setVisible(false);
    }
    new WordsItem(&plot, ToQt(contents.emptyText), style);
  }
  ChartContents Plotted() const override { return {}; }
};

class MonthScene : public Scene {
 public:
  MonthScene(QCustomPlot& plot, const ChartContents& contents, const ChartStyle& style)
      : Scene(plot, contents, style) {
    monthTicker_->SetMonths(contents_.months);
    moneyTicker_->SetCurrency(contents_.currency);
    plot.xAxis->setTicker(monthTicker_);
    plot.yAxis->setTicker(moneyTicker_);
    plot.xAxis->grid()->setVisible(false);
    MakeBands();
    MakeLines();
    MakeEnds();
    plot.addLayer(QStringLiteral("cursor"), plot.layer(QStringLiteral("overlay")));
    plot.layer(QStringLiteral("cursor"))->setMode(QCPLayer::lmBuffered);
    cursor_ = new CursorItem(&plot);
    cursor_->setLayer(QStringLiteral("cursor"));
    MonthScene::SetInView({0, Count() - 1});
  }

  ChartWidget::Span InView() const override { return inView_; }
  void SetInView(ChartWidget::Span span) override {
    const int least = std::min(kLeastMonths, Count());
    int months = std::clamp(span.last - span.first + 1, least, Count());
    span.first = std::clamp(span.first, 0, Count() - months);
    span.last = span.first + months - 1;
    inView_ = span;
    plot_.xAxis->setRange(span.first - 0.5, span.last + 0.5);
    double low = 0, high = 0;
    for (int i = span.first; i <= span.last; ++i) {
      const ChartMonth& month = contents_.months[i];
      low = std::min({low, month.outOfPocket, month.withInterest});
      high = std::max({high, month.outOfPocket, month.withInterest});
    }
    if (low == 0 && high == 0) high = 1;
    plot_.yAxis->setRange(low * kHeadroom, high * kHeadroom);
  }

  void SetCursor(int month) override {
    if (month < 0 || month >= Count()) return;
    const ChartMonth& shown = contents_.months[month];
    cursor_->Put(month, {shown.outOfPocket, shown.withInterest}, {style_.outOfPocket, style_.withInterest},
                 style_.text);
    plot_.layer(QStringLiteral("cursor"))->replot();
  }

  int MonthAt(double x) const override {
    return std::clamp(static_cast<int>(std::lround(plot_.xAxis->pixelToCoord(x))), inView_.first,
                      inView_.last);
  }
  QPoint PointOf(int month) const override {
    return QPointF(plot_.xAxis->coordToPixel(month),
                   plot_.yAxis->coordToPixel(contents_.months.at(month).withInterest))
        .toPoint();
  }

  ChartContents Plotted() const override {
    ChartContents seen;
    for (int i = 0; i < plot_.itemCount(); ++i) {
      if (const auto* present = dynamic_cast<PresentItem*>(plot_.item(i))) seen.present = present->Month();
      const auto* item = dynamic_cast<BandItem*>(plot_.item(i));
      if (item == nullptr) continue;
      const ChartBand& band = item->Band();
      seen.bands.push_back(band);
      const bool ahead = band.kind == ChartMonthKind::Ahead;
      for (int m = band.first; m <= band.last; ++m)
        seen.months.push_back({FromQt(monthTicker_->LabelOf(m)), band.kind, band.side, band.period,
                               AmountAt(*(ahead ? costAhead_ : cost_), m),
                               AmountAt(*(ahead ? grownAhead_ : grown_), m)});
    }
    return seen;
  }

 private:
  int Count() const { return static_cast<int>(contents_.months.size()); }

  static double AmountAt(const QCPGraph& graph, int month) {
    return graph.data()->findBegin(month, false)->value;
  }

  void MakeBands() {
    plot_.addLayer(QStringLiteral("bands"), plot_.layer(QStringLiteral("background")));
    plot_.addLayer(QStringLiteral("present"), plot_.layer(QStringLiteral("grid")));
    bool tinted = false;
    for (const ChartBand& band : contents_.bands) {
      const bool active = band.kind == ChartMonthKind::Active;
      if (active) tinted = !tinted;
      (new BandItem(&plot_, band, style_, active && tinted))->setLayer(QStringLiteral("bands"));
    }
    if (contents_.present >= 0)
      (new PresentItem(&plot_, contents_.present, style_))->setLayer(QStringLiteral("present"));
  }

  QCPGraph* MakeLine(const QColor& colour, const QList<qreal>& dashes) {
    QCPGraph* line = plot_.addGraph();
    QPen pen(colour, Scaled(plot_, kLineWidth));
    if (!dashes.isEmpty()) pen.setDashPattern(dashes);
    pen.setCapStyle(Qt::FlatCap);
    line->setPen(pen);
    return line;
  }

  void MakeLines() {
    cost_ = MakeLine(style_.outOfPocket, {5, 1.5});
    grown_ = MakeLine(style_.withInterest, {});
    costAhead_ = MakeLine(style_.outOfPocket, {1.5, 2.5});
    grownAhead_ = MakeLine(style_.withInterest, {3, 2.5});
    QVector<double> places[2], costs[2], amounts[2];
    for (int i = 0; i < Count(); ++i) {
      const ChartMonth& month = contents_.months[i];
      const bool ahead = month.kind == ChartMonthKind::Ahead;
      // What lies ahead begins where the report ends.
      if (ahead && places[1].isEmpty() && !places[0].isEmpty()) {
        places[1].append(places[0].last());
        costs[1].append(costs[0].last());
        amounts[1].append(amounts[0].last());
      }
      places[ahead].append(i);
      costs[ahead].append(month.outOfPocket);
      amounts[ahead].append(month.withInterest);
    }
    cost_->setData(places[0], costs[0], true);
    grown_->setData(places[0], amounts[0], true);
    costAhead_->setData(places[1], costs[1], true);
    grownAhead_->setData(places[1], amounts[1], true);
    for (const auto& [line, base] : {std::pair(grown_, cost_), std::pair(grownAhead_, costAhead_)}) {
      line->setBrush(Faint(style_.withInterest, line == grown_ ? 0.14 : 0.06));
      line->setChannelFillGraph(base);
    }
    if (places[0].size() == 1)
      for (QCPGraph* line : {cost_, grown_})
        line->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, line->pen().color(), Length(9)));
  }

  void MakeEnds() {
    const ChartMonth& last = contents_.months.back();
    const auto end = [&](const char* name, double value, const QColor& colour) {
      return EndItem::End{QString::fromLatin1(name), ToQt(EndAmount(contents_.currency, value)), value,
                          colour};
    };
    auto* ends = new EndItem(&plot_, Count() - 1,
                             {end("Out of pocket", last.outOfPocket, style_.outOfPocket),
                              end("With interest", last.withInterest, style_.withInterest)},
                             style_);
    QCPAxisRect* area = plot_.axisRect();
    area->setAutoMargins(QCP::msLeft | QCP::msTop | QCP::msBottom);
    area->setMargins(QMargins(0, 0, ends->Width() + Length(kAxisPadding), 0));
  }

  QSharedPointer<MonthTicker> monthTicker_{new MonthTicker(plot_)};
  QSharedPointer<MoneyTicker> moneyTicker_{new MoneyTicker};
  QCPGraph *cost_ = nullptr, *grown_ = nullptr, *costAhead_ = nullptr, *grownAhead_ = nullptr;
  CursorItem* cursor_ = nullptr;
  ChartWidget::Span inView_;
};

class BarScene : public Scene {
 public:
  BarScene(QCustomPlot& plot, const ChartContents& contents, const ChartStyle& style)
      : Scene(plot, contents, style) {
    plot.yAxis->setRangeReversed(true);
    plot.yAxis->grid()->setVisible(false);
    plot.yAxis->setTicker(captions_);
    moneyTicker_->SetCurrency(contents.currency);
    plot.xAxis->setTicker(moneyTicker_);
    MakeStacks();
    double longest = 0, least = 0;
    for (int i = 0; i < static_cast<int>(contents_.bars.size()); ++i)
      AddBar(i, contents_.bars[i], longest, least);
    // The total stands apart.
    AddBar(TotalPlace(), contents_.total, longest, least);
    plot.xAxis->setRange(least * kHeadroom, longest > 0 ? longest * 1.18 : 1);
    plot.yAxis->setRange(-0.7, TotalPlace() + 0.7);
    MakeLegend();
  }

  ChartContents Plotted() const override {
    ChartContents seen;
    for (const auto& [place, caption] : captions_->ticks().toStdMap()) {
      const auto at = [place = place](const QCPBars* bars) {
        return bars->data()->findBegin(place, false)->value;
      };
      ChartBar bar{FromQt(caption), at(pastOut_), at(pastWith_), at(futureOut_), at(futureWith_)};
      bar.combinedOut = bar.pastOut + bar.futureOut;
      bar.combinedWith = bar.pastWith + bar.futureWith + at(carried_);
      if (place > TotalPlace() - 0.5)
        seen.total = bar;
      else
        seen.bars.push_back(bar);
    }
    return seen;
  }

 private:
  double TotalPlace() const { return static_cast<double>(contents_.bars.size()) + 0.5; }

  QCPBars* MakeSeries(const char* name, const QColor& colour, double opacity, QCPBars* above) {
    auto* bars = new QCPBars(plot_.yAxis, plot_.xAxis);
    bars->setName(QString::fromLatin1(name));
    bars->setWidth(0.36);
    bars->setPen(QPen(colour, Scaled(plot_, 1.2)));
    bars->setBrush(Faint(colour, opacity));
    if (above != nullptr) bars->moveAbove(above);
    return bars;
  }
  void MakeStacks() {
    pastOut_ = MakeSeries("Past, out of pocket", style_.outOfPocket, 0.95, nullptr);
    pastWith_ = MakeSeries("Past, with interest", style_.withInterest, 0.95, nullptr);
    futureOut_ = MakeSeries("Future, out of pocket", style_.outOfPocket, 0.3, pastOut_);
    futureWith_ = MakeSeries("Future, with interest", style_.withInterest, 0.3, pastWith_);
    carried_ = MakeSeries("Past money's growth in the future", style_.withInterest, 0.08, futureWith_);
    auto* pairs = new QCPBarsGroup(&plot_);
    pairs->setSpacingType(QCPBarsGroup::stPlotCoords);
    pairs->setSpacing(0.04);
    for (QCPBars* bars : {pastOut_, pastWith_, futureOut_, futureWith_, carried_}) pairs->append(bars);
  }

  void AddBar(double place, const ChartBar& bar, double& longest, double& least) {
    captions_->addTick(place, ToQt(bar.caption));
    pastOut_->addData(place, bar.pastOut);
    futureOut_->addData(place, bar.futureOut);
    pastWith_->addData(place, bar.pastWith);
    futureWith_->addData(place, bar.futureWith);
    carried_->addData(place, bar.combinedWith - bar.pastWith - bar.futureWith);
    AddAmount(place - 0.2, bar.combinedOut);
    AddAmount(place + 0.2, bar.combinedWith);
    longest = std::max({longest, bar.combinedOut, bar.combinedWith});
    least = std::min(
        {least, bar.combinedOut, bar.combinedWith, bar.combinedWith - bar.pastWith - bar.futureWith});
  }
  void AddAmount(double place, double amount) {
    auto* text = new QCPItemText(&plot_);
    text->setText(ToQt(EndAmount(contents_.currency, amount)));
    text->setColor(style_.text);
    text->setFont(plot_.font());
    text->setPositionAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    text->setPadding(QMargins(Length(5), 0, 0, 0));
    text->position->setCoords(std::max(amount, 0.0), place);
  }

  // Below the bars, where it hides none, and arranged as they are: out of pocket above, with interest below
  // it.
  void MakeLegend() {
    plot_.legend->setVisible(true);
    plot_.legend->setBorderPen(Qt::NoPen);
    plot_.legend->setBrush(Qt::NoBrush);
    plot_.legend->setTextColor(style_.text);
    plot_.legend->setFont(plot_.font());
    const QSize icon = plot_.legend->iconSize();
    plot_.legend->setIconSize(Length(icon.width()), Length(icon.height()));
    plot_.legend->setIconTextPadding(Length(plot_.legend->iconTextPadding()));
    plot_.legend->setWrap(2);
    plot_.legend->setFillOrder(QCPLegend::foRowsFirst);
    plot_.axisRect()->insetLayout()->take(plot_.legend);
    plot_.plotLayout()->addElement(plot_.plotLayout()->rowCount(), 0, plot_.legend);
    plot_.plotLayout()->setRowStretchFactor(plot_.plotLayout()->rowCount() - 1, 0.001);
  }

  QSharedPointer<QCPAxisTickerText> captions_{new QCPAxisTickerText};
  QSharedPointer<MoneyTicker> moneyTicker_{new MoneyTicker};
  QCPBars *pastOut_ = nullptr, *futureOut_ = nullptr, *pastWith_ = nullptr, *futureWith_ = nullptr,
          *carried_ = nullptr;
};

// A plot that can be emptied as a whole, and shows the ring of whoever has the focus for it.
class Plot : public QCustomPlot {
 public:
  explicit Plot(QWidget* parent) : QCustomPlot(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);  // the widget around it has the name and the keys
  }
  QColor ring;

 protected:
  void paintEvent(QPaintEvent* event) override {
    QCustomPlot::paintEvent(event);
    if (parentWidget() == nullptr || !parentWidget()->hasFocus()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ring, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
  }
};

std::unique_ptr<Scene> MakeScene(QCustomPlot& plot, const ChartContents& contents, const ChartStyle& style) {
  if (!contents.months.empty()) return std::make_unique<MonthScene>(plot, contents, style);
  if (!contents.bars.empty()) return std::make_unique<BarScene>(plot, contents, style);
  return std::make_unique<EmptyScene>(plot, contents, style);
}

// ---- The widget ----

class PlotWidget : public ChartWidget {
 public:
  explicit PlotWidget(QWidget* parent) : ChartWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_NoMousePropagation);
    drag_ = new QRubberBand(QRubberBand::Rectangle, this);
  }

  void SetStyle(const ChartStyle& style) override {
    if (style == style_) return;
    style_ = style;
    stale_ = true;
  }
  void SetContents(const ChartContents& contents) override {
    if (contents != contents_) {
      // Other months: whoever looked at a part of them sees them all.
      if (contents.months.size() != contents_.months.size()) inView_.reset();
      contents_ = contents;
      stale_ = true;
    }
    Draw();
  }
  void SetCursorMonth(int month) override {
    if (month == cursor_) return;
    cursor_ = month;
    // A cursor that walks out of view takes the view along.
    Span span = scene_->InView();
    const int out = month < span.first ? month - span.first : month > span.last ? month - span.last : 0;
    if (out != 0 && !contents_.months.empty()) Show({span.first + out, span.last + out});
    scene_->SetCursor(cursor_);
  }

  std::string Picture(PictureFormat format, const ChartStyle& style) const override;

  ChartContents Plotted() const override { return scene_ ? scene_->Plotted() : ChartContents(); }
  bool ZoomsInTime() const override { return contents_.months.size() > 1; }
  Span MonthsInView() const override { return scene_ ? scene_->InView() : Span(); }
  QPoint PointOf(int month) const override { return scene_->PointOf(month); }

 protected:
  void resizeEvent(QResizeEvent*) override {
    if (plot_ != nullptr) plot_->setGeometry(rect());
  }
  // The letters follow the zoom of the windows.
  void changeEvent(QEvent* event) override {
    ChartWidget::changeEvent(event);
    if (event->type() != QEvent::FontChange || plot_ == nullptr) return;
    stale_ = true;
    Draw();
  }
  void focusInEvent(QFocusEvent*) override { plot_->update(); }
  void focusOutEvent(QFocusEvent*) override { plot_->update(); }

  void keyPressEvent(QKeyEvent* event) override {
    const bool control = event->modifiers().testFlag(Qt::ControlModifier);
    if (control && event->key() == Qt::Key_0) return ShowAll();
    if (control && (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)) return Zoom(0.7, cursor_);
    if (control && event->key() == Qt::Key_Minus) return Zoom(1 / 0.7, cursor_);
    switch (event->key()) {
      case Qt::Key_Left:
        return onMove(-1);
      case Qt::Key_Right:
        return onMove(1);
      case Qt::Key_PageUp:
        return onMove(-kMonthsOfAYear);
      case Qt::Key_PageDown:
        return onMove(kMonthsOfAYear);
      case Qt::Key_Home:
        return onPoint(0);
      case Qt::Key_End:
        return onPoint(static_cast<int>(contents_.months.size()) - 1);
      default:
        event->ignore();
    }
  }
  void mousePressEvent(QMouseEvent* event) override {
    if (event->button() == Qt::LeftButton && !contents_.months.empty()) pressedAt_ = event->position().x();
  }
  void mouseMoveEvent(QMouseEvent* event) override {
    if (contents_.months.empty()) return;
    const int x = static_cast<int>(event->position().x());
    if (pressedAt_ && std::abs(x - *pressedAt_) >= kLeastDrag) {
      const QRect area = plot_->axisRect()->rect();
      drag_->setGeometry(QRect(QPoint(static_cast<int>(*pressedAt_), area.top()), QPoint(x, area.bottom()))
                             .normalized()
                             .intersected(area));
      drag_->show();
    }
    const int month = scene_->MonthAt(x);
    if (month != cursor_) onPoint(month);
  }
  void mouseReleaseEvent(QMouseEvent* event) override {
    if (!pressedAt_ || event->button() != Qt::LeftButton) return;
    const double from = *pressedAt_, to = event->position().x();
    pressedAt_.reset();
    drag_->hide();
    if (std::abs(to - from) < kLeastDrag) return;
    Show({scene_->MonthAt(std::min(from, to)), scene_->MonthAt(std::max(from, to))});
  }
  void mouseDoubleClickEvent(QMouseEvent*) override { ShowAll(); }
  void wheelEvent(QWheelEvent* event) override {
    if (!ZoomWheel::Zooms(*event) || contents_.months.empty()) return event->ignore();
    // By whole notches: a fraction would change few months by less than one.
    if (const int steps = wheel_.Turn(*event))
      Zoom(std::pow(0.8, steps), scene_->MonthAt(event->position().x()));
  }

 private:
  // Draws what has changed. A plot is drawn anew as a whole: that is quick, and nothing old stays behind.
  void Draw() {
    if (!stale_) return;
    stale_ = false;
    scene_.reset();
    delete plot_;
    plot_ = new Plot(this);
    plot_->ring = style_.focus;
    plot_->setFont(font());
    plot_->setGeometry(rect());
    plot_->lower();
    plot_->setNoAntialiasingOnDrag(true);
    scene_ = MakeScene(*plot_, contents_, style_);
    if (inView_) scene_->SetInView(*inView_);
    scene_->SetCursor(cursor_);
    plot_->show();  // its first size draws it
  }
  void Show(Span span) {
    scene_->SetInView(span);
    inView_ = scene_->InView();
    plot_->replot(QCustomPlot::rpQueuedReplot);
  }
  void ShowAll() {
    if (contents_.months.empty()) return;
    Show({0, static_cast<int>(contents_.months.size()) - 1});
    inView_.reset();
  }
  // The month stays where it is.
  void Zoom(double factor, int month) {
    if (contents_.months.empty()) return;
    const Span span = scene_->InView();
    const double left = (month - span.first) * factor, right = (span.last - month) * factor;
    Show({month - static_cast<int>(std::lround(left)), month + static_cast<int>(std::lround(right))});
  }

  ChartStyle style_;
  ChartContents contents_;
  int cursor_ = -1;
  Plot* plot_ = nullptr;
  std::unique_ptr<Scene> scene_;
  bool stale_ = true;
  std::optional<Span> inView_;  // none: all months
  std::optional<double> pressedAt_;
  ZoomWheel wheel_;
  QRubberBand* drag_;
};

// ---- Picture files ----

// The months in view alone: a file has no edge that would cut off what lies beside it.
ChartContents InView(ChartContents contents, ChartWidget::Span span) {
  if (contents.months.empty()) return contents;
  const auto begin = contents.months.begin();
  contents.months = std::vector(begin + span.first, begin + span.last + 1);
  contents.present =
      contents.present >= span.first && contents.present <= span.last ? contents.present - span.first : -1;
  for (ChartBand& band : contents.bands) {
    band.first = std::max(band.first, span.first) - span.first;
    band.last = std::min(band.last, span.last) - span.first;
  }
  std::erase_if(contents.bands, [](const ChartBand& band) { return band.last < band.first; });
  return contents;
}

// As lines and letters, not as a picture of them.
void Paint(QCustomPlot& plot, QPaintDevice& file, const QSize& size) {
  QCPPainter painter;
  painter.begin(&file);
  painter.setMode(QCPPainter::pmVectorized);
  painter.setMode(QCPPainter::pmNoCaching);
  plot.toPainter(&painter, size.width(), size.height());
  painter.end();
}

QByteArray Png(QCustomPlot& plot, const QSize& size) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  plot.toPixmap(size.width(), size.height(), 2).toImage().save(&buffer, "PNG");
  return bytes;
}

QByteArray Svg(QCustomPlot& plot, const QSize& size, const QString& title) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  QSvgGenerator file;
  file.setOutputDevice(&buffer);
  file.setSize(size);
  file.setViewBox(QRect(QPoint(), size));
  file.setTitle(title);
  Paint(plot, file, size);
  return bytes;
}

QByteArray Pdf(QCustomPlot& plot, const QSize& size, const QString& title) {
  constexpr int kDotsPerInch = 96;
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  QPdfWriter file(&buffer);
  file.setTitle(title);
  file.setResolution(kDotsPerInch);
  file.setPageSize(QPageSize(QSizeF(size) * 72 / kDotsPerInch, QPageSize::Point));
  file.setPageMargins(QMarginsF());
  Paint(plot, file, size);
  return bytes;
}

std::string PlotWidget::Picture(PictureFormat format, const ChartStyle& style) const {
  const ChartContents contents = InView(contents_, MonthsInView());
  QCustomPlot plot;
  plot.setFont(font());
  plot.setViewport(rect());
  const std::unique_ptr<Scene> scene = MakeScene(plot, contents, style);
  const QString title = ToQt(contents.title);
  switch (format) {
    case PictureFormat::Svg:
      return Svg(plot, size(), title).toStdString();
    case PictureFormat::Pdf:
      return Pdf(plot, size(), title).toStdString();
    case PictureFormat::Png:
      break;
  }
  return Png(plot, size()).toStdString();
}

}  // namespace
}  // namespace vicetoll

extern "C" Q_DECL_EXPORT vicetoll::ChartWidget* MakeChartWidget(QWidget* parent) {
  return new vicetoll::PlotWidget(parent);
}

extern "C" Q_DECL_EXPORT bool PaintSvg(QPainter& painter, const QRectF& room, const QByteArray& svg) {
  QSvgRenderer picture(svg);
  if (!picture.isValid()) return false;
  QRectF place(QPointF(), QSizeF(picture.defaultSize()).scaled(room.size(), Qt::KeepAspectRatio));
  place.moveCenter(room.center());
  picture.render(&painter, place);
  return true;
}
