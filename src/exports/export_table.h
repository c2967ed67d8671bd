// SPDX-License-Identifier: GPL-3.0-or-later
// A table that is taken along: what it holds as values, for whoever writes it as a file.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/pages.h"
#include "calendar/money.h"

namespace vicetoll {

enum class CellKind {
  Text,
  Whole,
  Decimal,     // two decimals
  Money,       // the same, in the currency
  WholeMoney,  // an amount that the program shows in whole units
  Percent,     // a fraction of one
  Month,
};

struct ExportColumn {
  std::string heading;  // one line
  CellKind kind = CellKind::Text;
};

// Of a text or a month ("Jun - 2031") the text, of all others the number; neither where there is nothing.
struct ExportCell {
  std::string text{};
  std::optional<double> number{};
  std::string formula{};  // what gives the number in a workbook; empty where it stands by itself

  ExportCell() = default;
  explicit ExportCell(std::string_view words) : text(words) {}
  ExportCell(std::optional<double> value, std::string gives) : number(value), formula(std::move(gives)) {}
  explicit ExportCell(std::optional<double> value) : number(value) {}
  explicit ExportCell(double value) : number(value) {}
  explicit ExportCell(int value) : number(value) {}
};

struct ExportTable {
  std::string name;  // of its sheet
  std::vector<ExportColumn> columns;
  std::vector<std::vector<ExportCell>> rows;  // a row may end early
  bool totals = false;                        // the last row is one of totals
};

// A cell's place as formulas of a workbook name it: row and column from 0, the heading being row 0.
// "B7", or "$B$7" where it is to stay when the formula is copied.
std::string CellName(std::size_t row, std::size_t column);
std::string FixedCellName(std::size_t row, std::size_t column);

// The format that a number of the kind is shown in, without a symbol: "#,##0.00", "0%".
std::string_view FormatOf(CellKind kind);

// A cell as the program would show it, amounts with the currency's symbol.
std::string TextOf(const ExportCell& cell, CellKind kind, Currency currency);

// Whether the cells of a column are words, not figures.
inline bool IsWordy(CellKind kind) { return kind == CellKind::Text || kind == CellKind::Month; }

// The table as it stands on a page.
PageTable PageTableOf(const ExportTable& table, Currency currency);

}  // namespace vicetoll
