// SPDX-License-Identifier: GPL-3.0-or-later
// Where the focus goes in a window: within groups, from a control that lost it, at the Escape key.
#include <gtest/gtest.h>

#include "controls/drop_down_list.h"
#include "controls/focus_group.h"
#include "program_fixture.h"

namespace vicetoll {
namespace {

class OptionGroup : public testing::Test {
 protected:
  OptionGroup() {
    for (int i = 0; i < 4; ++i) {
      options[i] = &form.Add<Option>({"opt", i}, "");
      options[i]->JoinGroup(group);
    }
    form.Show();
  }

  Form form{"frm", "Window"};
  ChoiceGroup& group = form.AddGroup();
  Option* options[4] = {};
};

TEST_F(OptionGroup, IsWalkedRoundAndRoundPastWhatIsClosed) {
  EXPECT_EQ(group.Next(*options[0], Arrow::Down), options[1]);
  EXPECT_EQ(group.Next(*options[3], Arrow::Right), options[0]);
  EXPECT_EQ(group.Next(*options[0], Arrow::Left), options[3]);
  options[3]->SetEnabled(false);
  EXPECT_EQ(group.Next(*options[0], Arrow::Up), options[2]);
  for (int i : {1, 2}) options[i]->SetVisible(false);
  EXPECT_EQ(group.Next(*options[0], Arrow::Up), nullptr);
}

TEST_F(OptionGroup, StopsAtTheOneThatIsOn) {
  EXPECT_EQ(group.Stop(), options[0]);
  options[2]->SetValue(true);
  EXPECT_EQ(group.Stop(), options[2]);
  options[2]->SetEnabled(false);
  EXPECT_EQ(group.Stop(), options[0]);
  form.Hide();
  EXPECT_EQ(group.Stop(), nullptr);
}

class Table : public testing::Test {
 protected:
  // a b
  // - d
  // e f
  Table() {
    for (const char* name : {"a", "b", "d", "e", "f"}) form.Add<TextBox>({name});
    table.AddRow({At("a"), At("b")});
    table.AddRow({nullptr, At("d")});
    table.AddRow({At("e"), At("f")});
    form.Show();
  }
  Control* At(const char* name) const { return form.Find(name); }

  Form form{"frm", "Window"};
  ControlTable& table = form.AddTable();
};

TEST_F(Table, ArrowsPassOverHolesAndEndAtTheEdges) {
  EXPECT_EQ(table.Next(*At("a"), Arrow::Right), At("b"));
  EXPECT_EQ(table.Next(*At("a"), Arrow::Down), At("e"));
  EXPECT_EQ(table.Next(*At("b"), Arrow::Down), At("d"));
  EXPECT_EQ(table.Next(*At("d"), Arrow::Left), nullptr);
  EXPECT_EQ(table.Next(*At("f"), Arrow::Down), nullptr);
  At("d")->SetVisible(false);
  EXPECT_EQ(table.Next(*At("b"), Arrow::Down), At("f"));
}

TEST_F(Table, StopsAtItsFirstReachableControl) {
  EXPECT_EQ(table.Stop(), At("a"));
  At("a")->SetEnabled(false);
  EXPECT_EQ(table.Stop(), At("b"));
  EXPECT_FALSE(table.ArrowsClick());
}

// ---- In the program's windows ----

class Focus : public testing::Test {
 protected:
  ScriptedPlatform platform{[](const std::string&) {}};
  Program program{platform};
  SinWorkspace& smoking = program.At(0);
};

TEST_F(Focus, GoesOnFromAClosedButtonToTheNextThatIsNoList) {
  SideControls& past = smoking.Of(Side::Past);
  past.cmdSetPeriodParams->UserClicks();
  EXPECT_EQ(smoking.FocusBehind(*past.cmdSetPeriodParams), &past.rbnEnabledPeriod(1));
  // Past the lists and the options of their groups that are off.
  EXPECT_EQ(smoking.FocusBehind(*past.firstUnit), past.OptCigPercentCostIncrease);
}

TEST_F(Focus, GoesToTheTabsFromAPageThatLeftTheFront) {
  smoking.SSTab_PastFutureSwitch->UserSelects(kTotalTab);
  EXPECT_EQ(smoking.FocusBehind(*smoking.Of(Side::Past).comStart), smoking.SSTab_PastFutureSwitch);
  EXPECT_EQ(smoking.FocusBehind(smoking.Of(Side::Future).rbnEnabledPeriod(1)),
            smoking.SSTab_PastFutureSwitch);
}

TEST_F(Focus, EscapeMeansTheExitOfEveryWindowButAWorkspace) {
  EXPECT_EQ(smoking.EscapeButton(), nullptr);
  for (const char* name : {"frmSwitchSins", "frmCombRes", "frmInfo", "frmAdvResultsSpd", "frmAdvResultsDoc",
                           "frmGrowth", "frmSinsChart"}) {
    const Form& form = *program.Window(name);
    EXPECT_EQ(form.EscapeButton(), form.Find("cmdExit")) << name;
    EXPECT_NE(form.FirstFocus(), nullptr) << name;
  }
}

TEST_F(Focus, TheChooserBeginsAtTheSinInFront) {
  smoking.cmdSwitchSins->UserClicks();
  program.Chooser().Get<Option>("OptSwitchSins", 4).UserClicks();
  program.At(4).cmdSwitchSins->UserClicks();
  EXPECT_EQ(program.Chooser().FirstFocus(), program.Chooser().Find("OptSwitchSins(4)"));
}

}  // namespace
}  // namespace vicetoll
