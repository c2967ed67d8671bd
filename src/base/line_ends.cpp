// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/line_ends.h"

namespace vicetoll {

std::string WithLineEnds(std::string_view text, std::string_view end) {
  std::string lines;
  lines.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' || text[i] == '\n') {
      if (text.substr(i).starts_with(kLineEnd)) ++i;
      lines += end;
    } else {
      lines += text[i];
    }
  }
  return lines;
}

}  // namespace vicetoll
