// SPDX-License-Identifier: GPL-3.0-or-later
// tabs-probe: what 3,000 changes of tab cost, in milliseconds each and in memory: the rate lists of the TOTAL
// tab get their 101 entries again at each. Then what the list of many entries costs when it is opened.
#include <cstdio>
#include <fstream>
#include <string>

#include "desktop/widgets.h"
#include "probe.h"

namespace {

constexpr int kChanges = 3000;

double Mebibytes() {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with("VmRSS:")) return std::stod(line.substr(6)) / 1024;
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  using namespace vicetoll;
  Probe probe(argc, argv);
  SinWorkspace& ws = probe.Smoking();
  // The milliseconds of the change alone, not of painting the tab.
  const auto change = [&](int times) {
    double all = 0;
    for (int i = 0; i < times; ++i) {
      all += Milliseconds([&] { probe.OpenTab(i % 2 == 0 ? kTotalTab : kPastTab); });
      QApplication::processEvents();
    }
    return all / times;
  };
  change(50);
  const double before = Mebibytes();
  const double each = change(kChanges);
  const double grown = Mebibytes() - before;
  const double last = change(100);
  probe.OpenTab(kTotalTab);
  auto* list =
      dynamic_cast<BlueList*>(probe.GetDesktop().WindowOf(ws).WidgetOf(*ws.comInterestRateFutureDateTot));
  const double popup = Milliseconds([&] {
    list->showPopup();
    QApplication::processEvents();
  });
  std::printf("%-40s %10s %10s\n", "3,000 changes of tab", "measured", "at most");
  std::printf("%-40s %10.2f %10d\n", "milliseconds each", each, 1);
  std::printf("%-40s %10.2f %10d\n", "milliseconds each of a further hundred", last, 1);
  std::printf("%-40s %10.1f %10d\n", "MiB grown", grown, 4);
  std::printf("%-40s %10.1f\n", ("ms to open a list of " + std::to_string(list->count())).c_str(), popup);
  return 0;
}
