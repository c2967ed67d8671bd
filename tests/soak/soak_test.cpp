// SPDX-License-Identifier: GPL-3.0-or-later
// soak: random users, seeded, through sessions of hundreds of actions, with what must hold checked after
// each of them. A failure is cut down to the actions it needs and written as a scenario file.
//
//   soak [--sessions N] [--actions N] [--seed N] [--dollars]
//
// A session's seed is that of the run plus its number, so `--sessions 1 --seed N` repeats it alone. The
// seed also gives the month of the clock.
#include <algorithm>
#include <charconv>
#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <random>

#include "base/fault.h"
#include "soak/invariants.h"
#include "soak/random_user.h"

namespace vicetoll {
namespace {

struct Options {
  std::uint64_t sessions = 200, actions = 300, seed = 1;
  bool dollars = false;  // never presses the euro button
};

// A world that keeps no files and counts what it is told.
class QuietPlatform : public ScriptedPlatform {
 public:
  QuietPlatform() : ScriptedPlatform([](const std::string&) {}) {}

  void WriteFile(const std::string&, std::string_view) override { ++filesWritten; }
  Answer ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) override {
    ++messages;
    return ScriptedPlatform::ShowMessage(title, text, buttons);
  }

  std::uint64_t filesWritten = 0, messages = 0;
};

// A program in the hands of a user, and what went wrong with it.
class SoakSession {
 public:
  explicit SoakSession(MonthAndYear now) : program_(StartedAt(platform_, now)), invariants_(program_) {}

  // Whether all is well after it.
  bool Do(const UserAction& action) {
    invariants_.Before(action);
    try {
      Perform(action, program_, *stage_, platform_);
      violation_ = invariants_.After(action);
    } catch (const Fault& fault) {
      violation_ = Violation{"fault " + std::string(FaultName(fault.Kind())), fault.what()};
    } catch (const std::exception& error) {
      violation_ = Violation{"exception", error.what()};
    }
    return !violation_;
  }

  Program& GetProgram() { return program_; }
  const QuietPlatform& World() const { return platform_; }
  const std::optional<Violation>& Wrong() const { return violation_; }

 private:
  static QuietPlatform& StartedAt(QuietPlatform& platform, MonthAndYear now) {
    platform.now = now;
    return platform;
  }

  QuietPlatform platform_;
  Program program_;
  std::unique_ptr<Stage> stage_ = MakeControlStage();
  Invariants invariants_;
  std::optional<Violation> violation_;
};

// What a seed stands for.
struct Walk {
  MonthAndYear now{};
  std::vector<UserAction> actions;
  std::optional<Violation> wrong;
  std::uint64_t messages = 0, files = 0;
};

UserAction Click(std::string_view window, std::string_view control) {
  UserAction action;
  action.window = window;
  action.control = control;
  return action;
}

// The sin of a session: with the month of the clock, every pair of them comes within 144 seeds.
std::vector<UserAction> WayToTheSin(std::uint64_t seed) {
  const int position = static_cast<int>(seed / 12 % kSinCount);
  if (position == 0) return {};
  return {Click("Smoking", "cmdSwitchSins"),
          Click("frmSwitchSins", "OptSwitchSins(" + std::to_string(position) + ")")};
}

// Presses the set button of each side of the sin in front: whatever was done before, it works.
std::vector<UserAction> PressesOfTheEnd(Program& program) {
  SinWorkspace& ws = program.Current();
  std::vector<UserAction> actions;
  const auto add = [&](ActionKind kind, const Control& control, int number = 0) {
    UserAction action;
    action.kind = kind;
    action.window = ws.Name();
    action.control = control.FullName();
    action.numbers[0] = number;
    actions.push_back(action);
  };
  if (Control* restore = ws.Find("cmdRestoreProgram"); restore != nullptr && restore->Reachable())
    add(ActionKind::Click, *restore);
  for (Side side : kSides) {
    add(ActionKind::Tab, *ws.SSTab_PastFutureSwitch, side == Side::Past ? kPastTab : kFutureTab);
    add(ActionKind::Focus, *ws.Of(side).comInterestRate1);
    add(ActionKind::Click, *ws.Of(side).cmdSetPeriodParams);
  }
  return actions;
}

Walk WalkOf(std::uint64_t seed, const Options& options) {
  std::mt19937_64 random(seed);
  Walk walk;
  walk.now.month = static_cast<int>(seed % 12) + 1;
  walk.now.year = 1995 + static_cast<int>(random() % 40);
  // A third of the users never touch the monthly date lists; what they do keeps all dates in order.
  RandomUser user(random, {.fineDates = random() % 3 != 0, .euro = !options.dollars});
  SoakSession session(walk.now);
  const auto perform = [&](const std::vector<UserAction>& actions) {
    for (const UserAction& action : actions) {
      walk.actions.push_back(action);
      if (!session.Do(action)) return false;
    }
    return true;
  };
  bool well = perform(WayToTheSin(seed));
  while (well && !session.GetProgram().Ended() && walk.actions.size() < options.actions)
    well = perform(user.Next(session.GetProgram()));
  if (well && !session.GetProgram().Ended() && perform(PressesOfTheEnd(session.GetProgram()))) {
    SinWorkspace& ws = session.GetProgram().Current();
    for (Side side : kSides)
      if (!ws.Of(side).Record(ws.Of(side).state.CurrentPeriod).PeriodSet)
        walk.wrong = Violation{"press", ws.Name() + ": a press at the end sets no period"};
  }
  if (session.Wrong()) walk.wrong = session.Wrong();
  walk.messages = session.World().messages;
  walk.files = session.World().filesWritten;
  return walk;
}

// How many of the actions it takes until the same goes wrong; 0 if it does not.
std::size_t StepsToFailure(const MonthAndYear& now, const std::vector<UserAction>& actions,
                           const std::string& check) {
  SoakSession session(now);
  for (std::size_t i = 0; i < actions.size() && !session.GetProgram().Ended(); ++i)
    if (!session.Do(actions[i])) return session.Wrong()->check == check ? i + 1 : 0;
  return 0;
}

// Leaves out whatever is not needed for the failure, in pieces of half the length, a quarter, ... one.
std::vector<UserAction> Reduced(const Walk& walk) {
  std::vector<UserAction> actions = walk.actions;
  for (std::size_t piece = actions.size() / 2; piece > 0; piece /= 2) {
    for (std::size_t at = 0; at < actions.size();) {
      std::vector<UserAction> fewer = actions;
      const auto begin = fewer.begin() + static_cast<std::ptrdiff_t>(at);
      fewer.erase(begin, begin + static_cast<std::ptrdiff_t>(std::min(piece, fewer.size() - at)));
      if (const std::size_t steps = StepsToFailure(walk.now, fewer, walk.wrong->check); steps > 0) {
        fewer.resize(steps);
        actions = fewer;
      } else {
        at += piece;
      }
    }
  }
  return actions;
}

void Report(std::uint64_t seed, const Walk& walk) {
  const std::vector<UserAction> actions = Reduced(walk);
  const std::string path = "soak-" + std::to_string(seed) + ".scenario";
  std::ofstream(path) << "# " << walk.wrong->check << ": " << walk.wrong->detail << "\n"
                      << ScenarioOf(walk.now, actions);
  std::cerr << "seed " << seed << ", action " << walk.actions.size() << ": " << walk.wrong->check << ": "
            << walk.wrong->detail << "\n  " << actions.size() << " actions that show it: " << path << '\n';
}

bool ParseNumber(std::string_view text, std::uint64_t& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

bool ParseOptions(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view name = argv[i];
    if (name == "--dollars") {
      options.dollars = true;
      continue;
    }
    std::uint64_t* number = name == "--sessions"  ? &options.sessions
                            : name == "--actions" ? &options.actions
                            : name == "--seed"    ? &options.seed
                                                  : nullptr;
    if (number == nullptr || ++i == argc || !ParseNumber(argv[i], *number)) return false;
  }
  return true;
}

int Soak(const Options& options) {
  std::uint64_t actions = 0, messages = 0, files = 0, failures = 0;
  for (std::uint64_t seed = options.seed; seed < options.seed + options.sessions; ++seed) {
    const Walk walk = WalkOf(seed, options);
    actions += walk.actions.size();
    messages += walk.messages;
    files += walk.files;
    if (!walk.wrong) continue;
    Report(seed, walk);
    if (++failures == 10) break;
  }
  std::cout << options.sessions << " sessions, " << actions << " actions, " << messages << " messages, "
            << files << " files saved, " << failures << " failures\n";
  return failures == 0 ? 0 : 1;
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  vicetoll::Options options;
  if (!vicetoll::ParseOptions(argc, argv, options)) {
    std::cerr << "usage: soak [--sessions N] [--actions N] [--seed N] [--dollars]\n";
    return 2;
  }
  return vicetoll::Soak(options);
}
