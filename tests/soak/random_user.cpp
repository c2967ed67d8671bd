// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/random_user.h"

#include <algorithm>

namespace vicetoll {
namespace {

bool IsDateList(const Control& control) {
  return control.Name().starts_with("comStart") || control.Name().starts_with("comStop");
}

UserAction On(const Control& control, ActionKind kind) {
  UserAction action;
  action.kind = kind;
  action.window = control.Window().Name();
  action.control = control.FullName();
  return action;
}

}  // namespace

std::vector<UserAction> RandomUser::Next(Program& program) {
  if (DropDownList* list = std::exchange(opened_, nullptr); list != nullptr && list->Reachable())
    return {ChooseFrom(*list)};
  Form& window = PickWindow(program);
  if (Chance(0.01)) {
    UserAction resize;
    resize.kind = ActionKind::Resize;
    resize.window = window.Name();
    resize.numbers = {8000 + Below(10000), 8000 + Below(9000)};
    return {resize};
  }
  const std::vector<Candidate> candidates = CandidatesIn(window);
  if (candidates.empty()) return {};
  std::vector<double> weights;
  for (const Candidate& candidate : candidates) weights.push_back(candidate.weight);
  std::discrete_distribution<std::size_t> pick(weights.begin(), weights.end());
  return ActionsOn(*candidates[pick(random_)].control);
}

// The workspace in front most of the time, else any other window that is open.
Form& RandomUser::PickWindow(Program& program) {
  std::vector<Form*> others;
  Form* front = nullptr;
  for (Form* window : program.Windows()) {
    if (!window->Shown()) continue;
    if (dynamic_cast<SinWorkspace*>(window) != nullptr)
      front = window;
    else
      others.push_back(window);
  }
  if (front == nullptr || (!others.empty() && Chance(0.35)))
    return *others.at(Below(static_cast<int>(others.size())));
  return *front;
}

std::vector<RandomUser::Candidate> RandomUser::CandidatesIn(Form& window) const {
  std::vector<Candidate> candidates;
  for (const auto& control : window.Controls())
    if (const double weight = WeightOf(*control); weight > 0 && control->Reachable())
      candidates.push_back({weight, control.get()});
  return candidates;
}

double RandomUser::WeightOf(const Control& control) const {
  const std::string& name = control.Name();
  switch (control.Kind()) {
    case ControlKind::Label:
    case ControlKind::Frame:
    case ControlKind::TextBox:
      return 0;
    case ControlKind::List:
      return IsDateList(control) ? 5 : 1.5;
    case ControlKind::TabControl:
      return 4;
    case ControlKind::Panel:
      return 0.2;
    default:
      break;
  }
  const bool inWorkspace = dynamic_cast<const SinWorkspace*>(&control.Window()) != nullptr;
  if (inWorkspace && name == "cmdExit") return 0.005;
  if (name == "cmdEuro") return habits_.euro ? 0.2 : 0;
  if (name.starts_with("optFineDate")) return habits_.fineDates ? 1.5 : 0;
  if (name.starts_with("cmdSetPeriodParams")) return 8;
  if (name.starts_with("optTimePeriod")) return 4;
  if (name.starts_with("optPer") || name.starts_with("Opt")) return 1.5;
  if (name.starts_with("cmdAdvResults")) return 0.7;
  if (name == "cmdHelp" || name == "cmdFaq" || name == "cmdCombinedResults") return 0.3;
  return 1;
}

std::vector<UserAction> RandomUser::ActionsOn(Control& control) {
  if (auto* list = dynamic_cast<DropDownList*>(&control)) {
    if (list->TakesTyping() && Chance(0.3)) {
      UserAction type = On(control, ActionKind::Type);
      type.text = Chance(0.5) ? "none" : "$12";
      return {type};
    }
    // A list is opened before it is picked from. Opening a date list rebuilds it.
    if (IsDateList(*list)) {
      if (Chance(0.7)) opened_ = list;
      return {On(control, ActionKind::Focus)};
    }
    if (Chance(0.3)) return {On(control, ActionKind::Focus)};
    return {On(control, ActionKind::Focus), ChooseFrom(*list)};
  }
  if (dynamic_cast<TabControl*>(&control) != nullptr) {
    UserAction tab = On(control, ActionKind::Tab);
    tab.numbers[0] = Below(3);
    return {tab};
  }
  if (auto* grid = dynamic_cast<Grid*>(&control)) {
    if (grid->RowCount() == 0) return {};
    UserAction select = On(control, ActionKind::SelectCells);
    select.numbers = {Below(grid->RowCount()), Below(grid->ColumnCount()), Below(grid->RowCount()),
                      Below(grid->ColumnCount())};
    return {select};
  }
  if (auto* document = dynamic_cast<DocumentText*>(&control)) {
    if (Chance(0.3)) {
      UserAction type = On(control, ActionKind::Type);
      type.text = "a note of my own\r\nand another";
      return {type};
    }
    UserAction select = On(control, ActionKind::SelectText);
    select.numbers = {Below(document->Length() + 1), Below(document->Length() + 1)};
    return {select};
  }
  std::vector<UserAction> actions;
  AddAnswers(control, actions);
  actions.push_back(On(control, ActionKind::Click));
  return actions;
}

UserAction RandomUser::ChooseFrom(DropDownList& list) {
  UserAction choose = On(list, ActionKind::Choose);
  const int count = list.Count();
  // Ends and neighbours are where the rules bite.
  switch (Below(5)) {
    case 0:
      choose.numbers[0] = 0;
      break;
    case 1:
      choose.numbers[0] = std::max(0, count - 1);
      break;
    case 2:
      choose.numbers[0] = Below(count);
      break;
    case 3:
      choose.numbers[0] = std::clamp(list.Position() - 3 + Below(7), 0, std::max(0, count - 1));
      break;
    default:
      choose.numbers[0] = Below(std::min(count, 14));
  }
  return choose;
}

void RandomUser::AddAnswers(const Control& control, std::vector<UserAction>& actions) {
  UserAction answer;
  answer.kind = ActionKind::AnswerBox;
  if (control.Name() == "cmdSaveAs") {
    // A cancelled save dialog goes on with the name it holds. Without one that is the end of the run, so
    // this user names a file first.
    const bool first = named_.insert(control.Window().Name()).second;
    answer.text = first || Chance(0.7) ? "file \"report.txt\"" : "file cancel";
  } else if (control.Name() == "cmdPrint") {
    answer.text = Chance(0.7) ? "print ok" : "print cancel";
  } else if (control.Name() == "cmdRevealDeveloper") {
    answer.text = Chance(0.5) ? "message ok" : "message cancel";
  } else {
    return;
  }
  actions.push_back(answer);
}

}  // namespace vicetoll
