// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/look.h"

#include <QApplication>
#include <QFileDialog>
#include <QFontMetrics>
#include <QHash>
#include <QHeaderView>
#include <QPainter>
#include <QProxyStyle>
#include <QScreen>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolButton>
#include <QTreeView>

#include "desktop/accessible.h"
#include "desktop/themes.h"

namespace vicetoll {
namespace {

constexpr int kSmallestPart = 66;  // percent of its size to which a text shrinks to fit
constexpr int kHeadingMargin = 3;  // pixels that the text of a column's heading keeps from its sides
constexpr int kMenuMargin = 4;     // pixels above and below what is in a menu

// The least size of a dialog for files, in letters and lines of its text.
constexpr int kFileDialogLetters = 105, kFileDialogLines = 31;

class DesktopStyle : public QProxyStyle {
 public:
  DesktopStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    // Lists open below themselves, with a scroll bar, in the colours of their palette.
    if (hint == SH_ComboBox_Popup) return 0;
    if (hint == SH_Table_GridLineColor) return static_cast<int>(Colour(Tone::CellLine).rgba());
    return QProxyStyle::styleHint(hint, option, widget, data);
  }

  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override {
    if (metric == PM_MenuVMargin) return kMenuMargin;
    return QProxyStyle::pixelMetric(metric, option, widget);
  }

  // The toolkit's own dialog for files is made as small as its columns cannot be read.
  void polish(QWidget* widget) override {
    QProxyStyle::polish(widget);
    if (auto* dialog = qobject_cast<QFileDialog*>(widget)) ShowWholeColumns(*dialog);
  }
  using QProxyStyle::polish;

  // Fusion derives these from the ground, and on a dark one they are hardly to be seen.
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
    // As strong as on the program's own buttons.
    if (element == PE_FrameFocusRect && qobject_cast<const QToolButton*>(widget) != nullptr)
      return DrawFocusRing(*painter, widget->rect());
    if (element != PE_Frame) QProxyStyle::drawPrimitive(element, option, painter, widget);
    const bool ofDialogs = element == PE_FrameLineEdit || element == PE_PanelButtonCommand;
    if (element == PE_Frame || element == PE_PanelMenu || (ofDialogs && IsBlack()))
      DrawOutline(*painter, option->rect);
  }
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    if (const auto* heading = qstyleoption_cast<const QStyleOptionHeader*>(option);
        element == CE_HeaderLabel && heading != nullptr) {
      QStyleOptionHeader inside(*heading);
      inside.rect.adjust(kHeadingMargin, 0, -kHeadingMargin, 0);
      return QProxyStyle::drawControl(element, &inside, painter, widget);
    }
    const bool empty = element == CE_HeaderEmptyArea;
    if (element != CE_HeaderSection && !empty)
      return QProxyStyle::drawControl(element, option, painter, widget);
    const QRect& room = option->rect;
    painter->fillRect(room, Colour(Tone::ButtonGround));
    painter->setPen(Colour(Tone::FrameLine));
    painter->drawLine(room.bottomLeft(), room.bottomRight());
    if (!empty) painter->drawLine(room.topRight(), room.bottomRight());
  }
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || bar == nullptr) {
      QProxyStyle::drawComplexControl(control, option, painter, widget);
      if (control == CC_ComboBox && IsBlack()) DrawOutline(*painter, option->rect);
      return;
    }
    painter->fillRect(bar->rect, Colour(Tone::PanelGround));
    const auto part = [&](SubControl sub) { return subControlRect(CC_ScrollBar, bar, sub, widget); };
    if (bar->minimum < bar->maximum) DrawSlider(*painter, part(SC_ScrollBarSlider), *bar);
    const bool upright = bar->orientation == Qt::Vertical;
    DrawEnd(*painter, part(SC_ScrollBarSubLine), upright ? QPoint(0, -1) : QPoint(-1, 0));
    DrawEnd(*painter, part(SC_ScrollBarAddLine), upright ? QPoint(0, 1) : QPoint(1, 0));
  }

 private:
  static void ShowWholeColumns(QFileDialog& dialog) {
    auto* files = dialog.findChild<QTreeView*>();
    if (files == nullptr) return;  // the desktop's own
    QHeaderView& columns = *files->header();
    columns.setSectionResizeMode(QHeaderView::ResizeToContents);
    columns.setStretchLastSection(false);
    const QFontMetrics metrics(dialog.font());
    const QSize wanted(kFileDialogLetters * metrics.averageCharWidth(), kFileDialogLines * metrics.height());
    dialog.setMinimumSize(wanted.boundedTo(dialog.screen()->availableSize() * 0.9));
  }
  static bool IsBlack() { return CurrentTheme() == Theme::HighContrast; }
  static void DrawOutline(QPainter& painter, const QRect& room) {
    painter.setPen(Colour(Tone::FrameLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(room.adjusted(0, 0, -1, -1));
  }
  static void DrawSlider(QPainter& painter, const QRect& room, const QStyleOptionSlider& bar) {
    const bool held =
        bar.activeSubControls & SC_ScrollBarSlider && bar.state & (State_Sunken | State_MouseOver);
    DrawBox(painter, room.adjusted(2, 2, -2, -2), Colour(held ? Tone::Hint : Tone::FrameLine),
            Colour(Tone::FrameLine), 3);
  }
  // The arrow at an end of a scroll bar, which points to where it scrolls.
  static void DrawEnd(QPainter& painter, const QRect& room, const QPoint& towards) {
    const QPointF tip = QRectF(room).center() + 2 * QPointF(towards), across(towards.y(), towards.x());
    const QPointF foot = tip - 4 * QPointF(towards);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Colour(Tone::Hint));
    painter.drawPolygon(QPolygonF({tip, foot + 4 * across, foot - 4 * across}));
    painter.restore();
  }
};

bool Fits(const QString& text, QSize room, const QFont& font) {
  const QFontMetrics metrics(font);
  // What is drawn may be a fraction wider than what was measured.
  room.rwidth() -= 1;
  if (metrics.height() > room.height()) return false;
  if (!text.contains(u'\n') && metrics.horizontalAdvance(text) <= room.width()) return true;
  const QRect taken =
      metrics.boundingRect(QRect(0, 0, room.width(), 1 << 16), Qt::TextWordWrap | Qt::AlignLeft, text);
  return taken.width() <= room.width() && taken.height() <= room.height();
}

}  // namespace

void ApplyLook(QApplication& application) {
  InstallAccessibles();
  application.setStyle(new DesktopStyle);
}

QFont FittedFont(const QString& text, const QSize& room, const QFont& font) {
  QFont fitted = font;
  const int smallest = font.pixelSize() * kSmallestPart / 100;
  for (int pixels = font.pixelSize(); pixels > smallest && !Fits(text, room, fitted);)
    fitted.setPixelSize(--pixels);
  return fitted;
}

QFont FittedLine(const QString& text, int width, const QFont& font, int smallest) {
  QFont fitted = font;
  for (int pixels = font.pixelSize();
       pixels > smallest && QFontMetricsF(fitted).horizontalAdvance(text) > width;)
    fitted.setPixelSize(--pixels);
  return fitted;
}

QString WithoutAccessKey(const QString& text) {
  QString plain;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'&' && i + 1 < text.size()) ++i;
    plain += text[i];
  }
  return plain;
}

QString AsItStands(QString plain) { return plain.replace(u'&', QStringLiteral("&&")); }

namespace {

// What is left free on either side where the text takes no more lines than it must, but all about as long.
int SpareBeside(const QString& text, const QSize& room, const QFontMetrics& metrics) {
  if (metrics.horizontalAdvance(text) < room.width()) return 0;
  const auto taken = [&](int width) {
    return metrics.boundingRect(QRect(0, 0, width, 1 << 16), Qt::TextWordWrap | Qt::AlignLeft, text).size();
  };
  const int height = taken(room.width()).height();
  int narrow = room.width() / 2, wide = room.width();
  while (wide - narrow > 1) {
    const int middle = (narrow + wide) / 2;
    const QSize size = taken(middle);
    (size.height() > height || size.width() > middle ? narrow : wide) = middle;
  }
  return (room.width() - wide) / 2;
}

struct Fitting {
  QString text, family;
  QSize room;
  int pixels = 0, weight = 0;
  bool centred = false;

  bool operator==(const Fitting&) const = default;
};

std::size_t qHash(const Fitting& f, std::size_t seed) {
  return qHashMulti(seed, f.text, f.family, f.room.width(), f.room.height(), f.pixels, f.weight, f.centred);
}

struct Fitted {
  int pixels = 0;
  int spare = 0;  // on either side of a text in the middle
};

// Measuring costs more than drawing, and a window draws the same texts again and again.
Fitted FittedInto(const QString& text, const QSize& room, const QFont& font, bool centred) {
  constexpr qsizetype kMost = 2000;
  static QHash<Fitting, Fitted> known;
  const Fitting asked{text, font.family(), room, font.pixelSize(), font.weight(), centred};
  if (const auto found = known.constFind(asked); found != known.constEnd()) return *found;
  const QFont fitted = FittedFont(text, room, font);
  if (known.size() >= kMost) known.clear();
  const int spare = centred ? SpareBeside(text, room, QFontMetrics(fitted)) : 0;
  return *known.insert(asked, {fitted.pixelSize(), spare});
}

}  // namespace

void DrawFitted(QPainter& painter, const QRect& room, int alignment, const QString& text, const QFont& font) {
  const Fitted fitted = FittedInto(WithoutAccessKey(text), room.size(), font, alignment & Qt::AlignHCenter);
  QFont letters = font;
  letters.setPixelSize(fitted.pixels);
  painter.setFont(letters);
  painter.drawText(room.adjusted(fitted.spare, 0, -fitted.spare, 0),
                   alignment | Qt::TextWordWrap | Qt::TextShowMnemonic, text);
}

void DrawFocusRing(QPainter& painter, const QRect& room) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Colour(Tone::Focus), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(room).adjusted(1, 1, -1, -1), 3, 3);
  painter.restore();
}

void DrawBox(QPainter& painter, const QRect& room, const QColor& ground, const QColor& line, double radius) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(line);
  painter.setBrush(ground);
  painter.drawRoundedRect(QRectF(room).adjusted(0.5, 0.5, -0.5, -0.5), radius, radius);
  painter.restore();
}

void DrawIndicator(QPainter& painter, const QRect& room, bool round, const QStyleOption& state) {
  const bool enabled = state.state & QStyle::State_Enabled;
  QColor line = Colour(Tone::FrameLine), mark = Colour(Tone::Ink);
  if (!enabled) line.setAlpha(kFaint), mark.setAlpha(kFaint);
  const Tone ground = state.state & QStyle::State_Sunken ? Tone::ButtonDown : Tone::BoxGround;
  const double side = room.width();
  DrawBox(painter, room, Colour(ground), line, round ? side / 2 : side / 6);
  if (!(state.state & QStyle::State_On)) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF inside = QRectF(room).adjusted(side / 4, side / 4, -side / 4, -side / 4);
  if (round) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(mark);
    painter.drawEllipse(inside);
  } else {
    painter.setPen(QPen(mark, side / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF({QPointF(inside.left(), inside.center().y()),
                                    QPointF(inside.left() + side / 6, inside.bottom()), inside.topRight()}));
  }
  painter.restore();
}

}  // namespace vicetoll
