// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/zoom_input.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace vicetoll {

Zoom ZoomOf(const QKeyEvent& key) {
  if ((key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != Qt::ControlModifier) return Zoom::None;
  switch (key.key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return Zoom::In;
    case Qt::Key_Minus:
      return Zoom::Out;
    case Qt::Key_0:
      return Zoom::Reset;
    default:
      return Zoom::None;
  }
}

bool ZoomWheel::Zooms(const QWheelEvent& wheel) { return wheel.modifiers() == Qt::ControlModifier; }

int ZoomWheel::Turn(const QWheelEvent& wheel) {
  constexpr int kNotch = 120;
  turned_ += wheel.angleDelta().y();
  const int notches = turned_ / kNotch;
  turned_ -= notches * kNotch;
  return notches;
}

}  // namespace vicetoll
