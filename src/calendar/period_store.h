// SPDX-License-Identifier: GPL-3.0-or-later
// The data of a run: four periods for each side of each sin. Nothing of it outlives the run.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "calendar/side_index.h"

namespace vicetoll {

inline constexpr int kPeriodCount = 4;

// The parameters of one period, mostly as the texts that the user picked, so that the period can be put
// back on screen as it was entered. Texts become numbers only when a calculation needs them.
struct PeriodRecord {
  bool PeriodSelected = false;  // on screen, seeded or committed
  bool PeriodSet = false;       // committed with the set button; only such periods have results
  bool PeriodFresh = false;     // the next forward step onto it first seeds its lists
  bool PeriodEnabled = false;   // counts in sums

  std::string StartLabel, StopLabel;  // first and last month, both included
  // The ends of the date lists when the period was saved in coarse mode.
  std::string StartListFirst, StartListLast, StopListFirst, StopListLast;
  std::string InterestRateText, InflationRateText;  // yearly, "7%"
  std::string PercentIncreaseText;                  // of the cost, yearly

  // The sin's own cells. A sin uses those of its class.
  std::int16_t QuantityListIndex = 0;  // position in the sin's quantity or cost-per-day list
  bool QuantityUnitFlag = false;       // packs (not cigarettes), or per day (not per month)
  std::string InitialCostText, FinalCostText, ReasonableCostText;
  bool CostModeFlag = false;  // the cost rises by a percentage, not from initial to final
};

// All periods of all sins, by period 1..kPeriodCount and side.
class PeriodStore {
 public:
  // Throws Fault(Index) outside the bounds.
  PeriodRecord& At(int period, SideIndex side);
  const PeriodRecord& At(int period, SideIndex side) const;

 private:
  std::array<std::array<PeriodRecord, kPeriodCount>, kSideCount> records_;
};

}  // namespace vicetoll
