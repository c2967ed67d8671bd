// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/identification.h"

#include <functional>
#include <numeric>

#include "program_fixture.h"

namespace vicetoll {
namespace {

// Lets a test look at the windows during each pause.
class WatchedPlatform : public ScriptedPlatform {
 public:
  std::function<void()> onPause;

  void Pause(int milliseconds) override {
    ScriptedPlatform::Pause(milliseconds);
    if (onPause) onPause();
  }
};

// Writes down what disappears or comes back, each name once where its elements go together.
class Watcher : public FormListener {
 public:
  void ControlChanged(Control& control) override {
    if (names.empty() || names.back() != control.Name()) names.push_back(control.Name());
  }
  void FormChanged(Form&) override {}
  std::vector<std::string> names;
};

class Identification : public testing::Test {
 protected:
  WatchedPlatform platform;
  Program program{platform};
  SinWorkspace& ws = program.At(0);
  Button& reveal = ws.Get<Button>("cmdRevealDeveloper");
  Button& restore = ws.Get<Button>("cmdRestoreProgram");

  // The button comes up on a click on the ground of the TOTAL tab.
  void Open() {
    EXPECT_EQ(ws.SSTab_PastFutureSwitch->UserSelects(kTotalTab), UserOutcome::Done);
    EXPECT_EQ(ws.Get<Panel>("SSPanel_BackColor", 2).UserClicks(), UserOutcome::Done);
  }
  void Reveal() {
    Open();
    EXPECT_EQ(reveal.UserClicks(), UserOutcome::Done);
  }
  void Restore() { EXPECT_EQ(restore.UserClicks(), UserOutcome::Done); }
};

TEST_F(Identification, StandsInTwoWorkspaces) {
  for (int i = 0; i < kSinCount; ++i) {
    const std::string_view key = Catalogue()[i].key;
    const bool has = key == "Smoking" || key == "Interring";
    for (const char* name : {"cmdRevealDeveloper", "cmdRestoreProgram"})
      EXPECT_EQ(program.At(i).Find(name) != nullptr, has) << key << ": " << name;
  }
}

TEST_F(Identification, CancelChangesNothing) {
  Open();
  const States before = StatesOf(ws);
  platform.answers.messages = {Answer::Cancel};
  EXPECT_EQ(reveal.UserClicks(), UserOutcome::Done);
  ASSERT_EQ(platform.messages.size(), 1u);
  EXPECT_EQ(platform.messages[0].title, "Program Writer/Developer Identification");
  EXPECT_EQ(platform.messages[0].buttons, MessageButtons::OkCancel);
  EXPECT_EQ(Changes(before, ws), std::vector<std::string>{});
  EXPECT_EQ(platform.paused, 0);
  EXPECT_TRUE(ws.Canvas().empty());
}

TEST_F(Identification, TheTotalTabGivesWayToTheText) {
  Reveal();
  EXPECT_FALSE(ws.SSTab_PastFutureSwitch->Visible());
  EXPECT_FALSE(ws.Get<Frame>("frmSummaryPast").Visible());
  EXPECT_FALSE(ws.cmdCumulativeFutureDateTot->Visible());
  EXPECT_TRUE(restore.Visible());
  std::vector<std::string> lines;
  for (const CanvasLine& line : ws.Canvas())
    if (!line.text.empty()) lines.push_back(line.text);
  ASSERT_EQ(lines.size(), 7u);
  EXPECT_EQ(lines[0], "The Writer and Developer Of");
  EXPECT_EQ(lines[4], "As of Nov 1, 2007,");
}

// 100 milliseconds before each of the 181 letters of the seven lines, and after each of the 49 names of the
// fading list; tab and panel at its head go without a pause, and come back with one.
TEST_F(Identification, TakesItsTime) {
  Reveal();
  EXPECT_EQ(platform.paused, (49 + 181) * 100);
  Restore();
  EXPECT_EQ(platform.paused, (49 + 181 + 2 + 49) * 100);
}

// The pauses serve events: there must be no way out in the middle.
TEST_F(Identification, TheExitIsShutUntilItIsThrough) {
  int open = 0;
  platform.onPause = [&] { open += ws.cmdExit->Enabled() ? 1 : 0; };
  Reveal();
  EXPECT_GT(platform.paused, 0);
  EXPECT_EQ(open, 0);
  EXPECT_TRUE(ws.cmdExit->Enabled());
}

// What was hidden before is not remembered: the boxes of periods that are not set come to light.
TEST_F(Identification, TheRestoreShowsEverythingAndHidesTheButtonForGood) {
  Open();
  const TextBox& unset = ws.Of(Side::Past).txtResultsPeriod(5);
  EXPECT_FALSE(unset.Visible());
  Reveal();
  Restore();
  EXPECT_TRUE(unset.Visible());
  EXPECT_TRUE(ws.SSTab_PastFutureSwitch->Visible());
  EXPECT_TRUE(ws.Get<Frame>("frmSummarytot").Visible());
  EXPECT_TRUE(ws.Canvas().empty());
  EXPECT_FALSE(restore.Visible());
  EXPECT_FALSE(reveal.Visible());
  EXPECT_TRUE(ws.identificationOver);
}

TEST_F(Identification, ALineIsTypedBetweenItsLineEnds) {
  TypeLine(ws, "ab", 30, 500, 2, 3);
  std::vector<std::string> lines;
  for (const CanvasLine& line : ws.Canvas()) lines.push_back(line.text);
  EXPECT_EQ(lines, (std::vector<std::string>{"", "", "ab", "", ""}));
  EXPECT_EQ(ws.Canvas()[2].left, 500);
  EXPECT_EQ(platform.paused, 60);
}

// Each thing once, when it first goes.
const std::vector<std::string> kOrder = {
    "SSTab_PastFutureSwitch",
    "SSPanel_BackColor",
    "frmSummaryPast",
    "lblResultsPeriodPast",
    "lblResultsTotalSummaryPast",
    "txtResultsPeriodPast",
    "txtResultsTotalSummaryPast",
    "Label2",
    "Label1",
    "lblSummaryButtonsPast",
    "cmdAdvResultsDocSummaryPast",
    "cmdAdvResultsSpdSummaryPast",
    "txtCumulativeResultsPeriodPast",
    "lblFirstDatePast",
    "lblTo",
    "lblLastDatePast",
    "frmSummaryfut",
    "lblResultsPeriodFut",
    "lblResultsTotalSummaryFut",
    "txtResultsPeriodFut",
    "txtResultsTotalSummaryFut",
    "Label6",
    "Label4",
    "lblSummaryButtonsFut",
    "cmdAdvResultsDocSummaryFut",
    "cmdAdvResultsSpdSummaryFut",
    "txtCumulativeResultsPeriodFut",
    "lblFirstDateFut",
    "lblLastDateFut",
    "frmCumulativeResultsTotalFutureDateTot",
    "frmSummarytot",
    "lblResultsTotalSummaryTot",
    "lblCumulativeResultsTotalSummaryTot",
    "txtResultsTotalSummaryTot",
    "txtCumulativeResultsTotalSummaryTot",
    "lblSummaryButtonsTot",
    "cmdAdvResultsDocSummaryTot",
    "cmdAdvResultsSpdSummaryTot",
    "lblInterestRateFutureDateTot",
    "lblInflationRateFutureDateTot",
    "comInterestRateFutureDateTot",
    "comInflationRateFutureDateTot",
    "lblCumulativeFutureDateTot",
    "comCumulativeFutureDateTot",
    "txtCumulativeFutureDateTot",
    "cmdCumulativeFutureDateTot",
};

// lblTo, the frames of the totals, panels and tab stand in the list twice; the second time nothing happens.
TEST_F(Identification, FadesAndComesBackInOneOrder) {
  Open();
  SetSummaryVisibility(ws, true, 0);  // also what a period hides that is not set
  Watcher watcher;
  ws.SetListener(&watcher);
  SetSummaryVisibility(ws, false, 0);
  EXPECT_EQ(watcher.names, kOrder);
  watcher.names.clear();
  SetSummaryVisibility(ws, true, 0);
  EXPECT_EQ(watcher.names, kOrder);
  ws.SetListener(nullptr);
}

}  // namespace
}  // namespace vicetoll
