#include "desktop/grid_model.h"

#include "desktop/text.h"

namespace vicetoll {
namespace {

std::string_view CellOf(std::string_view row, int column) {
  for (; column > 0; --column) {
    const std::size_t end = row.find('\t');
    if (end == std::string_view::npos) return {};
    row.remove_prefix(end + 1);
  }
  return row.substr(0, row.find('\t'));
}

std::string_view Trimmed(std::string_view text) { return text.substr(0, text.find_last_not_of(' ') + 1); }

}  // namespace

bool GridModel::Take(const Grid& grid) {
  const int first = grid.HasHeading() ? 1 : 0;
  const int count = std::max(grid.RowCount() - first, 0);
  const std::string_view heading = grid.HasHeading() ? grid.RowText(0) : std::string_view();
  bool same = count == static_cast<int>(rows_.size()) && heading == heading_;
  for (int row = 0; same && row < count; ++row) same = rows_[row] == grid.RowText(row + first);
  if (same) return false;
  beginResetModel();
  heading_ = heading;
  rows_.clear();
  rows_.reserve(count);
  for (int row = 0; row < count; ++row) rows_.emplace_back(grid.RowText(row + first));
  alignments_.clear();
  for (int column = 0; column < Grid::kColumns; ++column) alignments_.push_back(grid.ColumnAlignment(column));
  endResetModel();
  return true;
}

std::string GridModel::Cell(int row, int column) const { return std::string(CellOf(rows_.at(row), column)); }

QString GridModel::LongestText(int column) const {
  std::string_view longest;
  for (const std::string& row : rows_) {
    const std::string_view text = Trimmed(CellOf(row, column));
    if (text.size() > longest.size()) longest = text;
  }
  return ToQt(longest);
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::DisplayRole) return ToQt(Trimmed(CellOf(rows_[index.row()], index.column())));
  if (role != Qt::TextAlignmentRole) return {};
  const bool centred = alignments_[index.column()] == Grid::Alignment::Centre;
  return static_cast<int>((centred ? Qt::AlignHCenter : Qt::AlignLeft) | Qt::AlignVCenter);
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  return ToQt(CellOf(heading_, section));
}

}  // namespace vicetoll
