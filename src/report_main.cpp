// SPDX-License-Identifier: GPL-3.0-or-later
// vicetoll-report: the reports of files of entries, without a window.
#include <malloc.h>
#include <sys/stat.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <optional>
#include <set>
#include <utility>

#include "base/file_writer.h"
#include "base/quiet_platform.h"
#include "base/version.h"
#include "entries/entries_file.h"
#include "reporter/bare_program.h"
#include "reporter/report_options.h"

namespace vicetoll {
namespace {

// Into `out`, whose room is that of the report before. Throws EntriesRefused or Fault.
void ReportOnFile(const std::string& path, const ReportOptions& options, std::string& out) {
  const Entries entries = ReadEntries(ReadEntriesBytes(path));
  const auto wanted = [&](const SinEntries& sin) { return options.sin == -1 || options.sin == sin.position; };
  if (std::ranges::none_of(entries.sins, wanted))
    throw EntriesRefused("there is nothing about " + std::string(Catalogue().at(options.sin).key));
  QuietPlatform quiet(options.now);
  BareProgram program(quiet);
  Apply(program, entries);
  ReportText text(options.format, out);
  for (const SinEntries& sin : entries.sins)
    if (wanted(sin)) text.Add(program.At(sin.position), options.scope, sin);
  text.Finish();
}

// Where the report on a file goes; empty for standard output.
std::string TargetFor(const std::string& path, const ReportOptions& options) {
  if (!options.intoFolder) return options.output;
  constexpr std::string_view kSuffixes[] = {".txt", ".csv", ".json"};
  return options.output + "/" + std::filesystem::path(path).stem().string() +
         std::string(kSuffixes[static_cast<int>(options.format)]);
}

// The files that no report may take the place of: those that are read, and the reports written before it.
class TakenFiles {
 public:
  explicit TakenFiles(const std::vector<std::string>& read) {
    for (const std::string& path : read)
      if (const auto file = FileAt(path)) read_.insert(*file);
  }

  // Throws EntriesRefused for a target that is taken.
  void Take(const std::string& target) {
    if (target.empty()) return;
    const auto file = FileAt(target);
    if ((file && read_.contains(*file)) || !written_.insert(target).second)
      throw EntriesRefused("its report would overwrite " + target +
                           ", which is read or was written by the same call");
  }

 private:
  using File = std::pair<dev_t, ino_t>;

  // Whatever way leads there; none where there is no file.
  static std::optional<File> FileAt(const std::string& path) {
    struct stat status;
    if (stat(path.c_str(), &status) != 0) return std::nullopt;
    return File(status.st_dev, status.st_ino);
  }

  std::set<File> read_;
  std::set<std::string> written_;
};

void Put(const std::string& report, const std::string& target) {
  if (!target.empty()) return WriteWholeFile(target, report, FileKind::Remade);
  std::cout << report << std::flush;
  if (!std::cout) throw EntriesRefused("standard output cannot be written");
}

int MakeReports(const ReportOptions& options) {
  // What a report took is kept for the next one, not given back to the system and asked for again.
  constexpr int kKept = 32 << 20;
  mallopt(M_MMAP_THRESHOLD, kKept);
  mallopt(M_TRIM_THRESHOLD, kKept);
  TakenFiles taken(options.files);
  int status = 0;
  std::string report;
  for (const std::string& path : options.files) {
    try {
      const std::string target = TargetFor(path, options);
      ReportOnFile(path, options, report);
      taken.Take(target);
      Put(report, target);
    } catch (const std::runtime_error& error) {  // EntriesRefused, Fault
      std::cerr << "vicetoll-report: " << path << ": " << error.what() << '\n';
      status = 1;
    }
  }
  return status;
}

MonthAndYear Today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_mon + 1, local.tm_year + 1900};
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  using namespace vicetoll;
  const std::vector<std::string> words(argv + 1, argv + argc);
  for (const std::string& word : words) {
    if (word == "--") break;
    if (word == "--help") return std::fputs(kReportUsage, stdout) < 0 ? 1 : 0;
    if (word == "--version")
      return std::puts(("vicetoll-report " + std::string(kVersion)).c_str()) < 0 ? 1 : 0;
  }
  ReportOptions options;
  options.now = Today();
  if (const std::string wrong = ReadReportOptions(words, options); !wrong.empty()) {
    std::cerr << "vicetoll-report: " << wrong << '\n' << kReportUsage;
    return 2;
  }
  return MakeReports(options);
}
