#include "calendar/money.h"

#include "calendar/number_text.h"

namespace vicetoll {
namespace {

std::string InCurrency(Currency currency, char euro, std::string_view format) {
  std::string own(format);
  if (currency == Currency::Euro && !own.empty()) own[0] = euro;
  return own;
}

std::string WithoutFirst(char first, std::string_view text) {
  if (text.starts_with(first)) text.remove_prefix(1);
  return std::string(text);
}

}  // namespace

std::string FormatMoney(Currency currency, std::string_view value, std::string_view format) {
  return FormatText(value, InCurrency(currency, kEuroSign, format));
}

std::string FormatMoney(Currency currency, double value, std::string_view format) {
  return FormatNumber(value, InCurrency(currency, kEuroSign, format));
}

std::string StripCurrency(std::string_view text) { return WithoutFirst(kEuroSign, text); }

std::string FormatMoneyLetter(Currency currency, std::string_view value, std::string_view format) {
  return FormatText(value, InCurrency(currency, 'e', format));
}

std::string FormatMoneyLetter(Currency currency, double value, std::string_view format) {
  return FormatNumber(value, InCurrency(currency, 'e', format));
}

std::string StripCurrencyLetter(std::string_view text) { return WithoutFirst('e', text); }

double MoneyToNumber(std::string_view text) {
  if (text.starts_with(kEuroSign)) text.remove_prefix(1);
  return TextToNumber(text);
}

std::string PadRight(std::string_view text, std::int16_t width) {
  std::string padded(text);
  if (width > 0 && padded.size() < static_cast<std::size_t>(width)) padded.resize(width, ' ');
  return padded;
}

}  // namespace vicetoll
