// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of the windows: what is written can be read, what is drawn can be seen, in every theme; and the
// windows follow the system from one theme to the other.
#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <set>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "desktop/themes.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {
namespace {

constexpr Theme kThemes[] = {Theme::Light, Theme::Dark, Theme::HighContrast};

QPalette SystemPalette(QRgb ground, QRgb text) {
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(ground));
  palette.setColor(QPalette::WindowText, QColor(text));
  return palette;
}

TEST(Themes, ContrastIsThatOfTheWorld) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
  EXPECT_NEAR(Contrast(Qt::white, Qt::white), 1, 0.01);
  EXPECT_NEAR(Contrast(Qt::white, QColor(0, 0, 255)), 8.59, 0.01);
  EXPECT_NEAR(Contrast(QColor(118, 118, 118), Qt::white), 4.54, 0.01);
}

TEST(Themes, EveryPairCanBeReadOrSeen) {
  for (const Theme theme : kThemes)
    for (const TonePair& pair : TonePairs())
      EXPECT_GE(Contrast(Colour(pair.front, theme), Colour(pair.ground, theme)), pair.contrast)
          << "theme " << static_cast<int>(theme) << ", tone " << static_cast<int>(pair.front) << " on "
          << static_cast<int>(pair.ground);
}

// The lines behind a chart are not needed to read it, and what is disabled is not to be used.
TEST(Themes, EveryToneIsInAPair) {
  std::set<Tone> paired = {Tone::ChartGrid, Tone::ListOffGround, Tone::ListOffText};
  for (const TonePair& pair : TonePairs()) paired.insert({pair.front, pair.ground});
  EXPECT_EQ(paired.size(), static_cast<std::size_t>(Tone::Count));
}

TEST(Themes, CaptionColoursKeepTheirHueInAReadableShade) {
  for (const Theme theme : kThemes)
    for (const QColor& colour : {QColor(255, 0, 0), QColor(0, 255, 0), QColor(0, 128, 0)}) {
      const QColor ground = Colour(Tone::FrameGround, theme);
      const QColor shade = Readable(colour, ground);
      EXPECT_GE(Contrast(shade, ground), 4.5);
      EXPECT_NEAR(shade.hslHue(), colour.hslHue(), 1);
    }
  // What can be read as it is stays as it is.
  EXPECT_EQ(Readable(QColor(0, 100, 0), Qt::white), QColor(0, 100, 0));
}

TEST(Themes, TheThemeGoesWithTheSystemsPalette) {
  EXPECT_EQ(ThemeFor(SystemPalette(qRgb(239, 239, 239), qRgb(0, 0, 0))), Theme::Light);
  EXPECT_EQ(ThemeFor(SystemPalette(qRgb(255, 255, 255), qRgb(0, 0, 0))), Theme::Light);
  EXPECT_EQ(ThemeFor(SystemPalette(qRgb(50, 50, 50), qRgb(255, 255, 255))), Theme::Dark);
  EXPECT_EQ(ThemeFor(SystemPalette(qRgb(0, 0, 0), qRgb(255, 255, 255))), Theme::HighContrast);
}

// The most frequent colour of what the window shows.
QRgb GroundOf(QWidget& window) {
  const QImage image = window.grab().toImage();
  std::map<QRgb, int> counts;
  for (int y = 0; y < image.height(); y += 3)
    for (int x = 0; x < image.width(); x += 3) ++counts[image.pixel(x, y)];
  return std::ranges::max_element(counts, {}, [](const auto& entry) { return entry.second; })->first;
}

TEST(Themes, OpenWindowsFollowAChangeOfTheSystem) {
  ScriptedPlatform platform{[](const std::string&) {}};
  Program program{platform};
  Desktop desktop{program};
  FormWindow& window = desktop.WindowOf(program.At(0));
  EXPECT_EQ(GroundOf(window), Colour(Tone::FrameGround, Theme::Light).rgb());
  const QPalette usual = QApplication::palette();
  QApplication::setPalette(SystemPalette(qRgb(40, 40, 40), qRgb(250, 250, 250)));
  EXPECT_EQ(GroundOf(window), Colour(Tone::FrameGround, Theme::Dark).rgb());
  QWidget* list = window.WidgetOf(*program.At(0).Find("comInterestRate1Past"));
  EXPECT_EQ(list->palette().color(QPalette::Base), Colour(Tone::ListGround, Theme::Dark));
  QApplication::setPalette(usual);
  EXPECT_EQ(GroundOf(window), Colour(Tone::FrameGround, Theme::Light).rgb());
}

}  // namespace
}  // namespace vicetoll
