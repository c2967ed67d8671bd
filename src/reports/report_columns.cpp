// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_columns.h"

#include <algorithm>

#include "calendar/number_text.h"
#include "controls/grid.h"

namespace vicetoll {
namespace {

constexpr std::string_view kNotApplicable = "N/A";
constexpr std::string_view kPlain = "#,##0.00";
constexpr std::string_view kCents = "$#,##0.00";
constexpr std::string_view kWhole = "$#,##0";

// The month cost of a month without cost is not padded in the grid, and padded wider than the others in the
// document. The reasonable and the adjusted cost of such a month are padded in neither.
// clang-format off
constexpr std::array<ReportColumn, kReportColumnCount> kColumns{{
    // column                        of classes            figure                          grid                            document
    {ColumnKey::Index,               ColumnClasses::All,  nullptr,                         {},                             {}},
    {ColumnKey::Period,              ColumnClasses::All,  nullptr,                         {},                             {}},
    {ColumnKey::Month,               ColumnClasses::All,  nullptr,                         {},                             {}},
    {ColumnKey::Quantity,            ColumnClasses::All,  &ReportMonth::quantity,          {kPlain, 12, "0",            12}, {kPlain, 12, "0.00",         12}},
    {ColumnKey::UnitCost,            ColumnClasses::Unit, &ReportMonth::unitCost,          {kCents, 16, kNotApplicable, 16}, {kCents, 16, kNotApplicable, 16}},
    {ColumnKey::ReasonableCost,      ColumnClasses::Net,  &ReportMonth::reasonableCost,    {kCents, 16, kNotApplicable,  0}, {kCents, 16, kNotApplicable,  0}},
    {ColumnKey::AdjustedCost,        ColumnClasses::Net,  &ReportMonth::adjustedCost,      {kCents, 16, kNotApplicable,  0}, {kCents, 16, kNotApplicable,  0}},
    {ColumnKey::MonthCost,           ColumnClasses::All,  &ReportMonth::monthCost,         {kCents, 12, kWhole,          0}, {kCents, 14, kCents,         16}},
    {ColumnKey::MonthWithInterest,   ColumnClasses::All,  &ReportMonth::monthWithInterest, {kWhole, 11},                   {kCents, 14}},
    {ColumnKey::CumulativeCost,      ColumnClasses::All,  &ReportMonth::cumulativeCost,    {kWhole, 14},                   {kWhole, 14}},
    {ColumnKey::CumulativeCostWithInterest,
                                     ColumnClasses::All,  &ReportMonth::cumulativeCostWithInterest,
                                                                                           {kWhole, 14},                   {kWhole, 14}},
}};
// clang-format on

// The columns behind the costs, which all classes have.
constexpr int kLastColumns = kReportColumnCount - static_cast<int>(ColumnKey::MonthCost);

bool HasColumn(CostClass costClass, ColumnClasses classes) {
  switch (classes) {
    case ColumnClasses::Unit:
      return costClass != CostClass::FlatRateClass;
    case ColumnClasses::Net:
      return costClass == CostClass::NetUnitsClass;
    default:
      return true;
  }
}

bool IsFree(const ReportMonth& month) { return month.kind != MonthKind::Active; }

// One of the first three columns.
void AppendLabel(std::string& out, ColumnKey key, const ReportMonth& month) {
  if (key == ColumnKey::Index)
    AppendNumber(out, month.index);
  else if (key == ColumnKey::Month)
    out += month.label;
  else if (month.kind == MonthKind::Gap)
    out += kNotApplicable;
  else
    AppendNumber(out, month.period);
}

std::string_view HeadingCell(std::string_view heading, int position) {
  for (; position > 0; --position) TakeCell(heading, '|');
  const std::string_view cell = TakeCell(heading, '|');
  return cell.substr(cell.find_first_not_of("<^ "));
}

// "Cost of a Drink" of " Cost of a Drink: ".
std::string_view Stripped(std::string_view words) {
  words.remove_prefix(words.find_first_not_of(' '));
  return words.substr(0, words.find_last_not_of(": ") + 1);
}

}  // namespace

const ReportColumn& ColumnOf(ColumnKey key) { return kColumns[static_cast<std::size_t>(key)]; }

std::vector<const ReportColumn*> ColumnsOf(CostClass costClass) {
  std::vector<const ReportColumn*> columns;
  for (const ReportColumn& column : kColumns)
    if (HasColumn(costClass, column.classes)) columns.push_back(&column);
  return columns;
}

std::optional<double> NumberOf(const ReportColumn& column, const ReportMonth& month) {
  switch (column.key) {
    case ColumnKey::Index:
      return month.index;
    case ColumnKey::Period:
      if (month.kind == MonthKind::Gap) return std::nullopt;
      return month.period;
    case ColumnKey::Month:
      return std::nullopt;
    default:
      if (IsFree(month) && column.grid.free == kNotApplicable) return std::nullopt;
      return month.*column.figure;
  }
}

std::string_view HeadingOf(const SinRow& sin, const ReportColumn& column) {
  const auto key = static_cast<int>(column.key);
  const auto headings = static_cast<int>(std::ranges::count(sin.gridHeading, '|')) + 1;
  // Soliciting's grid heads a column less than its rows have: the cost of one has the document's words.
  if (column.key == ColumnKey::UnitCost && headings < static_cast<int>(ColumnsOf(sin.costClass).size()))
    return Stripped(sin.month.unitCost);
  const bool behindCosts = column.key >= ColumnKey::MonthCost;
  return HeadingCell(
      sin.gridHeading,
      behindCosts ? headings - kLastColumns + key - static_cast<int>(ColumnKey::MonthCost) : key);
}

ReportCells::ReportCells(ReportLayout layout, Currency currency) : layout_(layout), currency_(currency) {
  for (const ReportColumn& column : kColumns) {
    const CellStyle& style = StyleOf(column);
    Shown& shown = shown_[static_cast<std::size_t>(column.key)];
    shown.format = FormatOf(style.format);
    if (style.free.starts_with('$'))
      FormatOf(style.free).Append(shown.free, 0);
    else
      shown.free = style.free;
    Pad(shown.free, 0, style.freeWidth);
  }
}

void ReportCells::Append(std::string& out, const ReportColumn& column, const ReportMonth& month) {
  if (column.figure == nullptr) return AppendLabel(out, column.key, month);
  Shown& shown = shown_[static_cast<std::size_t>(column.key)];
  if (IsFree(month) && !shown.free.empty()) {
    out += shown.free;
    return;
  }
  const std::size_t width = StyleOf(column).width;
  const double figure = month.*column.figure;
  if (figure != shown.figure) {
    // Most figures change from month to month: only one that comes again is worth keeping.
    shown.figure = figure;
    shown.text.clear();
    const std::size_t start = out.size();
    shown.format.Append(out, figure);
    Pad(out, start, width);
    return;
  }
  if (shown.text.empty()) shown.format.Append(shown.text, figure);
  AppendPadded(out, shown.text, width);
}

void ReportCells::AppendLine(std::string& out, const std::vector<const ReportColumn*>& columns,
                             const ReportMonth& month) {
  for (const ReportColumn* column : columns) {
    if (column != columns.front()) {
      out += ' ';
      out += '\t';
    }
    Append(out, *column, month);
  }
}

NumberFormat ReportCells::FormatOf(std::string_view format) const {
  if (!format.starts_with('$')) return NumberFormat(format);
  return layout_ == ReportLayout::Grid ? MoneyFormat(currency_, format)
                                       : MoneyLetterFormat(currency_, format);
}

}  // namespace vicetoll
