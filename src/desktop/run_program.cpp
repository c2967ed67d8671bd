#include "desktop/run_program.h"

#include <new>

#include "base/fault.h"
#include "desktop/desktop.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"

namespace vicetoll {
namespace {

void Tell(const std::exception& cause) {
  std::string text = cause.what();
  // A fault speaks plainly; what a library says of itself is for whoever mends it.
  if (dynamic_cast<const std::bad_alloc*>(&cause) != nullptr)
    text = "There is not enough memory.";
  else if (dynamic_cast<const Fault*>(&cause) == nullptr)
    text = "Something went wrong inside the program (" + text + ").";
  text += "\r\n\r\nThe program cannot go on and ends now. Results that were not saved are gone.";
  const std::unique_ptr<QMessageBox> box = MakeMessageBox({}, text, MessageButtons::Ok);
  box->setIcon(QMessageBox::Critical);
  box->exec();
}

}  // namespace

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception& cause) {
    if (!onException) throw;
    onException(cause);
    return false;
  }
}

int RunProgram(GuardedApplication& application) {
  ApplyLook(application);
  // Windows hide and come back; the program ends when the core says so.
  application.setQuitOnLastWindowClosed(false);
  QtPlatform platform;
  int status = 1;
  try {
    Program program(platform);
    Desktop desktop(program);
    platform.beforeWaiting = [&desktop] { desktop.Flush(); };
    desktop.onEnded = [] { QCoreApplication::exit(0); };
    desktop.onFault = [](const std::exception& cause) {
      Tell(cause);
      QCoreApplication::exit(1);
    };
    application.onException = [&desktop](const std::exception& cause) { desktop.Fail(cause); };
    status = QCoreApplication::exec();
  } catch (const std::exception& cause) {  // before the first window is up
    Tell(cause);
  }
  application.onException = nullptr;
  return status;
}

}  // namespace vicetoll
