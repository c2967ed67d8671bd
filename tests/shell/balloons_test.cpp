// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/balloons.h"

#include "program_fixture.h"

namespace vicetoll {
namespace {

class BalloonHelp : public testing::Test {
 protected:
  RunningProgram run;
  Balloons& balloons = run.program.GetBalloons();

  int PositionOf(const char* key) { return SinPosition(key); }
  void Switch(const char* key, bool on) {
    run.Click(run.Enter(key).Get<Option>(on ? "optToolTipEnable" : "optToolTipDisable"));
  }
  bool PairShows(const char* key, bool on) {
    SinWorkspace& ws = run.program.At(PositionOf(key));
    return ws.Get<Option>("optToolTipEnable").Value() == on &&
           ws.Get<Option>("optToolTipDisable").Value() == !on;
  }
};

TEST_F(BalloonHelp, HangsAtSmokingFromTheStartAndAtOthersFromTheFirstVisit) {
  EXPECT_FALSE(balloons.Of(0).empty());
  EXPECT_TRUE(balloons.Active(0));
  EXPECT_TRUE(balloons.Of(2).empty());
  run.Enter("Gambling");
  EXPECT_FALSE(balloons.Of(2).empty());
  EXPECT_TRUE(balloons.Active(2));
  EXPECT_TRUE(balloons.Of(5).empty());
}

// All sins have the controls at which balloons hang, the out-of-pocket boxes twice.
constexpr const char* kHung =
    "frmSetStartPast frmSetStopPast frmSetStartFut frmSetStopFut "
    "optFineDateStartPast optCourseDateStartPast optFineDateStopPast optCourseDateStopPast "
    "optCourseDateStopFut optFineDateStartFut optCourseDateStartFut optFineDateStopFut "
    "comInterestRate1Past comInterestRate1Fut comInflationRate1Past comInflationRate1Fut "
    "cmdSetPeriodParamsPast cmdSetPeriodParamsFut optTimePeriodPast optTimePeriodFut "
    "rbnEnabledPeriodPast rbnDisabledPeriodPast rbnDisabledPeriodFut rbnEnabledPeriodFut "
    "txtResultsPeriodPast txtResultsPeriodFut txtCumulativeResultsPeriodPast txtCumulativeResultsPeriodFut "
    "txtResultsPeriodPast txtResultsPeriodFut txtResultsTotalPast txtResultsTotalFut "
    "txtResultsTotalSummaryPast txtResultsTotalSummaryFut "
    "cmdAdvResultsDocPast cmdAdvResultsDocSummaryPast cmdAdvResultsDocFut cmdAdvResultsDocSummaryFut "
    "cmdAdvResultsSpdPast cmdAdvResultsSpdSummaryPast cmdAdvResultsSpdFut cmdAdvResultsSpdSummaryFut "
    "cmdAdvResultsDocSummaryTot cmdAdvResultsSpdSummaryTot frmDailyPast frmDailyFut "
    "frmCostChangePast frmCostChangeFut frmRatesPast frmRatesFut cmdSwitchSins cmdCombinedResults "
    "txtResultsTotalSummaryTot txtCumulativeResultsTotalSummaryTot";

TEST_F(BalloonHelp, HangsInItsOrder) {
  for (int i = 0; i < kSinCount; ++i) {
    const SinWorkspace& ws = run.Enter(Catalogue()[i].key);
    std::string hung;
    for (const Balloon& balloon : balloons.Of(i)) hung += (hung.empty() ? "" : " ") + balloon.control;
    EXPECT_EQ(hung, std::string(kHung) + (i == 0 ? " cmdEuro" : "")) << ws.Name();
  }
}

// Hung twice, it shows what hung last; the two sides may say different things.
TEST_F(BalloonHelp, SaysWhatBelongsToItsControl) {
  SinWorkspace& ws = run.Enter("Soliciting");
  const auto says = [&](const Control& control) {
    return std::string(balloons.TextFor(PositionOf("Soliciting"), control));
  };
  for (const Side side : kSides) {
    for (const int i : {1, 8})
      EXPECT_EQ(says(ws.Of(side).txtResultsPeriod(i)),
                "This result corresponds to the actual money \r\nyou spent (out of your pocket!!) during \r\n"
                "the period.");
  }
  EXPECT_EQ(says(*ws.Of(Side::Future).frmSetStop),
            "Set the Start Date for this Period. Manually \r\n"
            "changing the value may result in Error and Crash!!");
  EXPECT_TRUE(says(*ws.Of(Side::Past).frmSetStop).starts_with("Set the Stop Date for this Period."));
  EXPECT_TRUE(says(*ws.Of(Side::Past).cmdAdvResultsDoc).find("the Past month to month") != std::string::npos);
  EXPECT_TRUE(says(*ws.Of(Side::Future).cmdAdvResultsDocSummary).find("the Future month to month") !=
              std::string::npos);
  EXPECT_EQ(says(*ws.Of(Side::Past).comStart), "");
  EXPECT_EQ(says(*ws.cmdExit), "");
}

TEST_F(BalloonHelp, AnArrayHasOneTextForAllItsElements) {
  SinWorkspace& ws = run.Smoking();
  const std::string_view text = balloons.TextFor(0, ws.Of(Side::Past).optTimePeriod(1));
  EXPECT_FALSE(text.empty());
  EXPECT_EQ(balloons.TextFor(0, ws.Of(Side::Past).optTimePeriod(4)), text);
  EXPECT_TRUE(balloons.TextFor(0, *ws.cmdEuro).starts_with("This button is Visible at Program Start."));
}

TEST_F(BalloonHelp, SmokingAndDrinkingSwitchAllAndAllPairs) {
  run.Enter("Gambling");
  run.Enter("Drinking");
  for (const char* key : {"Smoking", "Drinking"}) {
    for (const bool on : {false, true}) {
      Switch(key, on);
      for (const char* visited : {"Smoking", "Drinking", "Gambling"})
        EXPECT_EQ(balloons.Active(PositionOf(visited)), on) << visited;
      for (const SinRow& sin : Catalogue()) EXPECT_TRUE(PairShows(sin.key.data(), on)) << sin.key;
    }
  }
}

TEST_F(BalloonHelp, TheOthersSwitchTheirOwnOnly) {
  for (int i = 0; i < kSinCount; ++i) run.Enter(Catalogue()[i].key);
  for (int i = 2; i < kSinCount; ++i) {
    const char* key = Catalogue()[i].key.data();
    Switch(key, false);
    for (int k = 0; k < kSinCount; ++k) {
      EXPECT_EQ(balloons.Active(k), k != i) << key << ", " << Catalogue()[k].key;
      EXPECT_TRUE(PairShows(Catalogue()[k].key.data(), k != i));
    }
    Switch(key, true);
    EXPECT_TRUE(balloons.Active(i));
  }
}

TEST_F(BalloonHelp, SilentBalloonsHaveNoText) {
  SinWorkspace& ws = run.Smoking();
  ASSERT_FALSE(balloons.TextFor(0, *ws.cmdEuro).empty());
  Switch("Smoking", false);
  EXPECT_TRUE(balloons.TextFor(0, *ws.cmdEuro).empty());
}

// Disabled before there was anything to disable: the pair shows it, the balloons come active.
TEST_F(BalloonHelp, ALaterFirstVisitHangsActiveBalloons) {
  Switch("Smoking", false);
  run.Enter("Jailing");
  EXPECT_TRUE(balloons.Active(PositionOf("Jailing")));
  EXPECT_FALSE(balloons.Active(0));
  EXPECT_TRUE(PairShows("Jailing", false));
}

TEST_F(BalloonHelp, HangingAgainDropsWhatHungBefore) {
  const std::size_t before = balloons.Of(0).size();
  run.program.AttachToolTips(0, run.Smoking());
  EXPECT_EQ(balloons.Of(0).size(), before);
}

}  // namespace
}  // namespace vicetoll
