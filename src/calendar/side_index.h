// SPDX-License-Identifier: GPL-3.0-or-later
// The numbers of the sides of all sins.
#pragma once

#include "base/side.h"

namespace vicetoll {

inline constexpr int kSinCount = 12;
inline constexpr int kSideCount = 2 * kSinCount;

// One side of one sin by its number in the period store, 1 to kSideCount. Any number can be named; the
// store refuses those that are none of its sides.
class SideIndex {
 public:
  constexpr explicit SideIndex(int number) : number_(number) {}

  constexpr int Number() const { return number_; }
  friend constexpr bool operator==(SideIndex, SideIndex) = default;

 private:
  int number_;
};

// Of the sin at a position from 0: 2p + 1 is its past, 2p + 2 its future.
constexpr SideIndex SideIndexOf(int position, Side side) {
  return SideIndex(2 * position + (side == Side::Past ? 1 : 2));
}

}  // namespace vicetoll
