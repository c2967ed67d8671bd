// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/date_label.h"

#include "base/checked_int.h"
#include "calendar/number_text.h"

namespace vicetoll {
namespace {

constexpr std::string_view kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                        "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (Upper(a[i]) != Upper(b[i])) return false;
  return true;
}

}  // namespace

std::int16_t MonthNumberFromLabel(std::string_view label) {
  for (std::int16_t month = 1; month <= kMonthsPerYear; ++month)
    if (EqualIgnoringCase(label.substr(0, 3), kMonths[month - 1])) return month;
  return 0;
}

std::int16_t YearFromLabel(std::string_view label) {
  if (label.size() > 4) label.remove_prefix(label.size() - 4);
  if (label.size() == 4) {
    // Four digits, as every label of the program ends in; anything else takes the general road.
    int year = 0;
    for (char c : label) year = c >= '0' && c <= '9' && year >= 0 ? year * 10 + (c - '0') : -1;
    if (year >= 0) return static_cast<std::int16_t>(year);
  }
  return RoundToInt16(TextToNumber(label));
}

std::string MakeDateLabel(std::int16_t month, std::int16_t year) {
  if (month < -1 || month > kMonthsPerYear + 1) return {};
  std::string label(kMonths[(month + kMonthsPerYear - 1) % kMonthsPerYear]);
  label += " - ";
  label += std::to_string(year);
  return label;
}

std::int16_t MonthsBetween(std::string_view label, std::string_view other) {
  const std::int16_t years = Subtract(YearFromLabel(other), YearFromLabel(label));
  return Add(Multiply(years, kMonthsPerYear),
             Subtract(MonthNumberFromLabel(other), MonthNumberFromLabel(label)));
}

std::int16_t MonthsInclusive(std::string_view first, std::string_view last) {
  return Add(MonthsBetween(first, last), 1);
}

std::string MonthAfter(std::string_view label) {
  const std::int16_t month = MonthNumberFromLabel(label);
  const std::int16_t year = YearFromLabel(label);
  return month == kMonthsPerYear ? MakeDateLabel(1, Add(year, 1)) : MakeDateLabel(Add(month, 1), year);
}

}  // namespace vicetoll
