#include "desktop/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrinter>
#include <QTimer>
#include <QUrl>

#include "base/file_writer.h"
#include "desktop/printing.h"
#include "desktop/text.h"

namespace vicetoll {

QString ProgramName() { return QStringLiteral("The Vicetoll Financial Calculator"); }

std::unique_ptr<QMessageBox> MakeMessageBox(std::string_view title, std::string_view text,
                                            MessageButtons buttons) {
  auto box = std::make_unique<QMessageBox>(QApplication::activeWindow());
  box->setWindowTitle(title.empty() ? ProgramName() : ToQt(title));
  box->setTextFormat(Qt::PlainText);
  box->setText(ToQt(text).replace(QStringLiteral("\r\n"), QStringLiteral("\n")));
  box->setIcon(buttons == MessageButtons::Ok ? QMessageBox::Information : QMessageBox::Question);
  box->setStandardButtons(buttons == MessageButtons::Ok ? QMessageBox::Ok
                                                        : QMessageBox::Ok | QMessageBox::Cancel);
  box->setDefaultButton(QMessageBox::Ok);
  return box;
}

QtPlatform::QtPlatform() = default;
QtPlatform::~QtPlatform() = default;

void QtPlatform::ShowChanges() const {
  if (beforeWaiting) beforeWaiting();
}

MonthAndYear QtPlatform::Now() {
  const QDate today = QDate::currentDate();
  return {today.month(), today.year()};
}

Answer QtPlatform::ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) {
  ShowChanges();
  return MakeMessageBox(title, text, buttons)->exec() == QMessageBox::Ok ? Answer::Ok : Answer::Cancel;
}

void QtPlatform::Tell(const QString& text) {
  const std::unique_ptr<QMessageBox> box = MakeMessageBox({}, {}, MessageButtons::Ok);
  box->setText(text);
  box->exec();
}

std::optional<std::string> QtPlatform::AskSavePath(std::string_view lastPath) {
  ShowChanges();
  // Without a name of this run the dialog begins in the folder that the program was started in; left to
  // itself it would remember one from an earlier run.
  const QString start =
      lastPath.empty()
          ? QDir::currentPath()
          : QFile::decodeName(QByteArray(lastPath.data(), static_cast<qsizetype>(lastPath.size())));
  const QString path =
      QFileDialog::getSaveFileName(QApplication::activeWindow(), QStringLiteral("Save As"), start);
  if (path.isEmpty()) return std::nullopt;
  return QFile::encodeName(path).toStdString();
}

void QtPlatform::WriteFile(const std::string& path, std::string_view bytes) { WriteWholeFile(path, bytes); }

void QtPlatform::Print(std::string_view text, bool selection) {
  if (const auto print = AskAndPrint(text, selection)) print->Close();
}

void QtPlatform::PrintKeepingPageOpen(std::string_view text, bool selection) {
  openPrint_ = AskAndPrint(text, selection);
}

// What was printed, its last page still open; nothing if it went nowhere, which the user is told.
std::unique_ptr<PrintJob> QtPlatform::AskAndPrint(std::string_view text, bool selection) {
  ShowChanges();
  openPrint_.reset();  // the next print lets the open page out
  auto print = std::make_unique<PrintJob>();
  QPrinter& printer = print->Printer();
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setOption(QAbstractPrintDialog::PrintSelection, selection);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.exec();  // a cancelled dialog prints all the same
  if (print->Print(text)) return print;
  TellNothingPrinted(printer);
  return nullptr;
}

void QtPlatform::TellNothingPrinted(const QPrinter& printer) {
  if (printer.outputFileName().isEmpty())
    Tell(QStringLiteral("Nothing was printed: there is no printer, and no file was named to print to."));
  else
    Tell(QStringLiteral("Nothing was printed: %1 could not be written.").arg(printer.outputFileName()));
}

void QtPlatform::PrintPicture(std::string_view svg, std::string_view) {
  ShowChanges();
  openPrint_.reset();  // the next print lets the open page out
  PrintJob print;
  QPrinter& printer = print.Printer();
  printer.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!print.PrintPicture(svg) || !print.Close()) TellNothingPrinted(printer);
}

void QtPlatform::SetClipboardPicture(std::string_view png, std::string_view text) {
  auto* both = new QMimeData;
  both->setText(ToQt(text));
  both->setImageData(
      QImage::fromData(reinterpret_cast<const uchar*>(png.data()), static_cast<int>(png.size())));
  QApplication::clipboard()->setMimeData(both);
}

void QtPlatform::SetClipboard(std::string_view text) { QApplication::clipboard()->setText(ToQt(text)); }

std::string QtPlatform::Clipboard() { return FromQt(QApplication::clipboard()->text()); }

std::string QtPlatform::ProgramFolder() {
  return QFile::encodeName(QCoreApplication::applicationDirPath()).toStdString();
}

void QtPlatform::Browse(std::string_view url) {
  if (!QDesktopServices::openUrl(QUrl(ToQt(url))))
    Tell(QStringLiteral("No browser could be opened for %1.").arg(ToQt(url)));
}

void QtPlatform::Pause(int milliseconds) {
  ShowChanges();
  QEventLoop loop;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
  timer.start(milliseconds);
  loop.exec();
}

}  // namespace vicetoll
