#include "shell/balloon_texts.h"

namespace vicetoll {
namespace {

// Texts that stand on several controls.
constexpr std::string_view kCourseStop =
    "Set the Date Resolution for the Date Stop Combo \r\n"
    "Box to the Left.  Course is for a 6 or 12 month Date \r\n"
    "Increments.";
constexpr std::string_view kInterestRate =
    "Set the Average Rate of Return you feel you can \r\n"
    "obtain on money saved in financial institutions \r\n"
    "during the Period (Bank, Brokerage House, Credit \r\n"
    "Union, Under your Pillow, etc.).";
constexpr std::string_view kInflationRate =
    "Set the Inflation Rate during the Period. This \r\n"
    "allows you to gauge future currency value from \r\n"
    "present currency value in results";
constexpr std::string_view kSetPeriod =
    "Click this Button to generate results for the \r\n"
    "period based on all of the Parameters set above \r\n"
    "(Date Period, Sin Parameters, Interest and Inflation \r\n"
    "Rate).";
constexpr std::string_view kDisablePeriod =
    "If Enabled, Click this Button to Disable the Period \r\n"
    "and remove results for the period to be excluded \r\n"
    "in the Total Out of Pocket and Cumulative Results.";
constexpr std::string_view kOutOfPocket =
    "This result corresponds to the actual money you \r\n"
    "spent (out of your pocket!!) during the period.";
constexpr std::string_view kCumulative =
    "This result corresponds to the cumulative amount \r\n"
    "of money you could have saved up through the given \r\n"
    "period including interest and inflation.  Note \r\n"
    "that interest and inflation in time gaps between \r\n"
    "periods are taken into account!!";
constexpr std::string_view kOutOfPocketAgain =
    "This result corresponds to the actual money \r\n"
    "you spent (out of your pocket!!) during \r\n"
    "the period.";
constexpr std::string_view kTotal =
    "This result is the total Out of Pocket Expense \r\n"
    "from all the set and enabled periods above.";
constexpr std::string_view kPastDocument =
    "Click this Button to open a Window depicting \r\n"
    "the Past month to month results from all set \r\n"
    "and enabled periods in a Microsoft Word Like \r\n"
    "Document Format.";
constexpr std::string_view kFutureDocument =
    "Click this Button to open a Window depicting \r\n"
    "the Future month to month results from all set \r\n"
    "and enabled periods in a Microsoft Word Like \r\n"
    "Document Format.";
constexpr std::string_view kPastSpreadsheet =
    "Click this Button to open a Window depicting \r\n"
    "the Past month to month results from all set \r\n"
    "and enabled periods in a SpreadSheet Like \r\n"
    "Format.";
constexpr std::string_view kFutureSpreadsheet =
    "Click this Button to open a Window depicting \r\n"
    "the Future month to month results from all set \r\n"
    "and enabled periods in a SpreadSheet Like \r\n"
    "Format.";
constexpr std::string_view kDaily =
    "Set Parameters related to the frequency of use \r\n"
    "or cost per time the one inbibes in this particular Sin.";
constexpr std::string_view kCostChange =
    "Set Parameters related to the cost of individual\r\n"
    "items related to this particular sin and the rise \r\n"
    "in cost over time of those items.";
constexpr std::string_view kRates =
    "Set Parameters related to the rate one can achieve \r\n"
    "on saved money (interest, stock or mutual fund \r\n"
    "gain, etc..) and inflation rate during the time period";

// The misspellings and the missing blanks after a full stop are as users know them.
// clang-format off
constexpr BalloonRow kBalloonRows[] = {
    {"frmSetStartPast",
     "Set the Start Date for this Period. The Date must \r\n"
     "be set at least a month past the Stop Date of the \r\n"
     "previous Period. Manually changing the value may \r\n"
     "result in Error and Crash!!"},
    {"frmSetStopPast",
     "Set the Stop Date for this Period. Date cannot \r\n"
     "be set past the present month - year.  If set to the \r\n"
     "present month - year then you cannot set any other \r\n"
     "periods.Manually changing the value may result \r\n"
     "in Error and Crash!!"},
    {"frmSetStartFut",
     "Set the Start Date for this Period. Date cannot \r\n"
     "be set prior to the next month past the present month \r\n"
     "- year. The Date must be set a month past the Stop \r\n"
     "Date of the previous Period.Manually changing the \r\n"
     "value may result in Error and Crash!!"},
    {"frmSetStopFut",
     "Set the Start Date for this Period. Manually \r\n"
     "changing the value may result in Error and Crash!!"},
    {"optFineDateStartPast",
     "Set the Date Resolution for the Date Start Combo Box \r\n"
     "to the Left.  Fine is for a 1 month Date Increments."},
    {"optCourseDateStartPast",
     "Set the Date Resolution for the Date Start Combo Box \r\n"
     "to the Left.  Course is for a 6 or 12 month Date \r\n"
     "Increments."},
    {"optFineDateStopPast",
     "Set the Date Resolution for the Date Stop Combo Box \r\n"
     "to the Left.  Fine is for a 1 month Date Increments."},
    {"optCourseDateStopPast", kCourseStop},
    {"optCourseDateStopFut", kCourseStop},
    {"optFineDateStartFut",
     "Set the Date Resolution for the Date Start Combo \r\n"
     "Box to the Left.  Fine is for a 1 month Date Increments."},
    {"optCourseDateStartFut",
     "Set the Date Resolution for the Date Start Combo \r\n"
     "Box to the Left.  Course is for a 6 or 12 month Date \r\n"
     "Increments."},
    {"optFineDateStopFut",
     "Set the Date Resolution for the Date Stop Combo \r\n"
     "Box to the Left.  Fine is for a 1 month Date Increments."},
    {"comInterestRate1Past", kInterestRate},
    {"comInterestRate1Fut", kInterestRate},
    {"comInflationRate1Past", kInflationRate},
    {"comInflationRate1Fut", kInflationRate},
    {"cmdSetPeriodParamsPast", kSetPeriod},
    {"cmdSetPeriodParamsFut", kSetPeriod},
    {"optTimePeriodPast",
     "Click this Option to allow Setting to the Date \r\n"
     "Period to the Right.  If this option is not available, \r\n"
     "Stop Date is likely at the present date and no \r\n"
     "more Periods can be set. Going back to an earlier \r\n"
     "time period and setting new parameters will delete \r\n"
     "later time periods"},
    {"optTimePeriodFut",
     "Click this Option to allow Setting to the Date \r\n"
     "Period to the Right.  Going back to an earlier \r\n"
     "time period and setting new parameters will delete \r\n"
     "later time periods"},
    {"rbnEnabledPeriodPast",
     "If Disabled, Click this Button to Enable the Period \r\n"
     "and add results for the period to be included in \r\n"
     "the Total Out of Pocket and Cumulative Results."},
    {"rbnDisabledPeriodPast", kDisablePeriod},
    {"rbnDisabledPeriodFut", kDisablePeriod},
    {"rbnEnabledPeriodFut",
     "If Disabled, Click this Button to Enable the Period \r\n"
     "and add results for the period to be included \r\n"
     "in the Total Out of Pocket and Cumulative Results."},
    {"txtResultsPeriodPast", kOutOfPocket},
    {"txtResultsPeriodFut", kOutOfPocket},
    {"txtCumulativeResultsPeriodPast", kCumulative},
    {"txtCumulativeResultsPeriodFut", kCumulative},
    {"txtResultsPeriodPast", kOutOfPocketAgain},
    {"txtResultsPeriodFut", kOutOfPocketAgain},
    {"txtResultsTotalPast", kTotal},
    {"txtResultsTotalFut", kTotal},
    {"txtResultsTotalSummaryPast", kTotal},
    {"txtResultsTotalSummaryFut", kTotal},
    {"cmdAdvResultsDocPast", kPastDocument},
    {"cmdAdvResultsDocSummaryPast", kPastDocument},
    {"cmdAdvResultsDocFut", kFutureDocument},
    {"cmdAdvResultsDocSummaryFut", kFutureDocument},
    {"cmdAdvResultsSpdPast", kPastSpreadsheet},
    {"cmdAdvResultsSpdSummaryPast", kPastSpreadsheet},
    {"cmdAdvResultsSpdFut", kFutureSpreadsheet},
    {"cmdAdvResultsSpdSummaryFut", kFutureSpreadsheet},
    {"cmdAdvResultsDocSummaryTot",
     "Click this Button to open a Window depicting \r\n"
     "combined Past and Future month to month results \r\n"
     "from all set and enabled periods in a Microsoft Word \r\n"
     "Like Document Format."},
    {"cmdAdvResultsSpdSummaryTot",
     "Click this Button to open a Window depicting \r\n"
     "combined Past and Future month to month results \r\n"
     "from all set and enabled periods in a SpreadSheet \r\n"
     "Like Format."},
    {"frmDailyPast", kDaily},
    {"frmDailyFut", kDaily},
    {"frmCostChangePast", kCostChange},
    {"frmCostChangeFut", kCostChange},
    {"frmRatesPast", kRates},
    {"frmRatesFut", kRates},
    {"cmdSwitchSins",
     "Click this Button to hide the present Window and \r\n"
     "open a new window for calculating results for another \r\n"
     "SIN (smoking, drinking, gambling, etc..).  Any \r\n"
     "previous results will be saved until you close the \r\n"
     "program."},
    {"cmdCombinedResults",
     "Click this Button to show a new Window depicting \r\n"
     "the combined results of all Sins where results have \r\n"
     "been generated.  Results of all individual sins will \r\n"
     "be shown along with the combined Sums"},
    {"txtResultsTotalSummaryTot",
     "This result is the total Out of Pocket Expense \r\n"
     "from all the set and enabled Past and\r\n"
     "Future Periods"},
    {"txtCumulativeResultsTotalSummaryTot",
     "This result is the total Cumlative Cost \r\n"
     "from all the set and enabled Past and\r\n"
     "Future Periods.  This value includes Inflation modified\r\n"
     "Interest incurred while imbibing in the sin,\r\n"
     "time between periods, and any time between \r\n"
     "Past and Future"},
};
// clang-format on

constexpr BalloonRow kEuroBalloon = {
    "cmdEuro",
    "This button is Visible at Program Start.  Click or perform any Calculation or Sin Switch and the Button "
    "is Disabled!"};

}  // namespace

std::span<const BalloonRow> BalloonRows() { return kBalloonRows; }

const BalloonRow& EuroBalloon() { return kEuroBalloon; }

}  // namespace vicetoll
