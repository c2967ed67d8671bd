// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/side_chain.h"

namespace vicetoll {
namespace {

constexpr int kNone = -1;

// The nearest counted period before p, as positions from 0.
int CountedBefore(const SideTerms& side, int p) {
  for (int q = p - 1; q >= 0; --q)
    if (side.counted[q]) return q;
  return kNone;
}

}  // namespace

std::array<std::string, kPeriodCount> ChainBalances(const SideTerms& side, int count,
                                                    std::string_view opening, const DateWarning& warn) {
  std::array<std::string, kPeriodCount> balances;
  const auto shown = [&](double amount) { return FormatMoney(side.currency, amount, kResultFormat); };
  for (int p = 0; p < count; ++p) {
    const PeriodTerms& period = side.periods[p];
    const int q = CountedBefore(side, p);
    std::string start;
    if (p == 0) {
      start = opening;  // the first period takes the opening as it is, the later ones as it shows
    } else if (q == kNone) {
      start = shown(MoneyToNumber(opening));
    } else {
      const PeriodTerms& before = side.periods[q];
      start =
          shown(CumulativeCostBetweenPeriod(balances[q], before.rates, before.StopLabel, period.StartLabel));
    }
    balances[p] = shown(CumulativeCostInPeriod(start, period, period.StopLabel, warn));
  }
  return balances;
}

SideResults EvaluateSide(const SideTerms& side, const DateWarning& warn) {
  SideResults results;
  double total = 0;
  for (int p = 0; p < kPeriodCount; ++p) {
    results.costs[p] = FormatMoney(side.currency, CostInPeriod(side.periods[p]), kResultFormat);
    if (side.counted[p]) total += MoneyToNumber(results.costs[p]);
  }
  results.total = FormatMoney(side.currency, total, kResultFormat);
  results.balances = ChainBalances(side, kPeriodCount, "0", warn);
  return results;
}

std::string CumulativeChain(const SideTerms& side, std::string_view opening, const DateWarning& warn) {
  const auto balances = ChainBalances(side, kPeriodCount, opening, warn);
  const int last = CountedBefore(side, kPeriodCount);
  return last == kNone ? std::string() : balances[last];
}

}  // namespace vicetoll
