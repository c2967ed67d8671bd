// SPDX-License-Identifier: GPL-3.0-or-later
// Controls that are one stop for the Tab key: within it the arrow keys go from one to another.
#pragma once

#include <vector>

namespace vicetoll {

class Control;

enum class Arrow { Left, Right, Up, Down };

class FocusGroup {
 public:
  virtual ~FocusGroup() = default;

  // All of them, whether a user gets at them or not.
  virtual std::vector<Control*> All() const = 0;
  // The one that the Tab key comes to from outside; nullptr while a user gets at none.
  virtual Control* Stop() const = 0;
  // Where the arrow leads to, nullptr if nowhere.
  virtual Control* Next(const Control& from, Arrow arrow) const = 0;
  // Whether who comes by an arrow chooses, as by a click. Otherwise he only comes.
  virtual bool ArrowsClick() const { return false; }
};

// Rows of controls. The arrows pass over holes and over what a user does not get at, and end at the edges.
class ControlTable : public FocusGroup {
 public:
  // From left to right; nullptr is a hole.
  void AddRow(std::vector<Control*> row) { rows_.push_back(std::move(row)); }

  std::vector<Control*> All() const override;
  Control* Stop() const override;
  Control* Next(const Control& from, Arrow arrow) const override;

 private:
  Control* At(int row, int column) const;

  std::vector<std::vector<Control*>> rows_;
};

}  // namespace vicetoll
