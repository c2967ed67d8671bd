// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/period_store.h"

#include "base/fault.h"

namespace vicetoll {

const PeriodRecord& PeriodStore::At(int period, SideIndex side) const {
  const int number = side.Number();
  if (period < 1 || period > kPeriodCount || number < 1 || number > kSideCount)
    throw Fault(FaultKind::Index,
                "There is no period " + std::to_string(period) + " of side " + std::to_string(number) + ".");
  return records_[number - 1][period - 1];
}

PeriodRecord& PeriodStore::At(int period, SideIndex side) {
  return const_cast<PeriodRecord&>(static_cast<const PeriodStore&>(*this).At(period, side));
}

}  // namespace vicetoll
