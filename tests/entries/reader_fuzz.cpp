// SPDX-License-Identifier: GPL-3.0-or-later
// entries-fuzz: spoils good files of entries in bytes, in structure and in values, and reads them. Each is
// read or refused with a sentence; what is read can be opened and saved again. Best built with the
// sanitizers.
//
//   entries-fuzz [MUTATIONS [SEED]]
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <random>

#include "base/fault.h"
#include "base/quiet_platform.h"
#include "entries/entries_file.h"
#include "shell/program.h"

namespace vicetoll {
namespace {

using Random = std::mt19937_64;

std::size_t Below(Random& random, std::size_t limit) { return limit == 0 ? 0 : random() % limit; }

std::vector<std::string> GoodFiles() {
  std::vector<std::string> files;
  for (const SinRow& sin : Catalogue()) {
    std::filesystem::path path(ENTRIES_FILES);
    path /= sin.key;
    path += ".vicetoll";
    std::ifstream file(path, std::ios::binary);
    files.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return files;
}

// The lines of a file are its fields and brackets: to move them about is to change its structure.
std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  for (std::size_t end; (end = text.find('\n', start)) != std::string::npos; start = end + 1)
    lines.push_back(text.substr(start, end - start + 1));
  return lines;
}

void SpoilBytes(std::string& text, Random& random) {
  const std::size_t at = Below(random, text.size());
  switch (Below(random, 4)) {
    case 0:
      text[at] = static_cast<char>(random());
      break;
    case 1:
      text.erase(at, 1 + Below(random, 20));
      break;
    case 2:
      text.insert(at, 1 + Below(random, 5), "{}[]\":,\\\0\xff"[Below(random, 10)]);
      break;
    default:
      text.resize(at);
  }
}

void SpoilLines(std::string& text, const std::string& other, Random& random) {
  std::vector<std::string> lines = LinesOf(text);
  const std::vector<std::string> others = LinesOf(other);
  if (lines.empty() || others.empty()) return;
  const auto at = lines.begin() + static_cast<std::ptrdiff_t>(Below(random, lines.size()));
  switch (Below(random, 4)) {
    case 0:
      lines.erase(at);
      break;
    case 1:
      lines.insert(at, std::string(*at));
      break;
    case 2:
      std::swap(*at, lines[Below(random, lines.size())]);
      break;
    default:
      *at = others[Below(random, others.size())];
  }
  text.clear();
  for (const std::string& line : lines) text += line;
}

// Puts another value in the place of one in quotation marks.
void SpoilValue(std::string& text, const std::string& other, Random& random) {
  const auto pick = [&random](const std::string& from, std::size_t& begin, std::size_t& length) {
    begin = from.find(": \"", Below(random, from.size()));
    if (begin == std::string::npos) return false;
    begin += 3;
    const std::size_t end = from.find('"', begin);
    length = (end == std::string::npos ? from.size() : end) - begin;
    return true;
  };
  std::size_t begin, length, otherBegin, otherLength;
  if (!pick(text, begin, length)) return;
  constexpr const char* kValues[] = {"",        "0",       "-1",   "1e9", "9999-12",
                                     "1000-01", "2031-00", "0.00", "100", "NaN"};
  if (Below(random, 2) == 0 && pick(other, otherBegin, otherLength))
    text.replace(begin, length, other.substr(otherBegin, otherLength));
  else
    text.replace(begin, length, kValues[Below(random, std::size(kValues))]);
}

int Fuzz(std::uint64_t mutations, std::uint64_t seed) {
  Random random(seed);
  const std::vector<std::string> files = GoodFiles();
  std::uint64_t refused = 0, opened = 0, beyond = 0;
  for (std::uint64_t i = 0; i < mutations; ++i) {
    std::string text = files[Below(random, files.size())];
    const std::string& other = files[Below(random, files.size())];
    for (std::size_t times = 1 + Below(random, 3); times > 0 && !text.empty(); --times) {
      switch (Below(random, 3)) {
        case 0:
          SpoilBytes(text, random);
          break;
        case 1:
          SpoilLines(text, other, random);
          break;
        default:
          SpoilValue(text, other, random);
      }
    }
    try {
      const Entries entries = ReadEntries(text);
      if (ReadEntries(WriteEntries(entries)) != entries) {
        std::cerr << "written otherwise than read:\n" << text;
        return 1;
      }
      ++opened;
      if (opened % 20 != 0) continue;  // to open one takes a hundred times as long as to read it
      QuietPlatform quiet({6, 2026});
      Program program(quiet);
      Apply(program, entries);
      static_cast<void>(WriteEntries(Capture(program)));
    } catch (const EntriesRefused& reason) {
      ++refused;
      if (std::string_view(reason.what()).find(": ") == std::string_view::npos) {
        std::cerr << "no sentence: " << reason.what() << '\n' << text;
        return 1;
      }
    } catch (const Fault&) {
      ++beyond;  // an amount beyond all bounds
    }
  }
  std::cout << mutations << " mutations: " << opened << " read, " << refused << " refused, " << beyond
            << " beyond what the program can reckon with\n";
  return 0;
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  const std::uint64_t mutations = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 3000;
  return vicetoll::Fuzz(mutations, argc > 2 ? std::strtoull(argv[2], nullptr, 10) : 1);
}
