// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/chart.h"

#include <algorithm>
#include <iterator>

namespace vicetoll {

void Chart::SetContents(ChartContents contents) {
  if (contents == contents_) return;
  const std::string month = cursor_ < 0 ? std::string() : contents_.months[cursor_].label;
  contents_ = std::move(contents);
  const auto same = std::ranges::find(contents_.months, month, &ChartMonth::label);
  const auto place =
      same == contents_.months.end() ? std::ssize(contents_.months) - 1 : same - contents_.months.begin();
  PutCursor(static_cast<int>(place));  // -1 where there are no months
}

int Chart::Count() const {
  return static_cast<int>(contents_.bars.empty() ? contents_.months.size() : contents_.bars.size());
}

void Chart::PutCursor(int month) {
  cursor_ = month;
  Changed();
  if (onCursor) onCursor();
}

UserOutcome Chart::UserPoints(int month) {
  if (!Reachable()) return UserOutcome::Refused;
  if (contents_.months.empty()) return UserOutcome::NoEntry;
  const int place = std::clamp(month, 0, static_cast<int>(contents_.months.size()) - 1);
  if (place != cursor_) PutCursor(place);
  return Acted();
}

}  // namespace vicetoll
