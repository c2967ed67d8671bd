// SPDX-License-Identifier: GPL-3.0-or-later
// How long the reports take to build, by the number of their months. The counter is seconds a row.
#include <benchmark/benchmark.h>

#include "reports/report_world.h"
#include "reports/total_reports.h"

namespace vicetoll {
namespace {

// Periods of both sides that follow each other with a year between: together `months` months, the longest
// report being 165 years, 90 behind and 75 ahead.
SinWorkspace& WorkspaceWith(ReportWorld& world, std::string_view key, int months) {
  SinWorkspace& ws = world.Switch(key);
  constexpr int kPeriods = 8, kGap = 12;
  const int ofPeriod = (months - (kPeriods - 1) * kGap) / kPeriods;
  int month = 12 * 1936;
  const auto label = [](int n) {
    return MakeDateLabel(static_cast<std::int16_t>(n % 12 + 1), static_cast<std::int16_t>(n / 12));
  };
  for (Side side : kSides) {
    for (int p = 1; p <= kPeriodCount; ++p) {
      PeriodRecord& record =
          Write(ws, side, p, {label(month), label(month + ofPeriod - 1), "7%", "3%", "$5.25"});
      record.PercentIncreaseText = "4%";
      record.CostModeFlag = true;
      month += ofPeriod + kGap;
    }
    ws.Of(side).txtResultsTotal->SetText("$123,456");
    ws.Of(side).txtCumulativeResultsPeriod(kPeriodCount).SetText("$234,567");
  }
  return ws;
}

void PerRow(benchmark::State& state, int rows) {
  state.counters["rows"] = rows;
  state.counters["s/row"] = benchmark::Counter(
      static_cast<double>(rows), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void GridRows(benchmark::State& state, std::string_view key) {
  ReportWorld world;
  SinWorkspace& ws = WorkspaceWith(world, key, static_cast<int>(state.range(0)));
  for (auto _ : state) BuildTotalSpdRows(ws, world.Spd().Rows());
  PerRow(state, world.Spd().Rows().RowCount() - 1);
}

void DocumentTextOf(benchmark::State& state, bool docFlag) {
  ReportWorld world;
  SinWorkspace& ws = WorkspaceWith(world, "Smoking", static_cast<int>(state.range(0)));
  std::size_t bytes = 0;
  for (auto _ : state) {
    const std::string text =
        TotalDocText(ws, docFlag, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index(), IndexUse::Moved);
    bytes = text.size();
    benchmark::DoNotOptimize(text.data());
  }
  BuildTotalSpdRows(ws, world.Spd().Rows());
  PerRow(state, world.Spd().Rows().RowCount() - 1);
  state.counters["bytes"] = static_cast<double>(bytes);
}

#define SWEEP ->Arg(250)->Arg(500)->Arg(1000)->Arg(1980)->Arg(2000)->Unit(benchmark::kMicrosecond)

BENCHMARK_CAPTURE(GridRows, Smoking, "Smoking") SWEEP;
BENCHMARK_CAPTURE(GridRows, Gambling, "Gambling") SWEEP;
BENCHMARK_CAPTURE(GridRows, Coffeeing, "Coffeeing") SWEEP;
BENCHMARK_CAPTURE(DocumentTextOf, Table, false) SWEEP;
BENCHMARK_CAPTURE(DocumentTextOf, Blocks, true) SWEEP;

#undef SWEEP

}  // namespace
}  // namespace vicetoll
