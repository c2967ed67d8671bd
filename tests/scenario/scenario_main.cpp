// scenario FILE: plays a scenario on the bare controls. "-" reads standard input.
#include <fstream>
#include <iostream>

#include "scenario/player.h"

int main(int argc, char** argv) {
  using namespace vicetoll;
  if (argc != 2) {
    std::cerr << "usage: scenario FILE (or - for standard input)\n";
    return 2;
  }
  std::ios::sync_with_stdio(false);
  std::ifstream file;
  const bool fromStandardInput = std::string_view(argv[1]) == "-";
  if (!fromStandardInput) {
    file.open(argv[1]);
    if (!file) {
      std::cerr << "scenario: cannot read " << argv[1] << '\n';
      return 2;
    }
  }
  const PrintLine print = [](const std::string& line) { std::cout << line << '\n'; };
  ScriptedPlatform platform(print);
  Player player(platform, print, [](Program&) { return std::make_unique<ControlStage>(); });
  const PlayResult result = player.Play(fromStandardInput ? std::cin : file);
  std::cout.flush();
  return static_cast<int>(result);
}
