// SPDX-License-Identifier: GPL-3.0-or-later
// Reports as texts for people and programs: tables, comma-separated values, JSON.
#pragma once

#include <string>
#include <string_view>

#include "entries/entries.h"
#include "reports/month_report.h"

namespace vicetoll {

enum class ReportFormat { Table, Csv, Json };

// "past", "future", "total", in the order of the scopes.
inline constexpr std::string_view kScopeWords[] = {"past", "future", "total"};

// The reports of one file, one after the other, as a text in UTF-8. It is written into `out`, in the place of
// what stands there and in its room.
class ReportText {
 public:
  ReportText(ReportFormat format, std::string& out);

  // The report of the workspace as it stands. `entries` are those that it was made of. Throws as ReportOf.
  void Add(SinWorkspace& ws, ReportScope scope, const SinEntries& entries);
  // Comes behind the last report.
  void Finish();

 private:
  ReportFormat format_;
  std::string& out_;
};

}  // namespace vicetoll
