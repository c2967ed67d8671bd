#include "workspace/date_list.h"

#include <algorithm>

#include "base/checked_int.h"
#include "calendar/date_label.h"

namespace vicetoll {

void FillDateList(bool clear, DropDownList& list, const std::string& first, const std::string& last,
                  std::int16_t step) {
  if (step == 0) throw Fault(FaultKind::Overflow, "A list of months needs a step.");
  const std::int16_t months = MonthsBetween(first, last);
  const std::string selected = list.Text();
  if (clear) list.Clear();
  list.Insert(0, first);
  if (static_cast<double>(months) / step < 1) {
    if (first != last) list.Insert(1, last);
  } else {
    int position = 0;
    const auto addIfMissing = [&](const std::string& label) {
      if (list.Find(label) == -1) list.Insert(++position, label);
    };
    std::int16_t month = MonthNumberFromLabel(first);
    std::int16_t year = YearFromLabel(first);
    for (int done = 0; months - step > done; done += step) {
      month = Add(month, step);
      if (month > 12) {
        year = Add(year, 1);
        month = Subtract(month, 12);
      }
      addIfMissing(MakeDateLabel(month, year));
    }
    addIfMissing(last);
  }
  list.SelectEntry(std::max(0, list.Find(selected)));
}

}  // namespace vicetoll
