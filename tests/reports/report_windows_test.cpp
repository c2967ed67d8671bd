// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "base/fault.h"
#include "reports/report_world.h"

namespace vicetoll {
namespace {

using Texts = std::vector<std::string>;

class ReportWindowsTest : public ::testing::Test {
 protected:
  ReportWorld world;

  SpdWindow& Spd() { return world.Spd(); }
  DocWindow& Doc() { return world.Doc(); }
  Grid& Rows() { return Spd().Rows(); }
  DocumentText& Text() { return Doc().Text(); }

  static void Press(const Button* button) { button->onClick(); }
  static UserOutcome Click(Form& window, std::string_view name) {
    return window.Get<Button>(name).UserClicks();
  }
  UserOutcome Layout(std::string_view option) { return Doc().Get<Option>(option).UserClicks(); }

  // All ten result buttons open or closed.
  static std::vector<Button*> ResultButtons(SinWorkspace& ws) {
    std::vector<Button*> buttons{ws.cmdAdvResultsSpdSummaryTot, ws.cmdAdvResultsDocSummaryTot};
    for (Side side : kSides)
      buttons.insert(buttons.end(),
                     {ws.Of(side).cmdAdvResultsSpd, ws.Of(side).cmdAdvResultsDoc,
                      ws.Of(side).cmdAdvResultsSpdSummary, ws.Of(side).cmdAdvResultsDocSummary});
    return buttons;
  }
  static void OpenButtons(SinWorkspace& ws) {
    for (Button* button : ResultButtons(ws)) button->SetEnabled(true);
  }
  static int EnabledCount(SinWorkspace& ws) {
    int count = 0;
    for (Button* button : ResultButtons(ws)) count += button->Enabled() ? 1 : 0;
    return count;
  }

  // A sin with January to March 2000 behind and June to July ahead, its boxes as a commit would fill them
  // (Smoking: 182.52 and 186.19 behind, 182.52 ahead).
  SinWorkspace& BothSides(std::string_view key = "Smoking") {
    SinWorkspace& ws = world.Switch(key);
    Write(ws, Side::Past, 1, {"Jan - 2000", "Mar - 2000"});
    Write(ws, Side::Future, 1, {"Jun - 2000", "Jul - 2000", "6%", "2%", "$3.00"});
    ws.Of(Side::Past).txtResultsTotal->SetText("$183");
    ws.Of(Side::Past).txtCumulativeResultsPeriod(1).SetText("$186");
    ws.Of(Side::Future).txtResultsTotal->SetText("$183");
    OpenButtons(ws);
    return ws;
  }

  Texts Column(int column) {
    Texts cells;
    for (int row = 1; row < Rows().RowCount(); ++row)
      cells.push_back(Trimmed(Rows().RowText(row)).at(column));
    return cells;
  }
};

// ---- Buttons ----

TEST_F(ReportWindowsTest, SpreadsheetButtonShowsTheRowsAndClosesItsFive) {
  SinWorkspace& ws = BothSides();
  ws.Of(Side::Future).cmdAdvResultsSpdSummary->SetEnabled(false);
  Press(ws.Of(Side::Past).cmdAdvResultsSpd);
  EXPECT_TRUE(Spd().Shown());
  EXPECT_EQ(Rows().RowCount(), 4);
  EXPECT_EQ(ws.FuturePast_Flag, 1);
  EXPECT_EQ(EnabledCount(ws), 5);
  EXPECT_TRUE(ws.Of(Side::Past).cmdAdvResultsDoc->Enabled());
  EXPECT_TRUE(ws.cmdAdvResultsSpd_Flag.Past);
  EXPECT_FALSE(ws.cmdAdvResultsSpd_Flag.SummaryFut);
  EXPECT_TRUE(ws.cmdAdvResultsSpd_Flag.SummaryTot);
  EXPECT_FALSE(ws.cmdAdvResultsDoc_Flag.Past);

  EXPECT_EQ(Click(Spd(), "cmdExit"), UserOutcome::Done);
  EXPECT_FALSE(Spd().Shown());
  EXPECT_EQ(Rows().RowCount(), 0);
  EXPECT_EQ(EnabledCount(ws), 9);
  EXPECT_FALSE(ws.Of(Side::Future).cmdAdvResultsSpdSummary->Enabled());
  EXPECT_TRUE(ws.cmdAdvResultsSpd_Flag.Past);  // the notes stay
}

TEST_F(ReportWindowsTest, SpreadsheetTitleGoesToTheUnseenDocumentWindow) {
  SinWorkspace& ws = BothSides("Shopping");
  EXPECT_FALSE(world.DocExists());
  Press(ws.Of(Side::Future).cmdAdvResultsSpdSummary);
  ASSERT_TRUE(world.DocExists());
  EXPECT_FALSE(Doc().Shown());
  EXPECT_EQ(Doc().Caption(), "Shopping  Results - SpreadSheet Style");
  EXPECT_EQ(Spd().Caption(), "Advanced Smoking Results - SpreadSheet Style");
  EXPECT_EQ(ws.FuturePast_Flag, 2);
}

TEST_F(ReportWindowsTest, DocumentButtonShowsTheTable) {
  SinWorkspace& ws = BothSides();
  Press(ws.Of(Side::Future).cmdAdvResultsDoc);
  EXPECT_TRUE(Doc().Shown());
  EXPECT_EQ(Doc().Caption(), "Smoke Results - Document Style (Rich Text Format)");
  EXPECT_EQ(Lines(Text().Text()).size(), 9u + 6 + 2);  // header, heading, two months
  EXPECT_EQ(ws.FuturePast_Flag, 2);
  EXPECT_EQ(EnabledCount(ws), 5);
  EXPECT_TRUE(ws.Of(Side::Past).cmdAdvResultsSpd->Enabled());
  EXPECT_EQ(Click(Doc(), "cmdExit"), UserOutcome::Done);
  EXPECT_EQ(EnabledCount(ws), 10);
  EXPECT_FALSE(Doc().Shown());
  EXPECT_NE(Text().Text(), "");  // the text stays
}

TEST_F(ReportWindowsTest, SummaryButtonsShowWhatThePlainOnesShow) {
  SinWorkspace& ws = BothSides();
  for (Side side : kSides) {
    Press(ws.Of(side).cmdAdvResultsSpd);
    const Texts plain = Column(8);
    Press(ws.Of(side).cmdAdvResultsSpdSummary);
    EXPECT_EQ(Column(8), plain);
    Press(ws.Of(side).cmdAdvResultsDoc);
    const std::string text = Text().Text();
    Press(ws.Of(side).cmdAdvResultsDocSummary);
    EXPECT_EQ(Text().Text(), text);
  }
}

TEST_F(ReportWindowsTest, WaterClosesTheButtonsOfCoffee) {
  SinWorkspace& water = BothSides("Watering");
  SinWorkspace& coffee = world.At("Coffeeing");
  OpenButtons(coffee);
  Press(water.Of(Side::Past).cmdAdvResultsSpd);
  EXPECT_EQ(EnabledCount(water), 10);
  EXPECT_EQ(EnabledCount(coffee), 5);
  Press(water.Of(Side::Past).cmdAdvResultsDoc);
  EXPECT_EQ(EnabledCount(coffee), 0);
  Click(Spd(), "cmdExit");
  EXPECT_EQ(EnabledCount(coffee), 5);
  Click(Doc(), "cmdExit");
  EXPECT_EQ(EnabledCount(coffee), 10);
}

TEST_F(ReportWindowsTest, ExitGivesBackTheButtonsOfTheSinThatIsCurrentThen) {
  SinWorkspace& smoking = BothSides();
  Press(smoking.Of(Side::Past).cmdAdvResultsSpd);
  world.Switch("Drinking");
  Click(Spd(), "cmdExit");
  EXPECT_EQ(EnabledCount(smoking), 5);
  EXPECT_EQ(EnabledCount(world.At("Drinking")), 0);  // none was noted
}

// ---- Both sides in one report ----

// The gap April and May goes on from the boxes, 183 and 186, at the past's factor 1.01: 187.86, 189.7386.
// Then 91.26 a month at 1 + 0.04 / 12: (189.7386 + 91.26) * 1.00333... = 281.9352..., and
// (281.9352 + 91.26) * 1.00333... = 374.4392...; the costs are 183 + 91.26 = 274.26 and 365.52.
TEST_F(ReportWindowsTest, TotalRowsPassThroughTheResultBoxes) {
  SinWorkspace& ws = BothSides();
  Press(ws.cmdAdvResultsSpdSummaryTot);
  EXPECT_EQ(Column(0), (Texts{"1", "2", "3", "4", "5", "6", "7"}));
  EXPECT_EQ(Column(1), (Texts{"1", "1", "1", "N/A", "N/A", "1", "1"}));
  EXPECT_EQ(Column(7), (Texts{"$61", "$122", "$183", "$183", "$183", "$274", "$366"}));
  EXPECT_EQ(Column(8), (Texts{"$61", "$124", "$186", "$188", "$190", "$282", "$374"}));
  EXPECT_EQ(ws.FuturePast_Flag, 2);
  EXPECT_EQ(ws.CurrentIndexSub, 7);
  EXPECT_EQ(ws.Of(Side::Past).state.BeginManualDate, "Mar - 2000");
  EXPECT_TRUE(Spd().Shown());
  EXPECT_EQ(EnabledCount(ws), 5);
}

TEST_F(ReportWindowsTest, BorderLiesBetweenTheLastPastAndTheFirstFuturePeriod) {
  SinWorkspace& ws = BothSides();
  Write(ws, Side::Past, 2, {"Apr - 2000", "Apr - 2000"});
  ws.Of(Side::Past).txtCumulativeResultsPeriod(2).SetText("$1,000");
  Write(ws, Side::Future, 2, {"Sep - 2000", "Sep - 2000"});
  Press(ws.cmdAdvResultsSpdSummaryTot);
  const Texts labels = Column(2);
  ASSERT_EQ(labels.size(), 4u + 1 + 2 + 1 + 1);
  EXPECT_EQ(labels[4], "May - 2000");
  EXPECT_EQ(Column(8)[4], "$1,010");
}

TEST_F(ReportWindowsTest, TotalOfThePastAlone) {
  SinWorkspace& ws = BothSides();
  ws.Of(Side::Future).txtResultsTotal->SetText("$0");
  Press(ws.cmdAdvResultsSpdSummaryTot);
  EXPECT_EQ(Column(0), (Texts{"1", "2", "3"}));
  Press(ws.cmdAdvResultsDocSummaryTot);
  EXPECT_EQ(Lines(Text().Text()).size(), 9u + 6 + 3);
}

// Without a past nothing is emptied or reset, neither grid nor totals.
TEST_F(ReportWindowsTest, TotalOfTheFutureAloneGoesOnFromWhatStands) {
  SinWorkspace& ws = BothSides();
  ws.Of(Side::Past).txtResultsTotal->SetText("$0");
  Press(ws.cmdAdvResultsSpdSummaryTot);
  EXPECT_EQ(Column(0), (Texts{"1", "2"}));
  EXPECT_EQ(Rows().Cell(0, 0), "Index");
  Press(ws.cmdAdvResultsSpdSummaryTot);
  EXPECT_EQ(Column(0), (Texts{"1", "2", "3", "4"}));
  EXPECT_EQ(Column(7), (Texts{"$91", "$183", "$274", "$365"}));  // 91.26 each
}

// A total without a period that counts is as good as none.
TEST_F(ReportWindowsTest, SideWithoutACountedPeriodIsLeftOut) {
  SinWorkspace& ws = BothSides();
  ws.Of(Side::Past).Record(1).PeriodEnabled = false;
  Press(ws.cmdAdvResultsDocSummaryTot);
  EXPECT_EQ(Lines(Text().Text()).at(0), "Future Period 1 Set and Enabled and has the following Parmeters:");
  EXPECT_EQ(Lines(Text().Text()).size(), 9u + 6 + 2);
}

TEST_F(ReportWindowsTest, NothingOnEitherSideEmptiesTheText) {
  SinWorkspace& ws = BothSides();
  Text().SetText("old");
  ws.Of(Side::Past).txtResultsTotal->SetText("0");
  ws.Of(Side::Future).txtResultsTotal->SetText("0");
  Press(ws.cmdAdvResultsDocSummaryTot);
  EXPECT_EQ(Text().Text(), "");
  EXPECT_TRUE(Doc().Shown());
}

// Past header, heading, three months, two gap months, future header, a second heading, two months, which
// number from 1 again while the totals run on.
TEST_F(ReportWindowsTest, TotalTextHasBothHeadings) {
  SinWorkspace& ws = BothSides();
  Press(ws.cmdAdvResultsDocSummaryTot);
  const Texts lines = Lines(Text().Text());
  ASSERT_EQ(lines.size(), 9u + 6 + 3 + 2 + 9 + 6 + 2);
  EXPECT_EQ(lines[9].substr(0, 5), "Index");
  EXPECT_EQ(Trimmed(lines[18]).at(0), "4");
  EXPECT_EQ(Trimmed(lines[18]).at(2), "Apr - 2000");
  EXPECT_EQ(Trimmed(lines[18]).at(6), "$1.86");
  EXPECT_EQ(lines[20], "Future Period 1 Set and Enabled and has the following Parmeters:");
  EXPECT_EQ(lines[29].substr(0, 5), "Index");
  EXPECT_EQ(Trimmed(lines[35]),
            (Texts{"1", "1", "Jun - 2000", "1.00", "$3.00", "$91.26", "$92.20", "$274", "$282"}));
  EXPECT_EQ(Trimmed(lines[36]).at(8), "$374");
  EXPECT_EQ(ws.FuturePast_Flag, 3);
  EXPECT_EQ(ws.CurrentIndexSub, 2);
}

// ---- Layouts ----

TEST_F(ReportWindowsTest, LayoutSwitchRefillsAndKeepsItsSetting) {
  SinWorkspace& ws = BothSides();
  Press(ws.Of(Side::Past).cmdAdvResultsDoc);
  const std::string table = Text().Text();
  Text().UserTypes("edited");
  EXPECT_EQ(Layout("Opt_Doc"), UserOutcome::Done);
  EXPECT_EQ(Lines(Text().Text()).size(), 9u + 3 * 9);
  Layout("Opt_Csv");
  EXPECT_EQ(Text().Text(), table);
  Layout("Opt_Doc");
  Click(Doc(), "cmdExit");
  Press(ws.Of(Side::Future).cmdAdvResultsDoc);
  EXPECT_EQ(Lines(Text().Text()).size(), 9u + 2 * 9);
}

// The months between the sides number on from the 2 that the report left, and leave it there.
TEST_F(ReportWindowsTest, LayoutSwitchOfATotalReport) {
  SinWorkspace& ws = BothSides();
  Press(ws.cmdAdvResultsDocSummaryTot);
  const std::string caption = Doc().Caption();
  Doc().SetCaption("kept");
  OpenButtons(ws);
  Layout("Opt_Doc");
  const Texts lines = Lines(Text().Text());
  ASSERT_EQ(lines.size(), 9u + 3 * 9 + 2 * 9 + 9 + 2 * 9);
  EXPECT_EQ(lines[9 + 27], " Month Number 3: Smoking Results for the Beginning to End of Apr - 2000");
  EXPECT_EQ(lines[9 + 27 + 18 + 9],
            " Month Number 1: Smoking Results for the Beginning to End of Jun - 2000 of Period 1");
  EXPECT_EQ(ws.CurrentIndexSub, 2);
  EXPECT_EQ(Doc().Caption(), "kept");
  EXPECT_EQ(EnabledCount(ws), 10);
  EXPECT_EQ(caption, "Smoke Results - Document Style (Rich Text Format)");
}

TEST_F(ReportWindowsTest, LayoutSwitchOfEachSin) {
  for (const SinRow& sin : Catalogue()) {
    if (sin.key == "Jailing") continue;  // below
    SinWorkspace& ws = BothSides(sin.key);
    Layout("Opt_Csv");
    Press(ws.Of(Side::Past).cmdAdvResultsDoc);
    const std::string table = Text().Text();
    EXPECT_EQ(Layout("Opt_Doc"), UserOutcome::Done);
    EXPECT_TRUE(Doc().BlockLayout());
    const bool stays = sin.key == "Slothing" || sin.key == "Tobaccoing";
    EXPECT_EQ(Text().Text() == table, stays) << sin.key;
    if (!stays) {
      EXPECT_EQ(Lines(Text().Text()).back(), std::string(88, '_')) << sin.key;
    }
    Layout("Opt_Csv");
    EXPECT_EQ(Text().Text(), table) << sin.key;
  }
}

TEST_F(ReportWindowsTest, LayoutSwitchOfJailTimeShowsSloth) {
  SinWorkspace& sloth = BothSides("Slothing");
  Press(sloth.Of(Side::Past).cmdAdvResultsDoc);
  SinWorkspace& jail = BothSides("Jailing");
  Press(jail.Of(Side::Past).cmdAdvResultsDoc);
  EXPECT_EQ(Lines(Text().Text()).at(1), "Start Jailing Date for Period is: Jan - 2000");
  Layout("Opt_Doc");
  EXPECT_EQ(Lines(Text().Text()).at(1), "Start Slothing Date for Period is: Jan - 2000");
  // What counts is read from jail time: without its period only sloth's header is left.
  jail.Of(Side::Past).Record(1).PeriodEnabled = false;
  Layout("Opt_Doc");
  EXPECT_EQ(Lines(Text().Text()).size(), 7u);
}

// Sloth's own last report decides what is shown; without one the text stays.
TEST_F(ReportWindowsTest, LayoutSwitchOfJailTimeBeforeAnyReportOfSloth) {
  SinWorkspace& jail = BothSides("Jailing");
  Press(jail.Of(Side::Past).cmdAdvResultsDoc);
  const std::string table = Text().Text();
  EXPECT_FALSE(world.Exists("Slothing"));
  Layout("Opt_Doc");
  EXPECT_EQ(Text().Text(), table);
  EXPECT_TRUE(world.Exists("Slothing"));
}

// ---- Files, printing, clipboard: the grid ----

TEST_F(ReportWindowsTest, SavedRowsAreQuotedLinesOfElevenColumns) {
  SinWorkspace& ws = BothSides("Gambling");
  Press(ws.Of(Side::Future).cmdAdvResultsSpd);
  world.platform.answers.files = {"rows.txt"};
  EXPECT_EQ(Click(Spd(), "cmdSaveAs"), UserOutcome::Done);
  const std::string row1(Rows().RowText(1)), row2(Rows().RowText(2));
  EXPECT_EQ(row1.substr(0, 6), "1 \t1 \t");
  // Eight cells, each with its tab, and three empty ones.
  EXPECT_EQ(world.platform.files["rows.txt"], '"' + row1 + "\t\t\t\t\"\r\n\"" + row2 + "\t\t\t\t\"\r\n");
}

TEST_F(ReportWindowsTest, SavedRowsOfElevenCellsHaveNoEmptyOnes) {
  SinWorkspace& ws = BothSides("Coffeeing");
  Press(ws.Of(Side::Past).cmdAdvResultsSpd);
  world.platform.answers.files = {"rows.txt"};
  Click(Spd(), "cmdSaveAs");
  const std::string& bytes = world.platform.files["rows.txt"];
  const std::string line = bytes.substr(0, bytes.find("\r\n"));
  EXPECT_EQ(line, '"' + std::string(Rows().RowText(1)) + "\t\"");
  EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), 11);
}

TEST_F(ReportWindowsTest, EmptyGridSavesAsAnEmptyFile) {
  SinWorkspace& ws = world.At("Smoking");
  Press(ws.Of(Side::Future).cmdAdvResultsSpd);
  world.platform.answers.files = {"rows.txt"};
  Click(Spd(), "cmdSaveAs");
  ASSERT_EQ(world.platform.files.count("rows.txt"), 1u);
  EXPECT_EQ(world.platform.files["rows.txt"], "");
}

TEST_F(ReportWindowsTest, CancelledSaveOverwritesTheFileChosenBefore) {
  SinWorkspace& ws = BothSides();
  Press(ws.Of(Side::Past).cmdAdvResultsSpd);
  world.platform.answers.files = {"rows.txt", std::nullopt};
  Click(Spd(), "cmdSaveAs");
  world.platform.files["rows.txt"] = "changed meanwhile";
  Click(Spd(), "cmdSaveAs");
  EXPECT_NE(world.platform.files["rows.txt"], "changed meanwhile");
  EXPECT_EQ(world.platform.savePathsOffered, (Texts{"", "rows.txt"}));
}

TEST_F(ReportWindowsTest, SaveWithoutANameIsAFileFault) {
  SinWorkspace& ws = BothSides();
  Press(ws.Of(Side::Past).cmdAdvResultsSpd);
  Press(ws.Of(Side::Past).cmdAdvResultsDoc);
  // The windows have a dialog each: the name chosen in the one is not that of the other.
  world.platform.answers.files = {"rows.txt"};
  Click(Spd(), "cmdSaveAs");
  try {
    Click(Doc(), "cmdSaveAs");
    FAIL() << "no fault";
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.Kind(), FaultKind::File);
  }
  EXPECT_EQ(world.platform.files.size(), 1u);
}

TEST_F(ReportWindowsTest, PrintWithNothingSelectedTakesTheWholeTable) {
  SinWorkspace& ws = BothSides();
  Press(ws.Of(Side::Future).cmdAdvResultsSpd);
  Click(Spd(), "cmdPrint");
  // Two rows of eleven cells, the last two empty; no heading.
  const std::string whole =
      std::string(Rows().RowText(1)) + "\t\t\r" + std::string(Rows().RowText(2)) + "\t\t";
  ASSERT_EQ(world.platform.printed.size(), 1u);
  EXPECT_EQ(world.platform.printed[0].text, whole);
  EXPECT_TRUE(world.platform.printed[0].selection);
  EXPECT_TRUE(world.platform.printed[0].pageLeftOpen);
  EXPECT_EQ(world.platform.clipboard, whole);
  EXPECT_EQ(Rows().RowSel(), 2);
  EXPECT_EQ(Rows().ColSel(), 10);
}

TEST_F(ReportWindowsTest, PrintOfASelection) {
  SinWorkspace& ws = BothSides();
  Press(ws.Of(Side::Future).cmdAdvResultsSpd);
  Rows().UserSelects(0, 0, 1, 1);
  Click(Spd(), "cmdPrint");
  EXPECT_EQ(world.platform.printed.at(0).text, "Index\tPeriod\r1 \t1 ");
  EXPECT_EQ(Rows().RowSel(), 1);
}

TEST_F(ReportWindowsTest, SelectAllRunsFromTheCurrentRowDown) {
  SinWorkspace& ws = BothSides();
  Press(ws.Of(Side::Past).cmdAdvResultsSpd);
  Rows().UserSelects(2, 5, 1, 6);
  EXPECT_EQ(Click(Spd(), "cmdSelectAll"), UserOutcome::Done);
  EXPECT_EQ(Rows().Row(), 2);
  EXPECT_EQ(Rows().Col(), 0);
  EXPECT_EQ(Rows().RowSel(), 3);
  EXPECT_EQ(Rows().ColSel(), 10);
  EXPECT_EQ(Click(Spd(), "cmdCopy"), UserOutcome::Done);
  EXPECT_EQ(world.platform.clipboard, Rows().Clip());
  EXPECT_EQ(world.platform.clipboard.substr(0, 3), "2 \t");
}

TEST_F(ReportWindowsTest, HeadingAloneCopiesAndPrintsNothing) {
  SinWorkspace& ws = world.At("Smoking");
  world.platform.clipboard = "before";
  Press(ws.Of(Side::Future).cmdAdvResultsSpd);
  Click(Spd(), "cmdSelectAll");
  Click(Spd(), "cmdCopy");
  EXPECT_EQ(world.platform.clipboard, "");
  Click(Spd(), "cmdPrint");
  EXPECT_EQ(world.platform.printed.at(0).text, "");
}

// ---- Files, printing, clipboard: the document ----

TEST_F(ReportWindowsTest, SavedTextIsOneQuotedField) {
  Doc().Show();
  Text().SetText("a \"b\"\r\nc");
  world.platform.answers.files = {"text.txt", "part.txt", "part.txt"};
  Click(Doc(), "cmdSaveAs");
  EXPECT_EQ(world.platform.files["text.txt"], "\"a \"b\"\r\nc\"\r\n");
  EXPECT_EQ(Text().SelLength(), 8);  // everything is selected now
  Text().UserSelects(2, 3);
  Click(Doc(), "cmdSaveAs");
  EXPECT_EQ(world.platform.files["part.txt"], "\"\"b\"\"\r\n");
  Text().SetText("");
  Click(Doc(), "cmdSaveAs");
  EXPECT_EQ(world.platform.files["part.txt"], "\"\"\r\n");
}

TEST_F(ReportWindowsTest, PrintOfTheTextOrItsSelection) {
  Doc().Show();
  Text().SetText("a\r\nb");
  Click(Doc(), "cmdPrint");
  Text().UserSelects(3, 1);
  Click(Doc(), "cmdPrint");
  ASSERT_EQ(world.platform.printed.size(), 2u);
  EXPECT_EQ(world.platform.printed[0].text, "a\r\nb");
  EXPECT_FALSE(world.platform.printed[0].selection);
  EXPECT_FALSE(world.platform.printed[0].pageLeftOpen);
  EXPECT_EQ(world.platform.printed[1].text, "b");
  EXPECT_TRUE(world.platform.printed[1].selection);
  EXPECT_EQ(world.platform.clipboard, "");
}

TEST_F(ReportWindowsTest, CutCopyAndPaste) {
  Doc().Show();
  Text().SetText("abcdef");
  Text().UserSelects(1, 2);
  EXPECT_EQ(Click(Doc(), "cmdCopy"), UserOutcome::Done);
  EXPECT_EQ(world.platform.clipboard, "bc");
  EXPECT_EQ(Text().Text(), "abcdef");
  EXPECT_EQ(Click(Doc(), "cmdCut"), UserOutcome::Done);
  EXPECT_EQ(Text().Text(), "adef");
  EXPECT_EQ(Text().SelStart(), 1);
  Text().UserSelects(3, 1);
  EXPECT_EQ(Click(Doc(), "cmdPaste"), UserOutcome::Done);
  EXPECT_EQ(Text().Text(), "adebc");
  Click(Doc(), "cmdSelectAll");
  EXPECT_EQ(Text().SelText(), "adebc");
}

TEST_F(ReportWindowsTest, CutOfNothingEmptiesTheClipboardAlone) {
  Doc().Show();
  Text().SetText("abc");
  Text().UserSelects(2, 0);
  world.platform.clipboard = "before";
  Click(Doc(), "cmdCut");
  EXPECT_EQ(world.platform.clipboard, "");
  EXPECT_EQ(Text().Text(), "abc");
  EXPECT_EQ(Text().SelStart(), 2);
}

// ---- Windows ----

std::string PlaceText(const Form& form, std::string_view name) {
  const Place& p = form.Find(name)->GetPlace();
  return std::to_string(p.left) + " " + std::to_string(p.top) + " " + std::to_string(p.width) + " " +
         std::to_string(p.height);
}

TEST_F(ReportWindowsTest, PlacesOfTheSpreadsheetWindow) {
  EXPECT_EQ(Spd().Width(), 9000);
  EXPECT_EQ(Spd().Height(), 7845);
  EXPECT_EQ(PlaceText(Spd(), "fgdAdvResultsSpd"), "350 200 8200 5845");
  EXPECT_EQ(PlaceText(Spd(), "cmdPrint"), "350 6145 1500 500");
  EXPECT_EQ(PlaceText(Spd(), "cmdSaveAs"), "1850 6145 1500 500");
  EXPECT_EQ(PlaceText(Spd(), "cmdExit"), "7000 6145 1550 500");
  Spd().Show();
  Spd().UserResizes(12000, 10000);
  EXPECT_EQ(PlaceText(Spd(), "fgdAdvResultsSpd"), "350 200 11200 8000");
  EXPECT_EQ(PlaceText(Spd(), "cmdExit"), "10000 8300 1550 500");
  Spd().UserResizes(3000, 6000);
  EXPECT_EQ(Spd().Width(), 5500);
  EXPECT_EQ(Spd().Height(), 6000);
  EXPECT_EQ(PlaceText(Spd(), "fgdAdvResultsSpd"), "350 200 4700 4000");
}

TEST_F(ReportWindowsTest, PlacesOfTheDocumentWindow) {
  EXPECT_EQ(Doc().Width(), 9000);
  EXPECT_EQ(Doc().Height(), 8345);
  EXPECT_EQ(PlaceText(Doc(), "rtfAdvResultsDoc"), "350 200 8200 6345");
  EXPECT_EQ(PlaceText(Doc(), "SSFrame1_DocResults").substr(0, 8), "350 6595");
  EXPECT_EQ(PlaceText(Doc(), "cmdExit"), "7000 6595 1550 500");
  Doc().Show();
  Doc().UserResizes(100, 100);
  EXPECT_EQ(Doc().Width(), 8000);
  EXPECT_EQ(Doc().Height(), 5500);
  // The three buttons stand side by side also then.
  const Place print = Doc().Find("cmdPrint")->GetPlace();
  const Place save = Doc().Find("cmdSaveAs")->GetPlace();
  const Place frame = Doc().Find("SSFrame1_DocResults")->GetPlace();
  EXPECT_GE(print.left, frame.left + frame.width);
  EXPECT_EQ(save.left, print.left + 1500);
  EXPECT_LE(save.left + save.width, Doc().Find("cmdExit")->GetPlace().left);
}

TEST_F(ReportWindowsTest, MinimisedWindowsStayAsTheyAre) {
  for (Form* window : {static_cast<Form*>(&Spd()), static_cast<Form*>(&Doc())}) {
    window->SetWindowState(WindowState::Minimised);
    window->Resize(160, 24);
    EXPECT_EQ(window->Width(), 160);
    EXPECT_EQ(window->Find("cmdExit")->GetPlace().width, 1550);
    window->SetWindowState(WindowState::Normal);
    EXPECT_GE(window->Width(), 5500);
  }
}

TEST_F(ReportWindowsTest, ControlsAndCaptions) {
  EXPECT_EQ(Spd().Name(), "frmAdvResultsSpd");
  EXPECT_EQ(Doc().Name(), "frmAdvResultsDoc");
  EXPECT_EQ(Spd().Controls().size(), 8u);  // with Export and Preview at its foot
  EXPECT_EQ(Doc().Controls().size(), 11u);
  EXPECT_EQ(Doc().Caption(), "Advanced Smoking Results - Document Style (Rich Text Format)");
  for (Form* window : {static_cast<Form*>(&Spd()), static_cast<Form*>(&Doc())}) {
    EXPECT_FALSE(window->HasCloseEntry());
    EXPECT_EQ(window->Get<Button>("cmdPrint").Caption(), "Print Results");
    EXPECT_EQ(window->Get<Button>("cmdSaveAs").Caption(), "File (Save As)");
    EXPECT_EQ(window->Get<Button>("cmdExit").Caption(), "Exit");
    EXPECT_EQ(window->Get<MenuEntry>("cmdSelectAll").Caption(), "Select All");
    EXPECT_EQ(window->Get<MenuEntry>("cmdCopy").Caption(), "Copy");
  }
  EXPECT_EQ(Doc().Get<MenuEntry>("cmdCut").Caption(), "Cut");
  EXPECT_EQ(Doc().Get<MenuEntry>("cmdPaste").Caption(), "Paste");
  EXPECT_EQ(Doc().Get<Option>("Opt_Csv").Caption(), "Comma Separated Data");
  EXPECT_EQ(Doc().Get<Option>("Opt_Doc").Caption(), "Descriptive Text");
  EXPECT_TRUE(Doc().Get<Option>("Opt_Csv").Value());
  EXPECT_EQ(Text().ToolTip(), "Maximize Window in Comma Separated Mode to Align Columns");
}

}  // namespace
}  // namespace vicetoll
