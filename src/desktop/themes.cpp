// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/themes.h"

#include <QGuiApplication>
#include <algorithm>
#include <cmath>

namespace vicetoll {
namespace {

constexpr double kReadContrast = 4.5;
constexpr double kSeenContrast = 3;
constexpr double kHighContrast = 20;  // black and white have 21

struct ToneRow {
  Tone tone;
  QRgb colours[kThemeCount];
};

// clang-format off
constexpr ToneRow kTones[] = {
    //                      light                 dark                  high contrast
    {Tone::WindowGround,  {qRgb(227, 229, 235), qRgb( 28,  30,  36), qRgb(  0,   0,   0)}},
    {Tone::PanelGround,   {qRgb(236, 238, 244), qRgb( 36,  38,  46), qRgb(  0,   0,   0)}},
    {Tone::FrameGround,   {qRgb(248, 249, 252), qRgb( 44,  47,  56), qRgb(  0,   0,   0)}},
    {Tone::FrameLine,     {qRgb(116, 124, 150), qRgb(138, 145, 166), qRgb(255, 255, 255)}},
    {Tone::Ink,           {qRgb(  0,   0, 150), qRgb(170, 186, 255), qRgb(255, 255,   0)}},
    {Tone::Text,          {qRgb( 20,  22,  30), qRgb(236, 238, 243), qRgb(255, 255, 255)}},
    {Tone::Hint,          {qRgb( 80,  84, 100), qRgb(176, 181, 196), qRgb(255, 255, 255)}},
    {Tone::ButtonGround,  {qRgb(233, 236, 243), qRgb( 62,  66,  78), qRgb(  0,   0,   0)}},
    {Tone::ButtonHover,   {qRgb(244, 246, 251), qRgb( 72,  77,  92), qRgb( 40,  40,  70)}},
    {Tone::ButtonDown,    {qRgb(206, 212, 228), qRgb( 46,  50,  60), qRgb( 70,  70, 110)}},
    {Tone::CellLine,      {qRgb(142, 146, 160), qRgb(104, 110, 126), qRgb(150, 150, 150)}},
    {Tone::BoxGround,     {qRgb(255, 255, 255), qRgb( 24,  26,  31), qRgb(  0,   0,   0)}},
    {Tone::ListGround,    {qRgb(  0,   0, 255), qRgb( 58,  70, 200), qRgb(  0,   0,   0)}},
    {Tone::ListText,      {qRgb(255, 255, 255), qRgb(255, 255, 255), qRgb(255, 255, 255)}},
    {Tone::ListLine,      {qRgb(  0,   0, 170), qRgb(140, 150, 255), qRgb(  0, 255, 255)}},
    {Tone::ListOffGround, {qRgb(136, 140, 168), qRgb( 70,  73,  92), qRgb(  0,   0,   0)}},
    {Tone::ListOffText,   {qRgb(230, 230, 238), qRgb(168, 172, 190), qRgb(150, 150, 150)}},
    {Tone::Focus,         {qRgb(196,  84,   0), qRgb(255, 170,  64), qRgb(255, 255,   0)}},
    {Tone::FocusGap,      {qRgb(255, 255, 255), qRgb( 58,  70, 200), qRgb(  0,   0,   0)}},
    {Tone::Selection,     {qRgb(  0,  70, 170), qRgb( 70,  96, 214), qRgb(255, 255, 255)}},
    {Tone::SelectionText, {qRgb(255, 255, 255), qRgb(255, 255, 255), qRgb(  0,   0,   0)}},
    {Tone::Link,          {qRgb(  0,   0, 200), qRgb(150, 180, 255), qRgb(  0, 255, 255)}},
    {Tone::BalloonGround, {qRgb(255, 255, 255), qRgb( 20,  22,  34), qRgb(  0,   0,   0)}},
    {Tone::ChartLine1,    {qRgb(  0, 104, 170), qRgb( 86, 180, 233), qRgb(  0, 255, 255)}},
    {Tone::ChartLine2,    {qRgb(188,  76,   0), qRgb(240, 160,  40), qRgb(255, 170,   0)}},
    {Tone::ChartLine3,    {qRgb(  0, 110,  60), qRgb( 90, 200, 140), qRgb(  0, 255,   0)}},
    {Tone::ChartLine4,    {qRgb(130,  60, 150), qRgb(210, 150, 230), qRgb(255, 255,   0)}},
    {Tone::ChartGrid,     {qRgb(214, 218, 228), qRgb( 58,  62,  74), qRgb( 90,  90,  90)}},
};

static_assert(std::size(kTones) == static_cast<std::size_t>(Tone::Count));
static_assert([] {
  for (std::size_t i = 0; i < std::size(kTones); ++i)
    if (static_cast<std::size_t>(kTones[i].tone) != i) return false;
  return true;
}());  // the rows stand in the order of the tones

constexpr TonePair kPairs[] = {
    {Tone::Text,          Tone::WindowGround,  kReadContrast},
    {Tone::Text,          Tone::PanelGround,   kReadContrast},
    {Tone::Text,          Tone::FrameGround,   kReadContrast},
    {Tone::Text,          Tone::ButtonGround,  kReadContrast},
    {Tone::Text,          Tone::ButtonHover,   kReadContrast},
    {Tone::Text,          Tone::ButtonDown,    kReadContrast},
    {Tone::Text,          Tone::BoxGround,     kReadContrast},
    {Tone::Ink,           Tone::WindowGround,  kReadContrast},
    {Tone::Ink,           Tone::PanelGround,   kReadContrast},
    {Tone::Ink,           Tone::FrameGround,   kReadContrast},
    {Tone::Ink,           Tone::BoxGround,     kReadContrast},
    {Tone::Ink,           Tone::BalloonGround, kReadContrast},
    {Tone::Hint,          Tone::WindowGround,  kReadContrast},
    {Tone::Hint,          Tone::PanelGround,   kReadContrast},
    {Tone::Hint,          Tone::FrameGround,   kReadContrast},
    {Tone::Hint,          Tone::BoxGround,     kReadContrast},
    {Tone::ListText,      Tone::ListGround,    kReadContrast},
    {Tone::ListGround,    Tone::ListText,      kReadContrast},  // the entry under the pointer
    {Tone::SelectionText, Tone::Selection,     kReadContrast},
    {Tone::Link,          Tone::WindowGround,  kReadContrast},
    {Tone::Link,          Tone::FrameGround,   kReadContrast},
    {Tone::Link,          Tone::BoxGround,     kReadContrast},
    {Tone::FrameLine,     Tone::WindowGround,  kSeenContrast},
    {Tone::FrameLine,     Tone::PanelGround,   kSeenContrast},
    {Tone::FrameLine,     Tone::FrameGround,   kSeenContrast},
    {Tone::FrameLine,     Tone::ButtonGround,  kSeenContrast},
    {Tone::FrameLine,     Tone::BoxGround,     kSeenContrast},
    {Tone::CellLine,      Tone::BoxGround,     kSeenContrast},
    {Tone::ListLine,      Tone::FrameGround,   kSeenContrast},
    {Tone::ListLine,      Tone::PanelGround,   kSeenContrast},
    {Tone::ListLine,      Tone::WindowGround,  kSeenContrast},
    {Tone::Focus,         Tone::WindowGround,  kSeenContrast},
    {Tone::Focus,         Tone::PanelGround,   kSeenContrast},
    {Tone::Focus,         Tone::FrameGround,   kSeenContrast},
    {Tone::Focus,         Tone::ButtonGround,  kSeenContrast},
    {Tone::Focus,         Tone::BoxGround,     kSeenContrast},
    {Tone::Focus,         Tone::FocusGap,      kSeenContrast},
    {Tone::ChartLine1,    Tone::BoxGround,     kSeenContrast},
    {Tone::ChartLine2,    Tone::BoxGround,     kSeenContrast},
    {Tone::ChartLine3,    Tone::BoxGround,     kSeenContrast},
    {Tone::ChartLine4,    Tone::BoxGround,     kSeenContrast},
};
// clang-format on

// Relative luminance, as contrast is reckoned from it.
double Luminance(const QColor& colour) {
  const auto linear = [](double part) {
    return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

// Half-way between the two, for what is disabled.
QColor Between(const QColor& one, const QColor& other) {
  return QColor((one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
                (one.blue() + other.blue()) / 2);
}

}  // namespace

double Contrast(const QColor& one, const QColor& other) {
  const double a = Luminance(one), b = Luminance(other);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

Theme ThemeFor(const QPalette& system) {
  const QColor ground = system.color(QPalette::Active, QPalette::Window);
  const QColor text = system.color(QPalette::Active, QPalette::WindowText);
  if (Luminance(text) <= Luminance(ground)) return Theme::Light;
  return Contrast(text, ground) >= kHighContrast ? Theme::HighContrast : Theme::Dark;
}

Theme CurrentTheme() {
  // Every stroke of a painter asks: the answer is kept as long as the palette stays the same.
  static qint64 knownPalette = 0;
  static Theme known = Theme::Light;
  const QPalette system = QGuiApplication::palette();
  if (system.cacheKey() != knownPalette) {
    knownPalette = system.cacheKey();
    known = ThemeFor(system);
  }
  return known;
}

QColor Colour(Tone tone, Theme theme) {
  return QColor(kTones[static_cast<int>(tone)].colours[static_cast<int>(theme)]);
}

QColor Colour(Tone tone) { return Colour(tone, CurrentTheme()); }

QPalette ThemePalette(Theme theme) {
  // clang-format off
  constexpr std::pair<QPalette::ColorRole, Tone> kRoles[] = {
      {QPalette::Window,          Tone::WindowGround}, {QPalette::WindowText,      Tone::Text},
      {QPalette::Base,            Tone::BoxGround},    {QPalette::Text,            Tone::Text},
      {QPalette::AlternateBase,   Tone::FrameGround},  {QPalette::PlaceholderText, Tone::Hint},
      {QPalette::Button,          Tone::ButtonGround}, {QPalette::ButtonText,      Tone::Text},
      {QPalette::Light,           Tone::ButtonHover},  {QPalette::Midlight,        Tone::ButtonHover},
      {QPalette::Mid,             Tone::FrameLine},    {QPalette::Dark,            Tone::FrameLine},
      {QPalette::Highlight,       Tone::Selection},    {QPalette::HighlightedText, Tone::SelectionText},
      {QPalette::Link,            Tone::Link},         {QPalette::LinkVisited,     Tone::Link},
      {QPalette::ToolTipBase,     Tone::BalloonGround}, {QPalette::ToolTipText,    Tone::Ink},
      {QPalette::BrightText,      Tone::Text},
  };
  // clang-format on
  QPalette palette;
  for (const auto& [role, tone] : kRoles) palette.setColor(role, Colour(tone, theme));
  const QColor faint = Between(Colour(Tone::Text, theme), Colour(Tone::FrameGround, theme));
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, faint);
  return palette;
}

std::span<const TonePair> TonePairs() { return kPairs; }

QColor Readable(QColor colour, const QColor& ground) {
  const bool darken = Luminance(ground) > 0.18;
  for (int step = 0; step < 100 && Contrast(colour, ground) < kReadContrast; ++step) {
    if (darken) {
      colour = colour.darker(105);
    } else {
      float hue = 0, saturation = 0, lightness = 0;
      colour.getHslF(&hue, &saturation, &lightness);
      colour = QColor::fromHslF(std::max(hue, 0.0F), saturation, std::min(lightness + 0.01F, 1.0F));
    }
  }
  return colour;
}

}  // namespace vicetoll
