// SPDX-License-Identifier: GPL-3.0-or-later
// Fills a list with months.
#pragma once

#include <cstdint>
#include <string>

#include "controls/drop_down_list.h"

namespace vicetoll {

// Months from entry to entry of a list of the coarse resolution.
inline constexpr std::int16_t kCoarseStep = 12;

// The earliest past month lies so many years back, the latest future month so many ahead.
inline constexpr int kPastYears = -90;
inline constexpr int kFutureYears = 75;

// Fills the list with the months from `first` to `last` in steps of `step` months, as MonthList has them.
// Without `clear` they go before the entries that are there, and only those that are missing, `first`
// excepted; where there is no step between them, both. A selection survives if its text is still an entry;
// otherwise the first entry is selected. Throws as MonthList, with the list as it was.
void FillDateList(bool clear, DropDownList& list, const std::string& first, const std::string& last,
                  std::int16_t step);

}  // namespace vicetoll
