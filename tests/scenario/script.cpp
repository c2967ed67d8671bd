// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario/script.h"

#include <cstdio>

#include "base/code_page.h"

namespace vicetoll {
namespace {

int HexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  throw BadLine("a bad \\x escape");
}

std::string Escaped(std::string_view text, bool highToo) {
  std::string out = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    switch (c) {
      case '\\':
        out += "\\\\";
        break;
      case '"':
        out += "\\\"";
        break;
      case '\t':
        out += "\\t";
        break;
      case '\r':
        out += "\\r";
        break;
      case '\n':
        out += "\\n";
        break;
      default:
        if (byte < 32 || (highToo && byte >= 128)) {
          char code[8];
          std::snprintf(code, sizeof code, "\\x%02X", byte);
          out += code;
        } else {
          out += c;
        }
    }
  }
  return out + '"';
}

// A quoted text from behind its opening quote; `i` ends behind the closing one.
std::string ReadQuoted(std::string_view line, std::size_t& i) {
  std::string utf8;
  while (true) {
    if (i >= line.size()) throw BadLine("a text without its closing quote");
    const char c = line[i++];
    if (c == '"') return utf8;
    if (c != '\\') {
      utf8 += c;
      continue;
    }
    if (i >= line.size()) throw BadLine("a lone backslash");
    switch (const char escape = line[i++]) {
      case '\\':
      case '"':
        utf8 += escape;
        break;
      case 't':
        utf8 += '\t';
        break;
      case 'r':
        utf8 += '\r';
        break;
      case 'n':
        utf8 += '\n';
        break;
      case 'x': {
        if (i + 2 > line.size()) throw BadLine("a bad \\x escape");
        // The byte is one of the program's own: it enters the text as the character it stands for.
        const char byte = static_cast<char>(HexDigit(line[i]) * 16 + HexDigit(line[i + 1]));
        utf8 += ToUtf8(std::string_view(&byte, 1));
        i += 2;
        break;
      }
      default:
        throw BadLine("an unknown escape");
    }
  }
}

}  // namespace

std::vector<Word> SplitLine(std::string_view line) {
  std::vector<Word> words;
  std::size_t i = 0;
  while (i < line.size()) {
    if (line[i] == ' ' || line[i] == '\t' || line[i] == '\r') {
      ++i;
      continue;
    }
    Word word;
    if (line[i] == '"') {
      ++i;
      word.quoted = true;
      word.utf8 = ReadQuoted(line, i);
      word.text = FromUtf8(word.utf8);
    } else {
      while (i < line.size() && line[i] != ' ' && line[i] != '\t' && line[i] != '\r') word.utf8 += line[i++];
      word.text = word.utf8;
    }
    words.push_back(std::move(word));
  }
  return words;
}

std::string Quoted(std::string_view text) { return Escaped(ToUtf8(text), false); }

std::string QuotedBytes(std::string_view bytes) { return Escaped(bytes, true); }

}  // namespace vicetoll
