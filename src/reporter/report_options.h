// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of vicetoll-report.
#pragma once

#include <string>
#include <vector>

#include "base/platform.h"
#include "reporter/report_text.h"

namespace vicetoll {

struct ReportOptions {
  int sin = -1;  // position; -1: all sins of a file
  ReportScope scope = ReportScope::Total;
  ReportFormat format = ReportFormat::Table;
  MonthAndYear now{};
  std::string output;       // a file, or a folder; empty: standard output
  bool intoFolder = false;  // the output is one, for a report on each file
  std::vector<std::string> files;
};

// What --help tells.
extern const char* const kReportUsage;

// Reads the words of a command line into the options, which hold what counts where nothing is said. Returns
// what is wrong with them; empty if nothing is.
std::string ReadReportOptions(const std::vector<std::string>& words, ReportOptions& options);

}  // namespace vicetoll
