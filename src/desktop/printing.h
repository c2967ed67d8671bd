// Printing a report.
#pragma once

#include <QPainter>
#include <QPrinter>
#include <string_view>

namespace vicetoll {

// A print on a printer, page by page. The last page stays open until the print is closed or goes away.
class PrintJob {
 public:
  QPrinter& Printer() { return printer_; }

  // Prints the text (code page 1252). Tabs part columns; a carriage return, a line feed or both end a line.
  // False if the printer takes nothing, as one without paper or file name.
  bool Print(std::string_view text);

  // Prints a picture in SVG as large as the page allows. False as above.
  bool PrintPicture(std::string_view svg);

  // Lets the last page out. False if it could not be written.
  bool Close();

 private:
  bool Begin();

  QPrinter printer_;
  QPainter painter_;  // gone before the printer it paints on
};

}  // namespace vicetoll
