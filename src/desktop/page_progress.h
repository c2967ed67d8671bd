// SPDX-License-Identifier: GPL-3.0-or-later
// How far the pages of a report are.
#pragma once

#include "desktop/report_pages.h"

namespace vicetoll {

inline constexpr int kUntilProgressShows = 500;  // milliseconds

// Shows how far the pages are once they have taken, or will take, longer than that, and lets the user cancel.
// It shows for as long as the result lives.
GoOn ShowPageProgress(int longerThan = kUntilProgressShows);

}  // namespace vicetoll
