// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/text_functions.h"

#include <gtest/gtest.h>

namespace vicetoll {
namespace {

TEST(TextFunctions, FormatANumberGivenAsText) {
  EXPECT_EQ(FormatMoneyText(Currency::Dollar, "1234.5", "$#,##0.00"), "$1,234.50");
  EXPECT_EQ(FormatMoneyText(Currency::Dollar, "$1,234.5", "$#,###"), "$1,235");
  EXPECT_EQ(FormatMoneyText(Currency::Euro, "1.005", "$#,##0.00"),
            "\x80"
            "1.01");
  EXPECT_EQ(FormatMoneyLetterText(Currency::Euro, "-7.25", "$#,##0.00"), "-e7.25");
  EXPECT_EQ(FormatMoneyLetterText(Currency::Dollar, "-7.25", "$#,##0.00"), "-$7.25");
}

TEST(TextFunctions, GiveATextThatIsNoNumberBack) {
  for (const char* text : {"N/A", "", "n/a",
                           "\x80"
                           "5"}) {
    EXPECT_EQ(FormatMoneyText(Currency::Euro, text, "$#,##0.00"), text);
    EXPECT_EQ(FormatMoneyLetterText(Currency::Dollar, text, "$#,##0.00"), text);
  }
}

TEST(TextFunctions, StripsOneLeadingLetterOnly) {
  EXPECT_EQ(StripCurrencyLetter("e5.00"), "5.00");
  EXPECT_EQ(StripCurrencyLetter("ee5"), "e5");
  for (const char* text : {"$5.00", "-e5",
                           "\x80"
                           "5",
                           "E5", ""})
    EXPECT_EQ(StripCurrencyLetter(text), text);
}

TEST(PadRight, AppendsBlanksUpToTheWidth) {
  EXPECT_EQ(PadRight("ab", 5), "ab   ");
  EXPECT_EQ(PadRight("", 2), "  ");
}

TEST(PadRight, LeavesLongerTextsAlone) {
  EXPECT_EQ(PadRight("abcdef", 3), "abcdef");
  EXPECT_EQ(PadRight("abc", 3), "abc");
  EXPECT_EQ(PadRight("abc", -1), "abc");
}

}  // namespace
}  // namespace vicetoll
