// SPDX-License-Identifier: GPL-3.0-or-later
// report-probe: what the largest report costs from the click to the painted window, in milliseconds. Both
// sides of smoking over 165 years, about 2,000 months, in the grid and in the two layouts of the document;
// medians.
#include <cstdio>
#include <string>

#include "probe.h"

namespace vicetoll {
namespace {

void Print(const std::string& what, double milliseconds, int atMost) {
  std::printf("%-34s %10.1f %10d\n", what.c_str(), milliseconds, atMost);
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  using namespace vicetoll;
  Probe probe(argc, argv);
  SinWorkspace& ws = probe.Smoking();
  SpdWindow& spd = probe.GetProgram().Spd();
  DocWindow& doc = probe.GetProgram().Doc();
  probe.SetLongestPeriods();
  probe.OpenTab(kTotalTab);

  // From the click on `open` until the form's window is painted. The document is emptied each time: the same
  // text once more would cost nothing.
  const auto median = [&](Form& form, Button& open) {
    return MedianMilliseconds(
        [&] {
          probe.Click(open);
          probe.GetDesktop().WindowOf(form).repaint();
          Probe::Settle();
        },
        [&] {
          probe.Click(form.Get<Button>("cmdExit"));
          probe.GetDesktop().Enter([&] { doc.Text().SetText(""); });
        });
  };
  Button& document = *ws.cmdAdvResultsDocSummaryTot;
  const double grid = median(spd, *ws.cmdAdvResultsSpdSummaryTot);
  const int months = ws.CurrentIndexSub;
  const double table = median(doc, document);
  probe.GetDesktop().Enter([&] { doc.Get<Option>("Opt_Doc").UserClicks(); });
  const double blocks = median(doc, document);
  std::printf("%-34s %10s %10s\n", "largest report, built and shown", "ms", "at most");
  Print("grid, " + std::to_string(months) + " months", grid, 60);
  Print("document, table", table, 80);
  Print("document, descriptive text", blocks, 80);
  return 0;
}
