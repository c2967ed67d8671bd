// SPDX-License-Identifier: GPL-3.0-or-later
#include "reporter/report_text.h"

#include <algorithm>
#include <array>
#include <nlohmann/json.hpp>
#include <vector>

#include "base/code_page.h"
#include "base/line_ends.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "entries/entries_file.h"
#include "reports/report_columns.h"
#include "workspace/totals.h"

namespace vicetoll {
namespace {

using Json = nlohmann::ordered_json;

std::string_view KindWord(MonthKind kind) {
  constexpr std::string_view kWords[] = {"active", "disabled", "gap"};
  return kWords[static_cast<int>(kind)];
}

std::string_view ScopeWord(ReportScope scope) { return kScopeWords[static_cast<int>(scope)]; }

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
  return heading += kLineEnd;
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
    out += kLineEnd;
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

}  // namespace

ReportText::ReportText(ReportFormat format, std::string& out) : format_(format), out_(out) {
  out_.clear();
  if (format_ == ReportFormat::Csv) out_ += CsvHeading();
  if (format_ == ReportFormat::Json) out_ += "[";
}

void ReportText::Add(SinWorkspace& ws, ReportScope scope, const SinEntries& entries) {
  const MonthReport report = ReportOf(ws, scope);
  switch (format_) {
    case ReportFormat::Table:
      return AddTable(ws, scope, report, out_);
    case ReportFormat::Csv:
      return AddCsv(ws, scope, report, out_);
    case ReportFormat::Json:
      return AddJson(ws, scope, report, entries, out_);
  }
}

void ReportText::Finish() {
  if (format_ == ReportFormat::Json) out_ += "\n]\n";
  if (format_ == ReportFormat::Table) out_ = ToUtf8(out_);
}

}  // namespace vicetoll
