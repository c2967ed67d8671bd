// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario/player.h"

#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "base/code_page.h"
#include "base/fault.h"
#include "charts/chart_text.h"
#include "scenario/read_export.h"
#include "scenario/script.h"
#include "vocabulary/operations.h"

namespace vicetoll {
namespace {

std::string Flag(bool flag) { return flag ? "-1" : "0"; }
std::string Bit(bool flag) { return flag ? "1" : "0"; }

// With a point in every locale.
std::string NumberText(double value, std::chars_format format, int precision) {
  char text[400];
  return {text, std::to_chars(text, text + sizeof text, value, format, precision).ptr};
}

std::string Twelve(double value) { return NumberText(value, std::chars_format::general, 12); }
std::string TwoDecimals(double value) { return NumberText(value, std::chars_format::fixed, 2); }

// The commands and how many words follow them.
struct Command {
  std::string_view name;
  std::size_t least, most;
};

constexpr std::size_t kAny = 100;
constexpr Command kCommands[] = {
    {"clock", 2, 2},  {"in", 1, 1},      {"focus", 1, 1},   {"choose", 2, 2},    {"click", 1, 1},
    {"tab", 1, 1},    {"type", 2, 2},    {"select", 3, 5},  {"resize", 2, 2},    {"answer", 2, 2},
    {"show", 1, 1},   {"dump", 0, 0},    {"results", 0, 0}, {"entries", 1, 1},   {"record", 2, 2},
    {"fields", 0, 0}, {"globals", 0, 0}, {"call", 1, kAny}, {"rows", 0, 0},      {"selection", 0, 0},
    {"text", 1, 1},   {"file", 1, 1},    {"tips", 0, 0},    {"clipboard", 0, 0}, {"balloons", 0, 0},
    {"place", 1, 1},  {"canvas", 0, 0},  {"chart", 1, 1},   {"export", 1, 1},    {"entries-file", 0, 0},
};

// A line is understood or refused as a whole, before anything is done.
void CheckWords(const std::vector<Word>& words) {
  for (const Command& command : kCommands) {
    if (words.front().text != command.name) continue;
    if (words.size() - 1 < command.least) throw BadLine("a word is missing");
    if (words.size() - 1 > command.most) throw BadLine("too many words");
    return;
  }
  throw BadLine("an unknown command: " + words.front().text);
}

}  // namespace

// A line in the works: its words, taken from left to right.
struct Player::Line {
  std::vector<Word> words;
  std::size_t next = 1;

  const std::string& Command() const { return words.front().text; }
  std::size_t Left() const { return words.size() - next; }
  const Word& Take() {
    if (next >= words.size()) throw BadLine("a word is missing");
    return words[next++];
  }
  std::string TakeBare() {
    const Word& word = Take();
    if (word.quoted) throw BadLine("a bare word is wanted");
    return word.text;
  }
  const Word& TakeQuoted() {
    const Word& word = Take();
    if (!word.quoted) throw BadLine("a text in quotes is wanted");
    return word;
  }
  int TakeInt() {
    const std::string text = TakeBare();
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size()) throw BadLine("no number: " + text);
    return value;
  }
};

PlayResult Player::Play(std::istream& lines) {
  std::string text;
  bool first = true;
  for (int number = 1; std::getline(lines, text); ++number) {
    if (number == 1 && text.starts_with("\xEF\xBB\xBF")) text.erase(0, 3);  // a byte order mark
    const std::size_t begin = text.find_first_not_of(" \t");
    if (begin != std::string::npos && text[begin] == '#') continue;
    try {
      Line line{SplitLine(text)};
      if (line.words.empty()) continue;
      CheckWords(line.words);
      if (line.Command() == "clock") {
        if (!first) throw BadLine("the clock is set by the first line only");
        platform_.now.month = line.TakeInt();
        platform_.now.year = line.TakeInt();
        if (platform_.now.month < 1 || platform_.now.month > 12) throw BadLine("no such month");
      }
      const bool isClock = line.Command() == "clock";
      if (first) Start();
      first = false;
      if (!isClock) Run(line);
    } catch (const Fault& fault) {
      print_("fault " + std::string(FaultName(fault.Kind())));
      std::cerr << fault.what() << '\n';
      return PlayResult::Fault;
    } catch (const BadLine& bad) {
      std::cerr << "line " << number << ": " << bad.what() << '\n';
      return PlayResult::BadLine;
    } catch (const BadCall& bad) {
      std::cerr << "line " << number << ": " << bad.what() << '\n';
      return PlayResult::BadLine;
    }
    if (program_->Ended()) break;
  }
  return PlayResult::Done;
}

void Player::Start() {
  program_ = std::make_unique<Program>(platform_);
  stage_ = makeStage_(*program_);
  workspace_ = &program_->At(0);
  window_ = workspace_;
}

void Player::Run(Line& line) {
  if (!RunUserLine(line)) RunQuestion(line);
}

bool Player::RunUserLine(Line& line) {
  const std::string& command = line.Command();
  if (command == "in") {
    const std::string name = line.TakeBare();
    Form* window = program_->Window(name);
    if (window == nullptr) throw BadLine("no window " + name);
    window_ = window;
    if (auto* workspace = dynamic_cast<SinWorkspace*>(window)) workspace_ = workspace;
  } else if (command == "focus") {
    Control& control = Find(line.TakeBare());
    Report(stage_->Focus(control), control.FullName());
  } else if (command == "choose") {
    Choose(line);
  } else if (command == "click") {
    Control& control = Find(line.TakeBare());
    Report(stage_->Click(control), control.FullName());
  } else if (command == "tab") {
    const int tab = line.TakeInt();
    if (tab < 0 || tab > 2) throw BadLine("no such tab");
    TabControl& tabs = *Workspace().SSTab_PastFutureSwitch;
    Report(stage_->SelectTab(tabs, tab), tabs.FullName());
  } else if (command == "type") {
    Control& control = Find(line.TakeBare());
    Report(stage_->Type(control, line.TakeQuoted().text), control.FullName());
  } else if (command == "select") {
    Select(line);
  } else if (command == "resize") {
    Resize(line);
  } else if (command == "answer") {
    Answer(line);
  } else {
    return false;
  }
  return true;
}

void Player::RunQuestion(Line& line) {
  const std::string& command = line.Command();
  if (command == "show") {
    const std::string name = line.TakeBare();
    print_(name == "window" ? WindowLine() : StateLine(Find(name)));
  } else if (command == "dump") {
    Dump();
  } else if (command == "results") {
    Results();
  } else if (command == "entries") {
    ShowEntries(FindOf<DropDownList>(line.TakeBare(), "list"));
  } else if (command == "record") {
    const int period = line.TakeInt();
    ShowRecord(period, line.TakeInt());
  } else if (command == "fields") {
    ShowFields();
  } else if (command == "globals") {
    ShowGlobals();
  } else if (command == "call") {
    CallOperationLine(line);
  } else if (command == "text") {
    ShowText(Find(line.TakeBare()));
  } else if (command == "rows") {
    ShowRows();
  } else if (command == "selection") {
    ShowSelection();
  } else if (command == "file") {
    ShowFile(line.TakeQuoted().utf8);
  } else if (command == "export") {
    ShowExport(line.TakeQuoted().utf8);
  } else if (command == "clipboard") {
    print_("clipboard " + Quoted(platform_.Clipboard()));
  } else if (command == "tips") {
    ShowTips();
  } else if (command == "balloons") {
    ShowBalloons();
  } else if (command == "place") {
    ShowPlace(line.TakeBare());
  } else if (command == "canvas") {
    ShowCanvas();
  } else if (command == "chart") {
    ShowChart(FindOf<Chart>(line.TakeBare(), "chart"));
  } else if (command == "entries-file") {
    ShowEntriesFile();
  }
}

void Player::Report(UserOutcome outcome, const std::string& control) {
  if (outcome == UserOutcome::Refused) print_("refused " + control);
  if (outcome == UserOutcome::NoEntry) print_("no entry " + control);
}

void Player::Choose(Line& line) {
  DropDownList& list = FindOf<DropDownList>(line.TakeBare(), "list");
  int position = -1;
  if (line.Left() > 0 && line.words[line.next].quoted) {
    const std::string text = line.Take().text;
    const std::vector<std::string> entries = stage_->Entries(list);
    for (std::size_t i = 0; i < entries.size() && position == -1; ++i)
      if (entries[i] == text) position = static_cast<int>(i);
  } else {
    position = line.TakeInt();
  }
  Report(stage_->Choose(list, position), list.FullName());
}

void Player::Resize(Line& line) {
  const int width = line.TakeInt();
  const int height = line.TakeInt();
  Report(stage_->Resize(*window_, width, height), "window");
}

void Player::Select(Line& line) {
  Control& control = Find(line.TakeBare());
  if (auto* document = dynamic_cast<DocumentText*>(&control)) {
    const int start = line.TakeInt();
    const int length = line.TakeInt();
    if (line.Left() > 0) throw BadLine("too many words");
    return Report(stage_->SelectText(*document, start, length), control.FullName());
  }
  auto* grid = dynamic_cast<Grid*>(&control);
  if (grid == nullptr) throw BadLine(control.FullName() + " has no selection");
  CellSpan cells;
  for (int* number : {&cells.row, &cells.col, &cells.rowSel, &cells.colSel}) *number = line.TakeInt();
  Report(stage_->SelectCells(*grid, cells), control.FullName());
}

void Player::Answer(Line& line) {
  const std::string what = line.TakeBare();
  QueuedAnswers& answers = platform_.answers;
  if (what == "file") {
    const Word& word = line.Take();
    if (!word.quoted && word.text != "cancel") throw BadLine("a path in quotes or cancel is wanted");
    answers.files.push_back(word.quoted ? std::optional(word.utf8) : std::nullopt);
    return;
  }
  const std::string word = line.TakeBare();
  const bool no = what == "message" && word == "no";  // the second of three buttons
  if (word != "ok" && word != "cancel" && !no) throw BadLine("ok or cancel is wanted");
  const vicetoll::Answer answer = no             ? vicetoll::Answer::No
                                  : word == "ok" ? vicetoll::Answer::Ok
                                                 : vicetoll::Answer::Cancel;
  if (what == "message")
    answers.messages.push_back(answer);
  else if (what == "print")
    answers.prints.push_back(answer);
  else
    throw BadLine("no such box: " + what);
}

Control& Player::Find(const std::string& name) {
  Control* control = window_->Find(name);
  if (control == nullptr) throw BadLine("no control " + name + " in " + window_->Name());
  return *control;
}

template <class T>
T& Player::FindOf(const std::string& name, const char* kind) {
  auto* control = dynamic_cast<T*>(&Find(name));
  if (control == nullptr) throw BadLine(name + " is no " + kind);
  return *control;
}

SinWorkspace& Player::Workspace() { return *workspace_; }

std::string Player::StateLine(Control& control) {
  const ControlState state = stage_->Read(control);
  const std::string name = control.FullName();
  const std::string visible = " visible=" + Bit(state.visible);
  const std::string reach = " enabled=" + Bit(state.enabled) + visible;
  const std::string caption = " caption=" + Quoted(state.caption);
  switch (control.Kind()) {
    case ControlKind::List:
      return name + " text=" + Quoted(state.text) + " position=" + std::to_string(state.position) +
             " entries=" + std::to_string(state.entries) + reach;
    case ControlKind::TextBox:
      return name + " text=" + Quoted(state.text) + reach;
    case ControlKind::Button:
    case ControlKind::MenuEntry:
    case ControlKind::Frame:
      return name + caption + reach;
    case ControlKind::Option:
    case ControlKind::Radio:
    case ControlKind::CheckBox: {
      const bool coloured = control.Name().starts_with("optTimePeriod");
      return name + caption + " value=" + Bit(state.value) + reach +
             (coloured ? " colour=" + std::to_string(state.colour) : "");
    }
    case ControlKind::Label:
      return name + caption + visible;
    case ControlKind::TabControl:
      return name + " tab=" + std::to_string(state.tab) + reach;
    case ControlKind::Panel:
      return name + visible;
    case ControlKind::Grid:
      return name + " rows=" + std::to_string(state.rows) + visible;
    case ControlKind::DocumentText:
      return name + " length=" + std::to_string(state.length) + visible;
    case ControlKind::Chart:
      return name + " points=" + std::to_string(state.points) + visible;
  }
  return name;
}

std::string Player::WindowLine() {
  const FormState state = stage_->Read(*window_);
  return "window caption=" + Quoted(state.caption) + " shown=" + Bit(state.shown);
}

void Player::Dump() {
  print_(WindowLine());
  for (Control* control : window_->ControlsByName()) print_(StateLine(*control));
}

void Player::Results() {
  SinWorkspace& ws = Workspace();
  for (Side side : kSides) {
    SideControls& c = ws.Of(side);
    for (auto* boxes : {&c.txtResultsPeriod, &c.txtCumulativeResultsPeriod})
      for (int i = 1; i <= 2 * kPeriodCount; ++i) print_(StateLine((*boxes)(i)));
    print_(StateLine(*c.txtResultsTotal));
  }
  for (TextBox* box :
       {ws.Of(Side::Past).txtResultsTotalSummary, ws.Of(Side::Future).txtResultsTotalSummary,
        ws.txtResultsTotalSummaryTot, ws.txtCumulativeResultsTotalSummaryTot, ws.txtCumulativeFutureDateTot})
    print_(StateLine(*box));
}

void Player::ShowEntries(DropDownList& list) {
  const std::vector<std::string> entries = stage_->Entries(list);
  print_(list.FullName() + " entries=" + std::to_string(entries.size()));
  for (std::size_t i = 0; i < entries.size(); ++i)
    print_("  " + std::to_string(i) + " " + Quoted(entries[i]));
}

void Player::ShowRecord(int period, int side) {
  const PeriodRecord& r = program_->GetSession().store.At(period, SideIndex(side));
  std::string line = "record " + std::to_string(period) + " " + std::to_string(side);
  const auto add = [&line](const char* name, const std::string& value) {
    line += std::string(" ") + name + "=" + value;
  };
  add("PeriodSelected", Flag(r.PeriodSelected));
  add("PeriodSet", Flag(r.PeriodSet));
  add("PeriodFresh", Flag(r.PeriodFresh));
  add("PeriodEnabled", Flag(r.PeriodEnabled));
  add("StartLabel", Quoted(r.StartLabel));
  add("StopLabel", Quoted(r.StopLabel));
  add("StartListFirst", Quoted(r.StartListFirst));
  add("StartListLast", Quoted(r.StartListLast));
  add("StopListFirst", Quoted(r.StopListFirst));
  add("StopListLast", Quoted(r.StopListLast));
  add("InterestRateText", Quoted(r.InterestRateText));
  add("InflationRateText", Quoted(r.InflationRateText));
  add("PercentIncreaseText", Quoted(r.PercentIncreaseText));
  add("QuantityListIndex", std::to_string(r.QuantityListIndex));
  add("QuantityUnitFlag", Flag(r.QuantityUnitFlag));
  const CostClass costClass = Catalogue()[(side - 1) / 2].costClass;
  if (costClass != CostClass::FlatRateClass) add("InitialCostText", Quoted(r.InitialCostText));
  if (HasCostModes(costClass)) {
    add("FinalCostText", Quoted(r.FinalCostText));
    add("CostModeFlag", Flag(r.CostModeFlag));
  }
  if (costClass == CostClass::NetUnitsClass) add("ReasonableCostText", Quoted(r.ReasonableCostText));
  print_(line);
}

void Player::ShowFields() {
  SinWorkspace& ws = Workspace();
  std::string line = "fields";
  const auto add = [&line](const std::string& name, const std::string& value) {
    line += " " + name + "=" + value;
  };
  for (Side side : kSides) {
    const std::string suffix(OperationSuffix(side));
    add("CurrentPeriod" + suffix, std::to_string(ws.Of(side).state.CurrentPeriod));
    add("PreviousPeriod" + suffix, std::to_string(ws.Of(side).state.PreviousPeriod));
  }
  add("FuturePast_Flag", std::to_string(ws.FuturePast_Flag));
  add("CurrentIndexSub", std::to_string(ws.CurrentIndexSub));
  add("CurrentCumulativeCost", Twelve(ws.CurrentCumulativeCost));
  add("CurrentCumulativeCostWithInterest", Twelve(ws.CurrentCumulativeCostWithInterest));
  for (Side side : kSides)
    add(std::string(OperationSuffix(side)) + "BeginManualDate", Quoted(ws.Of(side).state.BeginManualDate));
  for (const auto& [kind, flags] :
       {std::pair("Spd", &ws.cmdAdvResultsSpd_Flag), std::pair("Doc", &ws.cmdAdvResultsDoc_Flag)}) {
    const std::string start = std::string("cmdAdvResults") + kind;
    add(start + "Past_Flag", Flag(flags->Past));
    add(start + "Fut_Flag", Flag(flags->Fut));
    add(start + "SummaryPast_Flag", Flag(flags->SummaryPast));
    add(start + "SummaryFut_Flag", Flag(flags->SummaryFut));
    add(start + "SummaryTot_Flag", Flag(flags->SummaryTot));
  }
  print_(line);
}

void Player::ShowGlobals() {
  const Session& session = program_->GetSession();
  std::string visited;
  for (const bool flag : session.SinVisited) visited += flag ? '1' : '0';
  print_("globals CurrencyIsDollar=" + Flag(session.CurrencyIsDollar()) +
         " CurrentSinKey=" + Quoted(session.CurrentSinKey) +
         " CurrentSinNumber=" + std::to_string(session.CurrentSinNumber.Number()) + " SinVisited=" + visited);
}

void Player::CallOperationLine(Line& line) {
  const std::string name = line.TakeBare();
  std::vector<std::string> texts;
  while (line.Left() > 0) texts.push_back(line.Take().text);
  const OperationValue value = CallOperation(*program_, Workspace(), name, Arguments(std::move(texts)));
  std::string shown = "ok";
  if (const auto* number = std::get_if<double>(&value)) shown = Twelve(*number);
  if (const auto* text = std::get_if<std::string>(&value)) shown = Quoted(*text);
  if (const auto* cells = std::get_if<MonthCostCells>(&value)) {
    shown.clear();
    for (int i = 0; i < cells->Columns(); ++i) shown += (i > 0 ? " " : "") + Quoted(cells->Column(i));
  }
  print_(name + " = " + shown);
}

void Player::ShowFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file || !std::filesystem::is_regular_file(path))
    return print_("file " + Quoted(FromUtf8(path)) + " missing");
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  print_("file " + Quoted(FromUtf8(path)) + " bytes=" + std::to_string(bytes.size()) + " " +
         QuotedBytes(bytes));
}

void Player::ShowExport(const std::string& path) {
  for (const std::string& line : ReadExport(path)) print_(line);
}

void Player::ShowTips() {
  for (Control* control : window_->ControlsByName())
    if (!control->ToolTip().empty()) print_("tip " + control->FullName() + " " + Quoted(control->ToolTip()));
}

void Player::ShowBalloons() {
  const int position = Workspace().Position();
  const Balloons& balloons = program_->GetBalloons();
  print_("balloons attached=" + std::to_string(balloons.Of(position).size()) +
         " active=" + Bit(balloons.Active(position)));
  for (const Balloon& balloon : balloons.Of(position))
    print_("balloon " + std::string(balloon.control) + " " + Quoted(balloon.text));
}

void Player::ShowPlace(const std::string& name) {
  if (name == "window") {
    const FormState state = stage_->Read(*window_);
    return print_("place window width=" + std::to_string(state.width) +
                  " height=" + std::to_string(state.height));
  }
  Control& control = Find(name);
  const Place place = control.GetPlace();
  print_("place " + control.FullName() + " left=" + std::to_string(place.left) +
         " top=" + std::to_string(place.top) + " width=" + std::to_string(place.width) +
         " height=" + std::to_string(place.height));
}

void Player::ShowEntriesFile() {
  const EntriesKeeper& keeper = program_->Keeper();
  if (keeper.Path().empty()) return print_("entries-file none");
  print_("entries-file " + Quoted(FromUtf8(keeper.Path())) + " changed=" + Bit(keeper.Changed()));
}

void Player::ShowCanvas() {
  std::vector<std::string> lines;
  for (const CanvasLine& line : window_->Canvas())
    if (!line.text.empty()) lines.push_back(line.text);
  print_("canvas lines=" + std::to_string(lines.size()));
  for (const std::string& line : lines) print_("  " + Quoted(line));
}

void Player::ShowChart(Chart& chart) {
  const ChartContents plotted = stage_->Plotted(chart);
  const std::string visible = " visible=" + Bit(stage_->Read(chart).visible);
  const auto amounts = [](std::initializer_list<double> values) {
    std::string text;
    for (const double value : values) text += " " + TwoDecimals(value);
    return text;
  };
  if (chart.Name() == "chtSins") {
    print_("chart " + chart.FullName() + " bars=" + std::to_string(plotted.bars.size()) + visible);
    const auto figures = [&](const ChartBar& b) {
      return amounts({b.pastOut, b.pastWith, b.futureOut, b.futureWith, b.combinedOut, b.combinedWith});
    };
    for (const ChartBar& bar : plotted.bars) print_("  " + Quoted(bar.caption) + figures(bar));
    return print_("  total" + figures(plotted.total));
  }
  print_("chart " + chart.FullName() + " points=" + std::to_string(plotted.months.size()) + visible);
  for (const ChartMonth& month : plotted.months)
    print_("  " + Quoted(month.label) + " " + std::string(KindWord(month.kind)) + " " +
           std::string(SideWord(month.side)) + " " + std::to_string(month.period) +
           amounts({month.outOfPocket, month.withInterest}));
}

void Player::ShowRows() {
  const auto rows = stage_->Rows(program_->Spd().Rows());
  print_("rows " + std::to_string(rows.size()));
  for (const std::vector<std::string>& row : rows) {
    std::string line = " ";
    for (const std::string& cell : row) line += " " + Quoted(cell);
    print_(line);
  }
}

void Player::ShowSelection() {
  if (window_->Name() == "frmAdvResultsDoc") {
    DocumentText& document = program_->Doc().Text();
    return print_("selection " + std::to_string(document.SelStart()) + " " +
                  std::to_string(document.SelLength()) + " " + Quoted(document.SelText()));
  }
  Grid& grid = program_->Spd().Rows();
  const CellSpan cells = stage_->Selection(grid);
  print_("selection " + std::to_string(cells.row) + " " + std::to_string(cells.col) + " " +
         std::to_string(cells.rowSel) + " " + std::to_string(cells.colSel) + " " + Quoted(grid.Clip()));
}

void Player::ShowText(Control& control) {
  const std::string text = stage_->Text(control);
  std::vector<std::string> lines;
  for (std::size_t start = 0;;) {
    const std::size_t end = text.find("\r\n", start);
    lines.push_back(text.substr(start, end == std::string::npos ? end : end - start));
    if (end == std::string::npos) break;
    start = end + 2;
  }
  print_("text " + control.FullName() + " lines=" + std::to_string(lines.size()));
  for (const std::string& line : lines) print_("  " + Quoted(line));
}

}  // namespace vicetoll
