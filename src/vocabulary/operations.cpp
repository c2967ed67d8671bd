#include "vocabulary/operations.h"

#include <charconv>
#include <cmath>
#include <functional>

#include "base/checked_int.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "reports/report_operations.h"
#include "reports/result_buttons.h"
#include "shell/identification.h"
#include "shell/layout.h"
#include "workspace/commit.h"
#include "workspace/date_list.h"
#include "workspace/date_rules.h"
#include "workspace/loading.h"
#include "workspace/parameters.h"
#include "workspace/period_operations.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

struct Call {
  Program& program;
  SinWorkspace& ws;
  Side side;  // of the name that was called, where the name has a side
  const Arguments& args;
  mutable std::int16_t index = 0;

  const std::string& Text(std::size_t i) const { return args.Text(i); }
  double Number(std::size_t i) const { return args.Number(i); }
  std::int16_t Int16(std::size_t i) const { return args.Int16(i); }
  bool Flag(std::size_t i) const { return args.Flag(i); }
  DropDownList& List(std::size_t i) const { return args.List(i, ws); }
  // An index that the operation moves on.
  std::int16_t& Index(std::size_t i) const {
    index = args.Int16(i);
    return index;
  }
  Grid& Rows() const { return program.Spd().Rows(); }
  Currency Money() const { return ws.GetSession().currency; }
};

using Action = OperationValue (*)(const Call&);

// In a name, {Key} stands for the sin's key, {Stem} for its name stem, {Side} for Past or Future, {Suffix}
// for Past or Fut.
struct Operation {
  std::string_view name;
  std::size_t argumentCount;
  Action action;
};

// Runs a statement and returns nothing.
#define DO(statement)                   \
  [](const Call& c) -> OperationValue { \
    statement;                          \
    return {};                          \
  }
#define GIVE(expression) [](const Call& c) -> OperationValue { return expression; }

// The day count of the month is looked up and takes no part in the cost.
OperationValue MonthCells(const Call& c, const CostTerms& terms, std::size_t monthArgument,
                          std::size_t periodArgument) {
  const double month = c.Number(monthArgument);
  const double months = c.Number(monthArgument + 1);
  const Side side = c.ws.FuturePast_Flag == 1 ? Side::Past : Side::Future;
  std::string index = NumberToText(month);
  DayCountOfMonthIndex(index, c.ws.Record(side, c.Int16(periodArgument)).StartLabel);
  return CellsOf(terms, FiguresOfMonth(terms, month, months));
}

OperationValue MonthCostOfPacks(const Call& c) {
  CostTerms terms{.costClass = CostClass::PacksClass};
  terms.initialCost = c.Number(2);
  terms.finalCost = c.Number(3);
  terms.quantity = c.Number(4);
  terms.yearlyFraction = c.Number(5);
  terms.packsFlag = c.Flag(6);
  terms.percentMode = c.Flag(7);
  return MonthCells(c, terms, 0, 8);
}

OperationValue MonthCostOfUnits(const Call& c) {
  CostTerms terms{.costClass = CostClass::UnitsClass};
  terms.initialCost = c.Number(3);
  terms.finalCost = c.Number(4);
  terms.quantity = c.Number(5);
  terms.yearlyFraction = c.Number(6);
  terms.percentMode = c.Flag(8);
  return MonthCells(c, terms, 1, 9);
}

OperationValue MonthCostOfFlatRate(const Call& c) {
  CostTerms terms{.costClass = CostClass::FlatRateClass};
  terms.initialCost = c.Number(3);
  terms.yearlyFraction = c.Number(4);
  return MonthCells(c, terms, 1, 6);
}

OperationValue MonthCostOfNetUnits(const Call& c) {
  CostTerms terms{.costClass = CostClass::NetUnitsClass};
  terms.initialCost = c.Number(3);
  terms.quantity = c.Number(5);
  terms.yearlyFraction = c.Number(6);
  terms.reasonableCost = c.Number(10);
  return MonthCells(c, terms, 1, 9);
}

double AsNumber(std::int16_t value) { return value; }

OperationValue DayCount(const Call& c) {
  std::string index = c.Text(0);
  return DayCountOfMonthIndex(index, c.Text(1));
}

// Of the shared functions and those that every workspace has under the same name or its sin's.
constexpr Operation kOperations[] = {
    // Months, money, numbers.
    {"MonthNumberFromLabel", 1, GIVE(AsNumber(MonthNumberFromLabel(c.Text(0))))},
    {"YearFromLabel", 1, GIVE(AsNumber(YearFromLabel(c.Text(0))))},
    {"MakeDateLabel", 2, GIVE(MakeDateLabel(c.Int16(0), c.Int16(1)))},
    {"MonthsInclusive", 2, GIVE(AsNumber(MonthsInclusive(c.Text(0), c.Text(1))))},
    {"DayCountOfMonthIndex", 2, DayCount},
    {"FillDateList", 5, DO(FillDateList(c.Flag(0), c.List(1), c.Text(2), c.Text(3), c.Int16(4)))},
    {"PadRight", 2, GIVE(PadRight(c.Text(0), c.Int16(1)))},
    {"FormatMoney", 2, GIVE(FormatMoney(c.Money(), c.Text(0), c.Text(1)))},
    {"StripCurrency", 1, GIVE(StripCurrency(c.Text(0)))},
    {"FormatMoneyLetter", 2, GIVE(FormatMoneyLetter(c.Money(), c.Text(0), c.Text(1)))},
    {"StripCurrencyLetter", 1, GIVE(StripCurrencyLetter(c.Text(0)))},

    // What a month costs.
    {"PacksFromQuantity", 2, GIVE(PacksFromQuantity(c.Flag(0), c.Number(1)))},
    {"CompoundedCost", 3, GIVE(CompoundedCost(c.Number(0), c.Int16(1), c.Number(2)))},
    {"LinearCost", 4, GIVE(LinearCost(c.Number(0), c.Number(1), c.Number(2), c.Number(3)))},
    {"MonthCostSmoking", 9, MonthCostOfPacks},
    {"MonthCostDrinking", 10, MonthCostOfUnits},
    {"MonthCostSoliciting", 10, MonthCostOfUnits},
    {"MonthCostGambling", 7, MonthCostOfFlatRate},
    {"MonthCostJailing", 7, MonthCostOfFlatRate},
    {"MonthCostDrugging", 7, MonthCostOfFlatRate},
    {"MonthCostSlothing", 7, MonthCostOfFlatRate},
    {"MonthCostTobaccoing", 7, MonthCostOfFlatRate},
    {"MonthCostInterring", 7, MonthCostOfFlatRate},
    {"MonthCostShopping", 7, MonthCostOfFlatRate},
    {"MonthCostCoffeeing", 11, MonthCostOfNetUnits},
    {"MonthCostWatering", 11, MonthCostOfNetUnits},

    // What a period costs and grows to.
    {"CostInPeriod{Side}", 1, GIVE(CostInPeriod(c.ws, c.side, c.Int16(0)))},
    {"CumulativeCostInPeriod{Side}", 3,
     GIVE(CumulativeCostInPeriod(c.ws, c.side, c.Text(0), c.Int16(1), c.Text(2)))},
    {"CumulativeCostBetweenPeriod{Side}", 4,
     GIVE(CumulativeCostBetweenPeriod(c.ws, c.side, c.Text(0), c.Int16(1), c.Text(2), c.Text(3)))},
    {"CostAfterLastPeriod", 4, GIVE(CostAfterLastPeriod(c.Text(0), c.Number(1), c.Text(2), c.Text(3)))},

    // Totals.
    {"RefreshResults{Side}", 1, DO(RefreshResults(c.ws, c.side, c.Int16(0)))},
    {"PopulateResults{Side}", 1, DO(PopulateResults(c.ws, c.side, c.Int16(0)))},
    {"CumulativeChainFuture", 2, GIVE(CumulativeChainFuture(c.ws, c.Int16(0), c.Text(1)))},
    {"UpdateTotalTab", 2, DO(UpdateTotalTab(c.ws, c.Int16(0), c.Int16(1)))},
    {"UpdateCombinedCumulative", 2, DO(UpdateCombinedCumulative(c.ws, c.Int16(0), c.Int16(1)))},
    {"UpdateFutureDateTotal", 2, DO(UpdateFutureDateTotal(c.ws, c.Int16(0), c.Int16(1)))},

    // Dates.
    {"RefreshDatesFromStart{Side}", 0, DO(RefreshDatesFromStart(c.ws, c.side))},
    {"RefreshDatesFromStop{Side}", 0, DO(RefreshDatesFromStop(c.ws, c.side))},
    {"FineBetween{Side}", 4, DO(FineBetween(c.ws, c.side, c.List(0), c.Text(1), c.Text(2), c.Text(3)))},
    {"FineStart{Side}", 3, DO(FineStart(c.ws, c.side, c.List(0), c.Text(1), c.Text(2)))},
    {"FineStop{Side}", 2, DO(FineStop(c.ws, c.side, c.List(0), c.Text(1)))},
    {"PrepareNextPeriodDates{Side}", 2, DO(PrepareNextPeriodDates(c.ws, c.side, c.Int16(0), c.Int16(1)))},
    {"ResetDateLists{Side}", 0, DO(ResetDateLists(c.ws, c.side))},

    // Loading and movers.
    {"Load{Key}Parameters{Side}", 0, DO(LoadParameters(c.ws, c.side))},
    {"Load{Key}ParametersInitialFuture", 0, DO(LoadParametersInitialFuture(c.ws))},
    {"Initialize{Key}Parameters{Side}", 0, DO(InitializeParameters(c.ws, c.side))},
    {"InitializeDates{Side}", 1, DO(InitializeDates(c.ws, c.side, c.Int16(0)))},
    {"ResetSideScreen{Side}", 0, DO(ResetSideScreen(c.ws, c.side))},
    {"HideFutureResults", 0, DO(HideFutureResults(c.ws))},
    {"LabelMaker{Stem}{Suffix}", 1, DO(LabelMaker(c.ws, c.side, c.Int16(0)))},
    {"SetPeriodParameters{Key}{Side}", 1, DO(SetPeriodParameters(c.ws, c.side, c.Text(0)))},
    {"Set{Key}Parameters{Side}", 1, DO(SetParameters(c.ws, c.side, c.Int16(0)))},
    {"Get{Key}Parameters{Side}", 1, DO(GetParameters(c.ws, c.side, c.Int16(0)))},

    // Committing.
    {"CommitPeriod{Side}", 2, DO(CommitPeriod(c.ws, c.side, c.Int16(0), c.Int16(1)))},
    {"UpdateResultButtons{Side}", 1, DO(UpdateResultButtons(c.ws, c.side, c.Int16(0)))},

    // Reports. An index that an operation moves on is given as a number and not given back.
    {"GridHeaderText", 1, GIVE(std::string(GridHeaderText(c.Text(0))))},
    {"FinishSpdGrid", 0, DO(FinishSpdGrid(c.Rows(), c.ws.GetSession().CurrentSinKey))},
    {"BuildSpdRows{Side}", 4,
     DO(BuildSpdRows(c.ws, c.side, c.Rows(), c.Flag(0), c.Flag(1), c.Index(2), c.Int16(3)))},
    {"ParametersForMonthInPeriodSpd{Side}", 4,
     DO(ParametersForMonthInPeriodSpd(c.ws, c.side, c.Rows(), c.Int16(0), c.Index(1), c.Number(2),
                                      c.Number(3)))},
    {"ParametersForMonthInPeriodSpdBetweenPeriods{Side}", 7,
     DO(ParametersForMonthInPeriodSpdBetweenPeriods(c.ws, c.side, c.Rows(), c.Flag(0), c.Int16(1), c.Index(2),
                                                    c.Number(3), c.Number(4), c.Text(5), c.Text(6)))},
    {"CsvText", 1, GIVE(CsvText(c.ws, c.Flag(0)))},
    {"BuildDocText{Side}", 4,
     GIVE(BuildDocText(c.ws, c.side, c.program.Doc().Text(), c.Flag(0), c.Flag(1), c.Index(2), c.Int16(3)))},
    {"ParametersInPeriodDoc{Side}", 1, GIVE(ParametersInPeriodDoc(c.ws, c.side, c.Int16(0)))},
    {"ParametersForMonthInPeriodDoc{Side}", 5,
     GIVE(ParametersForMonthInPeriodDoc(c.ws, c.side, c.Int16(0), c.Flag(1), c.Index(2), c.Number(3),
                                        c.Number(4)))},
    {"ParametersForMonthInPeriodDocBetweenPeriods{Side}", 8,
     GIVE(ParametersForMonthInPeriodDocBetweenPeriods(c.ws, c.side, c.Flag(0), c.Int16(1), c.Flag(2),
                                                      c.Index(3), c.Number(4), c.Number(5), c.Text(6),
                                                      c.Text(7)))},
    {"DocDocument", 0, DO(c.program.Doc().DocDocument())},
    {"CsvDocument", 0, DO(c.program.Doc().CsvDocument())},
    {"DocSinData", 3, DO(c.program.Doc().DocSinData(c.ws, c.Int16(0), c.Int16(1), c.Flag(2)))},
    {"DisableSpdButtons", 0, DO(DisableSpdButtons(c.ws))},
    {"RestoreSpdButtons", 0, DO(RestoreSpdButtons(c.ws))},
    {"DisableDocButtons", 0, DO(DisableDocButtons(c.ws))},
    {"RestoreDocButtons", 0, DO(RestoreDocButtons(c.ws))},
    {"DisableSpdButtonsOfSin", 0, DO(DisableSpdButtonsOfSin(c.program))},
    {"RestoreSpdButtonsOfSin", 0, DO(RestoreSpdButtonsOfSin(c.program))},
    {"DisableDocButtonsOfSin", 0, DO(DisableDocButtonsOfSin(c.program))},
    {"RestoreDocButtonsOfSin", 0, DO(RestoreDocButtonsOfSin(c.program))},

    // The program.
    {"ShowSinChooser", 1, DO(c.program.Chooser().ShowSinChooser(c.Int16(0)))},
    {"ShowAndHideForms", 0, DO(c.program.Chooser().ShowAndHideForms(c.ws))},
    {"ApplyFormLayout", 0, DO(ApplyFormLayout(c.ws))},
    {"PlaceWorkspaceControls", 0, DO(PlaceWorkspaceControls(c.ws))},
    {"AttachToolTips", 1, DO(c.program.AttachToolTips(c.Int16(0), c.ws))},
    {"PopulateCombResultsText", 0, DO(c.program.Combined().PopulateCombResultsText())},
    {"GetIndividualSinValues", 3,
     DO(c.program.Combined().GetIndividualSinValues(c.ws, c.Int16(0), c.Int16(1), c.Int16(2)))},
    {"PopulateTotals", 0, DO(c.program.Combined().PopulateTotals())},
    {"EnableToolTips", 0, DO(c.program.GetBalloons().EnableToolTips())},
    {"DisableToolTips", 0, DO(c.program.GetBalloons().DisableToolTips())},
    {"ShowHelpFile", 0, DO(c.program.Info().ShowHelpFile())},
    {"ShowInfoFile", 0, DO(c.program.Info().ShowInfoFile())},
    {"RevealDeveloper", 0, DO(RevealDeveloper(c.ws))},
    {"RestoreProgram", 0, DO(RestoreProgram(c.ws))},
    {"SetSummaryVisibility", 2, DO(SetSummaryVisibility(c.ws, c.Flag(0), c.Int16(1)))},
    {"WriteRevealText", 0, DO(WriteRevealText(c.ws))},
    {"TypeLine", 5, DO(TypeLine(c.ws, c.Text(0), c.Int16(1), c.Int16(2), c.Int16(3), c.Int16(4)))},
    {"AddBalloon", 3, DO(c.program.GetBalloons().AddBalloon(c.Int16(0), c.Text(1), c.Text(2)))},
    {"UnloadAllWindows", 0, DO(c.program.UnloadAllWindows())},
};

// The period total has two forms of its name.
constexpr Action kPeriodTotal =
    GIVE(TotalCostInCurrentPeriod(c.ws, c.side, c.Number(0), c.Number(1), c.Int16(2)));
constexpr Operation kPeriodTotalOfUnits[] = {
    {"TotalCostInCurrentPeriodFuture", 3, kPeriodTotal},
    {"TotalCostInCurrentPeriodPastPast", 3, kPeriodTotal},
};
constexpr Operation kPeriodTotalOfFlatRate[] = {
    {"TotalCostof{Key}InCurrentPeriodFuture", 3, kPeriodTotal},
    {"TotalCostInCurrentPeriodPast", 3, kPeriodTotal},
};

#undef DO
#undef GIVE

// Whether the name is the pattern's in this sin, on this side.
bool Matches(std::string_view pattern, std::string_view name, const SinRow& sin, Side side) {
  while (!pattern.empty()) {
    std::string_view expected = pattern.substr(0, 1);
    std::size_t used = 1;
    if (pattern.front() == '{') {
      used = pattern.find('}') + 1;
      const std::string_view what = pattern.substr(0, used);
      expected = what == "{Key}"    ? sin.key
                 : what == "{Stem}" ? sin.stem
                 : what == "{Side}" ? OperationSuffix(side)
                                    : ControlSuffix(side);
    }
    if (!name.starts_with(expected)) return false;
    name.remove_prefix(expected.size());
    pattern.remove_prefix(used);
  }
  return name.empty();
}

struct Found {
  const Operation* operation;
  Side side;
};

template <class Table>
std::optional<Found> FindIn(const Table& table, std::string_view name, const SinRow& sin) {
  for (const Operation& operation : table)
    for (Side side : kSides)
      if (Matches(operation.name, name, sin, side)) return Found{&operation, side};
  return std::nullopt;
}

std::optional<Found> FindOperation(std::string_view name, const SinRow& sin) {
  if (auto found = FindIn(kOperations, name, sin)) return found;
  const bool flat = sin.costClass == CostClass::FlatRateClass;
  auto found = flat ? FindIn(kPeriodTotalOfFlatRate, name, sin) : FindIn(kPeriodTotalOfUnits, name, sin);
  // These names have no placeholder for the side: it is told by their place in the table.
  if (found) found->side = name.ends_with("Past") ? Side::Past : Side::Future;
  return found;
}

}  // namespace

const std::string& Arguments::Text(std::size_t i) const {
  if (i >= texts_.size()) throw BadCall("an argument is missing");
  return texts_[i];
}

double Arguments::Number(std::size_t i) const {
  const std::string& text = Text(i);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
    throw BadCall("no number: " + text);
  return value;
}

std::int16_t Arguments::Int16(std::size_t i) const { return RoundToInt16(Number(i)); }

bool Arguments::Flag(std::size_t i) const { return Number(i) != 0; }

DropDownList& Arguments::List(std::size_t i, const Form& form) const {
  auto* list = dynamic_cast<DropDownList*>(form.Find(Text(i)));
  if (list == nullptr) throw BadCall("no list: " + Text(i));
  return *list;
}

OperationValue CallOperation(Program& program, SinWorkspace& workspace, std::string_view name,
                             const Arguments& arguments) {
  const auto found = FindOperation(name, workspace.Sin());
  if (!found) throw BadCall("no operation: " + std::string(name));
  if (arguments.Count() != found->operation->argumentCount)
    throw BadCall("wrong number of arguments for " + std::string(name));
  return found->operation->action(Call{program, workspace, found->side, arguments});
}

}  // namespace vicetoll
