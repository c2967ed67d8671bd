// SPDX-License-Identifier: GPL-3.0-or-later
// Scenario files, from any bytes. A run ends in one of the three ways that a driver knows.
#include <sstream>

#include "fuzz/fuzz.h"
#include "scenario/player.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace vicetoll;
  std::istringstream lines{std::string(TextOf(data, size))};
  ScriptedPlatform platform;  // files stay in memory
  Player player(
      platform, [](const std::string&) {}, [](Program&) { return MakeControlStage(); });
  player.Play(lines);
  return 0;
}
