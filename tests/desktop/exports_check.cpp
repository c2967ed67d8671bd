// SPDX-License-Identifier: GPL-3.0-or-later
// What scenarios cannot say of taking things along.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {
namespace {

TEST(TakingAlong, CtrlCInACellOfAllSinsCopiesTheTickedRows) {
  ScriptedPlatform platform;
  Program program(platform);
  Desktop desktop(program);
  desktop.Enter([&] { program.At(0).Get<Button>("cmdCombinedResults").UserClicks(); });
  FormWindow& window = desktop.WindowOf(program.Combined());
  window.activateWindow();
  QApplication::processEvents();
  auto* cell = window.findChild<QLineEdit*>(QStringLiteral("txtOopSins(3)"));
  ASSERT_NE(cell, nullptr);
  cell->setFocus();
  cell->selectAll();
  QTest::keyClick(cell, Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(platform.clipboard.starts_with("Smoking\t$0\t")) << platform.clipboard;
}

}  // namespace
}  // namespace vicetoll
