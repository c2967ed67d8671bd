// SPDX-License-Identifier: GPL-3.0-or-later
// Texts between the core, which speaks eight-bit code page 1252, and Qt, which speaks Unicode.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "base/code_page.h"
#include "base/line_ends.h"

namespace vicetoll {

inline QString ToQt(std::string_view codePageText) {
  const std::string utf8 = ToUtf8(codePageText);
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string FromQt(const QString& text) { return FromUtf8(text.toStdString()); }

// A text as widgets show it, its lines ending in LF.
inline QString ToQtLines(std::string_view codePageText) { return ToQt(WithLineEnds(codePageText, "\n")); }

}  // namespace vicetoll
