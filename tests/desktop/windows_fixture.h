// SPDX-License-Identifier: GPL-3.0-or-later
// A whole program in windows, for tests that look at them and operate them.
#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QHelpEvent>
#include <QTest>

#include "desktop/activation.h"
#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {

class Windows : public testing::Test {
 protected:
  FormWindow& Of(Form& form) { return desktop.WindowOf(form); }
  QWidget& Widget(Form& form, const char* name) { return *Of(form).WidgetOf(*form.Find(name)); }
  SinWorkspace& Smoking() { return program.At(0); }

  // Brings a sin's window to the front, as the chooser would.
  SinWorkspace& Visit(int sin) {
    desktop.Enter([&] { program.Current().cmdSwitchSins->UserClicks(); });
    desktop.Enter([&] { program.Chooser().Get<Option>("OptSwitchSins", sin).UserClicks(); });
    return program.At(sin);
  }
  // The widget of a report on Smoking's past, opened by that button.
  template <class W>
  W& Report(Button* SideControls::*button, Control& control) {
    SideControls& past = Smoking().Of(Side::Past);
    desktop.Enter([&] { past.cmdSetPeriodParams->UserClicks(); });
    desktop.Enter([&] { (past.*button)->UserClicks(); });
    return dynamic_cast<W&>(*Of(control.Window()).WidgetOf(control));
  }
  void Open(SinWorkspace& ws, int tab) {
    desktop.Enter([&] { ws.SSTab_PastFutureSwitch->UserSelects(tab); });
  }
  void Activate(QWidget& window) { ASSERT_TRUE(BringToFront(window)); }
  void Hover(QWidget& widget) {
    QHelpEvent hover(QEvent::ToolTip, QPoint(3, 3), widget.mapToGlobal(QPoint(3, 3)));
    QApplication::sendEvent(&widget, &hover);
  }

  ScriptedPlatform platform{[](const std::string&) {}};
  Program program{platform};
  Desktop desktop{program};
};

}  // namespace vicetoll
