// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/document_text.h"

#include <algorithm>

#include "base/line_ends.h"

namespace vicetoll {

void DocumentText::SetText(std::string text) {
  ++textsSet_;
  Put(std::move(text));
}

void DocumentText::Put(std::string text) {
  text_ = std::move(text);
  start_ = length_ = 0;
  Changed();
}

void DocumentText::Select(int start, int length) {
  start_ = std::clamp(start, 0, Length());
  length_ = std::clamp(length, 0, Length() - start_);
  Changed();
}

void DocumentText::ReplaceSelection(std::string_view text) {
  const std::string before = text_.substr(0, start_) + WithLineEnds(text);
  // A selection may have parted an end of line; what is left of one is a whole one.
  text_ = WithLineEnds(before + text_.substr(start_ + length_));
  start_ = static_cast<int>(WithLineEnds(before).size());
  length_ = 0;
  Changed();
}

bool DocumentText::HasRoomFor(std::string_view text) const {
  constexpr std::string_view kLineEnds = "\r\n";
  const std::string_view all = text_;
  const std::string_view before = all.substr(0, start_), after = all.substr(start_ + length_);
  const std::size_t lineEnd = before.find_last_of(kLineEnds);
  const std::size_t head = lineEnd == std::string_view::npos ? before.size() : before.size() - lineEnd - 1;
  const std::size_t tail = std::min(after.find_first_of(kLineEnds), after.size());
  std::size_t line = head;
  for (std::size_t end = text.find_first_of(kLineEnds); end != std::string_view::npos;
       end = text.find_first_of(kLineEnds)) {
    if (line + end > kLongestLine) return false;
    line = 0;
    text.remove_prefix(end + 1);
  }
  return line + text.size() + tail <= kLongestLine;
}

UserOutcome DocumentText::UserTypes(std::string_view text) {
  if (!Reachable() || readOnly_) return UserOutcome::Refused;
  Put(WithLineEnds(text));
  return Acted();
}

UserOutcome DocumentText::UserSelects(int start, int length) {
  if (!Reachable()) return UserOutcome::Refused;
  Select(start, length);
  return Acted();
}

}  // namespace vicetoll
