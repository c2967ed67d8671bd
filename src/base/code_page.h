// SPDX-License-Identifier: GPL-3.0-or-later
// The program's texts are eight-bit, code page 1252; the world outside speaks Unicode.
#pragma once

#include <string>
#include <string_view>

namespace vicetoll {

// The text as UTF-8. The five bytes without a character become the control character of their number.
std::string ToUtf8(std::string_view codePageText);

// A UTF-8 text in the code page; a character it cannot hold becomes "?", and so does what is no UTF-8.
std::string FromUtf8(std::string_view utf8);

}  // namespace vicetoll
