// SPDX-License-Identifier: GPL-3.0-or-later
#include "sins/catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <charconv>
#include <string>
#include <vector>

#include "default_texts.h"

namespace vicetoll {
namespace {

const SinRow& Row(std::string_view key) { return Catalogue().at(static_cast<std::size_t>(SinPosition(key))); }

// The entries of a list as texts, by the printing rules of the standard library.
std::vector<std::string> Entries(const ListDefinition& list) {
  std::vector<std::string> entries;
  for (const Run& run : list.runs) {
    for (int counter = run.first; counter <= run.last; ++counter) {
      const double value = static_cast<double>(counter) * run.multiplier / run.divisor;
      const bool percent = list.format.ends_with('%');
      char text[32];
      const auto end = std::to_chars(text, text + sizeof text, percent ? 100 * value : value,
                                     std::chars_format::fixed, list.format.ends_with(".00") ? 2 : 0)
                           .ptr;
      entries.push_back((list.format.starts_with('$') ? "$" : "") + std::string(text, end) +
                        (percent ? "%" : ""));
    }
  }
  return entries;
}

std::string EntryAt(const ListDefinition& list, int position) {
  return Entries(list).at(static_cast<std::size_t>(position));
}

const ListDefinition& StartList(const SinRow& row) {
  return row.startUnit == Unit::PerDay ? row.perDayList : row.perMonthList;
}

bool IsBlank(std::string_view cell) {
  return !cell.empty() && cell.find_first_not_of(' ') == std::string_view::npos;
}

std::string Joined(std::span<const std::string_view> cells) {
  std::string line;
  for (const std::string_view cell : cells) line.append(line.empty() ? "" : "\t").append(cell);
  return line;
}

TEST(Catalogue, HasTheSinsInTheirOneOrder) {
  const char* const kKeysAndStems[][2] = {
      {"Smoking", "Smoke"},      {"Drinking", "Drink"},     {"Gambling", "Gamble"},
      {"Coffeeing", "Coffee"},   {"Watering", "Water"},     {"Jailing", "Jail"},
      {"Drugging", "Drug"},      {"Slothing", "Sloth"},     {"Soliciting", "Solicite"},
      {"Tobaccoing", "Tobacco"}, {"Interring", "Internet"}, {"Shopping", "Shop"},
  };
  ASSERT_EQ(std::size(kKeysAndStems), Catalogue().size());
  for (int position = 0; position < kSinCount; ++position) {
    const SinRow& row = Catalogue()[static_cast<std::size_t>(position)];
    EXPECT_EQ(row.key, kKeysAndStems[position][0]);
    EXPECT_EQ(row.stem, kKeysAndStems[position][1]);
    EXPECT_EQ(SinPosition(row.key), position);
  }
}

TEST(Catalogue, FindsNoPositionForOtherWords) {
  EXPECT_EQ(SinPosition(""), -1);
  EXPECT_EQ(SinPosition("Coffee"), -1);
  EXPECT_EQ(SinPosition("smoking"), -1);
}

TEST(Catalogue, NumbersTheSidesOddAndEven) {
  EXPECT_EQ(SideIndexOf(0, Side::Past).Number(), 1);
  EXPECT_EQ(SideIndexOf(0, Side::Future).Number(), 2);
  EXPECT_EQ(SideIndexOf(SinPosition("Soliciting"), Side::Past).Number(), 17);
  EXPECT_EQ(SideIndexOf(SinPosition("Shopping"), Side::Future).Number(), 24);
}

TEST(Catalogue, ChooserAndCheckBoxDifferByOneLetterInSolicitingOnly) {
  for (const SinRow& row : Catalogue()) {
    if (row.key == "Soliciting") continue;
    EXPECT_EQ(row.chooserCaption, row.checkCaption) << row.key;
  }
  EXPECT_EQ(Row("Soliciting").chooserCaption, "Soliciting (Prostitute)");
  EXPECT_EQ(Row("Soliciting").checkCaption, "Soliciting (Prostitutes)");
}

TEST(Catalogue, PutsEverySinInItsClass) {
  for (const SinRow& row : Catalogue()) {
    CostClass expected = CostClass::FlatRateClass;
    if (row.key == "Smoking") expected = CostClass::PacksClass;
    if (row.key == "Drinking" || row.key == "Soliciting") expected = CostClass::UnitsClass;
    if (row.key == "Coffeeing" || row.key == "Watering") expected = CostClass::NetUnitsClass;
    EXPECT_EQ(row.costClass, expected) << row.key;
  }
}

// A row is complete for its class, and has nothing that its class has no use for.
TEST(Catalogue, FillsWhatTheClassNeedsAndNoMore) {
  for (const SinRow& row : Catalogue()) {
    SCOPED_TRACE(row.key);
    const bool flat = row.costClass == CostClass::FlatRateClass;
    const bool net = row.costClass == CostClass::NetUnitsClass;
    const bool modes = HasCostModes(row.costClass);
    for (const std::string_view text :
         {row.quantityLabelName, row.quantityLabelDesign, row.quantityLabelPerDay, row.quantityLabelPerMonth,
          row.header.percentLine, row.header.quantityLine}) {
      EXPECT_EQ(text.empty(), flat);
    }
    for (const std::string_view text :
         {row.costLabelPercent, row.costLabelInitial, row.costLabelFinal, row.percentLabelPercent,
          row.percentOptionCaption.past, row.percentOptionCaption.future, row.initialFinalOptionCaption.past,
          row.initialFinalOptionCaption.future, row.header.finalCostLine}) {
      EXPECT_EQ(text.empty(), !modes);
    }
    for (const std::string_view text :
         {row.subCostLabel, row.header.reasonableLine, row.header.excessLine, row.month.reasonableCost,
          row.month.adjustedCost, row.month.plainUnitCost}) {
      EXPECT_EQ(text.empty(), !net);
    }
    for (const std::string_view text :
         {row.flatLabelPerDay.past, row.flatLabelPerDay.future, row.flatLabelPerMonth}) {
      EXPECT_EQ(text.empty(), !flat);
    }
    for (const std::string_view text : {row.titleWord,
                                        row.designCaption,
                                        row.windowCaption,
                                        row.totalFrame,
                                        row.reportStem,
                                        row.enableFrameName,
                                        row.futureTotalLabelName,
                                        row.costLabelName,
                                        row.percentLabelName,
                                        row.startSuffix.past,
                                        row.startSuffix.future,
                                        row.stopSuffix.past,
                                        row.stopSuffix.future,
                                        row.dailySuffix.past,
                                        row.dailySuffix.future,
                                        row.costChangeSuffix.past,
                                        row.costChangeSuffix.future,
                                        row.costLabelDesign,
                                        row.percentLabelDesign,
                                        row.summaryWord,
                                        row.summaryTotWord,
                                        row.enableFrameCaption.past,
                                        row.enableFrameCaption.future,
                                        row.dateTipWord,
                                        row.header.startLine,
                                        row.header.stopLine,
                                        row.header.costLine.past,
                                        row.header.costLine.future,
                                        row.month.heading,
                                        row.month.quantity,
                                        row.month.unitCost,
                                        row.month.outOfPocket,
                                        row.month.plural}) {
      EXPECT_FALSE(text.empty());
    }
    EXPECT_EQ(row.costList.runs.empty(), flat);
    EXPECT_EQ(row.secondCostList.runs.empty(), flat);
  }
}

TEST(Catalogue, NamesControlsAfterTheSin) {
  for (const SinRow& row : Catalogue()) {
    SCOPED_TRACE(row.key);
    const std::string key(row.key);
    const std::string title(row.titleWord);
    const bool ownFrame = key == "Drinking" || key == "Coffeeing" || key == "Watering" ||
                          key == "Soliciting" || key == "Shopping";
    EXPECT_EQ(row.enableFrameName, "frmEnableDisable" + (ownFrame ? key : ""));
    EXPECT_EQ(row.timePeriodFrameName, "frmSetTime" + key + "Period");
    EXPECT_EQ(row.futureTotalLabelName, key == "Slothing" ? "Label5" : "lblResultsFutTotal");
    const std::string labelStem = key == "Smoking" ? "Cig" : std::string(row.stem);
    EXPECT_EQ(row.percentLabelName, "lbl" + labelStem + "PercentIncrease");
    EXPECT_EQ(row.costLabelName,
              row.costClass == CostClass::FlatRateClass ? "lblCostOf" : "lbl" + labelStem + "Cost");
    if (row.costClass != CostClass::FlatRateClass) {
      EXPECT_EQ(row.quantityLabelName, "lbl" + std::string(row.stem) + "sPerDay");
    }
    EXPECT_EQ(row.windowCaption, "The \"" + title + "\" Financial Calculator");
    EXPECT_TRUE(row.designCaption.starts_with("The \"" + title.substr(0, title.find(' '))));
    EXPECT_EQ(row.reportStem, key == "Shopping" ? "Shopping " : row.stem);
  }
}

TEST(Catalogue, WritesSixTotalFramesInCapitals) {
  std::vector<std::string_view> capitals;
  for (const SinRow& row : Catalogue()) {
    if (row.totalFrame != "TOTAL " + std::string(row.titleWord)) capitals.push_back(row.totalFrame);
  }
  EXPECT_EQ(capitals, (std::vector<std::string_view>{"TOTAL ASHTOLL", "TOTAL CUPTOLL", "TOTAL DICETOLL",
                                                     "TOTAL BEANTOLL", "TOTAL DEWTOLL", "TOTAL PLEATOLL"}));
}

// The oddities by side that must not be mended.
TEST(Catalogue, KeepsTheAsymmetriesOfPastAndFuture) {
  EXPECT_EQ(Row("Jailing").stopSuffix.past, ": Date Released from Jail");
  EXPECT_EQ(Row("Jailing").stopSuffix.future, ": Released from Jail");
  EXPECT_EQ(Row("Jailing").enableFrameCaption.past, "Enable/Disable Periods in Jail");
  EXPECT_EQ(Row("Jailing").enableFrameCaption.future, "Enable/Disable Periods In Jail");
  EXPECT_EQ(Row("Coffeeing").costChangeSuffix.past, ": Coffeeing Cost Change");
  EXPECT_EQ(Row("Watering").costChangeSuffix.future, ": Water Cost Change");
  EXPECT_EQ(Row("Drinking").initialFinalOptionCaption.past, "Initial and Final Alcohol In Period");
  EXPECT_EQ(Row("Soliciting").initialFinalOptionCaption.past,
            "Initial and Final Solicitaiton Cost In Period");
  EXPECT_EQ(Row("Soliciting").initialFinalOptionCaption.future,
            "Initial and Final Solicitation Cost In Period");
  EXPECT_EQ(Row("Coffeeing").header.costLine.past, "Initial Beantoll at Start Coffee Drinking  Date: ");
  EXPECT_EQ(Row("Coffeeing").header.costLine.future, "Initial Beantoll at Start Coffee Drinking Date: ");
  EXPECT_EQ(Row("Interring").header.costLine.past, "Interring Cost Per Day During Period: ");
  EXPECT_EQ(Row("Interring").header.costLine.future, "Webtoll Sub Per Day During Period: ");
  for (const SinRow& row : Catalogue()) {
    if (row.costClass != CostClass::FlatRateClass) continue;
    const bool off =
        row.key == "Gambling" || row.key == "Drugging" || row.key == "Slothing" || row.key == "Tobaccoing";
    EXPECT_TRUE(row.flatLabelPerDay.past.ends_with(", Per Day")) << row.key;
    EXPECT_TRUE(row.flatLabelPerDay.future.ends_with(off ? ", Per Month" : ", Per Day")) << row.key;
    EXPECT_TRUE(row.flatLabelPerMonth.ends_with(", Per Month")) << row.key;
    EXPECT_TRUE(row.costLabelDesign.ends_with(row.startUnit == Unit::PerDay ? ", Per Day" : ", Per Month"))
        << row.key;
  }
}

TEST(Catalogue, DesignCaptionsDifferInGamblingAndJailingOnly) {
  for (const SinRow& row : Catalogue()) {
    for (const Side side : kSides) {
      const bool gambling = row.key == "Gambling" && side == Side::Past;
      EXPECT_EQ(row.designDailySuffix[side], gambling ? ":Gambling Cost" : row.dailySuffix[side]) << row.key;
      EXPECT_EQ(row.designCostChangeSuffix[side],
                row.key == "Jailing" ? ": Jail Time Cost Change" : row.costChangeSuffix[side])
          << row.key;
    }
  }
}

TEST(CatalogueLists, HaveTheirEntryCounts) {
  const struct {
    const char* key;
    std::size_t perDay, perMonth, cost, secondCost;
  } kCounts[] = {
      {"Smoking", 200, 300, 277, 277}, {"Drinking", 75, 75, 277, 277}, {"Gambling", 221, 221, 0, 0},
      {"Coffeeing", 75, 75, 127, 129}, {"Watering", 75, 75, 127, 129}, {"Jailing", 257, 257, 0, 0},
      {"Drugging", 221, 221, 0, 0},    {"Slothing", 141, 141, 0, 0},   {"Soliciting", 10, 40, 39, 39},
      {"Tobaccoing", 221, 221, 0, 0},  {"Interring", 141, 141, 0, 0},  {"Shopping", 141, 141, 0, 0},
  };
  for (const auto& counts : kCounts) {
    SCOPED_TRACE(counts.key);
    EXPECT_EQ(Entries(Row(counts.key).perDayList).size(), counts.perDay);
    EXPECT_EQ(Entries(Row(counts.key).perMonthList).size(), counts.perMonth);
    EXPECT_EQ(Entries(Row(counts.key).costList).size(), counts.cost);
    EXPECT_EQ(Entries(Row(counts.key).secondCostList).size(), counts.secondCost);
  }
}

TEST(CatalogueLists, ShowTheirDefaults) {
  for (const auto& defaults : kDefaults) {
    SCOPED_TRACE(defaults.key);
    const SinRow& row = Row(defaults.key);
    EXPECT_EQ(EntryAt(StartList(row), row.quantityDefault), defaults.quantity);
    EXPECT_EQ(EntryAt(kRateList, row.percentDefault), defaults.percent);
    if (row.costClass == CostClass::FlatRateClass) continue;
    EXPECT_EQ(EntryAt(row.costList, row.costDefault), defaults.initialCost);
    EXPECT_EQ(EntryAt(row.secondCostList, row.secondCostDefault), defaults.secondCost);
  }
  EXPECT_EQ(EntryAt(kRateList, kInterestDefault), "5%");
  EXPECT_EQ(EntryAt(kRateList, kInflationDefault), "3%");
  EXPECT_EQ(EntryAt(Row("Smoking").perMonthList, Row("Smoking").quantityDefault), "20");
}

TEST(CatalogueLists, CostsChangeStepWhereTheRunsMeet) {
  const std::vector<std::string> costs = Entries(Row("Smoking").costList);
  EXPECT_EQ(costs.front(), "$0.10");
  EXPECT_EQ(costs.at(18), "$1.00");
  EXPECT_EQ(costs.at(19), "$1.10");
  EXPECT_EQ(costs.at(39), "$3.25");
  EXPECT_EQ(costs.at(127), "$25.50");
  EXPECT_EQ(costs.back(), "$100.00");
  EXPECT_EQ(Entries(Row("Coffeeing").costList).back(), "$25.00");
  EXPECT_EQ(EntryAt(Row("Watering").secondCostList, 0), "$0.00");
  EXPECT_EQ(EntryAt(Row("Watering").secondCostList, 1), "$0.05");
  EXPECT_EQ(Entries(Row("Watering").secondCostList).back(), "$25.00");
  EXPECT_EQ(Entries(Row("Soliciting").costList).front(), "$10.00");
  EXPECT_EQ(EntryAt(Row("Soliciting").costList, 19), "$110.00");
  EXPECT_EQ(Entries(Row("Soliciting").costList).back(), "$300.00");
}

TEST(CatalogueLists, QuantitiesRunFromEndToEnd) {
  EXPECT_EQ(Entries(Row("Smoking").perDayList).front(), "0.05");
  EXPECT_EQ(Entries(Row("Smoking").perDayList).back(), "10.00");
  EXPECT_EQ(Entries(Row("Smoking").perMonthList).back(), "300");
  EXPECT_EQ(Entries(Row("Drinking").perMonthList).back(), "2250");
  EXPECT_EQ(Entries(Row("Shopping").perDayList).back(), "$500");
  EXPECT_EQ(Entries(Row("Gambling").perDayList).back(), "$2500");
  EXPECT_EQ(Entries(Row("Jailing").perDayList).back(), "$10000");
  EXPECT_EQ(EntryAt(Row("Jailing").perDayList, 56), "$80");
  EXPECT_EQ(EntryAt(Row("Jailing").perDayList, 51), "$55");
  EXPECT_EQ(EntryAt(Row("Jailing").perDayList, 141), "$525");
  EXPECT_EQ(EntryAt(Row("Jailing").perDayList, 221), "$3000");
  for (const SinRow& row : Catalogue()) {
    if (row.costClass != CostClass::FlatRateClass) continue;
    EXPECT_EQ(EntryAt(row.perDayList, 0), "$0") << row.key;
  }
}

TEST(CatalogueLists, AMonthIsThirtyDays) {
  for (const SinRow& row : Catalogue()) {
    if (row.key == "Smoking" || row.key == "Soliciting") continue;
    SCOPED_TRACE(row.key);
    const std::vector<std::string> perDay = Entries(row.perDayList);
    const std::vector<std::string> perMonth = Entries(row.perMonthList);
    ASSERT_EQ(perDay.size(), perMonth.size());
    const std::size_t sign = row.perDayList.format.starts_with('$') ? 1 : 0;
    for (std::size_t i = 0; i < perDay.size(); ++i) {
      EXPECT_EQ(30 * std::stoi(perDay[i].substr(sign)), std::stoi(perMonth[i].substr(sign)));
    }
  }
}

TEST(CatalogueLists, SolicitingHasThirtyTwicePerMonth) {
  const std::vector<std::string> perMonth = Entries(Row("Soliciting").perMonthList);
  EXPECT_EQ(std::ranges::count(perMonth, "30"), 2);
  EXPECT_EQ(perMonth.at(29), "30");
  EXPECT_EQ(perMonth.at(30), "30");
  EXPECT_EQ(perMonth.back(), "300");
}

TEST(CatalogueLists, StartPerMonthInFourSins) {
  std::vector<std::string_view> keys;
  for (const SinRow& row : Catalogue()) {
    if (row.startUnit == Unit::PerMonth) keys.push_back(row.key);
  }
  EXPECT_EQ(keys, (std::vector<std::string_view>{"Jailing", "Slothing", "Soliciting", "Interring"}));
}

TEST(CatalogueLists, RatesGoFromNothingToHundredPercent) {
  const std::vector<std::string> rates = Entries(kRateList);
  ASSERT_EQ(rates.size(), 101U);
  EXPECT_EQ(rates.front(), "0%");
  EXPECT_EQ(rates.at(7), "7%");
  EXPECT_EQ(rates.back(), "100%");
}

TEST(CatalogueReports, GridHeadingsHaveTheColumnsOfTheirClass) {
  for (const SinRow& row : Catalogue()) {
    SCOPED_TRACE(row.key);
    std::ptrdiff_t columns = 9;
    if (row.costClass == CostClass::NetUnitsClass) columns = 11;
    if (row.costClass == CostClass::FlatRateClass) columns = 8;
    if (row.key == "Shopping") columns = 11;   // three more than its rows have cells
    if (row.key == "Soliciting") columns = 8;  // one fewer than its rows have cells
    EXPECT_EQ(std::ranges::count(row.gridHeading, '|') + 1, columns);
    EXPECT_TRUE(row.gridHeading.starts_with("<Index|^Period|^Evaluation Month|^"));
    EXPECT_EQ(row.gridHeading.find("|^ Cumulative "), row.gridHeading.rfind('|'));
    EXPECT_TRUE(row.gridHeading.ends_with(": With Interest"));
  }
}

TEST(CatalogueReports, TableHeadingsHaveTheCellsOfTheirClass) {
  for (const SinRow& row : Catalogue()) {
    SCOPED_TRACE(row.key);
    std::size_t cells = 9;
    if (row.costClass == CostClass::NetUnitsClass) cells = 11;
    if (row.costClass == CostClass::FlatRateClass) cells = 8;
    const std::size_t gap = row.costClass == CostClass::FlatRateClass ? 0 : 1;
    for (std::size_t line = 0; line < 5; ++line) {
      EXPECT_EQ(row.tableHeading[line].size(), cells + (line < 3 ? 0 : gap)) << "line " << line + 1;
    }
  }
}

TEST(CatalogueReports, TheEmptyCellStandsBeforeTheMoneyColumns) {
  for (const SinRow& row : Catalogue()) {
    SCOPED_TRACE(row.key);
    for (std::size_t line = 0; line < 5; ++line) {
      const auto cells = row.tableHeading[line];
      const bool expected = line >= 3 && row.costClass != CostClass::FlatRateClass;
      EXPECT_EQ(std::ranges::count(cells, ""), expected ? 1 : 0);
      EXPECT_EQ(cells[cells.size() - 5].empty(), expected);
    }
  }
}

TEST(CatalogueReports, BlankCellsAreAsWideAsTheCellAbove) {
  for (const SinRow& row : Catalogue()) {
    SCOPED_TRACE(row.key);
    std::array<std::vector<std::string_view>, 5> lines;
    for (std::size_t line = 0; line < 5; ++line) {
      for (const std::string_view cell : row.tableHeading[line]) {
        if (!cell.empty()) lines[line].push_back(cell);
      }
    }
    int blanks = 0;
    for (std::size_t line = 1; line < 5; ++line) {
      ASSERT_EQ(lines[line].size(), lines[0].size());
      for (std::size_t column = 0; column < lines[0].size(); ++column) {
        if (!IsBlank(lines[line][column])) continue;
        ++blanks;
        EXPECT_EQ(lines[line][column].size(), lines[line - 1][column].size())
            << "line " << line + 1 << ", column " << column + 1;
      }
    }
    EXPECT_GE(blanks, 15);
  }
}

TEST(CatalogueReports, TableHeadingOfSmokingIsExact) {
  const auto& lines = Row("Smoking").tableHeading;
  EXPECT_EQ(Joined(lines[0]),
            "Index\tPeriod\tEval.           \tPacks          \tCost of             \tSmoking            \t"
            "Smoking Cost:      \tCumulative         \tCumulative          ");
  EXPECT_EQ(Joined(lines[1]),
            "     \t      \tMonth           \tSmoked         \tCigarettes          \tCost               \t"
            "Month With         \tSmoking Cost:      \tSmoking Cost        ");
  EXPECT_EQ(Joined(lines[2]),
            "     \t      \t                \tPer Day        \tPer Pack            \tPer Month          \t"
            "Interest           \tIn Month           \tIn Month            ");
  EXPECT_EQ(Joined(lines[3]),
            "     \t      \t                \t               \t                    \t\tOut of             \t"
            "                   \tOut of             \tWith                ");
  EXPECT_EQ(Joined(lines[4]),
            "     \t      \t                \t               \t                    \t\tPocket             \t"
            "                   \tPocket             \tInterest            ");
}

TEST(CatalogueReports, TableHeadingOfCoffeeingEndsWithItsDrinks) {
  const auto& lines = Row("Coffeeing").tableHeading;
  EXPECT_EQ(Joined(lines[1].subspan(3, 5)),
            "Drinks         \tCost Per            \tReasonable          \tCost Per            \t Coffee Cost "
            "      ");
  EXPECT_EQ(Joined(lines[3].subspan(4)),
            "Drink               \tCoffee              \tDrink               \t\tOut of             \t"
            "                   \tOut of             \tWith                ");
  EXPECT_EQ(Joined(lines[4].subspan(4)),
            "                    \tDrink               \t                    \t\tPocket             \t"
            "                   \tPocket             \tInterest            ");
}

TEST(CatalogueReports, TableHeadingOfSlothingIsExact) {
  const auto& lines = Row("Slothing").tableHeading;
  EXPECT_EQ(Joined(lines[0]),
            "Index\tPeriod\tEval.           \tLaziness       \tLaziness         \tLaziness Cost:     \t"
            "Cumulative         \tCumulative          ");
  EXPECT_EQ(Joined(lines[1]),
            "     \t      \tMonth           \tCost           \tCost                \tMonth With         \t"
            "Laziness Cost:    \tSlothing Cost       ");
  EXPECT_EQ(Joined(lines[2]),
            "     \t      \t                \tPer Day        \tPer Month          \tInterest           \t"
            "In Month           \tIn Month            ");
  EXPECT_EQ(Joined(lines[3]),
            "     \t      \t                \t               \tOut of             \t                   \t"
            "Out of             \tWith                ");
}

TEST(CatalogueReports, OnlyCoffeeingAndWateringHaveASecondHeading) {
  for (const SinRow& row : Catalogue()) {
    SCOPED_TRACE(row.key);
    EXPECT_TRUE(row.month.heading.ends_with(" Results for the Beginning to End of "));
    std::string twin(row.month.heading);
    if (row.costClass == CostClass::NetUnitsClass) twin.insert(twin.find("Drinking ") + 8, " ");
    EXPECT_EQ(row.month.headingTwin, twin);
  }
  EXPECT_EQ(Row("Watering").month.headingTwin, " Water Drinking  Results for the Beginning to End of ");
}

// Each difference belongs to the sins named here and to no other.
TEST(CatalogueDifferences, BelongToTheSinsThatUsersKnow) {
  const auto having = [](auto has) {
    std::string keys;
    for (const SinRow& row : Catalogue())
      if (has(row)) keys.append(keys.empty() ? "" : " ").append(row.key);
    return keys;
  };
  EXPECT_EQ(having([](const SinRow& r) { return r.startsTheProgram; }), "Smoking");
  EXPECT_EQ(having([](const SinRow& r) { return r.hasCigaretteList; }), "Smoking Drinking");
  EXPECT_EQ(having([](const SinRow& r) { return r.revealSquare.has_value(); }), "Smoking Interring");
  EXPECT_EQ(having([](const SinRow& r) { return r.switchesAllBalloons; }), "Smoking Drinking");
  EXPECT_EQ(having([](const SinRow& r) { return r.futureKeepsUnit; }), "Drugging");
  EXPECT_EQ(having([](const SinRow& r) { return r.pastStoresPlainReasonableCost; }), "Watering");
  EXPECT_EQ(having([](const SinRow& r) { return r.futureTotalTakesListPosition; }), "Drinking");
  EXPECT_EQ(having([](const SinRow& r) { return r.futureTotalHasNoIncrease; }), "Jailing");
  EXPECT_EQ(having([](const SinRow& r) { return r.reportButtonsOf != r.key; }), "Watering");
  EXPECT_EQ(having([](const SinRow& r) { return r.layoutSwitchReads != r.key; }),
            "Jailing Slothing Tobaccoing");
  EXPECT_EQ(having([](const SinRow& r) { return r.layoutSwitchReads.empty(); }), "Slothing Tobaccoing");
}

// A misspelt key would be passed over in silence, or end in a fault at the first report.
TEST(CatalogueDifferences, NameSinsThatThereAre) {
  for (const SinRow& row : Catalogue()) {
    EXPECT_NE(SinPosition(row.reportButtonsOf), -1) << row.key;
    if (!row.layoutSwitchReads.empty()) {
      EXPECT_NE(SinPosition(row.layoutSwitchReads), -1) << row.key;
    }
  }
}

}  // namespace
}  // namespace vicetoll
