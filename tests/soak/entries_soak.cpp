// SPDX-License-Identifier: GPL-3.0-or-later
// entries-soak: what random users set is saved, opened in a fresh program, and must show the same: the result
// boxes of every sin, all months of all reports, the points of the growth chart, the table over all sins, the
// TOTAL tab. Then both programs are used alike for a while, and must still agree.
//
//   entries-soak [--sessions N] [--actions N] [--seed N]
#include <charconv>
#include <cstdint>
#include <iostream>
#include <map>
#include <random>
#include <sstream>

#include "base/fault.h"
#include "charts/growth_points.h"
#include "entries/entries_file.h"
#include "reports/report_terms.h"
#include "soak/random_user.h"

namespace vicetoll {
namespace {

// Says nothing and keeps no files.
class MutePlatform : public ScriptedPlatform {
 public:
  explicit MutePlatform(MonthAndYear clock) : ScriptedPlatform([](const std::string&) {}) { now = clock; }
  void WriteFile(const std::string&, std::string_view) override {}
};

using View = std::map<std::string, std::string>;

std::string Shown(const TextBox& box) {
  return box.Text() + (box.Enabled() ? " enabled" : " disabled") + (box.Visible() ? "" : " hidden");
}

class MonthsAsText : public MonthSink {
 public:
  MonthsAsText() { text.precision(12); }
  void Begin(const ReportStretch&) override {}
  void Add(const ReportMonth& month) override {
    text << month.index << ' ' << static_cast<int>(month.kind) << ' ' << month.label << ' ' << month.monthCost
         << ' ' << month.quantity << ' ' << month.unitCost << ' ' << month.cumulativeCost << ' '
         << month.cumulativeCostWithInterest << '\n';
  }
  std::ostringstream text;
};

void ViewSide(SinWorkspace& ws, Side side, View& view) {
  const SideControls& c = ws.Of(side);
  const std::string place = ws.Name() + "." + std::string(OperationSuffix(side));
  for (int p = 1; p <= kPeriodCount; ++p) {
    const PeriodRecord& record = ws.Of(side).Record(p);
    const std::string period = place + std::to_string(p);
    view[period] = !record.PeriodSet
                       ? "not set"
                       : Shown(c.txtResultsPeriod(p)) + " " + Shown(c.txtCumulativeResultsPeriod(p)) + " " +
                             record.StartLabel + " " + record.StopLabel +
                             (record.PeriodEnabled ? " on" : " off") + " " + c.optTimePeriod(p).Caption();
  }
  if (!ws.Of(side).Record(1).PeriodSet) return;
  view[place + " total"] = Shown(*c.txtResultsTotal);
  view[place + " unit"] = c.firstUnit->Value() ? "first" : "second";
  MonthsAsText months;
  WalkSide(ReportSideOf(ws.Of(side), ws.Of(side).Index()), {}, months);
  view[place + " report"] = months.text.str();
}

std::string PointsOf(const ChartContents& chart) {
  std::ostringstream text;
  text.precision(12);
  text << chart.title << ' ' << chart.present << ' ' << chart.emptyText << '\n';
  for (const ChartMonth& month : chart.months)
    text << month.label << ' ' << static_cast<int>(month.kind) << OperationSuffix(month.side) << month.period
         << ' ' << month.outOfPocket << ' ' << month.withInterest << '\n';
  for (const ChartBand& band : chart.bands)
    text << band.first << ' ' << band.last << ' ' << band.name << '\n';
  return text.str();
}

void ViewSin(SinWorkspace& ws, MonthAndYear present, View& view) {
  for (Side side : kSides) ViewSide(ws, side, view);
  MonthsAsText months;
  WalkTotal(TotalTermsOf(ws, ws.Of(Side::Past).Index(), ws.Of(Side::Future).Index()), {}, months);
  view[ws.Name() + ".report"] = months.text.str();
  view[ws.Name() + ".growth"] = PointsOf(GrowthOf(ws, present));
}

void ViewTotalTab(const SinWorkspace& ws, View& view) {
  const std::string place = ws.Name() + ".TOTAL ";
  for (const TextBox* box :
       {ws.txtResultsTotalSummaryTot, ws.txtCumulativeResultsTotalSummaryTot, ws.txtCumulativeFutureDateTot})
    // The table over all sins writes "0" for the "n/a" of a closed tab.
    view[place + box->Name()] = box->Enabled() ? box->Text() : "closed";
  for (const DropDownList* list :
       {ws.comCumulativeFutureDateTot, ws.comInterestRateFutureDateTot, ws.comInflationRateFutureDateTot})
    if (list->Enabled()) view[place + list->Name()] = list->Text();
  for (Side side : kSides)
    for (int p = 1; p <= kPeriodCount; ++p)
      if (ws.Of(side).Record(p).PeriodSet)
        view[place + std::string(OperationSuffix(side)) + std::to_string(p)] =
            Shown(ws.Of(side).txtResultsPeriod(p + kPeriodCount)) + " " +
            Shown(ws.Of(side).txtCumulativeResultsPeriod(p + kPeriodCount));
}

// What a user sees of all that is set.
View ViewOf(Program& program) {
  View view;
  SinWorkspace& front = program.Current();
  view["front"] = front.Name() + std::to_string(front.SSTab_PastFutureSwitch->Tab());
  if (front.SSTab_PastFutureSwitch->Tab() == kTotalTab) ViewTotalTab(front, view);
  for (int i = 0; i < kSinCount; ++i)
    if (program.GetSession().SinVisited[i] || front.Position() == i)
      ViewSin(program.At(i), program.GetSession().platform.Now(), view);
  CombinedResults& table = program.Combined();
  table.Get<DropDownList>("comDataRep").SetText("BLANK");
  for (Control* check : table.FindAll("chkWhichSins")) dynamic_cast<CheckBox&>(*check).SetValue(true);
  table.PopulateCombResultsText();
  for (Control* control : table.ControlsByName())
    if (const auto* box = dynamic_cast<const TextBox*>(control))
      view["table " + box->FullName()] = box->Text();
  return view;
}

// Both texts around the place where they part.
std::string FirstDifference(const std::string& one, const std::string& other) {
  std::size_t at = 0;
  while (at < one.size() && at < other.size() && one[at] == other[at]) ++at;
  at = at < 60 ? 0 : at - 60;
  return ":\n    " + one.substr(at, 160) + "\n    " + other.substr(at, 160);
}

std::string Difference(const View& one, const View& other) {
  for (const auto& [key, value] : one) {
    const auto found = other.find(key);
    if (found == other.end()) return key + ": missing";
    if (found->second != value) return key + FirstDifference(value, found->second);
  }
  return one.size() == other.size() ? std::string() : "more is shown";
}

// A user who leads two programs alike: goes to periods that are set, sets them again, switches them off and
// on, opens tabs, chooses dates.
class TwoHands {
 public:
  TwoHands(std::mt19937_64& random, Program& one, Program& other)
      : random_(random), programs_{&one, &other} {}

  // What it did, as a word; "parted" in front if the programs answered differently.
  std::string Act() {
    SinWorkspace& ws = programs_[0]->Current();
    const Side side = ws.SSTab_PastFutureSwitch->Tab() == kFutureTab ? Side::Future : Side::Past;
    const std::string suffix(ControlSuffix(side));
    int set = 0;
    while (set < kPeriodCount && ws.Of(side).Record(set + 1).PeriodSet) ++set;
    const std::string p = "(" + std::to_string(set == 0 ? 1 : 1 + Below(set)) + ")";
    switch (Below(8)) {
      case 0:
        return Tab(Below(3));
      case 1:
      case 2:
        return Click((Below(2) != 0 ? "rbnEnabledPeriod" : "rbnDisabledPeriod") + suffix + p);
      case 3:
        return Click("cmdCumulativeFutureDateTot");
      case 4:
        return Pick("comInterestRateFutureDateTot") + Pick("comCumulativeFutureDateTot");
      default: {
        if (set == 0 || ws.SSTab_PastFutureSwitch->Tab() == kTotalTab) return Tab(Below(3));
        std::string done = Click("optTimePeriod" + suffix + p);
        if (Below(3) != 0) done += Pick("comInterestRate1" + suffix);
        if (Below(3) == 0) done += Click("cmdSetPeriodParams" + suffix);
        return done;
      }
    }
  }

 private:
  template <class Do>
  std::string Both(const std::string& what, const Do& act) {
    const UserOutcome first = act(programs_[0]->Current());
    return (first == act(programs_[1]->Current()) ? " " : " parted at ") + what;
  }
  std::string Tab(int tab) {
    return Both("tab " + std::to_string(tab),
                [&](SinWorkspace& ws) { return ws.SSTab_PastFutureSwitch->UserSelects(tab); });
  }
  std::string Click(const std::string& name) {
    return Both("click " + name, [&](SinWorkspace& ws) {
      Control* control = ws.Find(name);
      if (auto* choice = dynamic_cast<Choice*>(control)) return choice->UserClicks();
      return dynamic_cast<Button&>(*control).UserClicks();
    });
  }
  std::string Pick(const std::string& name) {
    const int place = Below(60);
    return Both("choose " + name + " " + std::to_string(place), [&](SinWorkspace& ws) {
      auto& list = ws.Get<DropDownList>(name);
      list.UserFocuses();
      return list.UserPicks(place);
    });
  }
  int Below(int limit) { return static_cast<int>(random_() % limit); }

  std::mt19937_64& random_;
  Program* programs_[2];
};

struct Options {
  std::uint64_t sessions = 60, actions = 200, seed = 1;
};

// Empty if all is well.
std::string Check(std::uint64_t seed, const Options& options, std::uint64_t& periods) {
  std::mt19937_64 random(seed);
  const MonthAndYear now{static_cast<int>(seed % 12) + 1, 1995 + static_cast<int>(random() % 40)};
  MutePlatform platform(now);
  Program program(platform);
  const std::unique_ptr<Stage> stage = MakeControlStage();
  RandomUser user(random, {.fineDates = random() % 3 != 0, .euro = true});
  if (const int sin = static_cast<int>(seed / 12 % kSinCount); sin != 0) program.Enter(sin);
  for (std::uint64_t done = 0; done < options.actions && !program.Ended();)
    for (const UserAction& action : user.Next(program)) {
      Perform(action, program, *stage, platform);
      ++done;
    }
  if (program.Ended()) return {};
  // Who looks at the identification sequence sees no boxes; once it is undone, those of periods that are not
  // set are to be seen as well.
  for (const char* sin : {"Smoking", "Interring"}) {
    const SinWorkspace& ws = program.At(SinPosition(sin));
    if (ws.identificationOver || ws.Get<Button>("cmdRestoreProgram").Visible()) return {};
  }

  const Entries entries = Capture(program);
  for (const SinEntries& sin : entries.sins) periods += sin.past.periods.size() + sin.future.periods.size();
  const std::string bytes = WriteEntries(entries);
  const Entries read = ReadEntries(bytes);
  if (read != entries) return "read is not what was written:\n" + bytes;
  Program fresh(platform);
  Apply(fresh, read);
  Program opened(platform);
  opened.TakeStateOf(fresh);
  if (const Entries again = Capture(opened); again != entries)
    return "captured again" + FirstDifference(bytes, WriteEntries(again)) + "\n" + bytes;
  if (const std::string difference = Difference(ViewOf(program), ViewOf(opened)); !difference.empty())
    return difference + "\n" + bytes;
  TwoHands hands(random, program, opened);
  std::string history;
  for (int i = 0; i < 100; ++i) {
    const std::string done = hands.Act();
    history += done + ";";
    if (done.find("parted") != std::string::npos) return history + "\n" + bytes;
    if (i % 10 != 9) continue;
    if (const std::string difference = Difference(ViewOf(program), ViewOf(opened)); !difference.empty())
      return history + "\n" + difference + "\n" + bytes;
  }
  return {};
}

int Soak(const Options& options) {
  std::uint64_t failures = 0, periods = 0;
  for (std::uint64_t seed = options.seed; seed < options.seed + options.sessions && failures < 10; ++seed) {
    std::string wrong;
    try {
      wrong = Check(seed, options, periods);
    } catch (const std::exception& error) {
      wrong = error.what();
    }
    if (wrong.empty()) continue;
    ++failures;
    std::cerr << "seed " << seed << ": " << wrong << '\n';
  }
  std::cout << options.sessions << " sessions, " << periods << " periods set, " << failures << " failures\n";
  return failures == 0 ? 0 : 1;
}

bool Parse(int argc, char** argv, Options& options) {
  for (int i = 1; i + 1 < argc; i += 2) {
    const std::string_view name = argv[i], value = argv[i + 1];
    std::uint64_t* number = name == "--sessions"  ? &options.sessions
                            : name == "--actions" ? &options.actions
                            : name == "--seed"    ? &options.seed
                                                  : nullptr;
    if (number == nullptr) return false;
    if (std::from_chars(value.data(), value.data() + value.size(), *number).ec != std::errc()) return false;
  }
  return argc % 2 == 1;
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  vicetoll::Options options;
  if (vicetoll::Parse(argc, argv, options)) return vicetoll::Soak(options);
  std::cerr << "usage: entries-soak [--sessions N] [--actions N] [--seed N]\n";
  return 2;
}
