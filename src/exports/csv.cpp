// SPDX-License-Identifier: GPL-3.0-or-later
#include "exports/csv.h"

#include "base/code_page.h"
#include "base/line_ends.h"
#include "calendar/date_label.h"
#include "calendar/number_text.h"

namespace vicetoll {
namespace {

// A number that rounds to zero has no sign here.
std::string PlainNumber(double value, std::string_view format) {
  std::string text = FormatNumber(value, format);
  if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos) text.erase(0, 1);
  return text;
}

std::string FieldOf(CellKind kind, const ExportCell& cell) {
  if (kind == CellKind::Month) return IsoMonth(cell.text);
  if (!cell.number) return cell.text;
  return PlainNumber(*cell.number, kind == CellKind::Whole ? "0" : "0.00");
}

void AppendField(std::string& line, const std::string& field) {
  if (field.find_first_of(",\"\r\n") == std::string::npos) {
    line += field;
    return;
  }
  line += '"';
  for (const char c : field) line.append(c == '"' ? 2 : 1, c);
  line += '"';
}

}  // namespace

std::string CsvOf(const ExportTable& table) {
  std::string text;
  for (const ExportColumn& column : table.columns) {
    if (&column != &table.columns.front()) text += ',';
    AppendField(text, column.heading);
  }
  text += kLineEnd;
  for (const auto& row : table.rows) {
    for (std::size_t c = 0; c < table.columns.size(); ++c) {
      if (c > 0) text += ',';
      if (c < row.size()) AppendField(text, FieldOf(table.columns[c].kind, row[c]));
    }
    text += kLineEnd;
  }
  return ToUtf8(text);
}

}  // namespace vicetoll
