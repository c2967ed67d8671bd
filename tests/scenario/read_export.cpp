// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario/read_export.h"

#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace vicetoll {
namespace {

// In single quotes for the shell.
std::string ForShell(const std::string& word) {
  std::string quoted = "'";
  for (const char c : word) quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return quoted + "'";
}

}  // namespace

std::vector<std::string> ReadExport(const std::string& path) {
  const std::string command = ForShell(EXPORT_READER) + " " + ForShell(path);
  FILE* const pipe = popen(command.c_str(), "r");
  if (pipe == nullptr) throw std::runtime_error("The reader of exports cannot be run.");
  std::string text;
  std::array<char, 1 << 14> block;
  while (const std::size_t got = std::fread(block.data(), 1, block.size(), pipe))
    text.append(block.data(), got);
  if (pclose(pipe) != 0) throw std::runtime_error("The reader of exports failed.");
  std::vector<std::string> lines;
  for (std::size_t begin = 0, end; (end = text.find('\n', begin)) != std::string::npos; begin = end + 1)
    lines.push_back(text.substr(begin, end - begin));
  return lines;
}

}  // namespace vicetoll
