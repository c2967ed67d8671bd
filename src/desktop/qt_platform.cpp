// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/qt_platform.h"

#include <QApplication>
#include <QClipboard>
#include <QDate>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPaintEngine>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSettings>
#include <QStandardPaths>
#include <QTimer>
#include <QUrl>
#include <cstdio>

#include "base/file_writer.h"
#include "base/places.h"
#include "desktop/page_progress.h"
#include "desktop/preview.h"
#include "desktop/printing.h"
#include "desktop/report_pages.h"
#include "desktop/text.h"

namespace vicetoll {

QString ProgramName() { return QStringLiteral("The Vicetoll Financial Calculator"); }

std::unique_ptr<QMessageBox> MakeMessageBox(const QString& title, const QString& text,
                                            MessageButtons buttons) {
  auto box = std::make_unique<QMessageBox>(QApplication::activeWindow());
  box->setWindowTitle(title.isEmpty() ? ProgramName() : title);
  box->setTextFormat(Qt::PlainText);
  box->setText(text);
  box->setIcon(buttons == MessageButtons::Ok ? QMessageBox::Information : QMessageBox::Question);
  switch (buttons) {
    case MessageButtons::Ok:
      box->setStandardButtons(QMessageBox::Ok);
      break;
    case MessageButtons::OkCancel:
      box->setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel);
      break;
    case MessageButtons::SaveDiscardCancel:
      box->setStandardButtons(QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
      box->button(QMessageBox::Discard)->setText(QStringLiteral("&Discard"));
      break;
  }
  box->setDefaultButton(ButtonFor(Answer::Ok, buttons));
  return box;
}

std::unique_ptr<QMessageBox> MakeMessageBox(std::string_view title, std::string_view text,
                                            MessageButtons buttons) {
  return MakeMessageBox(ToQt(title), ToQtLines(text), buttons);
}

QMessageBox::StandardButton ButtonFor(Answer answer, MessageButtons buttons) {
  if (answer == Answer::Cancel) return QMessageBox::Cancel;
  if (buttons != MessageButtons::SaveDiscardCancel) return QMessageBox::Ok;
  return answer == Answer::Ok ? QMessageBox::Save : QMessageBox::Discard;
}

Answer AnswerOf(int button) {
  if (button == QMessageBox::Ok || button == QMessageBox::Save) return Answer::Ok;
  return button == QMessageBox::Discard ? Answer::No : Answer::Cancel;
}

// Nothing is kept from one run to the next. Qt's file dialog would write the folders that were visited to a
// file of its own, whichever way it is closed: it is given a folder where no file can be.
QtPlatform::QtPlatform() {
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QStringLiteral("/dev/null"));
}

QtPlatform::~QtPlatform() { CloseOpenPrint(); }

void QtPlatform::ShowChanges() const {
  if (beforeWaiting) beforeWaiting();
}

MonthAndYear QtPlatform::Now() {
  const QDate today = QDate::currentDate();
  return {today.month(), today.year()};
}

Answer QtPlatform::ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) {
  ShowChanges();
  return AnswerOf(MakeMessageBox(title, text, buttons)->exec());
}

Answer QtPlatform::ShowFileMessage(std::string_view utf8, MessageButtons buttons) {
  ShowChanges();
  return AnswerOf(MakeMessageBox({}, QString::fromStdString(WithLineEnds(utf8, "\n")), buttons)->exec());
}

void QtPlatform::Tell(const QString& text) {
  if (nobodyThere_) {
    std::fprintf(stderr, "vicetoll: %s\n", qPrintable(text));
    return;
  }
  const std::unique_ptr<QMessageBox> box = MakeMessageBox(QString(), QString(), MessageButtons::Ok);
  box->setText(text);
  box->exec();
}

namespace {

// Where a dialog begins. Without a name of this run that is the folder that the program was started in; left
// to itself a dialog would remember one from an earlier run.
QString StartOf(std::string_view lastPath) {
  if (lastPath.empty()) return QDir::currentPath();
  return QFile::decodeName(QByteArray(lastPath.data(), static_cast<qsizetype>(lastPath.size())));
}

std::optional<std::string> Chosen(const QString& path) {
  if (path.isEmpty()) return std::nullopt;
  return QFile::encodeName(path).toStdString();
}

bool MayReplace(const QString& path) {
  const QString text = QStringLiteral("%1 is there already.\nDo you want to replace it?").arg(path);
  return AnswerOf(MakeMessageBox({}, text, MessageButtons::OkCancel)->exec()) == Answer::Ok;
}

// The file that the dialog is left with, its suffix that of a kind. Qt adds none to a name with a point in
// it.
std::optional<std::string> ChosenOf(const QStringList& kinds, QFileDialog& dialog) {
  while (dialog.exec() == QDialog::Accepted) {
    const QString path = dialog.selectedFiles().value(0);
    const QFileInfo file(path);
    const bool device = file.exists() && !file.isFile();
    if (path.isEmpty() || device || kinds.contains(file.suffix().toLower())) return Chosen(path);
    const QString whole = path + u'.' + dialog.defaultSuffix();
    if (!QFileInfo::exists(whole) || MayReplace(whole)) return Chosen(whole);
  }
  return std::nullopt;
}

// A name of a file to open may leave out the suffix; but a file that is there has the name that it has.
void TakeNamesOfFiles(QFileDialog& dialog, const QString& suffix) {
  dialog.setDefaultSuffix(suffix);
  auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (name == nullptr) return;
  QObject::connect(name, &QLineEdit::textChanged, &dialog, [&dialog, suffix](const QString& text) {
    const bool there = QFileInfo(dialog.directory(), text).isFile();
    dialog.setDefaultSuffix(there ? QString() : suffix);
  });
}

// Its lists are called by what they show, unless they are their labels' buddies.
void NameLists(const QFileDialog& dialog) {
  constexpr const char* kLists[][2] = {{"lookInLabel", "lookInCombo"}, {"fileTypeLabel", "fileTypeCombo"}};
  for (const auto& [label, list] : kLists)
    if (auto* words = dialog.findChild<QLabel*>(QLatin1String(label)))
      words->setBuddy(dialog.findChild<QWidget*>(QLatin1String(list)));
}

// A dialog to save begins with the last name.
void Begin(QFileDialog& dialog, std::string_view lastPath) {
  const QFileInfo start(StartOf(lastPath));
  dialog.setDirectory(start.isDir() ? start.filePath() : start.path());
  if (!start.isDir() && dialog.acceptMode() == QFileDialog::AcceptSave) dialog.selectFile(start.fileName());
  NameLists(dialog);
}

std::optional<std::string> Ask(QFileDialog& dialog, std::string_view lastPath) {
  Begin(dialog, lastPath);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return Chosen(dialog.selectedFiles().value(0));
}

std::optional<std::string> AskForReport(const QString& title, std::string_view lastPath) {
  QFileDialog dialog(QApplication::activeWindow(), title);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  return Ask(dialog, lastPath);
}

}  // namespace

std::optional<std::string> QtPlatform::AskSavePath(std::string_view lastPath) {
  ShowChanges();
  return AskForReport(QStringLiteral("Save As"), lastPath);
}

std::optional<std::string> QtPlatform::AskFirstSavePath() {
  ShowChanges();
  return AskForReport(QStringLiteral("Save As: a file name is needed, without one the program ends"), {});
}

std::optional<std::string> QtPlatform::AskEntriesPath(FilePurpose purpose, std::string_view lastPath) {
  ShowChanges();
  const bool open = purpose == FilePurpose::OpenEntries;
  QFileDialog dialog(QApplication::activeWindow(),
                     open ? QStringLiteral("Open Entries") : QStringLiteral("Save Entries As"));
  dialog.setNameFilters({QStringLiteral("Vicetoll entries (*.vicetoll)"), QStringLiteral("All files (*)")});
  if (open)
    TakeNamesOfFiles(dialog, QStringLiteral("vicetoll"));
  else
    dialog.setDefaultSuffix(QStringLiteral("vicetoll"));
  dialog.setAcceptMode(open ? QFileDialog::AcceptOpen : QFileDialog::AcceptSave);
  dialog.setFileMode(open ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
  return Ask(dialog, lastPath);
}

std::optional<std::string> QtPlatform::AskExportPath(std::string_view lastPath) {
  ShowChanges();
  QFileDialog dialog(QApplication::activeWindow(), QStringLiteral("Export"));
  const QStringList kinds{QStringLiteral("csv"), QStringLiteral("xlsx"), QStringLiteral("pdf")};
  const QStringList names{QStringLiteral("Comma-separated values (*.csv)"),
                          QStringLiteral("Spreadsheet (*.xlsx)"), QStringLiteral("PDF document (*.pdf)")};
  dialog.setNameFilters(names);
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setFileMode(QFileDialog::AnyFile);
  // A name without a suffix gets that of the kind.
  const auto takeKind = [&](const QString& name) {
    dialog.setDefaultSuffix(kinds.value(static_cast<int>(names.indexOf(name)), kinds.first()));
  };
  QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, takeKind);
  const QString suffix = QFileInfo(StartOf(lastPath)).suffix().toLower();
  const auto last = std::max<qsizetype>(kinds.indexOf(suffix), 0);
  dialog.selectNameFilter(names[last]);
  takeKind(names[last]);
  Begin(dialog, lastPath);
  return ChosenOf(kinds, dialog);
}

std::optional<std::string> QtPlatform::PdfOf(const Pages& pages) {
  ShowChanges();
  const auto pdf = MakePdf(pages, ReportPaper(), ShowPageProgress());
  if (!pdf) return std::nullopt;
  return pdf->toStdString();
}

void QtPlatform::PreviewPages(const Pages& pages) {
  ShowChanges();
  CloseOpenPrint();  // the next print lets the open page out
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(ReportPaper());
  TurnPaper(pages, printer);
  printer.setDocName(ToQt(pages.title));
  PreviewDialog dialog(&printer, QApplication::activeWindow());
  QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog, [&](QPrinter* paper) {
    // The dialog has the pages painted for its own eyes, and again to print them.
    if (paper->paintEngine()->type() == QPaintEngine::Picture)
      PaintPages(pages, *paper);
    else if (const std::string problem = PrintPages(pages, *paper); !problem.empty())
      Tell(QStringLiteral("Nothing was printed. %1").arg(QString::fromStdString(problem)));
  });
  dialog.exec();
}

std::string QtPlatform::DataFolder() {
  return QFile::encodeName(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).toStdString();
}

void QtPlatform::WriteFile(const std::string& path, std::string_view bytes) { WriteWholeFile(path, bytes); }

void QtPlatform::Print(std::string_view text, bool selection) {
  const auto print = AskAndPrint(std::make_unique<PrintJob>(PrintStyle::Document), text, selection);
  if (print && !print->Close()) TellOf(*print);
}

bool QtPlatform::PrintKeepingPageOpen(std::string_view text, bool selection) {
  openPrint_ = AskAndPrint(std::make_unique<PrintJob>(), text, selection);
  return openPrint_ != nullptr;
}

namespace {

// With a selection on offer Qt shows its page numbers all the same, open to be chosen.
void TakePageNumbersFrom(const QPrintDialog& dialog) {
  QList<QWidget*> numbers;
  for (const char* name : {"printRange", "from", "to", "pagesRadioButton", "pagesLineEdit"})
    numbers << dialog.findChild<QWidget*>(QLatin1String(name));
  if (numbers[0] != nullptr)  // its labels stand beside it
    for (QLabel* label : numbers[0]->parentWidget()->findChildren<QLabel*>()) numbers << label;
  for (QWidget* widget : numbers)
    if (widget != nullptr) {
      widget->setEnabled(false);
      widget->hide();
    }
}

}  // namespace

// What was printed, its last page still open; nothing if it went nowhere, which the user is told.
std::unique_ptr<PrintJob> QtPlatform::AskAndPrint(std::unique_ptr<PrintJob> print, std::string_view text,
                                                  bool selection) {
  ShowChanges();
  CloseOpenPrint();  // the next print lets the open page out
  QPrinter& printer = print->Printer();
  printer.setPageOrientation(orientation_.value_or(print->SuggestedOrientation(text)));
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setOption(QAbstractPrintDialog::PrintSelection, selection);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  TakePageNumbersFrom(dialog);
  if (selection) dialog.setPrintRange(QAbstractPrintDialog::Selection);
  // A cancelled dialog prints all the same.
  if (dialog.exec() == QDialog::Accepted) orientation_ = printer.pageLayout().orientation();
  if (print->Print(text)) return print;
  TellOf(*print);
  return nullptr;
}

void QtPlatform::CloseOpenPrint() {
  const std::unique_ptr<PrintJob> print = std::move(openPrint_);
  if (print && !print->Close()) TellOf(*print);
}

void QtPlatform::TellOf(const PrintJob& print) {
  Tell(QStringLiteral("Nothing was printed. %1").arg(QString::fromStdString(print.Problem())));
}

void QtPlatform::PrintPicture(std::string_view svg, std::string_view) {
  ShowChanges();
  CloseOpenPrint();  // the next print lets the open page out
  PrintJob print;
  QPrinter& printer = print.Printer();
  printer.setPageOrientation(QPageLayout::Landscape);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (dialog.exec() != QDialog::Accepted) return;
  if (!print.PrintPicture(svg) || !print.Close()) TellOf(print);
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

std::string QtPlatform::ProgramFolder() { return TextsFolder(); }

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
