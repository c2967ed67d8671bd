#include "shell/balloons.h"

#include <set>

#include "program_fixture.h"
#include "shell/balloon_texts.h"

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

// In the order of the table, what the workspace has, and no more.
TEST_F(BalloonHelp, HangsAtTheControlsThatAreThere) {
  for (int i = 0; i < kSinCount; ++i) {
    SinWorkspace& ws = run.Enter(Catalogue()[i].key);
    std::vector<std::string> expected, hung;
    for (const BalloonRow& row : BalloonRows())
      if (!ws.FindAll(row.control).empty()) expected.emplace_back(row.control);
    if (ws.Sin().startsTheProgram) expected.push_back("cmdEuro");
    for (const Balloon& balloon : balloons.Of(i)) hung.emplace_back(balloon.control);
    EXPECT_EQ(hung, expected) << ws.Name();
    EXPECT_LT(hung.size(), 100u);
  }
}

TEST_F(BalloonHelp, AnArrayHasOneTextForAllItsElements) {
  SinWorkspace& ws = run.Smoking();
  const std::string_view text = balloons.TextFor(0, ws.Of(Side::Past).optTimePeriod(1));
  EXPECT_FALSE(text.empty());
  EXPECT_EQ(balloons.TextFor(0, ws.Of(Side::Past).optTimePeriod(4)), text);
  EXPECT_EQ(balloons.TextFor(0, *ws.cmdEuro), EuroBalloon().text);
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
