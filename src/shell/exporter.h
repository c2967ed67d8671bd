// SPDX-License-Identifier: GPL-3.0-or-later
// Taking along what a window shows: the report of the grid, the growth chart, the table over all sins. The
// suffix of the file decides what it becomes: comma-separated values, a workbook, or a PDF.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "exports/report_export.h"
#include "exports/sins_export.h"
#include "workspace/workspaces.h"

namespace vicetoll {

class Exporter {
 public:
  explicit Exporter(Workspaces& workspaces) : workspaces_(workspaces) {}

  // Draws a chart as a picture in SVG. Where nobody does, pages have no picture.
  std::function<std::string(const ChartContents&)> drawChart;

  // The grid shows this report from now on. What is taken along later is the report as it stands now.
  void Remember(SinWorkspace& ws, ReportScope scope);

  // What the buttons do. They ask for a file; a cancelled dialog does nothing. A file that cannot be written
  // gives a message with the reason, the file that was there stays, and the run goes on.
  // `window` says in the end what came of it.
  void ExportGrid(Form& window);
  void PreviewGrid();
  // The months of the chart as a report, with the chart as it stands.
  void ExportGrowth(Form& window, SinWorkspace& ws, const ChartContents& chart);
  void ExportSins(Form& window, const SinsAsShown& table, const ChartContents& chart);

 private:
  // What an export can become. Each is made when it is asked for.
  struct Forms {
    std::function<ExportTable()> table;
    std::function<Workbook()> workbook;
    std::function<Pages()> pages;
    const ChartContents& chart;
  };

  // Whether the grid shows one that can be taken along; tells the user if not.
  bool HasReport() const;
  void Export(Form& window, const Forms& forms);
  void ExportReport(Form& window, const ReportExport& report);
  // None if the user did not wait for them.
  std::optional<std::string> BytesFor(const std::string& path, const Forms& forms) const;
  Pages WithPicture(Pages pages, const ChartContents& chart) const;
  Platform& GetPlatform() const { return workspaces_.GetSession().platform; }
  // Runs what may fail for a reason that the user is told.
  void Guarded(const std::function<void()>& action) const;

  Workspaces& workspaces_;
  std::optional<ReportExport> shown_;  // in the grid
  std::string path_;                   // chosen last
};

}  // namespace vicetoll
