// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as text and back, without a locale: decimal point, comma for thousands.
//
// Amounts live as text between the steps of a calculation, so what stands here is part of the
// arithmetic. Rounding is decimal: a double first becomes a text of at most 15 significant digits, and
// that text is rounded half away from zero (1.005 gives "1.01", though the double lies below it).
#pragma once

#include <string>
#include <string_view>

namespace vicetoll {

// A sign and decimal digits with the point behind `pointAfter` of them: value = 0.DIGITS * 10^pointAfter.
// Zero has no digits. No leading and no trailing zeros.
struct Decimal {
  bool negative = false;
  char digits[15];
  int count = 0;
  int pointAfter = 0;
};

// The value's first 15 significant digits, correctly rounded. Throws Fault(Overflow) if it is not finite.
Decimal ToDecimal(double value);

// The value in at most 15 significant digits, without trailing zeros and without an exponent.
std::string NumberToText(double value);
void AppendNumberText(std::string& out, double value);

// The number in a text, which may have blanks around it, one leading minus (before or after an optional
// "$"), commas among its integer digits, a decimal point and an exponent. "-\x80" and "-e", which euro
// mode writes before a negative amount, are read as a minus. Nothing else is a number.
// Throws Fault(Conversion), or Fault(Overflow) for a number too large for a double.
double TextToNumber(std::string_view text);

// Whether TextToNumber succeeds.
bool IsNumeric(std::string_view text);

// The longest decimal number at the beginning of a text, after blanks; 0 where there is none. Rates are
// read with it: "7.5%" gives 7.5.
double LeadingNumber(std::string_view text);

// A format such as "$#,##0.00", "##.00", "$#,###" or "0%": an optional symbol, a pattern of integer digits
// ("0" forces one, a comma asks for thousands), decimals after a point, and "%" for a hundredfold. A value
// below zero has its minus before the symbol, also where it rounds to zero ("-$0").
class NumberFormat {
 public:
  explicit NumberFormat(std::string_view format);

  void Append(std::string& out, double value) const;

 private:
  void Assemble(std::string& text, bool negative, std::string_view digits) const;

  std::string symbol_;            // what stands before the first digit place
  std::size_t forcedDigits_ = 0;  // integer digits that are shown even if they are leading zeros
  std::size_t decimals_ = 0;
  bool thousands_ = false;
  bool percent_ = false;
};

// The value in a format.
std::string FormatNumber(double value, std::string_view format);

// The number that FormatNumber(value, "$#,##0.00") shows: rounded to cents. What TextToNumber would read
// back from that text, without making it.
double RoundToCents(double value);

// The same of whole units: the number that FormatNumber(value, "0") shows.
double RoundToUnits(double value);

}  // namespace vicetoll
