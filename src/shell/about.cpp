// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/about.h"

#include "base/version.h"

namespace vicetoll {

std::string AboutText() {
  return "# The Vicetoll Financial Calculator\r\n\r\n"
         "Version " +
         std::string(kVersion) +
         "\r\n\r\n"
         "What a costly habit has cost, what it will cost, and what that money would have grown to, "
         "put aside month by month.\r\n\r\n"
         "## Licence\r\n\r\n"
         "Copyright 2026 The Orvane Team\r\n\r\n"
         "This program is free software: you can redistribute it and change it under the terms of the GNU "
         "General Public License, version 3 or any later version. It comes without any warranty.\r\n\r\n"
         "## Made with\r\n\r\n"
         "- Qt 6, for the windows\r\n"
         "- QCustomPlot, for the charts\r\n"
         "- JSON for Modern C++, for saved entries\r\n"
         "- libxlsxwriter, for spreadsheets\r\n\r\n"
         "Figures are for orientation. They are no financial advice.\r\n";
}

}  // namespace vicetoll
