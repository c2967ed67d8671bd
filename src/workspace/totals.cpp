// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/totals.h"

#include "base/checked_int.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "workspace/date_list.h"
#include "workspace/parameters.h"
#include "workspace/period_operations.h"

namespace vicetoll {
namespace {

constexpr std::string_view kNotAvailable = "n/a";

void WriteZeroIfEmpty(TextBox& box) {
  if (box.Text().empty()) box.SetText("0");
}

void ShowDates(WorkspaceSide& side, SideIndex sideIndex) {
  for (int p = 1; p <= kPeriodCount; ++p) {
    const PeriodRecord& record = side.Store().At(p, sideIndex);
    const bool counted = record.PeriodEnabled && record.PeriodSet;
    side.Workspace().lblTo(side.IsPast() ? p : p + kPeriodCount).SetVisible(counted);
    side.lblFirstDate(p).SetVisible(counted);
    side.lblLastDate(p).SetVisible(counted);
    if (!counted) continue;
    side.lblFirstDate(p).SetCaption(record.StartLabel);
    side.lblLastDate(p).SetCaption(record.StopLabel);
  }
}

// Copies the results of a side's tab to positions 5 to 8 and the summary total.
void CopyResults(WorkspaceSide& side) {
  for (int p = 1; p <= kPeriodCount; ++p) {
    for (auto* boxes : {&side.txtResultsPeriod, &side.txtCumulativeResultsPeriod}) {
      TextBox& copy = (*boxes)(p + kPeriodCount);
      copy.SetText((*boxes)(p).Text());
      copy.SetEnabled((*boxes)(p).Enabled());
      copy.SetVisible((*boxes)(p).Visible());
    }
  }
  side.txtResultsTotalSummary->SetText(side.txtResultsTotal->Text());
}

void EnableTotals(SinWorkspace& ws, bool enabled) {
  ws.comInterestRateFutureDateTot->SetEnabled(enabled);
  ws.comInflationRateFutureDateTot->SetEnabled(enabled);
  ws.txtCumulativeFutureDateTot->SetEnabled(enabled);
  ws.txtCumulativeResultsTotalSummaryTot->SetEnabled(enabled);
  ws.comCumulativeFutureDateTot->SetEnabled(enabled);
}

// The balance carried on to the chosen date at the chosen rates.
void EvaluateFutureDate(SinWorkspace& ws, const std::string& anchor) {
  const double rate = LeadingNumber(ws.comInterestRateFutureDateTot->Text()) -
                      LeadingNumber(ws.comInflationRateFutureDateTot->Text());
  const std::string balance = NumberToText(MoneyToNumber(ws.txtCumulativeResultsTotalSummaryTot->Text()));
  const double value = CostAfterLastPeriod(balance, rate, anchor, ws.comCumulativeFutureDateTot->Text());
  ws.txtCumulativeFutureDateTot->SetText(ws.Money(value, kTotalFormat));
  ws.evaluatedAt = {ws.comCumulativeFutureDateTot->Text(), ws.comInterestRateFutureDateTot->Text(),
                    ws.comInflationRateFutureDateTot->Text()};
}

// Monthly from the anchor for about five years, then half-yearly to `years` years behind it.
void FillFutureDates(SinWorkspace& ws, const std::string& anchor, std::int16_t years) {
  DropDownList& list = *ws.comCumulativeFutureDateTot;
  list.SetText(anchor);
  const std::int16_t half = MonthNumberFromLabel(anchor) < 6 ? 1 : 6;
  const std::int16_t year = YearFromLabel(anchor);
  const std::string joint = MakeDateLabel(half, Add(year, 5));
  FillDateList(true, list, joint, MakeDateLabel(half, Add(year, years)), 6);
  FillDateList(false, list, anchor, joint, 1);
}

}  // namespace

void RefreshResults(WorkspaceSide& side, SideIndex sideIndex) {
  ++side.GetSession().timesSet;
  for (int p = 1; p <= kPeriodCount; ++p) {
    PeriodRecord& record = side.Store().At(p, sideIndex);
    if (!record.PeriodSet) continue;
    const bool on = side.rbnEnabledPeriod(p).Value();
    record.PeriodEnabled = on;
    side.txtResultsPeriod(p).SetAvailable(on);
    side.txtCumulativeResultsPeriod(p).SetAvailable(on);
    PopulateResults(side, sideIndex);
  }
}

void PopulateResults(WorkspaceSide& side, SideIndex sideIndex) {
  const SideResults results = EvaluateSide(SideTermsOf(side, sideIndex), WarningOf(side.Workspace()));
  for (int p = 1; p <= kPeriodCount; ++p) {
    side.txtResultsPeriod(p).SetText(results.costs[p - 1]);
    side.txtCumulativeResultsPeriod(p).SetText(results.balances[p - 1]);
  }
  side.txtResultsTotal->SetText(results.total);
}

std::string CumulativeChainFuture(SinWorkspace& ws, SideIndex sideIndex, const std::string& opening) {
  return CumulativeChain(SideTermsOf(ws.Of(Side::Future), sideIndex), opening, WarningOf(ws));
}

CountedPeriods CountedOf(const WorkspaceSide& side, SideIndex sideIndex) {
  CountedPeriods counted;
  for (int p = kPeriodCount; p >= 1; --p) {
    const PeriodRecord& record = side.Store().At(p, sideIndex);
    if (!record.PeriodEnabled || !record.PeriodSet) continue;
    if (counted.last == 0) counted.last = p;
    counted.first = p;
  }
  // A side of which nothing counts goes as one with a zero total, whatever its box shows.
  counted.worthCounting = counted.last != 0 && MoneyToNumber(side.txtResultsTotal->Text()) != 0;
  return counted;
}

namespace {

// A side as it is counted under a number of the store.
struct CountedSide : CountedPeriods {
  CountedSide(const WorkspaceSide& ofSide, SideIndex sideIndex)
      : CountedPeriods(CountedOf(ofSide, sideIndex)), side(ofSide), index(sideIndex) {}

  const std::string& FirstStart() const { return side.Store().At(first, index).StartLabel; }
  const std::string& LastStop() const { return side.Store().At(last, index).StopLabel; }
  const std::string& LastBalance() const { return side.txtCumulativeResultsPeriod(last).Text(); }

  const WorkspaceSide& side;
  SideIndex index;
};

struct BothSides {
  BothSides(const SinWorkspace& ws, SideIndex pastIndex, SideIndex futureIndex)
      : past(ws.Of(Side::Past), pastIndex), future(ws.Of(Side::Future), futureIndex) {}

  bool AnyWorthCounting() const { return past.worthCounting || future.worthCounting; }
  // Where the figure at a future date starts: the stop of the last period that counts.
  const std::string& LastStop() const { return future.worthCounting ? future.LastStop() : past.LastStop(); }

  CountedSide past, future;
};

// The future chain opened with the past's balance grown over the gap between them. Both sides must be worth
// counting.
std::string PastCarriedIntoFuture(const BothSides& both, const DateWarning& warn) {
  const auto& [past, future] = both;
  const double opening = CumulativeCostBetweenPeriod(past.side, past.LastBalance(), past.last,
                                                     past.LastStop(), future.FirstStart());
  return CumulativeChain(SideTermsOf(future.side, future.index), NumberToText(opening), warn);
}

// The balance of all that counts at its last stop, as text; empty where nothing counts.
std::string BalanceOf(const BothSides& both, const DateWarning& warn) {
  const auto& [past, future] = both;
  if (past.worthCounting && future.worthCounting) return PastCarriedIntoFuture(both, warn);
  if (future.worthCounting) return future.LastBalance();
  if (past.worthCounting) return past.LastBalance();
  return {};
}

// The number in a box of kTotalFormat, where zero is a symbol without a digit.
double WholeUnits(const std::string& shown) { return AmountShown(shown).value_or(0); }

// The figure reckoned anew with the terms of the last time; none where there are none, or nothing counts. Its
// `value` is unrounded.
std::optional<FutureDateFigure> FutureDateFigureAnew(const SinWorkspace& ws) {
  const BothSides both(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index());
  if (!ws.evaluatedAt || !both.AnyWorthCounting()) return std::nullopt;
  const double rate = LeadingNumber(ws.evaluatedAt->interest) - LeadingNumber(ws.evaluatedAt->inflation);
  const double balance = MoneyToNumber(BalanceOf(both, [](DateFault) {}));
  FutureDateFigure figure{both.LastStop(), ws.evaluatedAt->date, balance, rate, 0};
  figure.value = CostAfterLastPeriod(NumberToText(balance), rate, figure.from, figure.date);
  return figure;
}

}  // namespace

std::optional<FutureDateFigure> FutureDateFigureOf(const SinWorkspace& ws) {
  auto figure = FutureDateFigureAnew(ws);
  const std::string& shown = ws.txtCumulativeFutureDateTot->Text();
  if (!figure || ws.Money(figure->value, kTotalFormat) != shown) return std::nullopt;
  figure->value = WholeUnits(shown);
  return figure;
}

std::optional<std::string> OldFutureDateFigure(const SinWorkspace& ws) {
  const auto figure = FutureDateFigureAnew(ws);
  const std::string& shown = ws.txtCumulativeFutureDateTot->Text();
  if (shown == (figure ? ws.Money(figure->value, kTotalFormat) : std::string(kNotAvailable)))
    return std::nullopt;
  return shown == kNotAvailable ? std::string() : NumberToText(WholeUnits(shown));
}

std::optional<std::string> OldBalance(const SinWorkspace& ws) {
  const BothSides both(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index());
  const bool opened = ws.evaluatedAt.has_value();
  const double anew = opened ? WholeUnits(BalanceOf(both, [](DateFault) {})) : 0;
  const double shown = WholeUnits(ws.txtCumulativeResultsTotalSummaryTot->Text());
  if (shown == anew) return std::nullopt;
  return NumberToText(shown);
}

void ShowOldBalance(SinWorkspace& ws, const std::string& balance) {
  ws.txtCumulativeResultsTotalSummaryTot->SetText(ws.Money(TextToNumber(balance), kTotalFormat));
}

void ShowOldFutureDateFigure(SinWorkspace& ws, const std::string& figure) {
  ws.txtCumulativeFutureDateTot->SetText(figure.empty() ? std::string(kNotAvailable)
                                                        : ws.Money(TextToNumber(figure), kTotalFormat));
}

void UpdateCombinedCumulative(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide) {
  for (Side side : kSides) WriteZeroIfEmpty(*ws.Of(side).txtResultsTotal);
  const BothSides both(ws, pastSide, futureSide);
  TextBox& balance = *ws.txtCumulativeResultsTotalSummaryTot;
  if (both.AnyWorthCounting())
    balance.SetText(BalanceOf(both, WarningOf(ws)));
  else if (MoneyToNumber(ws.Of(Side::Past).txtResultsTotal->Text()) == 0 &&
           MoneyToNumber(ws.Of(Side::Future).txtResultsTotal->Text()) == 0)
    balance.SetText("0");
  // Else a total shows what a press made of disabled periods: none of them has a balance to write.
}

void UpdateTotalTab(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide) {
  WorkspaceSide& past = ws.Of(Side::Past);
  WorkspaceSide& future = ws.Of(Side::Future);
  ShowDates(past, pastSide);
  ShowDates(future, futureSide);
  ws.cmdCumulativeFutureDateTot->SetEnabled(false);
  CopyResults(past);
  CopyResults(future);
  WriteZeroIfEmpty(*past.txtResultsTotal);
  WriteZeroIfEmpty(*future.txtResultsTotal);

  const BothSides both(ws, pastSide, futureSide);
  // As the boxes stand, also that of a side of which nothing counts: a press writes a total with disabled
  // periods in it.
  const double onScreen =
      MoneyToNumber(past.txtResultsTotal->Text()) + MoneyToNumber(future.txtResultsTotal->Text());
  ws.txtResultsTotalSummaryTot->SetText(ws.Money(onScreen, kTotalFormat));
  const bool anything = both.AnyWorthCounting();
  EnableTotals(ws, anything);
  ws.cmdAdvResultsDocSummaryTot->SetEnabled(anything);
  ws.cmdAdvResultsSpdSummaryTot->SetEnabled(anything);
  if (!anything) {
    for (TextBox* box : {ws.txtResultsTotalSummaryTot, ws.txtCumulativeResultsTotalSummaryTot,
                         ws.txtCumulativeFutureDateTot})
      box->SetText(kNotAvailable);
    return;
  }

  ws.txtCumulativeResultsTotalSummaryTot->SetText(BalanceOf(both, WarningOf(ws)));
  const std::string anchor = both.LastStop();
  FillFutureDates(ws, anchor, both.future.worthCounting ? 105 : 155);
  EvaluateFutureDate(ws, anchor);
}

void UpdateFutureDateTotal(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide) {
  ++ws.GetSession().timesSet;
  const BothSides both(ws, pastSide, futureSide);
  const auto& [past, future] = both;
  std::string& pastDate = ws.Of(Side::Past).state.BeginManualDate;
  std::string& futureDate = ws.Of(Side::Future).state.BeginManualDate;
  // A total of "$0" with a period counted differs from "0": its date is noted though its way is not taken.
  if (past.side.txtResultsTotal->Text() != "0" && past.last != 0) pastDate = past.LastStop();
  if (future.side.txtResultsTotal->Text() != "0" && future.last != 0) futureDate = future.LastStop();
  if (both.AnyWorthCounting()) {
    EvaluateFutureDate(ws, future.worthCounting ? futureDate : pastDate);
  } else {
    // The summary of the costs keeps what it had.
    ws.txtCumulativeResultsTotalSummaryTot->SetText(kNotAvailable);
    ws.txtCumulativeFutureDateTot->SetText(kNotAvailable);
    EnableTotals(ws, false);
  }
  ws.cmdCumulativeFutureDateTot->SetEnabled(false);
}

void GrowFutureRateLists(SinWorkspace& ws) {
  AppendEntries(ws, *ws.comInterestRateFutureDateTot, kRateList);
  AppendEntries(ws, *ws.comInflationRateFutureDateTot, kRateList);
}

void RetireEuroButton(SinWorkspace& ws) {
  ws.cmdEuro->SetAvailable(false);
  ws.Resize(ws.Width(), ws.Height() - kEuroRow);
}

}  // namespace vicetoll
