// An outside world for unit tests: a clock to set, answers to queue, and a record of what was asked of it.
#pragma once

#include <deque>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/platform.h"

namespace vicetoll {

class FakePlatform : public Platform {
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

  MonthAndYear now{6, 2026};
  std::deque<Answer> messageAnswers;                   // Ok where none is left
  std::deque<std::optional<std::string>> fileAnswers;  // cancelled where none is left

  std::vector<Message> messages;
  std::vector<std::string> savePathsOffered;  // the names the save dialogs started from
  std::map<std::string, std::string> files;
  std::vector<Printed> printed;
  std::string clipboard;
  std::string programFolder;
  std::vector<std::string> browsed;
  int paused = 0;  // milliseconds

  MonthAndYear Now() override { return now; }
  Answer ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) override {
    messages.push_back({std::string(title), std::string(text), buttons});
    return Next(messageAnswers, Answer::Ok);
  }
  std::optional<std::string> AskSavePath(std::string_view lastPath) override {
    savePathsOffered.emplace_back(lastPath);
    return Next(fileAnswers, std::optional<std::string>());
  }
  void WriteFile(const std::string& path, std::string_view bytes) override { files[path] = bytes; }
  void Print(std::string_view text, bool selection) override {
    printed.push_back({std::string(text), selection, false});
  }
  void PrintKeepingPageOpen(std::string_view text, bool selection) override {
    printed.push_back({std::string(text), selection, true});
  }
  void SetClipboard(std::string_view text) override { clipboard = text; }
  std::string Clipboard() override { return clipboard; }
  std::string ProgramFolder() override { return programFolder; }
  void Browse(std::string_view url) override { browsed.emplace_back(url); }
  void Pause(int milliseconds) override { paused += milliseconds; }

 private:
  template <class T>
  static T Next(std::deque<T>& queue, T otherwise) {
    if (queue.empty()) return otherwise;
    T answer = queue.front();
    queue.pop_front();
    return answer;
  }
};

}  // namespace vicetoll
