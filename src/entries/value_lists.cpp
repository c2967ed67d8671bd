// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/value_lists.h"

#include <algorithm>
#include <array>

#include "calendar/number_text.h"
#include "workspace/parameters.h"

namespace vicetoll {
namespace {

struct SinAmounts {
  Amounts perDay, perMonth, cost, secondCost;
};

Amounts AmountsOf(const ListDefinition& list) {
  std::string_view format = list.format;
  if (format.starts_with('$')) format.remove_prefix(1);
  return EntriesIn(NumberFormat(format), list);
}

const SinAmounts& AmountsOfSin(int position) {
  static const std::array<SinAmounts, kSinCount> kAmounts = [] {
    std::array<SinAmounts, kSinCount> all;
    for (int i = 0; i < kSinCount; ++i) {
      const SinRow& sin = Catalogue()[i];
      all[i] = {AmountsOf(sin.perDayList), AmountsOf(sin.perMonthList), AmountsOf(sin.costList),
                AmountsOf(sin.secondCostList)};
    }
    return all;
  }();
  return kAmounts.at(position);
}

// A list that was appended so many times.
struct Repeated {
  const Amounts& amounts;
  int copies;

  int Count() const { return copies * static_cast<int>(amounts.size()); }
  const std::string& At(int place) const {
    return place < Count() ? amounts[place % amounts.size()] : amounts.back();
  }
};

// The first place that reads as the period has it in both lists, -1 where there is none.
int PlaceInBoth(const PeriodEntries& period, const Repeated& own, const Repeated& other) {
  const int first = PlaceOf(own.amounts, period.quantity);
  if (first == -1 || period.otherUnit.empty()) return first;
  const int end = std::max(own.Count(), other.Count());
  for (int place = first; place < end; ++place)
    if (own.At(place) == period.quantity && other.At(place) == period.otherUnit) return place;
  return -1;
}

}  // namespace

const Amounts& QuantityAmounts(int position, Unit unit) {
  const SinAmounts& sin = AmountsOfSin(position);
  return unit == Unit::PerDay ? sin.perDay : sin.perMonth;
}

const Amounts& CostAmounts(int position) { return AmountsOfSin(position).cost; }
const Amounts& SecondCostAmounts(int position) { return AmountsOfSin(position).secondCost; }

int PlaceOf(const Amounts& amounts, const std::string& amount) {
  const auto found = std::find(amounts.begin(), amounts.end(), amount);
  return found == amounts.end() ? -1 : static_cast<int>(found - amounts.begin());
}

const std::string& AmountAt(const Amounts& amounts, int place) {
  return amounts.at(std::min<std::size_t>(place, amounts.size() - 1));
}

std::string RateText(int percent) { return std::to_string(percent) + "%"; }

std::string_view UnitWord(int position, Unit unit) {
  if (HasListPerUnit(Catalogue().at(position).costClass))
    return unit == Unit::PerDay ? "packs" : "cigarettes";
  return unit == Unit::PerDay ? "per day" : "per month";
}

std::optional<QuantityPlaces> PlacesOf(int position, const SideEntries& side) {
  // With three copies every quantity has a place for every reading in the other unit that occurs.
  const int most = HasListPerUnit(Catalogue().at(position).costClass) ? 3 : 1;
  for (int copies = 1; copies <= most; ++copies) {
    const Repeated perDay{QuantityAmounts(position, Unit::PerDay), copies};
    const Repeated perMonth{QuantityAmounts(position, Unit::PerMonth), copies};
    QuantityPlaces found{copies, {}};
    for (const PeriodEntries& period : side.periods)
      found.places.push_back(period.unit == Unit::PerDay ? PlaceInBoth(period, perDay, perMonth)
                                                         : PlaceInBoth(period, perMonth, perDay));
    if (std::find(found.places.begin(), found.places.end(), -1) == found.places.end()) return found;
  }
  return std::nullopt;
}

}  // namespace vicetoll
