// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/checked_int.h"

#include <gtest/gtest.h>

#include "fault_of.h"

namespace vicetoll {
namespace {

TEST(CheckedInt, ReckonsWithinSixteenBits) {
  EXPECT_EQ(Add(32000, 767), 32767);
  EXPECT_EQ(Subtract(-32000, 768), -32768);
  EXPECT_EQ(Multiply(-2730, 12), -32760);
  EXPECT_EQ(Int16(-32768), -32768);
}

TEST(CheckedInt, LeavingSixteenBitsIsAFault) {
  EXPECT_EQ(FaultOf([] { Add(32767, 1); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { Subtract(-32768, 1); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { Multiply(2731, 12); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { Int16(32768); }), FaultKind::Overflow);
}

TEST(CheckedInt, AnAmountMustBeFinite) {
  EXPECT_EQ(Finite(-1e308), -1e308);
  EXPECT_EQ(FaultOf([] { Finite(std::numeric_limits<double>::infinity()); }), FaultKind::Overflow);
  EXPECT_EQ(FaultOf([] { Finite(std::nan("")); }), FaultKind::Overflow);
}

TEST(Fault, HasANameForEachKind) {
  EXPECT_EQ(FaultName(FaultKind::Conversion), "conversion");
  EXPECT_EQ(FaultName(FaultKind::Overflow), "overflow");
  EXPECT_EQ(FaultName(FaultKind::Index), "index");
  EXPECT_EQ(FaultName(FaultKind::File), "file");
}

}  // namespace
}  // namespace vicetoll
