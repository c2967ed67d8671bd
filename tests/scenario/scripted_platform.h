// The outside world of a scenario: a fixed clock, queued answers, and a record of what was asked of it.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>

#include "base/file_writer.h"
#include "base/platform.h"

namespace vicetoll {

// What the driver tells the world outside, a line each, as UTF-8.
using PrintLine = std::function<void(const std::string&)>;

// The answers that a scenario has queued for the next boxes.
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
  explicit ScriptedPlatform(PrintLine print) : print_(std::move(print)) {}

  MonthAndYear now{6, 2026};
  QueuedAnswers answers;

  MonthAndYear Now() override { return now; }
  Answer ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) override;
  std::optional<std::string> AskSavePath(std::string_view) override {
    return QueuedAnswers::Take(answers.files, std::optional<std::string>());
  }
  void WriteFile(const std::string& path, std::string_view bytes) override { WriteWholeFile(path, bytes); }
  void Print(std::string_view text, bool selection) override;
  void SetClipboard(std::string_view text) override { clipboard_ = text; }
  std::string Clipboard() override { return clipboard_; }
  std::string ProgramFolder() override;
  void Browse(std::string_view url) override;
  void Pause(int) override {}

 private:
  PrintLine print_;
  std::string clipboard_;
};

}  // namespace vicetoll
