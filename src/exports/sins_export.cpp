// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/sins_export.h"

#include <algorithm>

#include "base/line_ends.h"

namespace vicetoll {
namespace {

std::vector<std::string> TextsOf(const SinsAsShown::Row& row) {
  std::vector<std::string> texts{row.caption};
  texts.insert(texts.end(), row.amounts.begin(), row.amounts.end());
  return texts;
}

}  // namespace

ExportTable SheetOf(const SinsAsShown& table) {
  ExportTable sheet{"Sins", {}, {}, true};
  for (const std::string& heading : table.headings)
    sheet.columns.push_back({heading, sheet.columns.empty() ? CellKind::Text : CellKind::WholeMoney});
  for (const SinsAsShown::Row& sin : table.sins) {
    auto& row = sheet.rows.emplace_back();
    row.emplace_back(sin.caption);
    for (const std::string& text : sin.amounts) row.emplace_back(AmountShown(text));
  }
  std::vector<ExportCell> totals{ExportCell(table.total.caption)};
  for (std::size_t c = 0; c < kSinAmounts; ++c) {
    const std::optional<double> amount = AmountShown(table.total.amounts[c]);
    const std::string sum = "=SUM(" + CellName(1, c + 1) + ":" +
                            CellName(std::max<std::size_t>(table.sins.size(), 1), c + 1) + ")";
    totals.emplace_back(amount, amount && !table.sins.empty() ? sum : std::string());
  }
  sheet.rows.push_back(std::move(totals));
  return sheet;
}

Workbook WorkbookOf(const SinsAsShown& table, Currency currency, MonthAndYear present) {
  const WorkbookChart chart{.kind = WorkbookChart::Kind::Bars,
                            .sheet = 0,
                            .along = 0,
                            .columns = {kSinAmounts - 1, kSinAmounts},
                            .points = table.sins.size(),
                            .title = table.title};
  return {.title = table.title,
          .currency = currency,
          .created = present,
          .sheets = {SheetOf(table)},
          .chart = chart};
}

Pages PagesOf(const SinsAsShown& table) {
  Pages pages{.title = table.title, .subtitle = {}, .summary = {}, .svg = {}, .rows = {}};
  for (const std::string& heading : table.headings)
    pages.rows.columns.push_back({heading, pages.rows.columns.empty()});
  for (const SinsAsShown::Row& sin : table.sins) pages.rows.rows.push_back(TextsOf(sin));
  pages.rows.rows.push_back(TextsOf(table.total));
  pages.rows.totals = true;
  return pages;
}

std::string TabSeparated(const SinsAsShown& table) {
  std::string text;
  for (const SinsAsShown::Row& sin : table.sins) {
    text += sin.caption;
    for (const std::string& amount : sin.amounts) text += '\t' + amount;
    text += kLineEnd;
  }
  return text;
}

}  // namespace vicetoll
