// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue: what makes one workspace into twelve sins. Plain data, read by every other room.
//
// A sin differs from the others only in its row. Misspellings, asymmetries between past and future, and
// words that belong to another sin are part of what users know, and stay.
//
// A member that has an initializer here may be left out of a row: it is empty in the classes that have no
// use for it, or follows another member unless the row says otherwise. All others must be given.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "base/side.h"
#include "calendar/side_index.h"

namespace vicetoll {

enum class CostClass {
  PacksClass,     // packs or cigarettes a day, times the cost of a pack
  UnitsClass,     // units a day, times the cost of a unit
  NetUnitsClass,  // units a day, times gross less reasonable cost of a unit
  FlatRateClass,  // the one figure is the money itself
};

// Per Day or Per Month: the unit in which a quantity or a flat cost is entered.
enum class Unit { PerDay, PerMonth };

// One run of a value list: the values counter * multiplier / divisor for counter = first..last.
struct Run {
  int first, last, multiplier, divisor;
};

// A value list: its runs, in order, and the format of its entries ("$0.00", "$0", "0", "0.00", "0%").
struct ListDefinition {
  std::span<const Run> runs;
  std::string_view format;
};

// The literals of the period header in the document view.
struct DocumentHeaderWords {
  std::string_view startLine, stopLine;  // "Start Smoking Date for Period is: ", ...
  BySide costLine;                       // initial cost; in the flat-rate class the cost line itself
  std::string_view reasonableLine{};     // net-units class only
  std::string_view excessLine{};         // net-units class only
  std::string_view percentLine{};        // empty in the flat-rate class
  std::string_view finalCostLine{};      // classes with initial/final option only
  std::string_view quantityLine{};       // empty in the flat-rate class
};

// The literals of a month's block in the document view.
struct DocumentMonthWords {
  std::string_view heading;                // " Smoking Results for the Beginning to End of "
  std::string_view headingTwin = heading;  // the heading with its second blank in the two operations that
                                           // have it (the past months and the future gaps of Coffeeing and
                                           // Watering); in all other sins the same text as `heading`
  std::string_view quantity;               // " Packs Smoked Per Day: "
  std::string_view unitCost;          // " Cost of a Pack of Cigarettes: "; gross cost in the net-units class
  std::string_view reasonableCost{};  // net-units class only
  std::string_view adjustedCost{};    // net-units class only
  std::string_view plainUnitCost{};   // net-units class only: " Cost of a Coffee: ", in the future months
  std::string_view outOfPocket;       // " Out of Pocket Monthly Cost of Cigarettes: "
  std::string_view plural;            // "Cigarettes", of the three lines that follow from it
};

// The tiny square that starts the identification sequence: where it lies on the panel of a tab, from the
// panel's right and lower edge on, in twips.
struct RevealSquare {
  int tab;  // 0 PAST, 2 TOTAL
  int right, below;
};

// One sin. Names of controls are given without their side suffix.
struct SinRow {
  // Identity.
  std::string_view key;   // "Smoking"
  std::string_view stem;  // of LabelMaker...: "Smoke"
  CostClass costClass;
  std::string_view chooserCaption;                 // of OptSwitchSins
  std::string_view checkCaption = chooserCaption;  // of chkWhichSins
  std::string_view titleWord;                      // "Ashtoll"
  std::string_view designCaption;                  // of the window before its creation is through
  std::string_view windowCaption;                  // set by the creation
  std::string_view totalFrame;                     // caption of frmSummarytot: "TOTAL ASHTOLL"
  std::string_view reportStem = stem;  // of the report titles: the stem, but "Shopping " for Shopping

  // Names of controls that differ.
  std::string_view enableFrameName;       // "frmEnableDisable" or "frmEnableDisableDrinking"
  std::string_view timePeriodFrameName;   // "frmSetTimeSmokingPeriod", on the PAST tab
  std::string_view futureTotalLabelName;  // "lblResultsFutTotal", in Slothing "Label5"
  std::string_view quantityLabelName{};   // "lblSmokesPerDay"; empty in the flat-rate class
  std::string_view costLabelName;         // "lblCigCost"; in the flat-rate class "lblCostOf"
  std::string_view percentLabelName;      // "lblCigPercentIncrease"

  // Period frames: what follows "Past Period " or "Future Period " and the number.
  BySide startSuffix, stopSuffix, dailySuffix, costChangeSuffix;
  // The same two captions for period 1 as the window design has them, where they read otherwise.
  BySide designDailySuffix = dailySuffix, designCostChangeSuffix = costChangeSuffix;

  // Quantity and cost labels. For Smoking "per month" stands for the cigarettes option.
  std::string_view quantityLabelDesign{}, quantityLabelPerDay{}, quantityLabelPerMonth{};
  std::string_view costLabelDesign;     // all classes (flat-rate: of lblCostOf)
  std::string_view costLabelPercent{};  // after the percent option; classes with the two cost modes only
  std::string_view costLabelInitial{}, costLabelFinal{};  // likewise
  std::string_view percentLabelDesign, percentLabelPercent{};
  BySide percentOptionCaption{}, initialFinalOptionCaption{};  // classes with the two cost modes only
  BySide flatLabelPerDay{};                                    // flat-rate class only
  std::string_view flatLabelPerMonth{};                        // flat-rate class only
  std::string_view subCostLabel{};                             // net-units class only

  // Words of captions and tool tips.
  std::string_view summaryWord;                   // "Detailed Results on Past " + word
  std::string_view summaryTotWord = summaryWord;  // "Detailed Results on (Past + Future) " + word
  BySide enableFrameCaption;                      // "Enable/Disable Periods of Smoking"
  std::string_view dateTipWord;                   // "Start " + word + " Date for Period"

  // Value lists and the positions of their defaults. The quantity list is comPacksPerDay for Smoking,
  // comPerPeriod for the units classes, comCostof for the flat-rate class.
  Unit startUnit;               // the unit option that is on at the start (Smoking: PerDay, not shown)
  ListDefinition perDayList;    // Smoking: packs
  ListDefinition perMonthList;  // Smoking: cigarettes
  int quantityDefault;          // position
  ListDefinition costList{};    // comInitialCost; none in the flat-rate class
  int costDefault{};
  ListDefinition secondCostList{};  // comFinalCost or comSubCost
  int secondCostDefault{};
  int percentDefault;

  // Reports.
  std::string_view gridHeading;
  DocumentHeaderWords header;
  DocumentMonthWords month;
  std::array<std::span<const std::string_view>, 5> tableHeading;  // CsvText: five lines of cells

  // Where a sin goes its own way. Most of it are old slips that users know; each stays as it is.

  // The window that the program starts with: it has the euro button, the advertising panels and the web
  // button, and what the others get at their first visit it has from the start.
  bool startsTheProgram = false;
  // Its window has comCigsPerDay. In Drinking the list stands there unused.
  bool hasCigaretteList = false;
  // The identification sequence can be started from its window.
  std::optional<RevealSquare> revealSquare{};
  // Its balloon options switch the balloons of all sins, not its own alone.
  bool switchesAllBalloons = false;
  // Storing a future period leaves the unit in the store as it was; only the figure is stored.
  bool futureKeepsUnit = false;
  // A past period's reasonable cost is stored without its currency.
  bool pastStoresPlainReasonableCost = false;
  // TotalCostInCurrentPeriodFuture takes the stored list position for the daily quantity.
  bool futureTotalTakesListPosition = false;
  // TotalCostInCurrentPeriodFuture knows no yearly increase.
  bool futureTotalHasNoIncrease = false;
  // The sin whose result buttons close while a report is open: Watering closes those of Coffeeing.
  std::string_view reportButtonsOf = key;
  // The sin whose workspace the layout switch of the document window reads, at the numbers of this sin's
  // sides. Jailing reads that of Slothing; where it is empty the switch leaves the text alone.
  std::string_view layoutSwitchReads = key;
};

// The twelve sins in the system's one order.
const std::array<SinRow, kSinCount>& Catalogue();

// The rate lists "0%" to "100%", alike in all sins, and the positions of their defaults.
extern const ListDefinition kRateList;
inline constexpr int kInterestDefault = 5;
inline constexpr int kInflationDefault = 3;

// The position of a sin key in the catalogue, or -1 if it is none.
int SinPosition(std::string_view key);

// True for the classes that have the percent and the initial/final option.
constexpr bool HasCostModes(CostClass c) { return c == CostClass::PacksClass || c == CostClass::UnitsClass; }

// True for the class that has a quantity list for each of its units, packs and cigarettes. The others have
// one, which is filled anew when the unit changes.
constexpr bool HasListPerUnit(CostClass c) { return c == CostClass::PacksClass; }

}  // namespace vicetoll
