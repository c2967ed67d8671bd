// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/money.h"

#include <gtest/gtest.h>

#include "calendar/number_text.h"
#include "fault_of.h"

namespace vicetoll {
namespace {

constexpr double kAmounts[] = {0, 0.005, -0.3, 1234.5, -1234567.891};
constexpr const char* kFormats[] = {"$#,##0.00", "$#,###,##0", "$0.00", "$0"};

// The text with the dollar sign replaced.
std::string WithSymbol(std::string text, const std::string& symbol) {
  return text.replace(text.find('$'), 1, symbol);
}

TEST(Money, DollarsKeepTheFormatAsItStands) {
  EXPECT_EQ(FormatMoney(Currency::Dollar, 1234.5, "$#,##0.00"), "$1,234.50");
  EXPECT_EQ(FormatMoney(Currency::Dollar, 1234.5, "$#,###,##0"), "$1,235");
}

TEST(Money, EurosTakeThePlaceOfTheDollarSign) {
  for (const double amount : kAmounts) {
    for (const char* format : kFormats) {
      const std::string dollars = FormatMoney(Currency::Dollar, amount, format);
      EXPECT_EQ(FormatMoney(Currency::Euro, amount, format), WithSymbol(dollars, "\x80"));
      EXPECT_EQ(FormatMoneyLetter(Currency::Euro, amount, format), WithSymbol(dollars, "e"));
      EXPECT_EQ(FormatMoneyLetter(Currency::Dollar, amount, format), dollars);
    }
  }
}

TEST(Money, ZeroWithoutAForcedDigitIsTheSymbolAloneAndNoNumber) {
  EXPECT_EQ(FormatMoney(Currency::Dollar, 0, "$#,###"), "$");
  const std::string euro = FormatMoney(Currency::Euro, 0, "$#,###");
  EXPECT_EQ(euro, "\x80");
  EXPECT_EQ(StripCurrency(euro), "");
  EXPECT_EQ(FaultOf([&] { MoneyToNumber(euro); }), FaultKind::Conversion);
}

TEST(Money, StripsOneLeadingSignOnly) {
  EXPECT_EQ(StripCurrency("\x80"
                          "5.00"),
            "5.00");
  EXPECT_EQ(StripCurrency("\x80\x80"
                          "5.00"),
            "\x80"
            "5.00");
  for (const char* text : {"$5.00",
                           "-\x80"
                           "5.00",
                           "5\x80", "e5", ""})
    EXPECT_EQ(StripCurrency(text), text);
}

// What a box shows is what goes on, in either currency and below zero too.
TEST(Money, ReadsBackWhatItShows) {
  for (const Currency currency : {Currency::Dollar, Currency::Euro}) {
    EXPECT_EQ(MoneyToNumber(FormatMoney(currency, 1234.56, "$#,###,##0")), 1235);
    EXPECT_EQ(MoneyToNumber(FormatMoney(currency, -1234.56, "$#,##0.00")), -1234.56);
    EXPECT_EQ(MoneyToNumber(FormatMoney(currency, -0.4, "$#,###,##0")), 0);
    EXPECT_EQ(TextToNumber(FormatMoneyLetter(currency, -7.25, "$#,##0.00")), -7.25);
  }
}

TEST(Money, ABoxMayShowNoAmount) {
  EXPECT_EQ(AmountShown("$1,235"), 1235);
  EXPECT_EQ(AmountShown("-\x80"
                        "12"),
            -12);
  for (const char* text : {"", "$", "\x80", "n/a", "NO DATA", " "})
    EXPECT_EQ(AmountShown(text), std::nullopt) << text;
}

}  // namespace
}  // namespace vicetoll
