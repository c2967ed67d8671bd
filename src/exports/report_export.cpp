// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/report_export.h"

#include <algorithm>

#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "charts/growth_points.h"
#include "engine/period_cost.h"
#include "entries/capture.h"
#include "reports/report_columns.h"
#include "workspace/period_operations.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

constexpr std::string_view kPeriodsSheet = "Periods", kMonthsSheet = "Months";

// ---- The report as it stands ----

bool IsInReport(const WorkspaceSide& side, ReportScope scope) {
  if (scope == ReportScope::Total) return CountedOf(side, side.Index()).worthCounting;
  return (scope == ReportScope::Past) == side.IsPast();
}

void AddPeriods(SinWorkspace& ws, ReportExport& report) {
  const SinEntries entries = CaptureSin(ws);
  for (Side which : kSides) {
    const WorkspaceSide& side = ws.Of(which);
    const bool inReport = IsInReport(side, report.scope);
    int number = 0;
    for (const PeriodEntries& period : entries.Of(which).periods) {
      ++number;
      report.periods.push_back(
          {.side = which,
           .number = number,
           .entries = period,
           .unit = (period.unit == Unit::PerDay ? side.firstUnit : side.secondUnit)->Caption(),
           .counted = inReport && IsCounted(side, number, side.Index())});
    }
  }
}

// ---- What the periods come to ----

// The months of a period in the report, by their places in it.
std::vector<std::size_t> PlacesOf(const ReportExport& report, const ReportExportPeriod& period) {
  std::vector<std::size_t> places;
  for (std::size_t i = 0; i < report.months.size(); ++i) {
    const ReportMonth& month = report.months[i];
    if (month.kind == MonthKind::Active && month.side == period.side && month.period == period.number)
      places.push_back(i);
  }
  return places;
}

Rates RatesIn(const PeriodEntries& period) {
  return {static_cast<double>(period.interest), static_cast<double>(period.inflation)};
}

int GapBetween(const PeriodEntries& before, const PeriodEntries& period) {
  return std::max(0, MonthsBetween(before.stop, period.start) - 1);
}

// ---- Sheets ----

// The columns of the periods' sheet. In the flat-rate class the amount is the cost, and the two costs are not
// there.
enum PeriodColumn {
  kSideColumn,
  kNumberColumn,
  kEnabledColumn,
  kStartColumn,
  kStopColumn,
  kQuantityColumn,
  kUnitColumn,
  kCostColumn,
  kSecondCostColumn,
  kIncreaseColumn,
  kInterestColumn,
  kInflationColumn,
  kOutOfPocketColumn,
  kWithInterestColumn,
};

constexpr int kCostColumns = 2;

std::size_t PlaceOf(CostClass costClass, PeriodColumn column) {
  const bool moved = costClass == CostClass::FlatRateClass && column > kSecondCostColumn;
  return static_cast<std::size_t>(column - (moved ? kCostColumns : 0));
}

std::vector<ExportColumn> PeriodColumns(CostClass costClass) {
  const bool flat = costClass == CostClass::FlatRateClass;
  std::vector<ExportColumn> columns{
      {"Side", CellKind::Text},
      {"Period", CellKind::Whole},
      {"Enabled", CellKind::Text},
      {"Start", CellKind::Month},
      {"Stop", CellKind::Month},
      {flat ? "Amount" : "Quantity", flat ? CellKind::Money : CellKind::Decimal},
      {"Unit", CellKind::Text},
      {"Cost", CellKind::Money},
      {costClass == CostClass::NetUnitsClass ? "Reasonable Cost" : "Final Cost", CellKind::Money},
      {"Increase a Year", CellKind::Percent},
      {"Interest a Year", CellKind::Percent},
      {"Inflation a Year", CellKind::Percent},
      {"Out of Pocket", CellKind::WholeMoney},
      {"With Interest", CellKind::WholeMoney},
  };
  if (flat) columns.erase(columns.begin() + kCostColumn, columns.begin() + kCostColumn + kCostColumns);
  return columns;
}

std::optional<double> AmountIn(const std::string& text) {
  return text.empty() ? std::nullopt : std::optional(TextToNumber(text));
}

ExportCell PercentCell(int percent) { return ExportCell(percent / 100.0); }

std::vector<ExportCell> ParametersOf(const ReportExport& report, const ReportExportPeriod& period) {
  const PeriodEntries& e = period.entries;
  const bool straight = HasCostModes(report.sin->costClass) && !e.percentMode;
  std::vector<ExportCell> cells{ExportCell(OperationSuffix(period.side)),
                                ExportCell(period.number),
                                ExportCell(e.enabled ? "yes" : "no"),
                                ExportCell(e.start),
                                ExportCell(e.stop),
                                ExportCell(AmountIn(e.quantity)),
                                ExportCell(period.unit)};
  if (report.sin->costClass != CostClass::FlatRateClass) {
    cells.emplace_back(AmountIn(e.cost));
    // Under a yearly increase the final cost is not what the cost comes to.
    if (HasCostModes(report.sin->costClass))
      cells.emplace_back(straight ? AmountIn(e.finalCost) : std::nullopt);
    else
      cells.emplace_back(AmountIn(e.reasonableCost));
  }
  cells.push_back(straight ? ExportCell() : PercentCell(e.increase));
  cells.push_back(PercentCell(e.interest));
  cells.push_back(PercentCell(e.inflation));
  return cells;
}

// The periods of the report, from one to the next.
class PeriodChain {
 public:
  PeriodChain(const ReportExport& report, const ExportTable& months) : report_(report), months_(months) {
    const auto columns = ColumnsOf(report.sin->costClass);
    for (std::size_t c = 0; c < columns.size(); ++c) {
      if (columns[c]->key == ColumnKey::Period) numberColumn_ = c;
      if (columns[c]->key == ColumnKey::MonthCost) costColumn_ = c;
      if (columns[c]->key == ColumnKey::MonthWithInterest) growthColumn_ = c;
      if (columns[c]->key == ColumnKey::CumulativeCostWithInterest) balanceColumn_ = c;
    }
  }

  // The two results of a period, which stands in that row of its sheet.
  void Add(const ReportExportPeriod& period, std::size_t row, std::vector<ExportCell>& cells) {
    const std::vector<std::size_t> places = PlacesOf(report_, period);
    double cost = 0;
    for (const std::size_t i : places) cost += report_.months[i].monthCost;
    cells.emplace_back(RoundToUnits(cost), CostFormula(row));
    const ExportCell opening = Opening(period);
    double balance = *opening.number;
    for (const std::size_t i : places)
      balance = (balance + report_.months[i].monthCost) * RatesIn(period.entries).MonthlyFactor();
    cells.emplace_back(RoundToUnits(balance), "=ROUND(" + GrownFormula(opening.formula, places, row) + ",0)");
    before_ = &period;
    beforeRow_ = row;
    beforeBalance_ = RoundToUnits(balance);
    total_ += RoundToUnits(cost);
    if (firstRow_ == 0) firstRow_ = row;
  }

  bool Empty() const { return before_ == nullptr; }
  ExportCell TotalCost() const {
    return {total_, "=SUM(" + InPeriods(firstRow_, At(kOutOfPocketColumn)) + ":" +
                        FixedCellName(beforeRow_, At(kOutOfPocketColumn)) + ")"};
  }
  ExportCell Balance() const {
    return {beforeBalance_, "=" + InPeriods(beforeRow_, At(kWithInterestColumn))};
  }

  std::size_t CostColumn() const { return costColumn_; }
  std::size_t BalanceColumn() const { return balanceColumn_; }

 private:
  std::size_t At(PeriodColumn column) const { return PlaceOf(report_.sin->costClass, column); }
  static std::string InPeriods(std::size_t row, std::size_t column) {
    return std::string(kPeriodsSheet) + "!" + FixedCellName(row, column);
  }
  static std::string InMonths(std::size_t place, std::size_t column) {
    return std::string(kMonthsSheet) + "!" + FixedCellName(place + 1, column);
  }
  std::string MonthsRange(std::size_t column) const {
    return InMonths(0, column) + ":" + FixedCellName(report_.months.size(), column);
  }
  // The growth of a month at the rates in a row of the periods.
  std::string FactorFormula(std::size_t row) const {
    return "(1+(" + CellName(row, At(kInterestColumn)) + "-" + CellName(row, At(kInflationColumn)) + ")/12)";
  }

  // The costs of the months with the period's side and number.
  std::string CostFormula(std::size_t row) const {
    return "=ROUND(SUMIFS(" + MonthsRange(costColumn_) + "," + MonthsRange(numberColumn_) + "," +
           CellName(row, At(kNumberColumn)) + "," + MonthsRange(months_.columns.size() - 1) + "," +
           CellName(row, At(kSideColumn)) + "),0)";
  }

  // What the period opens with: the balance of the one before, grown over the gap. It passes through a box,
  // and so in whole units, but on its way from the past into the future's first period.
  ExportCell Opening(const ReportExportPeriod& period) const {
    if (before_ == nullptr) return {0.0, "0"};
    const int gap = GapBetween(before_->entries, period.entries);
    double grown = beforeBalance_;
    for (int i = 0; i < gap; ++i) grown *= RatesIn(before_->entries).MonthlyFactor();
    const std::string formula = CellName(beforeRow_, At(kWithInterestColumn)) + "*" +
                                FactorFormula(beforeRow_) + "^" + std::to_string(gap);
    if (before_->side != period.side && period.number == 1) return {grown, formula};
    return {RoundToUnits(grown), "ROUND(" + formula + ",0)"};
  }

  // Where the opening leads over the period. The report has the same months from another opening, and what
  // the two openings differ by grows alone.
  std::string GrownFormula(const std::string& opening, const std::vector<std::size_t>& places,
                           std::size_t row) const {
    if (places.empty()) return opening;
    const std::size_t first = places.front(), last = places.back();
    return InMonths(last, balanceColumn_) + "+(" + opening + "-" + InMonths(first, balanceColumn_) + "+" +
           InMonths(first, growthColumn_) + ")*" + FactorFormula(row) + "^" + std::to_string(places.size());
  }

  const ReportExport& report_;
  const ExportTable& months_;
  std::size_t numberColumn_ = 0, costColumn_ = 0, growthColumn_ = 0, balanceColumn_ = 0;
  const ReportExportPeriod* before_ = nullptr;
  std::size_t beforeRow_ = 0, firstRow_ = 0;
  double beforeBalance_ = 0, total_ = 0;
};

// The two sheets: the second needs the results of the first, whose formulas need the second's places.
struct ReportSheets {
  ExportTable periods, months;
};

ReportSheets SheetsOf(const ReportExport& report) {
  ReportSheets sheets{{std::string(kPeriodsSheet), PeriodColumns(report.sin->costClass), {}, false},
                      MonthsTable(report)};
  sheets.months.columns.push_back({"Side", CellKind::Text});
  for (std::size_t i = 0; i < report.months.size(); ++i)
    sheets.months.rows[i].emplace_back(OperationSuffix(report.months[i].side));
  PeriodChain chain(report, sheets.months);
  for (const ReportExportPeriod& period : report.periods) {
    std::vector<ExportCell> cells = ParametersOf(report, period);
    if (period.counted && !report.months.empty()) chain.Add(period, sheets.periods.rows.size() + 1, cells);
    sheets.periods.rows.push_back(std::move(cells));
  }
  if (chain.Empty()) return sheets;
  for (ExportTable* table : {&sheets.periods, &sheets.months}) {
    const bool periods = table == &sheets.periods;
    std::vector<ExportCell> totals(table->columns.size());
    totals[0] = ExportCell("Total");
    const CostClass costClass = report.sin->costClass;
    totals[periods ? PlaceOf(costClass, kOutOfPocketColumn) : chain.CostColumn()] = chain.TotalCost();
    totals[periods ? PlaceOf(costClass, kWithInterestColumn) : chain.BalanceColumn()] = chain.Balance();
    table->rows.push_back(std::move(totals));
    table->totals = true;
  }
  return sheets;
}

// ---- Words ----

std::string_view ScopeWords(ReportScope scope) {
  switch (scope) {
    case ReportScope::Past:
      return "Past";
    case ReportScope::Future:
      return "Future";
    case ReportScope::Total:
      break;
  }
  return "Past and Future";
}

std::string SpanOf(const ReportExport& report) {
  std::string span(ScopeWords(report.scope));
  if (report.months.empty()) return span + ": no months";
  return span + ", " + report.months.front().label + " to " + report.months.back().label;
}

std::string TitleOf(const ReportExport& report) { return std::string(report.sin->checkCaption); }

}  // namespace

ReportExport ReportExportOf(SinWorkspace& ws, ReportScope scope) {
  ReportExport report;
  report.sin = &ws.Sin();
  report.scope = scope;
  report.currency = ws.GetSession().currency;
  report.present = ws.GetSession().platform.Now();
  MonthReport walked = ReportOf(ws, scope);
  report.chart = GrowthOf(ws, walked, report.present);
  report.months = std::move(walked.months);
  // Reports nearly always come in order.
  if (!std::ranges::is_sorted(report.months, {}, &ReportMonth::index))
    std::ranges::stable_sort(report.months, {}, &ReportMonth::index);
  AddPeriods(ws, report);
  return report;
}

ExportTable MonthsTable(const ReportExport& report) {
  const auto columns = ColumnsOf(report.sin->costClass);
  ExportTable table{std::string(kMonthsSheet), {}, {}, false};
  for (const ReportColumn* column : columns) {
    CellKind kind = CellKind::Money;
    if (column->key == ColumnKey::Month) kind = CellKind::Month;
    if (column->key == ColumnKey::Index || column->key == ColumnKey::Period) kind = CellKind::Whole;
    if (column->key == ColumnKey::Quantity) kind = CellKind::Decimal;
    table.columns.push_back({std::string(HeadingOf(*report.sin, *column)), kind});
  }
  table.rows.reserve(report.months.size() + 1);
  for (const ReportMonth& month : report.months) {
    auto& row = table.rows.emplace_back();
    row.reserve(columns.size() + 1);
    for (const ReportColumn* column : columns)
      row.push_back(column->key == ColumnKey::Month ? ExportCell(month.label)
                                                    : ExportCell(NumberOf(*column, month)));
  }
  return table;
}

Workbook WorkbookOf(const ReportExport& report) {
  ReportSheets sheets = SheetsOf(report);
  const std::size_t columns = ColumnsOf(report.sin->costClass).size();
  const WorkbookChart chart{.kind = WorkbookChart::Kind::Lines,
                            .sheet = 1,
                            .along = static_cast<std::size_t>(ColumnKey::Month),
                            .columns = {columns - 2, columns - 1},
                            .points = report.months.size(),
                            .title = report.chart.title};
  return {.title = TitleOf(report) + ": " + SpanOf(report),
          .currency = report.currency,
          .created = report.present,
          .sheets = {std::move(sheets.periods), std::move(sheets.months)},
          .chart = chart};
}

Pages PagesOf(const ReportExport& report) {
  const ReportSheets sheets = SheetsOf(report);
  Pages pages{.title = TitleOf(report), .subtitle = SpanOf(report), .summary = {}, .svg = {}, .rows = {}};
  pages.summary = PageTableOf(sheets.periods, report.currency);
  const auto columns = ColumnsOf(report.sin->costClass);
  for (std::size_t c = 0; c < columns.size(); ++c)
    pages.rows.columns.push_back({sheets.months.columns[c].heading, IsWordy(sheets.months.columns[c].kind)});
  ReportCells cells(ReportLayout::Grid, report.currency);
  for (const ReportMonth& month : report.months) {
    auto& row = pages.rows.rows.emplace_back();
    for (const ReportColumn* column : columns) {
      std::string& cell = row.emplace_back();
      cells.Append(cell, *column, month);
      cell.erase(cell.find_last_not_of(' ') + 1);
    }
  }
  pages.rows.totals = sheets.months.totals;
  if (!sheets.months.totals) return pages;
  auto& totals = pages.rows.rows.emplace_back();
  for (std::size_t c = 0; c < columns.size(); ++c)
    totals.push_back(TextOf(sheets.months.rows.back()[c], CellKind::WholeMoney, report.currency));
  return pages;
}

}  // namespace vicetoll
