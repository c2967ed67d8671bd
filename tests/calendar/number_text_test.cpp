// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/number_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>

#include "fault_of.h"

namespace vicetoll {
namespace {

// ---- Number to text ----

struct FormatCase {
  double value;
  const char* format;
  const char* text;
};

class Format : public testing::TestWithParam<FormatCase> {};

TEST_P(Format, ShowsTheValue) {
  const FormatCase& c = GetParam();
  EXPECT_EQ(FormatNumber(c.value, c.format), c.text) << c.value << " in " << c.format;
}

INSTANTIATE_TEST_SUITE_P(MoneyOfMonths, Format,
                         testing::Values(FormatCase{0, "$#,##0.00", "$0.00"},
                                         FormatCase{61.1442, "$#,##0.00", "$61.14"},
                                         FormatCase{999.995, "$#,##0.00", "$1,000.00"},
                                         FormatCase{1234567.891, "$#,##0.00", "$1,234,567.89"},
                                         FormatCase{-1234.5, "$#,##0.00", "-$1,234.50"}));

INSTANTIATE_TEST_SUITE_P(WholeUnits, Format,
                         testing::Values(FormatCase{0, "$#,###,##0", "$0"},
                                         FormatCase{0.5, "$#,###,##0", "$1"},
                                         FormatCase{182.52, "$#,###,##0", "$183"},
                                         FormatCase{999.4, "$#,###,##0", "$999"},
                                         FormatCase{999999.5, "$#,###,##0", "$1,000,000"}));

INSTANTIATE_TEST_SUITE_P(NoForcedDigit, Format,
                         testing::Values(FormatCase{0, "$#,###", "$"}, FormatCase{0.4, "$#,###", "$"},
                                         FormatCase{0.5, "$#,###", "$1"},
                                         FormatCase{1234.5, "$#,###", "$1,235"},
                                         FormatCase{0.5, "##.00", ".50"}, FormatCase{0, "##.00", ".00"},
                                         FormatCase{12.345, "##.00", "12.35"},
                                         FormatCase{1234.5, "##.00", "1234.50"},
                                         FormatCase{0.5, "$##.00", "$.50"}));

INSTANTIATE_TEST_SUITE_P(ListEntries, Format,
                         testing::Values(FormatCase{0.1, "$0.00", "$0.10"}, FormatCase{2400, "$0", "$2400"},
                                         FormatCase{20, "0", "20"}, FormatCase{0.05, "0.00", "0.05"},
                                         FormatCase{0.07, "0%", "7%"}, FormatCase{0.29, "0%", "29%"},
                                         FormatCase{0, "0%", "0%"}, FormatCase{1, "0%", "100%"}));

// The doubles nearest to these decimals lie on either side of them; the decimal decides.
INSTANTIATE_TEST_SUITE_P(
    HalvesGoAwayFromZero, Format,
    testing::Values(FormatCase{7.605, "$#,##0.00", "$7.61"}, FormatCase{1.005, "$#,##0.00", "$1.01"},
                    FormatCase{-1.005, "$#,##0.00", "-$1.01"}, FormatCase{0.125, "$#,##0.00", "$0.13"},
                    FormatCase{2.5, "$#,###,##0", "$3"}, FormatCase{-2.5, "$#,###,##0", "-$3"},
                    FormatCase{0.075, "0%", "8%"}));

INSTANTIATE_TEST_SUITE_P(BelowZeroTheMinusStays, Format,
                         testing::Values(FormatCase{-0.4, "$#,###,##0", "-$0"},
                                         FormatCase{-0.4, "$#,###", "-$"},
                                         FormatCase{-0.001, "$#,##0.00", "-$0.00"},
                                         FormatCase{-1e-30, "$#,##0.00", "-$0.00"},
                                         FormatCase{-0.0, "$#,##0.00", "$0.00"}));

// 15 digits count; behind them come zeros, never an exponent.
INSTANTIATE_TEST_SUITE_P(
    LargeAmountsHaveNoExponent, Format,
    testing::Values(FormatCase{1e31, "$#,###,##0", "$10,000,000,000,000,000,000,000,000,000,000"},
                    FormatCase{123456789012345678e3, "$#,###", "$123,456,789,012,346,000,000"},
                    FormatCase{1e15, "##.00", "1000000000000000.00"},
                    FormatCase{123456789012.345, "$#,##0.00", "$123,456,789,012.35"}));

TEST(NumberText, ShowsEvenTheLargestDouble) {
  const std::string text = FormatNumber(std::numeric_limits<double>::max(), "$#,##0.00");
  // 1.79769313486232e308: 309 digits in 103 groups, the symbol, and ".00".
  EXPECT_EQ(text.size(), 1 + 309 + 102 + 3u);
  EXPECT_TRUE(text.starts_with("$179,769,313,486,232,000,"));
}

TEST(NumberText, HasAtMostFifteenDigitsAndNoTrailingZeros) {
  EXPECT_EQ(NumberToText(0), "0");
  EXPECT_EQ(NumberToText(-0.0), "0");
  EXPECT_EQ(NumberToText(100), "100");
  EXPECT_EQ(NumberToText(-2.5), "-2.5");
  EXPECT_EQ(NumberToText(0.1 + 0.2), "0.3");
  EXPECT_EQ(NumberToText(186.19479684), "186.19479684");
  EXPECT_EQ(NumberToText(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(NumberToText(123456789012345678.0), "123456789012346000");
}

TEST(NumberText, HasNoExponent) {
  EXPECT_EQ(NumberToText(1e31), "1" + std::string(31, '0'));
  EXPECT_EQ(NumberToText(1e-7), "0.0000001");
  EXPECT_EQ(NumberToText(-1.5e-10), "-0.00000000015");
}

TEST(NumberText, WhatIsNotFiniteIsAFault) {
  for (const double value :
       {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), std::nan("")}) {
    EXPECT_EQ(FaultOf([&] { NumberToText(value); }), FaultKind::Overflow);
    EXPECT_EQ(FaultOf([&] { FormatNumber(value, "$#,##0.00"); }), FaultKind::Overflow);
    EXPECT_EQ(FaultOf([&] { RoundToCents(value); }), FaultKind::Overflow);
  }
}

// ---- The 15 digits, checked against the library's ----

void ExpectDigitsOfTheLibrary(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.14e", value);
  std::string wanted{text[0]};
  wanted.append(text + 2, 14);
  wanted.erase(wanted.find_last_not_of('0') + 1);
  const Decimal decimal = ToDecimal(-value);
  ASSERT_EQ(std::string(decimal.digits, decimal.count), wanted) << text;
  ASSERT_EQ(decimal.pointAfter, std::atoi(text + 17) + 1) << text;
  ASSERT_TRUE(decimal.negative);
}

TEST(Digits, AreThoseOfTheLibraryForRandomValues) {
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> exponent(-2, 17);
  for (int i = 0; i < 300'000; ++i)
    ASSERT_NO_FATAL_FAILURE(ExpectDigitsOfTheLibrary(std::pow(10, exponent(random))));
}

// Around every power of ten, and where a half, a quarter or an eighth lies exactly between two texts.
TEST(Digits, AreThoseOfTheLibraryAtTheEdges) {
  std::mt19937_64 random(4);
  for (double power = 1e-3; power < 1e19; power *= 10) {
    double above = std::round(power * 1000) / 1000, below = above;
    for (int i = 0; i < 100; ++i) {
      ASSERT_NO_FATAL_FAILURE(ExpectDigitsOfTheLibrary(above));
      ASSERT_NO_FATAL_FAILURE(ExpectDigitsOfTheLibrary(below));
      above = std::nextafter(above, 1e300);
      below = std::nextafter(below, 0);
    }
  }
  for (double eighths = 1e14; eighths < 8e15; eighths *= 1.1)
    for (int i = 0; i < 2000; ++i)
      ASSERT_NO_FATAL_FAILURE(ExpectDigitsOfTheLibrary(
          std::floor(std::uniform_real_distribution<double>(eighths, eighths * 1.1)(random)) / 8));
}

// ---- Rounding, checked against integers ----

// Digits in groups of three, by a loop that knows nothing of formats.
void AppendGrouped(std::uint64_t number, std::string& out) {
  if (number >= 1000) {
    AppendGrouped(number / 1000, out);
    out += ',';
    number %= 1000;
    out += static_cast<char>('0' + number / 100);
    out += static_cast<char>('0' + number / 10 % 10);
  } else if (number >= 100) {
    out += static_cast<char>('0' + number / 100);
    out += static_cast<char>('0' + number / 10 % 10);
  } else if (number >= 10) {
    out += static_cast<char>('0' + number / 10);
  }
  out += static_cast<char>('0' + number % 10);
}

// Every value of whole thousandths up to a thousand: every tenth is a tie on half a cent, and every
// thousandth one on half a unit.
TEST(DecimalRounding, AgreesWithIntegersOnEveryThousandth) {
  std::string text;
  int failures = 0;
  for (std::uint64_t k = 0; k <= 1'000'000 && failures < 10; ++k) {
    const double value = static_cast<double>(k) / 1000;
    const std::uint64_t cents = (k + 5) / 10;
    const std::uint64_t units = (k + 500) / 1000;
    const double rounded = static_cast<double>(cents) / 100;
    text = "$";
    AppendGrouped(cents / 100, text);
    text += '.';
    text += static_cast<char>('0' + cents / 10 % 10);
    text += static_cast<char>('0' + cents % 10);
    if (RoundToCents(value) != rounded || RoundToCents(-value) != -rounded ||
        FormatNumber(value, "$#,##0.00") != text) {
      ADD_FAILURE() << k << " thousandths are not " << text;
      ++failures;
    }
    text = k == 0 ? "$" : "-$";
    AppendGrouped(units, text);
    if (FormatNumber(-value, "$#,###,##0") != text) {
      ADD_FAILURE() << k << " thousandths below zero are not " << text;
      ++failures;
    }
  }
}

// |value| * 10^decimals, rounded half away from zero on its 15 digits, in integers. Below 1e12.
std::uint64_t SlowlyRounded(double value, int decimals) {
  char text[32];
  std::snprintf(text, sizeof text, "%.14e", std::fabs(value));
  std::uint64_t digits = static_cast<std::uint64_t>(text[0] - '0');
  for (int i = 2; i < 16; ++i) digits = digits * 10 + static_cast<std::uint64_t>(text[i] - '0');
  int power = std::atoi(text + 17) - 14 + decimals;  // behind the "e"
  for (; power > 0; --power) digits *= 10;
  if (power < -17) return 0;
  std::uint64_t divisor = 1;
  for (; power < 0; ++power) divisor *= 10;
  return (digits + divisor / 2) / divisor;
}

void ExpectRoundedAlike(double value) {
  constexpr const char* kByDecimals[] = {"0", "0.0", "0.00", "0.000", "0.0000"};
  for (int decimals = 0; decimals <= 4; ++decimals) {
    std::string digits = FormatNumber(std::fabs(value), kByDecimals[decimals]);
    std::erase(digits, '.');
    ASSERT_EQ(std::strtoull(digits.c_str(), nullptr, 10), SlowlyRounded(value, decimals))
        << NumberToText(value) << " to " << decimals << " decimals";
  }
  ASSERT_EQ(RoundToCents(value), std::copysign(static_cast<double>(SlowlyRounded(value, 2)) / 100, value));
}

TEST(DecimalRounding, AgreesWithTheSlowWayOnRandomValues) {
  std::mt19937_64 random(1);
  std::uniform_real_distribution<double> exponent(-3, 12);
  std::uniform_real_distribution<double> sign(-1, 1);
  for (int i = 0; i < 40'000; ++i)
    ASSERT_NO_FATAL_FAILURE(ExpectRoundedAlike(std::copysign(std::pow(10, exponent(random)), sign(random))));
}

// Around ties of every size: the tie itself, its neighbours, and values that the 15 digits pull onto it.
TEST(DecimalRounding, AgreesWithTheSlowWayNearTies) {
  std::mt19937_64 random(2);
  for (double size = 1; size < 1e12; size *= 10) {
    for (int i = 0; i < 300; ++i) {
      const double scale = std::pow(10, i % 5);
      const double tie =
          (std::floor(std::uniform_real_distribution<double>(size, 10 * size)(random)) + 0.5) / scale;
      for (const double offset : {0.0, 4e-16, -4e-16, 2e-15, -2e-15, 4e-15, -4e-15, 6e-15, -6e-15})
        ASSERT_NO_FATAL_FAILURE(ExpectRoundedAlike(tie * (1 + offset)));
      ASSERT_NO_FATAL_FAILURE(ExpectRoundedAlike(std::nextafter(tie, 0)));
    }
  }
}

TEST(DecimalRounding, RoundsToTheCentsThatAreShown) {
  for (const double value : {1e9 - 0.005, 1e9 + 0.125, 123456789012.345, 1e31, -7.605, 0.004999})
    EXPECT_EQ(RoundToCents(value), TextToNumber(FormatNumber(value, "$#,##0.00")));
}

TEST(DecimalRounding, RoundsToTheUnitsThatAreShown) {
  EXPECT_EQ(RoundToUnits(0.5), 1);
  EXPECT_EQ(RoundToUnits(-2.5), -3);
  EXPECT_EQ(RoundToUnits(1234.499999), 1234);
  EXPECT_EQ(RoundToUnits(123456789012345678.0), 123456789012346000);
}

// ---- Text to number ----

struct NumberCase {
  const char* text;
  double value;
};

constexpr NumberCase kNumbers[] = {
    {"0", 0},
    {"1234", 1234},
    {"$1,234.56", 1234.56},
    {"$1,235", 1235},
    {"1,234,567", 1234567},
    {" 12 ", 12},
    {"-5", -5},
    {"-$5", -5},
    {"$-5", -5},
    {"-$1,234.5", -1234.5},
    {"-\x80"
     "5",
     -5},
    {"-e5", -5},
    {"-\x80"
     "1,234.50",
     -1234.5},
    {"-$0", 0},
    {".5", 0.5},
    {"-$.50", -0.5},
    {"5.", 5},
    {"1e3", 1000},
    {"1.5E-2", 0.015},
    {"2e+2", 200},
    {"1e-999", 0},
    {"1"
     "0000000000"
     "0000000000"
     "0000000000"
     "0",
     1e31},
};

constexpr const char* kNoNumbers[] = {
    "",
    " ",
    "N/A",
    "n/a",
    "\x80"
    "5",
    "\x80",
    "e5",
    "$",
    "-",
    "-$",
    "-\x80",
    "-e",
    "--5",
    "5-",
    "-$-5",
    "$$5",
    "1 2",
    "- 5",
    "$ 5",
    "1.2.3",
    ".",
    ",5",
    "1.2,3",
    "5%",
    "1e",
    "0x10",
    "inf",
    "nan",
    "+5",
    "abc",
    "5a",
    "1e2.5",
    "NO DATA",
};

TEST(TextToNumber, ReadsWhatAmountsLookLike) {
  for (const NumberCase& c : kNumbers) {
    EXPECT_TRUE(IsNumeric(c.text)) << c.text;
    EXPECT_EQ(FaultOf([&] { EXPECT_EQ(TextToNumber(c.text), c.value) << c.text; }), std::nullopt) << c.text;
  }
}

TEST(TextToNumber, AnythingElseIsAFaultOfConversion) {
  for (const char* text : kNoNumbers) {
    EXPECT_FALSE(IsNumeric(text)) << text;
    EXPECT_EQ(FaultOf([&] { TextToNumber(text); }), FaultKind::Conversion) << text;
  }
}

TEST(TextToNumber, ANumberBeyondADoubleIsAnOverflow) {
  for (const std::string& text : {std::string("1e999"), "-1" + std::string(400, '0')}) {
    EXPECT_EQ(FaultOf([&] { TextToNumber(text); }), FaultKind::Overflow);
    EXPECT_FALSE(IsNumeric(text));
  }
}

TEST(TextToNumber, ANumberTooSmallForADoubleIsZero) {
  EXPECT_EQ(TextToNumber("0." + std::string(400, '0') + "1"), 0);
  EXPECT_EQ(TextToNumber("-." + std::string(400, '0') + "1"), 0);
}

TEST(TextToNumber, ReadsBackEveryTextOfANumber) {
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> exponent(-12, 32);
  for (int i = 0; i < 10'000; ++i) {
    // A value of 15 digits is its own text.
    const double value = TextToNumber(NumberToText(std::pow(10, exponent(random))));
    ASSERT_EQ(TextToNumber(NumberToText(value)), value);
    ASSERT_EQ(TextToNumber(NumberToText(-value)), -value);
  }
}

TEST(LeadingNumber, IsTheLongestAtTheBeginning) {
  constexpr NumberCase kLeading[] = {{"7.5", 7.5}, {"7.5%", 7.5}, {"7%", 7},     {"100%", 100}, {"  7%", 7},
                                     {"-3%", -3},  {".5%", 0.5},  {"5.%", 5},    {"5e", 5},     {"1e2%", 100},
                                     {"1,000", 1}, {"3 4", 3},    {"7.5.1", 7.5}};
  for (const NumberCase& c : kLeading) EXPECT_EQ(LeadingNumber(c.text), c.value) << c.text;
}

TEST(LeadingNumber, IsZeroWhereThereIsNone) {
  for (const char* text : {"", " ", "abc", "%7", ".", "-", "-%", "$5", "N/A"})
    EXPECT_EQ(LeadingNumber(text), 0) << text;
}

}  // namespace
}  // namespace vicetoll
