// SPDX-License-Identifier: GPL-3.0-or-later
// The words of the entries' file that reading and writing share.
#pragma once

#include <string_view>

namespace vicetoll {

inline constexpr std::string_view kFormatName = "vicetoll entries";
inline constexpr int kFormatVersion = 1;

inline constexpr std::string_view kRangeWord = " to ";
inline constexpr std::string_view kCurrencyWords[] = {"dollar", "euro"};
inline constexpr std::string_view kTabWords[] = {"past", "future", "total"};
inline constexpr std::string_view kCostModeWords[] = {"percent", "final cost"};
inline constexpr std::string_view kCountedInWords[] = {"all", "enabled", "all, period 1 hidden"};
inline constexpr std::string_view kOutOfOrder = "out of order";
inline constexpr std::string_view kNoFigure = "n/a";

}  // namespace vicetoll
