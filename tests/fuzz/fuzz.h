// SPDX-License-Identifier: GPL-3.0-or-later
// What the fuzz targets share.
#pragma once

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

#include "base/fault.h"

namespace vicetoll {

inline std::string_view TextOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Ends the run like any crash, so that the input is kept.
inline void Must(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

// Runs something that may end in a fault, and in no other exception. Whether it went through.
template <class F>
bool Tried(F&& action) {
  try {
    action();
    return true;
  } catch (const Fault&) {
    return false;
  }
}

}  // namespace vicetoll
