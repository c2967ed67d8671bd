// SPDX-License-Identifier: GPL-3.0-or-later
// What stands on printed pages, as a value, for whoever lays them out. Texts are in the program's eight-bit
// code page.
#pragma once

#include <string>
#include <vector>

namespace vicetoll {

// A table of texts. Figures stand at the right of their columns, words at the left.
struct PageTable {
  struct Column {
    std::string heading;
    bool words = false;
  };
  std::vector<Column> columns;
  std::vector<std::vector<std::string>> rows;  // each with a cell for every column
  bool totals = false;                         // the last row is the sum of the others
};

struct Pages {
  std::string title, subtitle;
  PageTable summary;  // a small one, ahead of the picture
  std::string svg;    // the picture; empty if there is none
  PageTable rows;     // as long as it is, its heading on each page
};

}  // namespace vicetoll
