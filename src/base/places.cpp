// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/places.h"

#include <filesystem>

namespace vicetoll {
namespace {

// A built program has all of it beside itself; an installed one at a fixed way from its bin folder, which is
// the same in every prefix.
std::string FromProgram(const char* way) {
  std::error_code none;
  const std::filesystem::path beside = std::filesystem::read_symlink("/proc/self/exe", none).parent_path();
  const std::filesystem::path installed = (beside / way).lexically_normal();
  return std::filesystem::exists(installed, none) ? installed : beside;
}

}  // namespace

std::string TextsFolder() { return FromProgram(VICETOLL_WAY_TO_TEXTS); }
std::string ModulesFolder() { return FromProgram(VICETOLL_WAY_TO_MODULES); }

}  // namespace vicetoll
