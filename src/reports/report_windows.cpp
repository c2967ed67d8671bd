// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_windows.h"

#include "reports/report_operations.h"
#include "reports/result_buttons.h"
#include "reports/total_reports.h"

namespace vicetoll {
namespace {

// All that a press of a result button works with.
struct Press {
  SinWorkspace& ws;
  Workspaces& workspaces;
  ReportWindows& windows;

  std::int16_t& Index() const { return ws.CurrentIndexSub; }
};

std::string ReportTitle(const SinRow& sin, ReportStyle style) {
  return std::string(sin.reportStem) + (style == ReportStyle::Spreadsheet
                                            ? " Results - SpreadSheet Style"
                                            : " Results - Document Style (Rich Text Format)");
}

// Titles of both styles go to the document window, which comes into being for it if it must.
void ShowReport(const Press& press, ReportStyle style) {
  press.windows.Doc().SetCaption(ReportTitle(press.ws.Sin(), style));
  if (style == ReportStyle::Spreadsheet)
    press.windows.Spd().Show();
  else
    press.windows.Doc().Show();
  DisableResultButtonsOfSin(press.workspaces, style);
}

void Filled(const Press& press, ReportScope scope) {
  if (press.windows.Spd().onFilled) press.windows.Spd().onFilled(press.ws, scope);
}

void ShowSpdSide(const Press& press, Side side) {
  press.ws.FuturePast_Flag = side == Side::Past ? kShowsPast : kShowsFuture;
  BuildSpdRows(press.ws, side, press.windows.Spd().Rows(), true, true, press.Index(),
               press.ws.SideIndex(side));
  Filled(press, side == Side::Past ? ReportScope::Past : ReportScope::Future);
  ShowReport(press, ReportStyle::Spreadsheet);
}

void ShowSpdTotal(const Press& press) {
  BuildTotalSpdRows(press.ws, press.windows.Spd().Rows());
  Filled(press, ReportScope::Total);
  ShowReport(press, ReportStyle::Spreadsheet);
}

void ShowDocSide(const Press& press, Side side) {
  DocWindow& window = press.windows.Doc();
  press.ws.FuturePast_Flag = side == Side::Past ? kShowsPast : kShowsFuture;
  BuildDocText(press.ws, side, window.Text(), window.BlockLayout(), true, press.Index(),
               press.ws.SideIndex(side));
  ShowReport(press, ReportStyle::Document);
}

void ShowDocTotal(const Press& press) {
  DocWindow& window = press.windows.Doc();
  press.ws.FuturePast_Flag = kShowsBoth;
  window.Text().SetText(TotalDocText(press.ws, window.BlockLayout(), press.ws.SideIndex(Side::Past),
                                     press.ws.SideIndex(Side::Future), IndexUse::Moved));
  ShowReport(press, ReportStyle::Document);
}

}  // namespace

void ConnectReports(SinWorkspace& ws, Workspaces& workspaces, ReportWindows& windows) {
  const Press press{ws, workspaces, windows};
  for (Side side : kSides) {
    SideControls& c = ws.Of(side);
    // The buttons of the TOTAL tab show exactly what those of the side's own tab show.
    for (Button* button : {c.cmdAdvResultsSpd, c.cmdAdvResultsSpdSummary})
      button->onClick = [press, side] { ShowSpdSide(press, side); };
    for (Button* button : {c.cmdAdvResultsDoc, c.cmdAdvResultsDocSummary})
      button->onClick = [press, side] { ShowDocSide(press, side); };
  }
  ws.cmdAdvResultsSpdSummaryTot->onClick = [press] { ShowSpdTotal(press); };
  ws.cmdAdvResultsDocSummaryTot->onClick = [press] { ShowDocTotal(press); };
}

}  // namespace vicetoll
