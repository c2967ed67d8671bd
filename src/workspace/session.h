// SPDX-License-Identifier: GPL-3.0-or-later
// What all windows of a run share. One run, one session: a test can run many side by side.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/checked_int.h"
#include "base/platform.h"
#include "calendar/date_label.h"
#include "calendar/money.h"
#include "calendar/period_store.h"
#include "sins/catalogue.h"

namespace vicetoll {

struct Session {
  explicit Session(Platform& door) : platform(door) { SinVisited[0] = true; }

  Platform& platform;
  PeriodStore store;
  // Money shows the dollar until the euro button is pressed; there is no way back.
  Currency currency = Currency::Dollar;
  bool CurrencyIsDollar() const { return currency == Currency::Dollar; }

  std::string CurrentSinKey = "Smoking";
  // The side in front: a switch of sins sets the past side's number, the tabs move it.
  SideIndex CurrentSinNumber = SideIndexOf(0, Side::Past);
  // By position: the sin's workspace was left through the chooser.
  std::array<bool, kSinCount> SinVisited{};

  // How often something was set: a period, a radio, the future date, the currency.
  std::uint64_t timesSet = 0;

  // Takes over what the windows of another run share.
  void TakeStateOf(const Session& other) {
    store = other.store;
    currency = other.currency;
    CurrentSinKey = other.CurrentSinKey;
    CurrentSinNumber = other.CurrentSinNumber;
    SinVisited = other.SinVisited;
    ++timesSet;
  }
};

// The present month, read anew by whoever asks.
struct Present {
  explicit Present(Session& session) {
    const MonthAndYear now = session.platform.Now();
    M = Int16(now.month);
    Y = Int16(now.year);
  }
  std::int16_t M, Y;

  // The label of month M + months of year Y + years. In December the month after the present one is the
  // 13th of the same year and reads as its January: the future side then begins eleven months back.
  std::string Label(int months, int years) const {
    return MakeDateLabel(Int16(M + months), Int16(Y + years));
  }
};

}  // namespace vicetoll
