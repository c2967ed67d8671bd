// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/reasonable_cost.h"

#include "program_fixture.h"
#include "workspace/loading.h"
#include "workspace/period_operations.h"

namespace vicetoll {
namespace {

// Coffeeing and Watering. The gross list goes from $0.10 by 5 cents to $1.00 (19 entries), then by 10 cents.
class ReasonableCost : public EverySinAndSide {
 protected:
  DropDownList& gross = *c.comInitialCost;
  DropDownList& reasonable = *c.comSubCost;
};
INSTANTIATE_TEST_SUITE_P(, ReasonableCost, SinsAndSides([](const SinRow& sin) {
                           return sin.costClass == CostClass::NetUnitsClass;
                         }),
                         NameOfSinAndSide);

TEST_P(ReasonableCost, StaysWhileItIsNotAboveTheGrossCost) {
  const int entries = reasonable.Count();
  for (const char* cost : {"$2.00", "$1.10", "$25.00"}) {
    c.cmdSetPeriodParams->SetEnabled(false);
    run.Pick(gross, cost);
    EXPECT_EQ(reasonable.Text(), "$1.10") << cost;
    EXPECT_EQ(reasonable.Count(), entries);
    EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
  }
}

// Below $1.00 lie 18 entries, the last at place 17; with two more in front, place 17 is $0.85.
TEST_P(ReasonableCost, FallsWellBelowALowerGrossCost) {
  run.Pick(gross, "$1.00");
  EXPECT_EQ(reasonable.Count(), 20);
  EXPECT_EQ(reasonable.Entry(0), "$0.00");
  EXPECT_EQ(reasonable.Entry(1), "$0.05");
  EXPECT_EQ(reasonable.Entry(2), "$0.10");
  EXPECT_EQ(reasonable.Entry(19), "$0.95");
  EXPECT_EQ(reasonable.Text(), "$0.85");
  EXPECT_EQ(reasonable.Position(), 17);
}

TEST_P(ReasonableCost, IsNothingBelowTheLowestGrossCost) {
  run.Pick(gross, "$0.10");
  EXPECT_EQ(reasonable.Entries().All(), (std::vector<std::string>{"$0.00", "$0.05"}));
  EXPECT_EQ(reasonable.Text(), "$0.00");
}

TEST_P(ReasonableCost, ATextThatIsNoNumberStays) {
  for (const char* text : {"", "N/A",
                           "\x80"
                           "9.00"}) {
    reasonable.SetText(text);
    run.Pick(gross, "$1.00");
    EXPECT_EQ(reasonable.Text(), text);
  }
}

// Below $3.00 lie 38 entries, so there are 40: entry 21 is the gross entry 19, $1.10.
TEST_P(ReasonableCost, EnteringALongListSelectsItsEntry21) {
  c.cmdSetPeriodParams->SetEnabled(false);
  reasonable.SetText("$2.50");
  ASSERT_EQ(reasonable.UserFocuses(), UserOutcome::Done);
  EXPECT_EQ(reasonable.Count(), 40);
  EXPECT_EQ(reasonable.Entry(39), "$2.90");
  EXPECT_EQ(reasonable.Position(), 21);
  EXPECT_EQ(reasonable.Text(), "$1.10");
  EXPECT_TRUE(c.cmdSetPeriodParams->Enabled());
}

TEST_P(ReasonableCost, EnteringAShortListSelectsItsLastEntry) {
  const std::pair<const char*, const char*> kCases[] = {
      {"$0.10", "$0.05"}, {"$1.00", "$0.95"}, {"$1.20", "$1.10"}, {"$1.30", "$1.10"}};
  for (const auto& [cost, expected] : kCases) {
    gross.SetText(cost);
    ASSERT_EQ(reasonable.UserFocuses(), UserOutcome::Done);
    EXPECT_EQ(reasonable.Text(), expected) << cost;
  }
}

// A repeated load doubles the gross list: its last lower entry then lies far behind the end.
TEST_P(ReasonableCost, APlacePastTheEndIsTheLastEntry) {
  LoadParameters(ws.Of(side));
  run.Pick(gross, "$1.00");
  EXPECT_EQ(reasonable.Count(), 2 + 18 + 18);
  EXPECT_EQ(reasonable.Text(), "$0.95");
}

TEST_P(ReasonableCost, IsRebuiltInEurosToo) {
  RunningProgram euros;
  ASSERT_EQ(euros.Smoking().cmdEuro->UserClicks(), UserOutcome::Done);
  SideControls& other = euros.Enter(sin.key, side).Of(side);
  ASSERT_EQ(other.comSubCost->UserFocuses(), UserOutcome::Done);
  EXPECT_EQ(other.comSubCost->Count(), 40);
  EXPECT_EQ(other.comSubCost->Entry(1),
            "\x80"
            "0.05");
  EXPECT_EQ(other.comSubCost->Text(),
            "\x80"
            "1.10");
  // A text with the euro sign is no number to a pick.
  euros.Pick(*other.comInitialCost,
             "\x80"
             "1.00");
  EXPECT_EQ(other.comSubCost->Text(),
            "\x80"
            "1.10");
}

// 3.00 less 1.10, without increase: 1.90 * the daily quantity * 30.42.
TEST_P(ReasonableCost, IsTakenOffTheGrossCost) {
  run.Pick(*c.comPercentIncrease, "0%");
  run.Pick(*c.quantity, "10");
  run.Commit(ws, side, "Jun - 2026", "Jun - 2026");
  EXPECT_DOUBLE_EQ(CostInPeriod(ws.Of(side), 1), 577.98);
  EXPECT_EQ(c.txtResultsPeriod(1).Text(), "$578");
}

}  // namespace
}  // namespace vicetoll
