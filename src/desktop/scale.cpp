// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/scale.h"

#include <QApplication>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QScreen>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace vicetoll {
namespace {

// The font that the windows were designed with, DejaVu Sans of 9 points at 96 dots to the inch: what its
// letters are high, a line of it, and this text wide. In pixels.
constexpr double kDesignText = 12;
constexpr double kDesignLine = 13.97;
constexpr double kDesignSampleWidth = 173.56;
const char* const kSample = "Set Past Period 1 Parameters";

constexpr int kZooms[] = {50, 60, 70, 80, 90, 100, 110, 125, 150, 175, 200, 250, 300};  // percent

// Finer screens show small letters better, but the eye stays the same.
constexpr double kSmallestFineText = 7;

// A size that differs by less is a rounding of the font's.
constexpr double kSameSize = 0.02;

double PixelSize(const QFont& font) { return QFontInfo(font).pixelSize(); }

// The system's font to that of the design: by its height, and by its width where it is a wide one.
double FontFactor() {
  const QFontMetricsF metrics(QApplication::font());
  const double height = metrics.height() / kDesignLine;
  const double width = metrics.horizontalAdvance(QString::fromLatin1(kSample)) / kDesignSampleWidth;
  const double factor = std::max(height, width);
  return std::abs(factor - 1) < kSameSize ? 1 : factor;
}

// The factor at which the twips fill the room in one direction.
double FittingFactor(const QSize& twips, const QSize& room) {
  return kTwipsPerDesignPixel * std::min(static_cast<double>(room.width()) / std::max(twips.width(), 1),
                                         static_cast<double>(room.height()) / std::max(twips.height(), 1));
}

}  // namespace

int Scale::ToPixels(int twips) const {
  return static_cast<int>(std::lround(twips * factor_ / kTwipsPerDesignPixel));
}

int Scale::ToTwips(int pixels) const {
  return static_cast<int>(std::lround(pixels * kTwipsPerDesignPixel / factor_));
}

QRect Scale::ToPixels(int left, int top, int width, int height) const {
  const QPoint begin(ToPixels(left), ToPixels(top));
  return {begin, QSize(ToPixels(left + width) - begin.x(), ToPixels(top + height) - begin.y())};
}

int Scale::Of(double designPixels) const { return static_cast<int>(std::lround(designPixels * factor_)); }

bool Scaling::ZoomBy(int steps) {
  int zoom = 100;
  if (steps != 0) {
    const int at = static_cast<int>(std::ranges::lower_bound(kZooms, zoom_) - std::begin(kZooms));
    zoom = kZooms[std::clamp(at + steps, 0, static_cast<int>(std::size(kZooms)) - 1)];
  }
  return std::exchange(zoom_, zoom) != zoom;
}

double Scaling::Legible(double devicePixelRatio) const {
  return std::max(kSmallestText / devicePixelRatio, kSmallestFineText) / kDesignText;
}

Scale Scaling::Opening(const QSize& twips, const QSize& room, double devicePixelRatio) const {
  const double wanted = FontFactor();
  const double legible = std::min(wanted, Legible(devicePixelRatio));
  const double fitting = std::min(wanted, FittingFactor(twips, room));
  return Scale(std::max(fitting, legible) * zoom_ / 100);
}

Scale Scaling::Filling(const QSize& twips, const QSize& room, double devicePixelRatio) const {
  return Scale(std::max(FittingFactor(twips, room), Legible(devicePixelRatio)) * zoom_ / 100);
}

QFont Scaling::FontAt(const Scale& scale) const {
  QFont font = QApplication::font();
  // Letters come in whole pixels. Rounded up they would be wider than their place.
  const double pixels = PixelSize(font) * scale.Factor() / FontFactor();
  font.setPixelSize(std::max(static_cast<int>(pixels + 0.05), 1));
  return font;
}

QSize Scaling::FreeArea(const QWidget& window) const {
  if (screen) return *screen;
  return window.screen()->availableGeometry().size();
}

Scale ScaleOf(const QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget())
    if (const auto* sheet = dynamic_cast<const Sheet*>(widget)) return sheet->GetScale();
  return Scale();
}

}  // namespace vicetoll
