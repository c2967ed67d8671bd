// SPDX-License-Identifier: GPL-3.0-or-later
// What the core costs: months, periods, the chain of a side, and what a user waits for in a workspace.
// Ends with a table of the figures and their targets.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>

#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "engine/side_chain.h"
#include "scenario/scripted_platform.h"
#include "shell/program.h"
#include "vocabulary/month_functions.h"
#include "workspace/date_rules.h"
#include "workspace/loading.h"
#include "workspace/period_operations.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

using benchmark::State;

// ---- The engine ----

CostTerms TermsOfClass(CostClass costClass) {
  return {.costClass = costClass,
          .initialCost = 5,
          .reasonableCost = 1.1,
          .quantity = 3,
          .packsFlag = false,
          .yearlyFraction = 0.1};
}

// Months from January 1936 on.
PeriodTerms PeriodOf(int months) {
  PeriodTerms terms;
  terms.StartLabel = "Jan - 1936";
  const int last = months - 1;
  terms.StopLabel =
      MakeDateLabel(static_cast<std::int16_t>(last % 12 + 1), static_cast<std::int16_t>(1936 + last / 12));
  terms.rates = {5, 3};
  terms.cost = TermsOfClass(CostClass::PacksClass);
  return terms;
}

void NoWarning(DateFault) {}

// One month with the cents that are added up and the cells that are shown.
void OneMonth(State& state, CostClass costClass) {
  constexpr int kMonths = 240;
  const CostTerms terms = TermsOfClass(costClass);
  MonthWalk walk(terms, kMonths);
  int month = 0;
  for (auto _ : state) {
    if (++month > kMonths) {
      walk = MonthWalk(terms, kMonths);
      month = 1;
    }
    const MonthFigures figures = walk.Next();
    benchmark::DoNotOptimize(RoundToCents(figures.monthCost));
    benchmark::DoNotOptimize(CellsOf(terms, figures));
  }
}

void CostOfMonths(State& state) {
  const PeriodTerms terms = PeriodOf(static_cast<int>(state.range(0)));
  for (auto _ : state) benchmark::DoNotOptimize(CostInPeriod(terms));
  state.SetComplexityN(state.range(0));
}

void BalanceOfMonths(State& state) {
  const PeriodTerms terms = PeriodOf(static_cast<int>(state.range(0)));
  for (auto _ : state)
    benchmark::DoNotOptimize(CumulativeCostInPeriod("0", terms, terms.StopLabel, NoWarning));
  state.SetComplexityN(state.range(0));
}

void SideOfFourPeriods(State& state) {
  SideTerms side;
  for (int p = 0; p < kPeriodCount; ++p) {
    side.periods[p] = PeriodOf(240);
    side.periods[p].StartLabel = MakeDateLabel(1, static_cast<std::int16_t>(1940 + 21 * p));
    side.periods[p].StopLabel = MakeDateLabel(12, static_cast<std::int16_t>(1959 + 21 * p));
    side.counted[p] = true;
  }
  for (auto _ : state) benchmark::DoNotOptimize(EvaluateSide(side, NoWarning));
}

// ---- A workspace ----

void CreateAndLoad(State& state, const char* key) {
  ScriptedPlatform platform;
  Session session(platform);
  for (auto _ : state) {
    SinWorkspace workspace(session, SinPosition(key));
    LoadParameters(workspace.Of(Side::Past));
    benchmark::DoNotOptimize(workspace.Controls().data());
  }
}

// A workspace with four periods of 20 years on both sides.
struct FullWorkspace {
  explicit FullWorkspace(const char* key) : program(platform), ws(program.At(SinPosition(key))) {
    program.GetSession().CurrentSinKey = key;
    program.GetSession().CurrentSinNumber = ws.Of(Side::Past).Index();
    ws.Show();
    LoadParameters(ws.Of(Side::Past));
    Commit(Side::Past, 1946);
    ws.SSTab_PastFutureSwitch->SetTab(kFutureTab);
    Commit(Side::Future, 2030);
    ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
  }

  void Commit(Side side, int firstYear) {
    SideControls& c = ws.Of(side);
    for (int p = 1; p <= kPeriodCount; ++p) {
      c.optTimePeriod(p).UserClicks();
      const int year = firstYear + 20 * (p - 1);
      c.comStart->SetText(MakeDateLabel(1, static_cast<std::int16_t>(year)));
      c.comStop->SetText(MakeDateLabel(12, static_cast<std::int16_t>(year + 19)));
      c.cmdSetPeriodParams->UserClicks();
    }
  }

  ScriptedPlatform platform;
  Program program;
  SinWorkspace& ws;
};

void PressSetButton(State& state, const char* key) {
  FullWorkspace full(key);
  SideControls& c = full.ws.Of(Side::Past);
  for (auto _ : state) {
    c.cmdSetPeriodParams->SetEnabled(true);
    if (c.cmdSetPeriodParams->UserClicks() != UserOutcome::Done) state.SkipWithError("refused");
  }
  if (c.txtResultsPeriod(4).Text() == "0") state.SkipWithError("period 4 is not set");
}

void ChangeRadio(State& state) {
  FullWorkspace full("Smoking");
  SideControls& c = full.ws.Of(Side::Past);
  for (auto _ : state) {
    c.rbnDisabledPeriod(2).UserClicks();
    c.rbnEnabledPeriod(2).UserClicks();
  }
}

void FocusDates(State& state, bool fine) {
  ScriptedPlatform platform;
  Program program(platform);
  SinWorkspace& ws = program.At(0);
  SideControls& c = ws.Of(Side::Past);
  // The longest coarse lists: 90 years.
  c.comStart->SetText("Jun - 1936");
  (fine ? c.optFineDateStart : c.optCourseDateStart)->SetValue(true);
  (fine ? c.optFineDateStop : c.optCourseDateStop)->SetValue(true);
  for (auto _ : state) {
    c.comStart->UserFocuses();
    c.comStop->UserFocuses();
  }
  if (!platform.messages.empty()) state.SkipWithError("the dates were reset");
}

void OpenTotalTab(State& state, const char* key) {
  FullWorkspace full(key);
  SinWorkspace& ws = full.ws;
  for (auto _ : state) {
    state.PauseTiming();
    ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
    // They would grow without end.
    for (DropDownList* list : {ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot}) {
      const std::string text = list->Text();
      list->Clear();
      list->SetText(text);
    }
    state.ResumeTiming();
    ws.SSTab_PastFutureSwitch->SetTab(kTotalTab);
  }
  if (ws.txtCumulativeFutureDateTot->Text() == "n/a") state.SkipWithError("nothing counts");
}

// ---- The table ----

constexpr double kMicrosecond = 1e3;
constexpr double kMillisecond = 1e6;

struct Row {
  const char* name;
  const char* what;
  double target;  // in nanoseconds
  void (*run)(State&);
};

const Row kRows[] = {
    {"month/packs", "a month of packs, with its cells", 0.3 * kMicrosecond,
     [](State& s) { OneMonth(s, CostClass::PacksClass); }},
    {"month/units", "a month of units, with its cells", 0.3 * kMicrosecond,
     [](State& s) { OneMonth(s, CostClass::UnitsClass); }},
    {"month/net", "a month of net units, with its cells", 0.3 * kMicrosecond,
     [](State& s) { OneMonth(s, CostClass::NetUnitsClass); }},
    {"month/flat", "a month of a flat rate, with its cells", 0.3 * kMicrosecond,
     [](State& s) { OneMonth(s, CostClass::FlatRateClass); }},
    {"side/evaluate", "a side of four periods of 20 years", 0.5 * kMillisecond, SideOfFourPeriods},
    {"workspace/create/Smoking", "creating and loading Smoking", kMillisecond,
     [](State& s) { CreateAndLoad(s, "Smoking"); }},
    {"workspace/create/Coffeeing", "creating and loading Coffeeing", kMillisecond,
     [](State& s) { CreateAndLoad(s, "Coffeeing"); }},
    {"workspace/create/Jailing", "creating and loading Jailing", kMillisecond,
     [](State& s) { CreateAndLoad(s, "Jailing"); }},
    {"workspace/press/Smoking", "a press with four periods of 20 years, Smoking", 5 * kMillisecond,
     [](State& s) { PressSetButton(s, "Smoking"); }},
    {"workspace/press/Coffeeing", "the same, Coffeeing", 5 * kMillisecond,
     [](State& s) { PressSetButton(s, "Coffeeing"); }},
    {"workspace/radio", "a period switched off and on", 5 * kMillisecond, ChangeRadio},
    {"workspace/dates/coarse", "a refresh of the dates from both lists, coarse", 5 * kMillisecond,
     [](State& s) { FocusDates(s, false); }},
    {"workspace/dates/fine", "the same, fine", 5 * kMillisecond, [](State& s) { FocusDates(s, true); }},
    {"workspace/total/Smoking", "opening the TOTAL tab, Smoking", 5 * kMillisecond,
     [](State& s) { OpenTotalTab(s, "Smoking"); }},
    {"workspace/total/Coffeeing", "the same, Coffeeing", 5 * kMillisecond,
     [](State& s) { OpenTotalTab(s, "Coffeeing"); }},
};

// A period by its months; 1,080 are 90 years. Their names end in "/" and the months.
constexpr int kSweep[] = {270, 540, 1080, 2160};
constexpr double kTargetOf90Years = 0.5 * kMillisecond;
const Row kSwept[] = {
    {"period/cost", "the cost of a period", kTargetOf90Years, CostOfMonths},
    {"period/balance", "the balance of a period", kTargetOf90Years, BalanceOfMonths},
};

// Shows what is measured as it comes, and keeps it for the table.
class KeepingReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs)
      if (run.run_type == Run::RT_Iteration && !run.error_occurred && run.iterations > 0)
        nanoseconds[run.run_name.function_name + (run.run_name.args.empty() ? "" : "/" + run.run_name.args)] =
            run.real_accumulated_time / static_cast<double>(run.iterations) * 1e9;
  }
  std::map<std::string, double> nanoseconds;
};

std::string Time(double nanoseconds) {
  char text[32];
  if (nanoseconds < 0.1 * kMillisecond)
    std::snprintf(text, sizeof text, "%.3f us", nanoseconds / kMicrosecond);
  else
    std::snprintf(text, sizeof text, "%.3f ms", nanoseconds / kMillisecond);
  return text;
}

void PrintTable(const std::map<std::string, double>& measured) {
  const auto line = [&](const std::string& what, const std::string& name, double target) {
    const auto found = measured.find(name);
    if (found == measured.end()) return;
    std::printf("| %-50s | %10s | %10s | %-6s |\n", what.c_str(), Time(found->second).c_str(),
                Time(target).c_str(), found->second <= target ? "met" : "MISSED");
  };
  std::printf("\n| %-50s | %10s | %10s | %-6s |\n", "What", "Measured", "Target", "");
  std::printf("|%s|%s|%s|%s|\n", std::string(52, '-').c_str(), std::string(12, '-').c_str(),
              std::string(12, '-').c_str(), std::string(8, '-').c_str());
  for (const Row& row : kRows) line(row.what, row.name, row.target);
  for (const Row& row : kSwept)
    for (const int months : kSweep)
      line(std::string(row.what) + " of " + std::to_string(months) + " months",
           std::string(row.name) + "/" + std::to_string(months), row.target * months / 1080);
}

void Register() {
  for (const Row& row : kRows) benchmark::RegisterBenchmark(row.name, row.run);
  for (const Row& row : kSwept) {
    auto* swept = benchmark::RegisterBenchmark(row.name, row.run);
    for (const int months : kSweep) swept->Arg(months);
    swept->Complexity(benchmark::oN);
  }
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  vicetoll::Register();
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  vicetoll::KeepingReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  vicetoll::PrintTable(reporter.nanoseconds);
  return 0;
}
