// SPDX-License-Identifier: GPL-3.0-or-later
// The windows on the screen: one for each form of the program that was ever shown.
//
// Controls are the truth. What a user does enters the core in one place, Desktop::Enter; afterwards the
// widgets are brought in step with the controls that changed.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

#include "desktop/scale.h"
#include "shell/program.h"

namespace vicetoll {

class FormWindow;
class SystemWatch;

// What changed since it was last taken, each once, in the order of its first change.
template <class T>
class Changes {
 public:
  void Add(T& thing) {
    if (known_.insert(&thing).second) things_.push_back(&thing);
  }
  std::vector<T*> Take() {
    known_.clear();
    return std::exchange(things_, {});
  }

 private:
  std::vector<T*> things_;
  std::unordered_set<const T*> known_;
};

class Desktop : public FormListener {
 public:
  // Shows the windows of the program that are to be shown.
  explicit Desktop(Program& program);
  ~Desktop() override;

  // Runs what a user's action does in the core, and shows what came of it. All events of users come through
  // here, and nothing a user does while the widgets are being brought in step. Whatever is thrown ends here:
  // it never passes through Qt.
  void Enter(const std::function<void()>& action);

  // Ends the run by what was thrown: a fault of the core, or something that should never happen.
  void Fail(const std::exception& cause);

  // Brings the widgets in step with the controls. Needed between events only where the user gets to see
  // something before the event is through: before a message box, during a pause.
  void Flush();

  // Presses the button of the workspace in front that has these keys, from whatever window they came.
  void PressEverywhere(std::string_view keys);

  // The window that shows the form, made now if it was never shown.
  FormWindow& WindowOf(Form& form);
  // That of the workspace in front, nullptr while there is none.
  FormWindow* FrontWorkspace() const;
  // All windows ever shown, in the order they were made.
  const std::vector<std::unique_ptr<FormWindow>>& Windows() const { return windows_; }

  // What decides how large the windows are, and the user's step to larger or smaller ones (0: back to 100
  // percent), for those that are open and those to come.
  const Scaling& GetScaling() const { return scaling_; }
  Scaling& GetScaling() { return scaling_; }
  void ZoomBy(int steps);
  // The system has other colours, or another font.
  void TakeTheme();
  void TakeScale();

  // The run has failed; nothing enters the core any more. By default nothing happens.
  std::function<void(const std::exception&)> onFault;
  // The last window is gone.
  std::function<void()> onEnded;

  void ControlChanged(Control& control) override;
  void FormChanged(Form& form) override;
  void HintChanged(Form& form) override;

 private:
  void Listen(Form& form);
  FormWindow* FindWindow(const Form& form) const;
  void UpdateForms();
  void KeepBeforeWorkspace();
  void UpdateControls();

  Program& program_;
  Scaling scaling_;
  std::unique_ptr<SystemWatch> watch_;
  std::vector<std::unique_ptr<FormWindow>> windows_;
  std::unordered_map<const Form*, FormWindow*> windowOf_;
  Changes<Form> changedForms_;
  Changes<Form> changedHints_;
  Changes<Control> changedControls_;
  bool flushing_ = false;
  bool over_ = false;
};

}  // namespace vicetoll
