// SPDX-License-Identifier: GPL-3.0-or-later
// Comma-separated values, as every spreadsheet opens them.
#pragma once

#include <string>

#include "exports/export_table.h"

namespace vicetoll {

// The table in UTF-8, lines ended by CR LF, the headings first. Months read "2031-06", amounts have two
// decimals and a point and no symbol, percents are fractions of one, what is not there is an empty field.
// Fields with a comma, a quote or a line end in them are quoted.
std::string CsvOf(const ExportTable& table);

}  // namespace vicetoll
