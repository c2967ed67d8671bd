// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/date_list.h"

#include <algorithm>
#include <utility>

#include "calendar/date_label.h"
#include "calendar/month_list.h"

namespace vicetoll {

void FillDateList(bool clear, DropDownList& list, const std::string& first, const std::string& last,
                  std::int16_t step) {
  std::vector<std::string> months = MonthList(first, last, step);
  // In an empty list nothing is there yet; the months of steps of a year at most are all different.
  const bool allDifferent = clear && step > 0 && step <= kMonthsPerYear && MonthNumberFromLabel(first) != 0;
  const bool onlyMissing = !allDifferent && ReachesAStep(first, last, step);
  const std::string selected = list.Text();
  if (clear) list.Clear();
  if (clear && !onlyMissing) {
    list.Append(std::move(months));
  } else {
    int position = 0;
    for (const std::string& month : months)
      if (position == 0 || !onlyMissing || list.Find(month) == -1) list.Insert(position++, month);
  }
  list.SelectEntry(std::max(0, list.Find(selected)));
}

}  // namespace vicetoll
