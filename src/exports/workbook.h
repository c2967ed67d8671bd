// SPDX-License-Identifier: GPL-3.0-or-later
// Workbooks of spreadsheets (XLSX): tables as sheets, and a chart over one of them.
#pragma once

#include <string>
#include <vector>

#include "base/platform.h"
#include "calendar/money.h"
#include "exports/export_table.h"

namespace vicetoll {

struct WorkbookChart {
  enum class Kind { Lines, Bars };
  Kind kind = Kind::Lines;
  std::size_t sheet = 0;             // which of the sheets it draws
  std::size_t along = 0;             // the column with the names or months of the points
  std::vector<std::size_t> columns;  // with the amounts: a line each, or a set of bars
  std::size_t points = 0;            // how many rows, from the first; without any there is no chart
  std::string title;
};

struct Workbook {
  std::string title;
  Currency currency = Currency::Dollar;
  MonthAndYear created;
  std::vector<ExportTable> sheets;
  WorkbookChart chart;  // on a sheet "Chart" of its own, the last
};

// The bytes of the file. They depend on the workbook alone. Numbers are numbers, months the dates of their
// first days (a month before 1900 is a text), headings stay in view, formulas have their results beside them.
// Throws Fault(File) with the reason where there is no room for the files it is put together from, or where
// the module that makes workbooks cannot be loaded.
std::string BytesOf(const Workbook& workbook);

// What the module offers, and its name.
using WriteWorkbookFunction = void (*)(const Workbook& workbook, std::string& bytes);
inline constexpr const char* kWriteWorkbook = "WriteWorkbook";

}  // namespace vicetoll
