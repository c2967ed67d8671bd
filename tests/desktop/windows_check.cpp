// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for the real windows beyond what scenarios can say: that every control is there, to be seen,
// reached and named; that widgets show what controls say; what closing, help and printing do.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QTreeView>
#include <fstream>
#include <set>

#include "controls/spoken_name.h"
#include "desktop/balloon.h"
#include "desktop/desktop.h"
#include "desktop/document_view.h"
#include "desktop/form_window.h"
#include "desktop/grid_view.h"
#include "desktop/look.h"
#include "desktop/printing.h"
#include "desktop/qt_platform.h"
#include "desktop/run_program.h"
#include "desktop/scale.h"
#include "desktop/text.h"
#include "desktop/themes.h"
#include "desktop/toolkit_messages.h"
#include "desktop/when_up.h"
#include "desktop/widgets.h"
#include "entries/entries_file.h"
#include "windows_fixture.h"

namespace vicetoll {
namespace {

// ---- Whole runs ----

GuardedApplication& Application() { return dynamic_cast<GuardedApplication&>(*QCoreApplication::instance()); }

QWidget* WindowNamed(const char* name) {
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->objectName() == name) return window;
  return nullptr;
}

void ClickIn(const char* window, const char* control) {
  QTest::mouseClick(WindowNamed(window)->findChild<QWidget*>(control), Qt::LeftButton);
}

// Saves a report into a folder that has just gone, and reads what the program then says. What was entered is
// in a file of the user's data folder.
TEST(Run, EndsAfterAFatalFaultThatItTells) {
  QTemporaryDir room, data;
  qputenv("XDG_DATA_HOME", data.path().toUtf8());
  const QString path = room.filePath("report.txt");
  QString told;
  WhenUp<QFileDialog>([&](QFileDialog& dialog) {
    dialog.findChild<QLineEdit*>("fileNameEdit")->setText(path);
    QMetaObject::invokeMethod(&dialog, "accept");
    if (!dialog.isVisible()) room.remove();
  });
  WhenUp<QMessageBox>([&told](QMessageBox& box) {
    told = box.text();
    box.accept();
  });
  QTimer::singleShot(0, [] {
    ClickIn("Smoking", "cmdSetPeriodParamsPast");
    ClickIn("Smoking", "cmdAdvResultsDocPast");
    ClickIn("frmAdvResultsDoc", "cmdSaveAs");
  });
  EXPECT_EQ(RunProgram(Application()), 1);
  EXPECT_TRUE(told.contains(path)) << told.toStdString();
  qunsetenv("XDG_DATA_HOME");
  const QStringList rescued = QDir(data.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  ASSERT_EQ(rescued.size(), 1);
  const QString file = data.filePath(rescued[0] + "/rescued.vicetoll");
  EXPECT_TRUE(told.contains(file)) << told.toStdString();
  EXPECT_TRUE(told.contains("Results that were not saved are gone.")) << told.toStdString();
  EXPECT_TRUE(told.contains("To avoid this, give each report a name")) << told.toStdString();
  const Entries entries = ReadEntries(ReadEntriesBytes(file.toStdString()));
  EXPECT_EQ(entries.sins.at(0).past.periods.size(), 1u);
}

// Whatever else is thrown while the event loop runs ends the run too, with plain words.
TEST(Run, EndsAfterAnExceptionThatIsNoFault) {
  QString told;
  WhenUp<QMessageBox>([&told](QMessageBox& box) {
    told = box.text();
    box.accept();
  });
  QTimer::singleShot(0, [] { throw std::out_of_range("beyond the last row"); });
  EXPECT_EQ(RunProgram(Application()), 1);
  EXPECT_TRUE(told.startsWith("Something went wrong inside the program (beyond the last row)."))
      << told.toStdString();
}

TEST(Run, EndsWithStatusZeroByItsExitButton) {
  QTimer::singleShot(0, [] { ClickIn("Smoking", "cmdExit"); });
  EXPECT_EQ(RunProgram(Application()), 0);
}

// The file is of a pack a day at 2.00, later at 3.00: 183 and 183.
TEST(Run, StartsWithAFile) {
  QString total;
  bool inFront = false;
  QTimer::singleShot(20, [&] {
    inFront = WindowNamed("Smoking")->isVisible();
    total = WindowNamed("Smoking")->findChild<QWidget*>("txtResultsTotalFut")->property("text").toString();
    ClickIn("Smoking", "cmdExit");
  });
  EXPECT_EQ(RunProgram(Application(), ENTRIES_FILES "/Smoking.vicetoll"), 0);
  EXPECT_TRUE(inFront);
  EXPECT_EQ(total.toStdString(), "$366");
}

class FilesOfNoUse : public testing::TestWithParam<const char*> {};

// The program says so, and goes on as it starts.
TEST_P(FilesOfNoUse, AreNamedAtTheStart) {
  QTemporaryDir room;
  const std::string path = room.filePath("entries.vicetoll").toStdString();
  if (const char* bytes = GetParam()) std::ofstream(path) << bytes;
  QString told;
  WhenUp<QMessageBox>([&told](QMessageBox& box) {
    told = box.text();
    box.accept();
    QTimer::singleShot(0, [] { ClickIn("Smoking", "cmdExit"); });
  });
  EXPECT_EQ(RunProgram(Application(), path), 0);
  EXPECT_TRUE(told.startsWith(QString::fromStdString("The file \"" + path + "\" cannot be opened.")))
      << told.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Run, FilesOfNoUse,
                         testing::Values(nullptr, "", "{\"format\": \"vicetoll entries\"}"));

// ---- Windows ----

TEST_F(Windows, HaveAWidgetForEveryControlUnderItsName) {
  for (const char* name : {"Smoking", "Drinking", "Gambling", "Coffeeing", "frmSwitchSins", "frmCombRes",
                           "frmInfo", "frmAdvResultsSpd", "frmAdvResultsDoc", "frmGrowth", "frmSinsChart"}) {
    Form& form = *program.Window(name);
    for (const auto& control : form.Controls()) {
      const bool isEntry = control->Kind() == ControlKind::MenuEntry;
      const QObject* made = isEntry ? static_cast<QObject*>(Of(form).MenuEntryOf(*control))
                                    : static_cast<QObject*>(Of(form).WidgetOf(*control));
      EXPECT_TRUE(made != nullptr && made->objectName() == ToQt(control->FullName()))
          << name << " " << control->FullName();
    }
  }
}

TEST_F(Windows, AreNotMadeBeforeTheyAreShown) {
  program.At(5);
  desktop.Flush();
  for (QWidget* window : QApplication::topLevelWidgets()) EXPECT_NE(window->objectName(), "Jailing");
}

// What stands on a tab is made when that comes to the front, as it is by then, for its turn of the Tab key.
TEST_F(Windows, MakeAPageWhenItComesToTheFront) {
  FormWindow& window = Of(Smoking());
  SideControls& future = Smoking().Of(Side::Future);
  EXPECT_NE(window.findChild<QWidget*>("comStartPast"), nullptr);
  EXPECT_EQ(window.findChild<QWidget*>("comStartFut"), nullptr);
  desktop.Enter([&] { future.comStart->SetToolTip("The first month."); });
  Open(Smoking(), kTotalTab);
  EXPECT_NE(window.findChild<QWidget*>("txtResultsTotalSummaryTot"), nullptr);
  EXPECT_EQ(window.findChild<QWidget*>("comStartFut"), nullptr);
  Open(Smoking(), kFutureTab);
  auto* list = window.findChild<BlueList*>("comStartFut");
  ASSERT_NE(list, nullptr);
  EXPECT_TRUE(list->isVisible());
  EXPECT_EQ(list->ShownText(), ToQt(future.comStart->Text()));
  EXPECT_EQ(list->toolTip(), "The first month.");
  EXPECT_EQ(list->accessibleName(), ToQt(SpokenName(*future.comStart)));
  EXPECT_TRUE(list->accessibleDescription().endsWith("The first month."));
  EXPECT_TRUE(window.findChild<CaptionButton*>("cmdSetPeriodParamsFut")->text().contains(u'&'));
  std::vector<const QWidget*> stops, chain;
  for (const auto& control : Smoking().Controls())
    if (control->TakesFocus() && control->Kind() != ControlKind::TabControl)
      stops.push_back(window.WidgetOf(*control));
  for (const QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain())
    if (std::ranges::find(stops, next) != stops.end()) chain.push_back(next);
  EXPECT_EQ(chain, stops);
}

TEST_F(Windows, HaveTheSizeOfTheirFormInPixels) {
  EXPECT_EQ(Of(Smoking()).size(), QSize(800, 750));
  Open(Smoking(), kFutureTab);  // the euro button goes
  EXPECT_EQ(Of(Smoking()).size(), QSize(800, 700));
}

TEST_F(Windows, SnapBackFromASizeThatIsTooLarge) {
  Of(Smoking()).resize(1200, 750);
  QTRY_COMPARE_WITH_TIMEOUT(Of(Smoking()).size(), QSize(800, 750), 2000);
  Of(Smoking()).resize(900, 800);
  QTRY_COMPARE_WITH_TIMEOUT(Smoking().Height(), 12000, 2000);
  EXPECT_EQ(Widget(Smoking(), "cmdExit").y(), Scale().ToPixels(12000 - 875 - 600));
}

// ---- Layout ----

// By the scale in force, as the widgets have it.
QRect RoomForText(const QWidget& widget) {
  const Scale scale = ScaleOf(&widget);
  const int five = scale.Of(5);
  if (dynamic_cast<const CaptionButton*>(&widget))
    return widget.rect().adjusted(five, five / 2, -five, -five / 2);
  if (qobject_cast<const QAbstractButton*>(&widget)) return widget.rect().adjusted(scale.Of(20), 0, -2, 0);
  if (dynamic_cast<const BlueList*>(&widget))
    return widget.rect().adjusted(scale.Of(7), 1, -scale.Of(20), -1);
  return widget.rect();
}

QString ShownText(const QWidget& widget) {
  if (const auto* button = dynamic_cast<const CaptionButton*>(&widget)) return button->Caption();
  if (const auto* choice = qobject_cast<const QAbstractButton*>(&widget)) return choice->text();
  if (const auto* list = dynamic_cast<const BlueList*>(&widget)) return list->ShownText();
  if (const auto* label = dynamic_cast<const CaptionLabel*>(&widget)) return label->text();
  return {};
}

// No visible widget lies over another or leaves its container, and no text is smaller than the others.
void CheckLayout(FormWindow& window, const Form& form) {
  std::vector<const QWidget*> seen;
  for (const auto& control : form.Controls()) {
    const QWidget* widget = window.WidgetOf(*control);
    if (widget == nullptr || !widget->isVisible() || control->Kind() == ControlKind::Panel ||
        control->Name() == "cmdRevealDeveloper")
      continue;
    const std::string name = form.Name() + " " + control->FullName();
    EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
        << name << " leaves its container";
    for (const QWidget* other : seen) {
      const bool overlaps =
          other->parentWidget() == widget->parentWidget() && other->geometry().intersects(widget->geometry());
      EXPECT_FALSE(overlaps) << name << " overlaps " << other->objectName().toStdString();
    }
    seen.push_back(widget);
    const QString text = ShownText(*widget);
    const QFont font = FittedFont(text, RoomForText(*widget).size(), widget->font());
    EXPECT_EQ(font.pixelSize(), widget->font().pixelSize()) << name << ": " << text.toStdString();
  }
}

// A system's font, a screen, and the user's steps of zoom.
struct Surroundings {
  int points;
  QSize screen;
  int zoom;
};

class Layout : public Windows, public testing::WithParamInterface<Surroundings> {
 protected:
  Layout() {
    const Surroundings& now = GetParam();
    QFont font = QApplication::font();
    usual_ = font.pointSize();
    font.setPointSize(now.points);
    QApplication::setFont(font);
    desktop.GetScaling().screen = now.screen;
    desktop.TakeScale();
    desktop.ZoomBy(now.zoom);
  }
  ~Layout() override {
    QFont font = QApplication::font();
    font.setPointSize(usual_);
    QApplication::setFont(font);
  }

  void Check(Form& form) {
    CheckLayout(Of(form), form);
    const QSize room = GetParam().screen;
    EXPECT_LE(Of(form).width(), room.width()) << form.Name();
    EXPECT_LT(Of(form).height(), room.height()) << form.Name();
    if (GetParam().zoom == 0) {
      // All of it is in view, in letters of nine pixels and more.
      EXPECT_EQ(Of(form).size(), Of(form).GetSheet().size()) << form.Name();
      EXPECT_GE(Of(form).GetSheet().font().pixelSize(), 9) << form.Name();
    }
  }

 private:
  int usual_;
};

TEST_P(Layout, CutsNothingOffAndOverlapsNothing) {
  for (int sin = 0; sin < kSinCount; ++sin) {
    SinWorkspace& ws = Visit(sin);
    for (const int tab : {kPastTab, kFutureTab, kTotalTab}) {
      Open(ws, tab);
      Check(ws);
    }
    for (Side side : kSides) {
      Open(ws, side == Side::Past ? kPastTab : kFutureTab);
      desktop.Enter([&] { ws.Of(side).cmdSetPeriodParams->UserClicks(); });
      if (ws.Of(side).OptCigInitialFinalCostIncrease != nullptr)
        desktop.Enter([&] { ws.Of(side).OptCigInitialFinalCostIncrease->UserClicks(); });
      desktop.Enter([&] { ws.Of(side).secondUnit->UserClicks(); });
      Check(ws);
    }
    Open(ws, kTotalTab);
    Check(ws);
  }
  desktop.Enter([&] { program.Combined().Show(); });
  Check(program.Combined());
  desktop.Enter([&] { program.Chooser().Show(); });
  Check(program.Chooser());
}

// The design itself, small screens, large letters, and zoom beyond the screen.
INSTANTIATE_TEST_SUITE_P(Surroundings, Layout,
                         testing::Values(Surroundings{9, {1920, 1080}, 0}, Surroundings{9, {1024, 600}, 0},
                                         Surroundings{9, {1280, 720}, 0}, Surroundings{14, {1366, 768}, 0},
                                         Surroundings{14, {3840, 2160}, 0}, Surroundings{18, {1920, 1080}, 0},
                                         Surroundings{18, {3840, 2160}, 0}, Surroundings{9, {1366, 768}, 3},
                                         Surroundings{9, {1920, 1080}, -3}),
                         [](const auto& row) {
                           const Surroundings& now = row.param;
                           return "Font" + std::to_string(now.points) + "Screen" +
                                  std::to_string(now.screen.width()) +
                                  (now.zoom < 0   ? "ZoomedOut"
                                   : now.zoom > 0 ? "ZoomedIn"
                                                  : "");
                         });

// ---- In step with the controls ----

TEST_F(Windows, OptionsShowWhatTheControlsSay) {
  auto& fine = dynamic_cast<RadioWidget&>(Widget(Smoking(), "optFineDateStartPast"));
  auto& course = dynamic_cast<RadioWidget&>(Widget(Smoking(), "optCourseDateStartPast"));
  QTest::mouseClick(&fine, Qt::LeftButton);
  EXPECT_TRUE(fine.isChecked());
  EXPECT_FALSE(course.isChecked());
  QTest::mouseClick(&fine, Qt::LeftButton);
  EXPECT_TRUE(fine.isChecked());
  // By program both can be off.
  desktop.Enter([&] { Smoking().Get<Option>("optFineDateStartPast").SetValue(false); });
  EXPECT_FALSE(fine.isChecked());
  EXPECT_FALSE(course.isChecked());
}

// The ring of the focus goes around the mark and does not touch it.
TEST_F(Windows, TheFocusLeavesTheMarkOfAChoiceAlone) {
  desktop.Enter([&] { Smoking().cmdSwitchSins->UserClicks(); });
  Activate(Of(program.Chooser()));
  QWidget& option = Widget(program.Chooser(), "OptSwitchSins(3)");
  option.setFocus();
  const QImage picture = option.grab().toImage();
  const int middle = picture.height() / 2;
  EXPECT_EQ(picture.pixelColor(1, middle), Colour(Tone::Focus));
  EXPECT_EQ(picture.pixelColor(3, middle), picture.pixelColor(picture.width() - 5, middle));
}

// Both layouts of the document are offered in letters of one size.
TEST_F(Windows, OptionsOfOneGroupHaveRoomForTheirCaptions) {
  Report<QWidget>(&SideControls::cmdAdvResultsDoc, program.Doc().Get<Option>("Opt_Csv"));
  for (const char* name : {"Opt_Csv", "Opt_Doc"}) {
    const QWidget& option = Widget(program.Doc(), name);
    const QString caption = QString::fromStdString(program.Doc().Get<Option>(name).Caption());
    EXPECT_GT(option.width(), 24 + option.fontMetrics().horizontalAdvance(caption)) << name;
  }
}

TEST_F(Windows, ListsThatAreTypedIntoBeginWhereOthersDo) {
  desktop.Enter([&] { program.Combined().Show(); });
  const auto& list = dynamic_cast<BlueList&>(Widget(program.Combined(), "comDataRep"));
  ASSERT_TRUE(list.isEditable());
  EXPECT_EQ(list.lineEdit()->x() + list.lineEdit()->textMargins().left() + 2, ScaleOf(&list).Of(7));
}

TEST_F(Windows, ListsShowATextThatIsNoEntry) {
  desktop.Enter([&] { Smoking().Of(Side::Past).comStart->SetText("elsewhere"); });
  auto& list = dynamic_cast<BlueList&>(Widget(Smoking(), "comStartPast"));
  EXPECT_EQ(list.ShownText(), "elsewhere");
  EXPECT_EQ(list.currentIndex(), -1);
}

TEST_F(Windows, ListsAreOpenedAndPickedFromByKeyboard) {
  Activate(Of(Smoking()));
  auto& list = dynamic_cast<BlueList&>(Widget(Smoking(), "comInterestRate1Past"));
  list.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(Smoking().Of(Side::Past).comInterestRate1->Text(), "6%");
  QTest::keyClick(&list, Qt::Key_F4);
  QApplication::processEvents();
  ASSERT_TRUE(list.view()->isVisible());
  QTest::keyClick(list.view(), Qt::Key_Down);
  QTest::keyClick(list.view(), Qt::Key_Return);
  EXPECT_EQ(Smoking().Of(Side::Past).comInterestRate1->Text(), "7%");
}

TEST_F(Windows, ADisabledControlHandsTheFocusToNoList) {
  Activate(Of(Smoking()));
  QWidget& set = Widget(Smoking(), "cmdSetPeriodParamsPast");
  set.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&set, Qt::Key_Space);
  EXPECT_FALSE(set.isEnabled());
  EXPECT_FALSE(Smoking().Of(Side::Past).cmdSetPeriodParams->Enabled());
}

TEST_F(Windows, DocumentsKeepTheirEndsOfLine) {
  DocWindow& window = program.Doc();
  desktop.Enter([&] {
    window.Text().SetText("one\r\ntwo");
    window.Show();
  });
  Activate(Of(window));
  auto& edit = dynamic_cast<DocumentEdit&>(Widget(window, "rtfAdvResultsDoc"));
  QTest::keyClick(&edit, Qt::Key_End, Qt::ControlModifier);
  QTest::keyClick(&edit, Qt::Key_Return);
  QTest::keyClicks(&edit, "three");
  EXPECT_EQ(window.Text().Text(), "one\r\ntwo\r\nthree");
  EXPECT_EQ(window.Text().SelStart(), window.Text().Length());
  QTest::keyClick(&edit, Qt::Key_Home, Qt::ShiftModifier);
  EXPECT_EQ(window.Text().SelText(), "three");
}

// ---- Closing ----

TEST_F(Windows, ClosingAWorkspaceEndsTheProgram) {
  bool ended = false;
  desktop.onEnded = [&ended] { ended = true; };
  EXPECT_FALSE(Of(Smoking()).close());
  EXPECT_TRUE(program.Ended());
  EXPECT_TRUE(ended);
  EXPECT_FALSE(Of(Smoking()).isVisible());
}

TEST_F(Windows, ClosingTheChooserLeavesIt) {
  QTest::mouseClick(&Widget(Smoking(), "cmdSwitchSins"), Qt::LeftButton);
  FormWindow& chooser = Of(program.Chooser());
  ASSERT_TRUE(chooser.isVisible());
  chooser.close();
  EXPECT_FALSE(chooser.isVisible());
  EXPECT_TRUE(Smoking().cmdSwitchSins->Enabled());
  EXPECT_FALSE(program.Ended());
}

TEST_F(Windows, ReportsIgnoreRequestsToClose) {
  desktop.Enter([&] { program.Spd().Show(); });
  Of(program.Spd()).close();
  EXPECT_TRUE(Of(program.Spd()).isVisible());
  EXPECT_FALSE(Of(program.Spd()).windowFlags().testFlag(Qt::WindowCloseButtonHint));
}

// Every window but the two reports, which must be left by their own button.
TEST_F(Windows, GoWhenTheyAreClosedByTheWindowSystem) {
  for (const char* name : {"frmCombRes", "frmInfo", "Drinking", "Smoking"}) {
    Form& form = *program.Window(name);
    desktop.Enter([&] { form.Show(); });
    Of(form).close();
    EXPECT_FALSE(form.Shown()) << name;
  }
}

// The core makes the sins that were never visited, to unload them; nobody sees them.
TEST_F(Windows, AreNotMadeToBeHiddenAtTheEnd) {
  const std::size_t before = desktop.Windows().size();
  QTest::mouseClick(&Widget(Smoking(), "cmdExit"), Qt::LeftButton);
  EXPECT_TRUE(program.Ended());
  EXPECT_EQ(desktop.Windows().size(), before);
}

class Failures : public Windows, public testing::WithParamInterface<bool> {};

TEST_P(Failures, EndTheRunAndNothingEntersAfterThem) {
  std::string said;
  int times = 0;
  desktop.onFault = [&](const std::exception& cause) {
    said = cause.what();
    ++times;
  };
  desktop.Enter([fault = GetParam()] {
    if (fault) throw Fault(FaultKind::File, "The disk is full.");
    throw std::length_error("too long");
  });
  EXPECT_EQ(said, GetParam() ? "The disk is full." : "too long");
  bool entered = false;
  desktop.Enter([&entered] { entered = true; });
  EXPECT_FALSE(entered);
  desktop.Fail(std::runtime_error("a second one"));
  EXPECT_EQ(times, 1);
}

INSTANTIATE_TEST_SUITE_P(OfBothKinds, Failures, testing::Bool(), testing::PrintToStringParamName());

// A listener that fails while widgets are brought in step must not leave the desktop deaf.
TEST_F(Windows, TakeUpAgainAfterAFailureWhileTheyAreBroughtInStep) {
  struct Failing : QObject {
    bool eventFilter(QObject*, QEvent* event) override {
      if (event->type() == QEvent::EnabledChange) throw std::runtime_error("no more");
      return false;
    }
  } failing;
  QWidget& button = Widget(Smoking(), "cmdHelp");
  button.installEventFilter(&failing);
  Smoking().Get<Button>("cmdHelp").SetEnabled(false);
  EXPECT_THROW(desktop.Flush(), std::runtime_error);
  button.removeEventFilter(&failing);
  Smoking().Get<Button>("cmdFaq").SetEnabled(false);
  desktop.Flush();
  EXPECT_FALSE(Widget(Smoking(), "cmdFaq").isEnabled());
}

// Whatever stands at which address: a thing counts once, where it changed first.
TEST(ChangesOfTheCore, KeepTheOrderInWhichTheyCame) {
  int things[5] = {};
  Changes<int> changes;
  for (const int i : {3, 0, 4, 3, 1, 0}) changes.Add(things[i]);
  EXPECT_EQ(changes.Take(), (std::vector<int*>{&things[3], &things[0], &things[4], &things[1]}));
  EXPECT_TRUE(changes.Take().empty());
  changes.Add(things[3]);
  EXPECT_EQ(changes.Take(), std::vector<int*>{&things[3]});
}

TEST_F(Windows, PanelsTakeClicksOnTheirOwnGroundAlone) {
  auto& panel = dynamic_cast<PanelWidget&>(Widget(Smoking(), "SSPanel_BackColor(0)"));
  int clicks = 0;
  panel.onClick = [&clicks] { ++clicks; };
  QWidget& frame = Widget(Smoking(), "frmEnabledDisabledPeriodPast(1)");
  QTest::mouseClick(&frame, Qt::LeftButton, {}, QPoint(2, 2));
  frame.setEnabled(false);
  QTest::mouseClick(&frame, Qt::LeftButton, {}, QPoint(2, 2));
  QTest::mouseClick(&Widget(Smoking(), "lblInterestRatePast"), Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
  ASSERT_EQ(panel.childAt(1, 1), nullptr);
  QTest::mouseClick(&panel, Qt::RightButton, {}, QPoint(1, 1));
  EXPECT_EQ(clicks, 0);
  QTest::mouseClick(&panel, Qt::LeftButton, {}, QPoint(1, 1));
  EXPECT_EQ(clicks, 1);
}

// ---- Help, keyboard, names ----

TEST_F(Windows, BalloonsExplainOnHoverAndGoWithThePointer) {
  QWidget& list = Widget(Smoking(), "comInterestRate1Past");
  Hover(list);
  const BalloonWidget* balloon = Of(Smoking()).ShownBalloon();
  ASSERT_NE(balloon, nullptr);
  EXPECT_TRUE(balloon->Text().startsWith("Set the Average Rate of Return"));
  EXPECT_TRUE(Of(Smoking()).rect().contains(balloon->geometry()));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&list, &leave);
  EXPECT_EQ(Of(Smoking()).ShownBalloon(), nullptr);
}

TEST_F(Windows, AFramesBalloonIsForItsOwnGround) {
  Hover(Widget(Smoking(), "frmRatesPast"));
  EXPECT_NE(Of(Smoking()).ShownBalloon(), nullptr);
  QTest::mouseClick(&Widget(Smoking(), "optToolTipDisable"), Qt::LeftButton);
  Hover(Widget(Smoking(), "lblInterestRatePast"));
  Hover(Widget(Smoking(), "frmRatesPast"));
  EXPECT_EQ(Of(Smoking()).ShownBalloon(), nullptr);
}

TEST_F(Windows, AKeyExplainsTheControlThatHasTheFocus) {
  Activate(Of(Smoking()));
  QWidget& list = Widget(Smoking(), "comInflationRate1Past");
  list.setFocus(Qt::TabFocusReason);
  QTest::keyClick(&list, Qt::Key_F1, Qt::ShiftModifier);
  ASSERT_NE(Of(Smoking()).ShownBalloon(), nullptr);
  EXPECT_TRUE(Of(Smoking()).ShownBalloon()->Text().startsWith("Set the Inflation Rate"));
  QTest::keyClick(&list, Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_EQ(Of(Smoking()).ShownBalloon(), nullptr);
}

TEST_F(Windows, EveryListAndBoxHasAName) {
  for (const int sin : {0, 1, 2, 3}) {
    SinWorkspace& ws = Visit(sin);
    for (const auto& control : ws.Controls()) {
      if (control->Kind() != ControlKind::List && control->Kind() != ControlKind::TextBox) continue;
      EXPECT_FALSE(Of(ws).WidgetOf(*control)->accessibleName().isEmpty()) << control->FullName();
    }
  }
  EXPECT_EQ(Widget(Smoking(), "txtResultsPeriodPast(2)").accessibleName(),
            "Period 2: Past Ashtoll, Out of Pocket Expense");
  EXPECT_EQ(Widget(Smoking(), "comStartPast").accessibleName(), "Past Period 1: Date Started Smoking");
  EXPECT_EQ(Widget(Smoking(), "comStartPast").accessibleDescription(), "Start Smoking Date for Period");
  EXPECT_TRUE(Widget(Smoking(), "frmDailyPast").accessibleDescription().contains("inbibes"));
}

TEST_F(Windows, ToolTipsAreReplacedAndTakenAway) {
  Control& list = *Smoking().Find("comStartPast");
  EXPECT_EQ(Widget(Smoking(), "comStartPast").toolTip(), "Start Smoking Date for Period");
  for (const char* text : {"another", "a third", "", "a last"}) {
    desktop.Enter([&] { list.SetToolTip(text); });
    EXPECT_EQ(Widget(Smoking(), "comStartPast").toolTip(), text);
  }
}

TEST_F(Windows, NamesFollowTheirLabels) {
  desktop.Enter([&] { Smoking().Get<Label>("lblInterestRatePast").SetCaption("Gain"); });
  EXPECT_EQ(Widget(Smoking(), "comInterestRate1Past").accessibleName(), "Gain");
  desktop.Enter([&] { Smoking().Get<Frame>("frmSetStartPast").SetCaption("Begin"); });
  EXPECT_EQ(Widget(Smoking(), "comStartPast").accessibleName(), "Begin");
  desktop.Enter([&] { program.Spd().Show(); });
  desktop.Enter([&] { program.Spd().SetCaption("Months"); });
  const auto* grid = dynamic_cast<GridWidget*>(Of(program.Spd()).WidgetOf(program.Spd().Rows()));
  ASSERT_NE(grid, nullptr);
  EXPECT_EQ(grid->accessibleName(), "Months");
}

TEST_F(Windows, DescriptionsAreThoseOfTheBalloonsThatAreOn) {
  const QString balloon = Widget(Smoking(), "comInterestRate1Past").accessibleDescription();
  EXPECT_TRUE(balloon.startsWith("Set the Average Rate of Return"));
  SinWorkspace& drinking = Visit(1);
  EXPECT_EQ(Widget(drinking, "comInterestRate1Past").accessibleDescription(), balloon);
  desktop.Enter([&] { drinking.Get<Option>("optToolTipDisable").UserClicks(); });
  // Drinking's option speaks for all sins.
  EXPECT_EQ(Widget(drinking, "comInterestRate1Past").accessibleDescription(), "");
  EXPECT_EQ(Widget(Smoking(), "comInterestRate1Past").accessibleDescription(), "");
  desktop.Enter([&] { drinking.Get<Option>("optToolTipEnable").UserClicks(); });
  EXPECT_EQ(Widget(Smoking(), "comInterestRate1Past").accessibleDescription(), balloon);
}

TEST_F(Windows, ASinComesWhereTheOneBeforeStood) {
  Of(Smoking()).move(70, 50);
  EXPECT_EQ(Of(Visit(4)).pos(), QPoint(70, 50));
}

// As where the program starts with a file of another sin.
TEST_F(Windows, ASinInPlaceOfOneThatIsNotUpYetIsPlacedByTheSystem) {
  EXPECT_FALSE(Of(Visit(4)).testAttribute(Qt::WA_Moved));
}

TEST_F(Windows, TabVisitsEveryReachableControlInReadingOrder) {
  SinWorkspace& ws = Smoking();
  desktop.Enter([&] { ws.Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
  // The visit of a list enables the button again.
  desktop.Enter([&] { ws.Of(Side::Past).cmdSetPeriodParams->SetEnabled(true); });
  Activate(Of(ws));
  // Of a group of options only the one that is on.
  std::vector<std::string> expected;
  for (const auto& control : ws.Controls()) {
    if (!control->TakesFocus() || control->Kind() == ControlKind::TabControl || !control->Reachable())
      continue;
    const auto* choice = dynamic_cast<const Choice*>(control.get());
    if (choice == nullptr || choice->Value()) expected.push_back(control->FullName());
  }
  dynamic_cast<TabPages&>(Widget(ws, "SSTab_PastFutureSwitch")).Bar()->setFocus();
  std::vector<std::string> visited;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    visited.push_back(QApplication::focusWidget()->objectName().toStdString());
  }
  EXPECT_EQ(visited, expected);
}

// ---- The grid ----

// What the table shows as selected, by its own rows and columns.
QItemSelectionRange ShownSelection(const GridWidget& table) {
  const QItemSelection selection = table.selectionModel()->selection();
  return selection.isEmpty() ? QItemSelectionRange() : selection.first();
}

TEST_F(Windows, TheGridShowsTheSelectionOfItsControl) {
  Grid& grid = program.Spd().Rows();
  auto& table = Report<GridWidget>(&SideControls::cmdAdvResultsSpd, grid);
  desktop.Enter([&] { grid.UserSelects(5, 3, 2, 1); });
  const QItemSelectionRange some = ShownSelection(table);
  EXPECT_EQ(std::tuple(some.top(), some.left(), some.bottom(), some.right()), std::tuple(1, 1, 4, 3));
  desktop.Enter([&] { grid.Select(1, 0, 1, 0); });
  desktop.Enter([&] { program.Spd().Get<MenuEntry>("cmdSelectAll").UserClicks(); });
  EXPECT_EQ(ShownSelection(table).height(), grid.RowCount() - 1);
  EXPECT_EQ(ShownSelection(table).width(), grid.ColumnCount());
}

TEST_F(Windows, DraggingOverTheGridSelectsWhatIsShown) {
  Grid& grid = program.Spd().Rows();
  auto& table = Report<GridWidget>(&SideControls::cmdAdvResultsSpd, grid);
  const auto centre = [&](int row, int column) {
    return table.visualRect(table.model()->index(row - 1, column)).center();
  };
  for (const auto& [from, to] : {std::pair(2, 6), std::pair(10, 5)}) {
    QTest::mousePress(table.viewport(), Qt::LeftButton, Qt::NoModifier, centre(from, 1));
    // Cell by cell, the button held down.
    for (int row = from; row != to;) {
      row += to > from ? 1 : -1;
      QMouseEvent move(QEvent::MouseMove, centre(row, 3), table.viewport()->mapToGlobal(centre(row, 3)),
                       Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
      QApplication::sendEvent(table.viewport(), &move);
    }
    QTest::mouseRelease(table.viewport(), Qt::LeftButton, Qt::NoModifier, centre(to, 3));
    QApplication::processEvents();
    EXPECT_EQ(std::tuple(grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()), std::tuple(from, 1, to, 3));
    EXPECT_EQ(ShownSelection(table).top(), std::min(from, to) - 1);
    EXPECT_EQ(ShownSelection(table).bottom(), std::max(from, to) - 1);
  }
}

// The menu's entries mean what is selected: a right click on the way to it moves nothing, wherever it falls
// and however the hand shakes.
TEST_F(Windows, ARightClickInTheGridMovesNothing) {
  Grid& grid = program.Spd().Rows();
  auto& table = Report<GridWidget>(&SideControls::cmdAdvResultsSpd, grid);
  const auto centre = [&](int row, int column) {
    return table.visualRect(table.model()->index(row - 1, column)).center();
  };
  desktop.Enter([&] { grid.UserSelects(2, 1, 4, 2); });
  const QModelIndex current = table.currentIndex();
  const auto expectUnmoved = [&](const char* after) {
    QApplication::processEvents();
    EXPECT_EQ(std::tuple(grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()), std::tuple(2, 1, 4, 2))
        << after;
    EXPECT_EQ(ShownSelection(table).top(), 1) << after;
    EXPECT_EQ(ShownSelection(table).height(), 3) << after;
    EXPECT_EQ(table.currentIndex(), current) << after;
  };
  QTest::mouseClick(table.viewport(), Qt::RightButton, Qt::NoModifier, centre(8, 3));
  expectUnmoved("a click");
  QTest::mouseClick(table.viewport(), Qt::RightButton, Qt::ShiftModifier, centre(8, 3));
  expectUnmoved("a click with shift");
  QTest::mouseDClick(table.viewport(), Qt::RightButton, Qt::NoModifier, centre(7, 3));
  expectUnmoved("a double click");
  QTest::mousePress(table.viewport(), Qt::RightButton, Qt::NoModifier, centre(6, 1));
  QMouseEvent move(QEvent::MouseMove, centre(9, 4), table.viewport()->mapToGlobal(centre(9, 4)), Qt::NoButton,
                   Qt::RightButton, Qt::NoModifier);
  QApplication::sendEvent(table.viewport(), &move);
  QTest::mouseRelease(table.viewport(), Qt::RightButton, Qt::NoModifier, centre(9, 4));
  expectUnmoved("a drag");

  // As a report leaves it, Select All takes the whole table, whatever was under the pointer.
  desktop.Enter([&] { grid.Select(1, 0, 1, 0); });
  QTest::mouseClick(table.viewport(), Qt::RightButton, Qt::NoModifier, centre(8, 3));
  QApplication::processEvents();
  desktop.Enter([&] { program.Spd().Get<MenuEntry>("cmdSelectAll").UserClicks(); });
  EXPECT_EQ(ShownSelection(table).height(), grid.RowCount() - 1);
}

TEST_F(Windows, ShiftedReturnEndsALineAsReturnDoes) {
  DocumentText& text = program.Doc().Text();
  auto& edit = Report<DocumentEdit>(&SideControls::cmdAdvResultsDoc, text);
  edit.selectAll();
  QTest::keyClicks(&edit, "ab");
  QTest::keyClick(&edit, Qt::Key_Return, Qt::ShiftModifier);
  QTest::keyClicks(&edit, "cdefgh");
  QTest::keyClick(&edit, Qt::Key_Left, Qt::ShiftModifier);
  QTest::keyClick(&edit, Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(text.Text(), "ab\r\ncdefgh");
  EXPECT_EQ(text.SelText(), "gh");
}

TEST_F(Windows, AMaximisedWorkspaceIsShownLargerAndInItsProportions) {
  SinWorkspace& smoking = Smoking();
  FormWindow& window = Of(smoking);
  Open(smoking, kFutureTab);  // the euro button goes
  const Place row = smoking.cmdSwitchSins->GetPlace();
  window.showMaximized();
  QTest::qWait(200);  // sizes are taken when they have settled
  for (const int sin : {1, 0}) {
    Visit(sin);
    QTest::qWait(200);
  }
  ASSERT_TRUE(window.isMaximized());
  // The form keeps its twips, and what it places by them.
  EXPECT_EQ(QSize(smoking.Width(), smoking.Height()), QSize(12000, 10500));
  EXPECT_EQ(smoking.cmdSwitchSins->GetPlace().top, row.top);
  const QWidget& sheet = window.GetSheet();
  const double across = sheet.width() / 12000.0, down = sheet.height() / 10500.0;
  EXPECT_NEAR(across, down, 0.001);
  EXPECT_TRUE(sheet.width() == window.width() || sheet.height() == window.height());
  // As much ground on the left as on the right, above as below.
  const QRect place(sheet.mapTo(&window, QPoint(0, 0)), sheet.size());
  EXPECT_NEAR(place.center().x(), window.rect().center().x(), 1);
  EXPECT_NEAR(place.center().y(), window.rect().center().y(), 1);
  // However often a press of the set button makes the window lower.
  for (int press = 0; press < 3; ++press) {
    Open(smoking, kPastTab);
    desktop.Enter([&] { smoking.Find("comInterestRate1Past")->UserFocuses(); });
    desktop.Enter([&] { smoking.Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
    EXPECT_EQ(smoking.Height(), 10500);
  }
  window.showNormal();
  QTRY_COMPARE_WITH_TIMEOUT(window.size(), QSize(800, 700), 2000);
}

TEST_F(Windows, AShownWindowComesToTheFrontWhenItIsAskedForAgain) {
  desktop.Enter([&] { program.At(0).Get<Button>("cmdCombinedResults").UserClicks(); });
  FormWindow& window = desktop.WindowOf(program.Combined());
  window.showMinimized();
  desktop.Enter([&] { program.At(0).Get<Button>("cmdCombinedResults").UserClicks(); });
  EXPECT_FALSE(window.isMinimized());
}

// ---- Printing ----

TEST(Printing, ReachesAFileThatCanBeReadBack) {
  const QTemporaryDir room;
  const QString file = room.filePath("report.pdf");
  PrintJob print;
  print.Printer().setOutputFormat(QPrinter::PdfFormat);
  print.Printer().setOutputFileName(file);
  EXPECT_TRUE(
      print.Print("1 \tJun - 2016\t\x80"
                  "153\r2 \tJul - 2016\t\x80"
                  "308"));
  EXPECT_TRUE(print.Close());
  QProcess reader;
  reader.start("pdftotext", {"-layout", file, "-"});
  ASSERT_TRUE(reader.waitForFinished());
  const QString text = QString::fromUtf8(reader.readAllStandardOutput());
  EXPECT_TRUE(text.contains(
      QRegularExpression(QStringLiteral("1 +Jun - 2016 +\u20ac153\\n2 +Jul - 2016 +\u20ac308"))))
      << text.toStdString();
}

// 200 rows fill several pages: every one arrives, in order, on more than one page.
TEST(Printing, ALongReportRunsOverSeveralPages) {
  const QTemporaryDir room;
  const QString file = room.filePath("report.pdf");
  std::string text;
  for (int i = 1; i <= 200; ++i) text += "row " + std::to_string(i) + "\r\n";
  {
    PrintJob print;
    print.Printer().setOutputFormat(QPrinter::PdfFormat);
    print.Printer().setOutputFileName(file);
    EXPECT_TRUE(print.Print(text));
  }  // the open page comes out when the print goes
  QProcess reader;
  reader.start("pdftotext", {"-layout", file, "-"});
  ASSERT_TRUE(reader.waitForFinished());
  const QString printed = QString::fromUtf8(reader.readAllStandardOutput());
  EXPECT_GT(printed.count(u'\f'), 1);
  QStringList rows = printed.split(QRegularExpression(QStringLiteral("[\n\f]+")), Qt::SkipEmptyParts);
  ASSERT_EQ(rows.size(), 200);
  EXPECT_EQ(rows.first(), "row 1");
  EXPECT_EQ(rows.last(), "row 200");
}

QString PagesOf(PrintJob& print, const QString& file, const std::string& text, const char* program) {
  print.Printer().setOutputFormat(QPrinter::PdfFormat);
  print.Printer().setOutputFileName(file);
  EXPECT_TRUE(print.Print(text));
  EXPECT_TRUE(print.Close());
  QProcess reader;
  QStringList arguments = {file};
  if (qstrcmp(program, "words") == 0) {
    program = "pdftotext";
    arguments = {QStringLiteral("-bbox"), file, QStringLiteral("-")};
  } else if (qstrcmp(program, "pdftotext") == 0)
    arguments = {QStringLiteral("-layout"), file, QStringLiteral("-")};
  reader.start(program, arguments);
  EXPECT_TRUE(reader.waitForFinished());
  return QString::fromUtf8(reader.readAllStandardOutput());
}

TEST(Printing, SuggestsAPageOnItsSideForATableThatIsTooWideUpright) {
  const PrintJob print;
  EXPECT_EQ(print.SuggestedOrientation("one\ttwo\r\nthree\tfour"), QPageLayout::Portrait);
  const std::string wide(60, 'W');
  EXPECT_EQ(print.SuggestedOrientation(wide + "\t" + wide), QPageLayout::Landscape);
  // Words wrap, and the blanks that pad a cell are not printed.
  EXPECT_EQ(print.SuggestedOrientation(wide + " " + wide + " " + wide), QPageLayout::Portrait);
  EXPECT_EQ(print.SuggestedOrientation("one" + std::string(300, ' ') + "\ttwo"), QPageLayout::Portrait);
}

TEST(Printing, KeepsTheOrientationThatThePrinterHas) {
  const QTemporaryDir room;
  const std::string wide = std::string(60, 'W') + "\t" + std::string(60, 'W');
  PrintJob upright;
  upright.Printer().setPageOrientation(QPageLayout::Portrait);
  PagesOf(upright, room.filePath("report.pdf"), wide, "pdfinfo");
  EXPECT_EQ(upright.Printer().pageLayout().orientation(), QPageLayout::Portrait);
}

TEST(Printing, PrintsADocumentInItsOwnFont) {
  const QTemporaryDir room;
  PrintJob plain, document(PrintStyle::Document);
  const QString plainFonts = PagesOf(plain, room.filePath("plain.pdf"), "Past Period 1", "pdffonts");
  const QString documentFonts = PagesOf(document, room.filePath("document.pdf"), "Past Period 1", "pdffonts");
  EXPECT_TRUE(documentFonts.contains("Identity-H")) << documentFonts.toStdString();
  EXPECT_NE(documentFonts, plainFonts);
  EXPECT_EQ(PrintedDocumentFont().pointSizeF(), 8.5);
}

// Where a word begins on its page, in points.
double LeftOf(const QString& words, const char* word) {
  const QRegularExpression place(
      QStringLiteral("xMin=\"([0-9.]+)\"[^>]*>%1<").arg(QRegularExpression::escape(QLatin1String(word))));
  return place.match(words).captured(1).toDouble();
}

// The heading stands over its figures: each in the column of its cell.
TEST(Printing, SetsEachCellInTheColumnOfItsHeading) {
  const QTemporaryDir room;
  PrintJob print(PrintStyle::Document);
  const QString words = PagesOf(print, room.filePath("report.pdf"),
                                "Index\tEval.           \tSmoking Cost:      \r\n"
                                "1 \tJun - 2016 \t$153.37        \r\n",
                                "words");
  EXPECT_GT(LeftOf(words, "Jun"), 0) << words.toStdString();
  EXPECT_NEAR(LeftOf(words, "Eval."), LeftOf(words, "Jun"), 0.5);
  EXPECT_NEAR(LeftOf(words, "Smoking"), LeftOf(words, "$153.37"), 0.5);
}

// Columns are as wide as their cells: many narrow ones fit an upright page.
TEST(Printing, SetsNarrowColumnsCloseTogether) {
  const QTemporaryDir room;
  PrintJob print(PrintStyle::Document);
  std::string text;
  for (int i = 10; i < 30; ++i) text += std::to_string(i) + "\t";
  EXPECT_EQ(print.SuggestedOrientation(text), QPageLayout::Portrait);
  const QString printed = PagesOf(print, room.filePath("report.pdf"), text, "pdftotext");
  EXPECT_TRUE(printed.split(u'\n')[0].contains("29")) << printed.toStdString();
}

// What Qt's own dialogs remember is not kept either.
TEST(Dialogs, LeaveNoHistoryBehind) {
  const QtPlatform platform;
  const QTemporaryDir visited;
  {
    QFileDialog dialog;
    dialog.setDirectory(visited.path());
    dialog.setHistory({visited.path()});
  }
  EXPECT_EQ(QSettings(QSettings::UserScope, QStringLiteral("QtProject")).status(), QSettings::NoError);
  const QDir settings(qEnvironmentVariable("XDG_CONFIG_HOME"));
  EXPECT_TRUE(settings.entryList(QDir::Files | QDir::Hidden).isEmpty())
      << settings.entryList(QDir::Files | QDir::Hidden).join(u' ').toStdString();
}

TEST(Dialogs, OfFilesShowSizesKindsAndDatesInFull) {
  int asked = 0;
  WhenUp<QFileDialog>([&](QFileDialog& dialog) {
    const QHeaderView& columns = *dialog.findChild<QTreeView*>()->header();
    for (const int column : {1, 2, 3}) {
      EXPECT_EQ(columns.sectionResizeMode(column), QHeaderView::ResizeToContents);
      asked += columns.sectionSize(column);
    }
    EXPECT_GT(dialog.width(), asked + 200);  // names, and the places beside them
    dialog.reject();
  });
  EXPECT_EQ(QtPlatform().AskSavePath({}), std::nullopt);
  EXPECT_GT(asked, 0);
}

// Without one the run would end.
TEST(Dialogs, OfAFirstSaveSayThatANameIsNeeded) {
  QString title;
  WhenUp<QFileDialog>([&](QFileDialog& dialog) {
    title = dialog.windowTitle();
    dialog.reject();
  });
  EXPECT_EQ(QtPlatform().AskFirstSavePath(), std::nullopt);
  EXPECT_TRUE(title.contains("a file name is needed")) << title.toStdString();
}

// What is chosen as PDF is PDF, also under a name with a point in it.
TEST(Dialogs, OfExportsAddTheSuffixOfTheKind) {
  const QTemporaryDir room;
  const std::pair<const char*, const char*> names[] = {
      {"report", "report.pdf"}, {"report 2.0", "report 2.0.pdf"}, {"table.CSV", "table.CSV"}};
  for (const auto& [typed, wanted] : names) {
    WhenUp<QFileDialog>([&](QFileDialog& dialog) {
      for (const QString& kind : dialog.nameFilters())
        if (kind.contains("*.pdf")) dialog.selectNameFilter(kind), emit dialog.filterSelected(kind);
      dialog.findChild<QLineEdit*>("fileNameEdit")->setText(room.filePath(typed));
      QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_EQ(QtPlatform().AskExportPath({}), room.filePath(wanted).toStdString());
  }
}

// A suffix that is left out is known; but a file without one can be opened too.
TEST(Dialogs, ThatOpenEntriesTakeAFileByTheNameThatItHas) {
  const QTemporaryDir room;
  for (const char* name : {"plain", "with.vicetoll"}) {
    QFile file(room.filePath(QLatin1String(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }
  const auto opened = [&](const char* typed) {
    WhenUp<QFileDialog>([&](QFileDialog& dialog) {
      dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))
          ->setText(room.filePath(QLatin1String(typed)));
      QMetaObject::invokeMethod(&dialog, "accept");
    });
    return QtPlatform().AskEntriesPath(FilePurpose::OpenEntries, {}).value_or("none");
  };
  const auto path = [&](const char* name) { return room.filePath(QLatin1String(name)).toStdString(); };
  EXPECT_EQ(opened("plain"), path("plain"));
  EXPECT_EQ(opened("with"), path("with.vicetoll"));
  EXPECT_EQ(opened("with.vicetoll"), path("with.vicetoll"));
}

TEST(Dialogs, OfPrintsOfferTheSelectionWhereThereIsOneAndNoPageNumbers) {
  int dialogs = 0;
  for (const bool selection : {true, false}) {
    WhenUp<QPrintDialog>([&](QPrintDialog& dialog) {
      ++dialogs;
      const auto option = [&](const char* name) {
        return dialog.findChild<QRadioButton*>(QLatin1String(name));
      };
      EXPECT_EQ(option("printSelection")->isChecked(), selection);
      EXPECT_EQ(option("printSelection")->isHidden(), !selection);
      EXPECT_EQ(option("printAll")->isChecked(), !selection);
      for (const char* name : {"printRange", "from", "to", "pagesRadioButton", "pagesLineEdit"}) {
        const auto* widget = dialog.findChild<QWidget*>(QLatin1String(name));
        EXPECT_TRUE(widget == nullptr || widget->isHidden()) << name;
      }
      dialog.reject();
    });
    // It prints all the same, with nowhere to print to.
    WhenUp<QMessageBox>([](QMessageBox& box) { box.accept(); });
    QtPlatform().Print("report", selection);
  }
  EXPECT_EQ(dialogs, 2);
}

TEST(Printing, WithoutAPrinterAndAFileGoesNowhereAndSaysSo) {
  PrintJob print;
  print.Printer().setOutputFormat(QPrinter::PdfFormat);
  EXPECT_FALSE(print.Print("text"));
}

}  // namespace
}  // namespace vicetoll

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Dialogs keep settings of their own.
  const QTemporaryDir settings;
  qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
  testing::InitGoogleTest(&argc, argv);
  vicetoll::FilterToolkitMessages();
  vicetoll::GuardedApplication application(argc, argv);
  vicetoll::ApplyLook(application);
  application.setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
