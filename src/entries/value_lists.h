// SPDX-License-Identifier: GPL-3.0-or-later
// The amounts that a sin's lists offer, as entries name them: decimal texts without a symbol.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "entries/entries.h"

namespace vicetoll {

using Amounts = std::vector<std::string>;

const Amounts& QuantityAmounts(int position, Unit unit);
const Amounts& CostAmounts(int position);        // empty in the flat-rate class
const Amounts& SecondCostAmounts(int position);  // final or reasonable cost

// The first place of the amount, -1 where there is none.
int PlaceOf(const Amounts& amounts, const std::string& amount);

// The amount at a place, the last one for a place past the end.
const std::string& AmountAt(const Amounts& amounts, int place);

// An entry of the lists of rates: "5%".
std::string RateText(int percent);

// The words of a unit: "packs", "cigarettes", "per day", "per month".
std::string_view UnitWord(int position, Unit unit);

constexpr Unit OtherUnit(Unit unit) { return unit == Unit::PerDay ? Unit::PerMonth : Unit::PerDay; }

// Where the quantities of a side stand in its lists. Every arrival on a future tab of which nothing is set
// appends the lists once more, and smoking notes the place in whichever copy was picked from: so it may take
// up to three copies until all quantities read as they should in both units.
struct QuantityPlaces {
  int copies = 1;
  std::vector<int> places;  // by period, from 0
};

// None if some quantity stands in no list, or in no place that reads so in the other unit.
std::optional<QuantityPlaces> PlacesOf(int position, const SideEntries& side);

}  // namespace vicetoll
