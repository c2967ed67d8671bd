#include "reports/report_file.h"

#include "base/fault.h"

namespace vicetoll {

void SaveReport(Platform& platform, std::string& path, std::string_view bytes) {
  if (auto chosen = platform.AskSavePath(path)) path = std::move(*chosen);
  if (path.empty()) throw Fault(FaultKind::File, "The report cannot be saved: no file name was chosen.");
  platform.WriteFile(path, bytes);
}

}  // namespace vicetoll
