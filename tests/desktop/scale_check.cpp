// SPDX-License-Identifier: GPL-3.0-or-later
// How large the windows are: what zoom does, that no figure is shown in part, that a small screen scrolls and
// a report makes use of its room.
#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>
#include <QTest>
#include <QWheelEvent>

#include "desktop/desktop.h"
#include "desktop/document_view.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/themes.h"
#include "desktop/widgets.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {
namespace {

TEST(Scales, TwipsBecomePixelsAndBack) {
  EXPECT_EQ(Scale().ToPixels(12000), 800);
  EXPECT_EQ(Scale(1.5).ToPixels(12000), 1200);
  EXPECT_EQ(Scale(1.5).ToTwips(1200), 12000);
  // Neighbours that touch in twips touch in pixels.
  for (const double factor : {0.5, 0.77, 1.0, 1.33, 2.9}) {
    const Scale scale(factor);
    const QRect left = scale.ToPixels(0, 0, 2550, 800), right = scale.ToPixels(2550, 0, 2500, 800);
    EXPECT_EQ(left.x() + left.width(), right.x()) << factor;
  }
}

class Sizes : public testing::Test {
 protected:
  Sizes() { SetScreen({1920, 1080}); }

  void SetScreen(const QSize& screen) {
    desktop.GetScaling().screen = screen;
    desktop.TakeScale();
  }
  FormWindow& Of(Form& form) { return desktop.WindowOf(form); }
  SinWorkspace& Smoking() { return program.At(0); }
  void TurnWheel(QWidget& widget, int delta) {
    QWheelEvent wheel({5, 5}, widget.mapToGlobal(QPointF(5, 5)), {}, {0, delta}, Qt::NoButton,
                      Qt::ControlModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
  }

  ScriptedPlatform platform{[](const std::string&) {}};
  Program program{platform};
  Desktop desktop{program};
};

TEST_F(Sizes, KeysAndWheelZoomEveryWindow) {
  FormWindow& window = Of(Smoking());
  QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(window.size(), QSize(880, 825));
  EXPECT_EQ(window.GetSheet().font().pixelSize(), 13);
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(window.size(), QSize(720, 675));
  EXPECT_EQ(Smoking().Width(), 12000);
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(window.size(), QSize(800, 750));
  TurnWheel(*window.WidgetOf(*Smoking().Find("comInterestRate1Past")), 60);
  EXPECT_EQ(desktop.GetScaling().Zoom(), 100);  // half a notch
  TurnWheel(*window.WidgetOf(*Smoking().Find("comInterestRate1Past")), 60);
  EXPECT_EQ(desktop.GetScaling().Zoom(), 110);
  EXPECT_EQ(Smoking().Of(Side::Past).comInterestRate1->Text(), "5%");
  // The next window of the run takes it over.
  desktop.Enter([&] { program.Chooser().Show(); });
  EXPECT_EQ(Of(program.Chooser()).GetScale().Factor(), 1.1);
}

TEST_F(Sizes, ZoomEndsAtHalfAndAtThreeTimes) {
  desktop.ZoomBy(-20);
  EXPECT_EQ(desktop.GetScaling().Zoom(), 50);
  desktop.ZoomBy(20);
  EXPECT_EQ(desktop.GetScaling().Zoom(), 300);
  // Larger than the screen, the window scrolls.
  FormWindow& window = Of(Smoking());
  EXPECT_EQ(window.GetSheet().size(), QSize(2400, 2250));
  EXPECT_LE(window.width(), 1920);
  EXPECT_LT(window.height(), 1080);
  QApplication::processEvents();
  EXPECT_GT(window.findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
}

// One bar would bring on the other, for it takes room itself.
TEST_F(Sizes, ScrollOnlyInTheDirectionThatHasNoRoom) {
  FormWindow& window = Of(Smoking());
  const auto& area = *window.findChild<QScrollArea*>();
  desktop.ZoomBy(4);  // 175 percent: 1400 x 1312
  QApplication::processEvents();
  EXPECT_GT(area.verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(area.horizontalScrollBar()->maximum(), 0);
  EXPECT_GE(area.viewport()->width(), window.GetSheet().width());
  SetScreen({1300, 1600});
  QApplication::processEvents();
  EXPECT_GT(area.horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(area.verticalScrollBar()->maximum(), 0);
}

TEST_F(Sizes, ZoomedWindowsStayOnTheScreen) {
  desktop.GetScaling().screen.reset();
  FormWindow& chooser = Of(program.Chooser());
  desktop.Enter([&] { program.Chooser().Show(); });
  const QRect room = chooser.screen()->availableGeometry();
  chooser.move(room.right() - chooser.width(), room.bottom() - chooser.height());
  desktop.ZoomBy(3);
  EXPECT_TRUE(room.contains(chooser.frameGeometry()));
  chooser.move(room.center());
  desktop.ZoomBy(20);  // as large as the screen, but for the sides of its frame
  EXPECT_TRUE(room.contains(chooser.frameGeometry().topLeft()));
  EXPECT_LE(chooser.frameGeometry().bottom(), room.bottom());
}

TEST_F(Sizes, LettersOfAChartFollowTheZoom) {
  desktop.Enter([&] { Smoking().Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
  desktop.Enter([&] { Smoking().Get<Button>("cmdGrowthChart").UserClicks(); });
  FormWindow& window = Of(program.Growth());
  QWidget& chart = *window.WidgetOf(program.Growth().GetChart());
  desktop.ZoomBy(5);  // 200 percent
  EXPECT_EQ(chart.font().pixelSize(), 24);
  for (const QWidget* part : chart.findChildren<QWidget*>()) EXPECT_EQ(part->font().pixelSize(), 24);
}

// So do its lines.
TEST_F(Sizes, LinesOfAChartFollowTheZoom) {
  desktop.Enter([&] { Smoking().Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
  desktop.Enter([&] { Smoking().Get<Button>("cmdGrowthChart").UserClicks(); });
  QWidget& chart = *Of(program.Growth()).WidgetOf(program.Growth().GetChart());
  const QColor colour = Colour(Tone::ChartLine2);
  // In the middle of the chart, from above.
  const auto thickness = [&] {
    const QImage picture = chart.grab().toImage();
    int thickest = 0;
    for (int x = picture.width() / 4; x < picture.width() * 3 / 4; ++x) {
      int pixels = 0;
      for (int y = 0; y < picture.height(); ++y) pixels += picture.pixelColor(x, y) == colour;
      thickest = std::max(thickest, pixels);
    }
    return thickest;
  };
  const int before = thickness();
  EXPECT_GT(before, 0);
  desktop.ZoomBy(5);  // 200 percent
  EXPECT_GT(thickness(), before);
}

// A chart over months zooms in time by them; where there is no time to zoom into, they are the windows' own.
TEST_F(Sizes, KeysAndWheelZoomTheWindowOfAChartWithoutMonths) {
  desktop.Enter([&] { Smoking().Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
  desktop.Enter([&] { Smoking().Get<Button>("cmdCombinedResults").UserClicks(); });
  desktop.Enter([&] { program.Combined().Get<Button>("cmdChart").UserClicks(); });
  Form& sins = *program.Window("frmSinsChart");
  QWidget& chart = *Of(sins).WidgetOf(*sins.Find("chtSins"));
  QTest::keyClick(&chart, Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(desktop.GetScaling().Zoom(), 110);
  TurnWheel(chart, 120);
  EXPECT_EQ(desktop.GetScaling().Zoom(), 125);
  desktop.Enter([&] { Smoking().Get<Button>("cmdGrowthChart").UserClicks(); });
  TurnWheel(*Of(program.Growth()).WidgetOf(program.Growth().GetChart()), 120);
  EXPECT_EQ(desktop.GetScaling().Zoom(), 125);
}

// How far to the right something is drawn.
int InkEndsAt(QWidget& widget) {
  const QImage picture = widget.grab().toImage();
  const int middle = picture.height() / 2;
  for (int x = picture.width() - 1; x > 0; --x)
    for (int y = middle - 2; y <= middle + 2; ++y)
      if (qGray(picture.pixel(x, y)) < 160) return x;
  return 0;
}

// The room beside the mark of an option is short where windows are small; its letters are those of all
// others.
TEST_F(Sizes, OptionsOfSmallWindowsHaveTheLettersOfTheOthers) {
  for (int height = 480; height <= 760; height += 20) {
    SetScreen({1920, height});
    FormWindow& window = Of(Smoking());
    QWidget& option = *window.WidgetOf(*Smoking().Find("optFineDateStartPast"));
    const int mark = window.GetScale().Of(4 + 14);
    const int letters = QFontMetrics(option.font()).horizontalAdvance("Fine: 1 Month");
    EXPECT_GT(InkEndsAt(option) - mark, letters * 95 / 100) << height;
  }
}

TEST_F(Sizes, ReportsKeepTheirWindowAndZoomTheirText) {
  desktop.Enter([&] { program.Info().ShowHelpFile(); });
  FormWindow& help = Of(program.Info());
  const QSize size = help.size();
  const QWidget& text = *help.WidgetOf(*program.Info().Find("rtfInfo"));
  const int letters = text.font().pixelSize();
  const int twips = program.Info().Width();
  desktop.ZoomBy(4);  // 175 percent
  EXPECT_EQ(help.size(), size);
  EXPECT_EQ(text.font().pixelSize(), letters * 175 / 100);
  EXPECT_NEAR(program.Info().Width(), twips / 1.75, 15);
  EXPECT_TRUE(help.rect().contains(QRect(text.mapTo(&help, QPoint(0, 0)), text.size())));
}

TEST_F(Sizes, AScreenTooSmallForReadableLettersScrolls) {
  SetScreen({640, 400});
  FormWindow& window = Of(Smoking());
  EXPECT_EQ(window.GetSheet().font().pixelSize(), 9);
  EXPECT_LE(window.width(), 640);
  EXPECT_LT(window.height(), 400);
  EXPECT_EQ(Smoking().Width(), 12000);
  QApplication::processEvents();
  EXPECT_GT(window.findChild<QScrollArea*>()->verticalScrollBar()->maximum(), 0);
}

// Letters come in whole pixels: what is typed on the bare window must not drift down over its buttons.
TEST_F(Sizes, LinesOnTheBareWindowKeepTheirPlaceAtAnyScale) {
  const auto lowestInk = [&](const QSize& screen) {
    SetScreen(screen);
    const QImage picture = Of(Smoking()).GetSheet().grab().toImage();
    const int buttons = Of(Smoking()).WidgetOf(*Smoking().cmdEuro)->y();
    for (int y = buttons - 1; y > 0; --y)
      for (int x = 0; x < picture.width(); ++x)
        if (picture.pixelColor(x, y) == Colour(Tone::Ink)) return static_cast<double>(y) / picture.height();
    return 0.0;
  };
  desktop.Enter([&] {
    Smoking().SSTab_PastFutureSwitch->SetVisible(false);
    for (int i = 0; i < 12; ++i) Smoking().StartCanvasLine(100);
    Smoking().TypeOnCanvas('H');
  });
  const double designed = lowestInk({1920, 1080});
  EXPECT_GT(designed, 0.5);
  EXPECT_NEAR(lowestInk({1024, 600}), designed, 0.007);
  EXPECT_NEAR(lowestInk({1366, 690}), designed, 0.007);
}

// In one line the one on the right would run on from the one on the left.
TEST_F(Sizes, HeadingsOfResultsStandInTwoLinesAtAnyScale) {
  for (const QSize& screen : {QSize(960, 540), QSize(1024, 600), QSize(1366, 690), QSize(1920, 1080)}) {
    SetScreen(screen);
    for (const char* name : {"lblIndividualPeriodPast", "lblCumulativePeriodsPast"}) {
      const auto& label = dynamic_cast<CaptionLabel&>(*Of(Smoking()).WidgetOf(*Smoking().Find(name)));
      const QFontMetrics metrics(label.font());
      EXPECT_GT(metrics.horizontalAdvance(label.text()), label.width()) << name << ' ' << screen.width();
      EXPECT_LE(2 * metrics.height(), label.height()) << name << ' ' << screen.width();
    }
  }
}

TEST_F(Sizes, TheTableOverAllSinsFitsASmallScreen) {
  SetScreen({1024, 600});
  desktop.Enter([&] { program.Combined().Show(); });
  EXPECT_LE(Of(program.Combined()).width(), 1024);
  EXPECT_EQ(Of(program.Combined()).size(), Of(program.Combined()).GetSheet().size());
}

// ---- Figures ----

// Every box with 15 digits: the whole number in letters that fit, or a mark and the number as its tip.
TEST_F(Sizes, ABoxShowsItsWholeNumberOrMarksItAsCut) {
  const char* const kNumber = "$999,999,999,999,999";
  desktop.Enter([&] { program.Combined().Show(); });
  for (const int zoom : {-20, 3, 3, 20}) {
    desktop.ZoomBy(zoom);
    for (Form* form : {static_cast<Form*>(&Smoking()), static_cast<Form*>(&program.Combined())})
      for (const auto& control : form->Controls()) {
        auto* model = dynamic_cast<TextBox*>(control.get());
        if (model == nullptr) continue;
        desktop.Enter([&] { model->SetText(kNumber); });
        auto& box = dynamic_cast<ResultBox&>(*Of(*form).WidgetOf(*model));
        const int wide = QFontMetrics(box.font()).horizontalAdvance(box.text());
        EXPECT_EQ(box.text(), kNumber);
        // Two pixels at each end are Qt's, one is the line's, one the caret's.
        EXPECT_EQ(box.IsCut(), wide > box.width() - 7)
            << model->FullName() << " at " << desktop.GetScaling().Zoom();
        EXPECT_GE(box.font().pixelSize(), std::min(7, Of(*form).GetSheet().font().pixelSize()));
        EXPECT_FALSE(box.IsCut() && desktop.GetScaling().Zoom() >= 100) << model->FullName();
      }
  }
}

TEST_F(Sizes, FiguresOfTheirUsualLengthKeepTheirLetters) {
  TextBox& model = *Smoking().Of(Side::Past).txtResultsTotal;
  desktop.Enter([&] { model.SetText("$1,269,334"); });
  const auto& box = dynamic_cast<ResultBox&>(*Of(Smoking()).WidgetOf(model));
  EXPECT_EQ(box.font().pixelSize(), Of(Smoking()).GetSheet().font().pixelSize());
  desktop.Enter([&] { model.SetText("$28,969,949,504"); });
  EXPECT_FALSE(box.IsCut());
}

// ---- Texts and lists ----

TEST_F(Sizes, ATableOfADocumentScrollsSideways) {
  DocWindow& window = program.Doc();
  desktop.Enter([&] {
    window.Text().SetText("one\ttwo\r\n1\t2");
    window.Show();
  });
  const auto& edit = dynamic_cast<DocumentEdit&>(*Of(window).WidgetOf(window.Text()));
  EXPECT_EQ(edit.lineWrapMode(), QPlainTextEdit::NoWrap);
  desktop.Enter([&] { window.Text().SetText("words"); });
  EXPECT_EQ(edit.lineWrapMode(), QPlainTextEdit::WidgetWidth);
}

TEST_F(Sizes, RowsOfAPopupAreEasilyHit) {
  auto& list = dynamic_cast<BlueList&>(*Of(Smoking()).WidgetOf(*Smoking().Find("comInterestRate1Past")));
  list.showPopup();
  QApplication::processEvents();
  const QRect row = list.view()->visualRect(list.model()->index(list.currentIndex(), 0));
  EXPECT_GE(row.height(), 1.6 * list.fontMetrics().height());
  list.hidePopup();
}

}  // namespace
}  // namespace vicetoll
