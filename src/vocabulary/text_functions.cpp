// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/text_functions.h"

#include <algorithm>

#include "calendar/number_text.h"
#include "reports/report_columns.h"

namespace vicetoll {

std::string FormatMoneyText(Currency currency, std::string_view value, std::string_view format) {
  return IsNumeric(value) ? FormatMoney(currency, TextToNumber(value), format) : std::string(value);
}

std::string FormatMoneyLetterText(Currency currency, std::string_view value, std::string_view format) {
  return IsNumeric(value) ? FormatMoneyLetter(currency, TextToNumber(value), format) : std::string(value);
}

std::string StripCurrencyLetter(std::string_view text) {
  if (text.starts_with('e')) text.remove_prefix(1);
  return std::string(text);
}

std::string PadRight(std::string_view text, std::int16_t width) {
  std::string padded;
  AppendPadded(padded, text, static_cast<std::size_t>(std::max<std::int16_t>(width, 0)));
  return padded;
}

}  // namespace vicetoll
