// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <array>

#include "base/file_reader.h"
#include "base/file_writer.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "entries/file_words.h"
#include "entries/json_value.h"
#include "entries/value_lists.h"

namespace vicetoll {
namespace {

constexpr const char* kTooManyBytes = "the file is larger than 1 MiB";

std::string MonthOf(const JsonValue& value, std::string_view text) {
  std::string label = LabelOfIsoMonth(text);
  if (label.empty()) value.Fail(Quotation(text) + " is no month (such as \"2031-06\")");
  return label;
}

std::string MonthOf(const JsonValue& value) { return MonthOf(value, value.Text()); }

MonthRange RangeOf(const JsonValue& value) {
  const std::string_view text = value.Text();
  const std::size_t at = text.find(kRangeWord);
  if (at == std::string_view::npos)
    value.Fail(Quotation(text) + " is no range (such as \"1936-06 to 2026-06\")");
  return {MonthOf(value, text.substr(0, at)), MonthOf(value, text.substr(at + kRangeWord.size()))};
}

// Whether the text is a decimal number as the lists write them.
bool IsDecimal(std::string_view text) {
  const std::size_t point = text.find('.');
  const auto digits = [](std::string_view part) {
    return !part.empty() && part.find_first_not_of("0123456789") == std::string_view::npos;
  };
  return text.size() < 16 && digits(text.substr(0, point)) &&
         (point == std::string_view::npos || digits(text.substr(point + 1)));
}

// The entries on both sides of an amount that is none.
std::string Neighbours(const Amounts& amounts, const std::string& text) {
  if (!IsDecimal(text)) return amounts.front() + " to " + amounts.back();
  const double value = TextToNumber(text);
  const std::string* below = nullptr;
  const std::string* above = nullptr;
  for (const std::string& amount : amounts) {
    const double entry = TextToNumber(amount);
    if (entry <= value && (below == nullptr || entry > TextToNumber(*below))) below = &amount;
    if (entry >= value && (above == nullptr || entry < TextToNumber(*above))) above = &amount;
  }
  if (below == nullptr) return "which begins with " + *above;
  if (above == nullptr) return "which ends with " + *below;
  return *below == *above ? *below : *below + ", " + *above;
}

const std::string& AmountOf(const JsonValue& value, const Amounts& amounts) {
  const std::string& text = value.Text();
  if (PlaceOf(amounts, text) == -1)
    value.Fail(Quotation(text) + " is no entry of the list (" + Neighbours(amounts, text) + ")");
  return text;
}

int PercentOf(const JsonValue& value) {
  const std::string& text = value.Text();
  const bool good = IsDecimal(text) && text.size() <= 3 && TextToNumber(text) <= 100 &&
                    text == NumberToText(TextToNumber(text)) && text.find('.') == std::string::npos;
  if (!good) value.Fail(Quotation(text) + " is no entry of the list (0 to 100)");
  return static_cast<int>(TextToNumber(text));
}

Unit UnitOf(const JsonValue& value, int position) {
  const int word = value.Word({UnitWord(position, Unit::PerDay), UnitWord(position, Unit::PerMonth)});
  return word == 0 ? Unit::PerDay : Unit::PerMonth;
}

void ReadCosts(const JsonValue& json, int position, PeriodEntries& period) {
  const CostClass costClass = Catalogue()[position].costClass;
  if (costClass != CostClass::FlatRateClass)
    period.cost = AmountOf(json.Member("cost"), CostAmounts(position));
  if (HasCostModes(costClass)) {
    period.finalCost = AmountOf(json.Member("finalCost"), SecondCostAmounts(position));
    period.percentMode = json.Member("costMode").Word({kCostModeWords[0], kCostModeWords[1]}) == 0;
  }
  if (costClass == CostClass::NetUnitsClass)
    period.reasonableCost = AmountOf(json.Member("reasonableCost"), SecondCostAmounts(position));
  period.increase = PercentOf(json.Member("increase"));
  period.interest = PercentOf(json.Member("interest"));
  period.inflation = PercentOf(json.Member("inflation"));
}

void HasOnlyFieldsOf(const JsonValue& json, CostClass costClass) {
  switch (costClass) {
    case CostClass::PacksClass:
    case CostClass::UnitsClass:
      return json.HasOnly({"start", "stop", "startList", "stopList", "quantity", "unit", "inOtherUnit",
                           "cost", "finalCost", "costMode", "increase", "interest", "inflation", "enabled"});
    case CostClass::NetUnitsClass:
      return json.HasOnly({"start", "stop", "startList", "stopList", "quantity", "unit", "inOtherUnit",
                           "cost", "reasonableCost", "increase", "interest", "inflation", "enabled"});
    case CostClass::FlatRateClass:
      return json.HasOnly({"start", "stop", "startList", "stopList", "amount", "unit", "inOtherUnit",
                           "increase", "interest", "inflation", "enabled"});
  }
}

PeriodEntries ReadPeriod(const JsonValue& json, int position) {
  const CostClass costClass = Catalogue()[position].costClass;
  HasOnlyFieldsOf(json, costClass);
  PeriodEntries period;
  period.start = MonthOf(json.Member("start"));
  period.stop = MonthOf(json.Member("stop"));
  // Lists of a file written by hand offer what they must.
  const auto startList = json.Optional("startList");
  const auto stopList = json.Optional("stopList");
  period.startList = startList ? RangeOf(*startList) : MonthRange{period.start, period.stop};
  period.stopList = stopList ? RangeOf(*stopList) : MonthRange{period.start, period.stop};
  period.unit = UnitOf(json.Member("unit"), position);
  period.quantity = AmountOf(json.Member(costClass == CostClass::FlatRateClass ? "amount" : "quantity"),
                             QuantityAmounts(position, period.unit));
  if (const auto other = json.Optional("inOtherUnit"))
    period.otherUnit = AmountOf(*other, QuantityAmounts(position, OtherUnit(period.unit)));
  ReadCosts(json, position, period);
  period.enabled = json.Member("enabled").Flag();
  return period;
}

void CheckOrder(const JsonValue& list, const std::vector<PeriodEntries>& periods) {
  for (std::size_t p = 1; p <= periods.size(); ++p) {
    const PeriodEntries& period = periods[p - 1];
    const JsonValue json = list.At(p);
    if (MonthsBetween(period.start, period.stop) < 0)
      json.Member("stop").Fail(Quotation(json.Member("stop").Text()) + " lies before the start, " +
                               Quotation(json.Member("start").Text()));
    if (p > 1 && MonthsBetween(periods[p - 2].stop, period.start) <= 0)
      json.Member("start").Fail(Quotation(json.Member("start").Text()) +
                                " does not lie after the stop of the period before, " +
                                Quotation(list.At(p - 1).Member("stop").Text()));
  }
}

void ReadScreen(const JsonValue& json, int position, SideEntries& side) {
  json.HasOnly({"period", "unit", "results", "resultsUnit", "dates"});
  const int count = static_cast<int>(side.periods.size());
  const JsonValue period = json.Member("period");
  side.shownPeriod = period.Number();
  if (side.shownPeriod < 1 || side.shownPeriod > std::min(count + 1, kPeriodCount))
    period.Fail("must be a period that is set, or the one after it");
  side.shownUnit = UnitOf(json.Member("unit"), position);
  if (const auto results = json.Optional("results"))
    side.resultsBy =
        static_cast<CountedIn>(results->Word({kCountedInWords[0], kCountedInWords[1], kCountedInWords[2]}));
  if (side.resultsBy == CountedIn::PressHidingFirst && side.periods[0].enabled)
    json.Fail("period 1 cannot be hidden while it is enabled");
  if (side.resultsBy != CountedIn::Switch)
    for (int p = 2; p <= count; ++p)
      if (!side.periods[p - 1].enabled)
        json.Fail("all periods cannot count while one from the second on is off");
  if (const auto unit = json.Optional("resultsUnit")) side.resultsUnit = UnitOf(*unit, position);
  if (const auto dates = json.Optional("dates")) {
    dates->Word({kOutOfOrder});
    side.outOfOrder = true;
  }
}

SideEntries ReadSide(const JsonValue& sin, int position, Side side) {
  SideEntries entries;
  const std::string key(SideWord(side));
  const auto screen = sin.Optional(key + "Screen");
  const auto list = sin.Optional(key);
  const std::size_t count = list ? list->Count() : 0;
  if (count > kPeriodCount) list->Fail("a side has at most four periods");
  for (std::size_t p = 1; p <= count; ++p) entries.periods.push_back(ReadPeriod(list->At(p), position));
  if (count == 0) {
    if (screen) screen->Fail("there is no period that could be on screen");
    return entries;
  }
  entries.shownPeriod = static_cast<int>(count);
  entries.shownUnit = entries.periods.back().unit;
  entries.resultsBy = UsualResultsBy(entries);
  entries.resultsUnit = UsualResultsUnit(entries);
  if (screen) ReadScreen(*screen, position, entries);
  if (!entries.outOfOrder) CheckOrder(*list, entries.periods);
  if (!PlacesOf(position, entries)) list->Fail("\"inOtherUnit\" says what the lists cannot give");
  return entries;
}

// Whole units as digits, with or without a sign.
std::string WholeUnitsOf(const JsonValue& value) {
  std::string_view digits = value.Text();
  if (digits.starts_with('-')) digits.remove_prefix(1);
  const bool good = !digits.empty() && digits.find_first_not_of("0123456789") == std::string_view::npos &&
                    IsNumeric(digits) && NumberToText(TextToNumber(value.Text())) == value.Text();
  if (!good) value.Fail(Quotation(value.Text()) + " is no amount in whole units");
  return value.Text();
}

// The same, or empty for "n/a".
std::string FigureOf(const JsonValue& value) {
  return value.Text() == kNoFigure ? std::string() : WholeUnitsOf(value);
}

std::optional<FutureDateTerms> ReadTerms(const std::optional<JsonValue>& json) {
  if (!json) return std::nullopt;
  FutureDateTerms terms;
  if (const auto date = json->Optional("date")) terms.date = MonthOf(*date);
  terms.interest = RateText(PercentOf(json->Member("interest")));
  terms.inflation = RateText(PercentOf(json->Member("inflation")));
  return terms;
}

SinEntries ReadSin(const JsonValue& json, int position) {
  json.HasOnly({"past", "pastScreen", "future", "futureScreen", "total", "oldBalance", "totalWaiting"});
  SinEntries sin;
  sin.position = position;
  for (Side side : kSides) sin.Of(side) = ReadSide(json, position, side);
  const auto total = json.Optional("total");
  const auto waiting = json.Optional("totalWaiting");
  if (total) total->HasOnly({"date", "interest", "inflation", "oldFigure"});
  if (waiting) waiting->HasOnly({"date", "interest", "inflation"});
  sin.total = ReadTerms(total);
  sin.totalWaiting = ReadTerms(waiting);
  if (const auto figure = total ? total->Optional("oldFigure") : std::nullopt)
    sin.oldFigure = FigureOf(*figure);
  if (const auto balance = json.Optional("oldBalance")) sin.oldBalance = WholeUnitsOf(*balance);
  if (sin.totalWaiting && !sin.total) json.Member("totalWaiting").Fail("waits, but there is no \"total\"");
  return sin;
}

int SinOf(const JsonValue& value, const std::string& key) {
  const int position = SinPosition(key);
  if (position == -1) value.Fail(Quotation(key) + " is none of the twelve sins");
  return position;
}

void CheckVersion(const JsonValue& json) {
  const JsonValue version = json.Member("version");
  if (version.Number() > kFormatVersion)
    version.Fail("this file is of version " + std::to_string(version.Number()) +
                 ", written by a newer program; this one reads version " + std::to_string(kFormatVersion));
  if (version.Number() < 1) version.Fail("there is no such version");
}

}  // namespace

Entries ReadEntries(std::string_view bytes) {
  if (bytes.size() > kMostEntriesBytes) throw EntriesRefused(kTooManyBytes);
  const JsonValue::Json parsed = ParseJson(bytes);
  const JsonValue json(parsed, "");
  json.Member("format").Word({kFormatName});
  CheckVersion(json);
  json.HasOnly({"format", "version", "currency", "sin", "tab", "sins"});
  Entries entries;
  entries.currency = json.Member("currency").Word({kCurrencyWords[0], kCurrencyWords[1]}) == 0
                         ? Currency::Dollar
                         : Currency::Euro;
  entries.front = SinOf(json.Member("sin"), json.Member("sin").Text());
  entries.tab = static_cast<Tab>(json.Member("tab").Word({kTabWords[0], kTabWords[1], kTabWords[2]}));
  // A file may name the sins in any order; the catalogue's is ours.
  std::array<std::optional<SinEntries>, kSinCount> sins;
  json.Member("sins").EachMember([&](const std::string& key, const JsonValue& value) {
    const int position = SinOf(value, key);
    sins[position] = ReadSin(value, position);
  });
  for (auto& sin : sins)
    if (sin) entries.sins.push_back(*std::move(sin));
  if (!sins[entries.front]) json.Member("sin").Fail("the sin in front is not among the sins");
  return entries;
}

std::string ReadEntriesBytes(const std::string& path) {
  std::string bytes;
  switch (const int error = ReadRegularFile(path, kMostEntriesBytes, bytes)) {
    case 0:
      return bytes;
    case kNoRegularFile:
      throw EntriesRefused("this is no regular file");
    case kTooLarge:
      throw EntriesRefused(kTooManyBytes);
    default:
      throw EntriesRefused(ReasonOf(error));
  }
}

}  // namespace vicetoll
