// SPDX-License-Identifier: GPL-3.0-or-later
// The outside world of tests: a fixed clock, queued answers, and a record of what was asked of it.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/code_page.h"
#include "base/platform.h"

namespace vicetoll {

// What a driver tells the world outside, a line each, as UTF-8.
using PrintLine = std::function<void(const std::string&)>;

// The answers to the next boxes. Where none is left, messages and print dialogs are answered Ok, and save
// dialogs are cancelled.
struct QueuedAnswers {
  std::deque<Answer> messages, prints;
  std::deque<std::optional<std::string>> files;

  template <class T>
  static T Take(std::deque<T>& queue, T otherwise) {
    if (queue.empty()) return otherwise;
    T answer = queue.front();
    queue.pop_front();
    return answer;
  }
};

class ScriptedPlatform : public Platform {
 public:
  struct Message {
    std::string title, text;
    MessageButtons buttons;
  };
  struct Printed {
    std::string text;
    bool selection;     // the dialog offered to print the selection only
    bool pageLeftOpen;  // the page waits for the next print
  };

  // For unit tests: nothing is told, and files stay in memory.
  ScriptedPlatform() = default;
  // For a driver: what happens is told, files are written, and the program lies beside the driver.
  explicit ScriptedPlatform(PrintLine print);

  MonthAndYear now{6, 2026};
  QueuedAnswers answers;

  std::vector<Message> messages;
  std::vector<std::string> savePathsOffered;  // the names the save dialogs started from
  std::map<std::string, std::string> files;   // that stayed in memory
  std::vector<Printed> printed;
  std::vector<Pages> previewed;
  std::string clipboard;
  std::string programFolder;
  std::vector<std::string> browsed;
  int paused = 0;  // milliseconds

  MonthAndYear Now() override { return now; }
  Answer ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) override;
  Answer ShowFileMessage(std::string_view utf8, MessageButtons buttons) override {
    return ShowMessage({}, FromUtf8(utf8), buttons);
  }
  std::optional<std::string> AskEntriesPath(FilePurpose, std::string_view) override {
    return QueuedAnswers::Take(answers.files, std::optional<std::string>());
  }
  void PreviewPages(const Pages& pages) override { previewed.push_back(pages); }
  std::string DataFolder() override { return {}; }
  std::optional<std::string> AskSavePath(std::string_view lastPath) override;
  void WriteFile(const std::string& path, std::string_view bytes) override;
  void Print(std::string_view text, bool selection) override { Print({std::string(text), selection, false}); }
  bool PrintKeepingPageOpen(std::string_view text, bool selection) override {
    Print({std::string(text), selection, true});
    return true;
  }
  void PrintPicture(std::string_view svg, std::string_view text) override;
  void SetClipboard(std::string_view text) override { clipboard = text; }
  std::string Clipboard() override { return clipboard; }
  std::string ProgramFolder() override { return programFolder; }
  void Browse(std::string_view url) override;
  void Pause(int milliseconds) override { paused += milliseconds; }

 private:
  void Print(Printed page);
  void Tell(const std::string& line) const {
    if (print_) print_(line);
  }

  PrintLine print_;
};

}  // namespace vicetoll
