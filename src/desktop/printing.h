// SPDX-License-Identifier: GPL-3.0-or-later
// Printing a report.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <functional>
#include <string>
#include <string_view>

#include "base/pages.h"

namespace vicetoll {

// Paints pages with a painter that has begun on the device; false if it cannot.
using Painting = std::function<bool(QPainter&, QPagedPaintDevice&)>;

// Prints at once and whole to the file that the printer has been given in the place of paper. Paints with a
// painter of its own. Returns why that failed, a sentence in UTF-8; empty if it did not.
std::string PrintToFile(const QPrinter& printer, const std::function<bool(QPagedPaintDevice&)>& paint);

// Prints the pages of a report, on paper or to the file. Returns the same.
std::string PrintPages(const Pages& pages, QPrinter& printer);

// In which font: that of the windows, or the document's own.
enum class PrintStyle { Plain, Document };

// A print, page by page. On a printer the last page stays open until the print is closed or goes away. A file
// holds no page back: it is written at once, whole, so that a full disk shows while somebody can be told, and
// what was there before stays if it fails.
class PrintJob {
 public:
  explicit PrintJob(PrintStyle style = PrintStyle::Plain) : style_(style) {}

  QPrinter& Printer() { return printer_; }

  // The page that the text asks for: on its side if a table is too wide for it upright. It is printed on the
  // page that the printer has, whatever this says.
  QPageLayout::Orientation SuggestedOrientation(std::string_view text) const;

  // Prints the text (code page 1252). Tabs part columns; a carriage return, a line feed or both end a line.
  // False if it went nowhere; Problem() says why.
  bool Print(std::string_view text);

  // Prints a picture in SVG as large as the page allows. False as above.
  bool PrintPicture(std::string_view svg);

  // Lets the last page out. False if that failed.
  bool Close();

  // Why the last call failed: a sentence, in UTF-8.
  const std::string& Problem() const { return problem_; }

 private:
  bool Run(const Painting& paint);
  bool Failed(std::string_view problem);

  PrintStyle style_;
  QPrinter printer_;
  QPainter painter_;  // gone before the printer it paints on
  std::string problem_;
};

}  // namespace vicetoll
