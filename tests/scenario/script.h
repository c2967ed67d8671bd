// SPDX-License-Identifier: GPL-3.0-or-later
// The lines of a scenario file: taking them apart, and writing texts as they write them.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace vicetoll {

// A line that cannot be understood. what() says why.
class BadLine : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// A word of a line: bare, or a text in double quotes.
struct Word {
  std::string text;  // in the program's code page if quoted, with the escapes resolved; as it stands if bare
  std::string utf8;  // the same in the file's encoding
  bool quoted = false;
};

// The words of a line. Throws BadLine for an open quote or a bad escape.
std::vector<Word> SplitLine(std::string_view line);

// A text of the program in double quotes, as UTF-8: the escapes \\ \" \t \r \n, and \xNN below 32.
std::string Quoted(std::string_view text);

// Bytes in double quotes: the same escapes, and \xNN also from 128 up.
std::string QuotedBytes(std::string_view bytes);

}  // namespace vicetoll
