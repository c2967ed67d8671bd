// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/workbook.h"

#include "base/fault.h"
#include "base/module.h"

namespace vicetoll {

std::string BytesOf(const Workbook& workbook) {
  std::string error;
  const auto write = FromModule<WriteWorkbookFunction>("workbook", kWriteWorkbook, error);
  if (write == nullptr) throw Fault(FaultKind::File, "A workbook cannot be made: " + error);
  std::string bytes;
  write(workbook, bytes);
  return bytes;
}

}  // namespace vicetoll
