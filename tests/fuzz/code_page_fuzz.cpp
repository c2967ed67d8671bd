// SPDX-License-Identifier: GPL-3.0-or-later
// The code page and Unicode, from any bytes.
#include <string>

#include "base/code_page.h"
#include "fuzz/fuzz.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace vicetoll;
  const std::string_view bytes = TextOf(data, size);
  Must(FromUtf8(ToUtf8(bytes)) == bytes, "a text comes back from its Unicode");
  const std::string read = FromUtf8(bytes);
  Must(read.size() <= bytes.size(), "no character of UTF-8 is shorter than a byte");
  Must(FromUtf8(ToUtf8(read)) == read, "what was read comes back");
  return 0;
}
