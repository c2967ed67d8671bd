// SPDX-License-Identifier: GPL-3.0-or-later
// Months, years and counts are signed 16-bit numbers whose overflow is a fault, never a wrapped value.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

#include "base/fault.h"

namespace vicetoll {

// The value as a 16-bit number. Throws Fault(Overflow) outside -32768..32767.
inline std::int16_t Int16(std::int64_t value) {
  if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max())
    throw Fault(FaultKind::Overflow, "A month, year or count is out of its range.");
  return static_cast<std::int16_t>(value);
}

// The number as a 16-bit one, halves to the even neighbour. Throws Fault(Overflow).
inline std::int16_t RoundToInt16(double value) {
  if (!(std::fabs(value) < 1e6)) return Int16(1'000'000);
  return Int16(static_cast<std::int64_t>(std::nearbyint(value)));
}

inline std::int16_t Add(std::int16_t a, std::int16_t b) { return Int16(std::int64_t{a} + b); }
inline std::int16_t Subtract(std::int16_t a, std::int16_t b) { return Int16(std::int64_t{a} - b); }
inline std::int16_t Multiply(std::int16_t a, std::int16_t b) { return Int16(std::int64_t{a} * b); }

// The value itself, if it is finite. Throws Fault(Overflow) for an amount beyond a double's range.
inline double Finite(double value) {
  if (!std::isfinite(value))
    throw Fault(FaultKind::Overflow, "An amount grew beyond what the program can reckon with.");
  return value;
}

}  // namespace vicetoll
