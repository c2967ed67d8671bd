// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/form.h"

#include <algorithm>
#include <charconv>

#include "base/code_page.h"
#include "base/fault.h"
#include "base/line_ends.h"

namespace vicetoll {

void Form::Changed() {
  if (listener_) listener_->FormChanged(*this);
}

void Form::HintChanged() {
  if (listener_) listener_->HintChanged(*this);
}

void Form::SetCaption(std::string_view caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  Changed();
}

void Form::SetStatus(std::string_view status) {
  if (status_ == status) return;
  status_ = status;
  Changed();
}

void Form::TakeStateOf(const Form& other) {
  caption_ = other.caption_;
  canvas_ = other.canvas_;
  for (const auto& control : controls_)
    control->TakeStateOf(*other.Require(control->Name(), control->Index()));
  if (state_ == WindowState::Normal) {
    width_ = other.width_;
    height_ = other.height_;
  }
  if (onResize) onResize();
  SetShown(other.shown_);
  Changed();
}

void Form::Show() {
  ++timesShown_;
  shown_ = true;
  Changed();
}

void Form::SetShown(bool shown) {
  if (shown_ == shown) return;
  shown_ = shown;
  Changed();
}

void Form::Resize(int width, int height) {
  if (width == width_ && height == height_) return;
  width_ = width;
  height_ = height;
  if (onResize) onResize();
  Changed();
}

void Form::SetWindowState(WindowState state) {
  if (state == state_) return;
  state_ = state;
  if (onResize) onResize();
  Changed();
}

UserOutcome Form::UserResizes(int width, int height) {
  if (!shown_) return UserOutcome::Refused;
  Resize(width, height);
  Acted(nullptr);
  return UserOutcome::Done;
}

UserOutcome Form::UserCloses() {
  if (!shown_) return UserOutcome::Refused;
  if (Button* const button = CloseButton()) return button->UserClicks();
  Say("Use Exit to close \"" + ToUtf8(caption_) + "\"");
  Acted(nullptr);
  return UserOutcome::Refused;
}

void Form::Acted(const Control* by) {
  hint_.EndAction();
  HintChanged();
  if (onUserActed) onUserActed(by);
}

// ---- The line at the foot ----

void Form::SetNextStep(std::string text) {
  hint_.SetNextStep(std::move(text));
  HintChanged();
}

void Form::Say(std::string news) {
  hint_.Say(std::move(news));
  HintChanged();
}

void Form::PassOn(std::string news) {
  hint_.Say(std::move(news));
  hint_.EndAction();
  HintChanged();
}

std::string Form::TipOf(const Control* control) const {
  if (control == nullptr) return {};
  return ToUtf8(shortTip ? shortTip(*control) : control->ToolTip());
}

void Form::UserPointsAt(const Control* control) {
  hint_.PointAt(TipOf(control));
  HintChanged();
}

void Form::TellFocus(const Control& control) {
  // Who goes on by keys is not told of what the pointer was left on.
  hint_.PointAt({});
  hint_.Focus(TipOf(&control));
  HintChanged();
}

std::string Form::ExplanationOf(const Control& control) const {
  std::string text(HelpOn(control));
  if (!text.empty() && !control.ToolTip().empty()) text += kLineEnd;
  return text + control.ToolTip();
}

// ---- What is typed on it ----

void Form::StartCanvasLine(int left) {
  canvas_.push_back({left, {}});
  Changed();
}

void Form::TypeOnCanvas(char letter) {
  if (canvas_.empty()) canvas_.emplace_back();
  canvas_.back().text += letter;
  Changed();
}

void Form::ClearCanvas() {
  canvas_.clear();
  Changed();
}

void Form::Announce(std::string_view text) {
  announcement_ = text;
  ++announcementsMade_;
  Changed();
}

Control* Form::FocusBehind(const Control& gone) const {
  for (const Control* c = &gone; c->Container() != nullptr; c = c->Container())
    if (const auto* tabs = dynamic_cast<TabControl*>(c->Container());
        tabs != nullptr && c->Page() != kAnyPage)
      if (tabs->Tab() != c->Page()) return c->Container();
  const auto takesFocus = [this](const Control& control) {
    if (!control.TakesFocus() || control.Kind() == ControlKind::List || !control.Reachable()) return false;
    return std::ranges::all_of(groups_, [&](const auto& group) {
      const std::vector<Control*> all = group->All();
      return std::ranges::find(all, &control) == all.end() || group->Stop() == &control;
    });
  };
  const std::size_t count = controls_.size();
  for (std::size_t here = 0; here < count; ++here) {
    if (controls_[here].get() != &gone) continue;
    for (std::size_t step = 1; step < count; ++step)
      if (Control& next = *controls_[(here + step) % count]; takesFocus(next)) return &next;
  }
  return nullptr;
}

void Form::Register(std::unique_ptr<Control> control) {
  byName_.emplace(NameAndIndex(control->Name(), control->Index()), control.get());
  controls_.push_back(std::move(control));
}

Control* Form::Find(std::string_view name, int index) const {
  const auto found = byName_.find(NameAndIndex(name, index));
  return found == byName_.end() ? nullptr : found->second;
}

Control* Form::Find(std::string_view fullName) const {
  const std::size_t open = fullName.find('(');
  if (open == std::string_view::npos) return Find(fullName, kNoIndex);
  if (fullName.back() != ')') return nullptr;
  const std::string_view digits = fullName.substr(open + 1, fullName.size() - open - 2);
  int index = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), index);
  if (digits.starts_with('-') || error != std::errc() || end != digits.data() + digits.size()) return nullptr;
  return Find(fullName.substr(0, open), index);
}

std::vector<Control*> Form::FindAll(std::string_view name) const {
  std::vector<Control*> found;
  for (auto i = byName_.lower_bound(NameAndIndex(name, kNoIndex)); i != byName_.end(); ++i) {
    if (i->first.first != name) break;
    found.push_back(i->second);
  }
  return found;
}

Control* Form::Require(std::string_view name, int index) const {
  Control* control = Find(name, index);
  if (control == nullptr)
    throw Fault(FaultKind::Index, "There is no control " + std::string(name) + " in " + name_ + ".");
  return control;
}

std::vector<Control*> Form::ControlsByName() const {
  std::vector<Control*> controls;
  controls.reserve(byName_.size());
  for (const auto& [key, control] : byName_) controls.push_back(control);
  return controls;
}

}  // namespace vicetoll
