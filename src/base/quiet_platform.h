// SPDX-License-Identifier: GPL-3.0-or-later
// A world outside that stands still and answers nothing: for a program that no user sees.
#pragma once

#include "base/platform.h"

namespace vicetoll {

class QuietPlatform : public Platform {
 public:
  explicit QuietPlatform(MonthAndYear now) : now_(now) {}

  MonthAndYear Now() override { return now_; }
  Answer ShowMessage(std::string_view, std::string_view, MessageButtons) override { return Answer::Ok; }
  Answer ShowFileMessage(std::string_view, MessageButtons) override { return Answer::Cancel; }
  std::optional<std::string> AskEntriesPath(FilePurpose, std::string_view) override { return std::nullopt; }
  std::string DataFolder() override { return {}; }
  std::optional<std::string> AskSavePath(std::string_view) override { return std::nullopt; }
  void WriteFile(const std::string&, std::string_view) override {}
  void Print(std::string_view, bool) override {}
  void SetClipboard(std::string_view) override {}
  std::string Clipboard() override { return {}; }
  std::string ProgramFolder() override { return {}; }
  void Browse(std::string_view) override {}
  void Pause(int) override {}

 private:
  MonthAndYear now_;
};

}  // namespace vicetoll
