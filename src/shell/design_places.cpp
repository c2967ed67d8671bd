#include "shell/design_places.h"

namespace vicetoll {
namespace {

constexpr DesignPlace One(std::string_view name, int left, int top, int width, int height) {
  return {name, kNoIndex, kNoIndex, {left, top, width, height}};
}

constexpr DesignPlace Down(std::string_view name, int first, int last, int left, int top, int width,
                           int height, int step) {
  return {name, first, last, {left, top, width, height}, 0, step};
}

// The table is drawn on a grid of 15 twips, a pixel. Frames stand in two columns, at 120 and 6030; in a
// frame the caption has the topmost 300.
// clang-format off
constexpr DesignPlace kSidePlaces[] = {
    // ---- left column: what the period is ----
    //                                    left    top  width height
    One("<time period frame>",             120,    60,  5790, 1995),
    Down("optTimePeriod", 1, 4,            120,   315,  5610,  390, 405),

    One("frmSetStart",                     120,  2145,  5790,  900),
    One("comStart",                        120,   375,  1650,  420),
    One("optFineDateStart",               1845,   375,  1590,  420),
    One("optCourseDateStart",             3480,   375,  2250,  420),

    One("frmSetStop",                      120,  3135,  5790,  900),
    One("comStop",                         120,   375,  1650,  420),
    One("optFineDateStop",                1845,   375,  1590,  420),
    One("optCourseDateStop",              3480,   375,  2250,  420),

    One("frmDaily",                        120,  4125,  5790, 1185),
    One("<first unit>",                    120,   330,  2055,  375),
    One("<second unit>",                   120,   720,  2055,  375),
    One("<quantity>",                     2265,   525,  1500,  420),
    One("comCigsPerDay",                  2265,   525,  1500,  420),
    One("<quantity label>",               3870,   390,  1845,  690),

    One("frmCostChange",                   120,  5400,  5790, 2520),
    One("OptCigPercentCostIncrease",       120,   330,  5610,  420),
    One("OptCigInitialFinalCostIncrease",  120,   780,  5610,  420),
    One("<cost label>",                    180,  1290,  3720,  480),
    One("comInitialCost",                 4005,  1320,  1650,  420),
    One("<percent label>",                 180,  1890,  3720,  480),
    One("comFinalCost",                   4005,  1920,  1650,  420),
    One("comPercentIncrease",             4005,  1920,  1650,  420),

    // ---- right column: what money does, and what comes of it ----
    One("frmRates",                       6030,    60,  5520, 1335),
    One("lblInterestRate",                 180,   330,  3690,  450),
    One("comInterestRate1",               3975,   345,  1425,  420),
    One("lblInflationRate",                180,   825,  3690,  450),
    One("comInflationRate1",              3975,   840,  1425,  420),

    // On the tab itself, in front of its panel.
    One("cmdSetPeriodParams",             6180,  2385,  5520,  555),
    One("cmdHideAdvertising",             4950,   135,  3330,  600),
    One("cmdOrvaneWebsite",               8400,   135,  3300,  600),

    One("<enable frame>",                 6030,  2130,  5520, 1980),
    {"frmEnabledDisabledPeriod", 1, 2,   {105,   345,  2610,  750}, 2700, 0},
    {"frmEnabledDisabledPeriod", 3, 4,   {105,  1140,  2610,  750}, 2700, 0},
    Down("rbnEnabledPeriod", 1, 4,          60,   345,  1230,  360, 0),
    Down("rbnDisabledPeriod", 1, 4,       1305,   345,  1245,  360, 0),

    One("frmResults",                     6030,  4200,  5520, 3720),
    One("<out of pocket label>",          2595,   315,  1365,  435),
    One("<cumulative label>",             4035,   315,  1365,  435),
    Down("lblResultsPeriod", 1, 4,         135,   780,  2430,  435, 450),
    Down("txtResultsPeriod", 1, 4,        2595,   795,  1365,  405, 450),
    Down("txtCumulativeResultsPeriod", 1, 4, 4035, 795, 1365,  405, 450),
    One("<total label>",                   135,  2580,  2430,  435),
    One("txtResultsTotal",                2595,  2595,  1365,  405),
    One("cmdAdvResultsSpd",                120,  3090,  2595,  555),
    One("cmdAdvResultsDoc",               2805,  3090,  2595,  555),
};

// Coffeeing and Watering have three pairs in their frame and no options over them; the flat-rate sins have
// one pair. These rows stand in the place of those above.
constexpr DesignPlace kNetUnitsPlaces[] = {
    One("<cost label>",                    180,   450,  3720,  480),
    One("comInitialCost",                 4005,   480,  1650,  420),
    One("lblSubCost",                      180,  1125,  3720,  480),
    One("comSubCost",                     4005,  1155,  1650,  420),
    One("<percent label>",                 180,  1800,  3720,  480),
    One("comPercentIncrease",             4005,  1830,  1650,  420),
};
constexpr DesignPlace kFlatRatePlaces[] = {
    One("frmDaily",                        120,  4125,  5790, 1785),
    One("<first unit>",                    120,   435,  2055,  420),
    One("<second unit>",                   120,  1020,  2055,  420),
    One("<quantity>",                     2265,   735,  1500,  420),
    One("<quantity label>",               3870,   570,  1845,  750),
    One("frmCostChange",                   120,  6000,  5790, 1920),
    One("<percent label>",                 180,   765,  3720,  480),
    One("comPercentIncrease",             4005,   795,  1650,  420),
};

// Positions 5 to 8 of the result arrays are the summary's.
constexpr DesignPlace kSummaryPlaces[] = {
    One("<summary out of pocket label>",  2310,   255,  2175,  315),
    One("<summary cumulative label>",     4605,   255,  1725,  315),
    Down("lblResultsPeriod", 5, 8,         180,   570,  2520,  375, 405),
    Down("txtResultsPeriod", 5, 8,        2760,   570,  1725,  375, 405),
    Down("txtCumulativeResultsPeriod", 5, 8, 4605, 570, 1725,  375, 405),
    Down("lblFirstDate", 1, 4,            6540,   570,  1050,  375, 405),
    Down("lblTo", 1, 4,                   7605,   570,   420,  375, 405),
    Down("lblLastDate", 1, 4,             8040,   570,  1050,  375, 405),
    One("lblResultsTotalSummary",          180,  2205,  2520,  375),
    One("txtResultsTotalSummary",         2760,  2205,  1725,  375),
    One("lblSummaryButtons",              9285,   390,  2010,  705),
    One("cmdAdvResultsDocSummary",        9285,  1140,  2010,  675),
    One("cmdAdvResultsSpdSummary",        9285,  1890,  2010,  675),
};

constexpr DesignPlace kSinglePlaces[] = {
    // ---- TOTAL ----
    One("frmSummaryPast",                  120,    60, 11430, 2670),
    One("frmSummaryfut",                   120,  2820, 11430, 2670),

    One("frmSummarytot",                   120,  5580,  5670, 2370),
    One("lblResultsTotalSummaryTot",       180,   330,  3105,  405),
    One("txtResultsTotalSummaryTot",      3375,   330,  2175,  405),
    One("lblCumulativeResultsTotalSummaryTot", 180, 780, 3105, 405),
    One("txtCumulativeResultsTotalSummaryTot", 3375, 780, 2175, 405),
    One("lblSummaryButtonsTot",            180,  1230,  5370,  330),
    One("cmdAdvResultsDocSummaryTot",      120,  1605,  2670,  645),
    One("cmdAdvResultsSpdSummaryTot",     2880,  1605,  2670,  645),

    One("frmCumulativeResultsTotalFutureDateTot", 5910, 5580, 5640, 2370),
    One("lblCumulativeFutureDateTot",      180,   330,  3105,  405),
    One("comCumulativeFutureDateTot",     3375,   330,  2145,  405),
    One("lblInterestRateFutureDateTot",    180,   780,  3105,  405),
    One("comInterestRateFutureDateTot",   3375,   780,  2145,  405),
    One("lblInflationRateFutureDateTot",   180,  1230,  3105,  405),
    One("comInflationRateFutureDateTot",  3375,  1230,  2145,  405),
    One("cmdCumulativeFutureDateTot",      120,  1710,  3075,  540),
    One("txtCumulativeFutureDateTot",     3375,  1770,  2145,  405),

    // ---- around the tabs: the rest of the bottom row is placed by rule ----
    One("frmToolTipOnOff",                   0,     0,  2800,  900),
    One("optToolTipEnable",                135,   495,  1230,  345),
    One("optToolTipDisable",              1425,   495,  1290,  345),
};

constexpr NamedBy kSideNames[] = {
    {"<quantity>",                 "<quantity label>"},
    {"comCigsPerDay",              "<quantity label>"},
    {"comInitialCost",             "<cost label>"},
    {"comSubCost",                 "lblSubCost"},
    {"comFinalCost",               "<percent label>"},
    {"comPercentIncrease",         "<percent label>"},
    {"comInterestRate1",           "lblInterestRate"},
    {"comInflationRate1",          "lblInflationRate"},
    {"txtResultsTotal",            "<total label>",            "<out of pocket label>"},
    {"txtResultsTotalSummary",     "lblResultsTotalSummary",   "<summary out of pocket label>"},
    {"txtResultsPeriod",           "lblResultsPeriod",         "<out of pocket label>"},
    {"txtCumulativeResultsPeriod", "lblResultsPeriod",         "<cumulative label>"},
    {"rbnEnabledPeriod",           "frmEnabledDisabledPeriod", "rbnEnabledPeriod"},
    {"rbnDisabledPeriod",          "frmEnabledDisabledPeriod", "rbnDisabledPeriod"},
};

constexpr NamedBy kSingleNames[] = {
    {"txtResultsTotalSummaryTot",           "lblResultsTotalSummaryTot"},
    {"txtCumulativeResultsTotalSummaryTot", "lblCumulativeResultsTotalSummaryTot"},
    {"comCumulativeFutureDateTot",          "lblCumulativeFutureDateTot"},
    {"comInterestRateFutureDateTot",        "lblInterestRateFutureDateTot"},
    {"comInflationRateFutureDateTot",       "lblInflationRateFutureDateTot"},
    {"txtCumulativeFutureDateTot",          "frmCumulativeResultsTotalFutureDateTot"},
    {"optToolTipEnable",                    "frmToolTipOnOff",          "optToolTipEnable"},
    {"optToolTipDisable",                   "frmToolTipOnOff",          "optToolTipDisable"},
};
// clang-format on

}  // namespace

std::span<const DesignPlace> SidePlaces() { return kSidePlaces; }

std::span<const DesignPlace> CostPlacesOf(CostClass costClass) {
  if (costClass == CostClass::NetUnitsClass) return kNetUnitsPlaces;
  if (costClass == CostClass::FlatRateClass) return kFlatRatePlaces;
  return {};
}

std::span<const DesignPlace> SummaryPlaces() { return kSummaryPlaces; }
std::span<const DesignPlace> SinglePlaces() { return kSinglePlaces; }
std::span<const NamedBy> SideNames() { return kSideNames; }
std::span<const NamedBy> SingleNames() { return kSingleNames; }

}  // namespace vicetoll
