// SPDX-License-Identifier: GPL-3.0-or-later
// What a workspace's ten result buttons do.
#pragma once

#include "reports/doc_window.h"
#include "reports/spd_window.h"

namespace vicetoll {

// The two report windows, each created at the first reference, hidden.
class ReportWindows {
 public:
  virtual ~ReportWindows() = default;
  virtual SpdWindow& Spd() = 0;
  virtual DocWindow& Doc() = 0;
};

// Sets what the ten buttons do. All arguments must outlive the workspace's last event.
void ConnectReports(SinWorkspace& ws, Workspaces& workspaces, ReportWindows& windows);

}  // namespace vicetoll
