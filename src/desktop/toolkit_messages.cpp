// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/toolkit_messages.h"

#include <QString>
#include <QtGlobal>
#include <cstdio>
#include <cstdlib>

namespace vicetoll {
namespace {

QtMessageHandler toolkitsOwn = nullptr;

constexpr const char* kIdleTalk[] = {
    "QStandardPaths: XDG_RUNTIME_DIR not set",
    "QStandardPaths: wrong permissions on runtime directory",
    "QStandardPaths: runtime directory",
    "This plugin does not support",
};

// Before the end by its own word the toolkit tells at length which plugins there are and that the program
// should be installed again; that helps nobody whose display is away.
constexpr const char* kNoDisplay[] = {
    "could not connect to display",
    "Could not load the Qt platform plugin",
    "Could not find the Qt platform plugin",
    "Failed to create wl_display",
    "no Qt platform plugin could be initialized",
    "From 6.5.0, xcb-cursor0",
};

template <std::size_t N>
bool Holds(const QString& message, const char* const (&words)[N]) {
  for (const char* word : words)
    if (message.contains(QLatin1String(word))) return true;
  return false;
}

void Handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (type == QtFatalMsg && Holds(message, kNoDisplay)) {
    std::fputs("vicetoll: the display cannot be reached, so there is no window to open.\n", stderr);
    std::_Exit(1);
  }
  if (Holds(message, kIdleTalk) || Holds(message, kNoDisplay)) return;
  toolkitsOwn(type, context, message);
}

}  // namespace

void FilterToolkitMessages() {
  const QtMessageHandler before = qInstallMessageHandler(Handle);
  if (before != Handle) toolkitsOwn = before;
}

}  // namespace vicetoll
