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
  const std::string lines = WithLineEnds(text);
  text_.replace(start_, length_, lines);
  start_ += static_cast<int>(lines.size());
  length_ = 0;
  Changed();
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
