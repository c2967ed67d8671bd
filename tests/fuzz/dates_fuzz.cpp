// SPDX-License-Identifier: GPL-3.0-or-later
// Month labels from any bytes: the first four are a month and a step, the rest two labels, parted by a line
// feed.
#include <string>

#include "calendar/date_label.h"
#include "calendar/month_list.h"
#include "fuzz/fuzz.h"

namespace {

using namespace vicetoll;

void CheckMonth(std::int16_t month, std::int16_t year) {
  const std::string label = MakeDateLabel(month, year);
  Must(label.empty() == (month < -1 || month > 13), "months -1 to 13 have a label");
  // The year is read from four characters.
  if (label.empty() || year < 1000 || year > 9999) return;
  Must(YearFromLabel(label) == year, "a label holds its year");
  Must(MonthNumberFromLabel(label) == (month + 11) % 12 + 1, "a label holds its month");
  Must(MonthsInclusive(label, label) == 1, "a month is one month long");
  if (year == 9999) return;
  const std::string next = MonthAfter(label);
  Must(MonthsBetween(label, next) == 1, "the month after is one month behind");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 6) return 0;
  const auto month = static_cast<std::int16_t>(static_cast<std::int8_t>(data[0]));
  const auto year = static_cast<std::int16_t>(data[1] << 8 | data[2]);
  const auto step = static_cast<std::int16_t>(data[3] % 12 + 1);
  CheckMonth(month, year);
  const std::string text(TextOf(data + 4, size - 4));
  const std::size_t end = text.find('\n');
  const std::string first = text.substr(0, end),
                    last = end == std::string::npos ? first : text.substr(end + 1);
  MonthNumberFromLabel(first);
  Tried([&] { YearFromLabel(first); });
  Tried([&] { MonthAfter(first); });
  Tried([&] {
    const int months = MonthsInclusive(first, last);
    Must(MonthsBetween(first, last) == months - 1, "both ends are counted");
    if (first.size() > 100 || last.size() > 100) return;
    const std::vector<std::string> list = MonthList(first, last, step);
    Must(!list.empty() && list.front() == first && list.back() == last, "a list has its two ends");
    Must(list.size() <= 65540, "a list is no longer than its months");
  });
  return 0;
}
