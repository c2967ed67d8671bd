// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/termination.h"

#include <sys/socket.h>
#include <unistd.h>

#include <csignal>

namespace vicetoll {
namespace {

constexpr int kSignals[] = {SIGTERM, SIGINT, SIGHUP};

// A signal finds its way by nothing but a global.
int signalSockets[2] = {-1, -1};

extern "C" void PassOn(int signal) {
  const char byte = static_cast<char>(signal);
  if (write(signalSockets[0], &byte, 1) != 1) _exit(128 + signal);
}

int MakeSockets() {
  // Without them the signals keep their way of killing.
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, signalSockets) != 0) return -1;
  struct sigaction action {};
  action.sa_handler = PassOn;
  action.sa_flags = static_cast<int>(SA_RESTART | SA_RESETHAND);
  for (const int signal : kSignals) {
    struct sigaction before {};
    // What whoever started the program had ignored stays so, as under nohup.
    if (sigaction(signal, nullptr, &before) == 0 && before.sa_handler != SIG_IGN)
      sigaction(signal, &action, nullptr);
  }
  return signalSockets[1];
}

}  // namespace

Termination::Termination(std::function<void(int)> onSignal)
    : onSignal_(std::move(onSignal)), notifier_(MakeSockets(), QSocketNotifier::Read) {
  QObject::connect(&notifier_, &QSocketNotifier::activated, [this] {
    char signal = 0;
    if (read(signalSockets[1], &signal, 1) == 1) onSignal_(signal);
  });
}

Termination::~Termination() {
  for (const int signal : kSignals) {
    struct sigaction action {};
    if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == PassOn) std::signal(signal, SIG_DFL);
  }
  notifier_.setEnabled(false);
  for (int& end : signalSockets) {
    if (end != -1) close(end);
    end = -1;
  }
}

}  // namespace vicetoll
