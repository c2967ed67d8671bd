#include "desktop/balloon.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>

#include "desktop/themes.h"

namespace vicetoll {
namespace {

// Pixels at scale 1.
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

BalloonWidget::BalloonWidget(const QString& text, QWidget* owner, QWidget* window)
    : QWidget(window), text_(text), owner_(owner) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  const QRect target(owner->mapTo(window, QPoint(0, 0)), owner->size());
  // The stem points at the middle of the control, or of its beginning where it is long.
  const int middle = target.left() + std::min(target.width() / 2, 60);
  const int below = window->height() - target.bottom() - kStem - 2 * kPadding - kEdge;
  const int above = target.top() - kStem - 2 * kPadding - kEdge;
  // A text too long for the room above or below is set wider.
  int textWidth = kTextWidth;
  QSize size = TextSize(text_, font(), textWidth);
  while (size.height() > std::max(below, above) && textWidth < 4 * kTextWidth) {
    textWidth += 20;
    size = TextSize(text_, font(), textWidth);
  }
  const bool under = size.height() <= below || below >= above;
  const QSize whole(size.width() + 2 * kPadding + 1, size.height() + 2 * kPadding + 1 + kStem);
  const int left = std::clamp(middle - 24, kEdge, std::max(kEdge, window->width() - whole.width() - kEdge));
  const int top = under ? target.bottom() - 2 : target.top() + 2 - whole.height();
  setGeometry(QRect(QPoint(left, std::max(top, 0)), whole));
  body_ = QRect(0, under ? kStem : 0, whole.width() - 1, whole.height() - kStem - 1);
  point_ = QPoint(std::clamp(middle - left, kRadius + 2, whole.width() - kRadius - kStemWidth),
                  under ? 1 : whole.height() - 2);
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
  stem.lineTo(point_.x() + 1 + kStemWidth, root);
  stem.closeSubpath();
  painter.setPen(QPen(Colour(Tone::Ink), 1));
  painter.setBrush(Colour(Tone::BalloonGround));
  painter.drawPath(path.united(stem));
  painter.drawText(body_.adjusted(kPadding, kPadding, -kPadding, -kPadding), Qt::TextWordWrap, text_);
}

}  // namespace vicetoll
