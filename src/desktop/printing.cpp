// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/printing.h"

#include <QAbstractTextDocumentLayout>
#include <QBuffer>
#include <QFile>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPdfWriter>
#include <QScreen>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextOption>
#include <algorithm>
#include <numeric>

#include "base/file_writer.h"
#include "desktop/chart_module.h"
#include "desktop/document_view.h"
#include "desktop/report_pages.h"
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
QList<double> ColumnsOf(const QString& text, const QFont& font, const QPaintDevice& device) {
  const QFontMetricsF metrics(font, &device);
  const double pixels = ScreenDots() / device.logicalDpiX();
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

QSizeF PageOf(const QPagedPaintDevice& device) {
  return device.pageLayout().paintRectPixels(device.logicalDpiX()).size();
}

// Lays the text out for the pages of the printer or file.
void LayOut(QTextDocument& document, QPagedPaintDevice& device, std::string_view text, const QFont& font) {
  document.documentLayout()->setPaintDevice(&device);
  document.setDefaultFont(font);
  const QString lines = Unpadded(text);
  QList<QTextOption::Tab> stops;
  const QList<double> columns = ColumnsOf(lines, font, device);
  const double width = std::accumulate(columns.begin(), columns.end(), 0.0);
  // On a page that is too narrow the columns stand closer, as far as their cells let them.
  const double squeeze = std::min(1.0, PageWidth(device.pageLayout()) / std::max(width, 1.0));
  double left = 0;
  for (const double column : columns) stops.append({left += column * squeeze, QTextOption::LeftTab});
  document.setPlainText(lines);
  // Stops of the document as a whole would give way to those of its lines, which have none.
  QTextBlockFormat format;
  format.setTabPositions(stops);
  QTextCursor all(&document);
  all.select(QTextCursor::Document);
  all.mergeBlockFormat(format);
  document.setPageSize(PageOf(device));
}

// False if a page could not be begun.
bool PaintText(QPainter& painter, QPagedPaintDevice& device, std::string_view text, const QFont& font) {
  QTextDocument document;
  LayOut(document, device, text, font);
  const QSizeF page = document.pageSize();
  for (int i = 0; i < document.pageCount(); ++i) {
    if (i > 0 && !device.newPage()) return false;
    painter.save();
    painter.translate(0, -i * page.height());
    document.drawContents(&painter, QRectF(QPointF(0, i * page.height()), page));
    painter.restore();
  }
  return true;
}

}  // namespace

std::string PrintToFile(const QPrinter& printer, const std::function<bool(QPagedPaintDevice&)>& paint) {
  // Without a printer Qt falls back to PDF, and without a file name that goes nowhere.
  if (printer.outputFileName().isEmpty()) return "There is no printer, and no file was named to print to.";
  QBuffer pages;
  pages.open(QIODevice::WriteOnly);
  QPdfWriter writer(&pages);
  writer.setPageLayout(printer.pageLayout());
  writer.setResolution(printer.resolution());
  writer.setTitle(printer.docName());
  if (!paint(writer)) return "The pages could not be made.";
  const std::string path = QFile::encodeName(printer.outputFileName()).toStdString();
  const std::string_view bytes(pages.data().constData(), static_cast<std::size_t>(pages.size()));
  if (const int error = ReplaceFile(path, bytes)) return NotWritten(path, error);
  return {};
}

std::string PrintPages(const Pages& pages, QPrinter& printer) {
  const auto paint = [&pages](QPagedPaintDevice& device) { return PaintPages(pages, device); };
  if (printer.outputFormat() == QPrinter::PdfFormat) return PrintToFile(printer, paint);
  if (paint(printer) && printer.printerState() != QPrinter::Error) return {};
  return "The printer stopped.";
}

QPageLayout::Orientation PrintJob::SuggestedOrientation(std::string_view text) const {
  const QList<double> columns = ColumnsOf(Unpadded(text), FontOf(style_), printer_);
  QPageLayout upright = printer_.pageLayout();
  upright.setOrientation(QPageLayout::Portrait);
  return std::accumulate(columns.begin(), columns.end(), 0.0) <= PageWidth(upright) ? QPageLayout::Portrait
                                                                                    : QPageLayout::Landscape;
}

bool PrintJob::Print(std::string_view text) {
  return Run([this, text](QPainter& painter, QPagedPaintDevice& device) {
    return PaintText(painter, device, text, FontOf(style_));
  });
}

bool PrintJob::PrintPicture(std::string_view svg) {
  return Run([svg](QPainter& painter, QPagedPaintDevice& device) {
    return PaintPicture(painter, QRectF(QPointF(), PageOf(device)), svg);
  });
}

bool PrintJob::Run(const Painting& paint) {
  if (printer_.outputFormat() == QPrinter::PdfFormat) {
    problem_ = PrintToFile(printer_, [&paint](QPagedPaintDevice& file) {
      QPainter painter;
      return painter.begin(&file) && paint(painter, file) && painter.end();
    });
    return problem_.empty();
  }
  if (!painter_.begin(&printer_)) return Failed("The printer does not answer.");
  if (!paint(painter_, printer_) || printer_.printerState() == QPrinter::Error) {
    printer_.abort();
    painter_.end();
    return Failed("The printer stopped.");
  }
  return true;
}

bool PrintJob::Close() {
  if (!painter_.isActive()) return true;
  if (painter_.end() && printer_.printerState() != QPrinter::Error) return true;
  return Failed("The printer did not take the last page.");
}

bool PrintJob::Failed(std::string_view problem) {
  problem_ = problem;
  return false;
}

}  // namespace vicetoll
