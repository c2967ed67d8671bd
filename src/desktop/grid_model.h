// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of a grid, as a table view asks for them.
#pragma once

#include <QAbstractTableModel>
#include <string_view>

#include "controls/grid.h"

namespace vicetoll {

// Reads the grid itself: its texts stay in the core's code page until somebody looks at them.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(const Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(grid) {}

  // Brings the view in step with the grid's rows; false if they have not changed since.
  bool Follow();

  // The text of a cell, with the blanks it is padded by; it is shown without them. Of a column the longest
  // text that is shown.
  std::string_view Cell(int row, int column) const;
  QString LongestText(int column) const;

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex&) const override { return grid_.ColumnCount(); }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  const Grid& grid_;
  unsigned version_ = 0;  // of the grid's rows that the view knows of
  int firstRow_ = 0;      // of the grid below its heading, and how many
  int rows_ = 0;
};

}  // namespace vicetoll
