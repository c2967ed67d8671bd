// SPDX-License-Identifier: GPL-3.0-or-later
// The windows for those who listen: what Qt's accessibility interface says of them.
#include <QAccessible>
#include <QFileDialog>
#include <QPrintPreviewDialog>
#include <QTabBar>
#include <QToolButton>
#include <set>

#include "desktop/accessible.h"
#include "desktop/qt_platform.h"
#include "desktop/text.h"
#include "desktop/when_up.h"
#include "desktop/widgets.h"
#include "windows_fixture.h"

namespace vicetoll {
namespace {

class Accessible : public Windows {
 protected:
  QAccessibleInterface& Node(Form& form, const char* name) {
    return *QAccessible::queryAccessibleInterface(&Widget(form, name));
  }
  std::string Named(Form& form, const char* name) {
    return Node(form, name).text(QAccessible::Name).toStdString();
  }

  // Visits a node and all below it; of a table the first cells.
  template <class Visit>
  static void Walk(QAccessibleInterface& node, const Visit& visit) {
    visit(node);
    const int count = std::min(node.childCount(), 60);
    for (int i = 0; i < count; ++i)
      if (QAccessibleInterface* child = node.child(i)) Walk(*child, visit);
  }
  // Everything that takes the focus has a name, and not its value for one.
  static void CheckNames(QWidget& window) {
    int focusable = 0;
    Walk(*QAccessible::queryAccessibleInterface(&window), [&](QAccessibleInterface& node) {
      if (!node.state().focusable || node.state().invisible) return;
      // A cell is named by what it shows, be it nothing; of tables, trees and lists Qt gives the name
      // for the value.
      for (const auto cell :
           {QAccessible::Cell, QAccessible::TreeItem, QAccessible::ListItem, QAccessible::ColumnHeader})
        if (node.role() == cell) return;
      const std::string where =
          Titled(window) + " " + (node.object() != nullptr ? node.object()->objectName().toStdString() : "?");
      const QString name = node.text(QAccessible::Name), value = node.text(QAccessible::Value);
      EXPECT_FALSE(name.trimmed().isEmpty()) << where;
      const bool ofItems = node.tableInterface() != nullptr || node.role() == QAccessible::List;
      EXPECT_TRUE(value.isEmpty() || name != value || ofItems) << where << " is named " << name.toStdString();
      ++focusable;
    });
    EXPECT_GT(focusable, 1) << Titled(window);
  }
  static std::string Titled(const QWidget& window) {
    return (window.objectName().isEmpty() ? window.windowTitle() : window.objectName()).toStdString();
  }
};

TEST_F(Accessible, WhatTakesTheFocusHasANameThatIsNotItsValue) {
  for (int sin = 0; sin < kSinCount; ++sin) {
    SinWorkspace& ws = sin == 0 ? Smoking() : Visit(sin);
    for (Side side : kSides) {
      Open(ws, side == Side::Past ? kPastTab : kFutureTab);
      CheckNames(Of(ws));
      desktop.Enter([&] { ws.Of(side).cmdSetPeriodParams->UserClicks(); });
      CheckNames(Of(ws));
    }
    Open(ws, kTotalTab);
    CheckNames(Of(ws));
  }
  SideControls& past = program.Current().Of(Side::Past);
  desktop.Enter([&] { program.Current().SSTab_PastFutureSwitch->UserSelects(kPastTab); });
  desktop.Enter([&] { past.cmdAdvResultsSpd->UserClicks(); });
  desktop.Enter([&] { past.cmdAdvResultsDoc->UserClicks(); });
  desktop.Enter([&] { program.Current().Get<Button>("cmdCombinedResults").UserClicks(); });
  desktop.Enter([&] { program.Combined().Get<Button>("cmdChart").UserClicks(); });
  desktop.Enter([&] { program.Current().Get<Button>("cmdGrowthChart").UserClicks(); });
  desktop.Enter([&] { program.Current().Get<Button>("cmdHelp").UserClicks(); });
  desktop.Enter([&] { program.Current().cmdSwitchSins->UserClicks(); });
  for (const auto& window : desktop.Windows())
    if (window->isVisible()) CheckNames(*window);
}

// Also in what the toolkit shows: of its dialogs every tool, and a preview's are all in reach of the Tab key.
TEST_F(Accessible, DialogsHaveNamesToo) {
  int shown = 0;
  const auto check = [&shown](QDialog& dialog) {
    if (++shown > 20) return;
    CheckNames(dialog);
    for (const auto* tool : dialog.findChildren<QToolButton*>())
      EXPECT_TRUE(tool->defaultAction() == nullptr || (tool->focusPolicy() & Qt::TabFocus) != 0)
          << tool->toolTip().toStdString();
    dialog.reject();
  };
  WhenUp<QPrintPreviewDialog>(check);
  QtPlatform().PreviewPages({.title = "Smoking", .subtitle = "Past", .summary = {}, .svg = {}, .rows = {}});
  WhenUp<QFileDialog>(check);
  QtPlatform().AskEntriesPath(FilePurpose::OpenEntries, {});
  WhenUp<QFileDialog>(check);
  QtPlatform().AskExportPath({});
  WhenUp<QFileDialog>(check);
  QtPlatform().AskFirstSavePath();
  EXPECT_EQ(shown, 4);
}

TEST_F(Accessible, TabsAndWhatStandsOnThemHaveNamesOfTheirOwn) {
  Open(Smoking(), kFutureTab);
  QAccessibleInterface& bar = *QAccessible::queryAccessibleInterface(Of(Smoking()).findChild<QTabBar*>());
  EXPECT_EQ(bar.text(QAccessible::Name), "Past, future and total");
  EXPECT_EQ(bar.role(), QAccessible::PageTabList);
  ASSERT_EQ(bar.childCount(), 3);
  for (int i = 0; i < 3; ++i) {
    QAccessibleInterface& tab = *bar.child(i);
    EXPECT_EQ(tab.text(QAccessible::Name), QStringList({"PAST", "FUTURE", "TOTAL"})[i]);
    EXPECT_EQ(tab.role(), QAccessible::PageTab);
    EXPECT_EQ(tab.state().selected, i == 1);
    EXPECT_EQ(bar.indexOfChild(&tab), i);
    EXPECT_EQ(bar.childAt(tab.rect().center().x(), tab.rect().center().y()), &tab);
  }
  bar.child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(Smoking().SSTab_PastFutureSwitch->Tab(), kTotalTab);
  QStringList pages;
  Walk(*QAccessible::queryAccessibleInterface(&Of(Smoking())), [&](QAccessibleInterface& node) {
    if (dynamic_cast<TabPage*>(node.object()) != nullptr && !node.state().invisible)
      pages << node.text(QAccessible::Name);
  });
  EXPECT_EQ(pages, QStringList("TOTAL"));
}

// What is in front together is told apart.
TEST_F(Accessible, NoTwoControlsInFrontHaveOneName) {
  for (const int tab : {kPastTab, kFutureTab, kTotalTab}) {
    Open(Smoking(), tab);
    std::set<std::string> names;
    for (const auto& control : Smoking().Controls()) {
      if (!control->TakesFocus() || !control->Reachable()) continue;
      const std::string name = Named(Smoking(), control->FullName().c_str());
      EXPECT_TRUE(names.insert(name).second) << control->FullName() << " " << name;
    }
  }
}

TEST_F(Accessible, NamesTellWhatAControlIsFor) {
  EXPECT_EQ(Named(Smoking(), "comInflationRate1Past"), "Yearly Inflation Rate (%)");
  EXPECT_EQ(Named(Smoking(), "comStopPast"), "Past Period 1: Date Stopped Smoking");
  EXPECT_EQ(Named(Smoking(), "optFineDateStopPast"), "Past Period 1: Date Stopped Smoking, Fine: 1 Month");
  EXPECT_EQ(Named(Smoking(), "rbnDisabledPeriodPast(3)"), "Past Period 3, Disabled");
  EXPECT_EQ(Named(Smoking(), "frmEnabledDisabledPeriodPast(3)"), "Past Period 3");
  EXPECT_EQ(Named(Smoking(), "cmdAdvResultsDocSummaryFut"),
            "Summary: Future Ashtoll, Advanced Results (Document Style)");
  EXPECT_EQ(Named(program.Combined(), "txtCumFutSinsTotal"), "Total, Cumulative Cost Future Sins");
  EXPECT_EQ(Named(program.Doc(), "SSFrame1_DocResults"), "Layout");
}

TEST_F(Accessible, RolesAreThoseOfTheirKinds) {
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Of(Smoking()))->role(), QAccessible::Window);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&Of(Smoking()))->text(QAccessible::Name),
            ToQt(Smoking().Caption()));
  EXPECT_EQ(Node(Smoking(), "comStartPast").role(), QAccessible::ComboBox);
  EXPECT_EQ(Node(Smoking(), "optFineDateStopPast").role(), QAccessible::RadioButton);
  EXPECT_EQ(Node(program.Chooser(), "OptSwitchSins(3)").role(), QAccessible::RadioButton);
  EXPECT_EQ(Node(program.Combined(), "chkWhichSins(3)").role(), QAccessible::CheckBox);
}

TEST_F(Accessible, AListSaysItsEntryAsItsText) {
  QAccessibleInterface& list = Node(Smoking(), "comInterestRate1Past");
  ASSERT_NE(list.textInterface(), nullptr);
  EXPECT_EQ(list.textInterface()->text(0, list.textInterface()->characterCount()), "5%");
  EXPECT_EQ(list.text(QAccessible::Value), "5%");
  const auto labels = list.relations(QAccessible::Label);
  ASSERT_FALSE(labels.isEmpty());
  EXPECT_EQ(labels.first().first->text(QAccessible::Name),
            "Yearly Interest Rate, Gain, or Yield on Banked Money (%)");
}

TEST_F(Accessible, TheHelpIsReadWithTheCaret) {
  desktop.Enter([&] { Smoking().Get<Button>("cmdHelp").UserClicks(); });
  QAccessibleTextInterface* text = Node(program.Info(), "rtfInfo").textInterface();
  ASSERT_NE(text, nullptr);
  Activate(Of(program.Info()));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  EXPECT_EQ(text->cursorPosition(), 2);
}

// ---- What is said ----

TEST_F(Accessible, TheFootAndTheTypedTextAreInTheTree) {
  const auto spoken = [&] {
    QStringList texts;
    Walk(*QAccessible::queryAccessibleInterface(&Of(Smoking())), [&](QAccessibleInterface& node) {
      if (dynamic_cast<SpokenText*>(node.object()) != nullptr && !node.state().invisible)
        texts << node.text(QAccessible::Name);
    });
    return texts;
  };
  EXPECT_EQ(spoken(), QStringList(ToQt(Smoking().Hint())));
  desktop.Enter([&] {
    Smoking().StartCanvasLine(0);
    for (const char letter : std::string("Hello")) Smoking().TypeOnCanvas(letter);
  });
  EXPECT_EQ(spoken(), QStringList("Hello"));
}

TEST_F(Accessible, APressIsToldByItsResults) {
  desktop.Enter([&] { Smoking().Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
  SideControls& past = Smoking().Of(Side::Past);
  EXPECT_EQ(Smoking().Announcement(),
            "Period 1: Past Ashtoll, Out of Pocket Expense: " + past.txtResultsPeriod(1).Text() +
                "; Period 1: Past Ashtoll, Cumulative Cost: " + past.txtCumulativeResultsPeriod(1).Text() +
                "; Total: Past Ashtoll, Out of Pocket Expense: " + past.txtResultsTotal->Text());
  int notifications = 0;
  Walk(*QAccessible::queryAccessibleInterface(&Of(Smoking())), [&](QAccessibleInterface& node) {
    if (node.role() != QAccessible::Notification) return;
    ++notifications;
    EXPECT_FALSE(node.state().invisible);
    EXPECT_EQ(node.text(QAccessible::Name), ToQt(Smoking().Announcement()));
  });
  EXPECT_EQ(notifications, 1);
}

}  // namespace
}  // namespace vicetoll
