// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/places.h"

#include <QCoreApplication>
#include <QDir>

namespace vicetoll {
namespace {

// A built program has all of it beside itself; an installed one at a fixed way from its bin folder, which is
// the same in every prefix.
QString FromProgram(const char* way) {
  const QString beside = QCoreApplication::applicationDirPath();
  const QString installed = QDir::cleanPath(beside + u'/' + QString::fromLatin1(way));
  return QDir(installed).exists() ? installed : beside;
}

}  // namespace

QString TextsFolder() { return FromProgram(VICETOLL_WAY_TO_TEXTS); }
QString ModulesFolder() { return FromProgram(VICETOLL_WAY_TO_MODULES); }

}  // namespace vicetoll
