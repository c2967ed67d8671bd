// SPDX-License-Identifier: GPL-3.0-or-later
// Being asked to end from outside.
#pragma once

#include <QSocketNotifier>
#include <functional>

namespace vicetoll {

// While one lives (there may be one at a time), SIGTERM, SIGINT and SIGHUP do not kill the program. They are
// handed on as an event, so that what is open can be closed; a second signal kills.
class Termination {
 public:
  explicit Termination(std::function<void(int signal)> onSignal);
  ~Termination();
  Termination(const Termination&) = delete;
  Termination& operator=(const Termination&) = delete;

 private:
  std::function<void(int)> onSignal_;
  QSocketNotifier notifier_;
};

}  // namespace vicetoll
