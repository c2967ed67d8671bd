// SPDX-License-Identifier: GPL-3.0-or-later
// The months of a report as rows of the grid.
#pragma once

#include <string>
#include <vector>

#include "reports/report_columns.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// Collects the rows, each its cells joined by tabs, with the columns of the sin's class.
class SpdRowWriter : public MonthSink {
 public:
  explicit SpdRowWriter(const SinWorkspace& ws);

  void Begin(const ReportStretch&) override {}
  void Add(const ReportMonth& month) override;

  // The rows so far; the writer starts anew.
  std::vector<std::string> Take() { return std::move(rows_); }

 private:
  std::vector<const ReportColumn*> columns_;
  ReportCells cells_;
  std::string line_;
  std::vector<std::string> rows_;
};

}  // namespace vicetoll
