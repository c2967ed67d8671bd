// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/operation_table.h"

#include "calendar/date_label.h"
#include "reports/doc_text.h"
#include "reports/report_operations.h"
#include "reports/result_buttons.h"
#include "shell/identification.h"
#include "shell/layout.h"
#include "vocabulary/call.h"
#include "vocabulary/month_functions.h"
#include "vocabulary/month_reports.h"
#include "vocabulary/period_functions.h"
#include "vocabulary/text_functions.h"
#include "workspace/commit.h"
#include "workspace/date_list.h"
#include "workspace/date_rules.h"
#include "workspace/loading.h"
#include "workspace/parameters.h"
#include "workspace/period_operations.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

constexpr std::string_view kGeneral = "VTL_General", kCombined = "VTL_CombFunctions",
                           kBalloons = "ToolTipMod", kDeveloper = "VTL_Developer", kSin = "SinWorkspace",
                           kChooser = "frmSwitchSins", kTable = "frmCombRes", kDoc = "frmAdvResultsDoc",
                           kInfo = "frmInfo";

// ---- Functions of more than one form, and those that take past and future in another order ----

constexpr auto kCostInPeriod = [](WorkspaceSide& side, std::int16_t period) {
  return CostInPeriod(side, period);
};
constexpr auto kCumulativeCost = [](WorkspaceSide& side, const std::string& startingCost, std::int16_t period,
                                    const std::string& calculateToDate) {
  return CumulativeCostInPeriod(side, startingCost, period, calculateToDate);
};
constexpr auto kCumulativeCostBetween = [](WorkspaceSide& side, const std::string& startingCost,
                                           std::int16_t period, const std::string& stop,
                                           const std::string& start) {
  return CumulativeCostBetweenPeriod(side, startingCost, period, stop, start);
};
template <Side side>
constexpr auto kPeriodTotal = [](SinWorkspace& ws, double count, double months, std::int16_t period) {
  return TotalCostInCurrentPeriod(ws.Of(side), count, months, period);
};

constexpr auto kUpdateTotalTab = [](SinWorkspace& ws, SideIndex future, SideIndex past) {
  UpdateTotalTab(ws, past, future);
};
constexpr auto kUpdateCombined = [](SinWorkspace& ws, SideIndex future, SideIndex past) {
  UpdateCombinedCumulative(ws, past, future);
};
constexpr auto kUpdateFutureDate = [](SinWorkspace& ws, SideIndex future, SideIndex past) {
  UpdateFutureDateTotal(ws, past, future);
};
constexpr auto kIndividualSin = [](CombinedResults& table, SinWorkspace& ws, std::int16_t row, SideIndex past,
                                   SideIndex future) { table.GetIndividualSinValues(ws, row, past, future); };
constexpr auto kDocSinData = [](DocWindow& doc, SinWorkspace& ws, SideIndex past, SideIndex future,
                                bool docFlag) { doc.DocSinData(ws, past, future, docFlag); };

constexpr auto kFinishGrid = [](SinWorkspace& ws, Grid& grid) {
  FinishSpdGrid(grid, ws.GetSession().CurrentSinKey);
};

// The result buttons of a workspace, and of the current sin, in either report's style.
template <ReportStyle style>
constexpr auto kDisable = [](SinWorkspace& ws) { DisableResultButtons(ws, style); };
template <ReportStyle style>
constexpr auto kRestore = [](SinWorkspace& ws) { RestoreResultButtons(ws, style); };
template <ReportStyle style>
constexpr auto kDisableOfSin = [](Workspaces& all) { DisableResultButtonsOfSin(all, style); };
template <ReportStyle style>
constexpr auto kRestoreOfSin = [](Workspaces& all) { RestoreResultButtonsOfSin(all, style); };
constexpr ReportStyle kSpd = ReportStyle::Spreadsheet, kDocument = ReportStyle::Document;

// clang-format off
constexpr Operation kOperations[] = {
    // Months, money, numbers.
    {"MonthNumberFromLabel",                  kGeneral,   kCalls<MonthNumberFromLabel>},
    {"YearFromLabel",                         kGeneral,   kCalls<YearFromLabel>},
    {"MakeDateLabel",                         kGeneral,   kCalls<MakeDateLabel>},
    {"MonthsInclusive",                       kGeneral,   kCalls<MonthsInclusive>},
    {"DayCountOfMonthIndex",                  kGeneral,   kCalls<DayCountOfMonthIndex>},
    {"FillDateList",                          kGeneral,   kCalls<FillDateList>},
    {"PadRight",                              kGeneral,   kCalls<PadRight>},
    {"FormatMoney",                           kGeneral,   kCalls<FormatMoneyText>},
    {"StripCurrency",                         kGeneral,   kCalls<StripCurrency>},
    {"FormatMoneyLetter",                     kGeneral,   kCalls<FormatMoneyLetterText>},
    {"StripCurrencyLetter",                   kGeneral,   kCalls<StripCurrencyLetter>},

    // What a month costs.
    {"PacksFromQuantity",                     kGeneral,   kCalls<PacksFromQuantity>},
    {"CompoundedCost",                        kGeneral,   kCalls<CompoundedCost>},
    {"LinearCost",                            kGeneral,   kCalls<LinearCost>},
    {"MonthCostSmoking",                      kGeneral,   kCalls<MonthCostOfPacks>},
    {"MonthCostDrinking",                     kGeneral,   kCalls<MonthCostOfUnits>},
    {"MonthCostSoliciting",                   kGeneral,   kCalls<MonthCostOfUnits>},
    {"MonthCostGambling",                     kGeneral,   kCalls<MonthCostOfFlatRate>},
    {"MonthCostJailing",                      kGeneral,   kCalls<MonthCostOfFlatRate>},
    {"MonthCostDrugging",                     kGeneral,   kCalls<MonthCostOfFlatRate>},
    {"MonthCostSlothing",                     kGeneral,   kCalls<MonthCostOfFlatRate>},
    {"MonthCostTobaccoing",                   kGeneral,   kCalls<MonthCostOfFlatRate>},
    {"MonthCostInterring",                    kGeneral,   kCalls<MonthCostOfFlatRate>},
    {"MonthCostShopping",                     kGeneral,   kCalls<MonthCostOfFlatRate>},
    {"MonthCostCoffeeing",                    kGeneral,   kCalls<MonthCostOfNetUnits>},
    {"MonthCostWatering",                     kGeneral,   kCalls<MonthCostOfNetUnits>},

    // What a period costs and grows to. The total has other names in the flat-rate sins.
    {"CostInPeriod{Side}",                    kSin,       kCalls<kCostInPeriod>},
    {"CumulativeCostInPeriod{Side}",          kSin,       kCalls<kCumulativeCost>},
    {"CumulativeCostBetweenPeriod{Side}",     kSin,       kCalls<kCumulativeCostBetween>},
    {"CostAfterLastPeriod",                   kSin,       kCalls<CostAfterLastPeriod>},
    {"TotalCostInCurrentPeriodPastPast",      kSin,       kCalls<kPeriodTotal<Side::Past>>,   InSins::NotFlatRate},
    {"TotalCostInCurrentPeriodFuture",        kSin,       kCalls<kPeriodTotal<Side::Future>>, InSins::NotFlatRate},
    {"TotalCostInCurrentPeriodPast",          kSin,       kCalls<kPeriodTotal<Side::Past>>,   InSins::FlatRate},
    {"TotalCostof{Key}InCurrentPeriodFuture", kSin,       kCalls<kPeriodTotal<Side::Future>>, InSins::FlatRate},

    // Totals.
    {"RefreshResults{Side}",                  kCombined,  kCalls<RefreshResults>},
    {"PopulateResults{Side}",                 kCombined,  kCalls<PopulateResults>},
    {"CumulativeChainFuture",                 kCombined,  kCalls<CumulativeChainFuture>},
    {"UpdateTotalTab",                        kCombined,  kCalls<kUpdateTotalTab>},
    {"UpdateCombinedCumulative",              kCombined,  kCalls<kUpdateCombined>},
    {"UpdateFutureDateTotal",                 kCombined,  kCalls<kUpdateFutureDate>},

    // Dates.
    {"RefreshDatesFromStart{Side}",           kCombined,  kCalls<RefreshDatesFromStart>},
    {"RefreshDatesFromStop{Side}",            kCombined,  kCalls<RefreshDatesFromStop>},
    {"FineBetween{Side}",                     kCombined,  kCalls<FineBetween>},
    {"FineStart{Side}",                       kCombined,  kCalls<FineStart>},
    {"FineStop{Side}",                        kCombined,  kCalls<FineStop>},
    {"PrepareNextPeriodDates{Side}",          kCombined,  kCalls<PrepareNextPeriodDates>},
    {"ResetDateLists{Side}",                  kCombined,  kCalls<ResetDateLists>},

    // Loading and movers.
    {"Load{Key}Parameters{Side}",             kSin,       kCalls<LoadParameters>},
    {"Load{Key}ParametersInitialFuture",      kSin,       kCalls<LoadParametersInitialFuture>},
    {"Initialize{Key}Parameters{Side}",       kSin,       kCalls<InitializeParameters>},
    {"InitializeDates{Side}",                 kSin,       kCalls<InitializeDates>},
    {"ResetSideScreen{Side}",                 kSin,       kCalls<ResetSideScreen>},
    {"HideFutureResults",                     kSin,       kCalls<HideFutureResults>},
    {"LabelMaker{Stem}{Suffix}",              kSin,       kCalls<LabelMaker>},
    {"SetPeriodParameters{Key}{Side}",        kSin,       kCalls<SetPeriodParameters>},
    {"Set{Key}Parameters{Side}",              kSin,       kCalls<SetParameters>},
    {"Get{Key}Parameters{Side}",              kSin,       kCalls<GetParameters>},

    // Committing.
    {"CommitPeriod{Side}",                    kCombined,  kCalls<CommitPeriod>},
    {"UpdateResultButtons{Side}",             kCombined,  kCalls<UpdateResultButtons>},

    // Reports.
    {"GridHeaderText",                        kGeneral,   kCalls<GridHeaderText>},
    {"FinishSpdGrid",                         kGeneral,   kCalls<kFinishGrid>},
    {"BuildSpdRows{Side}",                    kCombined,  kCalls<BuildSpdRows>},
    {"ParametersForMonthInPeriodSpd{Side}",   kSin,       kCalls<ParametersForMonthInPeriodSpd>},
    {"ParametersForMonthInPeriodSpdBetweenPeriods{Side}",
                                              kSin,       kCalls<ParametersForMonthInPeriodSpdBetweenPeriods>},
    {"CsvText",                               kSin,       kCalls<CsvText>},
    {"BuildDocText{Side}",                    kCombined,  kCalls<BuildDocText>},
    {"ParametersInPeriodDoc{Side}",           kSin,       kCalls<ParametersInPeriodDoc>},
    {"ParametersForMonthInPeriodDoc{Side}",   kSin,       kCalls<ParametersForMonthInPeriodDoc>},
    {"ParametersForMonthInPeriodDocBetweenPeriods{Side}",
                                              kSin,       kCalls<ParametersForMonthInPeriodDocBetweenPeriods>},
    {"DocDocument",                           kDoc,       kCalls<&DocWindow::DocDocument>},
    {"CsvDocument",                           kDoc,       kCalls<&DocWindow::CsvDocument>},
    {"DocSinData",                            kDoc,       kCalls<kDocSinData>},
    {"DisableSpdButtons",                     kGeneral,   kCalls<kDisable<kSpd>>},
    {"RestoreSpdButtons",                     kGeneral,   kCalls<kRestore<kSpd>>},
    {"DisableDocButtons",                     kGeneral,   kCalls<kDisable<kDocument>>},
    {"RestoreDocButtons",                     kGeneral,   kCalls<kRestore<kDocument>>},
    {"DisableSpdButtonsOfSin",                kGeneral,   kCalls<kDisableOfSin<kSpd>>},
    {"RestoreSpdButtonsOfSin",                kGeneral,   kCalls<kRestoreOfSin<kSpd>>},
    {"DisableDocButtonsOfSin",                kGeneral,   kCalls<kDisableOfSin<kDocument>>},
    {"RestoreDocButtonsOfSin",                kGeneral,   kCalls<kRestoreOfSin<kDocument>>},

    // The program.
    {"ShowSinChooser",                        kChooser,   kCalls<&SinChooser::ShowSinChooser>},
    {"ShowAndHideForms",                      kChooser,   kCalls<&SinChooser::ShowAndHideForms>},
    {"ApplyFormLayout",                       kGeneral,   kCalls<ApplyFormLayout>},
    {"PlaceWorkspaceControls",                kGeneral,   kCalls<PlaceWorkspaceControls>},
    {"UnloadAllWindows",                      kGeneral,   kCalls<&Program::UnloadAllWindows>},
    {"PopulateCombResultsText",               kTable,     kCalls<&CombinedResults::PopulateCombResultsText>},
    {"GetIndividualSinValues",                kTable,     kCalls<kIndividualSin>},
    {"PopulateTotals",                        kTable,     kCalls<&CombinedResults::PopulateTotals>},
    {"AttachToolTips",                        kBalloons,  kCalls<&Program::AttachToolTips>},
    {"AddBalloon",                            kBalloons,  kCalls<&Balloons::AddBalloon>},
    {"EnableToolTips",                        kBalloons,  kCalls<&Balloons::EnableToolTips>},
    {"DisableToolTips",                       kBalloons,  kCalls<&Balloons::DisableToolTips>},
    {"ShowHelpFile",                          kInfo,      kCalls<&InfoWindow::ShowHelpFile>},
    {"ShowInfoFile",                          kInfo,      kCalls<&InfoWindow::ShowInfoFile>},
    {"RevealDeveloper",                       kDeveloper, kCalls<RevealDeveloper>},
    {"RestoreProgram",                        kDeveloper, kCalls<RestoreProgram>},
    {"SetSummaryVisibility",                  kDeveloper, kCalls<SetSummaryVisibility>},
    {"WriteRevealText",                       kDeveloper, kCalls<WriteRevealText>},
    {"TypeLine",                              kDeveloper, kCalls<TypeLine>},
};
// clang-format on

}  // namespace

std::span<const Operation> Operations() { return kOperations; }

}  // namespace vicetoll
