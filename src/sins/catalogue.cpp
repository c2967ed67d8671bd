// SPDX-License-Identifier: GPL-3.0-or-later
#include "sins/catalogue.h"

#include <algorithm>

namespace vicetoll {
namespace {

using std::string_view;

// ---- Value lists ----

// The cost of a unit: $0.10 to $1.00 by 5 cents, to $3.00 by 10, to $25.00 by 25, to $100.00 by 50.
constexpr Run kCostRuns[] = {{2, 20, 5, 100}, {11, 30, 10, 100}, {13, 100, 25, 100}, {51, 200, 50, 100}};
// The reasonable cost of a unit may be nothing at all, and ends at $25.00.
constexpr Run kReasonableRuns[] = {{0, 20, 5, 100}, {11, 30, 10, 100}, {13, 100, 25, 100}};
// The cost of a solicitation: $10.00 to $100.00 by 5, to $300.00 by 10.
constexpr Run kSolicitationCostRuns[] = {{2, 20, 5, 1}, {11, 30, 10, 1}};

constexpr ListDefinition kCostList{kCostRuns, "$0.00"};
constexpr ListDefinition kShortCostList{std::span(kCostRuns).first(3), "$0.00"};  // to $25.00
constexpr ListDefinition kReasonableList{kReasonableRuns, "$0.00"};
constexpr ListDefinition kSolicitationCostList{kSolicitationCostRuns, "$0.00"};

// Quantities. A list per month is the list per day times 30, though a month counts 30.42 days elsewhere.
constexpr Run kPackRuns[] = {{1, 200, 1, 20}};
constexpr Run kCigaretteRuns[] = {{1, 300, 1, 1}};
constexpr Run kUnitsPerDayRuns[] = {{1, 75, 1, 1}};
constexpr Run kUnitsPerMonthRuns[] = {{1, 75, 30, 1}};
constexpr Run kSolicitationsPerDayRuns[] = {{1, 10, 1, 1}};
constexpr Run kSolicitationsPerMonthRuns[] = {{1, 30, 1, 1}, {1, 10, 30, 1}};  // "30" stands twice

constexpr ListDefinition kPackList{kPackRuns, "0.00"};
constexpr ListDefinition kCigaretteList{kCigaretteRuns, "0"};
constexpr ListDefinition kUnitsPerDay{kUnitsPerDayRuns, "0"};
constexpr ListDefinition kUnitsPerMonth{kUnitsPerMonthRuns, "0"};
constexpr ListDefinition kSolicitationsPerDay{kSolicitationsPerDayRuns, "0"};
constexpr ListDefinition kSolicitationsPerMonth{kSolicitationsPerMonthRuns, "0"};

// The money figure of the flat-rate class, from "$0" on. The dearer the sin, the more runs it has.
constexpr Run kFlatPerDayRuns[] = {{0, 50, 1, 1}, {11, 100, 5, 1}, {21, 100, 25, 1}, {15, 50, 200, 1}};
constexpr Run kFlatPerMonthRuns[] = {{0, 50, 30, 1}, {11, 100, 150, 1}, {21, 100, 750, 1}, {15, 50, 6000, 1}};

constexpr ListDefinition kFlatPerDayTo500{std::span(kFlatPerDayRuns).first(2), "$0"};
constexpr ListDefinition kFlatPerDayTo2500{std::span(kFlatPerDayRuns).first(3), "$0"};
constexpr ListDefinition kFlatPerDayTo10000{kFlatPerDayRuns, "$0"};
constexpr ListDefinition kFlatPerMonthTo15000{std::span(kFlatPerMonthRuns).first(2), "$0"};
constexpr ListDefinition kFlatPerMonthTo75000{std::span(kFlatPerMonthRuns).first(3), "$0"};
constexpr ListDefinition kFlatPerMonthTo300000{kFlatPerMonthRuns, "$0"};

constexpr Run kRateRuns[] = {{0, 100, 1, 100}};

// ---- Table headings of the text export: five lines of cells ----
//
// The padding of a cell belongs to it. A blank cell is as wide as the cell above it in its column.

// The cells of several fragments in one line.
template <std::size_t... kCounts>
constexpr std::array<string_view, (kCounts + ...)> Join(const string_view (&... fragments)[kCounts]) {
  std::array<string_view, (kCounts + ...)> line;
  auto next = line.begin();
  ((next = std::copy(std::begin(fragments), std::end(fragments), next)), ...);
  return line;
}

// clang-format off
// The three columns that begin every table.
constexpr string_view kLead1[] = {"Index", "Period", "Eval.           "};
constexpr string_view kLead2[] = {"     ", "      ", "Month           "};
constexpr string_view kLead [] = {"     ", "      ", "                "};

// The four money columns that end it. In lines 1 and 2 they bear the sin's words, all but the last
// two of line 1.
constexpr string_view kCumulative1[] = {
                                                     "Cumulative         ", "Cumulative          "};
constexpr string_view kMoney3[] = {
    "Per Month          ", "Interest           ",    "In Month           ", "In Month            "};
constexpr string_view kMoney4[] = {
    "Out of             ", "                   ",    "Out of             ", "With                "};
constexpr string_view kMoney5[] = {
    "Pocket             ", "                   ",    "Pocket             ", "Interest            "};

// Where there are columns of unit costs, an empty cell puts the money words of lines 4 and 5 one tab
// further right than the lines above. Saved reports have always looked so.
constexpr string_view kGap[] = {""};

// Packs and units: two columns between lead and money.
constexpr auto kSmoking1 = Join(
    kLead1, {"Packs          ", "Cost of             "},
    {"Smoking            ", "Smoking Cost:      "}, kCumulative1);
constexpr auto kSmoking2 = Join(
    kLead2, {"Smoked         ", "Cigarettes          "},
    {"Cost               ", "Month With         ", "Smoking Cost:      ", "Smoking Cost        "});
constexpr auto kSmoking3 = Join(kLead, {"Per Day        ", "Per Pack            "}, kMoney3);
constexpr auto kUnits4   = Join(kLead, {"               ", "                    "}, kGap, kMoney4);
constexpr auto kUnits5   = Join(kLead, {"               ", "                    "}, kGap, kMoney5);

constexpr auto kDrinking1 = Join(
    kLead1, {"Drinks         ", "Cost Per            "},
    {"Drinking           ", "Drinking Cost:     "}, kCumulative1);
constexpr auto kDrinking2 = Join(
    kLead2, {"Per Day        ", "Drink               "},
    {"Cost               ", "Month With         ", "Drinking Cost:     ", "Drinking Cost       "});
constexpr auto kDrinking3 = Join(kLead, {"               ", "                    "}, kMoney3);

constexpr auto kSoliciting1 = Join(
    kLead1, {"Solicitations  ", "Cost Per            "},
    {"Soliciting           ", "Soliciting Cost:     "}, kCumulative1);
constexpr auto kSoliciting2 = Join(
    kLead2, {"Per Day        ", "Solicitation         "},
    {"Cost               ", "Month With         ", "Soliciting Cost:     ", "Soliciting Cost       "});
constexpr auto kSoliciting3 = Join(kLead, {"               ", "                     "}, kMoney3);
constexpr auto kSoliciting4 = Join(kLead, {"               ", "                     "}, kGap, kMoney4);
constexpr auto kSoliciting5 = Join(kLead, {"               ", "                     "}, kGap, kMoney5);

// Net units: four columns between lead and money. Water bears the drinking words of coffee.
constexpr string_view kNetMoney1[] = {"Drinking           ", "Drinking Cost:     "};
constexpr string_view kNetMoney2[] = {"Month With         ", "Drinking Cost:     ", "Drinking Cost       "};

constexpr auto kCoffeeing1 = Join(
    kLead1, {"Coffee         ", "Gross:              ", "Subtract            ", "Adjusted:           "},
    kNetMoney1, kCumulative1);
constexpr auto kCoffeeing2 = Join(
    kLead2, {"Drinks         ", "Cost Per            ", "Reasonable          ", "Cost Per            "},
    {" Coffee Cost       "}, kNetMoney2);
constexpr auto kCoffeeing3 = Join(
    kLead, {"Per Day        ", "Coffee              ", "Cost Per            ", "Coffee              "},
    kMoney3);
constexpr auto kCoffeeing4 = Join(
    kLead, {"               ", "Drink               ", "Coffee              ", "Drink               "},
    kGap, kMoney4);

constexpr auto kWatering1 = Join(
    kLead1, {"Water         ", "Gross:              ", "Subtract            ", "Adjusted:           "},
    kNetMoney1, kCumulative1);
constexpr auto kWatering2 = Join(
    kLead2, {"Drinks         ", "Cost Per            ", "Reasonable          ", "Cost Per            "},
    {" Water Cost       "}, kNetMoney2);
constexpr auto kWatering3 = Join(
    kLead, {"Per Day        ", "Water              ", "Cost Per            ", "Water              "},
    kMoney3);
constexpr auto kWatering4 = Join(
    kLead, {"               ", "Drink               ", "Water              ", "Drink               "},
    kGap, kMoney4);

constexpr auto kNetUnits5 = Join(
    kLead, {"               ", "                    ", "Drink               ", "                    "},
    kGap, kMoney5);

// Flat rate: one column between lead and money, the cost per day, and no gap.
constexpr auto Flat1(string_view perDay, string_view perMonth, string_view withInterest) {
  return Join(kLead1, {perDay, perMonth, withInterest}, kCumulative1);
}
constexpr auto Flat2(string_view cumulative, string_view cumulativeWithInterest) {
  return Join(kLead2, {"Cost           ", "Cost                ", "Month With         "},
              {cumulative, cumulativeWithInterest});
}
constexpr auto kGambling1 = Flat1("Gambling         ", "Gambling           ", "Gambling Cost:     ");
constexpr auto kJailing1 = Flat1("Jailing         ", "Jailing           ", "Jailing Cost:     ");
constexpr auto kDrugging1 = Flat1("Drug             ", "Drug               ", "Drugging Cost:     ");
constexpr auto kSlothing1 = Flat1("Laziness       ", "Laziness         ", "Laziness Cost:     ");
constexpr auto kTobaccoing1 =
    Flat1("Tobacco             ", "Tobacco               ", "Tobaccoing Cost:     ");
constexpr auto kInterring1 = Flat1("Interring         ", "Interring           ", "Interring Cost:     ");
constexpr auto kShopping1 = Flat1("Shopping             ", "Shopping               ", "Shopping Cost:     ");

constexpr auto kGambling2 = Flat2("Gambling Cost:     ", "Gambling Cost       ");
constexpr auto kJailing2 = Flat2("Jailing Cost:     ", "Jailing Cost       ");
constexpr auto kDrugging2 = Flat2("Drug Cost:         ", "Drug Cost           ");
constexpr auto kSlothing2 = Flat2("Laziness Cost:    ", "Slothing Cost       ");
constexpr auto kTobaccoing2 = Flat2("Tobacco Cost:         ", "Tobacco Cost           ");
constexpr auto kInterring2 = Flat2("Interring Cost:     ", "Interring Cost       ");
constexpr auto kShopping2 = Flat2("Shopping Cost:         ", "Shopping Cost           ");

constexpr auto kFlat3 = Join(kLead, {"Per Day        "}, kMoney3);
constexpr auto kFlat4 = Join(kLead, {"               "}, kMoney4);
constexpr auto kFlat5 = Join(kLead, {"               "}, kMoney5);

// ---- The rows ----
//
// Packs of cigarettes in the quantity lines of sins that have none, "Drinkd", "Solicitaiton" and their like
// are as users know them.

constexpr std::array<SinRow, kSinCount> kCatalogue{{
    {
        .key = "Smoking", .stem = "Smoke", .costClass = CostClass::PacksClass,
        .chooserCaption = "Smoking",
        .titleWord = "Ashtoll",
        .designCaption = "The \"Ashtoll\" Financial Calculator",
        .windowCaption = "The \"Ashtoll\" Financial Calculator",
        .totalFrame = "TOTAL ASHTOLL",

        .enableFrameName = "frmEnableDisable", .timePeriodFrameName = "frmSetTimeSmokingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .quantityLabelName = "lblSmokesPerDay",
        .costLabelName = "lblCigCost", .percentLabelName = "lblCigPercentIncrease",

        .startSuffix = ": Date Started Smoking",
        .stopSuffix = ": Date Stopped Smoking",
        .dailySuffix = ": Daily Smoking",
        .costChangeSuffix = ": Cigarette Cost Change",

        .quantityLabelDesign = "Packs Per Day",
        .quantityLabelPerDay = "Packs Per Day", .quantityLabelPerMonth = "Cigarettes Per Day",
        .costLabelDesign = "Cost per Pack", .costLabelPercent = "Cost Per Pack",
        .costLabelInitial = "Cost Per Pack: Initial",
        .costLabelFinal = "Cost Per Pack: Final",
        .percentLabelDesign = "Yearly Increase Cost (%) of Cigarettes",
        .percentLabelPercent = "Yearly Increase Cost (%) of Cigarettes",
        .percentOptionCaption = "Percent Yearly Increase In Cost of Cigarettes During Period",
        .initialFinalOptionCaption = "Initial and Final Cost of Cigarettes In Period",

        .summaryWord = "Smoking",
        .enableFrameCaption = "Enable/Disable Periods of Smoking",
        .dateTipWord = "Smoking",

        .startUnit = Unit::PerDay,
        .perDayList = kPackList, .perMonthList = kCigaretteList, .quantityDefault = 19,
        .costList = kCostList, .costDefault = 46,
        .secondCostList = kCostList, .secondCostDefault = 54,
        .percentDefault = 10,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Packs Smoked Per Day|^Cost of Cigarettes Per Pack|"
            "^Smoking Cost Per Month (Out of Pocket)|^Smoking Cost: In Month with Interest|"
            "^Cumulative Smoking Cost: Out of Pocket|^ Cumulative Smoking Cost: With Interest",
        .header = {.startLine = "Start Smoking Date for Period is: ",
                   .stopLine = "Stop Smoking Date for Period is: ",
                   .costLine = "Initial Cost of Cigarettes at Start Smoking Date: ",
                   .percentLine = "Yearly Percent Increase in Cigarette Cost in Smoking Period: ",
                   .finalCostLine = "Final Cost of Cigarettes at Stop Smoking Date: ",
                   .quantityLine = "Pack of Cigarettes Smoked Per Day During Period: "},
        .month = {.heading = " Smoking Results for the Beginning to End of ",
                  .quantity = " Packs Smoked Per Day: ",
                  .unitCost = " Cost of a Pack of Cigarettes: ",
                  .outOfPocket = " Out of Pocket Monthly Cost of Cigarettes: ",
                  .plural = "Cigarettes"},
        .tableHeading = {kSmoking1, kSmoking2, kSmoking3, kUnits4, kUnits5},

        .startsTheProgram = true, .hasCigaretteList = true,
        .revealSquare = RevealSquare{.tab = 2, .right = -400, .below = -400},
        .switchesAllBalloons = true,
    },
    {
        .key = "Drinking", .stem = "Drink", .costClass = CostClass::UnitsClass,
        .chooserCaption = "Drinking",
        .titleWord = "Cuptoll",
        .designCaption = "The \"Cuptoll\"",
        .windowCaption = "The \"Cuptoll\" Financial Calculator",
        .totalFrame = "TOTAL CUPTOLL",

        .enableFrameName = "frmEnableDisableDrinking", .timePeriodFrameName = "frmSetTimeDrinkingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .quantityLabelName = "lblDrinksPerDay",
        .costLabelName = "lblDrinkCost", .percentLabelName = "lblDrinkPercentIncrease",

        .startSuffix = ": Date Started Drinking",
        .stopSuffix = ": Date Stopped Drinking",
        .dailySuffix = ": Drinking Costs",
        .costChangeSuffix = ": Drinking Cost Change",

        .quantityLabelDesign = "Drinks Per Day",
        .quantityLabelPerDay = "Drinks Per Day", .quantityLabelPerMonth = "Drinks Per Month",
        .costLabelDesign = "Cost Per Drink", .costLabelPercent = "Cost Per Drink",
        .costLabelInitial = "Cost Per Drink: Initial",
        .costLabelFinal = "Cost Per Drink: Final",
        .percentLabelDesign = "Yearly Increase Cost (%) of Alcohol",
        .percentLabelPercent = "Yearly Increase Cost (%) of a Drink",
        .percentOptionCaption = "Percent Yearly Increase In Cost of Alcohol During Period",
        .initialFinalOptionCaption = {"Initial and Final Alcohol In Period",
                                      "Initial and Final Cost of Alcohol In Period"},

        .summaryWord = "Drinking",
        .enableFrameCaption = "Enable/Disable Periods of Drinking",
        .dateTipWord = "Drinking",

        .startUnit = Unit::PerDay,
        .perDayList = kUnitsPerDay, .perMonthList = kUnitsPerMonth, .quantityDefault = 5,
        .costList = kCostList, .costDefault = 38,
        .secondCostList = kCostList, .secondCostDefault = 48,
        .percentDefault = 10,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Drinks Per Day|^Cost of a Drink|"
            "^Drinking Cost Per Month (Out of Pocket)|^Drinking Cost: In Month with Interest|"
            "^Cumulative Drinking Cost: Out of Pocket|^ Cumulative Drinking Cost: With Interest",
        .header = {.startLine = "Start Drinking Date for Period is: ",
                   .stopLine = "Stop Drinking Date for Period is: ",
                   .costLine = "Initial Cuptoll at Start Drinking Date: ",
                   .percentLine = "Yearly Percent Increase in Drinking Cost in Drinking Period: ",
                   .finalCostLine = "Final Cuptoll at Stop Drinking Date: ",
                   .quantityLine = "Pack of Cigarettes Drinkd Per Day During Period: "},
        .month = {.heading = " Drinking Results for the Beginning to End of ",
                  .quantity = " Drinks Per Day: ",
                  .unitCost = " Cost of a Drink: ",
                  .outOfPocket = " Out of Pocket Monthly Cuptoll: ",
                  .plural = "Drinks"},
        .tableHeading = {kDrinking1, kDrinking2, kDrinking3, kUnits4, kUnits5},

        .hasCigaretteList = true, .switchesAllBalloons = true, .futureTotalTakesListPosition = true,
    },
    {
        .key = "Gambling", .stem = "Gamble", .costClass = CostClass::FlatRateClass,
        .chooserCaption = "Gambling",
        .titleWord = "Dicetoll",
        .designCaption = "The \"Dicetoll\"",
        .windowCaption = "The \"Dicetoll\" Financial Calculator",
        .totalFrame = "TOTAL DICETOLL",

        .enableFrameName = "frmEnableDisable", .timePeriodFrameName = "frmSetTimeGamblingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .costLabelName = "lblCostOf", .percentLabelName = "lblGamblePercentIncrease",

        .startSuffix = ": Date Started Gambling",
        .stopSuffix = ": Date Stopped Gambling",
        .dailySuffix = ": Gambling Cost",
        .costChangeSuffix = ": Gambling Cost Change",
        .designDailySuffix = {":Gambling Cost", ": Gambling Cost"},

        .costLabelDesign = "Dicetoll, Per Day",
        .percentLabelDesign = "Yearly Increase In Gambling Rate",
        // The future label is off and stays so: the amount is taken as per day.
        .flatLabelPerDay = {"Dicetoll, Per Day", "Dicetoll, Per Month"},
        .flatLabelPerMonth = "Dicetoll, Per Month",

        .summaryWord = "Gambling",
        .enableFrameCaption = "Enable/Disable Periods of Gambling",
        .dateTipWord = "Gambling",

        .startUnit = Unit::PerDay,
        .perDayList = kFlatPerDayTo2500, .perMonthList = kFlatPerMonthTo75000, .quantityDefault = 20,
        .percentDefault = 5,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Gambling Cost Per Day|"
            "^Gambling Cost Per Month (Out of Pocket)|^Gambling Cost: In Month with Interest|"
            "^Cumulative Gambling Cost: Out of Pocket|^ Cumulative Gambling Cost: With Interest",
        .header = {.startLine = "Start Gambling Date for Period is: ",
                   .stopLine = "Stop Gambling Date for Period is: ",
                   .costLine = {"Gambling Cost Per Day During Period: ",
                                "Dicetoll Per Day During Period: "}},
        .month = {.heading = " Gambling Results for the Beginning to End of ",
                  .quantity = " Gambles Per Day: ",
                  .unitCost = " Cost of a Gamble: ",
                  .outOfPocket = " Out of Pocket Monthly Dicetoll: ",
                  .plural = "Gambles"},
        .tableHeading = {kGambling1, kGambling2, kFlat3, kFlat4, kFlat5},
    },
    {
        .key = "Coffeeing", .stem = "Coffee", .costClass = CostClass::NetUnitsClass,
        .chooserCaption = "Coffee",
        .titleWord = "Beantoll",
        .designCaption = "The \"Beantoll\"",
        .windowCaption = "The \"Beantoll\" Financial Calculator",
        .totalFrame = "TOTAL BEANTOLL",

        .enableFrameName = "frmEnableDisableCoffeeing", .timePeriodFrameName = "frmSetTimeCoffeeingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .quantityLabelName = "lblCoffeesPerDay",
        .costLabelName = "lblCoffeeCost", .percentLabelName = "lblCoffeePercentIncrease",

        .startSuffix = ": Date Started Buying Coffee",
        .stopSuffix = ": Date Stopped Buying Coffee",
        .dailySuffix = ": Coffee Cost",
        .costChangeSuffix = {": Coffeeing Cost Change", ": Coffee Cost Change"},

        .quantityLabelDesign = "Coffees Per Day",
        .quantityLabelPerDay = "Coffees Per Day", .quantityLabelPerMonth = "Coffees Per Month",
        .costLabelDesign = "Cost Per Coffee",
        .percentLabelDesign = "Yearly Increase Cost (%) of Coffee",
        .subCostLabel = "Subtract Reasonable Cost of a Coffee",

        .summaryWord = "Coffee Drinking", .summaryTotWord = "Coffee",
        .enableFrameCaption = "Enable/Disable Periods of Coffee Drinking",
        .dateTipWord = "Coffee Drinking",

        .startUnit = Unit::PerDay,
        .perDayList = kUnitsPerDay, .perMonthList = kUnitsPerMonth, .quantityDefault = 2,
        .costList = kShortCostList, .costDefault = 38,
        .secondCostList = kReasonableList, .secondCostDefault = 21,
        .percentDefault = 10,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Coffee Per Day|^Gross: Cost of a Coffee|"
            "^Subtract Reasonable Cost per Coffee|^Adjusted: Cost of a Coffee|"
            "^Coffee Cost Per Month (Out of Pocket)|^Coffee Cost: In Month with Interest|"
            "^Cumulative Coffee Cost: Out of Pocket|^ Cumulative Coffee Cost: With Interest",
        .header = {.startLine = "Start Coffee Drinking Date for Period is: ",
                   .stopLine = "Stop Coffee Drinking Date for Period is: ",
                   .costLine = {"Initial Beantoll at Start Coffee Drinking  Date: ",
                                "Initial Beantoll at Start Coffee Drinking Date: "},
                   .reasonableLine = "Reasonable Cost of a Coffee at Start Coffee Drinking Date: ",
                   .excessLine = "Excess Beantoll: ",
                   .percentLine = "Yearly Percent Increase in Coffee Cost in Coffee Drinking Period: ",
                   .quantityLine = "Pack of Cigarettes Drinkd Per Day During Period: "},
        .month = {.heading = " Coffee Drinking Results for the Beginning to End of ",
                  .headingTwin = " Coffee Drinking  Results for the Beginning to End of ",
                  .quantity = " Coffees Per Day: ",
                  .unitCost = " Gross: Cost of a Coffee: ",
                  .reasonableCost = " Subtracted Reasonable Coffee Cost: ",
                  .adjustedCost = " Adjusted: Cost of a Coffee: ",
                  .plainUnitCost = " Cost of a Coffee: ",
                  .outOfPocket = " Out of Pocket Monthly Beantoll: ",
                  .plural = "Coffee"},
        .tableHeading = {kCoffeeing1, kCoffeeing2, kCoffeeing3, kCoffeeing4, kNetUnits5},
    },
    {
        .key = "Watering", .stem = "Water", .costClass = CostClass::NetUnitsClass,
        .chooserCaption = "Water",
        .titleWord = "Dewtoll",
        .designCaption = "The \"Dewtoll\"",
        .windowCaption = "The \"Dewtoll\" Financial Calculator",
        .totalFrame = "TOTAL DEWTOLL",

        .enableFrameName = "frmEnableDisableWatering", .timePeriodFrameName = "frmSetTimeWateringPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .quantityLabelName = "lblWatersPerDay",
        .costLabelName = "lblWaterCost", .percentLabelName = "lblWaterPercentIncrease",

        .startSuffix = ": Date Started Buying Water",
        .stopSuffix = ": Date Stopped Buying Water",
        .dailySuffix = ": Water Cost",
        .costChangeSuffix = {": Watering Cost Change", ": Water Cost Change"},

        .quantityLabelDesign = "Waters Per Day",
        .quantityLabelPerDay = "Waters Per Day", .quantityLabelPerMonth = "Waters Per Month",
        .costLabelDesign = "Cost Per Water",
        .percentLabelDesign = "Yearly Increase Cost (%) of Water",
        .subCostLabel = "Subtract Reasonable Cost of a Water",

        .summaryWord = "Water Drinking", .summaryTotWord = "Water",
        .enableFrameCaption = "Enable/Disable Periods of Water Drinking",
        .dateTipWord = "Water Drinking",

        .startUnit = Unit::PerDay,
        .perDayList = kUnitsPerDay, .perMonthList = kUnitsPerMonth, .quantityDefault = 3,
        .costList = kShortCostList, .costDefault = 38,
        .secondCostList = kReasonableList, .secondCostDefault = 21,
        .percentDefault = 10,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Water Per Day|^Gross: Cost of a Water|"
            "^Subtract Reasonable Cost per Water|^Adjusted: Cost of a Water|"
            "^Water Cost Per Month (Out of Pocket)|^Water Cost: In Month with Interest|"
            "^Cumulative Water Cost: Out of Pocket|^ Cumulative Water Cost: With Interest",
        .header = {.startLine = "Start Water Drinking Date for Period is: ",
                   .stopLine = "Stop Water Drinking Date for Period is: ",
                   .costLine = {"Initial Dewtoll at Start Water Drinking  Date: ",
                                "Initial Dewtoll at Start Water Drinking Date: "},
                   .reasonableLine = "Reasonable Cost of a Water at Start Water Drinking Date: ",
                   .excessLine = "Excess Dewtoll: ",
                   .percentLine = "Yearly Percent Increase in Water Cost in Water Drinking Period: ",
                   .quantityLine = "Pack of Cigarettes Drinkd Per Day During Period: "},
        .month = {.heading = " Water Drinking Results for the Beginning to End of ",
                  .headingTwin = " Water Drinking  Results for the Beginning to End of ",
                  .quantity = " Waters Per Day: ",
                  .unitCost = " Gross: Cost of a Water: ",
                  .reasonableCost = " Subtracted Reasonable Water Cost: ",
                  .adjustedCost = " Adjusted: Cost of a Water: ",
                  .plainUnitCost = " Cost of a Water: ",
                  .outOfPocket = " Out of Pocket Monthly Dewtoll: ",
                  .plural = "Water"},
        .tableHeading = {kWatering1, kWatering2, kWatering3, kWatering4, kNetUnits5},

        .pastStoresPlainReasonableCost = true, .reportButtonsOf = "Coffeeing",
    },
    {
        .key = "Jailing", .stem = "Jail", .costClass = CostClass::FlatRateClass,
        .chooserCaption = "Jail Time",
        .titleWord = "Celltoll",
        .designCaption = "The \"Celltoll (or Incarceration)\"",
        .windowCaption = "The \"Celltoll\" Financial Calculator",
        .totalFrame = "TOTAL Celltoll",

        .enableFrameName = "frmEnableDisable", .timePeriodFrameName = "frmSetTimeJailingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .costLabelName = "lblCostOf", .percentLabelName = "lblJailPercentIncrease",

        .startSuffix = ": Date Entered Jail",
        .stopSuffix = {": Date Released from Jail", ": Released from Jail"},
        .dailySuffix = ": Jail Time Cost",
        .costChangeSuffix = ": % Increase in Jail Time Cost",
        .designCostChangeSuffix = ": Jail Time Cost Change",

        .costLabelDesign = "Celltoll (Lost Wages), Per Month",
        .percentLabelDesign = "Yearly % Increase In Jail Costs (% Wage Increase)",
        .flatLabelPerDay = "Celltoll (Lost Wages), Per Day",
        .flatLabelPerMonth = "Celltoll (Lost Wages), Per Month",

        .summaryWord = "Jail Time",
        .enableFrameCaption = {"Enable/Disable Periods in Jail", "Enable/Disable Periods In Jail"},
        .dateTipWord = "Jailing",

        .startUnit = Unit::PerMonth,
        .perDayList = kFlatPerDayTo10000, .perMonthList = kFlatPerMonthTo300000, .quantityDefault = 56,
        .percentDefault = 5,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Jail Time Cost Per Day|"
            "^Jail Time Cost Per Month (Out of Pocket)|^Jail Time Cost: In Month with Interest|"
            "^Cumulative Jail Time Cost: Out of Pocket|^ Cumulative Jail Time Cost: With Interest",
        .header = {.startLine = "Start Jailing Date for Period is: ",
                   .stopLine = "Stop Jailing Date for Period is: ",
                   .costLine = {"Jailing Cost Per Day During Period: ", "Celltoll Per Day During Period: "}},
        .month = {.heading = " Jailing Results for the Beginning to End of ",
                  .quantity = " Jails Per Day: ",
                  .unitCost = " Cost of a Jail: ",
                  .outOfPocket = " Out of Pocket Monthly Celltoll: ",
                  .plural = "Jails"},
        .tableHeading = {kJailing1, kJailing2, kFlat3, kFlat4, kFlat5},

        .futureTotalHasNoIncrease = true, .layoutSwitchReads = "Slothing",
    },
    {
        .key = "Drugging", .stem = "Drug", .costClass = CostClass::FlatRateClass,
        .chooserCaption = "Drug Use",
        .titleWord = "Pilltoll",
        .designCaption = "The \"Pilltoll\"",
        .windowCaption = "The \"Pilltoll\" Financial Calculator",
        .totalFrame = "TOTAL Pilltoll",

        .enableFrameName = "frmEnableDisable", .timePeriodFrameName = "frmSetTimeDruggingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .costLabelName = "lblCostOf", .percentLabelName = "lblDrugPercentIncrease",

        .startSuffix = ": Date Started Using Drugs",
        .stopSuffix = ": Date Stopped Using Drugs",
        .dailySuffix = ": Drug Cost",
        .costChangeSuffix = ": Drug Cost Change",

        .costLabelDesign = "Pilltoll, Per Day",
        .percentLabelDesign = "Yearly % Increase In Drug Cost",
        // The future label is off and stays so: the amount is taken as per day.
        .flatLabelPerDay = {"Pilltoll, Per Day", "Pilltoll, Per Month"},
        .flatLabelPerMonth = "Pilltoll, Per Month",

        .summaryWord = "Drug Use",
        .enableFrameCaption = "Enable/Disable Periods of Drug Use",
        .dateTipWord = "Drugging",

        .startUnit = Unit::PerDay,
        .perDayList = kFlatPerDayTo2500, .perMonthList = kFlatPerMonthTo75000, .quantityDefault = 20,
        .percentDefault = 10,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Drug Cost Per Day|"
            "^Drug Cost Per Month (Out of Pocket)|^Drug Cost: In Month with Interest|"
            "^Cumulative Drug Cost: Out of Pocket|^ Cumulative Drug Cost: With Interest",
        .header = {.startLine = "Start Drugging Date for Period is: ",
                   .stopLine = "Stop Drugging Date for Period is: ",
                   .costLine = {"Drugging Cost Per Day During Period: ",
                                "Pilltoll Per Day During Period: "}},
        .month = {.heading = " Drugging Results for the Beginning to End of ",
                  .quantity = " Drugs Per Day: ",
                  .unitCost = " Cost of a Drug: ",
                  .outOfPocket = " Out of Pocket Monthly Pilltoll: ",
                  .plural = "Drugs"},
        .tableHeading = {kDrugging1, kDrugging2, kFlat3, kFlat4, kFlat5},

        .futureKeepsUnit = true,
    },
    {
        .key = "Slothing", .stem = "Sloth", .costClass = CostClass::FlatRateClass,
        .chooserCaption = "Sloth or Laziness",
        .titleWord = "Sofatoll",
        .designCaption = "The \"Sofatoll or Laziness\"",
        .windowCaption = "The \"Sofatoll\" Financial Calculator",
        .totalFrame = "TOTAL Sofatoll",

        .enableFrameName = "frmEnableDisable", .timePeriodFrameName = "frmSetTimeSlothingPeriod",
        .futureTotalLabelName = "Label5",
        .costLabelName = "lblCostOf", .percentLabelName = "lblSlothPercentIncrease",

        .startSuffix = ": Date Laziness Started",
        .stopSuffix = ": Date Laziness Stopped",
        .dailySuffix = ": Laziness Related Cost",
        .costChangeSuffix = ": Laziness Related Cost Change",

        .costLabelDesign = "Sofatoll, Per Month",
        .percentLabelDesign = "Yearly Increase In Slothing Rate",
        // The future label is off and stays so: the amount is taken as per day.
        .flatLabelPerDay = {"Sofatoll, Per Day", "Sofatoll, Per Month"},
        .flatLabelPerMonth = "Sofatoll, Per Month",

        .summaryWord = "Laziness",
        .enableFrameCaption = "Enable/Disable Periods of Laziness",
        .dateTipWord = "Slothing",

        .startUnit = Unit::PerMonth,
        .perDayList = kFlatPerDayTo500, .perMonthList = kFlatPerMonthTo15000, .quantityDefault = 20,
        .percentDefault = 5,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Sofatoll Per Day|^Sofatoll Per Month (Out of Pocket)|"
            "^Sofatoll: In Month with Interest|^Cumulative Sofatoll: Out of Pocket|"
            "^ Cumulative Sofatoll: With Interest",
        .header = {.startLine = "Start Slothing Date for Period is: ",
                   .stopLine = "Stop Slothing Date for Period is: ",
                   .costLine = {"Slothing Cost Per Day During Period: ",
                                "Sofatoll Per Day During Period: "}},
        .month = {.heading = " Slothing Results for the Beginning to End of ",
                  .quantity = " Sloths Per Day: ",
                  .unitCost = " Cost of a Sloth: ",
                  .outOfPocket = " Out of Pocket Monthly Sofatoll: ",
                  .plural = "Sloths"},
        .tableHeading = {kSlothing1, kSlothing2, kFlat3, kFlat4, kFlat5},

        .layoutSwitchReads = "",
    },
    {
        .key = "Soliciting", .stem = "Solicite", .costClass = CostClass::UnitsClass,
        .chooserCaption = "Soliciting (Prostitute)", .checkCaption = "Soliciting (Prostitutes)",
        .titleWord = "Pleatoll",
        .designCaption = "The \"Pleatoll Prostitutes\"",
        .windowCaption = "The \"Pleatoll\" Financial Calculator",
        .totalFrame = "TOTAL PLEATOLL",

        .enableFrameName = "frmEnableDisableSoliciting", .timePeriodFrameName = "frmSetTimeSolicitingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .quantityLabelName = "lblSolicitesPerDay",
        .costLabelName = "lblSoliciteCost", .percentLabelName = "lblSolicitePercentIncrease",

        .startSuffix = ": Date Started Soliciting",
        .stopSuffix = ": Date Stopped Soliciting",
        .dailySuffix = ": Number of Solicitations",
        .costChangeSuffix = ": Solicitation Costs",

        .quantityLabelDesign = "Solicitations Per Month",
        .quantityLabelPerDay = "Solicitations Per Day", .quantityLabelPerMonth = "Solicitations Per Month",
        .costLabelDesign = "Cost Per Solicitation", .costLabelPercent = "Cost Per Solicitation",
        .costLabelInitial = "Cost Per Solicitation: Initial",
        .costLabelFinal = "Cost Per Solicitation: Final",
        .percentLabelDesign = "Yearly Increase Cost (%) of Solicitation",
        .percentLabelPercent = "Yearly Increase Cost (%) of Solicitation",
        .percentOptionCaption = "Percent Yearly Increase In Solicitation Cost During Period",
        .initialFinalOptionCaption = {"Initial and Final Solicitaiton Cost In Period",
                                      "Initial and Final Solicitation Cost In Period"},

        .summaryWord = "Soliciting",
        .enableFrameCaption = "Enable/Disable Periods of Soliciting",
        .dateTipWord = "Soliciting",

        .startUnit = Unit::PerMonth,
        .perDayList = kSolicitationsPerDay, .perMonthList = kSolicitationsPerMonth, .quantityDefault = 9,
        .costList = kSolicitationCostList, .costDefault = 6,
        .secondCostList = kSolicitationCostList, .secondCostDefault = 8,
        .percentDefault = 10,

        // The unit cost has no heading, so the figures after it stand one column right of theirs.
        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Solicitation Cost Per Day|"
            "^Solicitation Cost Per Month (Out of Pocket)|^Solicitation Cost: In Month with Interest|"
            "^Cumulative Solicitation Cost: Out of Pocket|"
            "^ Cumulative Solicitation Cost: With Interest",
        .header = {.startLine = "Start Soliciting Date for Period is: ",
                   .stopLine = "Stop Soliciting Date for Period is: ",
                   .costLine = "Initial Pleatoll at Start Soliciting Date: ",
                   .percentLine = "Yearly Percent Increase in Soliciting Cost in Soliciting Period: ",
                   .finalCostLine = "Final Pleatoll at Stop Soliciting Date: ",
                   .quantityLine = "Pack of Cigarettes Solicited Per Day During Period: "},
        .month = {.heading = " Soliciting Results for the Beginning to End of ",
                  .quantity = " Solicitations Per Day: ",
                  .unitCost = " Cost of a Solicite: ",
                  .outOfPocket = " Out of Pocket Monthly Pleatoll: ",
                  .plural = "Solicites"},
        .tableHeading = {kSoliciting1, kSoliciting2, kSoliciting3, kSoliciting4, kSoliciting5},
    },
    {
        .key = "Tobaccoing", .stem = "Tobacco", .costClass = CostClass::FlatRateClass,
        .chooserCaption = "Tobacco Products",
        .titleWord = "Leaftoll",
        .designCaption = "The \"Leaftoll Products\"",
        .windowCaption = "The \"Leaftoll\" Financial Calculator",
        .totalFrame = "TOTAL Leaftoll",

        .enableFrameName = "frmEnableDisable", .timePeriodFrameName = "frmSetTimeTobaccoingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .costLabelName = "lblCostOf", .percentLabelName = "lblTobaccoPercentIncrease",

        .startSuffix = ": Date Started Using Tobacco",
        .stopSuffix = ": Date Stopped Using Tobacco",
        .dailySuffix = ": Tobacco Cost",
        .costChangeSuffix = ": Tobacco Cost Change",

        .costLabelDesign = "Leaftoll, Per Day",
        .percentLabelDesign = "Yearly % Increase in Tobacco Cost",
        // The future label is off and stays so: the amount is taken as per day.
        .flatLabelPerDay = {"Leaftoll, Per Day", "Leaftoll, Per Month"},
        .flatLabelPerMonth = "Leaftoll, Per Month",

        .summaryWord = "Tobacco Use",
        .enableFrameCaption = "Enable/Disable Periods of Tobacco Use",
        .dateTipWord = "Tobaccoing",

        .startUnit = Unit::PerDay,
        .perDayList = kFlatPerDayTo2500, .perMonthList = kFlatPerMonthTo75000, .quantityDefault = 20,
        .percentDefault = 5,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Tobacco Cost Per Day|"
            "^Tobacco Cost Per Month (Out of Pocket)|^Tobacco Cost: In Month with Interest|"
            "^Cumulative Tobacco Cost: Out of Pocket|^ Cumulative Tobacco Cost: With Interest",
        .header = {.startLine = "Start Tobaccoing Date for Period is: ",
                   .stopLine = "Stop Tobaccoing Date for Period is: ",
                   .costLine = {"Tobaccoing Cost Per Day During Period: ",
                                "Leaftoll Per Day During Period: "}},
        .month = {.heading = " Tobaccoing Results for the Beginning to End of ",
                  .quantity = " Tobaccos Per Day: ",
                  .unitCost = " Cost of a Tobacco: ",
                  .outOfPocket = " Out of Pocket Monthly Leaftoll: ",
                  .plural = "Tobacco"},
        .tableHeading = {kTobaccoing1, kTobaccoing2, kFlat3, kFlat4, kFlat5},

        .layoutSwitchReads = "",
    },
    {
        .key = "Interring", .stem = "Internet", .costClass = CostClass::FlatRateClass,
        .chooserCaption = "Online Subscriptions",
        .titleWord = "Webtoll Sub",
        .designCaption = "The \"Webtoll Subscriptions\"",
        .windowCaption = "The \"Webtoll Sub\" Financial Calculator",
        .totalFrame = "TOTAL Webtoll Sub",

        .enableFrameName = "frmEnableDisable", .timePeriodFrameName = "frmSetTimeInterringPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .costLabelName = "lblCostOf", .percentLabelName = "lblInternetPercentIncrease",

        .startSuffix = ": Date Bought Internet Subs",
        .stopSuffix = ": Date Cancelled Internet Subs",
        .dailySuffix = ": Internet Subscription Costs",
        .costChangeSuffix = ": Internet Sub Cost Change",

        .costLabelDesign = "Webtoll Sub, Per Month",
        .percentLabelDesign = "Yearly Increase In Internet Sub Rate",
        .flatLabelPerDay = "Webtoll Sub, Per Day",
        .flatLabelPerMonth = "Webtoll Sub, Per Month",

        .summaryWord = "Internet Subs",
        .enableFrameCaption = "Enable/Disable Periods of Internet Sub",
        .dateTipWord = "Interring",

        .startUnit = Unit::PerMonth,
        .perDayList = kFlatPerDayTo500, .perMonthList = kFlatPerMonthTo15000, .quantityDefault = 20,
        .percentDefault = 5,

        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Internet Subscriptions Cost Per Day|"
            "^Internet Subscriptions Cost Per Month (Out of Pocket)|"
            "^Internet Subscriptions Cost: In Month with Interest|"
            "^Cumulative Internet Subscription Cost: Out of Pocket|"
            "^ Cumulative Internet Subscription Cost: With Interest",
        .header = {.startLine = "Start Interring Date for Period is: ",
                   .stopLine = "Stop Interring Date for Period is: ",
                   .costLine = {"Interring Cost Per Day During Period: ",
                                "Webtoll Sub Per Day During Period: "}},
        .month = {.heading = " Interring Results for the Beginning to End of ",
                  .quantity = " Internets Per Day: ",
                  .unitCost = " Cost of a Internet: ",
                  .outOfPocket = " Out of Pocket Monthly Webtoll Sub: ",
                  .plural = "Internets"},
        .tableHeading = {kInterring1, kInterring2, kFlat3, kFlat4, kFlat5},

        .revealSquare = RevealSquare{.tab = 0, .right = 300, .below = 200},  // just outside its panel
    },
    {
        .key = "Shopping", .stem = "Shop", .costClass = CostClass::FlatRateClass,
        .chooserCaption = "Shopping",
        .titleWord = "Carttoll",
        .designCaption = "The \"Carttoll\"",
        .windowCaption = "The \"Carttoll\" Financial Calculator",
        .totalFrame = "TOTAL Carttoll",
        .reportStem = "Shopping ",

        .enableFrameName = "frmEnableDisableShopping", .timePeriodFrameName = "frmSetTimeShoppingPeriod",
        .futureTotalLabelName = "lblResultsFutTotal",
        .costLabelName = "lblCostOf", .percentLabelName = "lblShopPercentIncrease",

        .startSuffix = ": Date Started Shopping",
        .stopSuffix = ": Date Stopped Shopping",
        .dailySuffix = ": Shopping Costs",
        .costChangeSuffix = ": Shopping Cost Change",

        .costLabelDesign = "Cost of Excess Shopping, Per Day",
        .percentLabelDesign = "Yearly Increase Cost (%) For Shopping",
        .flatLabelPerDay = "Cost of Excess Shopping, Per Day",
        .flatLabelPerMonth = "Cost of Excess Shopping, Per Month",

        .summaryWord = "Shopping",
        .enableFrameCaption = "Enable/Disable Periods of Shopping",
        .dateTipWord = "Shopping",

        .startUnit = Unit::PerDay,
        .perDayList = kFlatPerDayTo500, .perMonthList = kFlatPerMonthTo15000, .quantityDefault = 20,
        .percentDefault = 5,

        // Eleven headings over eight cells: the last three columns stay empty.
        .gridHeading =
            "<Index|^Period|^Evaluation Month|^Shopping Per Day|^Gross: Carttoll|"
            "^Subtract Reasonable Carttoll|^Adjusted: Carttoll|"
            "^Shopping Cost Per Month (Out of Pocket)|^Shopping Cost: In Month with Interest|"
            "^Cumulative Shopping Cost: Out of Pocket|^ Cumulative Shopping Cost: With Interest",
        .header = {.startLine = "Start Shopping Date for Period is: ",
                   .stopLine = "Stop Shopping Date for Period is: ",
                   .costLine = {"Shopping Cost Per Day During Period: ",
                                "Carttoll Per Day During Period: "}},
        .month = {.heading = " Shopping Results for the Beginning to End of ",
                  .quantity = " Shops Per Day: ",
                  .unitCost = " Carttoll: ",
                  .outOfPocket = " Out of Pocket Monthly Carttoll: ",
                  .plural = "Shopping"},
        .tableHeading = {kShopping1, kShopping2, kFlat3, kFlat4, kFlat5},
    },
}};
// clang-format on

}  // namespace

constexpr ListDefinition kRateList{kRateRuns, "0%"};

const std::array<SinRow, kSinCount>& Catalogue() { return kCatalogue; }

int SinPosition(string_view key) {
  const auto row = std::ranges::find(kCatalogue, key, &SinRow::key);
  return row == kCatalogue.end() ? -1 : static_cast<int>(row - kCatalogue.begin());
}

}  // namespace vicetoll
