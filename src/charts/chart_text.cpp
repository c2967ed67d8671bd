// SPDX-License-Identifier: GPL-3.0-or-later
#include "charts/chart_text.h"

#include <cmath>

#include "calendar/number_text.h"

namespace vicetoll {
namespace {

struct Magnitude {
  double unit;
  std::string_view letter;
};
constexpr Magnitude kMagnitudes[] = {{1e12, "T"}, {1e9, "B"}, {1e6, "M"}};

constexpr double kLongEndAmount = 1e9;
constexpr std::string_view kWholeUnits = "$#,##0";

// The decimals that tell two neighbouring marks apart.
int DecimalsFor(double step) {
  if (step <= 0) return 0;
  int decimals = 0;
  for (double shown = step; decimals < 3 && std::abs(shown - std::round(shown)) > 1e-6 * shown; shown *= 10)
    ++decimals;
  return decimals;
}

std::string Money(Currency currency, double value, int decimals) {
  std::string format(kWholeUnits);
  if (decimals > 0) format += "." + std::string(static_cast<std::size_t>(decimals), '0');
  return FormatMoney(currency, value, format);
}

// Behind the minus that a small negative amount keeps when it is rounded to nothing stands no amount.
double WholeUnits(double value) {
  const double whole = RoundToUnits(value);
  return whole == 0 ? 0 : whole;
}

std::string TwoDecimals(double value) { return FormatNumber(value, "0.00"); }

}  // namespace

std::string AxisAmount(Currency currency, double value, double largest, double step) {
  for (const Magnitude& magnitude : kMagnitudes)
    if (std::abs(largest) >= magnitude.unit)
      return Money(currency, value / magnitude.unit, DecimalsFor(step / magnitude.unit)) +
             std::string(magnitude.letter);
  const int decimals = DecimalsFor(step);
  return Money(currency, value, decimals == 1 ? 2 : decimals);  // cents have two digits
}

std::string EndAmount(Currency currency, double value) {
  if (std::abs(value) >= kLongEndAmount)
    for (const Magnitude& magnitude : kMagnitudes)
      if (std::abs(value) >= magnitude.unit)
        return Money(currency, value / magnitude.unit, 2) + std::string(magnitude.letter);
  return FormatMoney(currency, WholeUnits(value), kWholeUnits);
}

std::string Readout(const ChartContents& contents, int month) {
  if (month < 0 || month >= static_cast<int>(contents.months.size())) return {};
  const ChartMonth& shown = contents.months[month];
  // Grown by what the two amounts differ in as they are shown.
  const double cost = WholeUnits(shown.outOfPocket);
  const double grown = WholeUnits(shown.withInterest);
  const auto money = [&](double amount) { return FormatMoney(contents.currency, amount, kWholeUnits); };
  return shown.label + ": out of pocket " + money(cost) + ", with interest " + money(grown) + ", grown by " +
         money(grown - cost);
}

std::string_view KindWord(ChartMonthKind kind) {
  switch (kind) {
    case ChartMonthKind::Disabled:
      return "disabled";
    case ChartMonthKind::Gap:
      return "gap";
    case ChartMonthKind::Ahead:
      return "ahead";
    case ChartMonthKind::Active:
      break;
  }
  return "active";
}

namespace {

std::string MonthLines(const ChartContents& contents) {
  std::string text = "Month\tKind\tSide\tPeriod\tOut of Pocket\tWith Interest\r\n";
  for (const ChartMonth& month : contents.months) {
    text += month.label + "\t" + std::string(KindWord(month.kind)) + "\t" +
            std::string(SideWord(month.side)) + "\t" + std::to_string(month.period) + "\t" +
            TwoDecimals(month.outOfPocket) + "\t" + TwoDecimals(month.withInterest) + "\r\n";
  }
  return text;
}

std::string BarLine(const std::string& caption, const ChartBar& bar) {
  std::string text = caption;
  for (const double amount :
       {bar.pastOut, bar.pastWith, bar.futureOut, bar.futureWith, bar.combinedOut, bar.combinedWith})
    text += "\t" + TwoDecimals(amount);
  return text + "\r\n";
}

}  // namespace

std::string TabSeparated(const ChartContents& contents) {
  if (contents.bars.empty()) return contents.months.empty() ? std::string() : MonthLines(contents);
  std::string text =
      "Sin\tPast, Out of Pocket\tPast, With Interest\tFuture, Out of Pocket\tFuture, With Interest\t"
      "Combined, Out of Pocket\tCombined, With Interest\r\n";
  for (const ChartBar& bar : contents.bars) text += BarLine(bar.caption, bar);
  return text + BarLine("Total", contents.total);
}

}  // namespace vicetoll
