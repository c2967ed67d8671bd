#include "desktop/look.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>
#include <cmath>

namespace vicetoll {
namespace {

constexpr double kSmallestPoints = 6;
constexpr double kReadableContrast = 4.5;

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
  room.rwidth() -= 3;
  if (metrics.height() > room.height()) return false;
  if (!text.contains(u'\n') && metrics.horizontalAdvance(text) <= room.width()) return true;
  const QRect taken =
      metrics.boundingRect(QRect(0, 0, room.width(), 1 << 16), Qt::TextWordWrap | Qt::AlignLeft, text);
  return taken.width() <= room.width() && taken.height() <= room.height();
}

// Relative luminance, as contrast is reckoned from it.
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

}  // namespace

void ApplyLook(QApplication& application) {
  auto* style = new DesktopStyle;
  application.setStyle(style);
  QPalette palette = style->standardPalette();
  palette.setColor(QPalette::Window, QColor(look::kPanelGround).darker(104));
  application.setPalette(palette);
}

QFont FittedFont(const QString& text, const QSize& room, const QFont& font) {
  QFont fitted = font;
  double points = font.pointSizeF();
  while (points > kSmallestPoints && !Fits(text, room, fitted)) {
    points -= 0.5;
    fitted.setPointSizeF(points);
  }
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

void DrawFitted(QPainter& painter, const QRect& room, int alignment, const QString& text, const QFont& font) {
  painter.setFont(FittedFont(WithoutAccessKey(text), room.size(), font));
  painter.drawText(room, alignment | Qt::TextWordWrap | Qt::TextShowMnemonic, text);
}

void DrawFocusRing(QPainter& painter, const QRect& room) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(look::kFocus), 2));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(room).adjusted(1, 1, -1, -1), 3, 3);
  painter.restore();
}

QColor Readable(QColor colour) {
  const double ground = Luminance(QColor(look::kFrameGround)) + 0.05;
  while (ground / (Luminance(colour) + 0.05) < kReadableContrast) colour = colour.darker(105);
  return colour;
}

}  // namespace vicetoll
