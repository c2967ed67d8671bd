// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/total_reports.h"

#include "reports/doc_text.h"
#include "reports/report_operations.h"
#include "reports/report_terms.h"
#include "reports/spd_rows.h"

namespace vicetoll {
namespace {

// A report that crosses from the past into the future notes where.
void NoteBorder(SinWorkspace& ws, const TotalTerms& terms) {
  if (terms.HasBorder()) ws.Of(Side::Past).state.BeginManualDate = terms.borderFrom;
}

}  // namespace

void BuildTotalSpdRows(SinWorkspace& ws, Grid& grid) {
  const TotalTerms terms = TotalTermsOf(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index());
  if (terms.hasPast) ClearSpdGrid(grid);
  SpdRowWriter rows(ws);
  KeepReport(ws, ws.CurrentIndexSub, WalkTotal(terms, LastReport(ws), rows));
  NoteBorder(ws, terms);
  if (terms.hasPast || terms.hasFuture) {
    grid.Append(rows.Take());
    FinishSpdGrid(grid, ws.GetSession().CurrentSinKey);
  }
  ws.FuturePast_Flag = kShowsFuture;  // not both: a layout switch of the document then shows the future only
}

std::string TotalDocText(SinWorkspace& ws, bool docFlag, SideIndex past, SideIndex future,
                         IndexUse indexUse) {
  const TotalTerms terms = TotalTermsOf(ws, past, future);
  ReportState state = LastReport(ws);
  std::string text;
  if (terms.hasPast) {
    state = {};
    text += SideText(ws.Of(Side::Past), terms.past, docFlag, state);
  }
  if (terms.HasBorder()) {
    const std::int16_t before = indexUse == IndexUse::Moved ? state.index : ws.CurrentIndexSub;
    state = WalkBorder(terms, before, *MakeDocWriter(ws, docFlag, text));
  }
  if (terms.hasFuture) text += SideText(ws.Of(Side::Future), terms.future, docFlag, state);
  std::int16_t index = 0;
  KeepReport(ws, indexUse == IndexUse::Moved ? ws.CurrentIndexSub : index, state);
  NoteBorder(ws, terms);
  return text;
}

}  // namespace vicetoll
