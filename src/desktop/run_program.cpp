#include "desktop/run_program.h"

#include <QApplication>

#include "desktop/desktop.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"

namespace vicetoll {
namespace {

void TellFault(const Fault& fault) {
  const std::string text =
      std::string(fault.what()) +
      "\r\n\r\nThe program cannot go on and ends now. Results that were not saved are gone.";
  const std::unique_ptr<QMessageBox> box = MakeMessageBox({}, text, MessageButtons::Ok);
  box->setIcon(QMessageBox::Critical);
  box->exec();
}

}  // namespace

int RunProgram(QApplication& application) {
  ApplyLook(application);
  // Windows hide and come back; the program ends when the core says so.
  application.setQuitOnLastWindowClosed(false);
  QtPlatform platform;
  try {
    Program program(platform);
    Desktop desktop(program);
    platform.beforeWaiting = [&desktop] { desktop.Flush(); };
    desktop.onEnded = [] { QCoreApplication::exit(0); };
    desktop.onFault = [](const Fault& fault) {
      TellFault(fault);
      QCoreApplication::exit(1);
    };
    return application.exec();
  } catch (const Fault& fault) {  // before the first window is up
    TellFault(fault);
    return 1;
  }
}

}  // namespace vicetoll
