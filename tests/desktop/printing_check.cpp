// SPDX-License-Identifier: GPL-3.0-or-later
// Prints that fail, and runs that are ended from outside.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>
#include <csignal>

#include "desktop/printing.h"
#include "desktop/run_program.h"
#include "entries/entries_file.h"

namespace vicetoll {
namespace {

bool PrintTo(const QString& file, PrintJob& print) {
  print.Printer().setOutputFormat(QPrinter::PdfFormat);
  print.Printer().setOutputFileName(file);
  return print.Print("a report") && print.Close();
}

bool Says(const PrintJob& print, const char* words) {
  return print.Problem().find(words) != std::string::npos;
}

TEST(FailingPrint, OnAFullDiskSaysSo) {
  PrintJob print;
  EXPECT_FALSE(PrintTo(QStringLiteral("/dev/full"), print));
  EXPECT_TRUE(Says(print, "No space left on device")) << print.Problem();
}

TEST(FailingPrint, InAFolderThatIsNotThereSaysSo) {
  PrintJob print;
  EXPECT_FALSE(PrintTo(QStringLiteral("/no/such/report.pdf"), print));
  EXPECT_TRUE(Says(print, "/no/such/report.pdf")) << print.Problem();
}

TEST(FailingPrint, WithoutAPrinterSaysSo) {
  PrintJob print;
  EXPECT_FALSE(PrintTo({}, print));
  EXPECT_TRUE(Says(print, "no printer, and no file")) << print.Problem();
}

// A limit stands in for the disk that fills up in the middle.
TEST(FailingPrint, LeavesTheFileThatWasThere) {
  const QTemporaryDir room;
  const QString name = room.filePath(QStringLiteral("report.pdf"));
  {
    QFile old(name);
    ASSERT_TRUE(old.open(QIODevice::WriteOnly));
    old.write("the old one");
  }
  rlimit before;
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit tight{500, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &tight);
  PrintJob print;
  const bool printed = PrintTo(name, print);
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_FALSE(printed);
  EXPECT_TRUE(Says(print, "File too large")) << print.Problem();
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.readAll(), "the old one");
}

// Everything is there at once: whatever ends the run takes nothing away.
TEST(Print, ToAFileIsWholeBeforeThePrintIsClosed) {
  const QTemporaryDir room;
  const QString name = room.filePath(QStringLiteral("report.pdf"));
  PrintJob print;
  print.Printer().setOutputFormat(QPrinter::PdfFormat);
  print.Printer().setOutputFileName(name);
  EXPECT_TRUE(print.Print("a report"));
  QFile file(name);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().trimmed().endsWith("%%EOF"));
}

int RunEndedBy(int signal) {
  QTimer::singleShot(50, [signal] { std::raise(signal); });
  return RunProgram(dynamic_cast<GuardedApplication&>(*QCoreApplication::instance()));
}

// Files of entries in the user's data folder.
QStringList Rescued(const QTemporaryDir& data) {
  QStringList found;
  QDirIterator files(data.path(), {QStringLiteral("*.vicetoll")}, QDir::Files, QDirIterator::Subdirectories);
  while (files.hasNext()) found << files.next();
  return found;
}

void Press(const char* name) {
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (auto* button = widget->findChild<QPushButton*>(QLatin1String(name)); button && button->isVisible())
      return button->click();
}

TEST(ARunEndedFromOutside, ClosesWhatIsOpen) {
  const QTemporaryDir data;
  qputenv("XDG_DATA_HOME", data.path().toUtf8());
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) EXPECT_EQ(RunEndedBy(signal), 128 + signal);
  qunsetenv("XDG_DATA_HOME");
  EXPECT_TRUE(Rescued(data).isEmpty());  // nothing was set
}

TEST(ARunEndedFromOutside, KeepsWhatWasSetAndSaysWhere) {
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    QTimer::singleShot(0, [] { Press("cmdSetPeriodParamsPast"); });
    testing::internal::CaptureStderr();
    EXPECT_EQ(RunEndedBy(signal), 128 + signal);
    const std::string told = testing::internal::GetCapturedStderr();
    qunsetenv("XDG_DATA_HOME");
    const QStringList files = Rescued(data);
    ASSERT_EQ(files.size(), 1);
    const Entries entries = ReadEntries(ReadEntriesBytes(files[0].toStdString()));
    EXPECT_EQ(entries.sins.at(0).past.periods.size(), 1u);
    EXPECT_NE(told.find(files[0].toStdString()), std::string::npos) << told;
  }
}

// While a box is open that tells of a file which cannot be opened.
TEST(ARunEndedFromOutside, EndsBeforeItHasBegun) {
  const QTemporaryDir room;
  QTimer::singleShot(50, [] { std::raise(SIGTERM); });
  // A run that has not heard it ends here, and otherwise.
  QTimer unheard;
  unheard.setSingleShot(true);
  QObject::connect(&unheard, &QTimer::timeout, [] { QCoreApplication::exit(0); });
  unheard.start(3000);
  const std::string none = room.filePath(QStringLiteral("none.vicetoll")).toStdString();
  EXPECT_EQ(RunProgram(dynamic_cast<GuardedApplication&>(*QCoreApplication::instance()), none),
            128 + SIGTERM);
}

// A first save without a name is a fault: not when its dialog is closed by the end of the run.
TEST(ARunEndedFromOutside, EndsAsAskedWithTheDialogOfAFirstSaveOpen) {
  for (const char* report : {"cmdAdvResultsSpdPast", "cmdAdvResultsDocPast"}) {
    const QTemporaryDir data;
    qputenv("XDG_DATA_HOME", data.path().toUtf8());
    bool asked = false;
    QTimer::singleShot(0, [report] {
      for (const char* button : {"cmdSetPeriodParamsPast", report, "cmdSaveAs"}) Press(button);
    });
    QTimer::singleShot(25, [&asked] { asked = QApplication::activeModalWidget() != nullptr; });
    testing::internal::CaptureStderr();
    EXPECT_EQ(RunEndedBy(SIGTERM), 128 + SIGTERM) << report;
    testing::internal::GetCapturedStderr();
    qunsetenv("XDG_DATA_HOME");
    EXPECT_TRUE(asked) << report;
    EXPECT_EQ(Rescued(data).size(), 1) << report;
  }
}

}  // namespace
}  // namespace vicetoll
