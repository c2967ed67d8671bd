// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_file.h"

#include "base/fault.h"

namespace vicetoll {

void SaveReport(Platform& platform, std::string& path, std::string_view bytes) {
  auto chosen = path.empty() ? platform.AskFirstSavePath() : platform.AskSavePath(path);
  if (chosen) path = std::move(*chosen);
  if (path.empty()) throw Fault(FaultKind::File, "The report cannot be saved: no file name was chosen.");
  platform.WriteFile(path, bytes);
}

}  // namespace vicetoll
