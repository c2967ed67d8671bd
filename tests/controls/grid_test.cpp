// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/grid.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "controls/form.h"

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

}  // namespace
}  // namespace vicetoll
