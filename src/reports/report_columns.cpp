#include "reports/report_columns.h"

#include <algorithm>
#include <charconv>

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

std::string_view HeadingCell(std::string_view heading, int position) {
  for (; position > 0; --position) TakeCell(heading, '|');
  const std::string_view cell = TakeCell(heading, '|');
  return cell.substr(cell.find_first_not_of("<^ "));
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
  const bool behindCosts = column.key >= ColumnKey::MonthCost;
  return HeadingCell(
      sin.gridHeading,
      behindCosts ? headings - kLastColumns + key - static_cast<int>(ColumnKey::MonthCost) : key);
}

ReportCells::ReportCells(ReportLayout layout, Currency currency) : layout_(layout), currency_(currency) {
  for (const ReportColumn& column : kColumns) {
    const CellStyle& style = StyleOf(column);
    const bool zero = style.free.starts_with('$');
    AppendPadded(shown_[static_cast<std::size_t>(column.key)].free,
                 zero ? Format(0, style.free) : std::string(style.free), style.freeWidth);
  }
}

const std::string& ReportCells::Text(const ReportColumn& column, const ReportMonth& month) {
  Shown& shown = shown_[static_cast<std::size_t>(column.key)];
  if (column.figure == nullptr) return Label(shown, column.key, month);
  if (IsFree(month) && !shown.free.empty()) return shown.free;
  const double figure = month.*column.figure;
  if (figure != shown.figure) {
    const CellStyle& style = StyleOf(column);
    shown.figure = figure;
    shown.text.clear();
    AppendPadded(shown.text, Format(figure, style.format), style.width);
  }
  return shown.text;
}

void ReportCells::AppendLine(std::string& out, const std::vector<const ReportColumn*>& columns,
                             const ReportMonth& month) {
  for (const ReportColumn* column : columns) {
    if (column != columns.front()) out += " \t";
    out += Text(*column, month);
  }
}

std::string ReportCells::Format(double figure, std::string_view format) const {
  if (!format.starts_with('$')) return FormatNumber(figure, format);
  return layout_ == ReportLayout::Grid ? FormatMoney(currency_, figure, format)
                                       : FormatMoneyLetter(currency_, figure, format);
}

const std::string& ReportCells::Label(Shown& shown, ColumnKey key, const ReportMonth& month) const {
  if (key == ColumnKey::Month) return month.label;
  shown.text.clear();
  if (key == ColumnKey::Index)
    AppendNumber(shown.text, month.index);
  else if (month.kind == MonthKind::Gap)
    shown.text = kNotApplicable;
  else
    AppendNumber(shown.text, month.period);
  return shown.text;
}

void AppendPadded(std::string& out, std::string_view text, std::size_t width) {
  out += text;
  if (text.size() < width) out.append(width - text.size(), ' ');
}

void AppendNumber(std::string& out, int number) {
  char digits[12];
  out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

}  // namespace vicetoll
