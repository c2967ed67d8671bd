// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/doc_text.h"

#include <initializer_list>

#include "base/line_ends.h"
#include "calendar/money.h"
#include "reports/report_columns.h"

namespace vicetoll {
namespace {

using std::string_view;

constexpr string_view kExcessFormat = "$##.00";
constexpr string_view kRuleLine =
    "____________________________________________"
    "____________________________________________\r\n";

// What a month takes in the text, about.
constexpr std::size_t kBlockSize = 640;
constexpr std::size_t kTableLineSize = 180;

void AppendLine(std::string& text, std::initializer_list<string_view> parts) {
  for (string_view part : parts) text += part;
  text += kLineEnd;
}

class BlockWriter : public MonthSink {
 public:
  BlockWriter(const SinWorkspace& ws, std::string& text)
      : sin_(ws.Sin()), text_(text), cells_(ReportLayout::Document, ws.GetSession().currency) {}

  void Begin(const ReportStretch& stretch) override {
    stretch_ = stretch;
    text_.reserve(text_.size() + kBlockSize * static_cast<std::size_t>(stretch.months));
  }

  void Add(const ReportMonth& month) override {
    const DocumentMonthWords& words = sin_.month;
    text_ += " Month Number ";
    AppendNumber(text_, month.index);
    text_ += ":";
    text_ += Heading();
    text_ += month.label;
    if (stretch_.kind != MonthKind::Gap) {
      text_ += " of Period ";
      AppendNumber(text_, month.period);
    }
    text_ += kLineEnd;
    text_ += " Period ";
    AppendNumber(text_, month.period);
    AppendLine(text_, {": ", stretch_.from, " to ", stretch_.to});
    WriteUnitCosts(month);
    WriteFigure({words.outOfPocket}, ColumnKey::MonthCost, month);
    WriteFigure({" Monthly Cost of ", words.plural, " Including Interest for Month: "},
                ColumnKey::MonthWithInterest, month);
    WriteFigure({" Cumulative Cost of ", words.plural, " Thru Month: "}, ColumnKey::CumulativeCost, month);
    WriteFigure({" Cumulative Cost of ", words.plural, " Thru Month with Interest: "},
                ColumnKey::CumulativeCostWithInterest, month);
    text_ += kRuleLine;
  }

 private:
  bool FutureActive() const { return stretch_.kind == MonthKind::Active && stretch_.side == Side::Future; }

  // The months of past periods and those between future ones have the other form of the heading.
  string_view Heading() const {
    const bool twin = (stretch_.kind == MonthKind::Active) == (stretch_.side == Side::Past);
    return twin ? sin_.month.headingTwin : sin_.month.heading;
  }

  void WriteFigure(std::initializer_list<string_view> before, ColumnKey key, const ReportMonth& month) {
    for (string_view part : before) text_ += part;
    cells_.Append(text_, key, month);
    text_ += kLineEnd;
  }

  // The flat-rate class has a line for the unit cost, though its rows have no cell.
  void WriteUnitCosts(const ReportMonth& month) {
    const DocumentMonthWords& words = sin_.month;
    const auto line = [&](string_view before, ColumnKey key) { WriteFigure({before}, key, month); };
    const bool net = sin_.costClass == CostClass::NetUnitsClass;
    // In the months of future periods coffee and water have no quantity, but the gross cost a second time.
    const bool grossAgain = net && FutureActive();
    if (!grossAgain) line(words.quantity, ColumnKey::Quantity);
    line(words.unitCost, ColumnKey::UnitCost);
    if (net) {
      line(words.reasonableCost, ColumnKey::ReasonableCost);
      line(words.adjustedCost, ColumnKey::AdjustedCost);
    }
    if (grossAgain) line(words.plainUnitCost, ColumnKey::UnitCost);
  }

  const SinRow& sin_;
  std::string& text_;
  ReportCells cells_;
  ReportStretch stretch_{};
};

class TableWriter : public MonthSink {
 public:
  TableWriter(const SinWorkspace& ws, std::string& text)
      : text_(text),
        columns_(ColumnsOf(ws.Class())),
        cells_(ReportLayout::Document, ws.GetSession().currency) {}

  void Begin(const ReportStretch& stretch) override {
    text_.reserve(text_.size() + kTableLineSize * static_cast<std::size_t>(stretch.months));
  }

  void Add(const ReportMonth& month) override {
    cells_.AppendLine(text_, columns_, month);
    text_ += kLineEnd;
  }

 private:
  std::string& text_;
  std::vector<const ReportColumn*> columns_;
  ReportCells cells_;
};

// The lines of what a period costs, as its class has them.
void AppendCosts(std::string& text, const WorkspaceSide& side, const PeriodRecord& record) {
  const DocumentHeaderWords& words = side.Sin().header;
  const std::string position = std::to_string(record.QuantityListIndex);
  if (side.Class() == CostClass::FlatRateClass) {
    AppendLine(text, {words.costLine[side.Which()], position});
    return;
  }
  AppendLine(text, {words.costLine[side.Which()], record.InitialCostText});
  if (side.Class() == CostClass::NetUnitsClass) {
    const double excess = MoneyToNumber(record.InitialCostText) - MoneyToNumber(record.ReasonableCostText);
    AppendLine(text, {words.reasonableLine, record.ReasonableCostText});
    AppendLine(text,
               {words.excessLine, FormatMoneyLetter(side.GetSession().currency, excess, kExcessFormat)});
    AppendLine(text, {words.percentLine, record.PercentIncreaseText});
  } else if (record.CostModeFlag) {
    AppendLine(text, {words.percentLine, record.PercentIncreaseText});
  } else {
    AppendLine(text, {words.finalCostLine, record.FinalCostText});
  }
  AppendLine(text, {words.quantityLine, position});
}

}  // namespace

std::string ParametersInPeriodDoc(const WorkspaceSide& side, int period) {
  std::string text;
  const PeriodRecord& record = side.Record(period);
  if (!record.PeriodSet || !record.PeriodEnabled) return text;
  AppendLine(text, {PeriodName(side.Which(), period), " Set and Enabled and has the following Parmeters:"});
  AppendLine(text, {side.Sin().header.startLine, record.StartLabel});
  AppendLine(text, {side.Sin().header.stopLine, record.StopLabel});
  AppendCosts(text, side, record);
  AppendLine(text, {"Yearly Savings Rate One can Earn on Saved Money: ", record.InterestRateText});
  AppendLine(text, {"Yearly Inflation Rate: ", record.InflationRateText});
  text += kRuleLine;
  return text;
}

std::string CsvText(const SinWorkspace& ws, bool showHeading) {
  std::string text;
  if (!showHeading) return text;
  for (const auto& cells : ws.Sin().tableHeading) {
    bool first = true;
    for (string_view cell : cells) {
      if (!first) text += '\t';
      first = false;
      text += cell;
    }
    text += kLineEnd;
  }
  text += kLineEnd;
  return text;
}

std::unique_ptr<MonthSink> MakeDocWriter(const SinWorkspace& ws, bool docFlag, std::string& text) {
  if (docFlag) return std::make_unique<BlockWriter>(ws, text);
  return std::make_unique<TableWriter>(ws, text);
}

}  // namespace vicetoll
