#include "desktop/desktop.h"

#include <QApplication>

#include "desktop/form_window.h"
#include "desktop/widgets.h"

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

// Hears what the system says to the whole application; windows with colours of their own are not told.
class SystemWatch : public QObject {
 public:
  explicit SystemWatch(std::function<void()> onPalette) : onPalette_(std::move(onPalette)) {
    qApp->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::ApplicationPaletteChange) onPalette_();
    return false;
  }

 private:
  std::function<void()> onPalette_;
};

Desktop::Desktop(Program& program)
    : program_(program), watch_(std::make_unique<SystemWatch>([this] { TakeTheme(); })) {
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

void Desktop::UpdateForms() {
  const std::vector<Form*> changed = changedForms_.Take();
  // What comes up does so before the rest goes, or the desktop would shine through. What is hidden and was
  // never shown needs no window.
  for (const bool shown : {true, false})
    for (Form* form : changed) {
      if (form->Shown() != shown) continue;
      FormWindow* const window = shown ? &WindowOf(*form) : FindWindow(*form);
      if (window != nullptr) window->UpdateForm();
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
