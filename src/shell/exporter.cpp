// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/exporter.h"

#include <filesystem>

#include "base/fault.h"
#include "base/file_suffix.h"
#include "base/file_writer.h"
#include "charts/growth_points.h"
#include "exports/csv.h"

namespace vicetoll {
namespace {

constexpr std::string_view kCsv = ".csv", kWorkbook = ".xlsx", kPdf = ".pdf";

// A name without one of the three suffixes gets that of the first. What is there already and is no file (a
// device, a folder) is taken by its name.
std::string WithSuffix(const std::string& path) {
  for (const std::string_view suffix : {kCsv, kWorkbook, kPdf})
    if (HasSuffix(path, suffix)) return path;
  std::error_code none;
  const std::filesystem::file_status status = std::filesystem::status(path, none);
  if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) return path;
  return path + std::string(kCsv);
}

// What fails before there is a file says of which it was to be.
std::string BytesOfWorkbook(const std::string& path, const Workbook& workbook) {
  try {
    return BytesOf(workbook);
  } catch (const Fault& fault) {
    throw Fault(fault.Kind(), NotWritten(path, std::string(fault.what())));
  }
}

}  // namespace

void Exporter::Remember(SinWorkspace& ws, ReportScope scope) {
  shown_.reset();
  try {
    shown_ = ReportExportOf(ws, scope);
  } catch (const Fault&) {
    // A period whose texts are no numbers: the grid came to no end with it either, or leaves it out.
  }
}

bool Exporter::HasReport() const {
  if (!shown_)
    GetPlatform().ShowFileMessage("There is no report here that can be exported.", MessageButtons::Ok);
  return shown_.has_value();
}

void Exporter::ExportGrid(Form& window) {
  if (HasReport()) ExportReport(window, *shown_);
}

void Exporter::PreviewGrid() {
  if (!HasReport()) return;
  Guarded([this] { GetPlatform().PreviewPages(WithPicture(PagesOf(*shown_), shown_->chart)); });
}

void Exporter::ExportGrowth(Form& window, SinWorkspace& ws, const ChartContents& chart) {
  Guarded([&] {
    ReportExport report = ReportExportOf(ws, GrowthScopeOf(ws));
    report.chart = chart;
    ExportReport(window, report);
  });
}

void Exporter::ExportReport(Form& window, const ReportExport& report) {
  Export(window, {.table = [&] { return MonthsTable(report); },
                  .workbook = [&] { return WorkbookOf(report); },
                  .pages = [&] { return PagesOf(report); },
                  .chart = report.chart});
}

void Exporter::ExportSins(Form& window, const SinsAsShown& table, const ChartContents& chart) {
  const Session& session = workspaces_.GetSession();
  Export(window, {.table = [&] { return SheetOf(table); },
                  .workbook = [&] { return WorkbookOf(table, session.currency, session.platform.Now()); },
                  .pages = [&] { return PagesOf(table); },
                  .chart = chart});
}

void Exporter::Export(Form& window, const Forms& forms) {
  const auto chosen = GetPlatform().AskExportPath(path_);
  if (!chosen || chosen->empty()) return;
  path_ = WithSuffix(*chosen);
  Guarded([&] {
    const std::optional<std::string> bytes = BytesFor(path_, forms);
    if (!bytes) return;
    GetPlatform().WriteFile(path_, *bytes);
    window.Say("Saved in " + path_);
  });
}

std::optional<std::string> Exporter::BytesFor(const std::string& path, const Forms& forms) const {
  if (HasSuffix(path, kWorkbook)) return BytesOfWorkbook(path, forms.workbook());
  if (!HasSuffix(path, kPdf)) return CsvOf(forms.table());
  std::optional<std::string> bytes = GetPlatform().PdfOf(WithPicture(forms.pages(), forms.chart));
  if (bytes && bytes->empty()) throw Fault(FaultKind::File, "The pages of the PDF cannot be made here.");
  return bytes;
}

// Where the picture cannot be drawn the user is told so, and has the pages without it.
Pages Exporter::WithPicture(Pages pages, const ChartContents& chart) const {
  if (drawChart && !chart.Empty()) Guarded([&] { pages.svg = drawChart(chart); });
  return pages;
}

void Exporter::Guarded(const std::function<void()>& action) const {
  try {
    action();
  } catch (const Fault& fault) {
    GetPlatform().ShowFileMessage(fault.what(), MessageButtons::Ok);
  }
}

}  // namespace vicetoll
