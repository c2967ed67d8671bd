// SPDX-License-Identifier: GPL-3.0-or-later
// Entries from file to windows and back.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "entries/entries_file.h"
#include "program_fixture.h"

namespace vicetoll {
namespace {

std::string BytesOf(std::string_view key) {
  std::filesystem::path path(ENTRIES_FILES);
  path /= key;
  path += ".vicetoll";
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Replaced(std::string text, std::string_view what, std::string_view by) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  return text.replace(at, what.size(), by);
}

std::string RefusalOf(const std::function<void()>& read) {
  try {
    read();
    return "read";
  } catch (const EntriesRefused& refused) {
    return refused.what();
  }
}

std::string ReasonFor(const std::string& bytes) {
  return RefusalOf([&] { ReadEntries(bytes); });
}

std::string ReasonForFile(const std::string& path) {
  return RefusalOf([&] { ReadEntriesBytes(path); });
}

class FileOfEverySin : public testing::TestWithParam<int> {};

TEST_P(FileOfEverySin, IsWrittenAsItWasRead) {
  const std::string bytes = BytesOf(Catalogue()[GetParam()].key);
  EXPECT_EQ(WriteEntries(ReadEntries(bytes)), bytes);
}

TEST_P(FileOfEverySin, ComesBackOutOfTheWindows) {
  const Entries entries = ReadEntries(BytesOf(Catalogue()[GetParam()].key));
  RunningProgram run;
  Apply(run.program, entries);
  EXPECT_EQ(WriteEntries(Capture(run.program)), WriteEntries(entries));
}

INSTANTIATE_TEST_SUITE_P(All, FileOfEverySin, testing::Range(0, kSinCount),
                         [](const auto& sin) { return std::string(Catalogue()[sin.param].key); });

// A pack a day at 2.00, then at 3.00, in months that no list of 2026 offers.
TEST(Apply, GivesTheResultsOfOldMonths) {
  RunningProgram run;
  Apply(run.program, ReadEntries(BytesOf("Smoking")));
  SideControls& c = run.Smoking().Of(Side::Future);
  EXPECT_EQ(run.Smoking().SSTab_PastFutureSwitch->Tab(), kFutureTab);
  EXPECT_EQ(c.txtResultsPeriod(1).Text(), "$183");
  EXPECT_EQ(c.txtCumulativeResultsPeriod(1).Text(), "$186");
  EXPECT_EQ(c.txtResultsPeriod(2).Text(), "$183");
  EXPECT_EQ(c.txtCumulativeResultsPeriod(2).Text(), "$375");
  EXPECT_EQ(c.txtResultsTotal->Text(), "$366");
  EXPECT_EQ(c.comStart->Text(), "Jun - 2000");
  RunningProgram::GoTo(run.Smoking(), Side::Future, 1);
  EXPECT_EQ(c.comStart->Text(), "Jan - 2000");
  EXPECT_EQ(c.comStop->Text(), "Mar - 2000");
}

// A period of 4,814,403,578,892,790 and one of 2,929, the first switched off and counted by a press all the
// same: the total shows no more than 15 of its digits.
TEST(Capturing, KnowsAPressWhereTheTotalHasLostDigits) {
  std::string bytes = BytesOf("Watering");
  const std::size_t begin = bytes.find("{\n          \"start\""), end = bytes.find("}", begin) + 1;
  const std::string year = bytes.substr(begin, end - begin);
  const std::string first =
      Replaced(Replaced(Replaced(Replaced(year, "\"2031-06\"", "\"1922-07\""), "\"2032-05\"", "\"1988-07\""),
                        "\"increase\": \"10\"", "\"increase\": \"42\""),
               "true", "false");
  bytes.replace(begin, end - begin, first + "," + year);
  bytes = Replaced(bytes, "\"period\": 1,", "\"period\": 2, \"results\": \"all\",");
  const Entries entries = ReadEntries(bytes);
  RunningProgram run;
  Apply(run.program, entries);
  EXPECT_EQ(Capture(run.program).sins.at(1).future.resultsBy, CountedIn::Press);
}

TEST(Reading, NamesThePlaceAndWhatIsWrong) {
  const std::string good = BytesOf("Drinking");
  const struct {
    const char *what, *by, *reason;
  } kCases[] = {
      {"\"quantity\": \"6\"", "\"quantity\": \"6.5\"",
       "sins.Drinking.past[1].quantity: \"6.5\" is no entry of the list (6, 7)"},
      {"\"quantity\": \"6\"", "\"quantity\": \"76\"",
       "sins.Drinking.past[1].quantity: \"76\" is no entry of the list (which ends with 75)"},
      {"\"quantity\": \"6\"", "\"quantity\": 6",
       "sins.Drinking.past[1].quantity: must be a text in quotation marks"},
      {"\"cost\": \"3.00\"", "\"cost\": \"3\"",
       "sins.Drinking.past[1].cost: \"3\" is no entry of the list (3.00)"},
      {"\"start\": \"1990-01\"", "\"start\": \"1990-13\"",
       "sins.Drinking.past[1].start: \"1990-13\" is no month (such as \"2031-06\")"},
      {"\"stop\": \"1994-12\"", "\"stop\": \"1989-12\"",
       "sins.Drinking.past[1].stop: \"1989-12\" lies before the start, \"1990-01\""},
      {"\"start\": \"1996-02\"", "\"start\": \"1994-12\"",
       "sins.Drinking.past[2].start: \"1994-12\" does not lie after the stop of the period before, "
       "\"1994-12\""},
      {"\"unit\": \"per day\"", "\"unit\": \"packs\"",
       "sins.Drinking.past[1].unit: \"packs\" is none of \"per day\", \"per month\""},
      {"\"enabled\": true", "\"enabled\": \"yes\"", "sins.Drinking.past[1].enabled: must be true or false"},
      {"\"interest\": \"5\"", "\"interest\": \"101\"",
       "sins.Drinking.past[1].interest: \"101\" is no entry of the list (0 to 100)"},
      {"\"interest\": \"5\"", "\"interests\": \"5\"",
       "sins.Drinking.past[1].interests: there is no such field"},
      {"\"interest\": \"5\"", "\"unit\": \"5\"", "sins.Drinking.past[1].unit: stands here twice"},
      {"\"past\": [", "\"oldBalance\": \"$40\", \"past\": [",
       "sins.Smoking.oldBalance: \"$40\" is no amount in whole units"},
      {"\"tab\": \"past\"", "\"tab\": [[[[[[[[[[", "tab[1][1][1][1][1][1][1]: nested too deep"},
      {"\"version\": 1", "\"version\": 2",
       "version: this file is of version 2, written by a newer program; this one reads version 1"},
      {"\"currency\"", "currency", "line 4, column 3: this is no JSON"},
      {"\"Drinking\": {", "\"Eating\": {", "sins.Eating: \"Eating\" is none of the twelve sins"},
      {"\"sin\": \"Drinking\"", "\"sin\": \"Shopping\"", "sin: the sin in front is not among the sins"},
  };
  for (const auto& wrong : kCases) EXPECT_EQ(ReasonFor(Replaced(good, wrong.what, wrong.by)), wrong.reason);
}

TEST(Reading, TakesByteOrderMarksAndCarriageReturns) {
  const std::string good = BytesOf("Drinking");
  std::string windows = "\xEF\xBB\xBF";
  for (char c : good) windows += c == '\n' ? "\r\n" : std::string(1, c);
  EXPECT_EQ(WriteEntries(ReadEntries(windows)), good);
}

TEST(Reading, RefusesRubbish) {
  EXPECT_EQ(ReasonFor(""), "line 1, column 1: this is no JSON");
  EXPECT_EQ(ReasonFor("[]"), "the file: must be an object in braces");
  EXPECT_EQ(ReasonFor("{\"format\": \"\xff\"}").substr(0, 6), "line 1");
  EXPECT_EQ(ReasonFor(std::string(kMostEntriesBytes + 1, ' ')), "the file is larger than 1 MiB");
  EXPECT_EQ(ReasonFor("{\"format\": 1e999}"), "the file: a number is too large");
  EXPECT_NE(ReasonFor(std::string(1 << 20, '[')).find("nested too deep"), std::string::npos);
  EXPECT_EQ(ReasonForFile("/dev/zero"), "this is no regular file");
  EXPECT_EQ(ReasonForFile(ENTRIES_FILES), "this is no regular file");
  EXPECT_EQ(ReasonForFile(ENTRIES_FILES "/None.vicetoll"), "No such file or directory");
}

TEST(Reading, RefusesAFifthPeriod) {
  Entries five = ReadEntries(BytesOf("Soliciting"));
  PeriodEntries last = five.sins[1].past.periods.back();
  last.start = last.stop = "Jul - 2018";
  five.sins[1].past.periods.push_back(last);
  EXPECT_EQ(ReasonFor(WriteEntries(five)), "sins.Soliciting.past: a side has at most four periods");
}

}  // namespace
}  // namespace vicetoll
