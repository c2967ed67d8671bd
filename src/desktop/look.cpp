// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/look.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <QStyleOption>

#include "desktop/accessible.h"
#include "desktop/themes.h"

namespace vicetoll {
namespace {

constexpr int kSmallestPart = 66;  // percent of its size to which a text shrinks to fit

class DesktopStyle : public QProxyStyle {
 public:
  DesktopStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override {
    // Lists open below themselves, with a scroll bar, in the colours of their palette.
    if (hint == SH_ComboBox_Popup) return 0;
    return QProxyStyle::styleHint(hint, option, widget, data);
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

void DrawFitted(QPainter& painter, const QRect& room, int alignment, const QString& text, const QFont& font) {
  painter.setFont(FittedFont(WithoutAccessKey(text), room.size(), font));
  painter.drawText(room, alignment | Qt::TextWordWrap | Qt::TextShowMnemonic, text);
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
