// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/month_report.h"

#include "reports/report_terms.h"

namespace vicetoll {
namespace {

class MonthCollector : public MonthSink {
 public:
  explicit MonthCollector(std::vector<ReportMonth>& months) : months_(months) {}

  void Begin(const ReportStretch&) override {}
  void Add(const ReportMonth& month) override { months_.push_back(month); }

 private:
  std::vector<ReportMonth>& months_;
};

ReportState WalkScope(const SinWorkspace& ws, ReportScope scope, MonthSink& sink) {
  const WorkspaceSide& past = ws.Of(Side::Past);
  const WorkspaceSide& future = ws.Of(Side::Future);
  if (scope == ReportScope::Past) return WalkSide(ReportSideOf(past, past.Index()), {}, sink);
  if (scope == ReportScope::Future) return WalkSide(ReportSideOf(future, future.Index()), {}, sink);
  return WalkTotal(TotalTermsOf(ws, past.Index(), future.Index()), {}, sink);
}

}  // namespace

MonthReport ReportOf(const SinWorkspace& ws, ReportScope scope) {
  MonthReport report;
  MonthCollector collector(report.months);
  report.after = WalkScope(ws, scope, collector);
  return report;
}

}  // namespace vicetoll
