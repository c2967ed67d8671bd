// SPDX-License-Identifier: GPL-3.0-or-later
// The rows of the design: what does not fit is refused by name.
#include "workspace/control_rows.h"

#include "program_fixture.h"
#include "workspace/workspace_design.h"

namespace vicetoll {
namespace {

using Row = ControlRow;

bool Flat(const SinRow& sin) { return sin.costClass == CostClass::FlatRateClass; }

class ControlRows : public testing::Test {
 protected:
  ScriptedPlatform platform;
  Session session{platform};
  SinWorkspace ws{session, SinPosition("Gambling")};

  // What the program says to one more row, on the past's tab or on no side.
  std::string Refusal(const Row& row, std::optional<Side> side = Side::Past) {
    const DesignSection sections[] = {{{&row, 1}, side, kPastTab}};
    try {
      DesignWorkspace(ws, sections);
    } catch (const std::logic_error& error) {
      return error.what();
    }
    return "";
  }
};

constexpr Place kPlace{120, 300, 1500, 420};

TEST_F(ControlRows, OneRowIsAButtonAndAllThatBelongsToIt) {
  const Row row =
      Row(ControlKind::Button, "cmdCheer{Fut}", "frmRates{Fut}", kPlace, {"{sin}, {Future}!", &SinRow::key})
          .Tip("Cheers")
          .NamedBy("lblInterestRate{Fut}")
          .Disabled();
  EXPECT_EQ(Refusal(row, Side::Future), "");
  const auto& button = ws.Get<Button>("cmdCheerFut");
  EXPECT_EQ(button.Container(), ws.Of(Side::Future).frmRates);
  EXPECT_EQ(button.Caption(), "Gambling, Future!");
  EXPECT_EQ(button.ToolTip(), "Cheers");
  EXPECT_EQ(button.GetPlace().top, 300);
  EXPECT_FALSE(button.Enabled());
  ASSERT_EQ(button.LabelledBy().size(), 1u);
  EXPECT_EQ(button.LabelledBy()[0]->Name(), "lblInterestRateFut");
  EXPECT_EQ(ws.Controls().back().get(), &button);
}

TEST_F(ControlRows, ArraysThatFollowEachOtherAreMadeAcross) {
  const Row rows[] = {
      Row(ControlKind::Label, "lblCell", "frmRates{Fut}", kPlace, "{n}").Array({5, 1}, 3, 100, 10, 2),
      Row(ControlKind::TextBox, "txtCell", "frmRates{Fut}", kPlace).Array(1, 3, 0, 50),
      Row(ControlKind::TextBox, "txtNoCell", "frmRates{Fut}", kPlace).Array(1, 3, 0, 0).OnlyIn([](auto&) {
        return false;
      }),
  };
  const DesignSection sections[] = {{rows, Side::Past, kPastTab}};
  DesignWorkspace(ws, sections);
  std::vector<std::string> made;
  for (std::size_t i = ws.Controls().size() - 6; i < ws.Controls().size(); ++i)
    made.push_back(ws.Controls()[i]->FullName());
  EXPECT_EQ(made, (std::vector<std::string>{"lblCell(5)", "txtCell(1)", "lblCell(6)", "txtCell(2)",
                                            "lblCell(7)", "txtCell(3)"}));
  // Two in a line: the third begins the second line.
  EXPECT_EQ(ws.Find("lblCell(6)")->GetPlace().left, 220);
  EXPECT_EQ(ws.Find("lblCell(6)")->GetPlace().top, 300);
  EXPECT_EQ(ws.Find("lblCell(7)")->GetPlace().left, 120);
  EXPECT_EQ(ws.Find("lblCell(7)")->GetPlace().top, 310);
  EXPECT_EQ(ws.Find("txtCell(3)")->GetPlace().top, 400);
  EXPECT_EQ(ws.Get<Label>("lblCell", 6).Caption(), "2");
}

TEST_F(ControlRows, WhatDoesNotFitIsRefusedByName) {
  const Row fits(ControlKind::List, "comCheer{Fut}", "frmRates{Fut}", kPlace);
  struct Misfit {
    Row row;
    const char* says;
  };
  const Misfit misfits[] = {
      {Row(ControlKind::List, "comA{Fut}", "frmRate{Fut}", kPlace),
       "Gambling: the control comA{Fut}: its container frmRatePast is not there."},
      {Row(ControlKind::List, "comB", "cmdExit", kPlace),
       "Gambling: the control comB: its container cmdExit holds no controls."},
      {Row(ControlKind::List, "comStart{Fut}", "frmRates{Fut}", kPlace),
       "Gambling: the control comStart{Fut}: there is one of that name already."},
      {Row(ControlKind::Grid, "fgdC", "frmRates{Fut}", kPlace),
       "Gambling: the control fgdC: a workspace has no controls of that kind."},
      {Row(ControlKind::List, "comD", "frmRates{Fut}", kPlace).NamedBy("lblIntrestRate{Fut}"),
       "Gambling: the control comD: its label lblIntrestRatePast is not there."},
      {Row(ControlKind::List, "comE", "frmRates{Fut}", kPlace).NamedBy("comStart{Fut}"),
       "Gambling: the control comE: comStartPast is of the wrong kind."},
      {Row(ControlKind::List, "comF", "frmRates{Fut}", kPlace).Is<&SideControls::comStart>(),
       "Gambling: the control comF: its field holds another control."},
      {Row(ControlKind::Label, "lblG", "frmRates{Fut}", kPlace).Is<&SideControls::comSubCost>(),
       "Gambling: the control lblG: its field is of another kind."},
      {Row(ControlKind::Option, "optH", "frmRates{Fut}", kPlace)
           .Array(5, 1, 0, 0)
           .Is<&SideControls::optTimePeriod>(),
       "Gambling: the control optH: its field has no such element."},
      {Row(ControlKind::Label, "lblI", "frmRates{Fut}", kPlace, &SinRow::subCostLabel),
       "Gambling: the control lblI: the sin has no word for it."},
      {Row(ControlKind::Label, "lblJ", "frmRates{Fut}", kPlace, "Period {n}"),
       "Gambling: the control lblJ: its text asks for a period."},
      {Row(ControlKind::Button, "cmdK", "frmRates{Fut}", kPlace).Shows("5%"),
       "Gambling: the control cmdK: cmdK is of the wrong kind."},
  };
  for (const Misfit& misfit : misfits) EXPECT_EQ(Refusal(misfit.row), misfit.says);
  EXPECT_EQ(Refusal(fits), "");
}

TEST_F(ControlRows, WhatStandsOnceHasNoSide) {
  EXPECT_EQ(Refusal(Row(ControlKind::List, "comCheer{Fut}", "", kPlace), std::nullopt),
            "Gambling: the control comCheer{Fut}: it stands on no side, but its text asks for one.");
  EXPECT_EQ(Refusal(Row(ControlKind::Frame, "frmA", "", kPlace).Is<&SideControls::frmRates>(), std::nullopt),
            "Gambling: the control frmA: its field belongs to a side, and it stands on none.");
}

TEST_F(ControlRows, ARowOfOtherSinsIsPassedOver) {
  const auto row = [](HasControl sins) {
    return Row(ControlKind::Label, "lblFlat", "frmRates{Fut}", kPlace, &SinRow::subCostLabel).OnlyIn(sins);
  };
  EXPECT_EQ(Refusal(row([](const SinRow& sin) { return !Flat(sin); })), "");
  EXPECT_EQ(ws.Find("lblFlat"), nullptr);
  EXPECT_NE(Refusal(row(Flat)), "");
}

TEST(Words, AGapOfNoKnownNameIsRefused) {
  EXPECT_THROW(Words("Period {m}"), std::logic_error);
  EXPECT_THROW(Words("Period {n"), std::logic_error);
  EXPECT_THROW(Words("Period {sin}"), std::logic_error);
  EXPECT_THROW(Words("Period", &SinRow::key), std::logic_error);
}

TEST(Words, GapsAreFilled) {
  const SinRow& slothing = Catalogue()[SinPosition("Slothing")];
  const Spot spot{slothing, Side::Future, kFutureTab, 6};
  EXPECT_EQ(Words("{Fut} {Future} {title} {i} {n} {page} {web}").Fill(spot),
            "Fut Future Sofatoll 6 2 1 www.orvane.example");
  EXPECT_EQ(Words("Label2", "Label6").Fill(spot), "Label6");
  EXPECT_EQ(Words("lblResultsPastTotal", "{sin}", &SinRow::futureTotalLabelName).Fill(spot), "Label5");
  EXPECT_EQ(Words("a{sin}", &SinRow::stopSuffix).Fill(spot), "a: Date Laziness Stopped");
}

// The fields that only some sins have are empty in the others, all others are there.
TEST(ControlFields, AreFilled) {
  ScriptedPlatform platform;
  Session session(platform);
  for (int i = 0; i < kSinCount; ++i) {
    SinWorkspace workspace(session, i);
    SCOPED_TRACE(workspace.Name());
    const CostClass costClass = workspace.Class();
    for (const Side side : kSides) {
      const SideControls& c = workspace.Of(side);
      for (const Control* control : std::initializer_list<const Control*>{c.comStart,
                                                                          c.comStop,
                                                                          c.optFineDateStart,
                                                                          c.optCourseDateStart,
                                                                          c.optFineDateStop,
                                                                          c.optCourseDateStop,
                                                                          c.frmSetStart,
                                                                          c.frmSetStop,
                                                                          c.frmDaily,
                                                                          c.frmCostChange,
                                                                          c.frmRates,
                                                                          c.firstUnit,
                                                                          c.secondUnit,
                                                                          c.quantity,
                                                                          c.quantityLabel,
                                                                          c.comPercentIncrease,
                                                                          c.percentLabel,
                                                                          c.comInterestRate1,
                                                                          c.comInflationRate1,
                                                                          c.cmdSetPeriodParams,
                                                                          c.txtResultsTotal,
                                                                          c.txtResultsTotalSummary,
                                                                          c.cmdAdvResultsSpd,
                                                                          c.cmdAdvResultsDoc,
                                                                          c.cmdAdvResultsSpdSummary,
                                                                          c.cmdAdvResultsDocSummary})
        EXPECT_NE(control, nullptr);
      for (int p = 1; p <= 4; ++p)
        EXPECT_TRUE(c.frmEnabledDisabledPeriod.Has(p) && c.rbnEnabledPeriod.Has(p) &&
                    c.rbnDisabledPeriod.Has(p) && c.optTimePeriod.Has(p) && c.lblFirstDate.Has(p) &&
                    c.lblLastDate.Has(p));
      for (int p = 1; p <= 8; ++p)
        EXPECT_TRUE(c.txtResultsPeriod.Has(p) && c.txtCumulativeResultsPeriod.Has(p));
      EXPECT_EQ(c.comInitialCost != nullptr, costClass != CostClass::FlatRateClass);
      EXPECT_EQ(c.costLabel != nullptr, costClass != CostClass::FlatRateClass);
      EXPECT_EQ(c.comFinalCost != nullptr, HasCostModes(costClass));
      EXPECT_EQ(c.OptCigPercentCostIncrease != nullptr, HasCostModes(costClass));
      EXPECT_EQ(c.OptCigInitialFinalCostIncrease != nullptr, HasCostModes(costClass));
      EXPECT_EQ(c.comSubCost != nullptr, costClass == CostClass::NetUnitsClass);
      EXPECT_EQ(c.comCigsPerDay != nullptr, i < 2);
    }
    for (const Control* control : std::initializer_list<const Control*>{
             workspace.SSTab_PastFutureSwitch, workspace.txtResultsTotalSummaryTot,
             workspace.txtCumulativeResultsTotalSummaryTot, workspace.txtCumulativeFutureDateTot,
             workspace.comCumulativeFutureDateTot, workspace.comInterestRateFutureDateTot,
             workspace.comInflationRateFutureDateTot, workspace.cmdCumulativeFutureDateTot,
             workspace.cmdAdvResultsSpdSummaryTot, workspace.cmdAdvResultsDocSummaryTot,
             workspace.cmdSwitchSins, workspace.cmdExit})
      EXPECT_NE(control, nullptr);
    for (int p = 1; p <= 8; ++p) EXPECT_TRUE(workspace.lblTo.Has(p));
    EXPECT_EQ(workspace.cmdEuro != nullptr, i == 0);
  }
}

}  // namespace
}  // namespace vicetoll
