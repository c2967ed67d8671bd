// SPDX-License-Identifier: GPL-3.0-or-later
// Past and future: the two sides of a sin. One code serves both; these are the words in which they differ.
#pragma once

#include <string>
#include <string_view>

namespace vicetoll {

enum class Side { Past, Future };

inline constexpr Side kSides[] = {Side::Past, Side::Future};

// The side's suffix in names of controls: "Past", "Fut".
constexpr std::string_view ControlSuffix(Side side) { return side == Side::Past ? "Past" : "Fut"; }

// The side's suffix in names of operations: "Past", "Future".
constexpr std::string_view OperationSuffix(Side side) { return side == Side::Past ? "Past" : "Future"; }

// The side's word in files and tables: "past", "future".
constexpr std::string_view SideWord(Side side) { return side == Side::Past ? "past" : "future"; }

// "Past Period 2".
inline std::string PeriodName(Side side, int period) {
  return (side == Side::Past ? "Past Period " : "Future Period ") + std::to_string(period);
}

// A text that may read differently on the two sides.
struct BySide {
  std::string_view past, future;

  constexpr BySide() = default;
  constexpr BySide(const char* both) : past(both), future(both) {}
  constexpr BySide(const char* pastText, const char* futureText) : past(pastText), future(futureText) {}

  constexpr std::string_view operator[](Side side) const { return side == Side::Past ? past : future; }
};

}  // namespace vicetoll
