// SPDX-License-Identifier: GPL-3.0-or-later
// A month-by-month report as it is taken along.
#pragma once

#include <vector>

#include "base/pages.h"
#include "controls/chart.h"
#include "entries/entries.h"
#include "exports/export_table.h"
#include "exports/workbook.h"
#include "reports/month_report.h"

namespace vicetoll {

// What is set for a period, as words that its window has.
struct ReportExportPeriod {
  Side side = Side::Past;
  int number = 0;  // 1 to 4
  PeriodEntries entries;
  std::string unit;      // the caption of its unit's option
  bool counted = false;  // in this report
};

// A report as it stood at a moment: nothing in it follows the windows.
struct ReportExport {
  const SinRow* sin = nullptr;
  ReportScope scope = ReportScope::Total;
  Currency currency = Currency::Dollar;
  MonthAndYear present{};
  std::vector<ReportMonth> months;          // in the order of the grid
  std::vector<ReportExportPeriod> periods;  // every one that is set, whatever the report shows
  ChartContents chart;                      // the growth over these months
};

// The report of that scope now. Throws as ReportOf does.
ReportExport ReportExportOf(SinWorkspace& ws, ReportScope scope);

// The months with the columns of the grid.
ExportTable MonthsTable(const ReportExport& report);

// Sheets "Periods" and "Months", and a line chart. Each period in the report has what it comes to, by
// formulas that follow its months as the result boxes do: out of pocket in whole units, and with interest in
// whole units from period to period, over the gaps at the rates of the period before. Behind the months stand
// the totals.
Workbook WorkbookOf(const ReportExport& report);

// Title, periods and months as texts, as the grid has them. The picture is left to whoever can draw.
Pages PagesOf(const ReportExport& report);

}  // namespace vicetoll
