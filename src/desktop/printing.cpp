#include "desktop/printing.h"

#include <QAbstractTextDocumentLayout>
#include <QTextDocument>
#include <QTextOption>

#include "desktop/chart_module.h"
#include "desktop/text.h"
#include "reports/report_columns.h"

namespace vicetoll {
namespace {

constexpr double kPoints = 8;

// Lays the text out for the printer's pages.
void LayOut(QTextDocument& document, QPrinter& printer, std::string_view text, bool columns) {
  document.documentLayout()->setPaintDevice(&printer);
  QFont font;
  font.setPointSizeF(kPoints);
  document.setDefaultFont(font);
  if (columns) {
    // All columns of a grid fit the page side by side; the distance is in pixels of the screen.
    QTextOption option = document.defaultTextOption();
    const double page = printer.pageLayout().paintRect(QPageLayout::Inch).width() * 96;
    option.setTabStopDistance(page / (kReportColumnCount + 0.5));
    document.setDefaultTextOption(option);
  }
  document.setPlainText(ToQtLines(text));
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

bool PrintJob::Print(std::string_view text) {
  const bool columns = text.find('\t') != std::string_view::npos;
  if (columns) printer_.setPageOrientation(QPageLayout::Landscape);
  if (!Begin()) return false;
  QTextDocument document;
  LayOut(document, printer_, text, columns);
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
