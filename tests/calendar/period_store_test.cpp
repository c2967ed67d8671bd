// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/period_store.h"

#include <gtest/gtest.h>

#include "fault_of.h"

namespace vicetoll {
namespace {

TEST(PeriodStore, StartsEmpty) {
  const PeriodStore store;
  for (int side = 1; side <= kSideCount; ++side) {
    for (int period = 1; period <= kPeriodCount; ++period) {
      const PeriodRecord& record = store.At(period, SideIndex(side));
      EXPECT_FALSE(record.PeriodSelected || record.PeriodSet || record.PeriodFresh || record.PeriodEnabled);
      EXPECT_EQ(record.StartLabel + record.StopLabel + record.InitialCostText, "");
      EXPECT_EQ(record.QuantityListIndex, 0);
    }
  }
}

TEST(PeriodStore, HasACellForEveryPeriodOfEverySide) {
  PeriodStore store;
  for (int side = 1; side <= 24; ++side)
    for (int period = 1; period <= 4; ++period)
      store.At(period, SideIndex(side)).QuantityListIndex = static_cast<std::int16_t>(10 * side + period);
  for (int side = 1; side <= 24; ++side)
    for (int period = 1; period <= 4; ++period)
      EXPECT_EQ(store.At(period, SideIndex(side)).QuantityListIndex, 10 * side + period);
}

TEST(PeriodStore, AnIndexOutsideItsBoundsIsAFault) {
  PeriodStore store;
  for (const auto& [period, side] : {std::pair(5, 1), {0, 1}, {-1, 1}, {1, 25}, {1, 0}, {1, -1}}) {
    EXPECT_EQ(FaultOf([&] { store.At(period, SideIndex(side)); }), FaultKind::Index)
        << period << " of " << side;
    EXPECT_EQ(FaultOf([&] { std::as_const(store).At(period, SideIndex(side)); }), FaultKind::Index);
  }
}

}  // namespace
}  // namespace vicetoll
