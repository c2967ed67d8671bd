// SPDX-License-Identifier: GPL-3.0-or-later
// scenario-desktop FILE: plays a scenario on the real widgets. "-" reads standard input. Without a word
// about the platform it draws nowhere.
#include <QApplication>

#include "desktop/look.h"
#include "desktop/toolkit_messages.h"
#include "desktop/widget_stage.h"
#include "scenario/play_file.h"

int main(int argc, char** argv) {
  using namespace vicetoll;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  FilterToolkitMessages();
  QApplication application(argc, argv);
  ApplyLook(application);
  application.setQuitOnLastWindowClosed(false);
  return PlayFile(argc, argv, [](std::istream& lines, const PrintLine& print) {
    WidgetPlatform platform(print);
    Player player(platform, print,
                  [&platform](Program& program) { return MakeWidgetStage(program, platform); });
    return player.Play(lines);
  });
}
