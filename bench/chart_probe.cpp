// SPDX-License-Identifier: GPL-3.0-or-later
// chart-probe: what the growth chart of the longest report costs, both sides of smoking over 165 years, in
// milliseconds until it is painted: the first click on its button, which loads what draws charts, a later
// click, following a press and following a radio, and a move of the cursor; medians but for the first.
#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "desktop/chart_widget.h"
#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"

namespace vicetoll {
namespace {

void CommitLongest(Desktop& desktop, SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  desktop.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(side == Side::Past ? kPastTab : kFutureTab); });
  desktop.Enter([&] { c.comStart->UserPicks(0); });
  desktop.Enter([&] { c.comStop->UserPicks(c.comStop->Count() - 1); });
  desktop.Enter([&] { c.cmdSetPeriodParams->UserClicks(); });
}

// Until nothing is left to paint.
double Milliseconds(const std::function<void()>& action) {
  QElapsedTimer timer;
  timer.start();
  action();
  QApplication::processEvents();
  QApplication::processEvents();
  return static_cast<double>(timer.nsecsElapsed()) / 1e6;
}

double Median(
    const std::function<void()>& action, const std::function<void()>& before = [] {}) {
  std::vector<double> times;
  for (int i = 0; i < 15; ++i) {
    before();
    QApplication::processEvents();
    times.push_back(Milliseconds(action));
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  using namespace vicetoll;
  QApplication application(argc, argv);
  ApplyLook(application);
  QtPlatform platform;
  Program program(platform);
  Desktop desktop(program);
  SinWorkspace& ws = program.At(0);
  for (Side side : kSides) CommitLongest(desktop, ws, side);
  QApplication::processEvents();

  const auto click = [&](Button& button) { desktop.Enter([&] { button.UserClicks(); }); };
  Button& open = ws.Get<Button>("cmdGrowthChart");
  const double first = Milliseconds([&] { click(open); });
  Chart& chart = program.Growth().GetChart();
  std::printf("%d months\n", chart.Count());
  std::printf("first click to painted chart    %6.1f   wanted at most 60\n", first);
  std::printf("click to painted chart          %6.1f   wanted at most 60\n",
              Median([&] { click(open); }, [&] { desktop.Enter([&] { program.Growth().Hide(); }); }));

  // What the press and the radio cost by themselves is theirs.
  SideControls& future = ws.Of(Side::Future);
  Choice* radios[] = {&future.rbnDisabledPeriod(1), &future.rbnEnabledPeriod(1)};
  int turn = 0;
  const auto press = [&] { click(*future.cmdSetPeriodParams); };
  const auto enable = [&] { future.cmdSetPeriodParams->SetEnabled(true); };
  const auto change = [&] { desktop.Enter([&] { radios[turn++ % 2]->UserClicks(); }); };
  const double pressOpen = Median(press, enable), changeOpen = Median(change);
  std::printf("cursor                          %6.1f   wanted at most 4\n",
              Median([&] { desktop.Enter([&] { chart.UserMoves(turn++ % 2 == 0 ? 7 : -7); }); }));
  desktop.Enter([&] { program.Growth().Hide(); });
  const double pressShut = Median(press, enable), changeShut = Median(change);
  std::printf(
      "following a press               %6.1f   wanted at most 16 (%.1f with %.1f without the chart)\n",
      pressOpen - pressShut, pressOpen, pressShut);
  std::printf(
      "following a radio               %6.1f   wanted at most 16 (%.1f with %.1f without the chart)\n",
      changeOpen - changeShut, changeOpen, changeShut);
}
