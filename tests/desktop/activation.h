// SPDX-License-Identifier: GPL-3.0-or-later
// Bringing a window to the front, for the checks of widgets.
#pragma once

#include <QApplication>
#include <QTest>
#include <QWidget>

namespace vicetoll {

// Makes the window the active one; false if it has not become so in that time. Qt's own wait takes a window
// for active while one that belongs to it is.
inline bool BringToFront(QWidget& window, int milliseconds = 2000) {
  if (QApplication::activeWindow() == &window) return true;
  window.activateWindow();
  return QTest::qWaitFor([&window] { return QApplication::activeWindow() == &window; }, milliseconds);
}

}  // namespace vicetoll
