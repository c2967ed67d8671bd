// SPDX-License-Identifier: GPL-3.0-or-later
#include "calendar/money.h"

#include "calendar/number_text.h"

namespace vicetoll {
namespace {

std::string InCurrency(Currency currency, char euro, std::string_view format) {
  std::string own(format);
  if (currency == Currency::Euro && !own.empty()) own[0] = euro;
  return own;
}

std::string_view WithoutEuroSign(std::string_view text) {
  if (text.starts_with(kEuroSign)) text.remove_prefix(1);
  return text;
}

}  // namespace

std::string FormatMoney(Currency currency, double value, std::string_view format) {
  return FormatNumber(value, InCurrency(currency, kEuroSign, format));
}

std::string StripCurrency(std::string_view text) { return std::string(WithoutEuroSign(text)); }

std::string FormatMoneyLetter(Currency currency, double value, std::string_view format) {
  return FormatNumber(value, InCurrency(currency, 'e', format));
}

double MoneyToNumber(std::string_view text) { return TextToNumber(WithoutEuroSign(text)); }

}  // namespace vicetoll
