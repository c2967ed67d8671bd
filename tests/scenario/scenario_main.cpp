// scenario FILE: plays a scenario on the bare controls. "-" reads standard input.
#include "scenario/play_file.h"

int main(int argc, char** argv) {
  using namespace vicetoll;
  return PlayFile(argc, argv, [](std::istream& lines, const PrintLine& print) {
    ScriptedPlatform platform(print);
    Player player(platform, print, [](Program&) { return std::make_unique<ControlStage>(); });
    return player.Play(lines);
  });
}
