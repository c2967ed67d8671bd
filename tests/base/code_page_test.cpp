// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/code_page.h"

#include <gtest/gtest.h>

#include "calendar/money.h"

namespace vicetoll {
namespace {

TEST(CodePage, TheEuroSignIsCode128) {
  EXPECT_EQ(ToUtf8(std::string{kEuroSign}), "\xE2\x82\xAC");
  EXPECT_EQ(FromUtf8("\xE2\x82\xAC"
                     "5"),
            "\x80"
            "5");
}

TEST(CodePage, AsciiIsItself) {
  std::string ascii;
  for (char c = 1; c < 127; ++c) ascii += c;
  EXPECT_EQ(ToUtf8(ascii), ascii);
  EXPECT_EQ(FromUtf8(ascii), ascii);
}

TEST(CodePage, UpperHalfHasItsCharacters) {
  EXPECT_EQ(ToUtf8("\x93\x94"), "\xE2\x80\x9C\xE2\x80\x9D");  // U+201C, U+201D: double quotes
  EXPECT_EQ(ToUtf8("\x9F"), "\xC5\xB8");                      // U+0178
  EXPECT_EQ(ToUtf8("\xA0"), "\xC2\xA0");                      // the no-break blank
  EXPECT_EQ(ToUtf8("caf\xE9"), "caf\xC3\xA9");                // U+00E9
}

TEST(CodePage, BytesWithoutACharacterAreControlCharacters) {
  EXPECT_EQ(ToUtf8("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(CodePage, EveryByteComesBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(FromUtf8(ToUtf8(bytes)), bytes);
}

TEST(CodePage, WhatItCannotHoldIsAQuestionMark) {
  EXPECT_EQ(FromUtf8("a\xCE\xB1"
                     "b"),
            "a?b");  // U+03B1
  EXPECT_EQ(FromUtf8("a\xF0\x9F\x98\x80"
                     "b"),
            "a?b");  // U+1F600
  EXPECT_EQ(FromUtf8("a\xC2\x80"
                     "b"),
            "a?b");  // U+0080 is not the euro sign
}

TEST(CodePage, ALoneByteIsAQuestionMark) {
  EXPECT_EQ(FromUtf8("a\x80"
                     "b"),
            "a?b");
}

TEST(CodePage, ACharacterThatIsCutOffTakesNothingOfWhatFollows) {
  EXPECT_EQ(FromUtf8("a\xC3\"b"), "a?\"b");
  EXPECT_EQ(FromUtf8("a\xE2\x82/b"), "a?/b");
  EXPECT_EQ(FromUtf8("a\xF0\x9F"), "a?");
  EXPECT_EQ(FromUtf8("a\xE2\xE2\x82\xAC"), "a?\x80");
}

}  // namespace
}  // namespace vicetoll
