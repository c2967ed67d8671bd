// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/spoken_changes.h"

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
    if (const std::string* text = TextOf(control)) tellers_.push_back({&control, text, {}});
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

  // Most stand where the one before does.
  const Control* container = nullptr;
  int page = kAnyPage;
  bool inFront = form_.Shown();
  for (auto& [control, text, known] : tellers_) {
    if (control->Container() != container || control->Page() != page) {
      container = control->Container();
      page = control->Page();
      inFront = control->StandsInFront();
    }
    if (!inFront || !control->Visible() || !control->Enabled()) {
      known.clear();
    } else if (known != *text) {
      if (tellsChanges && !IsUsersOwnChoice(*control, by)) told.push_back(control);
      known = *text;
    }
  }

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
