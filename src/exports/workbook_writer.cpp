// SPDX-License-Identifier: GPL-3.0-or-later
// The module that makes workbooks.
#include <locale.h>
#include <sys/mman.h>
#include <unistd.h>
#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <map>
#include <utility>

#include "base/code_page.h"
#include "base/fault.h"
#include "base/file_writer.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"
#include "exports/workbook.h"

namespace vicetoll {
namespace {

constexpr int kFirstYear = 1900, kLastYear = 9999;  // that dates of a spreadsheet reach
constexpr double kHeadingHeight = 48;               // points: three lines
constexpr std::size_t kHeadingLines = 3;
constexpr std::size_t kNarrowest = 8, kWidest = 40;  // characters
constexpr std::size_t kBesideText = 2;
constexpr std::size_t kMonthsNamed = 10;  // along a chart
constexpr std::uint8_t kA4 = 9;           // as the library counts papers
constexpr const char* kMonthFormat = "mmm yyyy";

// The library writes to a file by name: this one lies in memory.
class MemoryFile {
 public:
  MemoryFile() : descriptor_(memfd_create("workbook", MFD_CLOEXEC)) {
    if (descriptor_ == -1) throw Fault(FaultKind::File, "There is no room for the workbook.");
  }
  ~MemoryFile() { close(descriptor_); }
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;

  std::string Name() const { return "/proc/self/fd/" + std::to_string(descriptor_); }
  std::string Bytes() const {
    std::string bytes(static_cast<std::size_t>(lseek(descriptor_, 0, SEEK_END)), '\0');
    std::size_t done = 0;
    while (done < bytes.size()) {
      const ssize_t got =
          pread(descriptor_, bytes.data() + done, bytes.size() - done, static_cast<off_t>(done));
      if (got <= 0) throw Fault(FaultKind::File, "The workbook was lost on its way.");
      done += static_cast<std::size_t>(got);
    }
    return bytes;
  }

 private:
  int descriptor_;
};

// The library writes numbers as the locale does; those of a workbook have a point. Of this thread alone.
class PlainNumbers {
 public:
  PlainNumbers() : plain_(newlocale(LC_NUMERIC_MASK, "C", duplocale(uselocale(nullptr)))) {
    before_ = plain_ != nullptr ? uselocale(plain_) : nullptr;
  }
  ~PlainNumbers() {
    if (plain_ == nullptr) return;
    uselocale(before_);
    freelocale(plain_);
  }
  PlainNumbers(const PlainNumbers&) = delete;
  PlainNumbers& operator=(const PlainNumbers&) = delete;

 private:
  locale_t plain_, before_ = nullptr;
};

class WorkbookWriter {
 public:
  explicit WorkbookWriter(const Workbook& workbook)
      : workbook_(workbook), book_(workbook_new(file_.Name().c_str())) {
    if (book_ == nullptr) throw Fault(FaultKind::File, "There is no room for the workbook.");
    SetProperties();
  }

  std::string Write() {
    for (const ExportTable& table : workbook_.sheets) WriteSheet(table);
    if (workbook_.chart.points > 0) WriteChart();
    errno = 0;
    if (const lxw_error error = workbook_close(book_); error != LXW_NO_ERROR) {
      // The library says where it failed; the system why.
      const std::string reason = errno != 0 ? ReasonOf(errno) + "." : lxw_strerror(error);
      throw Fault(FaultKind::File, "The workbook cannot be made: " + reason);
    }
    return file_.Bytes();
  }

 private:
  // The date is the month of the export, so that the same report gives the same file.
  void SetProperties() {
    std::string title = ToUtf8(workbook_.title);
    char company[] = "";
    std::tm created{};
    created.tm_year = workbook_.created.year - kFirstYear;
    created.tm_mon = workbook_.created.month - 1;
    created.tm_mday = 1;
    created.tm_hour = 12;
    lxw_doc_properties properties{};
    properties.title = title.data();
    properties.company = company;
    properties.created = timegm(&created);
    workbook_set_properties(book_, &properties);
  }

  // Clear of the figures to their left.
  static void AlignWords(lxw_format& format) {
    format_set_align(&format, LXW_ALIGN_LEFT);
    format_set_indent(&format, 1);
  }

  std::string MoneyFormat(CellKind kind) const {
    const std::string symbol = workbook_.currency == Currency::Dollar ? "\"$\"" : "\"\xE2\x82\xAC\"";
    const std::string amount = symbol + std::string(FormatOf(kind));
    return amount + ";-" + amount;
  }

  lxw_format* HeadingFormat(bool words) {
    lxw_format* format = workbook_add_format(book_);
    format_set_bold(format);
    format_set_text_wrap(format);
    format_set_align(format, LXW_ALIGN_VERTICAL_BOTTOM);
    format_set_bottom(format, LXW_BORDER_THIN);
    if (words)
      AlignWords(*format);
    else
      format_set_align(format, LXW_ALIGN_RIGHT);
    return format;
  }

  lxw_format* FormatFor(CellKind kind, bool total) {
    lxw_format*& format = formats_[{kind, total}];
    if (format != nullptr) return format;
    format = workbook_add_format(book_);
    if (kind == CellKind::Month)
      format_set_num_format(format, kMonthFormat);
    else if (kind == CellKind::Money || kind == CellKind::WholeMoney)
      format_set_num_format(format, MoneyFormat(kind).c_str());
    else if (kind != CellKind::Text)
      format_set_num_format(format, std::string(FormatOf(kind)).c_str());
    if (IsWordy(kind)) AlignWords(*format);
    if (total) {
      format_set_bold(format);
      format_set_top(format, LXW_BORDER_THIN);
    }
    return format;
  }

  void WriteSheet(const ExportTable& table) {
    lxw_worksheet* sheet = workbook_add_worksheet(book_, table.name.c_str());
    lxw_format* const headings[] = {HeadingFormat(false), HeadingFormat(true)};
    worksheet_set_row(sheet, 0, kHeadingHeight, nullptr);
    for (std::size_t c = 0; c < table.columns.size(); ++c) {
      const auto column = static_cast<lxw_col_t>(c);
      worksheet_set_column(sheet, column, column, WidthOf(table, c), nullptr);
      worksheet_write_string(sheet, 0, column, ToUtf8(table.columns[c].heading).c_str(),
                             headings[IsWordy(table.columns[c].kind) ? 1 : 0]);
    }
    worksheet_freeze_panes(sheet, 1, 0);
    worksheet_set_landscape(sheet);
    worksheet_set_paper(sheet, kA4);
    worksheet_repeat_rows(sheet, 0, 0);
    worksheet_fit_to_pages(sheet, 1, 0);
    for (std::size_t r = 0; r < table.rows.size(); ++r)
      for (std::size_t c = 0; c < table.rows[r].size(); ++c)
        WriteCell(sheet, static_cast<lxw_row_t>(r + 1), static_cast<lxw_col_t>(c), table.columns[c].kind,
                  table.rows[r][c], table.totals && r + 1 == table.rows.size());
  }

  void WriteCell(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, CellKind kind, const ExportCell& cell,
                 bool total) {
    lxw_format* format = FormatFor(kind, total);
    if (cell.number && !cell.formula.empty())
      worksheet_write_formula_num(sheet, row, column, cell.formula.c_str(), format, *cell.number);
    else if (cell.number)
      worksheet_write_number(sheet, row, column, *cell.number, format);
    else if (cell.text.empty())
      worksheet_write_blank(sheet, row, column, total ? format : nullptr);
    else if (kind == CellKind::Month && IsDate(cell.text))
      WriteMonth(sheet, row, column, cell.text, format);
    else
      worksheet_write_string(sheet, row, column,
                             ToUtf8(kind == CellKind::Month ? IsoMonth(cell.text) : cell.text).c_str(),
                             FormatFor(CellKind::Text, total));
  }

  static bool IsDate(const std::string& label) {
    if (MonthNumberFromLabel(label) == 0) return false;
    const int year = YearFromLabel(label);
    return year >= kFirstYear && year <= kLastYear;
  }

  static void WriteMonth(lxw_worksheet* sheet, lxw_row_t row, lxw_col_t column, const std::string& label,
                         lxw_format* format) {
    lxw_datetime date{};
    date.year = YearFromLabel(label);
    date.month = MonthNumberFromLabel(label);
    date.day = 1;
    worksheet_write_datetime(sheet, row, column, &date, format);
  }

  // As wide as the widest cell, and wide enough for the heading in its lines.
  static double WidthOf(const ExportTable& table, std::size_t column) {
    const ExportColumn& top = table.columns[column];
    std::size_t width = std::max(kNarrowest, top.heading.size() / kHeadingLines + kBesideText);
    for (std::string_view words = top.heading; !words.empty();) {
      const std::size_t blank = std::min(words.find(' '), words.size());
      width = std::max(width, blank);
      words.remove_prefix(std::min(blank + 1, words.size()));
    }
    for (const auto& row : table.rows) {
      if (column >= row.size()) continue;
      const ExportCell& cell = row[column];
      const std::size_t length =
          cell.number ? FormatNumber(*cell.number, FormatOf(top.kind)).size() + 1 : cell.text.size();
      width = std::max(width, length);
    }
    return static_cast<double>(std::min(width, kWidest) + kBesideText);
  }

  void WriteChart() {
    const WorkbookChart& drawn = workbook_.chart;
    const bool lines = drawn.kind == WorkbookChart::Kind::Lines;
    const ExportTable& table = workbook_.sheets[drawn.sheet];
    lxw_chart* chart = workbook_add_chart(book_, lines ? LXW_CHART_LINE : LXW_CHART_BAR);
    for (const std::size_t column : drawn.columns) AddSeries(*chart, table, column);
    chart_title_set_name(chart, ToUtf8(drawn.title).c_str());
    chart_legend_set_position(chart, LXW_CHART_LEGEND_BOTTOM);
    chart_axis_set_num_format(chart->y_axis, MoneyFormat(CellKind::WholeMoney).c_str());
    if (lines) {
      chart_axis_set_num_format(chart->x_axis, kMonthFormat);
      const auto apart = static_cast<std::uint16_t>(drawn.points / kMonthsNamed + 1);
      chart_axis_set_interval_unit(chart->x_axis, apart);
      chart_axis_set_interval_tick(chart->x_axis, apart);
    } else {
      chart_axis_set_reverse(chart->x_axis);  // the first bar on top
    }
    lxw_worksheet* sheet = workbook_add_worksheet(book_, "Chart");
    lxw_chart_options options{};
    options.x_scale = 2;
    options.y_scale = lines ? 1.8 : 2.4;
    worksheet_insert_chart_opt(sheet, 0, 0, chart, &options);
    worksheet_set_landscape(sheet);
    worksheet_set_paper(sheet, kA4);
    worksheet_fit_to_pages(sheet, 1, 1);
  }

  void AddSeries(lxw_chart& chart, const ExportTable& table, std::size_t column) const {
    const WorkbookChart& drawn = workbook_.chart;
    const auto range = [&](std::size_t at) {
      return "=" + table.name + "!" + FixedCellName(1, at) + ":" + FixedCellName(drawn.points, at);
    };
    lxw_chart_series* series = chart_add_series(&chart, range(drawn.along).c_str(), range(column).c_str());
    chart_series_set_name(series, ("=" + table.name + "!" + FixedCellName(0, column)).c_str());
  }

  const Workbook& workbook_;
  MemoryFile file_;
  lxw_workbook* book_;
  std::map<std::pair<CellKind, bool>, lxw_format*> formats_;  // by kind, and whether of totals
};

}  // namespace
}  // namespace vicetoll

extern "C" __attribute__((visibility("default"))) void WriteWorkbook(const vicetoll::Workbook& workbook,
                                                                     std::string& bytes) {
  const vicetoll::PlainNumbers plainNumbers;
  const vicetoll::NoKillByWriting noKill;  // files in memory have the limit too
  bytes = vicetoll::WorkbookWriter(workbook).Write();
}
