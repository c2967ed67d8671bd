// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/focus_group.h"

#include "controls/control.h"

namespace vicetoll {

std::vector<Control*> ControlTable::All() const {
  std::vector<Control*> all;
  for (const auto& row : rows_)
    for (Control* control : row)
      if (control != nullptr) all.push_back(control);
  return all;
}

Control* ControlTable::Stop() const {
  for (Control* control : All())
    if (control->Reachable()) return control;
  return nullptr;
}

Control* ControlTable::At(int row, int column) const {
  if (row < 0 || row >= static_cast<int>(rows_.size())) return nullptr;
  const std::vector<Control*>& cells = rows_[row];
  return column < 0 || column >= static_cast<int>(cells.size()) ? nullptr : cells[column];
}

Control* ControlTable::Next(const Control& from, Arrow arrow) const {
  const int right = arrow == Arrow::Right ? 1 : arrow == Arrow::Left ? -1 : 0;
  const int down = arrow == Arrow::Down ? 1 : arrow == Arrow::Up ? -1 : 0;
  for (int row = 0; row < static_cast<int>(rows_.size()); ++row)
    for (int column = 0; column < static_cast<int>(rows_[row].size()); ++column) {
      if (rows_[row][column] != &from) continue;
      // No line is longer than the table has controls.
      for (std::size_t step = 1; step <= rows_.size() + rows_[row].size(); ++step) {
        Control* const there =
            At(row + static_cast<int>(step) * down, column + static_cast<int>(step) * right);
        if (there != nullptr && there->Reachable()) return there;
      }
      return nullptr;
    }
  return nullptr;
}

}  // namespace vicetoll
