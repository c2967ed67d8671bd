// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/money.h"

#include "calendar/number_text.h"

namespace vicetoll {
namespace {

NumberFormat InCurrency(Currency currency, char euro, std::string_view format) {
  if (currency == Currency::Dollar || format.empty()) return NumberFormat(format);
  std::string own(format);
  own[0] = euro;
  return NumberFormat(own);
}

std::string Formatted(const NumberFormat& format, double value) {
  std::string text;
  format.Append(text, value);
  return text;
}

std::string_view WithoutEuroSign(std::string_view text) {
  if (text.starts_with(kEuroSign)) text.remove_prefix(1);
  return text;
}

}  // namespace

NumberFormat MoneyFormat(Currency currency, std::string_view format) {
  return InCurrency(currency, kEuroSign, format);
}

std::string FormatMoney(Currency currency, double value, std::string_view format) {
  return Formatted(MoneyFormat(currency, format), value);
}

std::string StripCurrency(std::string_view text) { return std::string(WithoutEuroSign(text)); }

NumberFormat MoneyLetterFormat(Currency currency, std::string_view format) {
  return InCurrency(currency, 'e', format);
}

std::string FormatMoneyLetter(Currency currency, double value, std::string_view format) {
  return Formatted(MoneyLetterFormat(currency, format), value);
}

double MoneyToNumber(std::string_view text) { return TextToNumber(WithoutEuroSign(text)); }

std::optional<double> AmountShown(std::string_view text) {
  if (!IsNumeric(WithoutEuroSign(text))) return std::nullopt;
  return MoneyToNumber(text);
}

}  // namespace vicetoll
