// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/result_buttons.h"

#include <array>

namespace vicetoll {
namespace {

struct FlaggedButton {
  Button* button;
  bool& wasEnabled;
};

std::array<FlaggedButton, 5> ButtonsOf(SinWorkspace& ws, ReportStyle style) {
  const bool spd = style == ReportStyle::Spreadsheet;
  ResultButtonFlags& flags = spd ? ws.cmdAdvResultsSpd_Flag : ws.cmdAdvResultsDoc_Flag;
  const auto onSide = [&](Side side) {
    return spd ? ws.Of(side).cmdAdvResultsSpd : ws.Of(side).cmdAdvResultsDoc;
  };
  const auto onTotal = [&](Side side) {
    return spd ? ws.Of(side).cmdAdvResultsSpdSummary : ws.Of(side).cmdAdvResultsDocSummary;
  };
  return {{{onSide(Side::Past), flags.Past},
           {onSide(Side::Future), flags.Fut},
           {onTotal(Side::Past), flags.SummaryPast},
           {onTotal(Side::Future), flags.SummaryFut},
           {spd ? ws.cmdAdvResultsSpdSummaryTot : ws.cmdAdvResultsDocSummaryTot, flags.SummaryTot}}};
}

SinWorkspace& WorkspaceOfButtons(Workspaces& workspaces) {
  return workspaces.At(SinPosition(workspaces.Current().Sin().reportButtonsOf));
}

}  // namespace

void DisableResultButtons(SinWorkspace& ws, ReportStyle style) {
  // A button whose result box holds no number is to be closed as well, without a note; all are.
  for (const FlaggedButton& flagged : ButtonsOf(ws, style)) {
    flagged.wasEnabled = flagged.button->Enabled();
    flagged.button->SetEnabled(false);
  }
}

void RestoreResultButtons(SinWorkspace& ws, ReportStyle style) {
  for (const FlaggedButton& flagged : ButtonsOf(ws, style))
    if (flagged.wasEnabled) flagged.button->SetEnabled(true);
}

void DisableResultButtonsOfSin(Workspaces& workspaces, ReportStyle style) {
  DisableResultButtons(WorkspaceOfButtons(workspaces), style);
}

void RestoreResultButtonsOfSin(Workspaces& workspaces, ReportStyle style) {
  RestoreResultButtons(WorkspaceOfButtons(workspaces), style);
}

}  // namespace vicetoll
