// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/date_rules.h"

#include <algorithm>
#include <cstdlib>

#include "base/checked_int.h"
#include "calendar/date_label.h"
#include "workspace/date_list.h"

namespace vicetoll {
namespace {

constexpr std::int16_t kFineStep = 1;

// Lists that were reset reach farther than those of a load.
constexpr int kFutureYearsAfterReset = 85;

// Handed to the fine rules for period 1, which has no previous period: a date long past. It is parsed,
// but each rule that would use it applies only to periods above 1.
const std::string kNoPreviousStop = "Jun - 1915";

std::string SixMonthsBefore(std::int16_t m, std::int16_t y) {
  return m <= 6 ? MakeDateLabel(m + 6, Subtract(y, 1)) : MakeDateLabel(m - 6, y);
}

// From June the future side reaches month 0 of the next year, which reads as its December: 18 months
// ahead instead of six. The past side stays within the year.
std::string SixMonthsAfter(Side side, std::int16_t m, std::int16_t y) {
  const bool intoNextYear = side == Side::Future ? m >= 6 : m > 6;
  return intoNextYear ? MakeDateLabel(m - 6, Add(y, 1)) : MakeDateLabel(m + 6, y);
}

// Made for the past side and used on both: a future date early in the next year is not near by this test,
// so its fine list may begin before the next month.
bool NearPresent(const Present& now, std::int16_t m, std::int16_t y) {
  return (y == now.Y - 1 && m > now.M + 6) || (y == now.Y && m <= now.M + 6);
}

// Moves `lower` to the month after the previous period's stop where that is less than seven months away.
void KeepBehindPreviousStop(WorkspaceSide& side, const std::string& thisDate, const std::string& previousStop,
                            std::string& lower) {
  const int gap = std::abs(MonthsBetween(thisDate, previousStop));
  if (side.state.CurrentPeriod != 1 && gap < 7) lower = MonthAfter(previousStop);
}

enum class From { Start, Stop };

std::string PreviousStop(WorkspaceSide& side, SideIndex sideIndex) {
  const int current = side.state.CurrentPeriod;
  return current == 1 ? kNoPreviousStop : side.Store().At(current - 1, sideIndex).StopLabel;
}

// What the two lists showed and where they ended, before they are made anew.
struct DatesBefore {
  std::string start, stop;
  std::string firstStart, lastStop;
  std::string previousStop;  // of the period before
};

// In coarse lists the two dates bound each other; the list that has the focus keeps its stored far end, the
// other one the far end it has.
void RebuildStart(WorkspaceSide& side, const DatesBefore& before, const PeriodRecord& record, From from) {
  const bool focused = from == From::Start;
  const bool coarse = focused ? side.optCourseDateStart->Value() : !side.optFineDateStart->Value();
  if (coarse)
    FillDateList(true, *side.comStart, focused ? record.StartListFirst : before.firstStart, before.stop,
                 kCoarseStep);
  else if (before.start != before.stop)
    FineBetween(side, *side.comStart, before.start, before.stop, before.previousStop);
  else
    FineStart(side, *side.comStart, before.start, before.previousStop);
}

void RebuildStop(WorkspaceSide& side, const DatesBefore& before, const PeriodRecord& record, From from) {
  const bool focused = from == From::Stop;
  const bool coarse = focused ? side.optCourseDateStop->Value() : !side.optFineDateStop->Value();
  if (coarse)
    FillDateList(true, *side.comStop, before.start, focused ? record.StopListLast : before.lastStop,
                 kCoarseStep);
  else if (before.start != before.stop)
    FineBetween(side, *side.comStop, before.stop, before.start, before.previousStop);
  else
    FineStop(side, *side.comStop, before.stop);
}

void RebuildDates(WorkspaceSide& side, From from) {
  DatesBefore before{.start = side.comStart->Text(),
                     .stop = side.comStop->Text(),
                     .firstStart = side.comStart->Entry(0),
                     .lastStop = side.comStop->Entry(side.comStop->Count() - 1),
                     .previousStop = {}};
  side.comStart->Clear();
  side.comStop->Clear();
  // The side in front by its number: the tabs keep it.
  const SideIndex sideIndex = side.GetSession().CurrentSinNumber;
  before.previousStop = PreviousStop(side, sideIndex);
  const PeriodRecord& record = side.Store().At(side.state.CurrentPeriod, sideIndex);
  if (from == From::Start) RebuildStart(side, before, record, from);
  RebuildStop(side, before, record, from);
  if (from == From::Stop) RebuildStart(side, before, record, from);
  side.comStart->SelectEntry(std::max(0, side.comStart->Find(before.start)));
  const int stop = side.comStop->Find(before.stop);
  side.comStop->SelectEntry(stop == -1 ? side.comStop->Count() - 1 : stop);
}

void RefreshDates(WorkspaceSide& side, From from) {
  side.cmdSetPeriodParams->SetEnabled(false);
  try {
    RebuildDates(side, from);
    side.cmdSetPeriodParams->SetEnabled(true);
  } catch (const Fault&) {
    side.Workspace().GetPlatform().ShowMessage(
        "",
        "A minor error occurred due to a bug\r\n"
        "The Date Listboxes will be reset to default values\r\n"
        "Manually reset dates and proceed or Exit and Restart Program1",
        MessageButtons::Ok);
    // The set button stays disabled until a list receives the focus again.
    ResetDateLists(side);
  }
}

}  // namespace

void RefreshDatesFromStart(WorkspaceSide& side) { RefreshDates(side, From::Start); }
void RefreshDatesFromStop(WorkspaceSide& side) { RefreshDates(side, From::Stop); }

void FineBetween(WorkspaceSide& side, DropDownList& list, const std::string& thisDate,
                 const std::string& otherDate, const std::string& previousStop) {
  const Present now(side.GetSession());
  const std::int16_t m = MonthNumberFromLabel(thisDate);
  const std::int16_t y = YearFromLabel(thisDate);
  const std::int16_t span = MonthsBetween(thisDate, otherDate);
  const bool near = NearPresent(now, m, y);
  std::string lower = SixMonthsBefore(m, y);
  std::string upper = SixMonthsAfter(side.Which(), m, y);
  // The other date of the period bounds the list where it is near; otherwise the present does, on the
  // past side from above, on the future side, as the next month, from below.
  if (span > 0 && span < 6)
    upper = otherDate;
  else if (side.IsPast() && near)
    upper = now.Label(0, 0);
  if (span > -6 && span < 0)
    lower = otherDate;
  else if (!side.IsPast() && near)
    lower = now.Label(1, 0);
  KeepBehindPreviousStop(side, thisDate, previousStop, lower);
  FillDateList(true, list, lower, upper, kFineStep);
}

void FineStart(WorkspaceSide& side, DropDownList& list, const std::string& thisDate,
               const std::string& previousStop) {
  const Present now(side.GetSession());
  const std::int16_t m = MonthNumberFromLabel(thisDate);
  const std::int16_t y = YearFromLabel(thisDate);
  std::string lower = SixMonthsBefore(m, y);
  if (!side.IsPast() && NearPresent(now, m, y)) lower = now.Label(1, 0);
  KeepBehindPreviousStop(side, thisDate, previousStop, lower);
  FillDateList(true, list, lower, thisDate, kFineStep);
}

void FineStop(WorkspaceSide& side, DropDownList& list, const std::string& thisDate) {
  const Present now(side.GetSession());
  const std::int16_t m = MonthNumberFromLabel(thisDate);
  const std::int16_t y = YearFromLabel(thisDate);
  std::string upper = SixMonthsAfter(side.Which(), m, y);
  if (side.IsPast() && NearPresent(now, m, y)) upper = now.Label(0, 0);
  FillDateList(true, list, thisDate, upper, kFineStep);
}

void PrepareNextPeriodDates(WorkspaceSide& side, int period, SideIndex sideIndex) {
  const Present now(side.GetSession());
  const std::string next = MonthAfter(side.Store().At(period - 1, sideIndex).StopLabel);
  const std::string last = side.IsPast() ? now.Label(0, 0) : now.Label(1, kFutureYears);
  for (DropDownList* list : {side.comStart, side.comStop}) {
    FillDateList(true, *list, next, last, kCoarseStep);
    list->SetText(next);
  }
}

void ResetDateLists(WorkspaceSide& side) {
  const Present now(side.GetSession());
  const std::string first = side.IsPast() ? now.Label(0, kPastYears) : now.Label(1, 0);
  const std::string last = side.IsPast() ? now.Label(0, 0) : now.Label(1, kFutureYearsAfterReset);
  side.optFineDateStart->SetValue(true);
  side.optFineDateStop->SetValue(true);
  for (int p = 1; p <= kPeriodCount; ++p) {
    side.rbnDisabledPeriod(p).SetValue(false);
    side.rbnEnabledPeriod(p).SetValue(true);
    side.optTimePeriod(p).SetValue(false);
    side.optTimePeriod(p).SetEnabled(false);
  }
  side.optTimePeriod(1).SetEnabled(true);
  side.optTimePeriod(1).SetValue(true);
  // Of the future side, also when the past side is reset: the past side's current period stays.
  side.Workspace().Of(Side::Future).state.CurrentPeriod = 1;
  for (DropDownList* list : {side.comStart, side.comStop}) {
    list->Clear();
    FillDateList(true, *list, first, last, kCoarseStep);
  }
  side.comStart->SelectEntry(0);
  side.comStop->SelectEntry(side.comStop->Count() - 1);
}

}  // namespace vicetoll
