// The rows of a grid, as a table view asks for them.
#pragma once

#include <QAbstractTableModel>
#include <string>
#include <vector>

#include "controls/grid.h"

namespace vicetoll {

class GridModel : public QAbstractTableModel {
 public:
  using QAbstractTableModel::QAbstractTableModel;

  // Takes over the grid's rows; false if nothing differs from what is there.
  bool Take(const Grid& grid);

  // The text of a cell, with the blanks it is padded by; it is shown without them. Of a column the longest
  // text that is shown.
  std::string Cell(int row, int column) const;
  QString LongestText(int column) const;

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex&) const override { return Grid::kColumns; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  // Below the heading; cells joined by tabs, in the core's code page until somebody looks at them.
  std::vector<std::string> rows_;
  std::string heading_;
  std::vector<Grid::Alignment> alignments_;
};

}  // namespace vicetoll
