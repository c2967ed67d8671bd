// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/spoken_changes.h"

#include <utility>

#include "controls/drop_down_list.h"
#include "controls/spoken_name.h"

namespace vicetoll {
namespace {

// A step to another period fills so many lists.
constexpr std::size_t kMostTold = 9;

// What a list or box shows; nullptr for any other control.
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

// A caption tells all by itself; of a text it is said whose it is.
std::string WordsOf(const Control& control) {
  if (control.Kind() == ControlKind::Label) return static_cast<const Label&>(control).Caption();
  const std::string& text = *TextOf(control);
  return SpokenName(control) + ": " + (text.empty() ? "empty" : text);
}

bool IsUsersOwnChoice(const Control& control, const Control* by) {
  const auto* list = dynamic_cast<const DropDownList*>(&control);
  return list != nullptr && list == by && list->Chosen() == list->Text();
}

}  // namespace

// The window may have got controls since it was made.
void SpokenChanges::FindWhatTells() {
  const auto& controls = form_.Controls();
  for (; controlsSeen_ < controls.size(); ++controlsSeen_) {
    const Control& control = *controls[controlsSeen_];
    if (const std::string* text = TextOf(control)) {
      const Control* before = neighbours_.empty() ? nullptr : neighbours_.back().tellers.back().control;
      if (before == nullptr || before->Container() != control.Container() || before->Page() != control.Page())
        neighbours_.emplace_back();
      neighbours_.back().tellers.push_back({&control, text, {}});
    }
    if (control.Kind() == ControlKind::TabControl) tabs_ = static_cast<const TabControl*>(&control);
  }
}

bool SpokenChanges::CameToFront() {
  const int tab = tabs_ == nullptr ? 0 : tabs_->Tab();
  const bool came = timesShown_ != form_.TimesShown() || tab_ != tab;
  timesShown_ = form_.TimesShown();
  tab_ = tab;
  return came;
}

std::string SpokenChanges::After(const Control* by) {
  FindWhatTells();
  std::vector<const Control*> told;
  if (by != nullptr) told = form_.ResultsOf(*by);
  const bool tellsChanges = !CameToFront() && told.empty();

  for (auto& [tellers, knownInFront] : neighbours_) {
    const bool inFront = tellers.front().control->StandsInFront();
    if (!std::exchange(knownInFront, inFront) && !inFront) continue;
    for (auto& [control, text, known] : tellers) {
      if (!inFront || !control->Visible() || !control->Enabled()) {
        known.clear();
      } else if (known != *text) {
        if (tellsChanges && !IsUsersOwnChoice(*control, by)) told.push_back(control);
        known = *text;
      }
    }
  }

  std::string words;
  for (std::size_t i = 0; i < told.size() && i < kMostTold; ++i) {
    if (!words.empty()) words += "; ";
    words += WordsOf(*told[i]);
  }
  if (told.size() > kMostTold) words += "; and " + std::to_string(told.size() - kMostTold) + " more";
  return words;
}

}  // namespace vicetoll
