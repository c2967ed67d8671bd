// SPDX-License-Identifier: GPL-3.0-or-later
// The two controls that only the report windows have.
#include <gtest/gtest.h>

#include "controls/document_text.h"
#include "controls/form.h"
#include "controls/grid.h"

namespace vicetoll {
namespace {

class CountingListener : public FormListener {
 public:
  void ControlChanged(Control&) override { ++changes; }
  void FormChanged(Form&) override {}
  int changes = 0;
};

class GridTest : public ::testing::Test {
 protected:
  Form form{"frmTest", ""};
  Grid& grid = form.Add<Grid>({"fgd"}, 11);

  void Fill() {
    grid.SetHeading("<A|^ B|C");
    grid.Append({"1 \ta\tb", "2 \tc", "10 \td\te\tf"});
  }
};

TEST_F(GridTest, HasNoRowsBeforeTheFirstHeading) {
  EXPECT_EQ(grid.RowCount(), 0);
  EXPECT_EQ(grid.Cell(0, 0), "");
  EXPECT_EQ(grid.Clip(), "");
}

TEST_F(GridTest, HeadingIsRowZero) {
  grid.Append({"1\tx"});
  grid.SetHeading("<A|^ B|C");
  EXPECT_EQ(grid.RowCount(), 2);
  EXPECT_EQ(grid.Cell(0, 0), "A");
  EXPECT_EQ(grid.Cell(0, 1), " B");
  EXPECT_EQ(grid.Cell(0, 2), "C");
  EXPECT_EQ(grid.Cell(0, 3), "");
  EXPECT_EQ(grid.Cell(1, 1), "x");
  EXPECT_EQ(grid.ColumnAlignment(0), Grid::Alignment::Left);
  EXPECT_EQ(grid.ColumnAlignment(1), Grid::Alignment::Centre);
  EXPECT_EQ(grid.ColumnAlignment(2), Grid::Alignment::Left);
  grid.SetHeading("D");
  EXPECT_EQ(grid.RowCount(), 2);
  EXPECT_EQ(grid.Cell(0, 0), "D");
  EXPECT_EQ(grid.Cell(0, 1), "");
}

TEST_F(GridTest, CellsBeyondARowAreEmpty) {
  Fill();
  EXPECT_EQ(grid.Cell(2, 0), "2 ");
  EXPECT_EQ(grid.Cell(2, 1), "c");
  EXPECT_EQ(grid.Cell(2, 2), "");
  EXPECT_EQ(grid.Cell(3, 3), "f");
  EXPECT_EQ(grid.Cell(4, 0), "");
  EXPECT_EQ(grid.Cell(-1, 0), "");
  EXPECT_EQ(grid.Cell(1, grid.ColumnCount()), "");
}

TEST_F(GridTest, HasTheColumnsItWasMadeWith) {
  Grid& two = form.Add<Grid>({"fgdTwo"}, 2);
  two.SetHeading("A|B|C");
  two.Append({"1\tx\ty"});
  EXPECT_EQ(two.ColumnCount(), 2);
  EXPECT_EQ(two.RowText(0), "A\tB");
  EXPECT_EQ(two.Cell(1, 1), "x");
  EXPECT_EQ(two.Cell(1, 2), "");
  EXPECT_EQ(two.ColumnWidth(1), Grid::kOwnSize);
  EXPECT_THROW(two.ColumnWidth(2), std::out_of_range);
}

TEST_F(GridTest, VersionTellsChangesOfRowsAndNothingElse) {
  Fill();
  const unsigned filled = grid.RowsVersion();
  grid.Select(1, 0, 2, 2);
  grid.SetColumnWidth(1, 1000);
  grid.SetHeadingHeight(900);
  grid.SortByFirstCell();  // in order already
  EXPECT_EQ(grid.RowsVersion(), filled);
  grid.Append({"3 \tg"});
  const unsigned appended = grid.RowsVersion();
  EXPECT_NE(appended, filled);
  grid.SortByFirstCell();
  const unsigned sorted = grid.RowsVersion();
  EXPECT_NE(sorted, appended);
  grid.SetHeading("Z");
  const unsigned headed = grid.RowsVersion();
  EXPECT_NE(headed, sorted);
  grid.Clear();
  EXPECT_NE(grid.RowsVersion(), headed);
}

TEST(TakeCell, TakesUpToTheSeparator) {
  std::string_view cells = "a||b";
  EXPECT_EQ(TakeCell(cells, '|'), "a");
  EXPECT_EQ(TakeCell(cells, '|'), "");
  EXPECT_EQ(TakeCell(cells, '|'), "b");
  EXPECT_EQ(cells, "");
  EXPECT_EQ(TakeCell(cells, '|'), "");
}

TEST_F(GridTest, SortIsByNumberAndKeepsEquals) {
  grid.SetHeading("Z");
  grid.Append({"10 \ta", "9 \tb", "-1 \tc", "9 \td"});
  grid.SortByFirstCell();
  EXPECT_EQ(grid.Cell(0, 0), "Z");
  EXPECT_EQ(grid.RowText(1), "-1 \tc");
  EXPECT_EQ(grid.RowText(2), "9 \tb");
  EXPECT_EQ(grid.RowText(3), "9 \td");
  EXPECT_EQ(grid.RowText(4), "10 \ta");
}

TEST_F(GridTest, ClipJoinsCellsByTabAndRowsByCarriageReturn) {
  Fill();
  grid.Select(1, 0, 2, 2);
  EXPECT_EQ(grid.Clip(), "1 \ta\tb\r2 \tc\t");
  grid.Select(2, 2, 1, 1);  // dragged upwards
  EXPECT_EQ(grid.Clip(), "a\tb\rc\t");
  grid.Select(3, 2, 3, 4);
  EXPECT_EQ(grid.Clip(), "e\tf\t");
  grid.Select(0, 0, 1, 0);
  EXPECT_EQ(grid.Clip(), "A\r1 ");
}

TEST_F(GridTest, ClipOfAHeadingAloneIsEmpty) {
  grid.SetHeading("A");
  grid.Select(0, 0, 0, 0);
  EXPECT_EQ(grid.Clip(), "");
}

TEST_F(GridTest, ClearTakesTheSelectionToo) {
  Fill();
  grid.Select(3, 2, 2, 1);
  grid.Clear();
  EXPECT_EQ(grid.RowCount(), 0);
  EXPECT_EQ(grid.Row() + grid.Col() + grid.RowSel() + grid.ColSel(), 0);
}

TEST_F(GridTest, UserSelectsCellsThatAreThere) {
  Fill();
  EXPECT_EQ(grid.UserSelects(1, 0, 2, 1), UserOutcome::Refused);  // the window is hidden
  form.Show();
  EXPECT_EQ(grid.UserSelects(1, 0, 4, 1), UserOutcome::NoEntry);
  EXPECT_EQ(grid.UserSelects(1, 0, 2, 11), UserOutcome::NoEntry);
  EXPECT_EQ(grid.Row(), 0);
  EXPECT_EQ(grid.UserSelects(3, 10, 0, 1), UserOutcome::Done);
  EXPECT_EQ(grid.Row(), 3);
  EXPECT_EQ(grid.Col(), 10);
  EXPECT_EQ(grid.RowSel(), 0);
  EXPECT_EQ(grid.ColSel(), 1);
}

TEST_F(GridTest, TellsOfManyRowsOnce) {
  CountingListener listener;
  form.SetListener(&listener);
  grid.Append(std::vector<std::string>(100, "1\tx"));
  EXPECT_EQ(listener.changes, 1);
}

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
