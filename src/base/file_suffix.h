// SPDX-License-Identifier: GPL-3.0-or-later
// What the suffix of a file's name says.
#pragma once

#include <algorithm>
#include <string_view>

namespace vicetoll {

// Whether the path ends in the suffix (in small letters, ".svg"), in any case.
inline bool HasSuffix(std::string_view path, std::string_view suffix) {
  const auto small = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; };
  return path.size() >= suffix.size() &&
         std::ranges::equal(path.substr(path.size() - suffix.size()), suffix, {}, small);
}

}  // namespace vicetoll
