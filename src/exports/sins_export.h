// SPDX-License-Identifier: GPL-3.0-or-later
// The table over all sins as it is taken along.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "base/pages.h"
#include "exports/export_table.h"
#include "exports/workbook.h"

namespace vicetoll {

inline constexpr std::size_t kSinAmounts = 6;

// What the table shows of the sins that are ticked, as texts.
struct SinsAsShown {
  struct Row {
    std::string caption;
    std::array<std::string, kSinAmounts>
        amounts;  // a text that is no amount stands for one that is not there
  };
  std::string title;
  std::vector<std::string> headings;  // of the captions and the amounts
  std::vector<Row> sins;
  Row total;
};

// The sins, and the totals as the last row: sums in a workbook.
ExportTable SheetOf(const SinsAsShown& table);

// A sheet "Sins", and bars of what past and future come to.
Workbook WorkbookOf(const SinsAsShown& table, Currency currency, MonthAndYear present);

// The table as the window shows it. The picture is left to whoever can draw.
Pages PagesOf(const SinsAsShown& table);

// The rows of the sins, cells between tabs, lines ended by CR LF.
std::string TabSeparated(const SinsAsShown& table);

}  // namespace vicetoll
