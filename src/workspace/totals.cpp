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

std::string PastCarriedIntoFuture(const SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide,
                                  const DateWarning& warn) {
  const CountedPeriods past = CountedOf(ws.Of(Side::Past), pastSide);
  const CountedPeriods future = CountedOf(ws.Of(Side::Future), futureSide);
  const double opening = CumulativeCostBetweenPeriod(
      ws.Of(Side::Past), ws.Of(Side::Past).txtCumulativeResultsPeriod(past.last).Text(), past.last,
      ws.Store().At(past.last, pastSide).StopLabel, ws.Store().At(future.first, futureSide).StartLabel);
  return CumulativeChain(SideTermsOf(ws.Of(Side::Future), futureSide), NumberToText(opening), warn);
}

// The balance of all that counts at its last stop, as text; empty where nothing counts.
std::string BalanceOfBothSides(const SinWorkspace& ws, const CountedPeriods& past,
                               const CountedPeriods& future, SideIndex pastSide, SideIndex futureSide,
                               const DateWarning& warn) {
  if (past.worthCounting && future.worthCounting)
    return PastCarriedIntoFuture(ws, pastSide, futureSide, warn);
  if (future.worthCounting) return ws.Of(Side::Future).txtCumulativeResultsPeriod(future.last).Text();
  if (past.worthCounting) return ws.Of(Side::Past).txtCumulativeResultsPeriod(past.last).Text();
  return {};
}

// The number in a box of kTotalFormat, where zero is a symbol without a digit.
double WholeUnits(const std::string& shown) {
  return IsNumeric(StripCurrency(shown)) ? MoneyToNumber(shown) : 0;
}

// Where the figure at a future date starts: the stop of the last period that counts.
const std::string& LastStop(const SinWorkspace& ws, const CountedPeriods& past, const CountedPeriods& future,
                            SideIndex pastSide, SideIndex futureSide) {
  return future.worthCounting ? ws.Store().At(future.last, futureSide).StopLabel
                              : ws.Store().At(past.last, pastSide).StopLabel;
}

}  // namespace

std::string PastCarriedIntoFuture(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide) {
  return PastCarriedIntoFuture(ws, pastSide, futureSide, WarningOf(ws));
}

namespace {

// The figure reckoned anew with the terms of the last time; none where there are none, or nothing counts. Its
// `value` is unrounded.
std::optional<FutureDateFigure> FutureDateFigureAnew(const SinWorkspace& ws) {
  const SideIndex futureSide = ws.Of(Side::Future).Index();
  const SideIndex pastSide = ws.Of(Side::Past).Index();
  const CountedPeriods past = CountedOf(ws.Of(Side::Past), pastSide);
  const CountedPeriods future = CountedOf(ws.Of(Side::Future), futureSide);
  if (!ws.evaluatedAt || (!past.worthCounting && !future.worthCounting)) return std::nullopt;
  const double rate = LeadingNumber(ws.evaluatedAt->interest) - LeadingNumber(ws.evaluatedAt->inflation);
  const double balance =
      MoneyToNumber(BalanceOfBothSides(ws, past, future, pastSide, futureSide, [](DateFault) {}));
  FutureDateFigure figure{LastStop(ws, past, future, pastSide, futureSide), ws.evaluatedAt->date, balance,
                          rate, 0};
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

void ShowOldFutureDateFigure(SinWorkspace& ws, const std::string& figure) {
  ws.txtCumulativeFutureDateTot->SetText(figure.empty() ? std::string(kNotAvailable)
                                                        : ws.Money(TextToNumber(figure), kTotalFormat));
}

void UpdateCombinedCumulative(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide) {
  for (Side side : kSides) WriteZeroIfEmpty(*ws.Of(side).txtResultsTotal);
  const CountedPeriods past = CountedOf(ws.Of(Side::Past), pastSide);
  const CountedPeriods future = CountedOf(ws.Of(Side::Future), futureSide);
  TextBox& balance = *ws.txtCumulativeResultsTotalSummaryTot;
  if (past.worthCounting || future.worthCounting)
    balance.SetText(BalanceOfBothSides(ws, past, future, pastSide, futureSide, WarningOf(ws)));
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

  const CountedPeriods pastCounted = CountedOf(past, pastSide);
  const CountedPeriods futureCounted = CountedOf(future, futureSide);
  // As the boxes stand, also that of a side of which nothing counts: a press writes a total with disabled
  // periods in it.
  const double onScreen =
      MoneyToNumber(past.txtResultsTotal->Text()) + MoneyToNumber(future.txtResultsTotal->Text());
  ws.txtResultsTotalSummaryTot->SetText(ws.Money(onScreen, kTotalFormat));
  const bool anything = pastCounted.worthCounting || futureCounted.worthCounting;
  EnableTotals(ws, anything);
  ws.cmdAdvResultsDocSummaryTot->SetEnabled(anything);
  ws.cmdAdvResultsSpdSummaryTot->SetEnabled(anything);
  if (!anything) {
    for (TextBox* box : {ws.txtResultsTotalSummaryTot, ws.txtCumulativeResultsTotalSummaryTot,
                         ws.txtCumulativeFutureDateTot})
      box->SetText(kNotAvailable);
    return;
  }

  ws.txtCumulativeResultsTotalSummaryTot->SetText(
      BalanceOfBothSides(ws, pastCounted, futureCounted, pastSide, futureSide, WarningOf(ws)));
  const std::string anchor = LastStop(ws, pastCounted, futureCounted, pastSide, futureSide);
  FillFutureDates(ws, anchor, futureCounted.worthCounting ? 105 : 155);
  EvaluateFutureDate(ws, anchor);
}

void UpdateFutureDateTotal(SinWorkspace& ws, SideIndex pastSide, SideIndex futureSide) {
  ++ws.GetSession().timesSet;
  const CountedPeriods past = CountedOf(ws.Of(Side::Past), pastSide);
  const CountedPeriods future = CountedOf(ws.Of(Side::Future), futureSide);
  std::string& pastDate = ws.Of(Side::Past).state.BeginManualDate;
  std::string& futureDate = ws.Of(Side::Future).state.BeginManualDate;
  // A total of "$0" with a period counted differs from "0": its date is noted though its way is not taken.
  if (ws.Of(Side::Past).txtResultsTotal->Text() != "0" && past.last != 0)
    pastDate = ws.Store().At(past.last, pastSide).StopLabel;
  if (ws.Of(Side::Future).txtResultsTotal->Text() != "0" && future.last != 0)
    futureDate = ws.Store().At(future.last, futureSide).StopLabel;
  if (past.worthCounting || future.worthCounting) {
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
