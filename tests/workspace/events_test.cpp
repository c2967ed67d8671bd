// SPDX-License-Identifier: GPL-3.0-or-later
// Which event opens which button, and what the tabs and panels do.
#include "workspace/events.h"

#include "program_fixture.h"

namespace vicetoll {
namespace {

class SideEvents : public EverySinAndSide {};
INSTANTIATE_TEST_SUITE_P(, SideEvents, AllSinsAndSides(), NameOfSinAndSide);

TEST_P(SideEvents, FocusOnAListOpensTheSetButtonOfItsSideOnly) {
  const SideControls& other = ws.Of(side == Side::Past ? Side::Future : Side::Past);
  if (HasListPerUnit(sin.costClass)) c.comCigsPerDay->SetAvailable(true);
  if (c.comFinalCost != nullptr) c.comFinalCost->SetAvailable(true);
  for (DropDownList* list :
       {c.comStart, c.comStop, c.quantity, HasListPerUnit(sin.costClass) ? c.comCigsPerDay : nullptr,
        c.comInitialCost, c.comFinalCost, c.comSubCost, c.comPercentIncrease, c.comInterestRate1,
        c.comInflationRate1}) {
    if (list == nullptr) continue;
    c.cmdSetPeriodParams->SetEnabled(false);
    other.cmdSetPeriodParams->SetEnabled(false);
    EXPECT_EQ(list->UserFocuses(), UserOutcome::Done) << list->FullName();
    EXPECT_TRUE(c.cmdSetPeriodParams->Enabled()) << list->FullName();
    EXPECT_FALSE(other.cmdSetPeriodParams->Enabled()) << list->FullName();
  }
}

TEST_P(SideEvents, APickAloneOpensNothing) {
  run.Press(ws, side);
  run.Pick(*c.comInterestRate1, "9%");
  run.Pick(*c.quantity, 2);
  EXPECT_FALSE(c.cmdSetPeriodParams->Enabled());
}

TEST_P(SideEvents, TheTabsMoveTheSideInFront) {
  Session& session = run.program.GetSession();
  const SideIndex own = ws.Of(side).Index();
  const SideIndex other = ws.Of(side == Side::Past ? Side::Future : Side::Past).Index();
  EXPECT_EQ(session.CurrentSinNumber, own);
  run.OpenTab(ws, kTotalTab);
  EXPECT_EQ(session.CurrentSinNumber, own);  // the total has no side
  run.OpenTab(ws, side == Side::Past ? kFutureTab : kPastTab);
  EXPECT_EQ(session.CurrentSinNumber, other);
  EXPECT_EQ(session.CurrentSinKey, sin.key);
}

TEST_P(SideEvents, ArrivalOnTheTabOpensTheSetButton) {
  run.Press(ws, side);
  run.OpenTab(ws, kTotalTab);
  EXPECT_FALSE(c.cmdSetPeriodParams->Enabled());
  run.OpenTab(ws, side == Side::Past ? kPastTab : kFutureTab);
  EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
}

// The result boxes of a committed side stay as they are when its tab is left and opened again.
TEST_P(SideEvents, ACommittedSideSurvivesItsTab) {
  run.Press(ws, side);
  const std::string total = c.txtResultsTotal->Text();
  run.OpenTab(ws, kTotalTab);
  run.OpenTab(ws, side == Side::Past ? kPastTab : kFutureTab);
  EXPECT_EQ(c.txtResultsTotal->Text(), total);
  EXPECT_TRUE(Record(1).PeriodSet);
}

TEST_P(SideEvents, AClickOnAPanelFitsAllThree) {
  ws.SSTab_PastFutureSwitch->SetPlace({0, 0, 11000, 8000});
  Panel& front = ws.Get<Panel>("SSPanel_BackColor", side == Side::Past ? 0 : 1);
  ASSERT_EQ(front.UserClicks(), UserOutcome::Done);
  for (int i = 0; i < 3; ++i) {
    const Place place = ws.Get<Panel>("SSPanel_BackColor", i).GetPlace();
    EXPECT_EQ(place.top, 900);
    EXPECT_EQ(place.width, 11000 - 310);
    EXPECT_EQ(place.height, 8000 - 900);
  }
}

TEST(SmokingEvents, TheFirstArrivalOnTheFutureTakesTheEuroButtonAway) {
  RunningProgram run;
  SinWorkspace& ws = run.Smoking();
  const int height = ws.Height();
  run.OpenTab(ws, kTotalTab);
  EXPECT_TRUE(ws.cmdEuro->Visible());
  for (int arrival = 0; arrival < 2; ++arrival) {
    run.OpenTab(ws, kFutureTab);
    EXPECT_FALSE(ws.cmdEuro->Visible() || ws.cmdEuro->Enabled());
    EXPECT_EQ(ws.Height(), height - 750);
    run.OpenTab(ws, kPastTab);
  }
}

}  // namespace
}  // namespace vicetoll
