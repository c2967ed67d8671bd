// SPDX-License-Identifier: GPL-3.0-or-later
// What the keyboard does in a window beyond what widgets do by themselves: one Tab stop for each group,
// arrows within it, Enter, Escape, and the keys that mean the same everywhere.
#pragma once

#include <QObject>
#include <unordered_map>

#include "controls/form.h"

class QKeyEvent;
class QWidget;

namespace vicetoll {

class Desktop;
class FormWindow;

class WindowKeys : public QObject {
 public:
  WindowKeys(FormWindow& window, Desktop& desktop);

  // The widget takes the focus for the control.
  void Watch(Control& control, QWidget& hand);
  void FocusOn(const Control& control);

  // Lets the Tab key stop once in each group: where the focus is, or was last where arrows do not choose, or
  // where the group says.
  void UpdateStops();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool TakeKey(Control& control, const QKeyEvent& key);
  bool TakeArrow(Control& control, const FocusGroup& group, Arrow arrow);
  bool Press(Control& control);
  bool Escape();
  bool OpenMenu();
  void UpdateStop(const FocusGroup& group);

  FormWindow& window_;
  Desktop& desktop_;
  std::unordered_map<const QObject*, Control*> controlOf_;
  std::unordered_map<const Control*, QWidget*> handOf_;
  std::unordered_map<const Control*, const FocusGroup*> groupOf_;
  std::unordered_map<const FocusGroup*, const Control*> lastIn_;  // the group had the focus
};

}  // namespace vicetoll
