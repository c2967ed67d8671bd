// SPDX-License-Identifier: GPL-3.0-or-later
// A chart: months with two running amounts, or bars. It holds what is drawn as values; how it is drawn is the
// view's affair.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/picture.h"
#include "base/side.h"
#include "calendar/money.h"
#include "controls/control.h"

namespace vicetoll {

enum class ChartMonthKind {
  Active,    // of a period that counts
  Disabled,  // of a period that does not, between two that do
  Gap,       // between two periods
  Ahead,     // behind the last period
};

// The months of a chart stand side by side in their order, whatever their labels say: a report can come to a
// month twice.
struct ChartMonth {
  std::string label;  // "Jan - 2000"
  ChartMonthKind kind = ChartMonthKind::Active;
  Side side = Side::Past;
  int period = 0;  // 1 to 4
  double outOfPocket = 0, withInterest = 0;

  bool operator==(const ChartMonth&) const = default;
};

// Months in a row that belong together, by their places from 0, both ends in it.
struct ChartBand {
  int first = 0, last = 0;
  ChartMonthKind kind = ChartMonthKind::Active;
  Side side = Side::Past;
  int period = 0;
  std::string name;  // empty where there is nothing to name

  bool operator==(const ChartBand&) const = default;
};

// Amounts out of pocket and with interest. Combined with interest is more than past and future: the past's
// money goes on growing.
struct ChartBar {
  std::string caption;
  double pastOut = 0, pastWith = 0, futureOut = 0, futureWith = 0, combinedOut = 0, combinedWith = 0;

  bool operator==(const ChartBar&) const = default;
};

struct ChartContents {
  std::vector<ChartMonth> months;
  std::vector<ChartBand> bands;  // of all months, from left to right
  int present = -1;              // the place of the present month, -1 if it is not among them
  std::vector<ChartBar> bars;    // from the longest
  ChartBar total;                // of all bars
  Currency currency = Currency::Dollar;
  std::string title;      // what the chart shows, in words
  std::string emptyText;  // what it says where there is nothing to draw

  bool Empty() const { return months.empty() && bars.empty(); }
  bool operator==(const ChartContents&) const = default;
};

class Chart : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::Chart; }

  const ChartContents& Contents() const { return contents_; }
  // The cursor stays on its month if that is still there, and else goes to the last one.
  void SetContents(ChartContents contents);
  // Months or bars, the total not among them.
  int Count() const;

  // The month that the cursor stands on, by its place; -1 where there are no months.
  int Cursor() const { return cursor_; }
  // The user points at a month, or moves on by so many; at the ends the cursor stays. NoEntry where there
  // are no months.
  UserOutcome UserPoints(int month);
  UserOutcome UserMoves(int months) { return UserPoints(cursor_ + months); }
  // Runs whenever the cursor may stand on something else than before, by user or program.
  std::function<void()> onCursor;

  // What is seen as a file, drawn by whoever shows the chart; nothing where nobody does.
  std::string Picture(PictureFormat format) const { return draw ? draw(format) : std::string(); }
  std::function<std::string(PictureFormat)> draw;

 private:
  void PutCursor(int month);

  ChartContents contents_;
  int cursor_ = -1;
};

}  // namespace vicetoll
