// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/hint_line.h"

#include <gtest/gtest.h>

#include "controls/form.h"

namespace vicetoll {
namespace {

TEST(HintLine, TellsTheNextStepWhereThereIsNothingElse) {
  HintLine line;
  EXPECT_EQ(line.Text(), "");
  line.SetNextStep("press");
  EXPECT_EQ(line.Text(), "press");
}

TEST(HintLine, PutsNewsBeforeTheFocusAndThePointerBeforeAll) {
  HintLine line;
  line.SetNextStep("press");
  line.Focus("a date");
  EXPECT_EQ(line.Text(), "a date");
  line.Say("it was set");
  EXPECT_EQ(line.Text(), "it was set");
  line.PointAt("a cost");
  EXPECT_EQ(line.Text(), "a cost");
  line.PointAt("");
  EXPECT_EQ(line.Text(), "it was set");
}

TEST(HintLine, ShowsNewsOverThePointerThatPressed) {
  HintLine line;
  line.PointAt("the set button");
  line.Say("it was set");
  line.EndAction();
  EXPECT_EQ(line.Text(), "it was set");
}

TEST(HintLine, ForgetsNewsWithTheNextAction) {
  HintLine line;
  line.SetNextStep("press");
  line.Say("it was set");
  line.EndAction();
  EXPECT_EQ(line.News(), "it was set");
  line.EndAction();
  EXPECT_EQ(line.News(), "");
  EXPECT_EQ(line.Text(), "press");
}

// ---- The line of a window ----

class HintOfAForm : public testing::Test {
 protected:
  HintOfAForm() {
    button.SetToolTip(
        "pays at \x80"
        "5");
    form.SetNextStep("next");
    form.Show();
  }
  Form form{"frmTest", "Till"};
  Button& button = form.Add<Button>({"cmdPay"}, "Pay");
};

TEST_F(HintOfAForm, IsTheToolTipOfTheFocusAndOfThePointerInUnicode) {
  EXPECT_EQ(form.Hint(), "next");
  button.UserFocuses();
  EXPECT_EQ(form.Hint(), "pays at €5");
  button.UserClicks();
  EXPECT_EQ(form.Hint(), "next");
  form.UserPointsAt(&button);
  EXPECT_EQ(form.Hint(), "pays at €5");
  form.UserPointsAt(nullptr);
  EXPECT_EQ(form.Hint(), "next");
}

TEST_F(HintOfAForm, GoesOnFromThePointerThatWasLeftBehindToTheFocus) {
  Button& other = form.Add<Button>({"cmdOther"}, "Other");
  form.UserPointsAt(&button);
  other.UserFocuses();
  EXPECT_EQ(form.Hint(), "next");
  button.UserFocuses();
  EXPECT_EQ(form.Hint(), "pays at €5");
}

TEST_F(HintOfAForm, KeepsWhatAHandlerSaysUntilTheNextAction) {
  button.onClick = [this] { form.Say("paid"); };
  button.UserFocuses();
  button.UserClicks();
  EXPECT_EQ(form.Hint(), "paid");
  button.onClick = nullptr;
  button.UserClicks();
  EXPECT_EQ(form.Hint(), "next");
}

TEST_F(HintOfAForm, TakesNewsOfAnotherWindowThatItsOwnNextActionForgets) {
  form.PassOn("saved elsewhere");
  EXPECT_EQ(form.Hint(), "saved elsewhere");
  button.UserClicks();
  EXPECT_EQ(form.Hint(), "next");
}

TEST_F(HintOfAForm, SaysTheWayOutOfAWindowThatCannotBeClosed) {
  EXPECT_EQ(form.UserCloses(), UserOutcome::Refused);
  EXPECT_EQ(form.Hint(), "Use Exit to close \"Till\"");
  EXPECT_TRUE(form.Shown());
}

TEST_F(HintOfAForm, EndsAnExplanationWithTheToolTip) {
  EXPECT_EQ(form.ExplanationOf(button),
            "pays at \x80"
            "5");
  form.helpOn = [](const Control&) { return "Press it."; };
  EXPECT_EQ(form.ExplanationOf(button),
            "Press it.\r\npays at \x80"
            "5");
  button.SetToolTip("");
  EXPECT_EQ(form.ExplanationOf(button), "Press it.");
}

}  // namespace
}  // namespace vicetoll
