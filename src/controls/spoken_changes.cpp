// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/spoken_changes.h"

#include "controls/drop_down_list.h"
#include "controls/spoken_name.h"

namespace vicetoll {
namespace {

// A step to another period fills so many lists.
constexpr std::size_t kMostTold = 9;

// What a list or box shows; nullptr for any other control. All controls of a window are asked after each
// action of the user, so they are told apart by their kind.
const std::string* TextOf(const Control& control) {
  switch (control.Kind()) {
    case ControlKind::List:
      return &static_cast<const DropDownList&>(control).Text();
    case ControlKind::TextBox:
      return &static_cast<const TextBox&>(control).Text();
    default:
      return nullptr;
  }
}

bool IsUsersOwnChoice(const Control& control, const Control* by) {
  const auto* list = dynamic_cast<const DropDownList*>(&control);
  return list != nullptr && list == by && list->Chosen() == list->Text();
}

}  // namespace

SpokenChanges::Texts SpokenChanges::Shown() const {
  Texts texts;
  for (const auto& control : form_.Controls())
    if (const std::string* text = TextOf(*control); text != nullptr && control->Reachable())
      texts[control.get()] = *text;
  return texts;
}

bool SpokenChanges::CameToFront() {
  int tabs = 0;
  for (const auto& control : form_.Controls())
    if (control->Kind() == ControlKind::TabControl) tabs = static_cast<const TabControl&>(*control).Tab();
  const bool came = timesShown_ != form_.TimesShown() || tabs_ != tabs;
  timesShown_ = form_.TimesShown();
  tabs_ = tabs;
  return came;
}

std::string SpokenChanges::After(const Control* by) {
  Texts now = Shown();
  std::vector<const Control*> told;
  if (by != nullptr) told = form_.ResultsOf(*by);
  if (!CameToFront() && told.empty())
    for (const auto& control : form_.Controls()) {
      const auto text = now.find(control.get());
      if (text == now.end() || IsUsersOwnChoice(*control, by)) continue;
      const auto before = known_.find(control.get());
      if (before == known_.end() ? !text->second.empty() : before->second != text->second)
        told.push_back(control.get());
    }
  known_ = std::move(now);

  std::string words;
  for (std::size_t i = 0; i < told.size() && i < kMostTold; ++i) {
    if (!words.empty()) words += "; ";
    const std::string& text = *TextOf(*told[i]);
    words += SpokenName(*told[i]) + ": " + (text.empty() ? "empty" : text);
  }
  if (told.size() > kMostTold) words += "; and " + std::to_string(told.size() - kMostTold) + " more";
  return words;
}

}  // namespace vicetoll
