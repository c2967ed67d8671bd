// The windows on the screen: one for each form of the program that was ever shown.
//
// Controls are the truth. What a user does enters the core in one place, Desktop::Enter; afterwards the
// widgets are brought in step with the controls that changed.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <unordered_map>
#include <unordered_set>

#include "base/fault.h"
#include "shell/program.h"

namespace vicetoll {

class FormWindow;

class Desktop : public FormListener {
 public:
  // Shows the windows of the program that are to be shown.
  explicit Desktop(Program& program);
  ~Desktop() override;

  // Runs what a user's action does in the core, and shows what came of it. All events of users come through
  // here, and nothing a user does while the widgets are being brought in step.
  void Enter(const std::function<void()>& action);

  // Brings the widgets in step with the controls. Needed between events only where the user gets to see
  // something before the event is through: before a message box, during a pause.
  void Flush();

  // The window that shows the form, made now if it was never shown.
  FormWindow& WindowOf(Form& form);

  Program& GetProgram() const { return program_; }

  // A fault has ended the run; nothing enters the core any more. By default nothing happens.
  std::function<void(const Fault&)> onFault;
  // The last window is gone.
  std::function<void()> onEnded;

  void ControlChanged(Control& control) override;
  void FormChanged(Form& form) override;

 private:
  void Listen(Form& form);
  void UpdateForms();
  void UpdateControls();

  Program& program_;
  std::unordered_map<Form*, std::unique_ptr<FormWindow>> windows_;
  std::unordered_set<Form*> changedForms_;
  std::unordered_set<Control*> changedControls_;
  bool flushing_ = false;
  bool over_ = false;
};

}  // namespace vicetoll
