// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/month_list.h"

#include "base/checked_int.h"
#include "calendar/date_label.h"

namespace vicetoll {

bool ReachesAStep(const std::string& first, const std::string& last, std::int16_t step) {
  if (step == 0) throw Fault(FaultKind::Overflow, "A list of months needs a step.");
  return static_cast<double>(MonthsBetween(first, last)) / step >= 1;
}

std::vector<std::string> MonthList(const std::string& first, const std::string& last, std::int16_t step) {
  std::vector<std::string> labels{first};
  if (ReachesAStep(first, last, step)) {
    const int untilLast = MonthsBetween(first, last) - step;
    if (untilLast > 0) labels.reserve(untilLast / step + 3);
    std::int16_t month = MonthNumberFromLabel(first);
    std::int16_t year = YearFromLabel(first);
    for (int done = 0; done < untilLast; done += step) {
      month = Add(month, step);
      if (month > 12) {
        year = Add(year, 1);
        month = Subtract(month, 12);
      }
      labels.push_back(MakeDateLabel(month, year));
    }
  }
  if (labels.back() != last) labels.push_back(last);
  return labels;
}

}  // namespace vicetoll
