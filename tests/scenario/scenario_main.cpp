// SPDX-License-Identifier: GPL-3.0-or-later
// scenario FILE: plays a scenario on the bare controls. "-" reads standard input.
#include <clocale>
#include <locale>

#include "scenario/play_file.h"

int main(int argc, char** argv) {
  using namespace vicetoll;
  // As a toolkit does, so that what follows a locale shows here too.
  if (std::setlocale(LC_ALL, "") != nullptr) std::locale::global(std::locale(""));
  return PlayFile(argc, argv, [](std::istream& lines, const PrintLine& print) {
    ScriptedPlatform platform(print);
    Player player(platform, print, [](Program&) { return MakeControlStage(); });
    return player.Play(lines);
  });
}
