// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario/play_file.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <string_view>

namespace vicetoll {

int PlayFile(int argc, char** argv, const std::function<PlayResult(std::istream&, const PrintLine&)>& play) {
  constexpr int kBadUse = static_cast<int>(PlayResult::BadLine);
  if (argc != 2) {
    std::cerr << "usage: " << argv[0] << " FILE (or - for standard input)\n";
    return kBadUse;
  }
  std::ios::sync_with_stdio(false);
  std::ifstream file;
  const bool fromStandardInput = std::string_view(argv[1]) == "-";
  if (!fromStandardInput) {
    file.open(argv[1]);
    if (!file || std::filesystem::is_directory(argv[1])) {
      std::cerr << argv[0] << ": cannot read " << argv[1] << '\n';
      return kBadUse;
    }
  }
  const PrintLine print = [](const std::string& line) { std::cout << line << '\n'; };
  const PlayResult result = play(fromStandardInput ? std::cin : file, print);
  std::cout.flush();
  return static_cast<int>(result);
}

}  // namespace vicetoll
