#include "reports/spd_rows.h"

#include "calendar/money.h"
#include "calendar/number_text.h"
#include "reports/cell_line.h"

namespace vicetoll {
namespace {

constexpr std::string_view kQuantityFormat = "#,##0.00";
constexpr std::string_view kCentsFormat = "$#,##0.00";
constexpr std::string_view kWholeFormat = "$#,##0";
constexpr std::string_view kNotApplicable = "N/A";

// Widths that cells are padded to.
constexpr std::size_t kQuantityWidth = 12;
constexpr std::size_t kUnitCostWidth = 16;
constexpr std::size_t kMonthCostWidth = 12;
constexpr std::size_t kWithInterestWidth = 11;
constexpr std::size_t kTotalWidth = 14;

}  // namespace

SpdRowWriter::SpdRowWriter(const SinWorkspace& ws)
    : costClass_(ws.Class()),
      currency_(ws.GetSession().currency),
      freeMonth_(FormatMoney(currency_, 0.0, kWholeFormat)) {}

std::string SpdRowWriter::Money(double value, std::string_view format) const {
  return FormatMoney(currency_, value, format);
}

const std::string& SpdRowWriter::Quantity(double value) {
  if (value != quantity_) {
    quantity_ = value;
    quantityText_ = FormatNumber(value, kQuantityFormat);
  }
  return quantityText_;
}

void SpdRowWriter::Begin(const ReportStretch& stretch) {
  active_ = stretch.kind == MonthKind::Active;
  rows_.reserve(rows_.size() + static_cast<std::size_t>(stretch.months));
  period_ = stretch.kind == MonthKind::Gap ? std::string(kNotApplicable) : std::to_string(stretch.period);
}

void SpdRowWriter::Add(const ReportMonth& month) {
  line_.clear();
  CellLine line(line_);
  line.Cell(month.index);
  line.Cell(period_);
  line.Cell(month.label);
  line.Cell(active_ ? Quantity(month.quantity) : "0", kQuantityWidth);
  // The flat-rate class has no cell for the unit cost: its unit is the day.
  if (costClass_ != CostClass::FlatRateClass)
    line.Cell(active_ ? Money(month.unitCost, kCentsFormat) : kNotApplicable, kUnitCostWidth);
  if (costClass_ == CostClass::NetUnitsClass) {
    // Without a cost, these two are not padded.
    const std::size_t width = active_ ? kUnitCostWidth : 0;
    line.Cell(active_ ? Money(month.reasonableCost, kCentsFormat) : kNotApplicable, width);
    line.Cell(active_ ? Money(month.adjustedCost, kCentsFormat) : kNotApplicable, width);
  }
  if (active_)
    line.Cell(Money(month.monthCost, kCentsFormat), kMonthCostWidth);
  else
    line.Cell(freeMonth_);
  line.Cell(Money(month.monthWithInterest, kWholeFormat), kWithInterestWidth);
  line.Cell(Money(month.cumulativeCost, kWholeFormat), kTotalWidth);
  line.LastCell(Money(month.cumulativeCostWithInterest, kWholeFormat), kTotalWidth);
  rows_.push_back(line_);
}

}  // namespace vicetoll
