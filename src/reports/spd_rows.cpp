// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/spd_rows.h"

namespace vicetoll {

SpdRowWriter::SpdRowWriter(const SinWorkspace& ws)
    : columns_(ColumnsOf(ws.Class())), cells_(ReportLayout::Grid, ws.GetSession().currency) {}

void SpdRowWriter::Add(const ReportMonth& month) {
  line_.clear();
  cells_.AppendLine(line_, columns_, month);
  rows_.push_back(line_);
}

}  // namespace vicetoll
