#include "controls/document_text.h"

#include <algorithm>

namespace vicetoll {
namespace {

// CR, LF and CR LF all end a line.
std::string WithCrLf(std::string_view text) {
  std::string lines;
  lines.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' || text[i] == '\n') {
      if (text.substr(i).starts_with("\r\n")) ++i;
      lines += "\r\n";
    } else {
      lines += text[i];
    }
  }
  return lines;
}

}  // namespace

void DocumentText::SetText(std::string text) {
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
  const std::string lines = WithCrLf(text);
  text_.replace(start_, length_, lines);
  start_ += static_cast<int>(lines.size());
  length_ = 0;
  Changed();
}

UserOutcome DocumentText::UserTypes(std::string_view text) {
  if (!Reachable() || readOnly_) return UserOutcome::Refused;
  SetText(WithCrLf(text));
  return Acted();
}

UserOutcome DocumentText::UserSelects(int start, int length) {
  if (!Reachable()) return UserOutcome::Refused;
  Select(start, length);
  return Acted();
}

}  // namespace vicetoll
