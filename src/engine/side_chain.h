// SPDX-License-Identifier: GPL-3.0-or-later
// How the periods of a side hang together: costs, total, and the balance carried from period to period.
//
// Every balance is formatted before the next step reads it: what a box shows is what goes on.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "calendar/money.h"
#include "engine/period_cost.h"

namespace vicetoll {

// The format of period results, balances and side totals: whole units.
inline constexpr std::string_view kResultFormat = "$#,###,##0";
// The format of the totals over both sides: zero shows as the symbol alone.
inline constexpr std::string_view kTotalFormat = "$#,###";

// A side as plain values. Period p stands at p - 1.
struct SideTerms {
  std::array<PeriodTerms, kPeriodCount> periods;
  std::array<bool, kPeriodCount> counted{};
  Currency currency = Currency::Dollar;
};

// The texts of a side's result boxes.
struct SideResults {
  std::array<std::string, kPeriodCount> costs;     // of all four periods, counted or not
  std::array<std::string, kPeriodCount> balances;  // likewise
  std::string total;                               // of the counted periods, adding what their boxes show
};

// Evaluates a side into the texts of its boxes; the chain opens with "0".
SideResults EvaluateSide(const SideTerms& side, const DateWarning& warn);

// The balances of the first `count` periods. A period opens with the balance of the nearest counted
// period before it, grown over the gap at that period's rates; with none before it, with `opening`. A
// period that is not counted drops out of the chain, though its own balance is still reckoned.
std::array<std::string, kPeriodCount> ChainBalances(const SideTerms& side, int count,
                                                    std::string_view opening, const DateWarning& warn);

// The side's final balance from that opening: the text of its last counted period, empty if none is.
std::string CumulativeChain(const SideTerms& side, std::string_view opening, const DateWarning& warn);

}  // namespace vicetoll
