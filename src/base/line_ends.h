// SPDX-License-Identifier: GPL-3.0-or-later
// The program's texts end their lines in CR LF; what shows them ends them in LF.
#pragma once

#include <string>
#include <string_view>

namespace vicetoll {

inline constexpr std::string_view kLineEnd = "\r\n";

// The text with that end for each of its lines, whatever ended them before: CR, LF or CR LF.
std::string WithLineEnds(std::string_view text, std::string_view end = kLineEnd);

}  // namespace vicetoll
