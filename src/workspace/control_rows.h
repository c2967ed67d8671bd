// SPDX-License-Identifier: GPL-3.0-or-later
// The design of a workspace's window: its controls, one row each, in the order of reading, which is that of
// the Tab key. Making, placing, naming, balloons and fading are read off the rows: a new control is a row
// here, and nothing else.
#pragma once

#include <span>

#include "workspace/control_row.h"

namespace vicetoll {

// Rows that stand together: on which side, if on one, and on which tab, if on one.
struct DesignSection {
  std::span<const ControlRow> rows;
  std::optional<Side> side{};
  int page = kAnyPage;
};

std::span<const DesignSection> WorkspaceDesign();

// Calls use(row, section) for each row of the design that the sin has, in its order.
template <class Use>
void ForEachRow(const SinRow& sin, Use&& use) {
  for (const DesignSection& section : WorkspaceDesign())
    for (const ControlRow& row : section.rows)
      if (row.StandsIn(sin, section.side)) use(row, section);
}

// The fading of the future side's controls comes so many turns after that of the past's.
inline constexpr int kFutureFades = 100;

}  // namespace vicetoll
