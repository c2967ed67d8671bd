// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/sins_points.h"

#include <algorithm>

namespace vicetoll {
namespace {

bool HasAmount(const ChartBar& bar) {
  return bar.pastOut != 0 || bar.pastWith != 0 || bar.futureOut != 0 || bar.futureWith != 0 ||
         bar.combinedOut != 0 || bar.combinedWith != 0;
}

double Length(const ChartBar& bar) { return std::max(bar.combinedWith, bar.combinedOut); }

}  // namespace

ChartContents SinBarsOf(SinFigures figures, Currency currency) {
  ChartContents contents;
  contents.currency = currency;
  contents.emptyText =
      "No sin that is ticked has an amount. Set its periods, press Update in the table, and its bar is drawn "
      "here.";
  contents.title = "All sins: cost out of pocket and with interest, past and future";
  std::erase_if(figures.sins, [](const ChartBar& bar) { return !HasAmount(bar); });
  std::ranges::stable_sort(figures.sins, std::ranges::greater(), Length);
  contents.bars = std::move(figures.sins);
  if (!contents.bars.empty()) contents.total = std::move(figures.total);
  return contents;
}

}  // namespace vicetoll
