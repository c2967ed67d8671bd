// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/number_text.h"

#include <algorithm>
#include <array>
#include <bit>
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

// Where exact arithmetic in integers knows the 15 digits of a value: from 1, and below 10^15.
constexpr double kFirstInexact = 1e15;

constexpr auto kPowersOfTen = [] {
  std::array<std::uint64_t, kSignificantDigits + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

__extension__ using Wide = unsigned __int128;

// The value is a whole number of 53 bits over a power of two, from 2^3 to 2^52. Times the power of ten that
// makes 15 digits of it, that has 100 bits at most.
Decimal ExactDecimal(double size) {
  constexpr int kFractionBits = 52, kBias = 1023;
  const auto bits = std::bit_cast<std::uint64_t>(size);
  const std::uint64_t leading = std::uint64_t{1} << kFractionBits;
  const std::uint64_t mantissa = (bits & (leading - 1)) | leading;
  const int shift = kFractionBits + kBias - static_cast<int>(bits >> kFractionBits);
  int point = 1;
  while (point < kSignificantDigits && mantissa >> shift >= kPowersOfTen[point]) ++point;
  const Wide scaled = Wide{mantissa} * kPowersOfTen[kSignificantDigits - point];
  auto digits = static_cast<std::uint64_t>(scaled >> shift);
  const std::uint64_t half = std::uint64_t{1} << (shift - 1);
  const std::uint64_t rest = static_cast<std::uint64_t>(scaled) & (2 * half - 1);
  // A tie goes to the even digit here, as where the library makes digits of a double.
  if (rest > half || (rest == half && digits % 2 == 1)) ++digits;
  Decimal decimal;
  decimal.pointAfter = point;
  if (digits == kPowersOfTen[kSignificantDigits]) {
    digits /= 10;
    ++decimal.pointAfter;
  }
  decimal.count = kSignificantDigits;
  for (; digits % 10 == 0; digits /= 10) --decimal.count;
  for (int i = decimal.count; i > 0; digits /= 10) decimal.digits[--i] = static_cast<char>('0' + digits % 10);
  return decimal;
}

Decimal DecimalOf(double size) {
  if (size >= 1 && size < kFirstInexact) return ExactDecimal(size);
  Decimal decimal;
  if (size == 0) return decimal;
  char text[32];
  const auto end =
      std::to_chars(text, text + sizeof text, size, std::chars_format::scientific, kSignificantDigits - 1)
          .ptr;
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

Decimal ToDecimal(double value) {
  Finite(value);
  Decimal decimal = DecimalOf(std::fabs(value));
  decimal.negative = value < 0;
  return decimal;
}

void AppendNumberText(std::string& out, double value) {
  if (AppendCents(out, value)) return;
  const Decimal decimal = ToDecimal(value);
  if (decimal.negative) out += '-';
  if (decimal.pointAfter <= 0) {
    out += "0.";
    out.append(-decimal.pointAfter, '0');
    out.append(decimal.digits, decimal.count);
  } else if (decimal.pointAfter >= decimal.count) {
    out.append(decimal.digits, decimal.count);
    out.append(decimal.pointAfter - decimal.count, '0');
  } else {
    char text[kSignificantDigits + 1];
    char* end = std::copy_n(decimal.digits, decimal.pointAfter, text);
    *end++ = '.';
    end = std::copy(decimal.digits + decimal.pointAfter, decimal.digits + decimal.count, end);
    out.append(text, end);
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

NumberFormat::NumberFormat(std::string_view format) {
  std::size_t first = 0;
  while (first < format.size() && format[first] != '#' && format[first] != '0' && format[first] != '.')
    ++first;
  symbol_ = format.substr(0, first);
  bool inDecimals = false;
  for (char c : format.substr(first)) {
    if (c == '.') inDecimals = true;
    if (c == ',') thousands_ = true;
    if (c == '%') percent_ = true;
    if (c == '0') inDecimals ? ++decimals_ : ++forcedDigits_;
  }
}

void NumberFormat::Append(std::string& out, double value) const {
  static constexpr double kScales[] = {1, 10, 100, 1000, 10000};
  const std::size_t decimals = decimals_ + (percent_ ? 2 : 0);
  const bool negative = value < 0;
  if (decimals < std::size(kScales)) {
    if (const auto rounded = FastRounded(value, kScales[decimals])) {
      char digits[24];
      const auto end = std::to_chars(digits, digits + sizeof digits, *rounded).ptr;
      return Assemble(out, negative, *rounded == 0 ? std::string_view() : std::string_view(digits, end));
    }
  }
  Assemble(out, negative, RoundedDigits(ToDecimal(value), static_cast<int>(decimals)));
}

// `digits` are those of the value times 10^decimals, without leading zeros.
void NumberFormat::Assemble(std::string& text, bool negative, std::string_view digits) const {
  char buffer[512];
  const std::size_t integerDigits = digits.size() > decimals_ ? digits.size() - decimals_ : 0;
  const std::size_t shown = std::max(integerDigits, forcedDigits_);
  if (shown + shown / 3 + decimals_ + symbol_.size() + 4 > sizeof buffer)
    throw Fault(FaultKind::Overflow, "An amount is too long to be shown.");
  char* out = buffer;
  if (negative) *out++ = '-';
  for (const char c : symbol_) *out++ = c;
  for (std::size_t left = shown; left > 0; --left) {
    *out++ = left > integerDigits ? '0' : digits[integerDigits - left];
    if (thousands_ && left > 1 && left % 3 == 1) *out++ = ',';
  }
  if (decimals_ > 0) {
    *out++ = '.';
    for (std::size_t left = decimals_; left > 0; --left)
      *out++ = left > digits.size() ? '0' : digits[digits.size() - left];
  }
  if (percent_) *out++ = '%';
  text.append(buffer, out);
}

std::string FormatNumber(double value, std::string_view format) {
  std::string text;
  NumberFormat(format).Append(text, value);
  return text;
}

namespace {

// Out of line, so that rounding the months of a report sets nothing up for it.
[[gnu::noinline]] double RoundToCentsByText(double value) {
  return TextToNumber(FormatNumber(value, "0.00"));
}

}  // namespace

double RoundToCents(double value) {
  const auto rounded = FastRounded(value, 100);
  if (!rounded) return RoundToCentsByText(value);
  const double cents = static_cast<double>(*rounded) / 100;
  return value < 0 ? -cents : cents;
}

double RoundToUnits(double value) { return TextToNumber(FormatNumber(value, "0")); }

}  // namespace vicetoll
