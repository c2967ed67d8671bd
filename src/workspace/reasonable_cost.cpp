// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/reasonable_cost.h"

#include "calendar/number_text.h"

namespace vicetoll {
namespace {

// Fills the reasonable list: "$0.00", "$0.05", and every gross entry below the selected gross cost.
// Returns the position of the last such entry in the gross list, 0 if there is none.
int RebuildReasonableList(WorkspaceSide& side) {
  const double gross = MoneyToNumber(side.comInitialCost->Text());
  side.comSubCost->Clear();
  for (double first : {0.0, 0.05}) side.comSubCost->Append(side.Money(first, "$0.00"));
  int last = 0;
  for (int i = 0; i < side.comInitialCost->Count(); ++i) {
    const std::string& entry = side.comInitialCost->Entry(i);
    if (!(MoneyToNumber(entry) < gross)) continue;
    side.comSubCost->Append(entry);
    last = i;
  }
  return last;
}

}  // namespace

void GrossCostPicked(WorkspaceSide& side) {
  side.cmdSetPeriodParams->SetEnabled(true);
  // A text with the euro sign in front is no number here, so in euros the pick changes nothing.
  const std::string& reasonable = side.comSubCost->Text();
  if (!IsNumeric(reasonable) || !(TextToNumber(reasonable) > MoneyToNumber(side.comInitialCost->Text())))
    return;
  const int last = RebuildReasonableList(side);
  // The list has two more entries in front, so this is the second before its last one.
  side.comSubCost->SetText(side.comSubCost->EntryOrLast(last));
}

void ReasonableCostEntered(WorkspaceSide& side) {
  constexpr int kDefaultEntry = 21;
  RebuildReasonableList(side);
  side.cmdSetPeriodParams->SetEnabled(true);
  side.comSubCost->SetText(side.comSubCost->EntryOrLast(kDefaultEntry));
}

}  // namespace vicetoll
