// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/command_line.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFile>
#include <cstdio>

#include "base/version.h"

namespace vicetoll {
namespace {

// Options that the toolkit takes out of the line itself; all but the last have a value behind them.
constexpr const char* kToolkitOptions[] = {
    "platform",    "platformpluginpath", "platformtheme", "plugin",     "qwindowgeometry",
    "qwindowicon", "qwindowtitle",       "style",         "stylesheet", "session",
    "display",     "geometry",           "reverse"};

// The line without the toolkit's options and their values.
QStringList OwnArguments(const QStringList& arguments) {
  QStringList own;
  for (qsizetype i = 0; i < arguments.size(); ++i) {
    const QString& argument = arguments[i];
    bool toolkit = false;
    for (const char* option : kToolkitOptions) {
      const QString name = QString::fromLatin1(option);
      if (argument != u'-' + name && argument != QStringLiteral("--") + name) continue;
      toolkit = true;
      if (name != QStringLiteral("reverse")) ++i;
    }
    if (!toolkit) own << argument;
  }
  return own;
}

bool NamesDisplay(const QStringList& arguments) {
  for (const char* option : {"-platform", "--platform", "-display", "--display"})
    if (arguments.contains(QLatin1String(option))) return true;
  return false;
}

void Print(std::FILE* to, const QString& text) { std::fputs(qUtf8Printable(text), to); }

}  // namespace

CommandLine ReadCommandLine(int argc, char** argv) {
  // The parser asks the application for its name and version; one that needs no display will do.
  const QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("vicetoll"));
  QCoreApplication::setApplicationVersion(
      QString::fromLatin1(kVersion.data(), static_cast<qsizetype>(kVersion.size())));

  QCommandLineParser parser;
  parser.setApplicationDescription(
      QStringLiteral("What a costly habit costs, and what the money would have grown to."));
  const QCommandLineOption help = parser.addHelpOption();
  const QCommandLineOption version = parser.addVersionOption();
  const QCommandLineOption tour(
      QStringLiteral("tour"),
      QStringLiteral("Take a short walk through the program without a display, and draw it into <folder>."),
      QStringLiteral("folder"));
  parser.addOption(tour);
  parser.addPositionalArgument(QStringLiteral("file"), QStringLiteral("Saved entries to open."),
                               QStringLiteral("[file]"));

  CommandLine line;
  line.namesDisplay = NamesDisplay(QCoreApplication::arguments());
  QString wrong;
  if (!parser.parse(OwnArguments(QCoreApplication::arguments())))
    wrong = parser.errorText();
  else if (parser.positionalArguments().size() > 1)
    wrong = QStringLiteral("One file can be opened, not %1.").arg(parser.positionalArguments().size());
  if (!wrong.isEmpty()) {
    Print(stderr, QStringLiteral("vicetoll: %1 \"vicetoll --help\" tells the options.\n").arg(wrong));
    line.status = 2;
  } else if (parser.isSet(help)) {
    Print(stdout, parser.helpText());
    line.status = 0;
  } else if (parser.isSet(version)) {
    Print(stdout, QStringLiteral("vicetoll %1\n").arg(QCoreApplication::applicationVersion()));
    line.status = 0;
  } else {
    line.file = QFile::encodeName(parser.positionalArguments().value(0)).toStdString();
    line.tourFolder = QFile::encodeName(parser.value(tour)).toStdString();
  }
  return line;
}

}  // namespace vicetoll
