// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/reasonable_cost.h"

#include "calendar/number_text.h"

namespace vicetoll {
namespace {

// Fills the reasonable list: "$0.00", "$0.05", and every gross entry below the selected gross cost.
// Returns the position of the last such entry in the gross list, 0 if there is none.
int RebuildReasonableList(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  const double gross = MoneyToNumber(c.comInitialCost->Text());
  c.comSubCost->Clear();
  for (double first : {0.0, 0.05}) c.comSubCost->Append(ws.Money(first, "$0.00"));
  int last = 0;
  for (int i = 0; i < c.comInitialCost->Count(); ++i) {
    const std::string& entry = c.comInitialCost->Entry(i);
    if (!(MoneyToNumber(entry) < gross)) continue;
    c.comSubCost->Append(entry);
    last = i;
  }
  return last;
}

}  // namespace

void GrossCostPicked(SinWorkspace& ws, Side side) {
  SideControls& c = ws.Of(side);
  c.cmdSetPeriodParams->SetEnabled(true);
  // A text with the euro sign in front is no number here, so in euros the pick changes nothing.
  const std::string& reasonable = c.comSubCost->Text();
  if (!IsNumeric(reasonable) || !(TextToNumber(reasonable) > MoneyToNumber(c.comInitialCost->Text()))) return;
  const int last = RebuildReasonableList(ws, side);
  // The list has two more entries in front, so this is the second before its last one.
  c.comSubCost->SetText(c.comSubCost->EntryOrLast(last));
}

void ReasonableCostEntered(SinWorkspace& ws, Side side) {
  constexpr int kDefaultEntry = 21;
  SideControls& c = ws.Of(side);
  RebuildReasonableList(ws, side);
  c.cmdSetPeriodParams->SetEnabled(true);
  c.comSubCost->SetText(c.comSubCost->EntryOrLast(kDefaultEntry));
}

}  // namespace vicetoll
