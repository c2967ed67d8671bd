#include "desktop/printing.h"

#include <QPrinter>
#include <QTextDocument>
#include <QTextOption>

#include "desktop/text.h"

namespace vicetoll {
namespace {

constexpr double kPoints = 8;
constexpr int kTabbedColumns = 11;

}  // namespace

bool PrintText(QPrinter& printer, std::string_view text) {
  // Without a printer Qt falls back to PDF, and without a file name that goes nowhere.
  if (printer.outputFormat() == QPrinter::PdfFormat && printer.outputFileName().isEmpty()) return false;
  const bool columns = text.find('\t') != std::string_view::npos;
  if (columns) printer.setPageOrientation(QPageLayout::Landscape);
  QTextDocument document;
  QFont font;
  font.setPointSizeF(kPoints);
  document.setDefaultFont(font);
  if (columns) {
    // All columns of a grid fit the page side by side; the distance is in pixels of the screen.
    QTextOption option = document.defaultTextOption();
    const double page = printer.pageLayout().paintRect(QPageLayout::Inch).width() * 96;
    option.setTabStopDistance(page / (kTabbedColumns + 0.5));
    document.setDefaultTextOption(option);
  }
  QString lines = ToQt(text);
  lines.replace(QStringLiteral("\r\n"), QStringLiteral("\n")).replace(u'\r', u'\n');
  document.setPlainText(lines);
  document.print(&printer);
  return printer.printerState() != QPrinter::Error;
}

}  // namespace vicetoll
