// The Vicetoll Financial Calculator.
#include <QIcon>
#include <cstdio>

#include "desktop/run_program.h"

int main(int argc, char** argv) {
  // Qt ends a program without a display before it can say a word.
  const auto none = [](const char* name) { return qEnvironmentVariableIsEmpty(name); };
  if (none("DISPLAY") && none("WAYLAND_DISPLAY") && none("QT_QPA_PLATFORM")) {
    std::fputs("vicetoll: there is no display to open a window on.\n", stderr);
    return 1;
  }
  vicetoll::GuardedApplication application(argc, argv);
  vicetoll::GuardedApplication::setWindowIcon(QIcon(QStringLiteral(":/vicetoll.png")));
  return vicetoll::RunProgram(application);
}
