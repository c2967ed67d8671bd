// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/layout.h"

#include "program_fixture.h"

namespace vicetoll {
namespace {

constexpr int kBottom = 600;

class Layout : public testing::Test {
 protected:
  RunningProgram run;
  SinWorkspace& smoking = run.Smoking();

  static Place At(const SinWorkspace& ws, const char* name) { return ws.Get<Control>(name).GetPlace(); }

  // All places from the rules of the bottom row, for a window of a height.
  static void ExpectBottomRow(const SinWorkspace& ws, int height) {
    SCOPED_TRACE(testing::Message() << ws.Name() << " of height " << height);
    const auto expect = [&](const char* name, int left, int top) {
      EXPECT_EQ(At(ws, name).left, left) << name;
      EXPECT_EQ(At(ws, name).top, top) << name;
    };
    expect("cmdSwitchSins", 0, height - 800 - kBottom);
    expect("cmdCombinedResults", 2550, height - 800 - kBottom);
    expect("frmToolTipOnOff", 5100, height - 800 - kBottom - 50);
    expect("cmdExit", 8000, height - 875 - kBottom);
    expect("cmdHelp", 10225, height - 437 - 1025);
    expect("cmdFaq", 10225, height - 437 - 1025 + 450);
  }
};

TEST_F(Layout, SmokingStartsHigherByItsEuroButton) {
  EXPECT_EQ(smoking.Width(), 12000);
  EXPECT_EQ(smoking.Height(), 11250);
  for (const char* key : {"Gambling", "Interring"}) {
    EXPECT_EQ(run.Enter(key).Width(), 12000);
    EXPECT_EQ(run.Enter(key).Height(), 10500);
  }
  EXPECT_EQ(smoking.Height(), 10500);
}

TEST_F(Layout, ButtonsHaveTheirSizes) {
  for (const char* key : {"Smoking", "Drinking"}) {
    const SinWorkspace& ws = run.Enter(key);
    for (const char* name : {"cmdSwitchSins", "cmdCombinedResults"}) {
      EXPECT_EQ(At(ws, name).width, 2500);
      EXPECT_EQ(At(ws, name).height, 800);
    }
    EXPECT_EQ(At(ws, "frmToolTipOnOff").width, 2800);
    EXPECT_EQ(At(ws, "cmdExit").width, 2200);
    EXPECT_EQ(At(ws, "cmdExit").height, 875);
    for (const char* name : {"cmdHelp", "cmdFaq"}) {
      EXPECT_EQ(At(ws, name).width, 1650);
      EXPECT_EQ(At(ws, name).height, 437);
    }
  }
}

TEST_F(Layout, TheBottomRowStandsAtTheBottom) {
  ExpectBottomRow(smoking, 11250);
  ExpectBottomRow(run.Enter("Watering"), 10500);
}

TEST_F(Layout, TheBottomRowFollowsTheHeight) {
  for (const int height : {12000, 15000, 11000}) {
    ASSERT_EQ(smoking.UserResizes(14000, height), UserOutcome::Done);
    EXPECT_EQ(smoking.Height(), height);
    ExpectBottomRow(smoking, height);
    EXPECT_EQ(At(smoking, "cmdEuro").top, height - 700 - 800 - 700);
  }
}

TEST_F(Layout, TheEuroButtonSpansTheWindow) {
  const Place euro = At(smoking, "cmdEuro");
  EXPECT_EQ(euro.left, 0);
  EXPECT_EQ(euro.width, 12000);
  EXPECT_EQ(euro.height, 700);
  EXPECT_EQ(euro.top, 11250 - 700 - 800 - 700);
}

TEST_F(Layout, AWindowStretchesSoFarAndSnapsBackBeyond) {
  struct Stretch {
    int width, height, endsWidth, endsHeight;
  };
  for (const bool extended : {true, false}) {
    if (!extended) run.Press(smoking, Side::Past);
    ASSERT_EQ(smoking.cmdEuro->Visible(), extended);
    const int own = extended ? 11250 : 10500;
    for (const Stretch& to : {Stretch{16000, 15000, 16000, 15000},
                              {12000, 10500, 12000, 10500},
                              {16001, 12000, 12000, own},
                              {11999, 12000, 12000, own},
                              {14000, 15001, 12000, own},
                              {14000, 10499, 12000, own},
                              {20000, 20000, 12000, own}}) {
      smoking.UserResizes(to.width, to.height);
      EXPECT_EQ(smoking.Width(), to.endsWidth) << to.width << " x " << to.height;
      EXPECT_EQ(smoking.Height(), to.endsHeight) << to.width << " x " << to.height;
    }
  }
}

TEST_F(Layout, AMaximisedWindowIsNotLimited) {
  smoking.SetWindowState(WindowState::Maximised);
  smoking.UserResizes(20000, 18000);
  EXPECT_EQ(smoking.Width(), 20000);
  EXPECT_EQ(smoking.Height(), 18000);
  ExpectBottomRow(smoking, 18000);
  smoking.SetWindowState(WindowState::Normal);
  EXPECT_EQ(smoking.Width(), 12000);
}

TEST_F(Layout, PanelsLeaveTheHeadOfTheTabsFree) {
  for (const char* key : {"Smoking", "Shopping"}) {
    const SinWorkspace& ws = run.Enter(key);
    const Place tabs = ws.SSTab_PastFutureSwitch->GetPlace();
    for (int i = 0; i < 3; ++i) {
      const Place panel = ws.Get<Panel>("SSPanel_BackColor", i).GetPlace();
      EXPECT_EQ(panel.top, 900);
      EXPECT_EQ(panel.width, tabs.width - 310);
      EXPECT_EQ(panel.height, tabs.height - 900);
    }
  }
}

TEST_F(Layout, ASwitchLaysOutAgain) {
  run.Enter("Drinking").UserResizes(15000, 14000);
  run.Enter("Gambling");
  EXPECT_EQ(run.Enter("Drinking").Width(), 12000);
  EXPECT_EQ(run.Front().Height(), 10500);
  ExpectBottomRow(run.Front(), 10500);
}

TEST_F(Layout, TheButtonsOfTheIdentificationHideInTheirCorners) {
  run.Enter("Interring");
  for (const char* key : {"Smoking", "Interring"}) {
    const SinWorkspace& ws = run.program.At(SinPosition(key));
    const bool isSmoking = ws.Sin().startsTheProgram;
    const Place panel = ws.Get<Panel>("SSPanel_BackColor", isSmoking ? 2 : 0).GetPlace();
    const Place reveal = At(ws, "cmdRevealDeveloper");
    EXPECT_EQ(reveal.width, 60);
    EXPECT_EQ(reveal.height, 60);
    EXPECT_EQ(reveal.left, panel.width + (isSmoking ? -400 : 300));
    EXPECT_EQ(reveal.top, panel.height + (isSmoking ? -400 : 200));
    EXPECT_FALSE(ws.Get<Button>("cmdRestoreProgram").Visible());
    // Over the exit button, which stands 750 lower in Smoking while that begins.
    EXPECT_EQ(At(ws, "cmdRestoreProgram").left, 8000);
    EXPECT_EQ(At(ws, "cmdRestoreProgram").top, isSmoking ? 8275 : 7525);
    EXPECT_EQ(At(ws, "cmdRestoreProgram").width, 2200);
    EXPECT_EQ(At(ws, "cmdRestoreProgram").height, 575);
  }
}

}  // namespace
}  // namespace vicetoll
