// SPDX-License-Identifier: GPL-3.0-or-later
// What the tests of months reckon with.
#pragma once

#include "engine/month_cost.h"

namespace vicetoll {

inline constexpr CostClass kClasses[] = {CostClass::PacksClass, CostClass::UnitsClass,
                                         CostClass::NetUnitsClass, CostClass::FlatRateClass};

// 20 cigarettes a day, a pack for 2.00, 6% a year.
inline constexpr CostTerms kPackADay{.costClass = CostClass::PacksClass,
                                     .initialCost = 2,
                                     .finalCost = 2,
                                     .quantity = 20,
                                     .packsFlag = false,
                                     .yearlyFraction = 0.06};

// Four a day for 3.00, of which 1.10 would be reasonable, 12% a year.
inline constexpr CostTerms kFourCoffees{.costClass = CostClass::NetUnitsClass,
                                        .initialCost = 3,
                                        .reasonableCost = 1.1,
                                        .quantity = 4,
                                        .yearlyFraction = 0.12};

}  // namespace vicetoll
