// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as text and back, from any bytes.
#include <cmath>
#include <cstring>
#include <string>

#include "calendar/number_text.h"
#include "fuzz/fuzz.h"

namespace {

constexpr const char* kFormats[] = {"$#,##0.00", "$#,###,##0", "$#,###", "##.00", "0%", "$0.00", "0"};

void CheckNumber(double value) {
  using namespace vicetoll;
  const std::string text = NumberToText(value);
  const double again = TextToNumber(text);
  Must(NumberToText(again) == text, "a number's text comes back from the number it reads as");
  Must(std::fabs(again - value) <= std::fabs(value) * 1e-14, "15 digits are kept");
  for (const char* format : kFormats) Must(!FormatNumber(value, format).empty(), "a format gives a text");
  // Beyond 15 digits there are no cents to round to; the text has no end there either.
  if (std::fabs(value) < 1e15)
    Must(TextToNumber(FormatNumber(value, "$#,##0.00")) == RoundToCents(value),
         "cents are those of the text");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace vicetoll;
  const std::string_view text = TextOf(data, size);
  double value = 0;
  if (Tried([&] { value = TextToNumber(text); })) {
    Must(std::isfinite(value), "a number read is finite");
    Must(IsNumeric(text), "what can be read is numeric");
    CheckNumber(value);
  } else {
    Must(!IsNumeric(text), "what cannot be read is not numeric");
  }
  Tried([&] { Must(std::isfinite(LeadingNumber(text)), "a rate is finite"); });
  if (size == sizeof value) {
    std::memcpy(&value, data, sizeof value);
    if (std::isfinite(value) && std::fabs(value) < 1e290) CheckNumber(value);
    if (!std::isfinite(value)) Must(!Tried([&] { ToDecimal(value); }), "what is not finite is a fault");
  }
  return 0;
}
