// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/number_text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <optional>

#include "base/checked_int.h"
#include "base/fault.h"

namespace vicetoll {
namespace {

constexpr int kSignificantDigits = 15;

// Below this limit a scaled value keeps four of its 15 digits behind the point. Farther than kTieWidth from
// a half it rounds the same way in binary as in decimal.
constexpr double kFastLimit = 1e11;
constexpr double kTieWidth = 1e-4;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// A format taken apart.
struct Pattern {
  std::string_view symbol;  // what stands before the first digit place
  int forcedDigits = 0;     // integer digits that are shown even if they are leading zeros
  int decimals = 0;
  bool thousands = false;
  bool percent = false;
};

Pattern ParsePattern(std::string_view format) {
  Pattern pattern;
  const std::size_t first = std::min(format.find_first_of("#0."), format.size());
  pattern.symbol = format.substr(0, first);
  bool inDecimals = false;
  for (char c : format.substr(first)) {
    if (c == '.') inDecimals = true;
    if (c == ',') pattern.thousands = true;
    if (c == '%') pattern.percent = true;
    if (c == '0') inDecimals ? ++pattern.decimals : ++pattern.forcedDigits;
  }
  return pattern;
}

// The digits of |value| * 10^decimals, rounded half away from zero on the decimal text; "" for zero.
std::string RoundedDigits(const Decimal& decimal, int decimals) {
  const int keep = decimal.pointAfter + decimals;
  if (decimal.count == 0 || keep < 0) return {};
  std::string digits(decimal.digits, std::min(keep, decimal.count));
  digits.append(keep - digits.size(), '0');
  if (keep < decimal.count && decimal.digits[keep] >= '5') {
    std::size_t i = digits.size();
    while (i > 0 && digits[i - 1] == '9') digits[--i] = '0';
    if (i > 0)
      ++digits[i - 1];
    else
      digits.insert(digits.begin(), '1');
  }
  const std::size_t nonZero = digits.find_first_not_of('0');
  return nonZero == std::string::npos ? std::string() : digits.substr(nonZero);
}

// |value| * 10^decimals rounded to a whole number, where binary arithmetic decides it beyond doubt.
std::optional<std::uint64_t> FastRounded(double value, double scale) {
  const double scaled = std::fabs(value) * scale;
  if (!(scaled < kFastLimit)) return std::nullopt;
  const auto whole = static_cast<std::int64_t>(scaled);  // as std::floor, at less cost
  const double fraction = scaled - static_cast<double>(whole);
  if (std::fabs(fraction - 0.5) < kTieWidth) return std::nullopt;
  return static_cast<std::uint64_t>(whole) + (fraction > 0.5 ? 1 : 0);
}

// `digits` are those of the value times 10^decimals, without leading zeros.
std::string Assemble(bool negative, std::string_view digits, const Pattern& pattern) {
  char buffer[512];
  const std::size_t decimals = static_cast<std::size_t>(pattern.decimals);
  const std::size_t integerDigits = digits.size() > decimals ? digits.size() - decimals : 0;
  const std::size_t shown = std::max(integerDigits, static_cast<std::size_t>(pattern.forcedDigits));
  if (shown + shown / 3 + decimals + pattern.symbol.size() + 4 > sizeof buffer)
    throw Fault(FaultKind::Overflow, "An amount is too long to be shown.");
  char* out = buffer;
  if (negative) *out++ = '-';
  std::memcpy(out, pattern.symbol.data(), pattern.symbol.size());
  out += pattern.symbol.size();
  for (std::size_t left = shown; left > 0; --left) {
    *out++ = left > integerDigits ? '0' : digits[integerDigits - left];
    if (pattern.thousands && left > 1 && left % 3 == 1) *out++ = ',';
  }
  if (decimals > 0) {
    *out++ = '.';
    for (std::size_t left = decimals; left > 0; --left)
      *out++ = left > digits.size() ? '0' : digits[digits.size() - left];
  }
  if (pattern.percent) *out++ = '%';
  return std::string(buffer, out);
}

// The end of the longest decimal number (digits, point, exponent) at the beginning of the text.
std::size_t NumberEnd(std::string_view text) {
  std::size_t i = 0;
  std::size_t digits = 0;
  while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
  if (i < text.size() && text[i] == '.') {
    std::size_t j = i + 1;
    while (j < text.size() && IsDigit(text[j])) ++j, ++digits;
    if (digits > 0) i = j;
  }
  if (digits == 0) return 0;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
    const std::size_t exponent = j;
    while (j < text.size() && IsDigit(text[j])) ++j;
    if (j > exponent) i = j;
  }
  return i;
}

enum class Parsed { Number, NoNumber, TooLarge };

// Reads an unsigned number that fills the whole text.
Parsed ParseUnsigned(std::string_view text, double& value) {
  if (text.empty() || NumberEnd(text) != text.size()) return Parsed::NoNumber;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) {
    // Too small is zero; too large has no value.
    const std::size_t exponent = text.find_first_of("eE");
    const bool small = exponent == std::string_view::npos ? text.find_first_not_of('0') >= text.find('.')
                                                          : text.substr(exponent + 1).starts_with('-');
    if (small) {
      value = 0;
      return Parsed::Number;
    }
    return Parsed::TooLarge;
  }
  return error == std::errc() && end == text.data() + text.size() ? Parsed::Number : Parsed::NoNumber;
}

Parsed ParseNumber(std::string_view text, double& value) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  bool negative = false;
  if (text.starts_with('-')) {
    negative = true;
    text.remove_prefix(1);
    if (text.starts_with('$') || text.starts_with('\x80') || text.starts_with('e')) text.remove_prefix(1);
  } else if (text.starts_with('$')) {
    text.remove_prefix(1);
    if (text.starts_with('-')) {
      negative = true;
      text.remove_prefix(1);
    }
  }
  // Commas may stand behind the first integer digit and before the decimal point or exponent.
  Parsed result;
  if (text.find(',') == std::string_view::npos) {
    result = ParseUnsigned(text, value);
  } else {
    if (!IsDigit(text.front())) return Parsed::NoNumber;
    const std::size_t integerEnd = std::min(text.find_first_of(".eE"), text.size());
    std::string plain;
    for (std::size_t i = 0; i < text.size(); ++i)
      if (text[i] != ',' || i > integerEnd) plain += text[i];
    result = ParseUnsigned(plain, value);
  }
  if (negative) value = -value;
  return result;
}

}  // namespace

Decimal ToDecimal(double value) {
  Finite(value);
  Decimal decimal;
  if (value == 0) return decimal;
  char text[32];
  const auto end = std::to_chars(text, text + sizeof text, std::fabs(value), std::chars_format::scientific,
                                 kSignificantDigits - 1)
                       .ptr;
  decimal.negative = value < 0;
  decimal.digits[0] = text[0];
  std::memcpy(decimal.digits + 1, text + 2, kSignificantDigits - 1);
  decimal.count = kSignificantDigits;
  while (decimal.count > 0 && decimal.digits[decimal.count - 1] == '0') --decimal.count;
  // "d.dddddddddddddde+XX": the exponent stands behind the digits, the point and the 'e'.
  const char* exponentText = text + kSignificantDigits + 2;
  int exponent = 0;
  std::from_chars(*exponentText == '+' ? exponentText + 1 : exponentText, end, exponent);
  decimal.pointAfter = exponent + 1;
  return decimal;
}

namespace {

// A whole number of cents has at most 15 digits here, so they are those of the value. False for other values.
bool AppendCents(std::string& out, double value) {
  const double size = std::fabs(value);
  if (!(size < kFastLimit)) return false;
  // Whether this is the right number of cents is asked in the next line.
  const auto cents = static_cast<std::uint64_t>(size * 100 + 0.5);  // NOLINT(bugprone-incorrect-roundings)
  if (static_cast<double>(cents) / 100 != size) return false;
  char text[24];
  char* end = std::to_chars(text, text + sizeof text, cents / 100).ptr;
  if (const auto rest = static_cast<int>(cents % 100); rest != 0) {
    *end++ = '.';
    *end++ = static_cast<char>('0' + rest / 10);
    if (rest % 10 != 0) *end++ = static_cast<char>('0' + rest % 10);
  }
  if (value < 0) out += '-';
  out.append(text, end);
  return true;
}

}  // namespace

void AppendNumberText(std::string& out, double value) {
  if (AppendCents(out, value)) return;
  const Decimal decimal = ToDecimal(value);
  if (decimal.negative) out += '-';
  if (decimal.pointAfter <= 0) {
    out += "0.";
    out.append(-decimal.pointAfter, '0');
    out.append(decimal.digits, decimal.count);
    return;
  }
  const int integerDigits = std::min(decimal.pointAfter, decimal.count);
  out.append(decimal.digits, integerDigits);
  out.append(decimal.pointAfter - integerDigits, '0');
  if (decimal.count > integerDigits) {
    out += '.';
    out.append(decimal.digits + integerDigits, decimal.count - integerDigits);
  }
}

std::string NumberToText(double value) {
  std::string text;
  AppendNumberText(text, value);
  return text;
}

double TextToNumber(std::string_view text) {
  double value = 0;
  switch (ParseNumber(text, value)) {
    case Parsed::Number:
      return value;
    case Parsed::TooLarge:
      throw Fault(FaultKind::Overflow, "The number \"" + std::string(text) + "\" is too large.");
    case Parsed::NoNumber:
      break;
  }
  throw Fault(FaultKind::Conversion, "The text \"" + std::string(text) + "\" is not a number.");
}

bool IsNumeric(std::string_view text) {
  double value = 0;
  return ParseNumber(text, value) == Parsed::Number;
}

double LeadingNumber(std::string_view text) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  double value = 0;
  if (ParseUnsigned(text.substr(0, NumberEnd(text)), value) == Parsed::NoNumber) return 0;
  return negative ? -value : value;
}

std::string FormatNumber(double value, std::string_view format) {
  static constexpr double kScales[] = {1, 10, 100, 1000, 10000};
  const Pattern pattern = ParsePattern(format);
  const int decimals = pattern.decimals + (pattern.percent ? 2 : 0);
  const bool negative = value < 0;
  if (decimals < static_cast<int>(std::size(kScales))) {
    if (const auto rounded = FastRounded(value, kScales[decimals])) {
      char digits[24];
      const auto end = std::to_chars(digits, digits + sizeof digits, *rounded).ptr;
      return Assemble(negative, *rounded == 0 ? std::string_view() : std::string_view(digits, end), pattern);
    }
  }
  return Assemble(negative, RoundedDigits(ToDecimal(value), decimals), pattern);
}

double RoundToCents(double value) {
  double cents;
  if (const auto rounded = FastRounded(value, 100))
    cents = static_cast<double>(*rounded) / 100;
  else
    return TextToNumber(FormatNumber(value, "0.00"));
  return value < 0 ? -cents : cents;
}

}  // namespace vicetoll
