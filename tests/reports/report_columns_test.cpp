// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_columns.h"

#include <gtest/gtest.h>

namespace vicetoll {
namespace {

const SinRow& Row(std::string_view key) { return Catalogue().at(SinPosition(key)); }

std::vector<ColumnKey> KeysOf(CostClass costClass) {
  std::vector<ColumnKey> keys;
  for (const ReportColumn* column : ColumnsOf(costClass)) keys.push_back(column->key);
  return keys;
}

std::vector<std::string_view> HeadingsOf(const SinRow& sin) {
  std::vector<std::string_view> headings;
  for (const ReportColumn* column : ColumnsOf(sin.costClass)) headings.push_back(HeadingOf(sin, *column));
  return headings;
}

ReportMonth Month(MonthKind kind) {
  return {.index = 12, .kind = kind, .side = Side::Past, .period = 2, .label = "Jan - 2000"};
}

std::string Cell(ReportCells& cells, ColumnKey key, const ReportMonth& month) {
  std::string text;
  cells.Append(text, key, month);
  return text;
}

TEST(ReportColumns, AClassHasItsColumns) {
  using enum ColumnKey;
  EXPECT_EQ(KeysOf(CostClass::FlatRateClass),
            (std::vector<ColumnKey>{Index, Period, ColumnKey::Month, Quantity, MonthCost, MonthWithInterest,
                                    CumulativeCost, CumulativeCostWithInterest}));
  EXPECT_EQ(KeysOf(CostClass::PacksClass),
            (std::vector<ColumnKey>{Index, Period, ColumnKey::Month, Quantity, UnitCost, MonthCost,
                                    MonthWithInterest, CumulativeCost, CumulativeCostWithInterest}));
  EXPECT_EQ(KeysOf(CostClass::UnitsClass), KeysOf(CostClass::PacksClass));
  EXPECT_EQ(KeysOf(CostClass::NetUnitsClass).size(), 11u);
}

TEST(ReportColumns, EachColumnStandsAtItsKey) {
  for (int i = 0; i < kReportColumnCount; ++i)
    EXPECT_EQ(ColumnOf(static_cast<ColumnKey>(i)).key, static_cast<ColumnKey>(i));
}

TEST(ReportColumns, HeadingsAreThoseOfTheGridWithoutItsMarks) {
  EXPECT_EQ(HeadingsOf(Row("Smoking")),
            (std::vector<std::string_view>{
                "Index", "Period", "Evaluation Month", "Packs Smoked Per Day", "Cost of Cigarettes Per Pack",
                "Smoking Cost Per Month (Out of Pocket)", "Smoking Cost: In Month with Interest",
                "Cumulative Smoking Cost: Out of Pocket", "Cumulative Smoking Cost: With Interest"}));
  EXPECT_EQ(HeadingsOf(Row("Watering"))[6], "Adjusted: Cost of a Water");
}

// The grid of shopping shows the month cost under "Gross: Carttoll".
TEST(ReportColumns, HeadingsOfShoppingMeanTheirColumns) {
  EXPECT_EQ(HeadingsOf(Row("Shopping")),
            (std::vector<std::string_view>{
                "Index", "Period", "Evaluation Month", "Shopping Per Day",
                "Shopping Cost Per Month (Out of Pocket)", "Shopping Cost: In Month with Interest",
                "Cumulative Shopping Cost: Out of Pocket", "Cumulative Shopping Cost: With Interest"}));
}

TEST(ReportColumns, NumbersOfAMonthAreNotRounded) {
  ReportMonth month = Month(MonthKind::Active);
  month.cumulativeCostWithInterest = 186.19479684;
  month.unitCost = 2.5;
  const auto number = [&](ColumnKey key) { return NumberOf(ColumnOf(key), month); };
  EXPECT_EQ(number(ColumnKey::Index), 12);
  EXPECT_EQ(number(ColumnKey::Period), 2);
  EXPECT_EQ(number(ColumnKey::Month), std::nullopt);
  EXPECT_EQ(number(ColumnKey::UnitCost), 2.5);
  EXPECT_EQ(number(ColumnKey::CumulativeCostWithInterest), 186.19479684);
}

TEST(ReportColumns, AMonthWithoutCostHasNoUnitCost) {
  const ReportMonth gap = Month(MonthKind::Gap);
  EXPECT_EQ(NumberOf(ColumnOf(ColumnKey::Period), gap), std::nullopt);
  EXPECT_EQ(NumberOf(ColumnOf(ColumnKey::Period), Month(MonthKind::Disabled)), 2);
  EXPECT_EQ(NumberOf(ColumnOf(ColumnKey::UnitCost), gap), std::nullopt);
  EXPECT_EQ(NumberOf(ColumnOf(ColumnKey::AdjustedCost), gap), std::nullopt);
  EXPECT_EQ(NumberOf(ColumnOf(ColumnKey::Quantity), gap), 0);
  EXPECT_EQ(NumberOf(ColumnOf(ColumnKey::MonthCost), gap), 0);
}

TEST(ReportColumns, LayoutsDifferInCentsWidthsAndTheEuro) {
  ReportMonth month = Month(MonthKind::Active);
  month.monthWithInterest = 61.4484;
  ReportCells grid(ReportLayout::Grid, Currency::Euro);
  ReportCells document(ReportLayout::Document, Currency::Euro);
  EXPECT_EQ(Cell(grid, ColumnKey::MonthWithInterest, month),
            "\x80"
            "61        ");
  EXPECT_EQ(Cell(document, ColumnKey::MonthWithInterest, month), "e61.45        ");
  const ReportMonth gap = Month(MonthKind::Gap);
  EXPECT_EQ(Cell(grid, ColumnKey::MonthCost, gap),
            "\x80"
            "0");
  EXPECT_EQ(Cell(document, ColumnKey::MonthCost, gap), "e0.00           ");
}

// A text that is kept for the next month gives way when the figure changes.
TEST(ReportColumns, AFigureThatChangesShowsAnew) {
  ReportCells cells(ReportLayout::Grid, Currency::Dollar);
  ReportMonth month = Month(MonthKind::Active);
  const auto shown = [&](double cost) {
    month.monthCost = cost;
    return Cell(cells, ColumnKey::MonthCost, month);
  };
  EXPECT_EQ(shown(1), "$1.00       ");
  EXPECT_EQ(shown(1), "$1.00       ");
  EXPECT_EQ(shown(2), "$2.00       ");
  EXPECT_EQ(Cell(cells, ColumnKey::MonthCost, Month(MonthKind::Gap)), "$0");
  EXPECT_EQ(shown(2), "$2.00       ");
}

}  // namespace
}  // namespace vicetoll
