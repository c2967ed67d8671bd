// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/balloon.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/balloon_place.h"
#include "desktop/scale.h"
#include "desktop/themes.h"

namespace vicetoll {
namespace {

// Pixels of the design.
constexpr int kTextWidth = 80;
constexpr int kPadding = 8;
constexpr int kStem = 14;
constexpr int kStemWidth = 12;
constexpr int kRadius = 9;
constexpr int kEdge = 4;  // kept free along the window's edge

// The size of the text at the given width. A word that is wider widens it, and then gives room to others.
QSize TextSize(const QString& text, const QFont& font, int width) {
  const auto sizeAt = [&](int w) {
    return QFontMetrics(font).boundingRect(QRect(0, 0, w, 1 << 16), Qt::TextWordWrap, text).size();
  };
  const QSize size(std::max(sizeAt(width).width(), width), 0);
  return {size.width(), sizeAt(size.width()).height()};
}

}  // namespace

BalloonWidget::BalloonWidget(const QString& text, QWidget* owner, QWidget* window, const QWidget* next,
                             std::optional<QPoint> pointer)
    : QWidget(window), text_(text), owner_(owner) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFont(owner->font());
  const auto scaled = [scale = ScaleOf(owner)](int pixels) { return scale.Of(pixels); };
  padding_ = scaled(kPadding);
  stemWidth_ = scaled(kStemWidth);
  const int stem = scaled(kStem);
  const auto placeOf = [window](const QWidget& widget) {
    return QRect(widget.mapTo(window, QPoint(0, 0)), widget.size());
  };
  const BalloonSpot spot =
      PlaceBalloon({.window = window->size(),
                    .target = placeOf(*owner),
                    .next = next == nullptr ? QRect() : placeOf(*next),
                    .pointer = pointer,
                    .stem = stem,
                    .inset = kRadius + 2,
                    .edge = scaled(kEdge),
                    .narrowest = scaled(kTextWidth),
                    .bodyAt = [this](int width) {
                      return TextSize(text_, font(), width) + QSize(2 * padding_ + 1, 2 * padding_ + 1);
                    }});
  setGeometry(spot.whole);
  body_ = QRect(0, spot.under ? stem : 0, spot.whole.width() - 1, spot.whole.height() - stem - 1);
  point_ = spot.tip - spot.whole.topLeft();
  raise();
  show();
}

void BalloonWidget::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath path;
  path.addRoundedRect(QRectF(body_).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  const bool under = point_.y() < body_.top();
  const qreal root = under ? body_.top() + 1.5 : body_.bottom() - 0.5;
  QPainterPath stem;
  stem.moveTo(point_);
  stem.lineTo(point_.x() + 1, root);
  stem.lineTo(point_.x() + 1 + stemWidth_, root);
  stem.closeSubpath();
  painter.setPen(QPen(Colour(Tone::Ink), 1));
  painter.setBrush(Colour(Tone::BalloonGround));
  painter.drawPath(path.united(stem));
  painter.drawText(body_.adjusted(padding_, padding_, -padding_, -padding_), Qt::TextWordWrap, text_);
}

}  // namespace vicetoll
