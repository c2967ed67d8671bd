// SPDX-License-Identifier: GPL-3.0-or-later
// A balloon of help: a rounded body with a stem that points at what it explains.
#pragma once

#include <QWidget>
#include <optional>

namespace vicetoll {

// Stays until it is deleted. It is painted over the window's other widgets, so it cannot leave the window,
// and it is smooth on every screen; a window of its own would have black corners where no compositor runs.
class BalloonWidget : public QWidget {
 public:
  // The lines of the text end in LF and stay lines. `next` is the control that the user goes on to, nullptr
  // if there is none; `pointer` is the mouse in pixels of the window, where it has called the balloon up.
  BalloonWidget(const QString& text, QWidget* owner, QWidget* window, const QWidget* next,
                std::optional<QPoint> pointer);

  const QWidget* Owner() const { return owner_; }
  const QString& Text() const { return text_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString text_;
  const QWidget* owner_;
  QRect body_;    // without the stem
  QPoint point_;  // of the stem
  int padding_ = 0, stemWidth_ = 0;
};

}  // namespace vicetoll
