// SPDX-License-Identifier: GPL-3.0-or-later
// The results of a side in their boxes, and the TOTAL tab.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Brings the result boxes of the set periods in line with their radios and evaluates the side, once per
// set period, with the flags as they then stand.
void RefreshResults(WorkspaceSide& side, SideIndex sideIndex);

// Evaluates a side into its boxes.
void PopulateResults(WorkspaceSide& side, SideIndex sideIndex);

// The future side's final balance from an opening balance; empty if no period counts.
std::string CumulativeChainFuture(SinWorkspace& ws, SideIndex sideIndex, const std::string& opening);

// Fills the TOTAL tab; runs each time it is opened.
void UpdateTotalTab(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide);

// Evaluates the figure at the chosen future date, leaving the list of dates as it is.
void UpdateFutureDateTotal(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide);

// Appends "0%" to "100%" to the two rate lists of the TOTAL tab. They are not emptied, so they grow by
// 101 entries at every change of tab.
void GrowFutureRateLists(SinWorkspace& ws);

// What counts of a side for its totals: the periods that are set and enabled.
struct CountedPeriods {
  int first = 0, last = 0;     // period numbers, 0 where nothing counts
  bool worthCounting = false;  // something counts, and the side's total is not zero
};
CountedPeriods CountedOf(const WorkspaceSide& side, SideIndex sideIndex);

// The figure in txtCumulativeFutureDateTot with what it came from.
struct FutureDateFigure {
  std::string from, date;  // labels: the stop of the last period that counts, and the chosen date
  double balance = 0;      // at that stop
  double netRate = 0;      // percent a year
  double value = 0;        // what the box shows, whole units
};
// None while the TOTAL tab was never opened or shows no figure, and none where the figure is out of date: the
// periods have changed and the tab was not opened since. Shows no message.
std::optional<FutureDateFigure> FutureDateFigureOf(const SinWorkspace& ws);

// What stands in the box where that is out of date, whole units as digits, empty for "n/a"; none where the
// figure is what it would be now. The TOTAL tab must have been opened once. And putting it there again.
std::optional<std::string> OldFutureDateFigure(const SinWorkspace& ws);
void ShowOldFutureDateFigure(SinWorkspace& ws, const std::string& figure);

// The same of the balance in txtCumulativeResultsTotalSummaryTot, which the table over all sins writes too:
// none where it is what the tab would write now, or zero where the tab was never opened.
std::optional<std::string> OldBalance(const SinWorkspace& ws);
void ShowOldBalance(SinWorkspace& ws, const std::string& balance);

// A short form of UpdateTotalTab for the table over all sins: brings txtCumulativeResultsTotalSummaryTot up
// to date and leaves the rest of the tab alone. Where both totals are zero it writes "0", not "n/a"; where
// one is not, but nothing counts, it leaves the box as it is.
void UpdateCombinedCumulative(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide);

// Smoking's euro button goes for good, and the window, which was higher to make room for it, is lowered.
void RetireEuroButton(SinWorkspace& ws);

}  // namespace vicetoll
