// Fills a list with months.
#pragma once

#include <cstdint>
#include <string>

#include "controls/drop_down_list.h"

namespace vicetoll {

// Fills the list with `first`, every month that is a multiple of `step` months (1 to 12) behind it, and
// `last`, also where `last` falls between two steps. Without `clear` the months go before the entries
// that are there, and only those that are missing, `first` excepted. A selection survives if its text is
// still an entry; otherwise the first entry is selected.
//
// Where `last` lies less than a step behind `first`, or before it, the list holds just the two.
// Throws Fault for a malformed label, with the list in pieces.
void FillDateList(bool clear, DropDownList& list, const std::string& first, const std::string& last,
                  std::int16_t step);

}  // namespace vicetoll
