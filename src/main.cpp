// The Vicetoll Financial Calculator.
#include <QFile>
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
  // What Qt understands is taken out of the arguments; what remains may be a file of entries.
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() > 2) {
    std::fputs("usage: vicetoll [FILE]\n", stderr);
    return 2;
  }
  return vicetoll::RunProgram(application, QFile::encodeName(arguments.value(1)).toStdString());
}
