#include "calendar/period_store.h"

#include "base/fault.h"

namespace vicetoll {

const PeriodRecord& PeriodStore::At(int period, int sideIndex) const {
  if (period < 1 || period > kPeriods || sideIndex < 1 || sideIndex > kSides)
    throw Fault(FaultKind::Index, "There is no period " + std::to_string(period) + " of side " +
                                      std::to_string(sideIndex) + ".");
  return records_[sideIndex - 1][period - 1];
}

PeriodRecord& PeriodStore::At(int period, int sideIndex) {
  return const_cast<PeriodRecord&>(static_cast<const PeriodStore&>(*this).At(period, sideIndex));
}

}  // namespace vicetoll
