// Texts between the core, which speaks eight-bit code page 1252, and Qt, which speaks Unicode.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "base/code_page.h"

namespace vicetoll {

inline QString ToQt(std::string_view codePageText) {
  const std::string utf8 = ToUtf8(codePageText);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string FromQt(const QString& text) { return FromUtf8(text.toStdString()); }

}  // namespace vicetoll
