// SPDX-License-Identifier: GPL-3.0-or-later
#include "scenario/scripted_platform.h"

#include <filesystem>

#include "base/file_writer.h"
#include "scenario/script.h"

namespace vicetoll {

// The drivers are built into the folder of the program.
ScriptedPlatform::ScriptedPlatform(PrintLine print)
    : programFolder(std::filesystem::read_symlink("/proc/self/exe").parent_path().string()),
      print_(std::move(print)) {}

Answer ScriptedPlatform::ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) {
  constexpr const char* kButtons[] = {"OK", "OK,Cancel", "Save,Discard,Cancel"};
  messages.push_back({std::string(title), std::string(text), buttons});
  Tell("message " + Quoted(title) + " " + Quoted(text) + " " + kButtons[static_cast<int>(buttons)]);
  return QueuedAnswers::Take(answers.messages, Answer::Ok);
}

std::optional<std::string> ScriptedPlatform::AskSavePath(std::string_view lastPath) {
  savePathsOffered.emplace_back(lastPath);
  return QueuedAnswers::Take(answers.files, std::optional<std::string>());
}

void ScriptedPlatform::WriteFile(const std::string& path, std::string_view bytes) {
  if (print_)
    WriteWholeFile(path, bytes);
  else
    files[path] = bytes;
}

// The dialog's answer is taken from the queue and not looked at: a cancelled dialog prints all the same.
void ScriptedPlatform::Print(Printed page) {
  QueuedAnswers::Take(answers.prints, Answer::Ok);
  Tell("printed " + Quoted(page.text));
  printed.push_back(std::move(page));
}

void ScriptedPlatform::PrintPicture(std::string_view, std::string_view text) {
  if (QueuedAnswers::Take(answers.prints, Answer::Ok) != Answer::Ok) return;
  Tell("printed " + Quoted(text));
  printed.push_back({std::string(text), false, false});
}

void ScriptedPlatform::Browse(std::string_view url) {
  browsed.emplace_back(url);
  Tell("browse " + std::string(url));
}

}  // namespace vicetoll
