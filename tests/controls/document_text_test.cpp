// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/document_text.h"

#include <gtest/gtest.h>

#include "controls/form.h"

namespace vicetoll {
namespace {

class DocumentTextTest : public ::testing::Test {
 protected:
  Form form{"frmTest", ""};
  DocumentText& text = form.Add<DocumentText>({"rtf"});
};

TEST_F(DocumentTextTest, NewTextSelectsNothing) {
  text.SetText("one\r\ntwo");
  text.Select(2, 5);
  EXPECT_EQ(text.SelText(), "e\r\ntw");  // a line end is two characters
  text.SetText("three");
  EXPECT_EQ(text.SelStart(), 0);
  EXPECT_EQ(text.SelLength(), 0);
}

TEST_F(DocumentTextTest, SelectionIsCutAtTheEnds) {
  text.SetText("abc");
  form.Show();
  EXPECT_EQ(text.UserSelects(1, 99), UserOutcome::Done);
  EXPECT_EQ(text.SelText(), "bc");
  EXPECT_EQ(text.UserSelects(99, 1), UserOutcome::Done);
  EXPECT_EQ(text.SelStart(), 3);
  EXPECT_EQ(text.SelLength(), 0);
  EXPECT_EQ(text.UserSelects(-5, 2), UserOutcome::Done);
  EXPECT_EQ(text.SelText(), "ab");
}

TEST_F(DocumentTextTest, TypedLineEndsBecomeCrLf) {
  EXPECT_EQ(text.UserTypes("x"), UserOutcome::Refused);
  form.Show();
  EXPECT_EQ(text.UserTypes("a\nb\rc\r\nd\n\n"), UserOutcome::Done);
  EXPECT_EQ(text.Text(), "a\r\nb\r\nc\r\nd\r\n\r\n");
}

TEST_F(DocumentTextTest, ReplacedSelectionLeavesThePositionBehindIt) {
  text.SetText("abcdef");
  text.Select(1, 2);
  text.ReplaceSelection("X\nY");
  EXPECT_EQ(text.Text(), "aX\r\nYdef");
  EXPECT_EQ(text.SelStart(), 5);
  EXPECT_EQ(text.SelLength(), 0);
  text.ReplaceSelection("-");
  EXPECT_EQ(text.Text(), "aX\r\nY-def");
}

// The line that the selection had cut in two ends once before it and once behind it.
TEST_F(DocumentTextTest, AReplacementLeavesNoHalfEndOfLine) {
  text.SetText("a\r\nb");
  text.Select(2, 0);
  text.ReplaceSelection("X");
  EXPECT_EQ(text.Text(), "a\r\nX\r\nb");
  EXPECT_EQ(text.SelStart(), 4);

  text.SetText("ab\r\nc");
  text.Select(1, 2);  // "b" and CR
  text.ReplaceSelection("");
  EXPECT_EQ(text.Text(), "a\r\nc");
  EXPECT_EQ(text.SelStart(), 1);

  text.SetText("a\r\nb");
  text.Select(2, 0);
  text.ReplaceSelection("");
  EXPECT_EQ(text.Text(), "a\r\nb");
}

TEST_F(DocumentTextTest, HasRoomForLinesThatCanBeShown) {
  text.SetText("12345\r\n12345");
  text.Select(2, 8);  // leaves two characters before and two behind
  EXPECT_EQ(text.SelText(), "345\r\n123");
  const std::string longest(kLongestLine, 'x');
  const auto cut = [&longest](int characters) { return longest.substr(characters); };
  EXPECT_TRUE(text.HasRoomFor(cut(4)));
  EXPECT_FALSE(text.HasRoomFor(cut(3)));
  EXPECT_TRUE(text.HasRoomFor(cut(2).append("\n").append(cut(2))));
  EXPECT_FALSE(text.HasRoomFor(cut(1).append("\n")));
  EXPECT_FALSE(text.HasRoomFor(cut(2).append("\nx\n").append(cut(1))));
  EXPECT_FALSE(text.HasRoomFor(std::string("\nx").append(longest).append("\n")));
}

}  // namespace
}  // namespace vicetoll
