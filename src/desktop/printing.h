// Printing a report.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <string_view>

namespace vicetoll {

// In which font: that of the windows, or the document's own.
enum class PrintStyle { Plain, Document };

// A print on a printer, page by page. The last page stays open until the print is closed or goes away.
class PrintJob {
 public:
  explicit PrintJob(PrintStyle style = PrintStyle::Plain) : style_(style) {}

  QPrinter& Printer() { return printer_; }

  // The page that the text asks for: on its side if a table is too wide for it upright. It is printed on the
  // page that the printer has, whatever this says.
  QPageLayout::Orientation SuggestedOrientation(std::string_view text) const;

  // Prints the text (code page 1252). Tabs part columns; a carriage return, a line feed or both end a line.
  // False if the printer takes nothing, as one without paper or file name.
  bool Print(std::string_view text);

  // Prints a picture in SVG as large as the page allows. False as above.
  bool PrintPicture(std::string_view svg);

  // Lets the last page out. False if it could not be written.
  bool Close();

 private:
  bool Begin();

  PrintStyle style_;
  QPrinter printer_;
  QPainter painter_;  // gone before the printer it paints on
};

}  // namespace vicetoll
