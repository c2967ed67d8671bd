// SPDX-License-Identifier: GPL-3.0-or-later
// How large the windows are. Forms speak of twips; how many pixels a twip is, is known here and nowhere else,
// and lengths and fonts of widgets follow from it, so that everything grows and shrinks evenly.
#pragma once

#include <QFont>
#include <QSize>
#include <QWidget>
#include <functional>
#include <optional>

namespace vicetoll {

// 15 twips are a pixel of the design, which is 96 to the inch.
inline constexpr int kTwipsPerDesignPixel = 15;

// The size of one window's picture, as a multiple of its design.
class Scale {
 public:
  explicit Scale(double factor = 1) : factor_(factor) {}
  double Factor() const { return factor_; }
  bool operator==(const Scale&) const = default;

  int ToPixels(int twips) const;
  int ToTwips(int pixels) const;
  // The rectangle that begins and ends at these twips; neighbours touch and do not overlap.
  QRect ToPixels(int left, int top, int width, int height) const;
  // A length of the design, which is given in pixels.
  int Of(double designPixels) const;

 private:
  double factor_;
};

// What decides on the scale of all windows: the system's font, the user's zoom, and the room on the screen.
class Scaling {
 public:
  // Pixels of a line of text below which nothing shrinks to fit a screen, at one dot to a pixel.
  static constexpr double kSmallestText = 9;

  // In percent.
  int Zoom() const { return zoom_; }
  // So many steps larger or smaller, or back to 100 percent with none. False if that changes nothing.
  bool ZoomBy(int steps);

  // The scale for a window that opens: as the system's font has it, but no larger than the room, in pixels,
  // unless it could not be read then; and then the user's zoom.
  Scale Opening(const QSize& twips, const QSize& room, double devicePixelRatio) const;
  // The scale at which the picture fills the room, in its proportions.
  Scale Filling(const QSize& twips, const QSize& room, double devicePixelRatio) const;
  // The system's font at that scale.
  QFont FontAt(const Scale& scale) const;

  // What is free of the screen for a window and its title, in pixels.
  QSize FreeArea(const QWidget& window) const;
  // Another screen than there is: for pictures and tests.
  std::optional<QSize> screen;

 private:
  double Legible(double devicePixelRatio) const;

  int zoom_ = 100;
};

// What a window shows: all its controls, in one scale. It stands in the window, scrolled where it is larger.
class Sheet : public QWidget {
 public:
  using QWidget::QWidget;

  const Scale& GetScale() const { return scale_; }
  void SetScale(const Scale& scale) { scale_ = scale; }
  std::function<void()> onPaint;

 protected:
  void paintEvent(QPaintEvent*) override {
    if (onPaint) onPaint();
  }

 private:
  Scale scale_;
};

// The scale of the sheet that the widget stands on; that of the design for any other.
Scale ScaleOf(const QWidget* widget);

}  // namespace vicetoll
