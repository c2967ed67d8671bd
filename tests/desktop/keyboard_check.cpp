// SPDX-License-Identifier: GPL-3.0-or-later
// The windows by keyboard alone.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAction>
#include <QMenu>
#include <QScrollBar>
#include <QTextBlock>
#include <QTimer>
#include <QWheelEvent>
#include <map>
#include <set>

#include "desktop/document_view.h"
#include "desktop/grid_view.h"
#include "desktop/widgets.h"
#include "windows_fixture.h"

namespace vicetoll {
namespace {

class Keyboard : public Windows {
 protected:
  Keyboard() { Activate(Of(Smoking())); }

  static QString Focus() {
    return QApplication::focusWidget() == nullptr ? QString() : QApplication::focusWidget()->objectName();
  }
  void FocusOn(Form& form, const char* name) { Widget(form, name).setFocus(Qt::TabFocusReason); }
  // A key for whatever has the focus.
  static void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget* const focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : QApplication::activeWindow(), key, modifiers);
  }
  static void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), text); }
  template <class C>
  C& Get(Form& form, const char* name) {
    return dynamic_cast<C&>(*form.Find(name));
  }
};

// ---- Groups ----

TEST_F(Keyboard, ArrowsChooseInAGroupOfOptions) {
  SideControls& past = Smoking().Of(Side::Past);
  int clicks = 0;
  past.OptCigPercentCostIncrease->onClick = [&clicks] { ++clicks; };
  FocusOn(Smoking(), "OptCigPercentCostIncreasePast");
  Press(Qt::Key_Down);
  EXPECT_EQ(Focus().toStdString(), "OptCigInitialFinalCostIncreasePast");
  EXPECT_TRUE(past.OptCigInitialFinalCostIncrease->Value());
  EXPECT_TRUE(past.comFinalCost->Visible());
  Press(Qt::Key_Right);  // round to the first
  EXPECT_TRUE(past.OptCigPercentCostIncrease->Value());
  EXPECT_EQ(clicks, 1);
  // Of the periods only the first is offered.
  FocusOn(Smoking(), "optTimePeriodPast(1)");
  Press(Qt::Key_Up);
  EXPECT_EQ(Focus().toStdString(), "optTimePeriodPast(1)");
}

TEST_F(Keyboard, AnArrowStepsToTheNextPeriod) {
  FocusOn(Smoking(), "comStopPast");
  Press(Qt::Key_Home);
  FocusOn(Smoking(), "cmdSetPeriodParamsPast");
  Press(Qt::Key_Return);
  ASSERT_TRUE(Smoking().Of(Side::Past).Record(1).PeriodSet);
  FocusOn(Smoking(), "optTimePeriodPast(1)");
  Press(Qt::Key_Down);
  EXPECT_EQ(Smoking().Of(Side::Past).state.CurrentPeriod, 2);
}

TEST_F(Keyboard, AGroupIsOneTabStop) {
  FocusOn(Smoking(), "comStartPast");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus().toStdString(), "optCourseDateStartPast");
  Press(Qt::Key_Left);
  EXPECT_EQ(Focus().toStdString(), "optFineDateStartPast");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus().toStdString(), "comStopPast");
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focus().toStdString(), "optFineDateStartPast");
}

// In the order of reading, also what was added beside: the button that closes a window stands last.
TEST_F(Keyboard, TabPassesTheButtonsOfAWindowFromLeftToRight) {
  Report<QWidget>(&SideControls::cmdAdvResultsSpd, program.Spd().Rows());
  desktop.Enter([&] { program.Current().Get<Button>("cmdCombinedResults").UserClicks(); });
  desktop.Enter([&] { program.Current().Get<Button>("cmdHelp").UserClicks(); });
  desktop.Enter([&] { program.Current().Get<Button>("cmdGrowthChart").UserClicks(); });
  for (Form* form : {static_cast<Form*>(&program.Spd()), static_cast<Form*>(&program.Combined()),
                     static_cast<Form*>(&program.Info()), static_cast<Form*>(&program.Growth())}) {
    FormWindow& window = Of(*form);
    int passed = 0, right = 0;
    for (QWidget* next = window.nextInFocusChain(); next != &window; next = next->nextInFocusChain()) {
      if (qobject_cast<QPushButton*>(next) == nullptr || !next->isVisible()) continue;
      const int left = next->mapTo(&window, QPoint()).x();
      EXPECT_GE(left, right) << form->Name() << " " << next->objectName().toStdString();
      right = left + next->width();
      ++passed;
    }
    EXPECT_GT(passed, 1) << form->Name();
  }
}

TEST_F(Keyboard, TheTableIsWalkedByArrows) {
  desktop.Enter([&] { Smoking().Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
  desktop.Enter([&] { Smoking().Get<Button>("cmdCombinedResults").UserClicks(); });
  CombinedResults& table = program.Combined();
  Activate(Of(table));
  EXPECT_EQ(Focus().toStdString(), "chkWhichSins(0)");
  Press(Qt::Key_Right);
  Press(Qt::Key_Right);
  Press(Qt::Key_Down);
  EXPECT_EQ(Focus().toStdString(), "txtCumPastSins(1)");
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus().toStdString(), "comDataRep");
  Press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focus().toStdString(), "txtCumPastSins(1)");
  // A row that is taken out is passed over; the totals come last.
  desktop.Enter([&] { Get<CheckBox>(table, "chkWhichSins(2)").UserClicks(); });
  Press(Qt::Key_Down);
  EXPECT_EQ(Focus().toStdString(), "txtCumPastSins(3)");
  for (int i = 0; i < 20; ++i) Press(Qt::Key_Down);
  EXPECT_EQ(Focus().toStdString(), "txtCumPastSinsTotal");
  // So few stops has the whole window.
  std::set<QString> stops;
  for (int i = 0; i < 20; ++i) {
    stops.insert(Focus());
    Press(Qt::Key_Tab);
  }
  EXPECT_EQ(stops.size(), 6u);  // the table, the list and four buttons, Export the last
}

// ---- Enter, Escape, and the keys of a window ----

TEST_F(Keyboard, EnterPressesButtonsTicksAndTheChoosersOptions) {
  FocusOn(Smoking(), "cmdSwitchSins");
  Press(Qt::Key_Return);
  Activate(Of(program.Chooser()));
  EXPECT_EQ(Focus().toStdString(), "OptSwitchSins(0)");
  Press(Qt::Key_Down);
  EXPECT_TRUE(program.Chooser().Shown());  // an arrow only goes there
  EXPECT_EQ(Focus().toStdString(), "OptSwitchSins(1)");
  Press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_FALSE(program.Chooser().Shown());
  EXPECT_TRUE(program.At(1).Shown());
  Activate(Of(program.At(1)));
  FocusOn(program.At(1), "cmdCombinedResults");
  Press(Qt::Key_Return);
  Activate(Of(program.Combined()));
  Press(Qt::Key_Return);
  EXPECT_FALSE(Get<CheckBox>(program.Combined(), "chkWhichSins(0)").Value());
  // On an option that arrows choose Enter does nothing.
  Activate(Of(program.At(1)));
  FocusOn(program.At(1), "optFineDateStartPast");
  Press(Qt::Key_Return);
  EXPECT_FALSE(Get<Option>(program.At(1), "optFineDateStartPast").Value());
}

TEST_F(Keyboard, EscapeClosesEveryWindowButAWorkspace) {
  SideControls& past = Smoking().Of(Side::Past);
  desktop.Enter([&] { past.cmdSetPeriodParams->UserClicks(); });
  desktop.Enter([&] { past.cmdAdvResultsSpd->UserClicks(); });
  desktop.Enter([&] { past.cmdAdvResultsDoc->UserClicks(); });
  desktop.Enter([&] { Smoking().cmdSwitchSins->UserClicks(); });
  for (const char* name : {"frmSwitchSins", "frmCombRes", "frmInfo", "frmAdvResultsSpd", "frmAdvResultsDoc",
                           "frmGrowth", "frmSinsChart"}) {
    Form& form = *program.Window(name);
    desktop.Enter([&] { form.Show(); });
    Activate(Of(form));
    Press(Qt::Key_Escape);
    EXPECT_FALSE(form.Shown()) << name;
  }
  // By their Exit, not merely out of sight.
  EXPECT_TRUE(past.cmdAdvResultsSpd->Enabled());
  EXPECT_TRUE(past.cmdAdvResultsDoc->Enabled());
  EXPECT_TRUE(Smoking().cmdSwitchSins->Enabled());
  Activate(Of(Smoking()));
  Press(Qt::Key_Escape);
  EXPECT_TRUE(Smoking().Shown());
  EXPECT_FALSE(program.Ended());
}

TEST_F(Keyboard, SomeKeysMeanTheSameInEveryWindow) {
  Press(Qt::Key_F1);
  EXPECT_TRUE(program.Info().Shown());
  desktop.Enter([&] { program.Info().Hide(); });
  desktop.Enter([&] { program.Combined().Show(); });
  Activate(Of(program.Combined()));
  Press(Qt::Key_F1);
  EXPECT_TRUE(program.Info().Shown());
  Activate(Of(program.Info()));
  Press(Qt::Key_Q, Qt::ControlModifier);
  EXPECT_TRUE(program.Ended());
}

TEST_F(Keyboard, KeysTurnTheTabs) {
  TabControl& tabs = *Smoking().SSTab_PastFutureSwitch;
  FocusOn(Smoking(), "comInterestRate1Past");
  Press(Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(tabs.Tab(), kFutureTab);
  // What had the focus is gone: the tabs have it, and no list was entered.
  EXPECT_EQ(QApplication::focusWidget(),
            dynamic_cast<TabPages&>(Widget(Smoking(), "SSTab_PastFutureSwitch")).Bar());
  Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs.Tab(), kTotalTab);
  Press(Qt::Key_Tab, Qt::ControlModifier);
  EXPECT_EQ(tabs.Tab(), kPastTab);
  Press(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(tabs.Tab(), kTotalTab);
  Press(Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(tabs.Tab(), kFutureTab);
}

TEST_F(Keyboard, KeysWorkTheReports) {
  Report<GridWidget>(&SideControls::cmdAdvResultsSpd, program.Spd().Rows());
  Activate(Of(program.Spd()));
  EXPECT_EQ(Focus().toStdString(), "fgdAdvResultsSpd");
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(program.Spd().Rows().RowSel(), program.Spd().Rows().RowCount() - 1);
  Press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(platform.Clipboard().starts_with("1 \t"));
  int printed = 0, saved = 0;
  for (const char* name : {"frmAdvResultsSpd", "frmAdvResultsDoc"}) {
    Form& report = *program.Window(name);
    report.Get<Button>("cmdPrint").onClick = [&printed] { ++printed; };
    report.Get<Button>("cmdSaveAs").onClick = [&saved] { ++saved; };
    desktop.Enter([&] { report.Show(); });
    Activate(Of(report));
    Press(Qt::Key_P, Qt::ControlModifier);
    Press(Qt::Key_S, Qt::ControlModifier);
  }
  EXPECT_EQ(printed, 2);
  EXPECT_EQ(saved, 2);
}

TEST_F(Keyboard, TheMenuOpensAtTheCurrentCell) {
  auto& table = Report<GridWidget>(&SideControls::cmdAdvResultsSpd, program.Spd().Rows());
  Activate(Of(program.Spd()));
  desktop.Enter([&] { program.Spd().Rows().UserSelects(4, 2, 4, 2); });
  QPoint place;
  QString first;
  QTimer::singleShot(50, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    place = menu->pos();
    if (menu->activeAction() != nullptr) first = menu->activeAction()->text();
    menu->close();
  });
  Press(Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(first, "Select All");
  EXPECT_EQ(place, table.viewport()->mapToGlobal(table.visualRect(table.currentIndex()).bottomLeft()));
}

// ---- Where the focus goes ----

TEST_F(Keyboard, AnAccessKeyBringsTheFocus) {
  FocusOn(Smoking(), "comInterestRate1Past");
  Press(Qt::Key_M, Qt::AltModifier);
  QTRY_VERIFY_WITH_TIMEOUT(Smoking().Of(Side::Past).Record(1).PeriodSet, 2000);  // when it has sprung back
  EXPECT_FALSE(Smoking().Of(Side::Past).cmdSetPeriodParams->Enabled());
  EXPECT_NE(Focus(), "comInterestRate1Past");
  // So a change in that list, which begins with going there, opens the button again.
  FocusOn(Smoking(), "comInterestRate1Past");
  EXPECT_TRUE(Smoking().Of(Side::Past).cmdSetPeriodParams->Enabled());
}

TEST_F(Keyboard, TheKeyOfATabBringsTheFocusAlsoInFront) {
  const QWidget* bar = dynamic_cast<TabPages&>(Widget(Smoking(), "SSTab_PastFutureSwitch")).Bar();
  for (const auto& [key, tab] : {std::pair(Qt::Key_P, kPastTab), std::pair(Qt::Key_T, kTotalTab)}) {
    FocusOn(Smoking(), "cmdSwitchSins");
    Press(key, Qt::AltModifier);
    EXPECT_EQ(Smoking().SSTab_PastFutureSwitch->Tab(), tab);
    EXPECT_EQ(QApplication::focusWidget(), bar) << tab;
  }
}

TEST_F(Keyboard, APressThatClosesItsButtonHandsTheFocusToTheNext) {
  FocusOn(Smoking(), "cmdSetPeriodParamsPast");
  Press(Qt::Key_Space);
  EXPECT_EQ(Focus().toStdString(), "rbnEnabledPeriodPast(1)");
  FocusOn(Smoking(), "cmdAdvResultsSpdPast");
  Press(Qt::Key_Space);
  Activate(Of(program.Spd()));
  EXPECT_EQ(Focus().toStdString(), "fgdAdvResultsSpd");
  Press(Qt::Key_Escape);
  // The button is open again.
  Activate(Of(Smoking()));
  EXPECT_EQ(Focus().toStdString(), "cmdAdvResultsSpdPast");
  // A report that is opened again begins in its rows, wherever one was before.
  FocusOn(Smoking(), "cmdAdvResultsSpdPast");
  Press(Qt::Key_Space);
  Activate(Of(program.Spd()));
  FocusOn(program.Spd(), "cmdExit");
  Press(Qt::Key_Space);
  Activate(Of(Smoking()));
  Press(Qt::Key_Space);
  Activate(Of(program.Spd()));
  EXPECT_EQ(Focus().toStdString(), "fgdAdvResultsSpd");
}

// Buttons that are in front together have different letters, all have one, and a button has the same one in
// every sin.
TEST_F(Keyboard, LettersAreTheSameInAllSins) {
  std::map<std::string, QChar> letterOf;
  for (int sin = 0; sin < kSinCount; ++sin) {
    SinWorkspace& ws = sin == 0 ? Smoking() : Visit(sin);
    for (const int tab : {kPastTab, kFutureTab, kTotalTab}) {
      Open(ws, tab);
      std::set<QChar> letters = {u'P', u'U', u'T'};  // of the tabs
      for (const auto& control : ws.Controls()) {
        const std::string name = control->FullName();
        if (control->Kind() != ControlKind::Button || !control->Visible() || name == "cmdRevealDeveloper")
          continue;
        const bool inFront = control->Container() == nullptr || Widget(ws, name.c_str()).isVisible();
        if (!inFront) continue;
        const QString text = QString(dynamic_cast<QAbstractButton&>(Widget(ws, name.c_str())).text())
                                 .remove(QStringLiteral("&&"));
        const qsizetype at = text.indexOf(u'&');
        ASSERT_NE(at, -1) << ws.Name() << " " << name;
        const QChar letter = text[at + 1].toUpper();
        EXPECT_TRUE(letters.insert(letter).second) << ws.Name() << " " << name << " " << text.toStdString();
        EXPECT_EQ(letterOf.try_emplace(name, letter).first->second, letter) << ws.Name() << " " << name;
      }
    }
  }
}

// ---- Lists ----

TEST_F(Keyboard, TypingInAListFinds) {
  SideControls& past = Smoking().Of(Side::Past);
  FocusOn(Smoking(), "comStartPast");
  Type("2005");
  EXPECT_TRUE(past.comStart->Text().ends_with(" - 2005")) << past.comStart->Text();
  FocusOn(Smoking(), "comInitialCostPast");
  Type("7.5");
  EXPECT_EQ(past.comInitialCost->Text(), "$7.50");
  // A blank behind letters that no entry has does not open the list: it goes on in the text.
  FocusOn(Smoking(), "comStopPast");
  Type("xyz 2025");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
  EXPECT_TRUE(past.comStop->Text().ends_with(" - 2025")) << past.comStop->Text();
  Open(Smoking(), kFutureTab);
  FocusOn(Smoking(), "optFineDateStopFut");
  SideControls& future = Smoking().Of(Side::Future);
  FocusOn(Smoking(), "comStopFut");
  const std::string later = future.comStop->EntryOrLast(4);  // "Feb - 2004"
  Type((later.substr(0, 3) + " " + later.substr(6)).c_str());
  EXPECT_EQ(future.comStop->Text(), later);
}

TEST_F(Keyboard, TypingFindsInTheOpenListToo) {
  auto& list = dynamic_cast<BlueList&>(Widget(Smoking(), "comInitialCostPast"));
  FocusOn(Smoking(), "comInitialCostPast");
  list.showPopup();
  QApplication::processEvents();
  QTest::keyClicks(list.view(), "7.5");
  EXPECT_NE(Smoking().Of(Side::Past).comInitialCost->Text(), "$7.50");
  QTest::keyClick(list.view(), Qt::Key_Return);
  EXPECT_EQ(Smoking().Of(Side::Past).comInitialCost->Text(), "$7.50");
}

TEST_F(Keyboard, TheWheelTurnsNeitherTabsNorAListWithoutTheFocus) {
  auto& list = dynamic_cast<BlueList&>(Widget(Smoking(), "comInterestRate1Past"));
  QTabBar* bar = dynamic_cast<TabPages&>(Widget(Smoking(), "SSTab_PastFutureSwitch")).Bar();
  FocusOn(Smoking(), "cmdHelp");
  for (QWidget* widget : {static_cast<QWidget*>(&list), static_cast<QWidget*>(bar)}) {
    const QPointF middle = QRectF(widget->rect()).center();
    QWheelEvent notch(middle, widget->mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &notch);
  }
  EXPECT_EQ(Smoking().SSTab_PastFutureSwitch->Tab(), kPastTab);
  EXPECT_TRUE(Smoking().cmdEuro->Visible());
  EXPECT_EQ(Smoking().Of(Side::Past).comInterestRate1->Text(), "5%");
}

// ---- The document ----

TEST_F(Keyboard, CutAndPasteAreUndoneLikeTyping) {
  DocumentText& text = program.Doc().Text();
  auto& edit = Report<DocumentEdit>(&SideControls::cmdAdvResultsDoc, text);
  Activate(Of(program.Doc()));
  const std::string before = text.Text();
  QTextCursor cursor(edit.document()->findBlockByNumber(edit.document()->blockCount() - 4));
  cursor.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor);
  edit.setTextCursor(cursor);
  const int scrolled = edit.verticalScrollBar()->value();
  ASSERT_GT(scrolled, 20);
  ASSERT_GT(text.SelLength(), 0);
  const std::string selected(text.SelText());
  const auto place = text.SelStart();
  Press(Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(text.Text().size(), before.size() - selected.size());
  EXPECT_NEAR(edit.verticalScrollBar()->value(), scrolled, 2);
  EXPECT_EQ(text.SelStart(), place);
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(text.Text(), before);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(text.Text().size(), before.size() - selected.size());
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(text.Text(), before);
  // A new report is no change to the old one.
  desktop.Enter([&] { program.Doc().Get<Option>("Opt_Doc").UserClicks(); });
  const std::string words = text.Text();
  ASSERT_NE(words, before);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(text.Text(), words);
}

}  // namespace
}  // namespace vicetoll
