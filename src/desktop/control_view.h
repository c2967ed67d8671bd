// SPDX-License-Identifier: GPL-3.0-or-later
// Shows one control as a widget, and hands on what the user does to it.
#pragma once

#include <QWidget>
#include <memory>

#include "controls/control.h"

namespace vicetoll {

class Desktop;

class ControlView {
 public:
  ControlView(Control& control, QWidget* widget) : control_(control), widget_(widget) {}
  virtual ~ControlView() = default;

  Control& Model() const { return control_; }
  QWidget* Widget() const { return widget_; }

  // Where a control stands whose container this one is.
  virtual QWidget* Ground(int) const { return widget_; }
  // The widget that takes the focus and the pointer for this control.
  virtual QWidget* Hand() const { return widget_; }

  // Takes the colours of the theme in force, where the palette of the window does not bring them.
  virtual void TakeTheme() {}
  // Takes the scale of its sheet, where place and font do not bring it.
  virtual void TakeScale() {}

  // Brings the widget in step with the control.
  void Update();

 protected:
  // What the kind of control has beyond place, tool tip, enabled and visible.
  virtual void UpdateContents() = 0;

 private:
  Control& control_;
  QWidget* widget_;
  std::string toolTip_;  // as the widget has it
};

// The view for a control, by its kind. MenuEntry has none: those stand in the window's menu.
std::unique_ptr<ControlView> MakeView(Control& control, QWidget* parent, Desktop& desktop);

}  // namespace vicetoll
