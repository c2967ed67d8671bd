// SPDX-License-Identifier: GPL-3.0-or-later
// Texts as the vocabulary handles them: money that is given as text, and padding.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "calendar/money.h"

namespace vicetoll {

// Money of a number that is given as text, with the euro sign or the letter "e" in euro mode. A text that is
// no number comes back unchanged ("N/A").
std::string FormatMoneyText(Currency currency, std::string_view value, std::string_view format);
std::string FormatMoneyLetterText(Currency currency, std::string_view value, std::string_view format);

// The text without a leading letter "e"; any other text as it is.
std::string StripCurrencyLetter(std::string_view text);

// The text with blanks appended until it has `width` characters; a longer text as it is.
std::string PadRight(std::string_view text, std::int16_t width);

}  // namespace vicetoll
