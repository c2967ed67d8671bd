// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/strip.h"

#include <string_view>

namespace vicetoll {
namespace {

struct StripButton {
  std::string_view name, caption, keys;
  int width;  // twips
};

// From left to right.
// clang-format off
constexpr StripButton kStrip[] = {
    {"cmdOpenEntries",   "Open\x85",    "Ctrl+O",       1095},
    {"cmdSaveEntries",   "Save",        "Ctrl+S",       1095},
    {"cmdSaveEntriesAs", "Save As\x85", "Ctrl+Shift+S", 1245},
    {"cmdGrowthChart",   "Chart",       "Ctrl+G",       1095},
};
// clang-format on

// Twips. The strip ends below the last button of the bottom row.
constexpr int kRight = 11875;
constexpr int kStripGap = 60;
constexpr int kStripHeight = 420;
constexpr int kAboveBottom = 500;

bool AnyPeriodCounts(const SinWorkspace& ws) {
  for (Side side : kSides)
    for (int p = 1; p <= kPeriodCount; ++p)
      if (const PeriodRecord& record = ws.Of(side).Record(p); record.PeriodSet && record.PeriodEnabled)
        return true;
  return false;
}

}  // namespace

void MakeStrip(SinWorkspace& ws) {
  for (const StripButton& row : kStrip)
    ws.Add<Button>({std::string(row.name)}, row.caption).SetKeys(row.keys);
  UpdateStrip(ws);
}

void PlaceStrip(SinWorkspace& ws) {
  int left = StripLeft();
  for (const StripButton& row : kStrip) {
    ws.Get<Button>(row.name).SetPlace({left, ws.Height() - kAboveBottom, row.width, kStripHeight});
    left += row.width + kStripGap;
  }
}

int StripLeft() {
  int left = kRight + kStripGap;
  for (const StripButton& row : kStrip) left -= row.width + kStripGap;
  return left;
}

void UpdateStrip(SinWorkspace& ws) { ws.Get<Button>("cmdGrowthChart").SetEnabled(AnyPeriodCounts(ws)); }

}  // namespace vicetoll
