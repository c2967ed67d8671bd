// A line of cells, as grid rows and table lines have it: each cell but the last is followed by a blank and
// a tab, behind its own padding.
#pragma once

#include <charconv>
#include <string>
#include <string_view>

namespace vicetoll {

// Appends the text and blanks up to `width` characters; a longer text as it is.
inline void AppendPadded(std::string& out, std::string_view text, std::size_t width) {
  out += text;
  if (text.size() < width) out.append(width - text.size(), ' ');
}

inline void AppendNumber(std::string& out, int number) {
  char digits[12];
  out.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

class CellLine {
 public:
  explicit CellLine(std::string& out) : out_(out) {}

  void Cell(std::string_view text, std::size_t width = 0) {
    AppendPadded(out_, text, width);
    out_ += " \t";
  }
  void Cell(int number) {
    AppendNumber(out_, number);
    out_ += " \t";
  }
  void LastCell(std::string_view text, std::size_t width = 0) { AppendPadded(out_, text, width); }

 private:
  std::string& out_;
};

}  // namespace vicetoll
