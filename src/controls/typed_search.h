// SPDX-License-Identifier: GPL-3.0-or-later
// Finding an entry of a list by what a person types.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vicetoll {

// The position of the entry that is meant, -1 if none is: the first that is the amount typed ("7.5":
// "$7.50"), else the first with words that begin with those typed ("2005": "Jan - 2005", "jun 2031": "Jun -
// 2031"). Case, currency and percent signs, commas and what stands between words do not matter. One letter
// typed again and again goes through the entries that begin with it, on from position `from`.
int FindTyped(const std::vector<std::string>& entries, std::string_view typed, int from);

}  // namespace vicetoll
