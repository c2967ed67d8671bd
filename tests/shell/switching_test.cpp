// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/fault.h"
#include "fault_of.h"
#include "program_fixture.h"

namespace vicetoll {
namespace {

class Switching : public testing::Test {
 protected:
  RunningProgram run;
  Program& program = run.program;
  Session& session = program.GetSession();

  Button& ExitOfChooser() { return program.Chooser().Get<Button>("cmdExit"); }

  std::vector<std::string> Shown() {
    std::vector<std::string> names;
    for (const Form* form : program.Windows())
      if (form->Shown()) names.push_back(form->Name());
    return names;
  }
  int Visited() {
    int visited = 0;
    for (const bool one : session.SinVisited) visited += one ? 1 : 0;
    return visited;
  }
};

TEST_F(Switching, AtTheStartSmokingAloneIsThere) {
  EXPECT_EQ(program.Windows().size(), 1u);
  EXPECT_EQ(Shown(), std::vector<std::string>{"Smoking"});
  EXPECT_EQ(session.CurrentSinKey, "Smoking");
  EXPECT_EQ(session.CurrentSinNumber.Number(), 1);
  EXPECT_TRUE(session.CurrencyIsDollar());
  EXPECT_TRUE(session.SinVisited[0]);
  EXPECT_EQ(Visited(), 1);
}

TEST_F(Switching, TheChooserOpensWithNothingChosenAndShutsTheButton) {
  run.Smoking().cmdSwitchSins->UserClicks();
  EXPECT_EQ(Shown(), (std::vector<std::string>{"Smoking", "frmSwitchSins"}));
  EXPECT_FALSE(run.Smoking().cmdSwitchSins->Enabled());
  for (int i = 0; i < kSinCount; ++i) {
    const Option& option = program.Chooser().Get<Option>("OptSwitchSins", i);
    EXPECT_FALSE(option.Value());
    EXPECT_EQ(option.Caption(), Catalogue()[i].chooserCaption);
  }
  // The workspace behind it stays usable.
  EXPECT_EQ(run.Smoking().SSTab_PastFutureSwitch->UserSelects(kTotalTab), UserOutcome::Done);
}

TEST_F(Switching, LeavingTheChooserChangesNothingButTheVisit) {
  run.Enter("Gambling", Side::Future);
  EXPECT_FALSE(session.SinVisited[2]);
  run.Front().cmdSwitchSins->UserClicks();
  EXPECT_TRUE(session.SinVisited[2]);
  ASSERT_EQ(ExitOfChooser().UserClicks(), UserOutcome::Done);
  EXPECT_EQ(Shown(), std::vector<std::string>{"Gambling"});
  EXPECT_EQ(session.CurrentSinKey, "Gambling");
  EXPECT_EQ(session.CurrentSinNumber.Number(), 6);
  for (int i = 0; i < kSinCount; ++i) EXPECT_TRUE(program.At(i).cmdSwitchSins->Enabled());
}

TEST_F(Switching, ASwitchShowsTheTargetAlone) {
  for (int i = kSinCount - 1; i >= 0; --i) {
    SinWorkspace& ws = run.Enter(Catalogue()[i].key);
    EXPECT_EQ(&ws, &program.At(i));
    EXPECT_EQ(Shown(), std::vector<std::string>{std::string(Catalogue()[i].key)});
    EXPECT_EQ(session.CurrentSinKey, Catalogue()[i].key);
    EXPECT_EQ(session.CurrentSinNumber.Number(), 2 * i + 1);
    EXPECT_TRUE(program.Chooser().Get<Frame>("frameSwitchSins").Visible());
    EXPECT_TRUE(ExitOfChooser().Enabled());
    for (int k = 0; k < kSinCount; ++k) EXPECT_TRUE(program.At(k).cmdSwitchSins->Enabled());
  }
}

TEST_F(Switching, TheFirstSwitchCreatesAllWorkspacesAndLoadsTheOneChosen) {
  run.Enter("Jailing");
  EXPECT_EQ(program.Windows().size(), kSinCount + 1u);  // and the chooser
  for (int i = 1; i < kSinCount; ++i) {
    SinWorkspace& ws = program.At(i);
    EXPECT_EQ(ws.Caption(), Catalogue()[i].windowCaption);
    EXPECT_EQ(ws.Of(Side::Past).quantity->Count() > 0, ws.Sin().key == "Jailing");
    EXPECT_EQ(program.GetBalloons().Of(i).empty(), ws.Sin().key != "Jailing");
  }
}

TEST_F(Switching, ASwitchReturnsToThePastTabAndItsNumber) {
  run.Enter("Gambling", Side::Future);
  EXPECT_EQ(session.CurrentSinNumber.Number(), 6);
  run.Enter("Jailing", Side::Future);
  run.Enter("Gambling");
  EXPECT_EQ(session.CurrentSinNumber.Number(), 5);
  EXPECT_EQ(run.Front().SSTab_PastFutureSwitch->Tab(), kPastTab);
}

TEST_F(Switching, AReturnShowsWhatWasLeft) {
  SinWorkspace& ws = run.Enter("Drinking");
  run.Press(ws, Side::Past);
  run.Pick(*ws.Of(Side::Past).comInitialCost, "$9.00");
  const States left = StatesOf(ws);
  run.Enter("Jailing");
  run.Enter("Drinking");
  EXPECT_EQ(Changes(left, ws), std::vector<std::string>{});
}

// A sin entered and left without results was visited all the same: its choices stay.
TEST_F(Switching, AVisitedSinIsNotPreparedAgain) {
  SinWorkspace& ws = run.Enter("Shopping");
  run.Pick(*ws.Of(Side::Past).quantity, "$7");
  run.Enter("Jailing");
  run.Enter("Shopping");
  EXPECT_EQ(ws.Of(Side::Past).quantity->Text(), "$7");
}

// A sin whose results are empty and that was never left is prepared at its next choice too.
TEST_F(Switching, ChoosingAnUnvisitedSinPreparesIt) {
  run.Enter("Shopping");
  session.SinVisited[11] = false;
  run.Pick(*run.Front().Of(Side::Past).quantity, "$7");
  program.Chooser().ShowSinChooser(0);
  program.Chooser().Get<Option>("OptSwitchSins", 11).UserClicks();
  EXPECT_EQ(run.Front().Of(Side::Past).quantity->Text(), "$20");
}

TEST_F(Switching, ResultsKeepASinFromBeingPreparedAgain) {
  SinWorkspace& ws = run.Enter("Shopping");
  run.Press(ws, Side::Past);
  session.SinVisited[11] = false;
  program.Chooser().ShowSinChooser(0);
  program.Chooser().Get<Option>("OptSwitchSins", 11).UserClicks();
  EXPECT_TRUE(ws.Of(Side::Past).Record(1).PeriodSet);
}

TEST_F(Switching, ASinMayBeChosenForItself) {
  run.Enter("Gambling", Side::Future);
  run.Front().cmdSwitchSins->UserClicks();
  program.Chooser().Get<Option>("OptSwitchSins", 2).UserClicks();
  EXPECT_EQ(Shown(), std::vector<std::string>{"Gambling"});
  EXPECT_EQ(session.CurrentSinNumber.Number(), 5);
  EXPECT_EQ(run.Front().SSTab_PastFutureSwitch->Tab(), kPastTab);
}

TEST_F(Switching, LeavingSmokingTakesTheEuroButtonAway) {
  SinWorkspace& smoking = run.Smoking();
  const int height = smoking.Height();
  smoking.cmdSwitchSins->UserClicks();
  EXPECT_FALSE(smoking.cmdEuro->Visible() || smoking.cmdEuro->Enabled());
  EXPECT_EQ(smoking.Height(), height - 750);
  program.Chooser().Get<Option>("OptSwitchSins", 0).UserClicks();
  EXPECT_FALSE(smoking.cmdEuro->Visible());
  EXPECT_EQ(smoking.Height(), height - 750);
}

TEST_F(Switching, AReturnToSmokingHidesTheAdvertisingAndShortensTheTitle) {
  SinWorkspace& smoking = run.Smoking();
  EXPECT_EQ(smoking.Caption(), "The \"Ashtoll\" Financial Calculator (www.orvane.example)");
  EXPECT_TRUE(smoking.Get<Button>("cmdHideAdvertisingPast").Visible());
  run.Enter("Gambling");
  for (int round = 0; round < 2; ++round) {
    run.Enter("Smoking");
    EXPECT_EQ(smoking.Caption(), "The \"Ashtoll\"");
    EXPECT_FALSE(smoking.Get<Button>("cmdHideAdvertisingPast").Visible());
    EXPECT_FALSE(smoking.Get<Button>("cmdHideAdvertisingFut").Visible());
    EXPECT_TRUE(smoking.cmdSwitchSins->Enabled() && smoking.cmdSwitchSins->Visible());
    run.Enter("Gambling");
    smoking.Get<Button>("cmdHideAdvertisingFut").SetVisible(true);
  }
}

TEST_F(Switching, APositionOutsideTheSinsIsAFault) {
  for (const int position : {-1, 12})
    EXPECT_EQ(FaultOf([&] { program.Chooser().ShowSinChooser(position); }), FaultKind::Index);
}

// ---- Exit ----

TEST_F(Switching, ExitCreatesAndClosesEveryWindow) {
  ASSERT_EQ(run.Smoking().cmdExit->UserClicks(), UserOutcome::Done);
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(Shown(), std::vector<std::string>{});
  for (int i = 0; i < kSinCount; ++i) EXPECT_EQ(program.Windows()[i]->Name(), Catalogue()[i].key);
  EXPECT_TRUE(run.platform.messages.empty());
  EXPECT_TRUE(run.platform.files.empty());
}

TEST_F(Switching, EveryWorkspaceCanEndTheProgram) {
  run.Enter("Watering");
  EXPECT_FALSE(program.Ended());
  ASSERT_EQ(run.Front().cmdExit->UserClicks(), UserOutcome::Done);
  EXPECT_TRUE(program.Ended());
}

TEST_F(Switching, WindowsAreFoundByName) {
  EXPECT_EQ(program.Window("Smoking"), &run.Smoking());
  EXPECT_EQ(program.Window("frmSwitchSins"), &program.Chooser());
  EXPECT_EQ(program.Window("nothing"), nullptr);
  EXPECT_FALSE(program.Window("Gambling")->Shown());
  EXPECT_EQ(FaultOf([&] { program.At(12); }), FaultKind::Index);
}

}  // namespace
}  // namespace vicetoll
