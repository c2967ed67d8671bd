// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window_keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>
#include <algorithm>
#include <optional>

#include "desktop/desktop.h"
#include "desktop/form_window.h"
#include "shell/keys.h"

namespace vicetoll {
namespace {

std::optional<Arrow> ArrowOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return Arrow::Left;
    case Qt::Key_Right:
      return Arrow::Right;
    case Qt::Key_Up:
      return Arrow::Up;
    case Qt::Key_Down:
      return Arrow::Down;
    default:
      return {};
  }
}

bool HasKeys(const Form& form, std::string_view keys) {
  for (const auto& control : form.Controls())
    if (const auto* button = dynamic_cast<const Button*>(control.get()); button && button->Keys() == keys)
      return true;
  return false;
}

}  // namespace

WindowKeys::WindowKeys(FormWindow& window, Desktop& desktop) : window_(window), desktop_(desktop) {
  for (const auto& group : window.Model().FocusGroups())
    for (const Control* control : group->All()) groupOf_[control] = group.get();
  window.installEventFilter(this);
  for (const char* keys : kEverywhereKeys) {
    if (HasKeys(window.Model(), keys)) continue;  // the button listens itself
    auto* shortcut = new QShortcut(QKeySequence(QLatin1String(keys)), &window);
    connect(shortcut, &QShortcut::activated, this, [this, keys] { desktop_.PressEverywhere(keys); });
  }
}

void WindowKeys::Watch(Control& control, QWidget& hand) {
  hand.installEventFilter(this);
  controlOf_[&hand] = &control;
  handOf_[&control] = &hand;
}

void WindowKeys::FocusOn(const Control& control) {
  if (const auto hand = handOf_.find(&control); hand != handOf_.end())
    hand->second->setFocus(Qt::OtherFocusReason);
}

void WindowKeys::UpdateStops() {
  for (const auto& group : window_.Model().FocusGroups()) UpdateStop(*group);
}

void WindowKeys::UpdateStop(const FocusGroup& group) {
  const std::vector<Control*> all = group.All();
  const Control* stop = window_.FocusedControl();
  if (std::ranges::find(all, stop) != all.end()) {
    lastIn_[&group] = stop;
  } else {
    stop = group.ArrowsClick() ? nullptr : lastIn_[&group];
    if (stop == nullptr || !stop->Reachable()) stop = group.Stop();
  }
  for (const Control* control : all)
    if (const auto hand = handOf_.find(control); hand != handOf_.end())
      hand->second->setFocusPolicy(control == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

bool WindowKeys::eventFilter(QObject* watched, QEvent* event) {
  const auto found = controlOf_.find(watched);
  Control* const control = found == controlOf_.end() ? nullptr : found->second;
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto& key = *static_cast<QKeyEvent*>(event);
      if (key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier) return OpenMenu();
      if (control != nullptr) return TakeKey(*control, key);
      // It comes here when the widget that has the focus has no use for it.
      return key.key() == Qt::Key_Escape && key.modifiers() == Qt::NoModifier && Escape();
    }
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      if (const auto group = groupOf_.find(control); group != groupOf_.end()) UpdateStop(*group->second);
      return false;
    default:
      return false;
  }
}

bool WindowKeys::TakeKey(Control& control, const QKeyEvent& key) {
  if ((key.modifiers() & ~Qt::KeypadModifier) != 0) return false;
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter) return !key.isAutoRepeat() && Press(control);
  const auto group = groupOf_.find(&control);
  const std::optional<Arrow> arrow = ArrowOf(key.key());
  return group != groupOf_.end() && arrow && TakeArrow(control, *group->second, *arrow);
}

// An arrow of a group never leads out of it, not even at its edge.
bool WindowKeys::TakeArrow(Control& control, const FocusGroup& group, Arrow arrow) {
  Control* const next = group.Next(control, arrow);
  if (next == nullptr) return true;
  FocusOn(*next);
  if (auto* choice = dynamic_cast<Choice*>(next); choice != nullptr && group.ArrowsClick())
    desktop_.Enter([choice] { choice->UserClicks(); });
  return true;
}

// What a click does at once, Enter does; options that the arrows choose leave it alone.
bool WindowKeys::Press(Control& control) {
  auto* const button = qobject_cast<QAbstractButton*>(handOf_.at(&control));
  if (button == nullptr) return false;
  const auto group = groupOf_.find(&control);
  if (group != groupOf_.end() && group->second->ArrowsClick()) return false;
  button->click();
  return true;
}

// Where the Menu key is missing; Qt knows that one itself.
bool WindowKeys::OpenMenu() {
  const QPoint middle = window_.rect().center();
  QContextMenuEvent menu(QContextMenuEvent::Keyboard, middle, window_.mapToGlobal(middle));
  QApplication::sendEvent(&window_, &menu);
  return true;
}

bool WindowKeys::Escape() {
  Button* const button = window_.Model().EscapeButton();
  if (button == nullptr) return false;
  desktop_.Enter([button] { button->UserClicks(); });
  return true;
}

}  // namespace vicetoll
