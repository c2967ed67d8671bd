// SPDX-License-Identifier: GPL-3.0-or-later
// The one door to the outside world. Tests bring their own.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "base/pages.h"

namespace vicetoll {

struct MonthAndYear {
  int month;  // 1..12
  int year;
};

enum class MessageButtons { Ok, OkCancel, SaveDiscardCancel };
enum class Answer { Ok, Cancel, No };  // Save, Cancel, Discard of the three buttons

// What a dialog asks a file for.
enum class FilePurpose { OpenEntries, SaveEntries };

// All texts are in the program's eight-bit code page.
class Platform {
 public:
  virtual ~Platform() = default;

  // The present month.
  virtual MonthAndYear Now() = 0;

  // Shows a message and waits for the answer. An empty title leaves the box the program's own.
  virtual Answer ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) = 0;

  // The same for a text in UTF-8, which names a file or gives a reason of the system.
  virtual Answer ShowFileMessage(std::string_view utf8, MessageButtons buttons) = 0;

  // Asks for a file of entries, starting from the one in use; a cancelled dialog returns none.
  virtual std::optional<std::string> AskEntriesPath(FilePurpose purpose, std::string_view lastPath) = 0;

  // The folder for what a run leaves behind that cannot go on, empty where there is none.
  virtual std::string DataFolder() = 0;

  // Asks where to save, starting from the name chosen last; a cancelled dialog returns no name. Paths are in
  // the encoding of the file system.
  virtual std::optional<std::string> AskSavePath(std::string_view lastPath) = 0;

  // The same where there is no name yet and the run ends without one, which the dialog says.
  virtual std::optional<std::string> AskFirstSavePath() { return AskSavePath({}); }

  // Asks what file to export to, starting from the one chosen last; a cancelled dialog returns none. The
  // suffix of a name says what kind of file is wanted: a dialog that offers kinds adds that of the chosen
  // one.
  virtual std::optional<std::string> AskExportPath(std::string_view lastPath) {
    return AskSavePath(lastPath);
  }

  // The pages as a PDF file's bytes; empty on a platform that cannot lay pages out. None if the user did not
  // wait for them.
  virtual std::optional<std::string> PdfOf(const Pages& pages) {
    return static_cast<void>(pages), std::string();
  }

  // Shows the pages as they would be printed, and lets the user print them.
  virtual void PreviewPages(const Pages& pages) { static_cast<void>(pages); }

  // Writes a file in one go, replacing what was there. Throws Fault(File) naming the file and the reason.
  virtual void WriteFile(const std::string& path, std::string_view bytes) = 0;

  // Asks how to print and prints the text. `selection` offers the choice to print the selection only. A
  // cancelled dialog does not stop the printing.
  virtual void Print(std::string_view text, bool selection) = 0;

  // The same, but the page stays open: it comes out with the next print or at the end of the run. False if no
  // page is open then: nothing was printed, which the user knows, or the platform cannot hold a page back and
  // prints it at once.
  virtual bool PrintKeepingPageOpen(std::string_view text, bool selection) {
    Print(text, selection);
    return false;
  }

  // Asks how to print and prints a picture in SVG on one page. A cancelled dialog prints nothing. A platform
  // that cannot draw prints the text that says the same.
  virtual void PrintPicture(std::string_view svg, std::string_view text) {
    static_cast<void>(svg), Print(text, false);
  }

  virtual void SetClipboard(std::string_view text) = 0;
  // A picture in PNG, and beside it the text for those who take no picture.
  virtual void SetClipboardPicture(std::string_view png, std::string_view text) {
    static_cast<void>(png), SetClipboard(text);
  }
  virtual std::string Clipboard() = 0;

  // The folder that the program lies in, in the encoding of the file system.
  virtual std::string ProgramFolder() = 0;

  // Sends the browser to a page.
  virtual void Browse(std::string_view url) = 0;

  // Waits, serving events meanwhile.
  virtual void Pause(int milliseconds) = 0;
};

}  // namespace vicetoll
