// The months of a report as rows of the grid.
#pragma once

#include <limits>
#include <string>
#include <vector>

#include "reports/report_months.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// Collects the rows, each its cells joined by tabs: index, period, month, quantity a day, then the costs
// of the sin's class, what the month added, and the two totals.
class SpdRowWriter : public MonthSink {
 public:
  explicit SpdRowWriter(const SinWorkspace& ws);

  void Begin(const ReportStretch& stretch) override;
  void Add(const ReportMonth& month) override;

  // The rows so far; the writer starts anew.
  std::vector<std::string> Take() { return std::move(rows_); }

 private:
  std::string Money(double value, std::string_view format) const;
  const std::string& Quantity(double value);

  CostClass costClass_;
  Currency currency_;
  bool active_ = false;
  std::string period_;
  std::string freeMonth_;  // the month cost of a month without one
  double quantity_ = std::numeric_limits<double>::quiet_NaN();
  std::string quantityText_;  // of quantity_, which stays the same through a period
  std::string line_;
  std::vector<std::string> rows_;
};

}  // namespace vicetoll
