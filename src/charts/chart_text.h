// SPDX-License-Identifier: GPL-3.0-or-later
// What a chart says in words and figures.
#pragma once

#include <string>

#include "controls/chart.h"

namespace vicetoll {

// An amount for an axis whose largest is `largest` and whose marks are `step` apart: "$40,000", and shorter
// from a million on: "$1.2M", also in billions (B) and trillions (T).
std::string AxisAmount(Currency currency, double value, double largest, double step);

// An amount in whole units, "$31,204", shortened like an axis's from ten digits on.
std::string EndAmount(Currency currency, double value);

// "Jun - 2031: out of pocket $31,204, with interest $39,870, grown by $8,666"; empty without a month.
std::string Readout(const ChartContents& contents, int month);

// The months or bars as a table with a heading: cells between tabs, lines ended by CR LF, amounts in units of
// the currency with two decimals.
std::string TabSeparated(const ChartContents& contents);

// The word for a kind of months: "disabled".
std::string_view KindWord(ChartMonthKind kind);

}  // namespace vicetoll
