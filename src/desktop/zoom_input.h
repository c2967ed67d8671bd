// SPDX-License-Identifier: GPL-3.0-or-later
// The keys and the wheel that zoom, in every window alike.
#pragma once

class QKeyEvent;
class QWheelEvent;

namespace vicetoll {

// What a key asks for.
enum class Zoom { None, In, Out, Reset };
Zoom ZoomOf(const QKeyEvent& key);

// Turns of the wheel with Ctrl, added up: a touch pad turns it by fractions of a notch.
class ZoomWheel {
 public:
  // Whether the wheel zooms; not without Ctrl.
  static bool Zooms(const QWheelEvent& wheel);
  // The whole notches that are turned by now, those downwards negative.
  int Turn(const QWheelEvent& wheel);

 private:
  int turned_ = 0;  // not yet a notch
};

}  // namespace vicetoll
