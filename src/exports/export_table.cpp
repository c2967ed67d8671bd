// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/export_table.h"

#include "calendar/number_text.h"

namespace vicetoll {

std::string CellName(std::size_t row, std::size_t column) {
  return std::string(1, static_cast<char>('A' + column)) + std::to_string(row + 1);
}

std::string FixedCellName(std::size_t row, std::size_t column) {
  return "$" + std::string(1, static_cast<char>('A' + column)) + "$" + std::to_string(row + 1);
}

std::string_view FormatOf(CellKind kind) {
  switch (kind) {
    case CellKind::Decimal:
    case CellKind::Money:
      return "#,##0.00";
    case CellKind::WholeMoney:
      return "#,##0";
    case CellKind::Percent:
      return "0%";
    default:
      return "0";
  }
}

std::string TextOf(const ExportCell& cell, CellKind kind, Currency currency) {
  if (!cell.number) return cell.text;
  const std::string format(FormatOf(kind));
  if (kind == CellKind::Money || kind == CellKind::WholeMoney)
    return FormatMoney(currency, *cell.number, "$" + format);
  return FormatNumber(*cell.number, format);
}

PageTable PageTableOf(const ExportTable& table, Currency currency) {
  PageTable page{{}, {}, table.totals};
  for (const ExportColumn& column : table.columns)
    page.columns.push_back({column.heading, IsWordy(column.kind)});
  for (const auto& row : table.rows) {
    auto& texts = page.rows.emplace_back(table.columns.size());
    for (std::size_t c = 0; c < row.size(); ++c) texts[c] = TextOf(row[c], table.columns[c].kind, currency);
  }
  return page;
}

}  // namespace vicetoll
