// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for the drawn charts beyond what scenarios can say: keys, pointing, zoom, pictures.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <QXmlStreamReader>
#include <cmath>

#include "calendar/date_label.h"
#include "desktop/activation.h"
#include "desktop/chart_widget.h"
#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/printing.h"
#include "desktop/text.h"
#include "desktop/themes.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {
namespace {

class Charts : public testing::Test {
 protected:
  Charts() {
    desktop.Enter([&] { program.At(0).Of(Side::Past).cmdSetPeriodParams->UserClicks(); });
    desktop.Enter([&] { program.At(0).Get<Button>("cmdGrowthChart").UserClicks(); });
    FormWindow& window = desktop.WindowOf(program.Growth());
    EXPECT_TRUE(BringToFront(window));
    QTest::qWait(20);  // the first drawing comes with the next turn of the loop
    widget = dynamic_cast<ChartWidget*>(window.WidgetOf(chart));
    widget->setFocus();
  }
  std::string Readout() { return program.Growth().Get<Label>("lblReadout").Caption(); }
  void MoveTo(int month, Qt::MouseButtons buttons) {
    const QPoint at = widget->PointOf(month);
    QMouseEvent move(QEvent::MouseMove, at, widget->mapToGlobal(at), Qt::NoButton, buttons, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
  }
  void TurnWheel(int month, int delta) {
    const QPoint at = widget->PointOf(month);
    QWheelEvent wheel(at, widget->mapToGlobal(at), {}, QPoint(0, delta), Qt::NoButton, Qt::ControlModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(widget, &wheel);
  }
  int MonthsSeen() { return widget->MonthsInView().last - widget->MonthsInView().first + 1; }
  int Last() { return chart.Count() - 1; }

  ScriptedPlatform platform{[](const std::string&) {}};
  Program program{platform};
  Desktop desktop{program};
  Chart& chart = program.Growth().GetChart();
  ChartWidget* widget = nullptr;
};

TEST_F(Charts, HaveACursorThatKeysMove) {
  ASSERT_GT(Last(), 100);
  QTest::keyClick(widget, Qt::Key_Home);
  EXPECT_EQ(chart.Cursor(), 0);
  QTest::keyClick(widget, Qt::Key_PageDown);
  QTest::keyClick(widget, Qt::Key_Right);
  EXPECT_EQ(chart.Cursor(), 13);
  EXPECT_TRUE(Readout().starts_with(chart.Contents().months[13].label + ": out of pocket $")) << Readout();
  // Whoever listens hears it.
  EXPECT_EQ(program.Growth().Announcement(), Readout());
  EXPECT_EQ(widget->accessibleName(), ToQt(program.Growth().Caption()));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(widget)->role(), QAccessible::Chart);
  QTest::keyClick(widget, Qt::Key_Left);
  QTest::keyClick(widget, Qt::Key_PageUp);
  EXPECT_EQ(chart.Cursor(), 0);
  QTest::keyClick(widget, Qt::Key_End);
  EXPECT_EQ(chart.Cursor(), Last());
}

// The ring of the focus takes three pixels; then comes the ground, then the title.
TEST_F(Charts, KeepWhatTheyDrawClearOfTheirEdges) {
  const QImage picture = widget->grab().toImage();
  const auto isGround = [&](int x, int y) { return picture.pixelColor(x, y) == Colour(Tone::BoxGround); };
  for (int y = 3; y < 9; ++y)
    for (int x = 6; x < picture.width() - 6; ++x) ASSERT_TRUE(isGround(x, y)) << x << ' ' << y;
  for (int x = 3; x < 9; ++x)
    for (int y = 6; y < picture.height() - 6; ++y) {
      ASSERT_TRUE(isGround(x, y)) << x << ' ' << y;
      ASSERT_TRUE(isGround(picture.width() - 1 - x, y)) << picture.width() - 1 - x << ' ' << y;
    }
}

TEST_F(Charts, HaveACursorThatGoesWithThePointer) {
  MoveTo(40, Qt::NoButton);
  EXPECT_EQ(chart.Cursor(), 40);
}

TEST_F(Charts, ZoomInTime) {
  const ChartWidget::Span all{0, Last()};
  EXPECT_EQ(widget->MonthsInView(), all);
  QTest::mousePress(widget, Qt::LeftButton, {}, widget->PointOf(24));
  MoveTo(60, Qt::LeftButton);
  QTest::mouseRelease(widget, Qt::LeftButton, {}, widget->PointOf(60));
  EXPECT_EQ(widget->MonthsInView(), (ChartWidget::Span{24, 60}));
  // A cursor that leaves takes the view along.
  QTest::keyClick(widget, Qt::Key_Home);
  EXPECT_EQ(widget->MonthsInView(), (ChartWidget::Span{0, 36}));
  QTest::keyClick(widget, Qt::Key_0, Qt::ControlModifier);
  EXPECT_EQ(widget->MonthsInView(), all);
  TurnWheel(50, 240);
  EXPECT_LT(MonthsSeen(), Last() * 3 / 4);
  EXPECT_GT(widget->MonthsInView().first, 0);
  QTest::mouseDClick(widget, Qt::LeftButton, {}, widget->PointOf(50));
  EXPECT_EQ(widget->MonthsInView(), all);
}

// A touch pad turns the wheel by an eighth of a notch at a time: of a few months that is less than one.
TEST_F(Charts, ZoomByATouchPad) {
  TurnWheel(50, 240 * 5);
  const int few = MonthsSeen();
  ASSERT_LT(few, 20);
  for (int turn = 0; turn < 16; ++turn) TurnWheel(50, -15);
  EXPECT_GT(MonthsSeen(), few * 5 / 4);
  for (int turn = 0; turn < 16; ++turn) TurnWheel(50, 15);
  EXPECT_NEAR(MonthsSeen(), few, 2);
}

TEST_F(Charts, MakePicturesOfEachFormat) {
  const std::string png = chart.Picture(PictureFormat::Png);
  const QImage image = QImage::fromData(QByteArray::fromStdString(png));
  EXPECT_EQ(image.size(), widget->size() * 2);
  const std::string svg = chart.Picture(PictureFormat::Svg);
  QXmlStreamReader reader(QByteArray::fromStdString(svg));
  while (!reader.atEnd()) reader.readNext();
  EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
  EXPECT_NE(svg.find("Smoking: cost out of pocket"), std::string::npos);
  EXPECT_TRUE(chart.Picture(PictureFormat::Pdf).starts_with("%PDF-"));
  // Making one changes nothing that is seen.
  EXPECT_EQ(widget->MonthsInView(), (ChartWidget::Span{0, Last()}));
}

TEST_F(Charts, ReachAPrinter) {
  const QTemporaryDir room;
  const QString file = room.filePath("chart.pdf");
  PrintJob print;
  print.Printer().setOutputFormat(QPrinter::PdfFormat);
  print.Printer().setOutputFileName(file);
  EXPECT_TRUE(print.PrintPicture(chart.Picture(PictureFormat::Svg)));
  EXPECT_TRUE(print.Close());
  QProcess drawer;
  drawer.start("pdftoppm", {"-png", "-r", "50", "-singlefile", file, room.filePath("page")});
  ASSERT_TRUE(drawer.waitForFinished());
  const QImage page(room.filePath("page.png"));
  const QRgb line = Colour(Tone::ChartLine2, Theme::Light).rgb();
  int ofLine = 0;
  for (int y = 0; y < page.height(); ++y)
    for (int x = 0; x < page.width(); ++x) ofLine += page.pixel(x, y) == line ? 1 : 0;
  EXPECT_GT(ofLine, page.width() / 5);
  PrintJob other;
  other.Printer().setOutputFormat(QPrinter::PdfFormat);
  other.Printer().setOutputFileName(room.filePath("none.pdf"));
  EXPECT_FALSE(other.PrintPicture("no picture"));
}

// Zoomed windows have room for less.
TEST_F(Charts, HaveTheirButtonsBesideOneAnotherInTheSmallestWindow) {
  GrowthWindow& window = program.Growth();
  desktop.Enter([&] { window.UserResizes(1, 1); });
  int end = 0;
  for (const char* name : {"cmdCopy", "cmdSaveAs", "cmdPrint", "cmdExport", "cmdExit"}) {
    const Place place = window.Get<Button>(name).GetPlace();
    EXPECT_GE(place.left, end) << name;
    end = place.left + place.width;
  }
  EXPECT_LE(end, window.Width());
}

TEST_F(Charts, AreOpenedByTheirKeys) {
  desktop.Enter([&] { program.Growth().Hide(); });
  FormWindow& window = desktop.WindowOf(program.At(0));
  ASSERT_TRUE(BringToFront(window));
  QTest::keyClick(&window, Qt::Key_G, Qt::ControlModifier);
  EXPECT_TRUE(program.Growth().Shown());
}

// 166 years of amounts up to a thousand million million draw, and so does nothing at all.
TEST_F(Charts, DrawWhatIsLongAndLarge) {
  ChartContents contents;
  std::string label = "Jan - 1900";
  for (int i = 0; i < 2000; ++i) {
    contents.months.push_back({label, ChartMonthKind::Active, Side::Past, 1, i * 1e11, i * 5e11});
    label = MonthAfter(label);
  }
  contents.bands.push_back({0, 1999, ChartMonthKind::Active, Side::Past, 1, "Past Period 1"});
  desktop.Enter([&] { chart.SetContents(contents); });
  EXPECT_EQ(widget->Plotted().months, contents.months);
  EXPECT_FALSE(chart.Picture(PictureFormat::Png).empty());
  contents.months.resize(1);
  contents.bands[0].last = 0;
  desktop.Enter([&] { chart.SetContents(contents); });
  EXPECT_EQ(widget->Plotted().months, contents.months);
  EXPECT_FALSE(chart.Picture(PictureFormat::Png).empty());
  desktop.Enter([&] { chart.SetContents({}); });
  EXPECT_TRUE(widget->Plotted().months.empty());
  EXPECT_FALSE(chart.Picture(PictureFormat::Png).empty());
}

// As those see colours who lack one kind of cones (red, green): linear light, after Viénot, Brettel and
// Mollon 1999.
QColor SeenWithout(bool red, const QColor& colour) {
  const auto linear = [](double part) { return std::pow(part, 2.2); };
  const double r = linear(colour.redF()), g = linear(colour.greenF()), b = linear(colour.blueF());
  const double rg = red ? 0.11238 * r + 0.88762 * g : 0.29275 * r + 0.70725 * g;
  const double blue = red ? 0.00401 * r - 0.00401 * g + b : -0.02234 * r + 0.02234 * g + b;
  const auto display = [](double part) {
    return static_cast<float>(std::pow(std::clamp(part, 0.0, 1.0), 1 / 2.2));
  };
  return QColor::fromRgbF(display(rg), display(rg), display(blue));
}

TEST(ChartColours, CanBeToldApartByTheColourBlind) {
  constexpr int kClear = 100;  // of 441
  for (int theme = 0; theme < kThemeCount; ++theme)
    for (const bool red : {true, false}) {
      const QColor one = SeenWithout(red, Colour(Tone::ChartLine1, static_cast<Theme>(theme)));
      const QColor two = SeenWithout(red, Colour(Tone::ChartLine2, static_cast<Theme>(theme)));
      const double distance =
          std::hypot(one.red() - two.red(), one.green() - two.green(), one.blue() - two.blue());
      EXPECT_GT(distance, kClear) << "theme " << theme << (red ? ", no red" : ", no green");
    }
}

}  // namespace
}  // namespace vicetoll
