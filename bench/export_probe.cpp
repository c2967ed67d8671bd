// SPDX-License-Identifier: GPL-3.0-or-later
// export-probe: what it costs to take the largest report along, in milliseconds of processor time. Both sides
// of smoking over 165 years, about 2,000 months, in each kind of file; medians. Every price counts: what is
// remembered when the grid opens, and what is done at a press of the button, the writing of the file left
// out.
#include <cstdio>
#include <string>

#include "desktop/chart_module.h"
#include "desktop/report_pages.h"
#include "exports/csv.h"
#include "exports/report_export.h"
#include "probe.h"

namespace vicetoll {
namespace {

void Measure(const char* what, std::size_t rows, double atMost, const std::function<std::size_t()>& action) {
  std::size_t bytes = 0;
  const double median = MedianMilliseconds([&] { bytes = action(); }, [] {}, ProcessorMilliseconds);
  std::printf("%-24s %8.1f %8.0f %12.0f %10zu\n", what, median, atMost,
              static_cast<double>(rows) / median * 1000, bytes);
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  using namespace vicetoll;
  Probe probe(argc, argv);
  SinWorkspace& ws = probe.Smoking();
  probe.SetLongestPeriods();
  probe.OpenTab(kTotalTab);
  const ReportExport report = ReportExportOf(ws, ReportScope::Total);
  const std::size_t rows = report.months.size();
  std::printf("%-24s %8s %8s %12s %10s\n", (std::to_string(rows) + " months").c_str(), "ms", "at most",
              "rows/s", "bytes");
  Measure("remembered", rows, 5, [&] { return ReportExportOf(ws, ReportScope::Total).months.size(); });
  Measure("CSV", rows, 300, [&] { return CsvOf(MonthsTable(report)).size(); });
  Measure("workbook", rows, 300, [&] { return BytesOf(WorkbookOf(report)).size(); });
  Measure("PDF", rows, 300, [&] {
    Pages pages = PagesOf(report);
    pages.svg = DrawChart(report.chart);
    return static_cast<std::size_t>(MakePdf(pages).value().size());
  });
  Measure("  its picture alone", rows, 300, [&] { return DrawChart(report.chart).size(); });
  return 0;
}
