// SPDX-License-Identifier: GPL-3.0-or-later
// vicetoll-report: the reports of files of entries, without a window.
#include <malloc.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <memory>
#include <nlohmann/json.hpp>
#include <set>

#include "base/code_page.h"
#include "base/file_writer.h"
#include "base/quiet_platform.h"
#include "base/version.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "entries/capture.h"
#include "entries/entries_file.h"
#include "reports/month_report.h"
#include "reports/report_columns.h"
#include "workspace/loading.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kUsage =
    "usage: vicetoll-report [OPTION]... FILE...\n"
    "Prints the month-by-month reports of what was entered.\n\n"
    "  --sin KEY                     of one sin (Smoking, Drinking, ...); otherwise of all in the file\n"
    "  --side past|future|total      which report; total if not given\n"
    "  --format table|csv|json       table if not given\n"
    "  --clock YYYY-MM               the present month; no result depends on it\n"
    "  --output PATH                 to a file, or for several files into a folder\n"
    "  --help, --version\n\n"
    "Exit status: 0, 1 if a file cannot be used, 2 for wrong use.\n";

constexpr std::string_view kScopes[] = {"past", "future", "total"};
constexpr std::string_view kFormats[] = {"table", "csv", "json"};
constexpr std::string_view kSuffixes[] = {".txt", ".csv", ".json"};
constexpr std::string_view kOptions[] = {"--sin", "--side", "--format", "--clock", "--output"};
enum Format { kTable, kCsv, kJson };

struct Options {
  int sin = -1;
  ReportScope scope = ReportScope::Total;
  Format format = kTable;
  MonthAndYear now{};
  std::string output;
  std::vector<std::string> files;
};

// The workspaces without the windows around them.
class BareProgram final : public FreshProgram {
 public:
  explicit BareProgram(Platform& platform) : session_(platform) {}

  SinWorkspace& At(int position) override {
    auto& slot = workspaces_.at(static_cast<std::size_t>(position));
    if (!slot) slot = std::make_unique<SinWorkspace>(session_, position);
    return *slot;
  }
  Session& GetSession() override { return session_; }

  SinWorkspace& Enter(int position) override {
    SinWorkspace& ws = At(position);
    session_.CurrentSinKey = ws.Sin().key;
    WorkspaceSide& past = ws.Of(Side::Past);
    session_.CurrentSinNumber = past.Index();
    ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
    if (past.state.CurrentPeriod == 0) LoadParameters(past);
    return ws;
  }
  void TurnToEuro() override { session_.currency = Currency::Euro; }

 private:
  Session session_;
  std::array<std::unique_ptr<SinWorkspace>, kSinCount> workspaces_;
};

std::string_view KindWord(MonthKind kind) {
  constexpr std::string_view kWords[] = {"active", "disabled", "gap"};
  return kWords[static_cast<int>(kind)];
}

std::string_view ScopeWord(ReportScope scope) { return kScopes[static_cast<int>(scope)]; }

// ---- The grid, as a table ----

void AddTable(const SinWorkspace& ws, ReportScope scope, const MonthReport& report, std::string& out) {
  out += std::string(ws.Sin().key) + ", " + std::string(ScopeWord(scope)) + "\n";
  const auto columns = ColumnsOf(ws.Class());
  // The cells row by row in one text, and where each ends.
  std::string text;
  std::vector<std::size_t> ends, widths(columns.size());
  ends.reserve((report.months.size() + 1) * columns.size());
  const auto addRow = [&](const auto& appendCell) {
    for (std::size_t c = 0; c < columns.size(); ++c) {
      const std::size_t start = text.size();
      appendCell(*columns[c]);
      std::size_t end = text.size();
      while (end > start && text[end - 1] == ' ') --end;
      text.resize(end);
      widths[c] = std::max(widths[c], end - start);
      ends.push_back(end);
    }
  };
  addRow([&](const ReportColumn& column) { text += HeadingOf(ws.Sin(), column); });
  ReportCells cells(ReportLayout::Grid, ws.GetSession().currency);
  for (const ReportMonth& month : report.months)
    addRow([&](const ReportColumn& column) { cells.Append(text, column, month); });
  std::size_t start = 0;
  for (auto end = ends.begin(); end != ends.end();) {
    for (std::size_t c = 0; c < columns.size(); start = *end++, ++c) {
      const std::size_t size = *end - start;
      out.append((c == 0 ? 0 : 2) + widths[c] - size, ' ');
      out.append(text, start, size);
    }
    out += '\n';
  }
}

// ---- The months in files ----

// What the figures of a month are called, in the order of the columns.
struct FigureName {
  ColumnKey column;
  std::string_view csv, json;
};

// clang-format off
constexpr FigureName kFigures[] = {
    {ColumnKey::Quantity,                   "quantity",                 "quantity"},
    {ColumnKey::UnitCost,                   "unit_cost",                "unitCost"},
    {ColumnKey::ReasonableCost,             "reasonable_cost",          "reasonableCost"},
    {ColumnKey::AdjustedCost,               "adjusted_cost",            "adjustedCost"},
    {ColumnKey::MonthCost,                  "month_cost",               "monthCost"},
    {ColumnKey::MonthWithInterest,          "month_with_interest",      "monthWithInterest"},
    {ColumnKey::CumulativeCost,             "cumulative_cost",          "cumulativeCost"},
    {ColumnKey::CumulativeCostWithInterest, "cumulative_with_interest", "cumulativeWithInterest"},
};
// clang-format on

double FigureOf(const ReportMonth& month, ColumnKey column) { return month.*ColumnOf(column).figure; }

// ---- Comma-separated values: only words, months and numbers, so nothing needs quoting ----

std::string CsvHeading() {
  std::string heading = "sin,report,index,kind,side,period,month";
  for (const FigureName& figure : kFigures) (heading += ',') += figure.csv;
  return heading + "\r\n";
}

void AddCsv(const SinWorkspace& ws, ReportScope scope, const MonthReport& report, std::string& out) {
  const std::string start = std::string(ws.Sin().key) + "," + std::string(ScopeWord(scope)) + ",";
  for (const ReportMonth& month : report.months) {
    out += start;
    AppendNumber(out, month.index);
    (out += ',') += KindWord(month.kind);
    (out += ',') += SideWord(month.side);
    AppendNumber(out += ',', month.period);
    (out += ',') += IsoMonth(month.label);
    for (const FigureName& figure : kFigures) AppendNumberText(out += ',', FigureOf(month, figure.column));
    out += "\r\n";
  }
}

// ---- JSON ----

// As lists and boxes have numbers: of 15 digits at most.
double Digits15(double value) { return TextToNumber(NumberToText(value)); }

// The months are most of a report: written as they come, a month a line. One without cost has no figures of
// its own, only what went before with its interest.
void AddMonths(const MonthReport& report, std::string& out) {
  std::array<std::string, std::size(kFigures)> labels;
  for (std::size_t i = 0; i < labels.size(); ++i) ((labels[i] = ", \"") += kFigures[i].json) += "\": ";
  for (const ReportMonth& month : report.months) {
    out += &month == &report.months.front() ? "\n      {\"index\": " : ",\n      {\"index\": ";
    AppendNumber(out, month.index);
    (out += ", \"kind\": \"") += KindWord(month.kind);
    (out += "\", \"side\": \"") += SideWord(month.side);
    AppendNumber(out += "\", \"period\": ", month.period);
    (out += ", \"month\": \"") += IsoMonth(month.label);
    out += '"';
    for (std::size_t i = 0; i < labels.size(); ++i) {
      const ColumnKey column = kFigures[i].column;
      if (column <= ColumnKey::MonthCost && month.kind != MonthKind::Active) continue;
      AppendNumberText(out += labels[i], FigureOf(month, column));
    }
    out += '}';
  }
}

// Unrounded, and as the boxes of the window show them in whole units.
Json TotalsOf(SinWorkspace& ws, ReportScope scope, const MonthReport& report) {
  Json totals;
  totals["outOfPocket"] = Digits15(report.after.cost);
  totals["withInterest"] = Digits15(report.after.withInterest);
  if (scope == ReportScope::Total) {
    UpdateTotalTab(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index());
    totals["shownOutOfPocket"] = ToUtf8(ws.txtResultsTotalSummaryTot->Text());
    totals["shownWithInterest"] = ToUtf8(ws.txtCumulativeResultsTotalSummaryTot->Text());
    return totals;
  }
  const WorkspaceSide& side = ws.Of(scope == ReportScope::Past ? Side::Past : Side::Future);
  totals["shownOutOfPocket"] = ToUtf8(side.txtResultsTotal->Text());
  for (int p = 1; p <= kPeriodCount; ++p)
    if (const PeriodRecord& record = side.Record(p); record.PeriodSet && record.PeriodEnabled)
      totals["shownWithInterest"] = ToUtf8(side.txtCumulativeResultsPeriod(p).Text());
  return totals;
}

// The periods that the report is about.
std::string PeriodsOf(const SinEntries& sin, ReportScope scope) {
  switch (scope) {
    case ReportScope::Past:
      return WritePeriods(sin, {Side::Past});
    case ReportScope::Future:
      return WritePeriods(sin, {Side::Future});
    default:
      return WritePeriods(sin, {Side::Past, Side::Future});
  }
}

void AddJson(SinWorkspace& ws, ReportScope scope, const MonthReport& report, const SinEntries& entries,
             std::string& out) {
  const auto addInner = [&out](const std::string& json) {
    for (std::size_t start = 0, end; start < json.size(); start = end) {
      end = std::min(json.find('\n', start), json.size() - 1) + 1;
      out.append(json, start, end - start);
      if (json[end - 1] == '\n') out += "    ";
    }
  };
  ((out += out == "[" ? "\n  {\n" : ",\n  {\n") += "    \"sin\": \"") += ws.Sin().key;
  ((out += "\",\n    \"report\": \"") += ScopeWord(scope)) += "\",\n    \"periods\": ";
  addInner(PeriodsOf(entries, scope));
  out += ",\n    \"months\": [";
  AddMonths(report, out);
  out += "\n    ],\n    \"totals\": ";
  addInner(TotalsOf(ws, scope, report).dump(2));
  out += "\n  }";
}

// ---- A file ----

// Into `out`, whose room is that of the report before.
void ReportOn(const Entries& entries, const Options& options, std::string& out) {
  QuietPlatform quiet(options.now);
  BareProgram program(quiet);
  Apply(program, entries);
  out.clear();
  if (options.format == kCsv) out = CsvHeading();
  if (options.format == kJson) out = "[";
  for (const SinEntries& sin : entries.sins) {
    if (options.sin != -1 && options.sin != sin.position) continue;
    SinWorkspace& ws = program.At(sin.position);
    const MonthReport report = ReportOf(ws, options.scope);
    switch (options.format) {
      case kTable:
        AddTable(ws, options.scope, report, out);
        break;
      case kCsv:
        AddCsv(ws, options.scope, report, out);
        break;
      case kJson:
        AddJson(ws, options.scope, report, sin, out);
    }
  }
  if (options.format == kJson) out += "\n]\n";
  if (options.format == kTable) out = ToUtf8(out);
}

// Throws EntriesRefused or Fault.
void ReportOnFile(const std::string& path, const Options& options, std::string& out) {
  const Entries entries = ReadEntries(ReadEntriesBytes(path));
  bool there = options.sin == -1;
  for (const SinEntries& sin : entries.sins) there = there || sin.position == options.sin;
  if (!there)
    throw EntriesRefused("there is nothing about " +
                         std::string(Catalogue()[static_cast<std::size_t>(options.sin)].key));
  ReportOn(entries, options, out);
}

bool IsFolder(const std::string& path) {
  std::error_code none;
  return std::filesystem::is_directory(path, none);
}

// Where the report on a file goes; empty for standard output.
std::string TargetFor(const std::string& path, const Options& options, bool intoFolder) {
  if (!intoFolder) return options.output;
  return options.output + "/" + std::filesystem::path(path).stem().string() +
         std::string(kSuffixes[options.format]);
}

// The files that no report may take the place of: those that are read, and the reports written before it.
class TakenFiles {
 public:
  explicit TakenFiles(const std::vector<std::string>& read) {
    for (const std::string& path : read) files_.insert(WholePath(path));
  }

  // Throws EntriesRefused for a target that is taken.
  void Take(const std::string& target) {
    if (!target.empty() && !files_.insert(WholePath(target)).second)
      throw EntriesRefused("its report would overwrite " + target +
                           ", which is read or was written by the same call");
  }

 private:
  // As it is where the system does not tell: a pipe has no whole path.
  static std::string WholePath(const std::string& path) {
    std::error_code error;
    std::string whole = std::filesystem::weakly_canonical(path, error).string();
    return error ? path : whole;
  }

  std::set<std::string> files_;
};

void Put(const std::string& report, const std::string& target) {
  if (!target.empty()) return WriteWholeFile(target, report, FileKind::Remade);
  std::cout << report << std::flush;
  if (!std::cout) throw EntriesRefused("standard output cannot be written");
}

int MakeReports(const Options& options) {
  // What a report took is kept for the next one, not given back to the system and asked for again.
  constexpr int kKept = 32 << 20;
  mallopt(M_MMAP_THRESHOLD, kKept);
  mallopt(M_TRIM_THRESHOLD, kKept);
  const bool intoFolder = options.files.size() > 1 || IsFolder(options.output);
  TakenFiles taken(options.files);
  int status = 0;
  std::string report;
  for (const std::string& path : options.files) {
    try {
      const std::string target = TargetFor(path, options, intoFolder);
      ReportOnFile(path, options, report);
      taken.Take(target);
      Put(report, target);
    } catch (const std::runtime_error& error) {  // EntriesRefused, Fault
      std::cerr << "vicetoll-report: " << path << ": " << error.what() << '\n';
      status = 1;
    }
  }
  return status;
}

// ---- The command line ----

template <std::size_t kCount>
bool TakeWord(std::string_view value, const std::string_view (&words)[kCount], int& place) {
  for (std::size_t i = 0; i < kCount; ++i)
    if (words[i] == value) {
      place = static_cast<int>(i);
      return true;
    }
  return false;
}

bool TakeMonth(std::string_view value, MonthAndYear& month) {
  const std::string label = LabelOfIsoMonth(value);
  if (label.empty()) return false;
  month = {MonthNumberFromLabel(label), YearFromLabel(label)};
  return true;
}

bool TakeOption(std::string_view name, std::string_view value, Options& options) {
  int place = 0;
  if (name == "--sin") return (options.sin = SinPosition(value)) != -1;
  if (name == "--clock") return TakeMonth(value, options.now);
  if (name == "--output") return !(options.output = value).empty();
  if (name == "--side" && TakeWord(value, kScopes, place)) {
    options.scope = static_cast<ReportScope>(place);
    return true;
  }
  if (name == "--format" && TakeWord(value, kFormats, place)) {
    options.format = static_cast<Format>(place);
    return true;
  }
  return false;
}

// What is wrong with the command line; empty if nothing.
std::string Parse(const std::vector<std::string>& words, Options& options) {
  bool onlyFiles = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (onlyFiles || !word.starts_with("--")) {
      options.files.push_back(word);
    } else if (word == "--") {
      onlyFiles = true;
    } else {
      const std::size_t equals = word.find('=');
      std::string name = word.substr(0, equals);
      if (std::ranges::find(kOptions, name) == std::end(kOptions)) return name + " is no option";
      if (equals == std::string::npos && ++i == words.size()) return name + " needs a value";
      const std::string value = equals == std::string::npos ? words[i] : word.substr(equals + 1);
      if (!TakeOption(name, value, options))
        return name.append(" ").append(value).append(" is not understood");
    }
  }
  if (options.files.empty()) return "no file is named";
  if (options.files.size() > 1 && !IsFolder(options.output))
    return "several files need --output with a folder that is there";
  return {};
}

MonthAndYear Today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_mon + 1, local.tm_year + 1900};
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  using namespace vicetoll;
  const std::vector<std::string> words(argv + 1, argv + argc);
  for (const std::string& word : words) {
    if (word == "--") break;
    if (word == "--help") return std::fputs(kUsage, stdout) < 0 ? 1 : 0;
    if (word == "--version")
      return std::puts(("vicetoll-report " + std::string(vicetoll::kVersion)).c_str()) < 0 ? 1 : 0;
  }
  Options options;
  options.now = Today();
  if (const std::string wrong = Parse(words, options); !wrong.empty()) {
    std::cerr << "vicetoll-report: " << wrong << '\n' << kUsage;
    return 2;
  }
  return MakeReports(options);
}
