// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/code_page.h"

#include <cstdint>
#include <cstring>

namespace vicetoll {
namespace {

// The characters of the bytes 0x80..0x9F; from 0xA0 up byte and character agree.
constexpr char32_t kUpper[32] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char ByteOf(char32_t character) {
  if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) return static_cast<char>(character);
  for (int i = 0; i < 32; ++i)
    if (kUpper[i] == character) return static_cast<char>(0x80 + i);
  return '?';
}

// Whether the byte goes on with a character of UTF-8.
bool IsFollower(char byte) { return (static_cast<std::uint8_t>(byte) & 0xC0) == 0x80; }

// Whether all bytes are below 0x80: eight at a time, for most texts are long and have no others.
bool IsAscii(std::string_view text) {
  std::uint64_t seen = 0;
  for (; text.size() >= sizeof seen; text.remove_prefix(sizeof seen)) {
    std::uint64_t bytes;
    std::memcpy(&bytes, text.data(), sizeof bytes);
    seen |= bytes;
  }
  for (const char c : text) seen |= static_cast<std::uint8_t>(c);
  return (seen & 0x8080808080808080) == 0;
}

}  // namespace

std::string ToUtf8(std::string_view codePageText) {
  if (IsAscii(codePageText)) return std::string(codePageText);
  std::string utf8;
  utf8.reserve(codePageText.size());
  for (const char c : codePageText) {
    const auto byte = static_cast<std::uint8_t>(c);
    const char32_t character = byte >= 0x80 && byte < 0xA0 ? kUpper[byte - 0x80] : char32_t{byte};
    if (character < 0x80) {
      utf8 += static_cast<char>(character);
    } else if (character < 0x800) {
      utf8 += static_cast<char>(0xC0 | character >> 6);
      utf8 += static_cast<char>(0x80 | (character & 0x3F));
    } else {
      utf8 += static_cast<char>(0xE0 | character >> 12);
      utf8 += static_cast<char>(0x80 | (character >> 6 & 0x3F));
      utf8 += static_cast<char>(0x80 | (character & 0x3F));
    }
  }
  return utf8;
}

std::string FromUtf8(std::string_view utf8) {
  std::string text;
  text.reserve(utf8.size());
  for (std::size_t i = 0; i < utf8.size();) {
    const auto lead = static_cast<std::uint8_t>(utf8[i++]);
    const int followers = lead < 0xC0 ? 0 : lead < 0xE0 ? 1 : lead < 0xF0 ? 2 : 3;
    char32_t character = followers == 0 ? lead : lead & (0x3F >> followers);
    int followed = 0;
    for (; followed < followers && i < utf8.size() && IsFollower(utf8[i]); ++followed)
      character = character << 6 | (static_cast<std::uint8_t>(utf8[i++]) & 0x3F);
    const bool whole = followed == followers && (followers > 0 || lead < 0x80);
    text += whole ? ByteOf(character) : '?';
  }
  return text;
}

}  // namespace vicetoll
