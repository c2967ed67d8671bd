#include "reports/doc_text.h"

#include <initializer_list>

#include "calendar/money.h"
#include "calendar/number_text.h"
#include "reports/cell_line.h"

namespace vicetoll {
namespace {

using std::string_view;

constexpr string_view kQuantityFormat = "#,##0.00";
constexpr string_view kCentsFormat = "$#,##0.00";
constexpr string_view kWholeFormat = "$#,##0";
constexpr string_view kExcessFormat = "$##.00";
constexpr string_view kNotApplicable = "N/A";
constexpr string_view kLineEnd = "\r\n";
constexpr string_view kRuleLine =
    "____________________________________________"
    "____________________________________________\r\n";

// Widths that figures are padded to.
constexpr std::size_t kQuantityWidth = 12;
constexpr std::size_t kUnitCostWidth = 16;
constexpr std::size_t kMonthCostWidth = 14;
constexpr std::size_t kFreeMonthCostWidth = 16;  // of a month without cost; wider than the others' for good
constexpr std::size_t kAmountWidth = 14;

// What a month takes in the text, about.
constexpr std::size_t kBlockSize = 640;
constexpr std::size_t kTableLineSize = 180;

void AppendLine(std::string& text, std::initializer_list<string_view> parts) {
  for (string_view part : parts) text += part;
  text += kLineEnd;
}

std::string Padded(std::string text, std::size_t width) {
  if (text.size() < width) text.append(width - text.size(), ' ');
  return text;
}

// The figures of a month as the document view shows them: padded, with the letter "e" for the euro.
class Figures {
 public:
  explicit Figures(const SinWorkspace& ws)
      : net_(ws.Class() == CostClass::NetUnitsClass), currency_(ws.GetSession().currency) {}

  void Take(const ReportMonth& month, bool active) {
    if (active)
      TakeCosts(month);
    else
      TakeNoCosts();
    monthWithInterest = Money(month.monthWithInterest, kCentsFormat, kAmountWidth);
    cumulativeCost = Money(month.cumulativeCost, kWholeFormat, kAmountWidth);
    cumulativeCostWithInterest = Money(month.cumulativeCostWithInterest, kWholeFormat, kAmountWidth);
  }

  std::string quantity, unitCost, reasonableCost, adjustedCost, monthCost;
  std::string monthWithInterest, cumulativeCost, cumulativeCostWithInterest;

 private:
  std::string Money(double value, string_view format, std::size_t width) const {
    return Padded(FormatMoneyLetter(currency_, value, format), width);
  }

  void TakeCosts(const ReportMonth& month) {
    quantity = Padded(FormatNumber(month.quantity, kQuantityFormat), kQuantityWidth);
    unitCost = Money(month.unitCost, kCentsFormat, kUnitCostWidth);
    if (net_) {
      reasonableCost = Money(month.reasonableCost, kCentsFormat, kUnitCostWidth);
      adjustedCost = Money(month.adjustedCost, kCentsFormat, kUnitCostWidth);
    }
    monthCost = Money(month.monthCost, kCentsFormat, kMonthCostWidth);
  }

  void TakeNoCosts() {
    quantity = Padded(FormatNumber(0, kQuantityFormat), kQuantityWidth);
    unitCost = Padded(std::string(kNotApplicable), kUnitCostWidth);
    reasonableCost = adjustedCost = kNotApplicable;  // these two are not padded
    monthCost = Money(0, kCentsFormat, kFreeMonthCostWidth);
  }

  bool net_;
  Currency currency_;
};

class DocWriter : public MonthSink {
 public:
  DocWriter(const SinWorkspace& ws, std::string& text) : sin_(ws.Sin()), text_(text), figures_(ws) {}

  void Begin(const ReportStretch& stretch) override {
    stretch_ = stretch;
    period_ = std::to_string(stretch.period);
    text_.reserve(text_.size() + MonthSize() * static_cast<std::size_t>(stretch.months));
  }

  void Add(const ReportMonth& month) override {
    figures_.Take(month, stretch_.kind == MonthKind::Active);
    Write(month);
  }

 protected:
  virtual std::size_t MonthSize() const = 0;
  virtual void Write(const ReportMonth& month) = 0;

  const SinRow& sin_;
  std::string& text_;
  Figures figures_;
  ReportStretch stretch_{};
  std::string period_;
};

class BlockWriter : public DocWriter {
 public:
  using DocWriter::DocWriter;

 private:
  std::size_t MonthSize() const override { return kBlockSize; }

  void Write(const ReportMonth& month) override {
    const DocumentMonthWords& words = sin_.month;
    text_ += " Month Number ";
    AppendNumber(text_, month.index);
    text_ += ":";
    text_ += Heading();
    text_ += month.label;
    if (stretch_.kind != MonthKind::Gap) {
      text_ += " of Period ";
      text_ += period_;
    }
    text_ += kLineEnd;
    AppendLine(text_, {" Period ", period_, ": ", stretch_.from, " to ", stretch_.to});
    WriteUnitCosts(words);
    AppendLine(text_, {words.outOfPocket, figures_.monthCost});
    AppendLine(text_, {" Monthly Cost of ", words.plural,
                       " Including Interest for Month: ", figures_.monthWithInterest});
    AppendLine(text_, {" Cumulative Cost of ", words.plural, " Thru Month: ", figures_.cumulativeCost});
    AppendLine(text_, {" Cumulative Cost of ", words.plural,
                       " Thru Month with Interest: ", figures_.cumulativeCostWithInterest});
    text_ += kRuleLine;
  }

  bool FutureActive() const { return stretch_.kind == MonthKind::Active && stretch_.side == Side::Future; }

  // The months of past periods and those between future ones have the other form of the heading.
  string_view Heading() const {
    const bool twin = (stretch_.kind == MonthKind::Active) == (stretch_.side == Side::Past);
    return twin ? sin_.month.headingTwin : sin_.month.heading;
  }

  void WriteUnitCosts(const DocumentMonthWords& words) {
    const bool net = sin_.costClass == CostClass::NetUnitsClass;
    // In the months of future periods coffee and water have no quantity, but the gross cost a second time.
    const bool grossAgain = net && FutureActive();
    if (!grossAgain) AppendLine(text_, {words.quantity, figures_.quantity});
    AppendLine(text_, {words.unitCost, figures_.unitCost});
    if (net) {
      AppendLine(text_, {words.reasonableCost, figures_.reasonableCost});
      AppendLine(text_, {words.adjustedCost, figures_.adjustedCost});
    }
    if (grossAgain) AppendLine(text_, {words.plainUnitCost, figures_.unitCost});
  }
};

class TableWriter : public DocWriter {
 public:
  using DocWriter::DocWriter;

 private:
  std::size_t MonthSize() const override { return kTableLineSize; }

  void Write(const ReportMonth& month) override {
    CellLine line(text_);
    line.Cell(month.index);
    line.Cell(stretch_.kind == MonthKind::Gap ? kNotApplicable : string_view(period_));
    line.Cell(month.label);
    line.Cell(figures_.quantity);
    // The flat-rate class has no cell for the unit cost, though its blocks have a line.
    if (sin_.costClass != CostClass::FlatRateClass) line.Cell(figures_.unitCost);
    if (sin_.costClass == CostClass::NetUnitsClass) {
      line.Cell(figures_.reasonableCost);
      line.Cell(figures_.adjustedCost);
    }
    line.Cell(figures_.monthCost);
    line.Cell(figures_.monthWithInterest);
    line.Cell(figures_.cumulativeCost);
    line.LastCell(figures_.cumulativeCostWithInterest);
    text_ += kLineEnd;
  }
};

// The lines of what a period costs, as its class has them.
void AppendCosts(std::string& text, const SinWorkspace& ws, Side side, const PeriodRecord& record) {
  const DocumentHeaderWords& words = ws.Sin().header;
  const std::string position = std::to_string(record.QuantityListIndex);
  if (ws.Class() == CostClass::FlatRateClass) {
    AppendLine(text, {words.costLine[side], position});
    return;
  }
  AppendLine(text, {words.costLine[side], record.InitialCostText});
  if (ws.Class() == CostClass::NetUnitsClass) {
    const double excess = MoneyToNumber(record.InitialCostText) - MoneyToNumber(record.ReasonableCostText);
    AppendLine(text, {words.reasonableLine, record.ReasonableCostText});
    AppendLine(text, {words.excessLine, FormatMoneyLetter(ws.GetSession().currency, excess, kExcessFormat)});
    AppendLine(text, {words.percentLine, record.PercentIncreaseText});
  } else if (record.CostModeFlag) {
    AppendLine(text, {words.percentLine, record.PercentIncreaseText});
  } else {
    AppendLine(text, {words.finalCostLine, record.FinalCostText});
  }
  AppendLine(text, {words.quantityLine, position});
}

}  // namespace

std::string ParametersInPeriodDoc(const SinWorkspace& ws, Side side, std::int16_t period) {
  std::string text;
  const PeriodRecord& record = ws.Record(side, period);
  if (!record.PeriodSet || !record.PeriodEnabled) return text;
  AppendLine(text, {PeriodPrefix(side), std::to_string(period),
                    " Set and Enabled and has the following Parmeters:"});
  AppendLine(text, {ws.Sin().header.startLine, record.StartLabel});
  AppendLine(text, {ws.Sin().header.stopLine, record.StopLabel});
  AppendCosts(text, ws, side, record);
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
