// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/month_list.h"

#include "base/checked_int.h"
#include "calendar/date_label.h"

namespace vicetoll {

namespace {

void RequireStep(std::int16_t step) {
  if (step == 0) throw Fault(FaultKind::Overflow, "A list of months needs a step.");
}

bool IsAStep(std::int16_t months, std::int16_t step) { return static_cast<double>(months) / step >= 1; }

}  // namespace

bool ReachesAStep(const std::string& first, const std::string& last, std::int16_t step) {
  RequireStep(step);
  return IsAStep(MonthsBetween(first, last), step);
}

std::vector<std::string> MonthList(const std::string& first, const std::string& last, std::int16_t step) {
  RequireStep(step);
  const std::int16_t months = MonthsBetween(first, last);
  const bool hasSteps = IsAStep(months, step);
  std::vector<std::string> labels;
  labels.reserve(hasSteps ? months / step + 2 : 2);
  labels.push_back(first);
  if (hasSteps) {
    const int untilLast = months - step;
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
