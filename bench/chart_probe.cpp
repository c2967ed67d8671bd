// SPDX-License-Identifier: GPL-3.0-or-later
// chart-probe: what the growth chart of the longest report costs, both sides of smoking over 165 years, in
// milliseconds until it is painted: the first click on its button, which loads what draws charts, a later
// click, following a press and following a radio, and a move of the cursor; medians but for the first.
#include <cstdio>

#include "desktop/chart_widget.h"
#include "probe.h"

namespace vicetoll {
namespace {

// The action, and all the painting that comes of it.
template <class Action>
auto Painted(const Action& action) {
  return [action] {
    action();
    Probe::Settle();
  };
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  using namespace vicetoll;
  Probe probe(argc, argv);
  Program& program = probe.GetProgram();
  Desktop& desktop = probe.GetDesktop();
  SinWorkspace& ws = probe.Smoking();
  probe.SetLongestPeriods();
  Probe::Settle();

  const auto open = Painted([&] { probe.Click(ws.Get<Button>("cmdGrowthChart")); });
  const double first = Milliseconds(open);
  Chart& chart = program.Growth().GetChart();
  const auto hide = [&] { desktop.Enter([&] { program.Growth().Hide(); }); };
  std::printf("%d months\n", chart.Count());
  std::printf("first click to painted chart    %6.1f   wanted at most 60\n", first);
  std::printf("click to painted chart          %6.1f   wanted at most 60\n", MedianMilliseconds(open, hide));

  // What the press and the radio cost by themselves is theirs.
  SideControls& future = ws.Of(Side::Future);
  Choice* radios[] = {&future.rbnDisabledPeriod(1), &future.rbnEnabledPeriod(1)};
  int turn = 0;
  const auto press = Painted([&] { probe.Click(*future.cmdSetPeriodParams); });
  const auto enable = [&] { future.cmdSetPeriodParams->SetEnabled(true); };
  const auto change = Painted([&] { desktop.Enter([&] { radios[turn++ % 2]->UserClicks(); }); });
  const auto move = Painted([&] { desktop.Enter([&] { chart.UserMoves(turn++ % 2 == 0 ? 7 : -7); }); });
  const double pressOpen = MedianMilliseconds(press, enable), changeOpen = MedianMilliseconds(change);
  std::printf("cursor                          %6.1f   wanted at most 4\n", MedianMilliseconds(move));
  hide();
  const double pressShut = MedianMilliseconds(press, enable), changeShut = MedianMilliseconds(change);
  std::printf(
      "following a press               %6.1f   wanted at most 16 (%.1f with %.1f without the chart)\n",
      pressOpen - pressShut, pressOpen, pressShut);
  std::printf(
      "following a radio               %6.1f   wanted at most 16 (%.1f with %.1f without the chart)\n",
      changeOpen - changeShut, changeOpen, changeShut);
}
