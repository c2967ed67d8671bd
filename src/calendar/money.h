// SPDX-License-Identifier: GPL-3.0-or-later
// Money as text, in the currency of the run.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "calendar/number_text.h"

namespace vicetoll {

// The symbol that money is shown with. A run starts with the dollar and may move to the euro once.
enum class Currency { Dollar, Euro };

// The euro sign in the program's eight-bit texts (code page 1252).
inline constexpr char kEuroSign = '\x80';

// The value in the format, whose first character, the dollar sign, gives way to the euro sign in euro
// mode.
std::string FormatMoney(Currency currency, double value, std::string_view format);
NumberFormat MoneyFormat(Currency currency, std::string_view format);

// The text without a leading euro sign; any other text as it is.
std::string StripCurrency(std::string_view text);

// Money with the letter "e" for the euro sign: the document report shows the euro so.
std::string FormatMoneyLetter(Currency currency, double value, std::string_view format);
NumberFormat MoneyLetterFormat(Currency currency, std::string_view format);

// The number in a money text: StripCurrency, then text to number. Throws Fault(Conversion).
double MoneyToNumber(std::string_view text);

// The same for a box that may show no amount: none for words, nothing at all, or a symbol alone.
std::optional<double> AmountShown(std::string_view text);

}  // namespace vicetoll
