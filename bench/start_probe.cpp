// SPDX-License-Identifier: GPL-3.0-or-later
// start-probe: what the start of the program costs. It starts itself anew with the time in its environment,
// and prints, in one line: milliseconds from exec to the first painted window, peak memory in MiB by then,
// milliseconds of the first switch to another sin until that is painted, and peak memory by then.
#include <unistd.h>

#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <fstream>
#include <string>

#include "desktop/scale.h"
#include "probe.h"

namespace {

constexpr const char* kStartVariable = "VICETOLL_PROBE_START";

double Now() {
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

double PeakMebibytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmHWM:")) return std::atof(line.c_str() + 6) / 1024;
  return 0;
}

// Runs something once the first window painted since Arm() has reached the screen.
class PaintWatch : public QObject {
 public:
  void Arm(std::function<void()> painted) { painted_ = std::move(painted); }
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && painted_ && dynamic_cast<vicetoll::Sheet*>(watched) != nullptr)
      QTimer::singleShot(0, this, std::exchange(painted_, nullptr));
    return QObject::eventFilter(watched, event);
  }

 private:
  std::function<void()> painted_;
};

}  // namespace

int main(int argc, char** argv) {
  using namespace vicetoll;
  if (std::getenv(kStartVariable) == nullptr) {
    setenv(kStartVariable, std::to_string(Now()).c_str(), 1);
    execv("/proc/self/exe", argv);
    return 1;
  }
  ProbeApplication application(argc, argv);
  PaintWatch watch;
  application.installEventFilter(&watch);
  QtPlatform platform;
  Program program(platform);

  double switched = 0;
  std::unique_ptr<Desktop> desktop;
  watch.Arm([&] {
    std::printf("%.1f %.1f ", Now() - std::atof(std::getenv(kStartVariable)), PeakMebibytes());
    desktop->Enter([&] { program.At(0).cmdSwitchSins->UserClicks(); });
    QTimer::singleShot(100, [&] {
      switched = Now();
      watch.Arm([&] {
        std::printf("%.1f %.1f\n", Now() - switched, PeakMebibytes());
        QCoreApplication::exit(0);
      });
      desktop->Enter([&] { program.Chooser().Get<Option>("OptSwitchSins", 1).UserClicks(); });
    });
  });
  desktop = std::make_unique<Desktop>(program);
  return application.exec();
}
