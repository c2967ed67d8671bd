// SPDX-License-Identifier: GPL-3.0-or-later
// docs/rules.md: what it names in its tables is there, each rule's code and what shows it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace vicetoll {
namespace {

namespace fs = std::filesystem;

const fs::path kCheckout = VICETOLL_CHECKOUT;

std::string TextOfFile(const fs::path& path) {
  std::ifstream file(path);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

struct RuleNames {
  std::vector<std::string> code, shownBy;
};

std::vector<std::string> Quoted(const std::string& cell) {
  static const std::regex kQuoted("`([^`]+)`");
  std::vector<std::string> names;
  for (std::sregex_iterator it(cell.begin(), cell.end(), kQuoted), end; it != end; ++it)
    names.push_back((*it)[1]);
  return names;
}

// The names in the last two cells of the rows of all tables.
RuleNames NamesOf(const std::string& document) {
  static const std::regex kRow(R"(\| (.*) \| (.*) \| (.*) \|)");
  RuleNames names;
  std::istringstream in(document);
  for (std::string line; std::getline(in, line);) {
    std::smatch row;
    if (!std::regex_match(line, row, kRow)) continue;
    for (const std::string& name : Quoted(row[2])) names.code.push_back(name);
    for (const std::string& name : Quoted(row[3])) names.shownBy.push_back(name);
  }
  return names;
}

bool AnyIsThere(const std::vector<fs::path>& paths) {
  return std::ranges::any_of(paths, [](const fs::path& path) { return fs::exists(kCheckout / path); });
}

// All sources of the program, one after the other.
std::string Sources() {
  std::string text;
  for (const auto& entry : fs::recursive_directory_iterator(kCheckout / "src"))
    if (entry.is_regular_file()) text += TextOfFile(entry.path());
  return text;
}

bool HasWord(const std::string& text, const std::string& word) {
  const auto isLetter = [&](std::size_t at) {
    return at < text.size() && (std::isalnum(static_cast<unsigned char>(text[at])) != 0 || text[at] == '_');
  };
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
    if ((at == 0 || !isLetter(at - 1)) && !isLetter(at + word.size())) return true;
  return false;
}

// A file or room of src/ by its path, or a name that stands in the sources.
bool IsCode(const std::string& name, const std::string& sources) {
  if (AnyIsThere({"src/" + name, "src/" + name + ".h", "src/" + name + ".cpp"})) return true;
  return HasWord(sources, name.substr(name.rfind(':') + 1));  // all of it where there is none
}

std::vector<std::string> ScenarioNames() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(kCheckout / "tests" / "scenarios"))
    if (entry.path().extension() == ".scenario") names.push_back(entry.path().stem().string());
  return names;
}

// Something in tests/ by its path, a test of the build, or a scenario: "session_*", "report_<sin>_past".
bool IsShown(const std::string& name, const std::vector<std::string>& scenarios, const std::string& tests) {
  if (name.find('/') != std::string::npos) {
    const std::string path = "tests/" + name;
    return AnyIsThere({path, path + ".cpp", path + "_test.cpp", path + "_check.cpp"});
  }
  const std::regex pattern(std::regex_replace(name, std::regex(R"(\*|<\w+>)"), ".+"));
  if (std::ranges::any_of(scenarios, [&](const std::string& s) { return std::regex_match(s, pattern); }))
    return true;
  return tests.find(name) != std::string::npos;
}

TEST(Rules, NameCodeAndTestsThatAreThere) {
  const RuleNames names = NamesOf(TextOfFile(kCheckout / "docs" / "rules.md"));
  ASSERT_GE(names.code.size(), 80u) << "the tables were not found";
  ASSERT_GE(names.shownBy.size(), 80u) << "the tables were not found";
  const std::string sources = Sources();
  for (const std::string& name : names.code) EXPECT_TRUE(IsCode(name, sources)) << name;
  const std::vector<std::string> scenarios = ScenarioNames();
  const std::string tests = TextOfFile(kCheckout / "tests" / "CMakeLists.txt") +
                            TextOfFile(kCheckout / "tests" / "desktop" / "CMakeLists.txt");
  for (const std::string& name : names.shownBy) EXPECT_TRUE(IsShown(name, scenarios, tests)) << name;
}

TEST(RulesCheck, FindsWhatIsNotThere) {
  EXPECT_EQ(NamesOf("| A rule | `a/b`, `C` | `d_*` |\n|---|---|---|\n`e`\n").code,
            (std::vector<std::string>{"a/b", "C"}));
  EXPECT_TRUE(IsCode("shell/program", ""));
  EXPECT_FALSE(IsCode("shell/no_such_file", ""));
  EXPECT_TRUE(IsCode("Form::Show", "void Show() {}"));
  EXPECT_FALSE(IsCode("Form::Show", "void ShowAll() {}"));
  EXPECT_TRUE(IsShown("report_<sin>_past", {"report_smoking_past"}, ""));
  EXPECT_FALSE(IsShown("report_<sin>_past", {"report_smoking_future"}, ""));
}

}  // namespace
}  // namespace vicetoll
