// SPDX-License-Identifier: GPL-3.0-or-later
// The columns of a report: what each shows of a month, in the grid and in the document's table, and which
// cost classes have it. Both layouts, and whatever writes a report to a file, read this one table.
#pragma once

#include <array>
#include <charconv>
#include <limits>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calendar/money.h"
#include "reports/report_months.h"
#include "sins/catalogue.h"

namespace vicetoll {

enum class ColumnKey {
  Index,
  Period,
  Month,
  Quantity,
  UnitCost,
  ReasonableCost,
  AdjustedCost,
  MonthCost,
  MonthWithInterest,
  CumulativeCost,
  CumulativeCostWithInterest,
};
inline constexpr int kReportColumnCount = static_cast<int>(ColumnKey::CumulativeCostWithInterest) + 1;

// The cost classes that have a column.
enum class ColumnClasses {
  All,
  Unit,  // all but the flat-rate class, whose unit is the day
  Net,   // the net-units class
};

// How a column's figures show in a layout.
struct CellStyle {
  std::string_view format{};
  std::size_t width = 0;  // padded to
  // Of a month without cost: a text as it stands, or a format with "$" that zero is shown in. Empty where
  // such a month has a figure as well.
  std::string_view free{};
  std::size_t freeWidth = 0;
};

struct ReportColumn {
  ColumnKey key;
  ColumnClasses classes;
  double ReportMonth::*figure;  // nullptr of the first three: row number, period, label
  CellStyle grid{}, document{};
};

const ReportColumn& ColumnOf(ColumnKey key);

// The columns of a cost class, from left to right: eight, nine or eleven.
std::vector<const ReportColumn*> ColumnsOf(CostClass costClass);

// The number in a column for a month, unrounded; none where there is only a text: the month's label, and
// "N/A". A month without cost has a quantity and a cost of 0.
std::optional<double> NumberOf(const ReportColumn& column, const ReportMonth& month);

// What heads a column of the sin's class, as a text for people: "Packs Smoked Per Day". Shopping's grid has
// the headings of eleven columns over rows of eight cells; here each column has the heading that means it.
std::string_view HeadingOf(const SinRow& sin, const ReportColumn& column);

// The document's amounts have cents where the grid's have none, and the letter "e" for the euro sign.
enum class ReportLayout { Grid, Document };

// The cells of a layout as texts. A figure that repeats from month to month is not formatted each time.
class ReportCells {
 public:
  ReportCells(ReportLayout layout, Currency currency);

  // Appends the cell, padded with blanks to the column's width.
  void Append(std::string& out, const ReportColumn& column, const ReportMonth& month);
  void Append(std::string& out, ColumnKey key, const ReportMonth& month) {
    Append(out, ColumnOf(key), month);
  }

  // Appends a line of cells: each but the last is followed by a blank and a tab, behind its own padding.
  void AppendLine(std::string& out, const std::vector<const ReportColumn*>& columns,
                  const ReportMonth& month);

 private:
  struct Shown {
    double figure = std::numeric_limits<double>::quiet_NaN();  // of the last month
    std::string text;                                          // it as text, once it has come again
    std::string free;                                          // of a month without cost, padded
    NumberFormat format{{}};
  };

  const CellStyle& StyleOf(const ReportColumn& column) const {
    return layout_ == ReportLayout::Grid ? column.grid : column.document;
  }
  NumberFormat FormatOf(std::string_view format) const;

  ReportLayout layout_;
  Currency currency_;
  std::array<Shown, kReportColumnCount> shown_;
};

// Appends blanks until what stands behind `start` is `width` characters long.
inline void Pad(std::string& out, std::size_t start, std::size_t width) {
  if (const std::size_t size = out.size() - start; size < width) out.append(width - size, ' ');
}

// Appends the text and blanks up to `width` characters; a longer text as it is.
inline void AppendPadded(std::string& out, std::string_view text, std::size_t width) {
  const std::size_t start = out.size();
  out += text;
  Pad(out, start, width);
}

// Appends the number's digits.
inline void AppendNumber(std::string& out, int number) {
  char digits[12];
  out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

}  // namespace vicetoll
