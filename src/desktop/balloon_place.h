// SPDX-License-Identifier: GPL-3.0-or-later
// Where a balloon goes: at what it explains, clear of the pointer and of the control that comes next.
#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <functional>
#include <optional>

namespace vicetoll {

// All in pixels of the window.
struct BalloonNeeds {
  QSize window;
  QRect target;                   // what the balloon explains
  QRect next;                     // the control that the user goes on to; empty if there is none
  std::optional<QPoint> pointer;  // the mouse, where it has called the balloon up
  int stem;                       // the height that the stem adds
  int inset;                      // how far from the body's ends the stem begins
  int edge;                       // kept free along the window's edge
  int narrowest;                  // the width of the body that is tried first
  // The size of the body, without stem, at a width; it may come out wider.
  std::function<QSize(int width)> bodyAt;
};

struct BalloonSpot {
  QRect whole;  // body and stem
  bool under;   // the stem points up
  QPoint tip;   // of the stem
};

// The narrowest balloon that covers neither; where there is no such place, the one that covers least.
BalloonSpot PlaceBalloon(const BalloonNeeds& needs);

}  // namespace vicetoll
