// A whole run in windows, from the first to the last.
#pragma once

#include <QApplication>
#include <exception>
#include <functional>

namespace vicetoll {

// An application through which no exception passes: Desktop::Enter catches what users' events throw, and
// this what remains, when a widget paints itself or a timer runs out.
class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;

  std::function<void(const std::exception&)> onException;
};

// Runs the program; returns its exit status: 0, or 1 after a failure, which the user is told.
int RunProgram(GuardedApplication& application);

}  // namespace vicetoll
