// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/user_action.h"

#include "scenario/script.h"

namespace vicetoll {
namespace {

Answer AnswerNamed(std::string_view word) { return word == "cancel" ? Answer::Cancel : Answer::Ok; }

void Queue(const std::string& boxAndAnswer, QueuedAnswers& answers) {
  const std::vector<Word> words = SplitLine(boxAndAnswer);
  const std::string& box = words.at(0).text;
  const Word& answer = words.at(1);
  if (box == "file")
    answers.files.push_back(answer.quoted ? std::optional(answer.utf8) : std::nullopt);
  else
    (box == "print" ? answers.prints : answers.messages).push_back(AnswerNamed(answer.text));
}

std::string LineOf(const UserAction& action) {
  const auto numbers = [&action](int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += " " + std::to_string(action.numbers[i]);
    return text;
  };
  switch (action.kind) {
    case ActionKind::Focus:
      return "focus " + action.control;
    case ActionKind::Choose:
      return "choose " + action.control + numbers(1);
    case ActionKind::Click:
      return "click " + action.control;
    case ActionKind::Tab:
      return "tab" + numbers(1);
    case ActionKind::Resize:
      return "resize" + numbers(2);
    case ActionKind::Type:
      return "type " + action.control + " " + Quoted(action.text);
    case ActionKind::SelectText:
      return "select " + action.control + numbers(2);
    case ActionKind::SelectCells:
      return "select " + action.control + numbers(4);
    case ActionKind::AnswerBox:
      return "answer " + action.text;
  }
  return {};
}

}  // namespace

void Perform(const UserAction& action, Program& program, Stage& stage, ScriptedPlatform& platform) {
  if (action.kind == ActionKind::AnswerBox) return Queue(action.text, platform.answers);
  Form& window = *program.Window(action.window);
  const std::array<int, 4>& n = action.numbers;
  if (action.kind == ActionKind::Resize) {
    stage.Resize(window, n[0], n[1]);
    return;
  }
  Control& control = *window.Find(action.control);
  switch (action.kind) {
    case ActionKind::Focus:
      stage.Focus(control);
      break;
    case ActionKind::Choose:
      stage.Choose(dynamic_cast<DropDownList&>(control), n[0]);
      break;
    case ActionKind::Tab:
      stage.SelectTab(dynamic_cast<TabControl&>(control), n[0]);
      break;
    case ActionKind::Type:
      stage.Type(control, action.text);
      break;
    case ActionKind::SelectText:
      stage.SelectText(dynamic_cast<DocumentText&>(control), n[0], n[1]);
      break;
    case ActionKind::SelectCells:
      stage.SelectCells(dynamic_cast<Grid&>(control), {n[0], n[1], n[2], n[3]});
      break;
    default:
      stage.Click(control);
  }
}

std::string ScenarioOf(const MonthAndYear& now, const std::vector<UserAction>& actions) {
  std::string text = "clock " + std::to_string(now.month) + " " + std::to_string(now.year) + "\n";
  std::string window = "Smoking";
  for (const UserAction& action : actions) {
    if (action.kind != ActionKind::AnswerBox && action.window != window) {
      window = action.window;
      text += "in " + window + "\n";
    }
    text += LineOf(action) + "\n";
  }
  return text;
}

}  // namespace vicetoll
