// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/balloon_place.h"

#include <QList>
#include <algorithm>
#include <limits>

namespace vicetoll {
namespace {

// How many times the narrowest width is tried, and in how many steps.
constexpr int kWidest = 5;
constexpr int kStepsOfWidth = 4;

// A cursor hangs so far to the right and below its point.
constexpr int kCursor = 16;

int Area(const QRect& rect) { return rect.isEmpty() ? 0 : rect.width() * rect.height(); }

// What a balloon there would cover, in pixels; the pointer counts more than anything else.
int Covered(const QRect& whole, const BalloonNeeds& needs) {
  int covered = Area(whole & needs.next) + Area(whole & needs.target);
  if (needs.pointer && whole.intersects(QRect(*needs.pointer, QSize(kCursor, kCursor)))) covered += 1 << 20;
  const QRect window(QPoint(), needs.window);
  covered += Area(whole) - Area(whole & window);
  return covered;
}

BalloonSpot SpotAt(const QRect& target, const QSize& body, bool under, int left, int tip,
                   const BalloonNeeds& needs) {
  const int height = body.height() + needs.stem;
  const int top = under ? target.bottom() + 1 : target.top() - height;
  return {{left, top, body.width(), height}, under, {tip, under ? top + 1 : top + height - 2}};
}

}  // namespace

BalloonSpot PlaceBalloon(const BalloonNeeds& needs) {
  BalloonSpot best{};
  int least = std::numeric_limits<int>::max();
  const auto consider = [&](const BalloonSpot& spot) {
    const int covered = Covered(spot.whole, needs);
    if (covered < least) least = covered, best = spot;
  };
  // A target that leaves no room above and below is explained where the pointer is.
  QList<QRect> targets = {needs.target};
  if (needs.pointer)
    targets << QRect(*needs.pointer - QPoint(kCursor / 2, kCursor / 2), 2 * QSize(kCursor, kCursor));
  for (const QRect& target : targets)
    for (int step = kStepsOfWidth; step <= kWidest * kStepsOfWidth && least > 0; ++step) {
      const QSize body = needs.bodyAt(needs.narrowest * step / kStepsOfWidth);
      // The stem points at the middle of the target, or of its beginning where it is long.
      const int middle = target.left() + std::min(target.width() / 2, needs.narrowest * 3 / 4);
      const int farthest = std::max(needs.edge, needs.window.width() - body.width() - needs.edge);
      for (const bool under : {true, false})
        for (const int wished :
             {middle - 2 * needs.inset, middle - body.width() / 2, middle - body.width() + 2 * needs.inset}) {
          const int left = std::clamp(wished, needs.edge, farthest);
          const int tip = std::clamp(middle, left + needs.inset,
                                     std::max(left + needs.inset, left + body.width() - 2 * needs.inset));
          consider(SpotAt(target, body, under, left, tip, needs));
        }
    }
  // Better over what it explains than cut off.
  const int lowest = std::max(0, needs.window.height() - best.whole.height());
  const int shift = std::clamp(best.whole.top(), 0, lowest) - best.whole.top();
  best.whole.translate(0, shift);
  best.tip.ry() += shift;
  return best;
}

}  // namespace vicetoll
