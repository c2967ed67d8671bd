// SPDX-License-Identifier: GPL-3.0-or-later
#include "reporter/report_options.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <string_view>

#include "calendar/date_label.h"

namespace vicetoll {
namespace {

constexpr std::string_view kFormats[] = {"table", "csv", "json"};

// One of the words, as the value of an enumeration that has its order.
template <class Enumeration, std::size_t kCount>
bool TakeWord(std::string_view word, const std::string_view (&words)[kCount], Enumeration& value) {
  const auto found = std::ranges::find(words, word);
  if (found == std::end(words)) return false;
  value = static_cast<Enumeration>(found - std::begin(words));
  return true;
}

bool TakeMonth(std::string_view value, MonthAndYear& month) {
  const std::string label = LabelOfIsoMonth(value);
  if (label.empty()) return false;
  month = {MonthNumberFromLabel(label), YearFromLabel(label)};
  return true;
}

struct OptionWithValue {
  std::string_view name;
  bool (*take)(std::string_view value, ReportOptions& options);  // false for a value of no use
};

// clang-format off
using Value = std::string_view;
constexpr OptionWithValue kOptions[] = {
    {"--sin",    [](Value key,   ReportOptions& options) { return (options.sin = SinPosition(key)) != -1; }},
    {"--side",   [](Value word,  ReportOptions& options) { return TakeWord(word, kScopeWords, options.scope); }},
    {"--format", [](Value word,  ReportOptions& options) { return TakeWord(word, kFormats, options.format); }},
    {"--clock",  [](Value month, ReportOptions& options) { return TakeMonth(month, options.now); }},
    {"--output", [](Value path,  ReportOptions& options) { return !(options.output = path).empty(); }},
};
// clang-format on

bool IsFolder(const std::string& path) {
  std::error_code none;
  return std::filesystem::is_directory(path, none);
}

}  // namespace

const char* const kReportUsage =
    "usage: vicetoll-report [OPTION]... FILE...\n"
    "Prints the month-by-month reports of what was entered.\n\n"
    "  --sin KEY                     of one sin (Smoking, Drinking, ...); otherwise of all in the file\n"
    "  --side past|future|total      which report; total if not given\n"
    "  --format table|csv|json       table if not given\n"
    "  --clock YYYY-MM               the present month; no result depends on it\n"
    "  --output PATH                 to a file, or for several files into a folder\n"
    "  --help, --version\n\n"
    "Exit status: 0, 1 if a file cannot be used, 2 for wrong use.\n";

std::string ReadReportOptions(const std::vector<std::string>& words, ReportOptions& options) {
  bool onlyFiles = false;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (onlyFiles || !word.starts_with("--")) {
      options.files.push_back(word);
    } else if (word == "--") {
      onlyFiles = true;
    } else {
      const std::size_t equals = word.find('=');
      std::string name = word.substr(0, equals);
      const auto option = std::ranges::find(kOptions, name, &OptionWithValue::name);
      if (option == std::end(kOptions)) return name + " is no option";
      if (equals == std::string::npos && ++i == words.size()) return name + " needs a value";
      const std::string value = equals == std::string::npos ? words[i] : word.substr(equals + 1);
      if (!option->take(value, options)) return name.append(" ").append(value).append(" is not understood");
    }
  }
  if (options.files.empty()) return "no file is named";
  options.intoFolder = IsFolder(options.output);
  if (options.files.size() > 1 && !options.intoFolder)
    return "several files need --output with a folder that is there";
  return {};
}

}  // namespace vicetoll
