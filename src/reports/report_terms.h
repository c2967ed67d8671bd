// SPDX-License-Identifier: GPL-3.0-or-later
// What a report reads of a workspace, as values; and the fields in which a workspace keeps a report's state.
#pragma once

#include <cstdint>

#include "reports/report_months.h"
#include "workspace/sin_workspace.h"

namespace vicetoll {

// A period, 1 to 4, as one that counts or one that does not. Its cost is read only where it counts; that
// throws Fault(Conversion) for a money text that is none.
ReportPeriod ReportPeriodOf(const WorkspaceSide& side, int period, bool counted);

// A side. Which periods count, and the labels around gaps, are read under `sideIndex`; the months
// themselves are the workspace's own.
ReportSide ReportSideOf(const WorkspaceSide& side, SideIndex sideIndex);

// The state that the workspace's last report left, and where the next one leaves its own. The number of
// months may stand in a place of the caller's.
ReportState LastReport(const SinWorkspace& ws);
void KeepReport(SinWorkspace& ws, std::int16_t& index, const ReportState& state);

// A report over both sides: the past, the months to the future, the future.
struct TotalTerms {
  // A side whose total is zero is left out.
  bool hasPast = false, hasFuture = false;
  ReportSide past{}, future{};
  // Of the months between the sides, where there are both: the past's last period, the labels they lie
  // between, and the totals there, which become those of the result boxes.
  ReportPeriod borderPeriod{};
  std::string borderFrom{}, borderTo{};
  double borderCost = 0, borderWithInterest = 0;

  bool HasBorder() const { return hasPast && hasFuture; }
};

// The numbers are those under which the counted periods are read.
TotalTerms TotalTermsOf(const SinWorkspace& ws, SideIndex pastIndex, SideIndex futureIndex);

// The months between the sides. Of the state only the number of months goes on.
ReportState WalkBorder(const TotalTerms& terms, std::int16_t index, MonthSink& sink);

// All of it. The past starts from nothing; without a past the future goes on from `state`.
ReportState WalkTotal(const TotalTerms& terms, ReportState state, MonthSink& sink);

}  // namespace vicetoll
