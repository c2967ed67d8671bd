// SPDX-License-Identifier: GPL-3.0-or-later
// Months as text. A DateLabel such as "Jun - 1915" is the only date type: the month is its first three
// characters, the year its last four. Months and years are checked 16-bit numbers.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vicetoll {

inline constexpr int kMonthsPerYear = 12;

// 1 to 12, or 0 where the first three characters, in any case, name no month.
std::int16_t MonthNumberFromLabel(std::string_view label);

// The last four characters as a number. Throws Fault(Conversion) if they are none.
std::int16_t YearFromLabel(std::string_view label);

// The label of a month. 0 and -1 are December and November, 13 is January; the year stays as it is, so a
// caller that steps over a year's end moves the year itself. Any other month gives the empty text.
std::string MakeDateLabel(std::int16_t month, std::int16_t year);

// The months from one label to another, both ends counted: 1 for equal labels, 0 or less where `last`
// lies before `first`. Throws Fault(Conversion) for a bad year and Fault(Overflow).
std::int16_t MonthsInclusive(std::string_view first, std::string_view last);

// The months by which `other` lies behind `label`; negative where it lies before.
std::int16_t MonthsBetween(std::string_view label, std::string_view other);

// "Jun - 2031" as "2031-06"; a label that names no month as it is.
std::string IsoMonth(std::string_view label);

// "2031-06" as "Jun - 2031"; the empty text for what is no month so written, its year one of those below.
std::string LabelOfIsoMonth(std::string_view iso);

// Years of four digits, the first of which is no zero.
inline constexpr int kFirstIsoYear = 1000, kLastIsoYear = 9999;

// The label of the month after this one, across a year's end.
std::string MonthAfter(std::string_view label);

}  // namespace vicetoll
