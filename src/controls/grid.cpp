// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/grid.h"

#include <algorithm>
#include <charconv>
#include <iterator>

namespace vicetoll {
namespace {

constexpr char kCellEnd = '\t';

int LeadingInteger(std::string_view text) {
  int number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

// The text of the cells `first` to `last` of a row, with a tab between each two, also where the row has
// fewer cells.
void AppendCells(std::string& out, std::string_view row, int first, int last) {
  for (int column = 0; column < first; ++column) TakeCell(row, kCellEnd);
  for (int column = first; column <= last; ++column) {
    if (column > first) out += kCellEnd;
    out += TakeCell(row, kCellEnd);
  }
}

}  // namespace

std::string_view TakeCell(std::string_view& cells, char separator) {
  const std::size_t end = std::min(cells.find(separator), cells.size());
  const std::string_view cell = cells.substr(0, end);
  cells.remove_prefix(std::min(end + 1, cells.size()));
  return cell;
}

Grid::Grid(Form& form, Identity identity, int columns)
    : Control(form, std::move(identity)), alignments_(columns, Alignment::Left), widths_(columns, kOwnSize) {}

bool Grid::HasCell(int row, int column) const {
  return row >= 0 && row < RowCount() && column >= 0 && column < ColumnCount();
}

std::string_view Grid::RowText(int row) const { return HasCell(row, 0) ? rows_[row] : std::string_view(); }

std::string_view Grid::Cell(int row, int column) const {
  if (!HasCell(row, column)) return {};
  std::string_view rest = rows_[row];
  for (; column > 0; --column) TakeCell(rest, kCellEnd);
  return TakeCell(rest, kCellEnd);
}

void Grid::RowsChanged() {
  ++rowsVersion_;
  Changed();
}

void Grid::Clear() {
  rows_.clear();
  hasHeading_ = false;
  row_ = col_ = rowSel_ = colSel_ = 0;
  RowsChanged();
}

void Grid::SetHeading(std::string_view format) {
  std::string heading;
  for (int column = 0; column < ColumnCount() && !format.empty(); ++column) {
    std::string_view cell = TakeCell(format, '|');
    alignments_[column] = cell.starts_with('^') ? Alignment::Centre : Alignment::Left;
    if (cell.starts_with('^') || cell.starts_with('<')) cell.remove_prefix(1);
    if (column > 0) heading += kCellEnd;
    heading += cell;
  }
  if (hasHeading_)
    rows_.front() = std::move(heading);
  else
    rows_.insert(rows_.begin(), std::move(heading));
  hasHeading_ = true;
  RowsChanged();
}

void Grid::Append(std::vector<std::string> rows) {
  if (rows_.empty())
    rows_ = std::move(rows);
  else
    rows_.insert(rows_.end(), std::make_move_iterator(rows.begin()), std::make_move_iterator(rows.end()));
  RowsChanged();
}

void Grid::SortByFirstCell() {
  const auto first = rows_.begin() + (hasHeading_ ? 1 : 0);
  const auto before = [](const std::string& a, const std::string& b) {
    return LeadingInteger(a) < LeadingInteger(b);
  };
  // Reports nearly always come in order.
  if (std::is_sorted(first, rows_.end(), before)) return;
  std::stable_sort(first, rows_.end(), before);
  RowsChanged();
}

void Grid::SetHeadingHeight(int height) {
  headingHeight_ = height;
  Changed();
}

void Grid::SetColumnWidth(int column, int width) {
  widths_.at(column) = width;
  Changed();
}

void Grid::Select(int row, int col, int rowSel, int colSel) {
  row_ = row;
  col_ = col;
  rowSel_ = rowSel;
  colSel_ = colSel;
  Changed();
}

std::string Grid::Clip() const {
  std::string clip;
  if (RowCount() <= (hasHeading_ ? 1 : 0)) return clip;
  const auto [top, bottom] = std::minmax(row_, rowSel_);
  const auto [left, right] = std::minmax(col_, colSel_);
  for (int row = top; row <= bottom && row < RowCount(); ++row) {
    if (row > top) clip += '\r';
    AppendCells(clip, rows_[row], left, right);
  }
  return clip;
}

UserOutcome Grid::UserSelects(int row, int col, int rowSel, int colSel) {
  if (!Reachable()) return UserOutcome::Refused;
  if (!HasCell(row, col) || !HasCell(rowSel, colSel)) return UserOutcome::NoEntry;
  Select(row, col, rowSel, colSel);
  return Acted();
}

}  // namespace vicetoll
