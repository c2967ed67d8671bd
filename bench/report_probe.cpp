// SPDX-License-Identifier: GPL-3.0-or-later
// report-probe: what the largest report costs from the click to the painted window, in milliseconds. Both
// sides of smoking over 165 years, about 2,000 months, in the grid and in the two layouts of the document;
// medians.
#include <QApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <clocale>
#include <cstdio>
#include <vector>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"

namespace vicetoll {
namespace {

void CommitLongest(Desktop& desktop, SinWorkspace& ws, Side side, int start, int stop) {
  SideControls& c = ws.Of(side);
  desktop.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(side == Side::Past ? kPastTab : kFutureTab); });
  desktop.Enter([&] { c.comStart->UserPicks(start); });
  desktop.Enter([&] { c.comStop->UserPicks(stop < 0 ? c.comStop->Count() - 1 : stop); });
  desktop.Enter([&] { c.cmdSetPeriodParams->UserClicks(); });
}

// From the click on `open` until the form's window is painted; `close` brings it away again. The document
// is emptied each time: the same text once more would cost nothing.
double Median(Desktop& desktop, Form& form, DocWindow& document, Button& open, Button& close) {
  std::vector<double> times;
  for (int i = 0; i < 9; ++i) {
    desktop.Enter([&] { document.Text().SetText(""); });
    QApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    desktop.Enter([&] { open.UserClicks(); });
    desktop.WindowOf(form).repaint();
    QApplication::processEvents();
    times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    desktop.Enter([&] { close.UserClicks(); });
    QApplication::processEvents();
  }
  std::sort(times.begin(), times.end());
  return times[times.size() / 2];
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  using namespace vicetoll;
  QApplication application(argc, argv);
  std::setlocale(LC_NUMERIC, "C");  // figures are read and printed with a point
  ApplyLook(application);
  QtPlatform platform;
  Program program(platform);
  Desktop desktop(program);
  SinWorkspace& ws = program.At(0);
  CommitLongest(desktop, ws, Side::Past, 0, -1);
  CommitLongest(desktop, ws, Side::Future, 0, -1);
  desktop.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(kTotalTab); });
  SpdWindow& spd = program.Spd();
  DocWindow& doc = program.Doc();
  const double grid = Median(desktop, spd, doc, *ws.cmdAdvResultsSpdSummaryTot, spd.Get<Button>("cmdExit"));
  const int rows = static_cast<int>(ws.CurrentIndexSub);
  const double table = Median(desktop, doc, doc, *ws.cmdAdvResultsDocSummaryTot, doc.Get<Button>("cmdExit"));
  desktop.Enter([&] { ws.cmdAdvResultsDocSummaryTot->UserClicks(); });
  desktop.Enter([&] { doc.Get<Option>("Opt_Doc").UserClicks(); });
  desktop.Enter([&] { doc.Get<Button>("cmdExit").UserClicks(); });
  const double blocks = Median(desktop, doc, doc, *ws.cmdAdvResultsDocSummaryTot, doc.Get<Button>("cmdExit"));
  std::printf("%-34s %10s %10s\n", "largest report, built and shown", "ms", "at most");
  std::printf("%-34s %10.1f %10d\n", ("grid, " + std::to_string(rows) + " months").c_str(), grid, 60);
  std::printf("%-34s %10.1f %10d\n", "document, table", table, 80);
  std::printf("%-34s %10.1f %10d\n", "document, descriptive text", blocks, 80);
  return 0;
}
