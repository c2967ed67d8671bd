// SPDX-License-Identifier: GPL-3.0-or-later
// A grid as a table: the heading row is the view's header, the rest is a model over the control's rows.
#pragma once

#include <QTableView>
#include <memory>

#include "controls/grid.h"
#include "desktop/control_view.h"

namespace vicetoll {

class GridModel;

// The cells between two corners, by the numbers of the grid.
struct CellRange {
  int row, col, rowSel, colSel;
};

// Shows a grid. Row 0 of the grid is the header, row 1 the table's first.
class GridWidget : public QTableView {
 public:
  GridWidget(QWidget* parent, Grid& grid);

  // Brings the table in step with the grid.
  void Show();
  // Takes the scale of its sheet: the heights of rows, the widths of columns.
  void TakeScale();
  GridModel& Cells() const { return *model_; }
  // The selection by the grid's numbers. The cell that moves with the pointer is the second.
  CellRange SelectedCells() const;
  // Whether these are other cells than those the table shows as selected.
  bool ShowsOtherThan(const CellRange& cells) const;
  // Column widths and heading height in pixels, as the grid has them or as its headings need.
  int ColumnPixels(int column) const;
  int HeadingPixels() const;

 protected:
  // The right button moves neither the current cell nor the selection.
  void mousePressEvent(QMouseEvent* event) override;

 private:
  void FitColumns();
  void ShowSelection();

  Grid& grid_;
  GridModel* model_;
};

std::unique_ptr<ControlView> MakeGridView(Grid& grid, QWidget* parent, Desktop& desktop);

}  // namespace vicetoll
