// SPDX-License-Identifier: GPL-3.0-or-later
// The Vicetoll Financial Calculator.
#include <QIcon>
#include <cstdio>

#include "base/version.h"
#include "desktop/command_line.h"
#include "desktop/run_program.h"
#include "desktop/toolkit_messages.h"
#include "desktop/tour.h"

namespace {

// What the application is known by: to the window system, which shows the icon of the desktop entry, and to
// the folders of the user's data.
void NameApplication() {
  using vicetoll::kVersion;
  QCoreApplication::setApplicationName(QStringLiteral("vicetoll"));
  QCoreApplication::setApplicationVersion(
      QString::fromLatin1(kVersion.data(), static_cast<qsizetype>(kVersion.size())));
  QGuiApplication::setDesktopFileName(QStringLiteral("vicetoll"));
}

}  // namespace

int main(int argc, char** argv) {
  const vicetoll::CommandLine line = vicetoll::ReadCommandLine(argc, argv);
  if (line.status) return *line.status;
  NameApplication();
  const bool tour = !line.tourFolder.empty();
  if (tour) qputenv("QT_QPA_PLATFORM", "offscreen");
  // Qt ends a program without a display before it can say a word.
  const auto none = [](const char* name) { return qEnvironmentVariableIsEmpty(name); };
  if (!line.namesDisplay && none("DISPLAY") && none("WAYLAND_DISPLAY") && none("QT_QPA_PLATFORM")) {
    std::fputs("vicetoll: there is no display to open a window on.\n", stderr);
    return 1;
  }
  vicetoll::FilterToolkitMessages();
  vicetoll::GuardedApplication application(argc, argv);
  vicetoll::GuardedApplication::setWindowIcon(QIcon(QStringLiteral(":/vicetoll.png")));
  if (tour) return vicetoll::TakeTour(QString::fromStdString(line.tourFolder));
  return vicetoll::RunProgram(application, line.file);
}
