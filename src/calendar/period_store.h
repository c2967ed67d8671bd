// The data of a run: four periods for each side of each sin. Nothing of it outlives the run.
#pragma once

#include <array>
#include <cstdint>
#include <string>

namespace vicetoll {

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

// All periods of all sins, by period 1..4 and SideIndex 1..24: past of the sin at position p (from 0) is
// 2p + 1, its future 2p + 2.
class PeriodStore {
 public:
  static constexpr int kPeriods = 4;
  static constexpr int kSides = 24;

  // Throws Fault(Index) outside the bounds.
  PeriodRecord& At(int period, int sideIndex);
  const PeriodRecord& At(int period, int sideIndex) const;

 private:
  std::array<std::array<PeriodRecord, kPeriods>, kSides> records_;
};

}  // namespace vicetoll
