// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/run_program.h"

#include <csignal>
#include <cstdio>
#include <new>
#include <optional>

#include "base/fault.h"
#include "desktop/desktop.h"
#include "desktop/look.h"
#include "desktop/qt_platform.h"
#include "desktop/termination.h"

namespace vicetoll {
namespace {

// `rescued` is the file that the entries were written to, empty if there is none.
void Tell(const std::exception& cause, const std::string& rescued) {
  std::string text = cause.what();
  // A fault speaks plainly; what a library says of itself is for whoever mends it.
  if (dynamic_cast<const std::bad_alloc*>(&cause) != nullptr)
    text = "There is not enough memory.";
  else if (dynamic_cast<const Fault*>(&cause) == nullptr)
    text = "Something went wrong inside the program (" + text + ").";
  text += "\n\nThe program cannot go on and ends now. ";
  if (rescued.empty())
    text += "Results that were not saved are gone, and so is what you entered and did not save.";
  else
    text += "Results that were not saved are gone. What you entered is in the file \"" + rescued +
            "\": open it with the button Open, or start with it.";
  if (const auto* fault = dynamic_cast<const Fault*>(&cause))
    text += "\n\n" + std::string(HowToAvoid(fault->Kind()));
  text += "\n\nSave what you enter now and then, with the button Save: then little is ever lost.";
  const std::unique_ptr<QMessageBox> box =
      MakeMessageBox({}, QString::fromStdString(text), MessageButtons::Ok);
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

int RunProgram(GuardedApplication& application, const std::string& file) {
  ApplyLook(application);
  // Windows hide and come back; the program ends when the core says so.
  application.setQuitOnLastWindowClosed(false);
  // Beyond the shell's limit for files a write fails, and does not kill the program.
  std::signal(SIGXFSZ, SIG_IGN);
  QtPlatform platform;
  std::function<void()> keepEntries;
  std::optional<int> asked;  // to end, with this status
  const Termination termination([&](int signal) {
    platform.NobodyThere();
    // Now, not on the way out: the display may be gone in a moment.
    if (keepEntries) keepEntries();
    asked = 128 + signal;
    QCoreApplication::exit(*asked);
  });
  int status = 1;
  try {
    Program program(platform);
    Desktop desktop(program);
    keepEntries = [&] {
      const std::string rescued = program.Keeper().Rescue(platform.DataFolder());
      if (!rescued.empty())
        std::fprintf(stderr, "vicetoll: What you entered is in the file \"%s\".\n", rescued.c_str());
    };
    platform.beforeWaiting = [&desktop] { desktop.Flush(); };
    desktop.onEnded = [] { QCoreApplication::exit(0); };
    desktop.onFault = [&](const std::exception& cause) {
      // Such as a first save without a name, whose dialog closed unanswered: the run ends anyway.
      if (asked) return;
      Tell(cause, program.Keeper().Rescue(platform.DataFolder()));
      QCoreApplication::exit(1);
    };
    application.onException = [&desktop](const std::exception& cause) { desktop.Fail(cause); };
    const auto open = [&] { desktop.Enter([&] { program.Keeper().OpenFile(file); }); };
    // As the first event: whoever asks for the end before the loop runs is not heard.
    if (!file.empty()) QMetaObject::invokeMethod(&application, open, Qt::QueuedConnection);
    status = QCoreApplication::exec();
    keepEntries = nullptr;
  } catch (const std::exception& cause) {  // before the first window is up
    Tell(cause, {});
  }
  application.onException = nullptr;
  return asked.value_or(status);
}

}  // namespace vicetoll
