// SPDX-License-Identifier: GPL-3.0-or-later
// What scenarios cannot say of taking things along.
#include <gtest/gtest.h>

#include <QApplication>
#include <QGraphicsView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QPrinterInfo>
#include <QProgressDialog>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>
#include <vector>

#include "desktop/activation.h"
#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/page_progress.h"
#include "desktop/qt_platform.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {
namespace {

TEST(TakingAlong, CtrlCInACellOfAllSinsCopiesTheTickedRows) {
  ScriptedPlatform platform;
  Program program(platform);
  Desktop desktop(program);
  desktop.Enter([&] { program.At(0).Get<Button>("cmdCombinedResults").UserClicks(); });
  FormWindow& window = desktop.WindowOf(program.Combined());
  ASSERT_TRUE(BringToFront(window));
  auto* cell = window.findChild<QLineEdit*>(QStringLiteral("txtOopSins(3)"));
  ASSERT_NE(cell, nullptr);
  cell->setFocus();
  cell->selectAll();
  QTest::keyClick(cell, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(platform.clipboard.starts_with("Smoking\t$0\t")) << platform.clipboard;
}

// A report of that many months.
Pages PagesWith(int months) {
  Pages pages{.title = "Smoking", .subtitle = "Past", .summary = {}, .svg = {}, .rows = {}};
  pages.rows.columns = {{"Index", false}, {"Month", true}};
  for (int i = 1; i <= months; ++i) pages.rows.rows.push_back({std::to_string(i), "Jun - 2031"});
  return pages;
}

TEST(PaperOfReports, IsThePrintersUnlessThatIsNoneOrTooSmall) {
  const QPageSize a4(QPageSize::A4), letter(QPageSize::Letter);
  EXPECT_TRUE(ReportPaperOf(letter) == letter);
  EXPECT_TRUE(ReportPaperOf(QPageSize(QPageSize::A5)) == QPageSize(QPageSize::A5));
  EXPECT_TRUE(ReportPaperOf(QPageSize()) == a4);
  EXPECT_TRUE(ReportPaperOf(QPageSize(QSizeF(62, 100), QPageSize::Millimeter)) == a4);
  EXPECT_TRUE(ReportPaperOf(QPageSize(QSizeF(80, 3000), QPageSize::Millimeter)) == a4);
  if (QPrinterInfo::defaultPrinter().isNull()) {
    EXPECT_TRUE(ReportPaper() == a4);
  }
}

TEST(PaperOfReports, IsThatOfTheFile) {
  EXPECT_TRUE(MakePdf(PagesWith(3), QPageSize(QPageSize::A4))->contains("/MediaBox [0 0 595"));
  EXPECT_TRUE(MakePdf(PagesWith(3), QPageSize(QPageSize::Letter))->contains("/MediaBox [0 0 612"));
}

TEST(PagesOfAReport, AreGivenUpWhenToldSo) {
  int asked = 0, pages = 0;
  const auto countTo = [&](int last) {
    asked = 0;
    return MakePdf(PagesWith(500), QPageSize(QPageSize::A4), [&, last](int done, int of) {
      EXPECT_EQ(done, ++asked);
      pages = of;
      return done < last;
    });
  };
  EXPECT_TRUE(countTo(1000).has_value());
  EXPECT_EQ(asked, pages - 1);
  EXPECT_GT(pages, 5);
  EXPECT_FALSE(countTo(3).has_value());
  EXPECT_EQ(asked, 3);
}

TEST(Progress, ShowsWhereItTakesLongAndCanBeCancelled) {
  const GoOn patient = ShowPageProgress();
  for (int done = 1; done < 10; ++done) EXPECT_TRUE(patient(done, 10));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  const GoOn goOn = ShowPageProgress(0);
  EXPECT_TRUE(goOn(1, 10));
  QTest::qWait(60);
  EXPECT_TRUE(goOn(2, 10));
  auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(dialog->maximum(), 10);
  EXPECT_EQ(dialog->value(), 2);
  QTest::mouseClick(dialog->findChild<QPushButton*>(), Qt::LeftButton);
  EXPECT_FALSE(goOn(3, 10));
}

TEST(Preview, ZoomsByTheKeysAndTheWheelOfAllWindows) {
  std::vector<double> zooms;
  QTimer::singleShot(50, [&zooms] {
    auto* dialog = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    const auto* preview = dialog->findChild<QPrintPreviewWidget*>();
    QWidget* view = dialog->findChild<QGraphicsView*>()->viewport();
    const auto note = [&] { zooms.push_back(preview->zoomFactor()); };
    const auto turn = [&](int delta) {
      QWheelEvent wheel({5, 5}, view->mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                        Qt::ControlModifier, Qt::NoScrollPhase, false);
      QApplication::sendEvent(view, &wheel);
      note();
    };
    note();
    QTest::keyClick(dialog, Qt::Key_Plus, Qt::ControlModifier);
    note();
    turn(60);
    turn(60);
    turn(-240);
    QTest::keyClick(dialog, Qt::Key_0, Qt::ControlModifier);
    note();
    dialog->reject();
  });
  QtPlatform().PreviewPages(PagesWith(10));
  ASSERT_EQ(zooms.size(), 6u);
  EXPECT_NEAR(zooms[1], zooms[0] * 1.1, 0.01);
  EXPECT_EQ(zooms[2], zooms[1]);  // half a notch
  EXPECT_NEAR(zooms[3], zooms[0] * 1.21, 0.01);
  EXPECT_NEAR(zooms[4], zooms[0], 0.01);
  EXPECT_NEAR(zooms[5], zooms[0], 0.01);
}

TEST(Preview, TellsOfAPrintThatFails) {
  QString told;
  QTimer::singleShot(50, [&told] {
    auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(preview, nullptr);
    preview->printer()->setOutputFormat(QPrinter::PdfFormat);
    preview->printer()->setOutputFileName(QStringLiteral("/dev/full"));
    QTimer::singleShot(20, [&told] {
      if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
        told = box->text();
        box->accept();
      }
    });
    preview->findChild<QPrintPreviewWidget*>()->print();
    preview->reject();
  });
  QtPlatform().PreviewPages(PagesWith(100));
  EXPECT_TRUE(told.contains(QStringLiteral("/dev/full"))) << told.toStdString();
  EXPECT_TRUE(told.contains(QStringLiteral("No space left on device"))) << told.toStdString();
}

}  // namespace
}  // namespace vicetoll
