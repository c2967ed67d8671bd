// SPDX-License-Identifier: GPL-3.0-or-later
// What the value lists of each sin show after a load.
#pragma once

namespace vicetoll {

struct Defaults {
  const char* key;
  const char* quantity;
  const char* initialCost;
  const char* secondCost;
  const char* percent;
};

constexpr Defaults kDefaults[] = {
    {"Smoking", "1.00", "$5.00", "$7.00", "10%"},
    {"Drinking", "6", "$3.00", "$5.50", "10%"},
    {"Gambling", "$20", "", "", "5%"},
    {"Coffeeing", "3", "$3.00", "$1.10", "10%"},
    {"Watering", "4", "$3.00", "$1.10", "10%"},
    {"Jailing", "$2400", "", "", "5%"},
    {"Drugging", "$20", "", "", "10%"},
    {"Slothing", "$600", "", "", "5%"},
    {"Soliciting", "10", "$40.00", "$50.00", "10%"},
    {"Tobaccoing", "$20", "", "", "5%"},
    {"Interring", "$600", "", "", "5%"},
    {"Shopping", "$20", "", "", "5%"},
};

}  // namespace vicetoll
