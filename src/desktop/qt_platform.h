// SPDX-License-Identifier: GPL-3.0-or-later
// The world outside as Qt reaches it.
#pragma once

#include <QMessageBox>
#include <QPageLayout>
#include <functional>
#include <memory>

#include "base/platform.h"

namespace vicetoll {

// The program's name, as windows and boxes without a title of their own bear it.
QString ProgramName();

// The modal box for a message. An empty title becomes the program's name; the lines of a QString end in LF.
std::unique_ptr<QMessageBox> MakeMessageBox(const QString& title, const QString& text,
                                            MessageButtons buttons);
std::unique_ptr<QMessageBox> MakeMessageBox(std::string_view title, std::string_view text,
                                            MessageButtons buttons);

// The box's button that stands for the answer, and the answer that a box was left with.
QMessageBox::StandardButton ButtonFor(Answer answer, MessageButtons buttons);
Answer AnswerOf(int button);

class PrintJob;

class QtPlatform : public Platform {
 public:
  QtPlatform();
  ~QtPlatform() override;

  // Run before a box or a pause lets the user see the windows: what changed must be shown by then.
  std::function<void()> beforeWaiting;

  // The run is ended from outside: what there is to tell goes to standard error, and nothing is asked.
  void NobodyThere() { nobodyThere_ = true; }

  MonthAndYear Now() override;
  Answer ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) override;
  Answer ShowFileMessage(std::string_view utf8, MessageButtons buttons) override;
  std::optional<std::string> AskEntriesPath(FilePurpose purpose, std::string_view lastPath) override;
  std::string DataFolder() override;
  std::optional<std::string> AskSavePath(std::string_view lastPath) override;
  std::optional<std::string> AskFirstSavePath() override;
  std::optional<std::string> AskExportPath(std::string_view lastPath) override;
  std::optional<std::string> PdfOf(const Pages& pages) override;
  void PreviewPages(const Pages& pages) override;
  void WriteFile(const std::string& path, std::string_view bytes) override;
  void Print(std::string_view text, bool selection) override;
  bool PrintKeepingPageOpen(std::string_view text, bool selection) override;
  void PrintPicture(std::string_view svg, std::string_view text) override;
  void SetClipboard(std::string_view text) override;
  void SetClipboardPicture(std::string_view png, std::string_view text) override;
  std::string Clipboard() override;
  std::string ProgramFolder() override;
  void Browse(std::string_view url) override;
  void Pause(int milliseconds) override;

 private:
  std::unique_ptr<PrintJob> AskAndPrint(std::unique_ptr<PrintJob> print, std::string_view text,
                                        bool selection);
  void Tell(const QString& text);
  void TellOf(const PrintJob& print);
  void CloseOpenPrint();
  void ShowChanges() const;

  // A print whose last page waits for the next print or the end of the run.
  std::unique_ptr<PrintJob> openPrint_;
  bool nobodyThere_ = false;
  // As the user left it in the last dialog that was not cancelled.
  std::optional<QPageLayout::Orientation> orientation_;
};

}  // namespace vicetoll
