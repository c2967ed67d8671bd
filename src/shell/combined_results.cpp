// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/combined_results.h"

#include <algorithm>

#include "base/fault.h"
#include "calendar/number_text.h"
#include "engine/side_chain.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

struct ColumnDesign {
  std::string_view frame, caption, cells, total;
};

constexpr ColumnDesign kColumnDesigns[] = {
    {"frameOOPPastSins", "OutOfPocket Cost Past Sins", "txtOopPastSins", "txtOopPastSinsTotal"},
    {"frameCumPastSins", "Cumulative Cost Past Sins", "txtCumPastSins", "txtCumPastSinsTotal"},
    {"frameOOPFutSins", "OutOfPocket Cost Future Sins", "txtOopFutSins", "txtOopFutSinsTotal"},
    {"frameCumFutSins", "Cumulative Cost Future Sins", "txtCumFutSins", "txtCumFutSinsTotal"},
    {"frameOOPSins", "Combined OutOfPocket Cost", "txtOopSins", "txtOopSinsTotal"},
    {"frameCumSins", "Combined Cumulative Cost ", "txtCumSins", "txtCumSinsTotal"},
};

// The entries of comDataRep by position.
enum Representation { kWords, kBlank, kZero };

// In twips: one table, its ticks in front of their rows, the totals set apart below.
constexpr int kMargin = 200;
constexpr int kTickWidth = 3000;
constexpr int kColumnWidth = 2050;
constexpr int kGap = 60;
constexpr int kFirstRow = 720;  // below a caption of two lines
constexpr int kRowStep = 420;
constexpr int kCellHeight = 360;
constexpr int kTotalTop = kFirstRow + kSinCount * kRowStep + 180;
constexpr int kTableHeight = kTotalTop + kCellHeight + 180;
constexpr int kBottom = kMargin + kTableHeight + 200;
constexpr int kCombinedWidth =
    2 * kMargin + kTickWidth + static_cast<int>(std::size(kColumnDesigns)) * (kColumnWidth + kGap);
constexpr int kCombinedHeight = kBottom + 1150;

// The amount in a cell; a text that is none (words, a blank, a lone currency symbol) adds nothing.
double AmountIn(const std::string& text) { return AmountShown(text).value_or(0); }

constexpr std::string_view kTotalCaption = "Total";

// The caption of the frame that a control stands in.
std::string CaptionAround(const Control& control) {
  std::string caption = dynamic_cast<const Frame&>(*control.Container()).Caption();
  caption.erase(caption.find_last_not_of(' ') + 1);
  return caption;
}

bool IsZeroOrEmpty(const std::string& text) { return text.empty() || text == "0"; }

}  // namespace

CombinedResults::CombinedResults(Workspaces& workspaces)
    : Form("frmCombRes", "The \"Vicetoll\" Combined Results"), workspaces_(workspaces) {
  MakeTicks();
  MakeColumns();
  MakeBottom();
  JoinTable();
  // Smaller, its buttons would be out of reach.
  onResize = [this] { Resize(std::max(Width(), kCombinedWidth), std::max(Height(), kCombinedHeight)); };
  Resize(kCombinedWidth, kCombinedHeight);
}

void CombinedResults::MakeTicks() {
  Frame& frame = Add<Frame>({"FrameWhichSins"}, "Included Sins");
  frame.SetPlace({kMargin, kMargin, kTickWidth, kTableHeight});
  for (int i = 0; i < kSinCount; ++i) {
    CheckBox& tick = Add<CheckBox>({"chkWhichSins", i, &frame}, Catalogue()[i].checkCaption);
    tick.SetPlace({150, kFirstRow + i * kRowStep, kTickWidth - 250, kCellHeight});
    tick.SetValue(true);
    tick.onClick = [this, i] {
      PopulateTotals();
      ShowRow(i);
    };
    chkWhichSins_[i] = &tick;
  }
  Label& total = Add<Label>({"lblTotal", kNoIndex, &frame}, kTotalCaption);
  total.SetPlace({150, kTotalTop, kTickWidth - 250, kCellHeight});
}

// The Tab key comes to the table once; the arrows go about in it.
void CombinedResults::JoinTable() {
  ControlTable& table = AddTable();
  for (int i = 0; i < kSinCount; ++i) {
    std::vector<Control*> row = {chkWhichSins_[i]};
    for (const ColumnControls& column : columns_) row.push_back(column.cells[i]);
    table.AddRow(std::move(row));
  }
  std::vector<Control*> totals = {nullptr};
  for (const ColumnControls& column : columns_) totals.push_back(column.total);
  table.AddRow(std::move(totals));
}

std::vector<const Control*> CombinedResults::ResultsOf(const Control& by) const {
  if (&by != cmdUpdate_ && &by != comDataRep_ && by.Kind() != ControlKind::CheckBox) return {};
  std::vector<const Control*> totals;
  for (const ColumnControls& column : columns_) totals.push_back(column.total);
  return totals;
}

void CombinedResults::MakeColumns() {
  for (int c = 0; c < kColumns; ++c) {
    const ColumnDesign& design = kColumnDesigns[c];
    Frame& frame = Add<Frame>({std::string(design.frame)}, design.caption);
    frame.SetPlace(
        {kMargin + kTickWidth + kGap + c * (kColumnWidth + kGap), kMargin, kColumnWidth, kTableHeight});
    for (int i = 0; i < kSinCount; ++i) {
      TextBox& cell = Add<TextBox>({std::string(design.cells), i, &frame});
      cell.SetPlace({100, kFirstRow + i * kRowStep, kColumnWidth - 200, kCellHeight});
      cell.SetLabelledBy({&frame, chkWhichSins_[i]});
      columns_[c].cells[i] = &cell;
    }
    columns_[c].total = &Add<TextBox>({std::string(design.total), kNoIndex, &frame});
    columns_[c].total->SetPlace({100, kTotalTop, kColumnWidth - 200, kCellHeight});
    columns_[c].total->SetLabelledBy({&Get<Label>("lblTotal"), &frame});
  }
}

void CombinedResults::MakeBottom() {
  Frame& frame = Add<Frame>({"frmDataRep"}, "Representation for No Data in Textbox");
  frame.SetPlace({kMargin, kBottom, 4800, 900});
  comDataRep_ = &Add<DropDownList>({"comDataRep", kNoIndex, &frame});
  comDataRep_->SetPlace({150, 380, 4500, 380});
  comDataRep_->SetTakesTyping(true);
  // The last entry is made once, in the currency of that moment.
  const bool dollar = workspaces_.GetSession().CurrencyIsDollar();
  comDataRep_->Append("NO DATA");
  comDataRep_->Append("BLANK");
  comDataRep_->Append(dollar ? "$0" : std::string(1, kEuroSign) + "0");
  comDataRep_->SelectEntry(kZero);
  comDataRep_->onPick = [this] { PopulateCombResultsText(); };
  comDataRep_->onType = [this] { PopulateCombResultsText(); };
  cmdUpdate_ = &Add<Button>({"cmdUpdate"}, "Update");
  cmdUpdate_->SetPlace({5600, kBottom + 250, 2200, 600});
  cmdUpdate_->onClick = [this] { PopulateCombResultsText(); };
  Add<Button>({"cmdChart"}, "Chart").SetPlace({8000, kBottom + 250, 2200, 600});
  Button& take = Add<Button>({"cmdExport"}, kExportCaption);
  take.SetPlace({10400, kBottom + 250, 2200, 600});
  take.SetKeys(kExportKeys);
  cmdExit_ = &Add<Button>({"cmdExit"}, "Exit");
  cmdExit_->SetPlace({kCombinedWidth - kMargin - 2200, kBottom + 250, 2200, 600});
  cmdExit_->onClick = [this] { Hide(); };
  Add<MenuEntry>({"cmdCopy"}, "Copy").onClick = [this] {
    workspaces_.GetSession().platform.SetClipboard(TabSeparated(TickedRows()));
  };
}

void CombinedResults::PopulateCombResultsText() {
  for (int i = 0; i < kSinCount; ++i)
    GetIndividualSinValues(workspaces_.At(i), i, SideIndexOf(i, Side::Past), SideIndexOf(i, Side::Future));
  PopulateTotals();
}

const std::string& CombinedResults::NoData() {
  // What was typed and is no entry leaves the representation as it was.
  const int entry = comDataRep_->Find(comDataRep_->Text());
  if (entry == kBlank)
    noData_.clear();
  else if (entry != -1)
    noData_ = comDataRep_->Entry(entry);
  return noData_;
}

std::string CombinedResults::Money(double amount) const {
  return FormatMoney(workspaces_.GetSession().currency, amount, kTotalFormat);
}

// The balance of the last period that shows one, which holds those of the periods before it.
std::string CombinedResults::LastShownBalance(const SideControls& side, const std::string& noData) const {
  for (int p = kPeriodCount; p >= 1; --p) {
    const TextBox& box = side.txtCumulativeResultsPeriod(p);
    if (box.Visible() && box.Text() != "0") return box.Text();
  }
  return noData;
}

std::string CombinedResults::Joined(const std::string& past, const std::string& future, double both,
                                    const std::string& noData) const {
  if (past == noData) return future;  // also where both have no data
  if (future == noData) return past;
  return Money(both);
}

void CombinedResults::GetIndividualSinValues(SinWorkspace& workspace, int index, SideIndex pastSide,
                                             SideIndex futureSide) {
  if (index < 0 || index >= kSinCount) throw Fault(FaultKind::Index, "The table has no such row.");
  const SideControls& past = workspace.Of(Side::Past);
  const SideControls& future = workspace.Of(Side::Future);
  if (!IsZeroOrEmpty(future.txtResultsTotal->Text()) || !IsZeroOrEmpty(past.txtResultsTotal->Text()))
    UpdateCombinedCumulative(workspace, pastSide, futureSide);
  const std::string& noData = NoData();
  const auto orNoData = [&noData](const std::string& text) { return IsZeroOrEmpty(text) ? noData : text; };
  const std::string pastCost = orNoData(past.txtResultsTotal->Text());
  const std::string pastBalance = orNoData(LastShownBalance(past, noData));
  const std::string futureCost = orNoData(future.txtResultsTotal->Text());
  const std::string futureBalance = orNoData(LastShownBalance(future, noData));
  const auto show = [&](Column column, const std::string& text) {
    columns_[column].cells[index]->SetText(text);
  };
  show(kPastCost, pastCost);
  show(kPastBalance, pastBalance);
  show(kFutureCost, futureCost);
  show(kFutureBalance, futureBalance);
  show(kCost, Joined(pastCost, futureCost, AmountIn(pastCost) + AmountIn(futureCost), noData));
  // Not the sum of the two: this figure carries the past's balance forward at interest.
  show(kBalance, Joined(pastBalance, futureBalance,
                        AmountIn(workspace.txtCumulativeResultsTotalSummaryTot->Text()), noData));
}

void CombinedResults::PopulateTotals() {
  const std::string noData = NoData();
  for (ColumnControls& column : columns_) {
    // The running sum is kept as text, which holds 15 digits.
    std::string total = "0";
    for (int i = 0; i < kSinCount; ++i)
      if (chkWhichSins_[i]->Value() && column.cells[i]->Text() != noData)
        total = NumberToText(TextToNumber(total) + AmountIn(column.cells[i]->Text()));
    column.total->SetText(total == "0" ? noData : Money(TextToNumber(total)));
  }
}

SinsAsShown CombinedResults::TickedRows() const {
  static_assert(kColumns == kSinAmounts);
  SinsAsShown table{
      .title = Caption(), .headings = {CaptionAround(*chkWhichSins_[0])}, .sins = {}, .total = {}};
  table.total.caption = kTotalCaption;
  for (int i = 0; i < kSinCount; ++i)
    if (chkWhichSins_[i]->Value()) table.sins.push_back({chkWhichSins_[i]->Caption(), {}});
  for (std::size_t c = 0; c < kSinAmounts; ++c) {
    table.headings.push_back(CaptionAround(*columns_[c].cells[0]));
    auto row = table.sins.begin();
    for (int i = 0; i < kSinCount; ++i)
      if (chkWhichSins_[i]->Value()) (row++)->amounts[c] = columns_[c].cells[i]->Text();
    table.total.amounts[c] = columns_[c].total->Text();
  }
  return table;
}

SinFigures CombinedResults::Figures() const {
  // A cell whose text is no amount counts as nothing.
  const auto bar = [this](std::string caption, const auto& cellOf) {
    const auto amount = [&](Column column) { return AmountIn(cellOf(columns_[column]).Text()); };
    return ChartBar{std::move(caption),     amount(kPastCost), amount(kPastBalance), amount(kFutureCost),
                    amount(kFutureBalance), amount(kCost),     amount(kBalance)};
  };
  SinFigures figures;
  for (int i = 0; i < kSinCount; ++i) {
    if (!chkWhichSins_[i]->Value()) continue;
    const auto cell = [i](const ColumnControls& column) -> const TextBox& { return *column.cells[i]; };
    figures.sins.push_back(bar(chkWhichSins_[i]->Caption(), cell));
  }
  figures.total = bar(std::string(kTotalCaption),
                      [](const ColumnControls& column) -> const TextBox& { return *column.total; });
  return figures;
}

void CombinedResults::ShowRow(int index) {
  for (ColumnControls& column : columns_) column.cells[index]->SetVisible(chkWhichSins_[index]->Value());
}

}  // namespace vicetoll
