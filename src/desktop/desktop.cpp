// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/desktop.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWheelEvent>

#include "desktop/chart_module.h"
#include "desktop/chart_widget.h"
#include "desktop/form_window.h"
#include "desktop/widgets.h"
#include "desktop/zoom_input.h"

namespace vicetoll {
namespace {

// Raises a flag for as long as it lives.
class FlagWhile {
 public:
  explicit FlagWhile(bool& flag) : flag_(flag) { flag_ = true; }
  ~FlagWhile() { flag_ = false; }
  FlagWhile(const FlagWhile&) = delete;
  FlagWhile& operator=(const FlagWhile&) = delete;

 private:
  bool& flag_;
};

}  // namespace

// Hears what the system says to the whole application, of which windows with colours and fonts of their own
// are not told; and the keys and the wheel that zoom, wherever the focus and the pointer are in a window.
class SystemWatch : public QObject {
 public:
  explicit SystemWatch(Desktop& desktop) : desktop_(desktop) { qApp->installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    switch (event->type()) {
      case QEvent::ApplicationPaletteChange:
        desktop_.TakeTheme();
        return false;
      case QEvent::ApplicationFontChange:
        desktop_.TakeScale();
        return false;
      case QEvent::KeyPress:
        return IsInWindow(watched) && TakeKey(*static_cast<QKeyEvent*>(event));
      case QEvent::Wheel:
        return IsInWindow(watched) && TakeWheel(*static_cast<QWheelEvent*>(event));
      default:
        return false;
    }
  }

 private:
  // A chart over months has a zoom of its own, in time, by the same keys and the same wheel.
  static bool IsInWindow(QObject* watched) {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    if (widget == nullptr || dynamic_cast<FormWindow*>(widget->window()) == nullptr) return false;
    for (; widget != nullptr; widget = widget->parentWidget())
      if (const auto* chart = dynamic_cast<const ChartWidget*>(widget)) return !chart->ZoomsInTime();
    return true;
  }

  bool TakeKey(QKeyEvent& key) {
    const Zoom zoom = ZoomOf(key);
    if (zoom == Zoom::None) return false;
    desktop_.ZoomBy(zoom == Zoom::In ? 1 : zoom == Zoom::Out ? -1 : 0);
    key.accept();
    return true;
  }

  bool TakeWheel(QWheelEvent& wheel) {
    if (!ZoomWheel::Zooms(wheel)) return false;
    const int steps = wheel_.Turn(wheel);
    if (steps != 0) desktop_.ZoomBy(steps);
    wheel.accept();
    return true;
  }

  Desktop& desktop_;
  ZoomWheel wheel_;
};

Desktop::Desktop(Program& program) : program_(program), watch_(std::make_unique<SystemWatch>(*this)) {
  program_.onWindowCreated = [this](Form& form) { Listen(form); };
  program_.GetExporter().drawChart = DrawChart;
  for (Form* form : program_.Windows()) Listen(*form);
  Flush();
}

Desktop::~Desktop() {
  program_.onWindowCreated = nullptr;
  program_.GetExporter().drawChart = nullptr;
  for (Form* form : program_.Windows()) form->SetListener(nullptr);
}

void Desktop::Listen(Form& form) {
  form.SetListener(this);
  changedForms_.Add(form);
}

void Desktop::ControlChanged(Control& control) {
  if (FindWindow(control.Window()) != nullptr) changedControls_.Add(control);
}

void Desktop::FormChanged(Form& form) { changedForms_.Add(form); }

void Desktop::HintChanged(Form& form) {
  if (FindWindow(form) != nullptr) changedHints_.Add(form);
}

void Desktop::Enter(const std::function<void()>& action) {
  if (flushing_ || over_) return;
  try {
    action();
    for (const auto& window : windows_) window->KeepWhole();
    Flush();
  } catch (const std::exception& cause) {
    return Fail(cause);
  }
  if (program_.Ended() && !over_) {
    over_ = true;
    if (onEnded) onEnded();
  }
}

void Desktop::Fail(const std::exception& cause) {
  if (over_) return;
  over_ = true;
  try {
    Flush();
  } catch (const std::exception&) {
    // The first cause is what counts; what cannot be shown any more stays as it is.
  }
  if (onFault) onFault(cause);
}

void Desktop::Flush() {
  if (flushing_) return;
  const FlagWhile flushing(flushing_);
  // A control that has the focus and goes would hand it on to anything.
  std::vector<std::pair<FormWindow*, Control*>> focused;
  for (const auto& window : windows_)
    if (window->isVisible()) focused.emplace_back(window.get(), window->FocusedControl());
  UpdateForms();
  UpdateControls();
  for (Form* form : changedHints_.Take()) FindWindow(*form)->UpdateHint();
  for (const auto& [window, control] : focused) window->KeepFocus(control);
}

void Desktop::PressEverywhere(std::string_view keys) {
  for (const auto& control : program_.Current().Controls())
    if (auto* button = dynamic_cast<Button*>(control.get()); button != nullptr && button->Keys() == keys)
      return Enter([button] { button->UserClicks(); });
}

void Desktop::TakeTheme() {
  for (const auto& window : windows_) window->TakeTheme();
}

// Hidden windows take their scale when they come up.
void Desktop::TakeScale() {
  for (const auto& window : windows_)
    if (window->isVisible()) window->TakeScale();
}

void Desktop::ZoomBy(int steps) {
  if (scaling_.ZoomBy(steps)) TakeScale();
}

void Desktop::UpdateForms() {
  const std::vector<Form*> changed = changedForms_.Take();
  // What comes up does so before the rest goes, or the desktop would shine through. What is hidden and was
  // never shown needs no window.
  for (const bool shown : {true, false})
    for (Form* form : changed) {
      if (form->Shown() != shown) continue;
      if (FormWindow* const window = FindWindow(*form))
        window->UpdateForm();
      else if (shown)
        WindowOf(*form);
    }
  if (!changed.empty()) KeepBeforeWorkspace();
}

// The other windows go along with the workspace that is in front by now.
void Desktop::KeepBeforeWorkspace() {
  FormWindow* const front = FrontWorkspace();
  if (front == nullptr) return;
  for (const auto& window : windows_)
    if (window->isVisible() && !window->Model().SharesPlace()) window->BelongTo(*front);
}

FormWindow* Desktop::FrontWorkspace() const {
  for (const auto& window : windows_)
    if (window->isVisible() && window->Model().SharesPlace()) return window.get();
  return nullptr;
}

void Desktop::UpdateControls() {
  for (Control* control : changedControls_.Take()) FindWindow(control->Window())->UpdateControl(*control);
}

FormWindow* Desktop::FindWindow(const Form& form) const {
  const auto window = windowOf_.find(&form);
  return window == windowOf_.end() ? nullptr : window->second;
}

FormWindow& Desktop::WindowOf(Form& form) {
  if (FormWindow* const window = FindWindow(form)) return *window;
  FormWindow& window = *windows_.emplace_back(std::make_unique<FormWindow>(form, *this));
  windowOf_[&form] = &window;
  window.UpdateForm();
  return window;
}

}  // namespace vicetoll
