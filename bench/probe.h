// SPDX-License-Identifier: GPL-3.0-or-later
// What the probes share: the program with its windows, the longest report, and how its times are taken.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <clocale>
#include <ctime>
#include <functional>
#include <vector>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"

namespace vicetoll {

class ProbeApplication : public QApplication {
 public:
  ProbeApplication(int& argc, char** argv) : QApplication(argc, argv) {
    std::setlocale(LC_NUMERIC, "C");  // figures are read and printed with a point
    ApplyLook(*this);
  }
};

// The program as it has started, with the window of smoking.
class Probe {
 public:
  Probe(int& argc, char** argv) : application_(argc, argv) {}

  Program& GetProgram() { return program_; }
  Desktop& GetDesktop() { return desktop_; }
  SinWorkspace& Smoking() { return program_.At(0); }

  void Click(Button& button) {
    desktop_.Enter([&] { button.UserClicks(); });
  }
  void OpenTab(Tab tab) {
    desktop_.Enter([&] { Smoking().SSTab_PastFutureSwitch->UserSelects(tab); });
  }

  // Sets the first period of each side from its first to its last date: 165 years, about 2,000 months.
  void SetLongestPeriods() {
    for (Side side : kSides) {
      SideControls& c = Smoking().Of(side);
      OpenTab(side == Side::Past ? kPastTab : kFutureTab);
      desktop_.Enter([&] { c.comStart->UserPicks(0); });
      desktop_.Enter([&] { c.comStop->UserPicks(c.comStop->Count() - 1); });
      Click(*c.cmdSetPeriodParams);
    }
  }

  // Until nothing is left to paint.
  static void Settle() {
    QApplication::processEvents();
    QApplication::processEvents();
  }

 private:
  ProbeApplication application_;
  QtPlatform platform_;
  Program program_{platform_};
  Desktop desktop_{program_};
};

inline double Milliseconds(const std::function<void()>& action) {
  QElapsedTimer timer;
  timer.start();
  action();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

// The same of the processor's time.
inline double ProcessorMilliseconds(const std::function<void()>& action) {
  const std::clock_t start = std::clock();
  action();
  return static_cast<double>(std::clock() - start) * 1000 / CLOCKS_PER_SEC;
}

// Of the times of an action; what is done before it each time does not count.
inline double MedianMilliseconds(
    const std::function<void()>& action, const std::function<void()>& before = [] {},
    double (*clock)(const std::function<void()>&) = Milliseconds) {
  constexpr int kTimes = 15;
  std::vector<double> times;
  for (int i = 0; i < kTimes; ++i) {
    before();
    Probe::Settle();
    times.push_back(clock(action));
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

}  // namespace vicetoll
