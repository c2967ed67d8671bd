// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/line_ends.h"

#include <gtest/gtest.h>

namespace vicetoll {
namespace {

TEST(LineEnds, AnyEndBecomesTheOneAskedFor) {
  constexpr const char* kMixed = "a\rb\nc\r\nd";
  EXPECT_EQ(WithLineEnds(kMixed), "a\r\nb\r\nc\r\nd");
  EXPECT_EQ(WithLineEnds(kMixed, "\n"), "a\nb\nc\nd");
}

TEST(LineEnds, AnEmptyLineStays) {
  EXPECT_EQ(WithLineEnds("\n\r\r\n\r\n", "\n"), "\n\n\n\n");
  EXPECT_EQ(WithLineEnds("\n\r"), "\r\n\r\n");
  EXPECT_EQ(WithLineEnds(""), "");
}

}  // namespace
}  // namespace vicetoll
