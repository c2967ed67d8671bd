#include "desktop/desktop.h"

#include <QApplication>

#include "desktop/form_window.h"
#include "desktop/widgets.h"

namespace vicetoll {

Desktop::Desktop(Program& program) : program_(program) {
  program_.onWindowCreated = [this](Form& form) { Listen(form); };
  for (Form* form : program_.Windows()) Listen(*form);
  Flush();
}

Desktop::~Desktop() {
  program_.onWindowCreated = nullptr;
  for (Form* form : program_.Windows()) form->SetListener(nullptr);
}

void Desktop::Listen(Form& form) {
  form.SetListener(this);
  changedForms_.insert(&form);
}

void Desktop::ControlChanged(Control& control) {
  if (windows_.contains(&control.Window())) changedControls_.insert(&control);
}

void Desktop::FormChanged(Form& form) { changedForms_.insert(&form); }

void Desktop::Enter(const std::function<void()>& action) {
  if (flushing_ || over_) return;
  try {
    action();
  } catch (const Fault& fault) {
    over_ = true;
    Flush();
    if (onFault) onFault(fault);
    return;
  }
  Flush();
  if (program_.Ended() && !over_) {
    over_ = true;
    if (onEnded) onEnded();
  }
}

void Desktop::Flush() {
  if (flushing_) return;
  flushing_ = true;
  QWidget* const focus = QApplication::focusWidget();
  UpdateForms();
  UpdateControls();
  // A control that had the focus and went handed it on. A list must not get it so: the arrival of the
  // focus means something there, and no user brought it.
  QWidget* const now = QApplication::focusWidget();
  if (now != focus && dynamic_cast<BlueList*>(now) != nullptr) now->clearFocus();
  flushing_ = false;
}

void Desktop::UpdateForms() {
  const auto changed = std::exchange(changedForms_, {});
  // What comes up does so before the rest goes, or the desktop would shine through.
  for (const bool shown : {true, false})
    for (Form* form : changed) {
      if (form->Shown() != shown) continue;
      if (shown)
        WindowOf(*form).UpdateForm();
      else if (const auto window = windows_.find(form); window != windows_.end())
        window->second->UpdateForm();
    }
}

void Desktop::UpdateControls() {
  const auto changed = std::exchange(changedControls_, {});
  std::unordered_set<FormWindow*> touched;
  for (Control* control : changed) {
    FormWindow& window = *windows_.at(&control->Window());
    window.UpdateControl(*control);
    touched.insert(&window);
  }
  for (FormWindow* window : touched) window->UpdateNames();
}

FormWindow& Desktop::WindowOf(Form& form) {
  std::unique_ptr<FormWindow>& window = windows_[&form];
  if (!window) {
    window = std::make_unique<FormWindow>(form, *this);
    window->UpdateForm();
  }
  return *window;
}

}  // namespace vicetoll
