// SPDX-License-Identifier: GPL-3.0-or-later
// Money as text and back, in both currencies, from any bytes: the first says which format, the rest is the
// text.
#include <cmath>
#include <string>

#include "calendar/money.h"
#include "calendar/number_text.h"
#include "fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace vicetoll;
  constexpr const char* kFormats[] = {"$#,##0.00", "$#,###,##0", "$#,###", "$0.00"};
  if (size == 0) return 0;
  const std::string_view text = TextOf(data + 1, size - 1);
  const char* format = kFormats[data[0] % std::size(kFormats)];
  const std::string stripped = StripCurrency(text);
  Must(text.ends_with(stripped), "only a sign in front is taken off");
  double value = 0;
  if (!Tried([&] { value = MoneyToNumber(text); }) || std::fabs(value) > 1e14) return 0;
  const std::string dollars = FormatMoney(Currency::Dollar, value, format);
  const std::string euros = FormatMoney(Currency::Euro, value, format);
  const std::string letters = FormatMoneyLetter(Currency::Euro, value, format);
  Must(dollars.size() == euros.size() && dollars.size() == letters.size(), "currencies differ in their sign");
  Must(euros.find(kEuroSign) != std::string::npos, "euros bear their sign");
  // The format without a forced digit shows nothing of a zero.
  if (dollars.find_first_of("0123456789") == std::string::npos) return 0;
  const double shown = MoneyToNumber(dollars);
  Must(MoneyToNumber(euros) == shown, "euros read like dollars");
  Must(std::fabs(shown - value) <= 0.5 + std::fabs(value) * 1e-14, "a text is off by half a unit at most");
  Must(FormatMoney(Currency::Dollar, shown, format) == dollars || shown == 0, "what is shown is shown again");
  return 0;
}
