// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "calendar/date_label.h"
#include "entries/entries_file.h"
#include "entries/file_words.h"
#include "entries/value_lists.h"

namespace vicetoll {
namespace {

using Json = nlohmann::ordered_json;

std::string MonthText(const std::string& label) {
  const int year = YearFromLabel(label);
  if (MonthNumberFromLabel(label) == 0 || year < kFirstIsoYear || year > kLastIsoYear)
    throw EntriesRefused("\"" + label + "\" has no place in a file: its year does not have four digits");
  return IsoMonth(label);
}

std::string RangeText(const MonthRange& range) {
  return MonthText(range.first) + std::string(kRangeWord) + MonthText(range.last);
}

Json PeriodOf(const PeriodEntries& period, int position) {
  const CostClass costClass = Catalogue()[position].costClass;
  Json json;
  json["start"] = MonthText(period.start);
  json["stop"] = MonthText(period.stop);
  json["startList"] = RangeText(period.startList);
  json["stopList"] = RangeText(period.stopList);
  json[costClass == CostClass::FlatRateClass ? "amount" : "quantity"] = period.quantity;
  json["unit"] = UnitWord(position, period.unit);
  if (!period.otherUnit.empty()) json["inOtherUnit"] = period.otherUnit;
  if (costClass != CostClass::FlatRateClass) json["cost"] = period.cost;
  if (HasCostModes(costClass)) {
    json["finalCost"] = period.finalCost;
    json["costMode"] = kCostModeWords[period.percentMode ? 0 : 1];
  }
  if (costClass == CostClass::NetUnitsClass) json["reasonableCost"] = period.reasonableCost;
  json["increase"] = std::to_string(period.increase);
  json["interest"] = std::to_string(period.interest);
  json["inflation"] = std::to_string(period.inflation);
  json["enabled"] = period.enabled;
  return json;
}

void AddSide(Json& json, const SinEntries& sin, Side side) {
  const SideEntries& entries = sin.Of(side);
  const std::string key(SideWord(side));
  json[key] = Json::array();
  for (const PeriodEntries& period : entries.periods) json[key].push_back(PeriodOf(period, sin.position));
  if (entries.periods.empty()) return;
  Json screen;
  screen["period"] = entries.shownPeriod;
  screen["unit"] = UnitWord(sin.position, entries.shownUnit);
  if (entries.resultsBy != UsualResultsBy(entries))
    screen["results"] = kCountedInWords[static_cast<int>(entries.resultsBy)];
  if (entries.resultsUnit != UsualResultsUnit(entries))
    screen["resultsUnit"] = UnitWord(sin.position, entries.resultsUnit);
  if (entries.outOfOrder) screen["dates"] = kOutOfOrder;
  json[key + "Screen"] = screen;
}

std::string PercentText(const std::string& rate) { return rate.substr(0, rate.find('%')); }

Json TotalOf(const FutureDateTerms& terms) {
  Json json;
  if (!terms.date.empty()) json["date"] = MonthText(terms.date);
  json["interest"] = PercentText(terms.interest);
  json["inflation"] = PercentText(terms.inflation);
  return json;
}

Json SinOf(const SinEntries& sin) {
  Json json;
  for (Side side : kSides) AddSide(json, sin, side);
  if (sin.total) json["total"] = TotalOf(*sin.total);
  if (sin.oldFigure)
    json["total"]["oldFigure"] = sin.oldFigure->empty() ? std::string(kNoFigure) : *sin.oldFigure;
  if (sin.oldBalance) json["oldBalance"] = *sin.oldBalance;
  if (sin.totalWaiting) json["totalWaiting"] = TotalOf(*sin.totalWaiting);
  return json;
}

}  // namespace

std::string WriteEntries(const Entries& entries) {
  Json json;
  json["format"] = kFormatName;
  json["version"] = kFormatVersion;
  json["currency"] = kCurrencyWords[entries.currency == Currency::Dollar ? 0 : 1];
  json["sin"] = Catalogue()[entries.front].key;
  json["tab"] = kTabWords[entries.tab];
  json["sins"] = Json::object();
  for (const SinEntries& sin : entries.sins)
    json["sins"][std::string(Catalogue()[sin.position].key)] = SinOf(sin);
  return json.dump(2) + "\n";
}

std::string WritePeriods(const SinEntries& sin, std::initializer_list<Side> sides) {
  Json list = Json::array();
  for (const Side side : sides) {
    for (const PeriodEntries& period : sin.Of(side).periods) {
      Json json = PeriodOf(period, sin.position);
      json["side"] = SideWord(side);
      list.push_back(std::move(json));
    }
  }
  return list.dump(2);
}

}  // namespace vicetoll
