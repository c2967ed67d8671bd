// SPDX-License-Identifier: GPL-3.0-or-later
// A grid of texts: a heading row over rows of cells, and a selection of cells.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "controls/control.h"

namespace vicetoll {

// Takes the first cell off a text of cells: what stands before the separator, which goes as well. The whole
// text where there is none.
std::string_view TakeCell(std::string_view& cells, char separator);

class Grid : public Control {
 public:
  // A size that the toolkit's font decides: a row as high as its text, a column as wide as its heading.
  static constexpr int kOwnSize = -1;

  enum class Alignment { Left, Centre };

  Grid(Form& form, Identity identity, int columns);
  ControlKind Kind() const override { return ControlKind::Grid; }

  int ColumnCount() const { return static_cast<int>(widths_.size()); }

  // A grid that never had a heading has no rows at all; otherwise the heading is row 0.
  int RowCount() const { return static_cast<int>(rows_.size()); }
  bool HasHeading() const { return hasHeading_; }
  // Another number whenever rows or heading have changed.
  unsigned RowsVersion() const { return rowsVersion_; }
  // The text of a cell; empty where a row has fewer cells, and outside the grid. Valid until the rows
  // change.
  std::string_view Cell(int row, int column) const;
  // A row's cells joined by tabs, as it was added; the empty text outside the grid.
  std::string_view RowText(int row) const;
  Alignment ColumnAlignment(int column) const { return alignments_.at(column); }

  // Takes away all rows, the heading too, and with them the selection.
  void Clear();
  // Makes or replaces the heading. Its cells are separated by "|"; a leading "<" aligns the cell's column
  // left, "^" centres it.
  void SetHeading(std::string_view format);
  // Adds rows at the end, each its cells joined by tabs.
  void Append(std::vector<std::string> rows);
  // Puts the rows below the heading in ascending order of the numbers that their first cells begin with;
  // rows of equal number keep their order.
  void SortByFirstCell();

  // In twips or kOwnSize. All rows below the heading have the size of their text.
  int HeadingHeight() const { return headingHeight_; }
  void SetHeadingHeight(int height);
  int ColumnWidth(int column) const { return widths_.at(column); }
  void SetColumnWidth(int column, int width);

  // The selection spans the cells between (Row, Col) and (RowSel, ColSel), both included, in any order.
  int Row() const { return row_; }
  int Col() const { return col_; }
  int RowSel() const { return rowSel_; }
  int ColSel() const { return colSel_; }
  void Select(int row, int col, int rowSel, int colSel);
  // The selected cells, joined by tabs, rows by carriage returns. Empty while there is no row below the
  // heading.
  std::string Clip() const;

  // The user selects cells, those of the heading included. NoEntry for cells that the grid does not have.
  UserOutcome UserSelects(int row, int col, int rowSel, int colSel);

 private:
  bool HasCell(int row, int column) const;
  void RowsChanged();

  std::vector<std::string> rows_;
  bool hasHeading_ = false;
  unsigned rowsVersion_ = 0;
  std::vector<Alignment> alignments_;
  std::vector<int> widths_;
  int headingHeight_ = kOwnSize;
  int row_ = 0, col_ = 0, rowSel_ = 0, colSel_ = 0;
};

}  // namespace vicetoll
