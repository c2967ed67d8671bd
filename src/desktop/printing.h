// Printing a report.
#pragma once

#include <string_view>

class QPrinter;

namespace vicetoll {

// Prints the text (code page 1252) on the printer, page by page. Tabs part columns; a carriage return, a
// line feed or both end a line. False if the printer takes nothing, as one without paper or file name.
bool PrintText(QPrinter& printer, std::string_view text);

}  // namespace vicetoll
