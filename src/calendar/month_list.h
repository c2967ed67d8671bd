// SPDX-License-Identifier: GPL-3.0-or-later
// Lists of months as values.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace vicetoll {

// Whether `last` lies at least one step of `step` months behind `first`. Throws Fault(Overflow) for a step
// of 0, and what MonthsBetween throws.
bool ReachesAStep(const std::string& first, const std::string& last, std::int16_t step);

// `first`, every month that is a multiple of `step` months (1 to 12) behind it, and `last`, also where `last`
// falls between two steps. Where `last` lies less than a step behind `first`, or before it, just the two;
// one where they are equal. Throws as ReachesAStep.
std::vector<std::string> MonthList(const std::string& first, const std::string& last, std::int16_t step);

}  // namespace vicetoll
