// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/control_rows.h"

// The short names of the table stay in it.
namespace vicetoll::design {
namespace {

// ---- What balloons say ----
// The misspellings and the missing blanks after a full stop are as users know them. Two texts: the past's
// and the future's.

// clang-format off
constexpr BySide kStartHelp = {
    "Set the Start Date for this Period. The Date must \r\n"
    "be set at least a month past the Stop Date of the \r\n"
    "previous Period. Manually changing the value may \r\n"
    "result in Error and Crash!!",
    "Set the Start Date for this Period. Date cannot \r\n"
    "be set prior to the next month past the present month \r\n"
    "- year. The Date must be set a month past the Stop \r\n"
    "Date of the previous Period.Manually changing the \r\n"
    "value may result in Error and Crash!!"};
constexpr BySide kStopHelp = {
    "Set the Stop Date for this Period. Date cannot \r\n"
    "be set past the present month - year.  If set to the \r\n"
    "present month - year then you cannot set any other \r\n"
    "periods.Manually changing the value may result \r\n"
    "in Error and Crash!!",
    "Set the Start Date for this Period. Manually \r\n"
    "changing the value may result in Error and Crash!!"};
constexpr BySide kFineStartHelp = {
    "Set the Date Resolution for the Date Start Combo Box \r\n"
    "to the Left.  Fine is for a 1 month Date Increments.",
    "Set the Date Resolution for the Date Start Combo \r\n"
    "Box to the Left.  Fine is for a 1 month Date Increments."};
constexpr BySide kCourseStartHelp = {
    "Set the Date Resolution for the Date Start Combo Box \r\n"
    "to the Left.  Course is for a 6 or 12 month Date \r\n"
    "Increments.",
    "Set the Date Resolution for the Date Start Combo \r\n"
    "Box to the Left.  Course is for a 6 or 12 month Date \r\n"
    "Increments."};
constexpr BySide kFineStopHelp = {
    "Set the Date Resolution for the Date Stop Combo Box \r\n"
    "to the Left.  Fine is for a 1 month Date Increments.",
    "Set the Date Resolution for the Date Stop Combo \r\n"
    "Box to the Left.  Fine is for a 1 month Date Increments."};
constexpr BySide kCourseStopHelp =
    "Set the Date Resolution for the Date Stop Combo \r\n"
    "Box to the Left.  Course is for a 6 or 12 month Date \r\n"
    "Increments.";
constexpr BySide kDailyHelp =
    "Set Parameters related to the frequency of use \r\n"
    "or cost per time the one inbibes in this particular Sin.";
constexpr BySide kCostChangeHelp =
    "Set Parameters related to the cost of individual\r\n"
    "items related to this particular sin and the rise \r\n"
    "in cost over time of those items.";
constexpr BySide kRatesHelp =
    "Set Parameters related to the rate one can achieve \r\n"
    "on saved money (interest, stock or mutual fund \r\n"
    "gain, etc..) and inflation rate during the time period";
constexpr BySide kInterestHelp =
    "Set the Average Rate of Return you feel you can \r\n"
    "obtain on money saved in financial institutions \r\n"
    "during the Period (Bank, Brokerage House, Credit \r\n"
    "Union, Under your Pillow, etc.).";
constexpr BySide kInflationHelp =
    "Set the Inflation Rate during the Period. This \r\n"
    "allows you to gauge future currency value from \r\n"
    "present currency value in results";
constexpr BySide kSetPeriodHelp =
    "Click this Button to generate results for the \r\n"
    "period based on all of the Parameters set above \r\n"
    "(Date Period, Sin Parameters, Interest and Inflation \r\n"
    "Rate).";
constexpr BySide kTimePeriodHelp = {
    "Click this Option to allow Setting to the Date \r\n"
    "Period to the Right.  If this option is not available, \r\n"
    "Stop Date is likely at the present date and no \r\n"
    "more Periods can be set. Going back to an earlier \r\n"
    "time period and setting new parameters will delete \r\n"
    "later time periods",
    "Click this Option to allow Setting to the Date \r\n"
    "Period to the Right.  Going back to an earlier \r\n"
    "time period and setting new parameters will delete \r\n"
    "later time periods"};
constexpr BySide kEnableHelp = {
    "If Disabled, Click this Button to Enable the Period \r\n"
    "and add results for the period to be included in \r\n"
    "the Total Out of Pocket and Cumulative Results.",
    "If Disabled, Click this Button to Enable the Period \r\n"
    "and add results for the period to be included \r\n"
    "in the Total Out of Pocket and Cumulative Results."};
constexpr BySide kDisableHelp =
    "If Enabled, Click this Button to Disable the Period \r\n"
    "and remove results for the period to be excluded \r\n"
    "in the Total Out of Pocket and Cumulative Results.";
constexpr BySide kOutOfPocketHelp =
    "This result corresponds to the actual money you \r\n"
    "spent (out of your pocket!!) during the period.";
constexpr BySide kOutOfPocketAgainHelp =
    "This result corresponds to the actual money \r\n"
    "you spent (out of your pocket!!) during \r\n"
    "the period.";
constexpr BySide kCumulativeHelp =
    "This result corresponds to the cumulative amount \r\n"
    "of money you could have saved up through the given \r\n"
    "period including interest and inflation.  Note \r\n"
    "that interest and inflation in time gaps between \r\n"
    "periods are taken into account!!";
constexpr BySide kTotalHelp =
    "This result is the total Out of Pocket Expense \r\n"
    "from all the set and enabled periods above.";
constexpr BySide kSpreadsheetHelp = {
    "Click this Button to open a Window depicting \r\n"
    "the Past month to month results from all set \r\n"
    "and enabled periods in a SpreadSheet Like \r\n"
    "Format.",
    "Click this Button to open a Window depicting \r\n"
    "the Future month to month results from all set \r\n"
    "and enabled periods in a SpreadSheet Like \r\n"
    "Format."};
constexpr BySide kDocumentHelp = {
    "Click this Button to open a Window depicting \r\n"
    "the Past month to month results from all set \r\n"
    "and enabled periods in a Microsoft Word Like \r\n"
    "Document Format.",
    "Click this Button to open a Window depicting \r\n"
    "the Future month to month results from all set \r\n"
    "and enabled periods in a Microsoft Word Like \r\n"
    "Document Format."};
constexpr BySide kTotOutOfPocketHelp =
    "This result is the total Out of Pocket Expense \r\n"
    "from all the set and enabled Past and\r\n"
    "Future Periods";
constexpr BySide kTotCumulativeHelp =
    "This result is the total Cumlative Cost \r\n"
    "from all the set and enabled Past and\r\n"
    "Future Periods.  This value includes Inflation modified\r\n"
    "Interest incurred while imbibing in the sin,\r\n"
    "time between periods, and any time between \r\n"
    "Past and Future";
constexpr BySide kTotDocumentHelp =
    "Click this Button to open a Window depicting \r\n"
    "combined Past and Future month to month results \r\n"
    "from all set and enabled periods in a Microsoft Word \r\n"
    "Like Document Format.";
constexpr BySide kTotSpreadsheetHelp =
    "Click this Button to open a Window depicting \r\n"
    "combined Past and Future month to month results \r\n"
    "from all set and enabled periods in a SpreadSheet \r\n"
    "Like Format.";
constexpr BySide kSwitchSinsHelp =
    "Click this Button to hide the present Window and \r\n"
    "open a new window for calculating results for another \r\n"
    "SIN (smoking, drinking, gambling, etc..).  Any \r\n"
    "previous results will be saved until you close the \r\n"
    "program.";
constexpr BySide kCombinedHelp =
    "Click this Button to show a new Window depicting \r\n"
    "the combined results of all Sins where results have \r\n"
    "been generated.  Results of all individual sins will \r\n"
    "be shown along with the combined Sums";
constexpr BySide kEuroHelp =
    "This button is Visible at Program Start.  Click or perform any Calculation or Sin Switch and the Button "
    "is Disabled!";

// ---- Which sins ----

bool Packs(const SinRow& sin) { return sin.costClass == CostClass::PacksClass; }
bool Net(const SinRow& sin) { return sin.costClass == CostClass::NetUnitsClass; }
bool Flat(const SinRow& sin) { return sin.costClass == CostClass::FlatRateClass; }
bool Units(const SinRow& sin) { return !Packs(sin) && !Flat(sin); }
bool NotPacks(const SinRow& sin) { return !Packs(sin); }
bool NotFlat(const SinRow& sin) { return !Flat(sin); }
bool CostModes(const SinRow& sin) { return HasCostModes(sin.costClass); }
bool StartsTheProgram(const SinRow& sin) { return sin.startsTheProgram; }
bool HasCigaretteList(const SinRow& sin) { return sin.hasCigaretteList; }
bool HasRevealSquare(const SinRow& sin) { return sin.revealSquare.has_value(); }
bool StartingPerDay(const SinRow& sin) { return sin.startUnit == Unit::PerDay; }
bool StartingPerMonth(const SinRow& sin) { return sin.startUnit == Unit::PerMonth; }

// ---- Names that differ between sins or sides ----

constexpr Words kTimePeriod{"{sin}", "SSFrame1", &SinRow::timePeriodFrameName};
constexpr Words kEnableFrame{"{sin}{Fut}", &SinRow::enableFrameName};
constexpr Words kQuantityLabel{"{sin}{Fut}", &SinRow::quantityLabelName};
constexpr Words kCostLabel{"{sin}{Fut}", &SinRow::costLabelName};
constexpr Words kPercentLabel{"{sin}{Fut}", &SinRow::percentLabelName};
constexpr Words kTotalLabel{"lblResultsPastTotal", "{sin}", &SinRow::futureTotalLabelName};
constexpr Words kOutOfPocket{"lblIndividualPeriod{Future}"};
constexpr Words kCumulative{"lblCumulativePeriods{Future}"};
// The future frame's name is written with a small f.
constexpr Words kSummary{"frmSummaryPast", "frmSummaryfut"};
constexpr Words kSummaryOutOfPocket{"Label2", "Label6"};
constexpr Words kSummaryCumulative{"Label1", "Label4"};

constexpr Words kWindow{};
constexpr Words kTabs{"SSTab_PastFutureSwitch"};
constexpr Words kPanel{"SSPanel_BackColor({page})"};
constexpr Words kFutureDate{"frmCumulativeResultsTotalFutureDateTot"};

using enum ControlKind;
constexpr ControlKind Text = TextBox, Tabs = ControlKind::TabControl;
using C = SideControls;
using W = SinWorkspace;
using Row = ControlRow;
constexpr auto kRight = vicetoll::Label::Align::Right, kCentre = vicetoll::Label::Align::Centre;

// ---- The controls ----
// The design is drawn on a grid of 15 twips, a pixel. Frames stand in two columns, at 120 and 6030; in a
// frame the caption has the topmost 300. Panels follow the tabs, the bottom row the window's height.

constexpr Row kTabRows[] = {
    // The access keys of the tabs are letters that no button needs.
    //  kind    name                                container             left   top  width height  caption
    Row(Tabs,   kTabs,                              kWindow,            {    0,    0, 11990, 8950})
        .Pages({"&PAST", "FUT&URE", "&TOTAL"}).Is<&W::SSTab_PastFutureSwitch>().Fades(1, 402),
    Row(Panel,  "SSPanel_BackColor",                kTabs,              {  150,  900, 11680, 8050})
        .Array(0, kTabCount, 0, 0).Fades(2, 401),
};

constexpr Row kSideRows[] = {
    // ---- left column: what the period is ----
    Row(Frame,  kTimePeriod,                        kPanel,             {  120,   60,  5790, 1995}, "Set Time Period"),
    Row(Option, "optTimePeriod{Fut}",               kTimePeriod,        {  120,  315,  5610,  390}, "{Future} Period {n}")
        .Array(1, 4, 0, 405).Is<&C::optTimePeriod>().On().Coloured(kRed)
        .Tip("Set to This Option to Define Period {n}", 2).Balloon(7, kTimePeriodHelp),

    Row(Frame,  "frmSetStart{Fut}",                 kPanel,             {  120, 2145,  5790,  900}, {"{Future} Period 1{sin}", &SinRow::startSuffix})
        .Is<&C::frmSetStart>().Balloon(1, kStartHelp),
    Row(List,   "comStart{Fut}",                    "frmSetStart{Fut}", {  120,  375,  1650,  420})
        .Is<&C::comStart>().Tip({"Start {sin} Date for Period", &SinRow::dateTipWord}),
    Row(Option, "optFineDateStart{Fut}",            "frmSetStart{Fut}", { 1845,  375,  1590,  420}, "Fine: 1 Month")
        .Is<&C::optFineDateStart>().Tip("+/- 6 months of Combo Value if Allowed").Balloon({2, 3}, kFineStartHelp),
    Row(Option, "optCourseDateStart{Fut}",          "frmSetStart{Fut}", { 3480,  375,  2250,  420}, "Course: 6-12 Months")
        .Is<&C::optCourseDateStart>().On().Balloon({2, 3}, kCourseStartHelp),

    Row(Frame,  "frmSetStop{Fut}",                  kPanel,             {  120, 3135,  5790,  900}, {"{Future} Period 1{sin}", &SinRow::stopSuffix})
        .Is<&C::frmSetStop>().Balloon(1, kStopHelp),
    Row(List,   "comStop{Fut}",                     "frmSetStop{Fut}",  {  120,  375,  1650,  420})
        .Is<&C::comStop>().Tip({"Stop {sin} Date for Period", &SinRow::dateTipWord}),
    Row(Option, "optFineDateStop{Fut}",             "frmSetStop{Fut}",  { 1845,  375,  1590,  420}, "Fine: 1 Month")
        .Is<&C::optFineDateStop>().Tip("+/- 6 months of Combo Value if Allowed").Balloon({2, 3}, kFineStopHelp),
    Row(Option, "optCourseDateStop{Fut}",           "frmSetStop{Fut}",  { 3480,  375,  2250,  420}, "Course: 6-12 Months")
        .Is<&C::optCourseDateStop>().On().Balloon(2, kCourseStopHelp),

    Row(Frame,  "frmDaily{Fut}",                    kPanel,             {  120, 4125,  5790, 1185}, {"{Future} Period 1{sin}", &SinRow::designDailySuffix})
        .At(Flat,                                                       {  120, 4125,  5790, 1785})
        .Is<&C::frmDaily>().Balloon(20, kDailyHelp),
    Row(Option, "OptPacksPerDay{Fut}",              "frmDaily{Fut}",    {  120,  330,  2055,  375}, "Packs (20 Cigs.)")
        .OnlyIn(Packs).Is<&C::firstUnit>().On(),
    Row(Option, "OptCigsPerDay{Fut}",               "frmDaily{Fut}",    {  120,  720,  2055,  375}, "Cigarettes")
        .OnlyIn(Packs).Is<&C::secondUnit>(),
    Row(Option, "optPerDay{Fut}",                   "frmDaily{Fut}",    {  120,  330,  2055,  375}, "Per Day")
        .At(Flat,                                                       {  120,  435,  2055,  420})
        .OnlyIn(NotPacks).Is<&C::firstUnit>().On(StartingPerDay),
    Row(Option, "optPerMonth{Fut}",                 "frmDaily{Fut}",    {  120,  720,  2055,  375}, "Per Month")
        .At(Flat,                                                       {  120, 1020,  2055,  420})
        .OnlyIn(NotPacks).Is<&C::secondUnit>().On(StartingPerMonth),
    Row(List,   "comPacksPerDay{Fut}",              "frmDaily{Fut}",    { 2265,  525,  1500,  420})
        .OnlyIn(Packs).Is<&C::quantity>().NamedBy(kQuantityLabel),
    Row(List,   "comCostof{Fut}",                   "frmDaily{Fut}",    { 2265,  735,  1500,  420})
        .OnlyIn(Flat).Is<&C::quantity>().NamedBy(kCostLabel),
    Row(List,   "comPerPeriod{Fut}",                "frmDaily{Fut}",    { 2265,  525,  1500,  420})
        .OnlyIn(Units).Is<&C::quantity>().NamedBy(kQuantityLabel),
    Row(List,   "comCigsPerDay{Fut}",               "frmDaily{Fut}",    { 2265,  525,  1500,  420})
        .OnlyIn(HasCigaretteList).Is<&C::comCigsPerDay>().NamedBy(kQuantityLabel),
    Row(Label,  kQuantityLabel,                     "frmDaily{Fut}",    { 3870,  390,  1845,  690}, &SinRow::quantityLabelDesign)
        .OnlyIn(NotFlat).Is<&C::quantityLabel>(),
    Row(Label,  kCostLabel,                         "frmDaily{Fut}",    { 3870,  570,  1845,  750}, &SinRow::costLabelDesign)
        .OnlyIn(Flat).Is<&C::quantityLabel>(),

    // Three pairs and no options over them in the net-units class, one pair in the flat-rate class.
    Row(Frame,  "frmCostChange{Fut}",               kPanel,             {  120, 5400,  5790, 2520}, {"{Future} Period 1{sin}", &SinRow::designCostChangeSuffix})
        .At(Flat,                                                       {  120, 6000,  5790, 1920})
        .Is<&C::frmCostChange>().Balloon(21, kCostChangeHelp),
    Row(Option, "OptCigPercentCostIncrease{Fut}",   "frmCostChange{Fut}", { 120,  330,  5610,  420}, &SinRow::percentOptionCaption)
        .OnlyIn(CostModes).Is<&C::OptCigPercentCostIncrease>().On(),
    Row(Option, "OptCigInitialFinalCostIncrease{Fut}", "frmCostChange{Fut}", { 120, 780, 5610, 420}, &SinRow::initialFinalOptionCaption)
        .OnlyIn(CostModes).Is<&C::OptCigInitialFinalCostIncrease>(),
    Row(Label,  kCostLabel,                         "frmCostChange{Fut}", { 180, 1290,  3720,  480}, &SinRow::costLabelDesign)
        .At(Net,                                                        {  180,  450,  3720,  480})
        .OnlyIn(NotFlat).Is<&C::costLabel>(),
    Row(List,   "comInitialCost{Fut}",              "frmCostChange{Fut}", { 4005, 1320, 1650,  420})
        .At(Net,                                                        { 4005,  480,  1650,  420})
        .OnlyIn(NotFlat).Is<&C::comInitialCost>().NamedBy(kCostLabel),
    Row(Label,  "lblSubCost{Fut}",                  "frmCostChange{Fut}", { 180, 1125,  3720,  480}, &SinRow::subCostLabel)
        .OnlyIn(Net),
    Row(List,   "comSubCost{Fut}",                  "frmCostChange{Fut}", { 4005, 1155, 1650,  420})
        .OnlyIn(Net).Is<&C::comSubCost>().NamedBy("lblSubCost{Fut}"),
    Row(Label,  kPercentLabel,                      "frmCostChange{Fut}", { 180, 1890,  3720,  480}, &SinRow::percentLabelDesign)
        .At(Net,                                                        {  180, 1800,  3720,  480})
        .At(Flat,                                                       {  180,  765,  3720,  480})
        .Is<&C::percentLabel>(),
    Row(List,   "comFinalCost{Fut}",                "frmCostChange{Fut}", { 4005, 1920, 1650,  420})
        .OnlyIn(CostModes).Is<&C::comFinalCost>().NamedBy(kPercentLabel),
    Row(List,   "comPercentIncrease{Fut}",          "frmCostChange{Fut}", { 4005, 1920, 1650,  420})
        .At(Net,                                                        { 4005, 1830,  1650,  420})
        .At(Flat,                                                       { 4005,  795,  1650,  420})
        .Is<&C::comPercentIncrease>().NamedBy(kPercentLabel),

    // ---- right column: what money does, and what comes of it ----
    Row(Frame,  "frmRates{Fut}",                    kPanel,             { 6030,   60,  5520, 1335}, "{Future} Period 1: Savings and Inflation Rates")
        .Is<&C::frmRates>().Balloon(22, kRatesHelp),
    Row(Label,  "lblInterestRate{Fut}",             "frmRates{Fut}",    {  180,  330,  3690,  450}, "Yearly Interest Rate, Gain, or Yield on Banked Money (%)"),
    Row(List,   "comInterestRate1{Fut}",            "frmRates{Fut}",    { 3975,  345,  1425,  420})
        .Is<&C::comInterestRate1>().NamedBy("lblInterestRate{Fut}").Balloon(4, kInterestHelp),
    Row(Label,  "lblInflationRate{Fut}",            "frmRates{Fut}",    {  180,  825,  3690,  450}, "Yearly Inflation Rate (%)"),
    Row(List,   "comInflationRate1{Fut}",           "frmRates{Fut}",    { 3975,  840,  1425,  420})
        .Is<&C::comInflationRate1>().NamedBy("lblInflationRate{Fut}").Balloon(5, kInflationHelp),

    // On the tab itself, in front of its panel.
    Row(Button, "cmdSetPeriodParams{Fut}",          kTabs,              { 6180, 2385,  5520,  555}, "Set {Future} Period 1 Parameters")
        .Is<&C::cmdSetPeriodParams>().Balloon(6, kSetPeriodHelp),

    Row(Frame,  kEnableFrame,                       kPanel,             { 6030, 2130,  5520, 1980}, &SinRow::enableFrameCaption),
    Row(Frame,  "frmEnabledDisabledPeriod{Fut}",    kEnableFrame,       {  105,  345,  2610,  750}, "{Future} Period {n}")
        .Array(1, 4, 2700, 795, 2).Is<&C::frmEnabledDisabledPeriod>(),
    Row(Radio,  "rbnEnabledPeriod{Fut}",            "frmEnabledDisabledPeriod{Fut}({i})", { 60, 345, 1230, 360}, "Enabled")
        .Array(1, 4, 0, 0).Is<&C::rbnEnabledPeriod>().On()
        .NamedBy("frmEnabledDisabledPeriod{Fut}({i})", "rbnEnabledPeriod{Fut}({i})").Balloon({8, 9}, kEnableHelp),
    Row(Radio,  "rbnDisabledPeriod{Fut}",           "frmEnabledDisabledPeriod{Fut}({i})", { 1305, 345, 1245, 360}, "Disabled")
        .Array(1, 4, 0, 0).Is<&C::rbnDisabledPeriod>()
        .NamedBy("frmEnabledDisabledPeriod{Fut}({i})", "rbnDisabledPeriod{Fut}({i})").Balloon(8, kDisableHelp),

    Row(Frame,  "frmResults{Fut}",                  kPanel,             { 6030, 4200,  5520, 3720}, "{Future} {title} Results"),
    Row(Label,  kOutOfPocket,                       "frmResults{Fut}",  { 2595,  315,  1365,  435}, "Out of Pocket Expense")
        .Aligned(kRight).Tip("Direct Out of Pocket Expense for Cigarrettes for Each Period"),
    Row(Label,  kCumulative,                        "frmResults{Fut}",  { 4275,  315,  1125,  435}, "Cumulative Cost")
        .Aligned(kRight).Tip("Cumulative Out of Pocket Expense + Accrued Interest if Money Saved"),
    Row(Label,  "lblResultsPeriod{Fut}",            "frmResults{Fut}",  {  135,  780,  2430,  435}, "Period {n}: {Future} {title}")
        .Array(1, 4, 0, 450).Fades(12),
    Row(Text,   "txtResultsPeriod{Fut}",            "frmResults{Fut}",  { 2595,  795,  1365,  405})
        .Array(1, 4, 0, 450).Is<&C::txtResultsPeriod>().NamedBy("lblResultsPeriod{Fut}({i})", kOutOfPocket)
        .Balloon(10, kOutOfPocketHelp).Balloon(12, kOutOfPocketAgainHelp).Fades(14),
    Row(Text,   "txtCumulativeResultsPeriod{Fut}",  "frmResults{Fut}",  { 4035,  795,  1365,  405})
        .Array(1, 4, 0, 450).Is<&C::txtCumulativeResultsPeriod>().NamedBy("lblResultsPeriod{Fut}({i})", kCumulative)
        .Balloon(11, kCumulativeHelp).Fades(21),
    Row(Label,  kTotalLabel,                        "frmResults{Fut}",  {  135, 2580,  2430,  435}, "Total: {Future} {title}")
        .Tip("Simple Addition of Periods (No Interest Between Periods)"),
    Row(Text,   "txtResultsTotal{Fut}",             "frmResults{Fut}",  { 2595, 2595,  1365,  405})
        .Is<&C::txtResultsTotal>().NamedBy(kTotalLabel, kOutOfPocket).Balloon(13, kTotalHelp),
    Row(Button, "cmdAdvResultsSpd{Fut}",            "frmResults{Fut}",  {  120, 3090,  2595,  555}, "Advanced Results (Spreadsheet Style)")
        .Is<&C::cmdAdvResultsSpd>().Disabled()
        .Tip("Month by Month Results in an Excel Type Spreadsheet").Balloon({17, 18}, kSpreadsheetHelp),
    Row(Button, "cmdAdvResultsDoc{Fut}",            "frmResults{Fut}",  { 2805, 3090,  2595,  555}, "Advanced Results (Document Style)")
        .Is<&C::cmdAdvResultsDoc>().Disabled().Balloon({15, 16}, kDocumentHelp),

    Row(Button, "cmdHideAdvertising{Fut}",          kTabs,              { 4950,  135,  3330,  600}, "{web} Click to Hide This AD")
        .OnlyIn(StartsTheProgram),
    Row(Button, "cmdOrvaneWebsite",                 kTabs,              { 8400,  135,  3300,  600}, "Go To {web} Website")
        .OnlyIn(StartsTheProgram).OnlyOn(Side::Past),
};

// Elements 5 to 8 of the result arrays are the summary's.
constexpr Row kSummaryRows[] = {
    Row(Frame,  kSummary,                           kPanel,             {  120,   60, 11430, 2670}, "Summary: {Future} {title}")
        .OnlyOn(Side::Past).Fades(11),
    Row(Frame,  kSummary,                           kPanel,             {  120, 2820, 11430, 2670}, "Summary: {Future} {title}")
        .OnlyOn(Side::Future).Fades(11),
    Row(Label,  kSummaryOutOfPocket,                kSummary,           { 2310,  255,  2175,  315}, "Out of Pocket Expense").Aligned(kRight).Fades(16),
    Row(Label,  kSummaryCumulative,                 kSummary,           { 4605,  255,  1725,  315}, "Cumulative Cost").Aligned(kRight).Fades(17),
    Row(Label,  "lblResultsPeriod{Fut}",            kSummary,           {  180,  570,  2565,  375}, "Period {n}: {Future} {title}")
        .Array(5, 4, 0, 405),
    Row(Text,   "txtResultsPeriod{Fut}",            kSummary,           { 2760,  570,  1725,  375})
        .Array(5, 4, 0, 405).Is<&C::txtResultsPeriod>().Disabled().Hidden()
        .NamedBy("lblResultsPeriod{Fut}({i})", kSummaryOutOfPocket),
    Row(Text,   "txtCumulativeResultsPeriod{Fut}",  kSummary,           { 4605,  570,  1725,  375})
        .Array(5, 4, 0, 405).Is<&C::txtCumulativeResultsPeriod>().Disabled().Hidden()
        .NamedBy("lblResultsPeriod{Fut}({i})", kSummaryCumulative),
    Row(Label,  "lblFirstDate{Fut}",                kSummary,           { 6540,  570,  1050,  375}, {"Jan - 2000", "Jan - 2010"})
        .Array(1, 4, 0, 405).Is<&C::lblFirstDate>().Fades(22),
    Row(Label,  "lblTo",                            kSummary,           { 7605,  570,   420,  375}, "To")
        .Array({1, 5}, 4, 0, 405).Is<&W::lblTo>().Aligned(kCentre).Fades(23),
    Row(Label,  "lblLastDate{Fut}",                 kSummary,           { 8040,  570,  1050,  375}, {"Jan - 2007", "Jan - 2020"})
        .Array(1, 4, 0, 405).Is<&C::lblLastDate>().Fades(24),
    Row(Label,  "lblResultsTotalSummary{Fut}",      kSummary,           {  180, 2205,  2565,  375}, "Total: {Future} {title}").Fades(13),
    Row(Text,   "txtResultsTotalSummary{Fut}",      kSummary,           { 2760, 2205,  1725,  375})
        .Is<&C::txtResultsTotalSummary>().NamedBy("lblResultsTotalSummary{Fut}", kSummaryOutOfPocket)
        .Balloon(14, kTotalHelp).Fades(15),
    Row(Label,  "lblSummaryButtons{Fut}",           kSummary,           { 9285,  255,  2010,  795}, {"Detailed Results on {Future} {sin}", &SinRow::summaryWord}).Fades(18),
    Row(Button, "cmdAdvResultsDocSummary{Fut}",     kSummary,           { 9285, 1140,  2010,  675}, "Advanced Results (Document Style)")
        .Is<&C::cmdAdvResultsDocSummary>().Disabled().Balloon({15, 16}, kDocumentHelp).Fades(19),
    Row(Button, "cmdAdvResultsSpdSummary{Fut}",     kSummary,           { 9285, 1890,  2010,  675}, "Advanced Results (Spreadsheet Style)")
        .Is<&C::cmdAdvResultsSpdSummary>().Disabled().Balloon({17, 18}, kSpreadsheetHelp).Fades(20),
};

constexpr Row kTotalRows[] = {
    Row(Frame,  "frmSummarytot",                    kPanel,             {  120, 5580,  5670, 2370}, &SinRow::totalFrame).Fades(302, 320),
    Row(Label,  "lblResultsTotalSummaryTot",        "frmSummarytot",    {  180,  330,  3180,  405}, "TOTAL {title} (Out of Pocket)").Fades(303),
    Row(Text,   "txtResultsTotalSummaryTot",        "frmSummarytot",    { 3375,  330,  2175,  405})
        .Is<&W::txtResultsTotalSummaryTot>().NamedBy("lblResultsTotalSummaryTot").Balloon(24, kTotOutOfPocketHelp).Fades(305),
    Row(Label,  "lblCumulativeResultsTotalSummaryTot", "frmSummarytot", {  180,  780,  3180,  405}, "TOTAL {title} (Cumulative)").Fades(304),
    Row(Text,   "txtCumulativeResultsTotalSummaryTot", "frmSummarytot", { 3375,  780,  2175,  405})
        .Is<&W::txtCumulativeResultsTotalSummaryTot>().NamedBy("lblCumulativeResultsTotalSummaryTot").Balloon(24, kTotCumulativeHelp).Fades(306),
    Row(Label,  "lblSummaryButtonsTot",             "frmSummarytot",    {  180, 1230,  5370,  330}, {"Detailed Results on (Past + Future) {sin}", &SinRow::summaryTotWord}).Fades(307),
    Row(Button, "cmdAdvResultsDocSummaryTot",       "frmSummarytot",    {  120, 1605,  2670,  645}, "Advanced Results (Document Style)")
        .Is<&W::cmdAdvResultsDocSummaryTot>().Disabled().Balloon(19, kTotDocumentHelp).Fades(308),
    Row(Button, "cmdAdvResultsSpdSummaryTot",       "frmSummarytot",    { 2880, 1605,  2670,  645}, "Advanced Results (Spreadsheet Style)")
        .Is<&W::cmdAdvResultsSpdSummaryTot>().Disabled().Balloon(19, kTotSpreadsheetHelp).Fades(309),

    Row(Frame,  kFutureDate,                        kPanel,             { 5910, 5580,  5640, 2370}, "TOTAL {title} at Future Date").Fades(301, 319),
    Row(Label,  "lblCumulativeFutureDateTot",       kFutureDate,        {  180,  330,  3105,  405}, "Future Date").Fades(314),
    Row(List,   "comCumulativeFutureDateTot",       kFutureDate,        { 3375,  330,  2145,  405})
        .Is<&W::comCumulativeFutureDateTot>().NamedBy("lblCumulativeFutureDateTot").Fades(315),
    Row(Label,  "lblInterestRateFutureDateTot",     kFutureDate,        {  180,  780,  3105,  405}, "Future Savings Rate").Fades(310),
    Row(List,   "comInterestRateFutureDateTot",     kFutureDate,        { 3375,  780,  2145,  405})
        .Is<&W::comInterestRateFutureDateTot>().Shows("5%").NamedBy("lblInterestRateFutureDateTot").Fades(312),
    Row(Label,  "lblInflationRateFutureDateTot",    kFutureDate,        {  180, 1230,  3105,  405}, "Future Inflation Rate").Fades(311),
    Row(List,   "comInflationRateFutureDateTot",    kFutureDate,        { 3375, 1230,  2145,  405})
        .Is<&W::comInflationRateFutureDateTot>().Shows("3%").NamedBy("lblInflationRateFutureDateTot").Fades(313),
    Row(Button, "cmdCumulativeFutureDateTot",       kFutureDate,        {  120, 1710,  3075,  540}, "Update")
        .Is<&W::cmdCumulativeFutureDateTot>().Fades(317),
    Row(Text,   "txtCumulativeFutureDateTot",       kFutureDate,        { 3375, 1770,  2145,  405})
        .Is<&W::txtCumulativeFutureDateTot>().NamedBy(kFutureDate).Fades(316),

    Row(Button, "cmdRevealDeveloper",               kPanel,             {    0,    0,     0,    0}, "").OnlyIn(HasRevealSquare).Hidden(),
};

constexpr Row kBottomRows[] = {
    Row(Button, "cmdEuro",                          kWindow,            {    0,    0,     0,    0}, "Replace $ With Euro Symbol Throughout Program")
        .OnlyIn(StartsTheProgram).Is<&W::cmdEuro>().Balloon(25, kEuroHelp),
    Row(Button, "cmdSwitchSins",                    kWindow,            {    0,    0,  2500,  800}, "Switch Sins")
        .Is<&W::cmdSwitchSins>().Balloon(23, kSwitchSinsHelp),
    Row(Button, "cmdCombinedResults",               kWindow,            {    0,    0,  2500,  800}, "Combined Sins Results").Balloon(23, kCombinedHelp),
    Row(Frame,  "frmToolTipOnOff",                  kWindow,            {    0,    0,  2800,  900}, "Balloon Help: Enable or Disable"),
    Row(Option, "optToolTipEnable",                 "frmToolTipOnOff",  {  135,  495,  1230,  345}, "Enable").On()
        .NamedBy("frmToolTipOnOff", "optToolTipEnable"),
    Row(Option, "optToolTipDisable",                "frmToolTipOnOff",  { 1425,  495,  1290,  345}, "Disable")
        .NamedBy("frmToolTipOnOff", "optToolTipDisable"),
    Row(Button, "cmdRestoreProgram",                kWindow,            {    0,    0,     0,    0}, "Restore Program").OnlyIn(HasRevealSquare),
    Row(Button, "cmdExit",                          kWindow,            {    0,    0,  2200,  875}, "Exit Program").Is<&W::cmdExit>(),
    Row(Button, "cmdHelp",                          kWindow,            {    0,    0,  1650,  437}, "Help"),
    Row(Button, "cmdFaq",                           kWindow,            {    0,    0,  1650,  437}, "FAQ and Info"),
};
// clang-format on

constexpr DesignSection kDesign[] = {
    {kTabRows},
    {kSideRows, Side::Past, kPastTab},
    {kSideRows, Side::Future, kFutureTab},
    {kSummaryRows, Side::Past, kTotalTab},
    {kSummaryRows, Side::Future, kTotalTab},
    {kTotalRows, {}, kTotalTab},
    {kBottomRows},
};

}  // namespace

std::span<const DesignSection> Sections() { return kDesign; }

}  // namespace vicetoll::design

namespace vicetoll {

std::span<const DesignSection> WorkspaceDesign() { return design::Sections(); }

}  // namespace vicetoll
