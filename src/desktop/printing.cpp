#include "desktop/printing.h"

#include <QAbstractTextDocumentLayout>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QScreen>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>
#include <numeric>

#include "desktop/chart_module.h"
#include "desktop/document_view.h"
#include "desktop/text.h"

namespace vicetoll {
namespace {

constexpr double kPlainPoints = 8;
constexpr double kCellGap = 6;  // pixels of the screen

QFont FontOf(PrintStyle style) {
  if (style == PrintStyle::Document) return PrintedDocumentFont();
  QFont font;
  font.setPointSizeF(kPlainPoints);
  return font;
}

// As it is printed: the blanks that pad a cell are left out.
QString Unpadded(std::string_view text) {
  QStringList lines = ToQtLines(text).replace(u'\r', u'\n').split(u'\n');
  for (QString& line : lines) {
    QStringList cells = line.split(u'\t');
    if (cells.size() > 1)
      for (QString& cell : cells)
        while (cell.endsWith(u' ')) cell.chop(1);
    line = cells.join(u'\t');
  }
  return lines.join(u'\n');
}

double ScreenDots() { return QGuiApplication::primaryScreen()->logicalDotsPerInch(); }

// The widest cell of each column, with a gap behind it, in pixels of the screen; measured as it is printed,
// for a screen rounds the widths of letters.
QList<double> ColumnsOf(const QString& text, const QFont& font, const QPrinter& printer) {
  const QFontMetricsF metrics(font, &printer);
  const double pixels = ScreenDots() / printer.logicalDpiX();
  QList<double> columns;
  for (const QString& line : text.split(u'\n')) {
    const QStringList cells = line.split(u'\t');
    if (cells.size() == 1) continue;
    if (columns.size() < cells.size()) columns.resize(cells.size());
    for (qsizetype i = 0; i < cells.size(); ++i)
      columns[i] = std::max(columns[i], metrics.horizontalAdvance(cells[i]) * pixels + kCellGap);
  }
  return columns;
}

double PageWidth(const QPageLayout& page) { return page.paintRect(QPageLayout::Inch).width() * ScreenDots(); }

// Lays the text out for the printer's pages.
void LayOut(QTextDocument& document, QPrinter& printer, std::string_view text, const QFont& font) {
  document.documentLayout()->setPaintDevice(&printer);
  document.setDefaultFont(font);
  const QString lines = Unpadded(text);
  QList<QTextOption::Tab> stops;
  const QList<double> columns = ColumnsOf(lines, font, printer);
  const double width = std::accumulate(columns.begin(), columns.end(), 0.0);
  // On a page that is too narrow the columns stand closer, as far as their cells let them.
  const double squeeze = std::min(1.0, PageWidth(printer.pageLayout()) / std::max(width, 1.0));
  double left = 0;
  for (const double column : columns) stops.append({left += column * squeeze, QTextOption::LeftTab});
  document.setPlainText(lines);
  // Stops of the document as a whole would give way to those of its lines, which have none.
  QTextBlockFormat format;
  format.setTabPositions(stops);
  QTextCursor all(&document);
  all.select(QTextCursor::Document);
  all.mergeBlockFormat(format);
  document.setPageSize(printer.pageRect(QPrinter::DevicePixel).size());
}

}  // namespace

// Without a printer Qt falls back to PDF, and without a file name that goes nowhere.
bool PrintJob::Begin() {
  if (printer_.outputFormat() == QPrinter::PdfFormat && printer_.outputFileName().isEmpty()) return false;
  return painter_.begin(&printer_);
}

bool PrintJob::PrintPicture(std::string_view svg) {
  if (!Begin()) return false;
  const QRectF page(QPointF(), printer_.pageRect(QPrinter::DevicePixel).size());
  return PaintPicture(painter_, page, svg) && printer_.printerState() != QPrinter::Error;
}

QPageLayout::Orientation PrintJob::SuggestedOrientation(std::string_view text) const {
  const QList<double> columns = ColumnsOf(Unpadded(text), FontOf(style_), printer_);
  QPageLayout upright = printer_.pageLayout();
  upright.setOrientation(QPageLayout::Portrait);
  return std::accumulate(columns.begin(), columns.end(), 0.0) <= PageWidth(upright) ? QPageLayout::Portrait
                                                                                    : QPageLayout::Landscape;
}

bool PrintJob::Print(std::string_view text) {
  if (!Begin()) return false;
  QTextDocument document;
  LayOut(document, printer_, text, FontOf(style_));
  const QSizeF page = document.pageSize();
  for (int i = 0; i < document.pageCount(); ++i) {
    if (i > 0 && !printer_.newPage()) return false;
    painter_.save();
    painter_.translate(0, -i * page.height());
    document.drawContents(&painter_, QRectF(QPointF(0, i * page.height()), page));
    painter_.restore();
  }
  return printer_.printerState() != QPrinter::Error;
}

bool PrintJob::Close() { return !painter_.isActive() || painter_.end(); }

}  // namespace vicetoll
