// SPDX-License-Identifier: GPL-3.0-or-later
// Answers for modal boxes, which hold up whoever opens them.
#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

namespace vicetoll {

// Acts on the next modal box of that class once it is up, and again until it goes.
template <class Box>
void WhenUp(std::function<void(Box&)> action) {
  QTimer::singleShot(20, [action] {
    auto* box = qobject_cast<Box*>(QApplication::activeModalWidget());
    if (box != nullptr) action(*box);
    if (box == nullptr || box->isVisible()) WhenUp<Box>(action);
  });
}

}  // namespace vicetoll
