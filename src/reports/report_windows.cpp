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

void ShowSpdSide(const Press& press, WorkspaceSide& side) {
  press.ws.FuturePast_Flag = side.IsPast() ? kShowsPast : kShowsFuture;
  BuildSpdRows(side, press.windows.Spd().Rows(), true, true, press.Index(), side.Index());
  Filled(press, side.IsPast() ? ReportScope::Past : ReportScope::Future);
  ShowReport(press, ReportStyle::Spreadsheet);
}

void ShowSpdTotal(const Press& press) {
  BuildTotalSpdRows(press.ws, press.windows.Spd().Rows());
  Filled(press, ReportScope::Total);
  ShowReport(press, ReportStyle::Spreadsheet);
}

void ShowDocSide(const Press& press, WorkspaceSide& side) {
  DocWindow& window = press.windows.Doc();
  press.ws.FuturePast_Flag = side.IsPast() ? kShowsPast : kShowsFuture;
  BuildDocText(side, window.Text(), window.BlockLayout(), true, press.Index(), side.Index());
  ShowReport(press, ReportStyle::Document);
}

void ShowDocTotal(const Press& press) {
  DocWindow& window = press.windows.Doc();
  press.ws.FuturePast_Flag = kShowsBoth;
  window.Text().SetText(TotalDocText(press.ws, window.BlockLayout(), press.ws.Of(Side::Past).Index(),
                                     press.ws.Of(Side::Future).Index(), IndexUse::Moved));
  ShowReport(press, ReportStyle::Document);
}

}  // namespace

void ConnectReports(SinWorkspace& ws, Workspaces& workspaces, ReportWindows& windows) {
  const Press press{ws, workspaces, windows};
  for (Side which : kSides) {
    WorkspaceSide& side = ws.Of(which);
    // The buttons of the TOTAL tab show exactly what those of the side's own tab show.
    for (Button* button : {side.cmdAdvResultsSpd, side.cmdAdvResultsSpdSummary})
      button->onClick = [press, &side] { ShowSpdSide(press, side); };
    for (Button* button : {side.cmdAdvResultsDoc, side.cmdAdvResultsDocSummary})
      button->onClick = [press, &side] { ShowDocSide(press, side); };
  }
  ws.cmdAdvResultsSpdSummaryTot->onClick = [press] { ShowSpdTotal(press); };
  ws.cmdAdvResultsDocSummaryTot->onClick = [press] { ShowDocTotal(press); };
}

}  // namespace vicetoll
