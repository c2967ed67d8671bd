// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/tour.h"

#include <QApplication>
#include <QDir>
#include <cstdio>
#include <string>

#include "base/code_page.h"
#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"

namespace vicetoll {
namespace {

class Tour {
 public:
  Tour(Program& program, Desktop& desktop, QString folder)
      : program_(program), desktop_(desktop), folder_(std::move(folder)) {}

  void Walk() {
    SinWorkspace& ws = program_.At(0);
    Picture(ws, "The program starts with smoking");

    // Halfway down the list of stops: the second period needs room behind the first.
    SetPeriod(ws.Of(Side::Past), 1, [](const DropDownList& stops) { return stops.Count() / 2; });
    Picture(ws, "The first past period is set");
    SetPeriod(ws.Of(Side::Past), 2, [](const DropDownList& stops) { return stops.Count() - 1; });
    Picture(ws, "The second past period is set");
    Figures(ws.Of(Side::Past), 2);

    desktop_.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(kFutureTab); });
    Picture(ws, "The FUTURE tab");
    SetPeriod(ws.Of(Side::Future), 1,
              [](const DropDownList& stops) { return std::min(20, stops.Count() - 1); });
    Picture(ws, "The first future period is set");
    Figures(ws.Of(Side::Future), 1);

    desktop_.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(kTotalTab); });
    Picture(ws, "The TOTAL tab");
    Total(ws);

    desktop_.Enter([&] { ws.cmdSwitchSins->UserClicks(); });
    Picture(program_.Chooser(), "The list of sins");
    constexpr int kCoffee = 3;
    desktop_.Enter([&] { program_.Chooser().Get<Option>("OptSwitchSins", kCoffee).UserClicks(); });
    Picture(program_.At(kCoffee), "Coffee");
  }

  bool Failed() const { return failed_; }

 private:
  template <class Choose>
  void SetPeriod(WorkspaceSide& side, int period, Choose stopOf) {
    if (period > 1) desktop_.Enter([&] { side.optTimePeriod(period).UserClicks(); });
    desktop_.Enter([&] { side.comStop->UserFocuses(); });
    desktop_.Enter([&] { side.comStop->UserPicks(stopOf(*side.comStop)); });
    desktop_.Enter([&] { side.cmdSetPeriodParams->UserClicks(); });
  }

  static void Line(const std::string& caption, const std::string& figure) {
    std::printf("     %-44s %14s\n", ToUtf8(caption).c_str(), ToUtf8(figure).c_str());
  }

  void Figures(WorkspaceSide& side, int periods) {
    for (int p = 1; p <= periods; ++p) {
      std::printf("     %s\n", ToUtf8(side.optTimePeriod(p).Caption()).c_str());
      Line("  Out of pocket", side.txtResultsPeriod(p).Text());
      Line("  Put aside with interest", side.txtCumulativeResultsPeriod(p).Text());
    }
    Line("Total out of pocket", side.txtResultsTotal->Text());
  }

  void Total(SinWorkspace& ws) {
    Line("Out of pocket, past and future", ws.txtResultsTotalSummaryTot->Text());
    Line("Put aside with interest", ws.txtCumulativeResultsTotalSummaryTot->Text());
    Line("The same on " + ws.comCumulativeFutureDateTot->Text(), ws.txtCumulativeFutureDateTot->Text());
  }

  void Picture(Form& form, const char* title) {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
    ++step_;
    const QString path = QStringLiteral("%1/step-%2.png").arg(folder_).arg(step_);
    const bool saved = desktop_.WindowOf(form).grab().save(path);
    failed_ = failed_ || !saved;
    std::printf("  %d. %s: %s%s\n", step_, title, saved ? "" : "cannot write ", qPrintable(path));
  }

  Program& program_;
  Desktop& desktop_;
  QString folder_;
  int step_ = 0;
  bool failed_ = false;
};

}  // namespace

int TakeTour(const QString& folder) {
  QDir().mkpath(folder);
  ApplyLook(*qApp);
  QtPlatform platform;
  try {
    Program program(platform);
    Desktop desktop(program);
    bool fault = false;
    desktop.onFault = [&fault](const std::exception& what) {
      fault = true;
      std::fprintf(stderr, "%s\n", what.what());
    };
    Tour tour(program, desktop, folder);
    tour.Walk();
    return fault || tour.Failed() ? 1 : 0;
  } catch (const std::exception& fault) {
    std::fprintf(stderr, "%s\n", fault.what());
    return 1;
  }
}

}  // namespace vicetoll
