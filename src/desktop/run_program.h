// SPDX-License-Identifier: GPL-3.0-or-later
// A whole run in windows, from the first to the last.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>
#include <string>

namespace vicetoll {

// An application through which no exception passes: Desktop::Enter catches what users' events throw, and
// this what remains, when a widget paints itself or a timer runs out.
class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;

  std::function<void(const std::exception&)> onException;
};

// Runs the program, beginning with the entries of the file if one is named; its path is in the encoding of
// the file system. Returns the exit status: 0, or 1 after a failure, which the user is told.
int RunProgram(GuardedApplication& application, const std::string& file = {});

}  // namespace vicetoll
