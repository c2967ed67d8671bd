// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/hint_sentences.h"

#include "base/code_page.h"

namespace vicetoll {
namespace {

std::string SideNextStep(const WorkspaceSide& side) {
  const int period = side.state.CurrentPeriod;
  const std::string& press = side.cmdSetPeriodParams->Caption();
  if (!side.Record(period).PeriodSet) {
    const bool amount = side.Class() != CostClass::FlatRateClass;
    return (amount ? "Choose dates, amount and cost, then press "
                   : "Choose dates, cost and rates, then press ") +
           press;
  }
  const int next = period + 1;
  if (next <= kPeriodCount && side.optTimePeriod(next).Enabled() && !side.Record(next).PeriodSet)
    return "Go on with " + PeriodName(side.Which(), next) + ", or see the results on the TOTAL tab";
  if (next <= kPeriodCount && side.Record(next).PeriodSet)
    return "Choose what differs and press " + press + "; the later periods are then to be set again";
  return "See the results on the TOTAL tab, or choose what differs and press " + press;
}

// "; " between two of them.
void Append(std::string& sentences, const std::string& sentence) {
  if (!sentences.empty()) sentences += "; ";
  sentences += sentence;
}

void AppendMoved(std::string& sentences, const char* which, bool coarse, const std::string& before,
                 const std::string& now) {
  if (now == before) return;
  Append(sentences, std::string(sentences.empty() ? "The " : "the ") + which + " list shows " +
                        (coarse ? "whole years" : "single months") + "; " + before +
                        " is not among them, it now shows " + now);
}

}  // namespace

std::string NextStep(const SinWorkspace& ws) {
  switch (ws.SSTab_PastFutureSwitch->Tab()) {
    case kPastTab:
      return ToUtf8(SideNextStep(ws.Of(Side::Past)));
    case kFutureTab:
      return ToUtf8(SideNextStep(ws.Of(Side::Future)));
    default:
      break;
  }
  if (PeriodsSet(ws.Of(Side::Past)) + PeriodsSet(ws.Of(Side::Future)) == 0)
    return "Set a period on the PAST or the FUTURE tab first";
  return "Choose a future date and its rates, then press " + ws.cmdCumulativeFutureDateTot->Caption();
}

int PeriodsSet(const WorkspaceSide& side) {
  int count = 0;
  for (int p = 1; p <= kPeriodCount; ++p)
    if (side.Record(p).PeriodSet) ++count;
  return count;
}

std::string PeriodWasSet(const WorkspaceSide& side, int periodsBefore) {
  const int period = side.state.CurrentPeriod;
  const PeriodRecord& record = side.Record(period);
  std::string text = PeriodName(side.Which(), period) + " is set (" + record.StartLabel + " to " +
                     record.StopLabel + "): " + side.txtResultsPeriod(period).Text() + " out of pocket, " +
                     side.txtCumulativeResultsPeriod(period).Text() + " cumulative";
  if (periodsBefore > period) Append(text, "the later periods are gone");
  if (period < kPeriodCount)
    Append(text, side.optTimePeriod(period + 1).Enabled()
                     ? "go on with " + PeriodName(side.Which(), period + 1)
                     : std::string("its stop leaves no room for another"));
  return ToUtf8(text);
}

std::string PeriodCounts(const WorkspaceSide& side, int period) {
  return PeriodName(side.Which(), period) + (side.rbnEnabledPeriod(period).Value()
                                                 ? " counts in the results again"
                                                 : " is left out of the results");
}

std::string DatesMoved(const WorkspaceSide& side, const std::string& start, const std::string& stop) {
  std::string moved;
  AppendMoved(moved, "start", side.optCourseDateStart->Value(), start, side.comStart->Text());
  AppendMoved(moved, "stop", side.optCourseDateStop->Value(), stop, side.comStop->Text());
  return moved;
}

std::string ReasonableCostMoved(const WorkspaceSide& side, const std::string& cost) {
  const std::string& now = side.comSubCost->Text();
  if (now == cost) return {};
  return ToUtf8("The reasonable cost list holds the amounts below the price and now shows " + now);
}

}  // namespace vicetoll
