// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/chart_text.h"

#include <gtest/gtest.h>

#include "charts/chart_window.h"

namespace vicetoll {
namespace {

TEST(AxisAmounts, AreShortFromAMillionOn) {
  EXPECT_EQ(AxisAmount(Currency::Dollar, 40000, 80000, 20000), "$40,000");
  EXPECT_EQ(AxisAmount(Currency::Dollar, 0.5, 1, 0.5), "$0.50");
  EXPECT_EQ(AxisAmount(Currency::Dollar, 500000, 1500000, 500000), "$0.5M");
  EXPECT_EQ(AxisAmount(Currency::Euro, 1.2e6, 1.4e6, 2e5),
            "\x80"
            "1.2M");
  EXPECT_EQ(AxisAmount(Currency::Dollar, 1.25e9, 2e9, 2.5e8), "$1.25B");
  EXPECT_EQ(AxisAmount(Currency::Dollar, 1e15, 1e15, 2e14), "$1,000T");
  EXPECT_EQ(AxisAmount(Currency::Dollar, -2e6, 1e6, 1e6), "-$2M");
}

TEST(EndAmounts, AreWholeUnitsUpToNineDigits) {
  EXPECT_EQ(EndAmount(Currency::Dollar, 31204.4), "$31,204");
  EXPECT_EQ(EndAmount(Currency::Dollar, -0.2), "$0");
  EXPECT_EQ(EndAmount(Currency::Dollar, 999999999), "$999,999,999");
  EXPECT_EQ(EndAmount(Currency::Dollar, 1234567890), "$1.23B");
}

TEST(Readouts, AddUpAsTheyAreShown) {
  ChartContents contents;
  contents.months.push_back({"Jun - 2031", ChartMonthKind::Active, Side::Future, 1, 31204.4, 39870.6});
  EXPECT_EQ(Readout(contents, 0),
            "Jun - 2031: out of pocket $31,204, with interest $39,871, grown by $8,667");
  EXPECT_EQ(Readout(contents, 1), "");
  EXPECT_EQ(Readout(contents, -1), "");
}

TEST(Pictures, HaveTheFormatOfTheirSuffix) {
  EXPECT_EQ(PictureFormatOf("a.svg"), PictureFormat::Svg);
  EXPECT_EQ(PictureFormatOf("/x.png/a.PDF"), PictureFormat::Pdf);
  EXPECT_EQ(PictureFormatOf("a.png"), PictureFormat::Png);
  EXPECT_EQ(PictureFormatOf("a"), PictureFormat::Png);
  EXPECT_EQ(PictureFormatOf(""), PictureFormat::Png);
}

}  // namespace
}  // namespace vicetoll
