#include "scenario/scripted_platform.h"

#include <filesystem>

#include "scenario/script.h"

namespace vicetoll {

Answer ScriptedPlatform::ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) {
  print_("message " + Quoted(title) + " " + Quoted(text) + " " +
         (buttons == MessageButtons::Ok ? "OK" : "OK,Cancel"));
  return QueuedAnswers::Take(answers.messages, Answer::Ok);
}

// The dialog's answer is taken from the queue and not looked at: a cancelled dialog prints all the same.
void ScriptedPlatform::Print(std::string_view text, bool) {
  QueuedAnswers::Take(answers.prints, Answer::Ok);
  print_("printed " + Quoted(text));
}

// The driver is built into the folder of the program.
std::string ScriptedPlatform::ProgramFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
}

void ScriptedPlatform::Browse(std::string_view url) { print_("browse " + std::string(url)); }

}  // namespace vicetoll
