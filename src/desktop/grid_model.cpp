// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid_model.h"

#include "desktop/text.h"

namespace vicetoll {
namespace {

std::string_view Trimmed(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

}  // namespace

bool GridModel::Follow() {
  if (version_ == grid_.RowsVersion()) return false;
  beginResetModel();
  version_ = grid_.RowsVersion();
  firstRow_ = grid_.HasHeading() ? 1 : 0;
  rows_ = grid_.RowCount() - firstRow_;
  endResetModel();
  return true;
}

// A cell that has gone since the view was brought in step reads empty.
std::string_view GridModel::Cell(int row, int column) const { return grid_.Cell(row + firstRow_, column); }

QString GridModel::LongestText(int column) const {
  std::string_view longest;
  for (int row = 0; row < rows_; ++row) {
    const std::string_view text = Trimmed(Cell(row, column));
    if (text.size() > longest.size()) longest = text;
  }
  return ToQt(longest);
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return ToQt(Trimmed(Cell(index.row(), index.column())));
  if (role != Qt::TextAlignmentRole) return {};
  const bool centred = grid_.ColumnAlignment(index.column()) == Grid::Alignment::Centre;
  return static_cast<int>((centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || firstRow_ == 0) return {};
  return ToQt(grid_.Cell(0, section));
}

}  // namespace vicetoll
