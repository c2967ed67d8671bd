// SPDX-License-Identifier: GPL-3.0-or-later
// A window: a set of named controls, with caption, size and whether it is shown.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controls/choice.h"
#include "controls/control.h"
#include "controls/hint_line.h"

namespace vicetoll {

// Hears what changes, so that a widget can be kept in step. It is told after the change, and need not
// know what changed: it reads the control anew.
class FormListener {
 public:
  virtual ~FormListener() = default;
  virtual void ControlChanged(Control& control) = 0;
  virtual void FormChanged(Form& form) = 0;
  virtual void HintChanged(Form&) {}
};

// A line of text on the bare window, beginning so many twips from its left edge.
struct CanvasLine {
  int left = 0;
  std::string text;
};

enum class WindowState { Normal, Minimised, Maximised };

class Form {
 public:
  Form(std::string_view name, std::string_view caption) : name_(name), caption_(caption) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  // A sin key, or the window's own name: "frmSwitchSins".
  const std::string& Name() const { return name_; }

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);

  bool Shown() const { return shown_; }
  // Brings the window up, also one that is up already, behind another or minimised.
  void Show();
  int TimesShown() const { return timesShown_; }
  void Hide() { SetShown(false); }

  // The button that is meant when a user closes the window by the window system. A window that names none
  // offers no such way out.
  virtual Button* CloseButton() const { return nullptr; }
  bool HasCloseEntry() const { return CloseButton() != nullptr; }
  // The button that the Escape key presses, if any.
  virtual Button* EscapeButton() const { return CloseButton(); }
  // Where the focus starts whenever the window comes up; nullptr: where it was.
  virtual Control* FirstFocus() const { return nullptr; }
  // Where the focus goes on to from a control that can no longer hold it: to the tabs if its page has left
  // the front, else to the next stop of the Tab key that may get the focus without a user's doing. That is
  // no list: a list takes the arrival of the focus for the beginning of a choice.
  Control* FocusBehind(const Control& gone) const;
  // What heads the right-click menu, where there is one.
  virtual std::string_view MenuTitle() const { return {}; }
  // Of windows that share a place one is shown at a time, where the one before stood on the screen.
  virtual bool SharesPlace() const { return false; }

  // The user asks the window system to close the window. Without a button for that nothing comes of it but
  // a word on the way out.
  UserOutcome UserCloses();

  // The line at the foot of the window, in UTF-8; it is not shown while something is typed on the window.
  const std::string& Hint() const { return hint_.Text(); }
  const std::string& News() const { return hint_.News(); }
  void SetNextStep(std::string text);
  // What came of the user's action that is being carried out.
  void Say(std::string news);
  // The same, of an action in another window that is through.
  void PassOn(std::string news);
  // The pointer comes to rest on a control, or leaves (nullptr).
  void UserPointsAt(const Control* control);
  void TellFocus(const Control& control);
  // The short tip of a control, where that is another than its tool tip.
  std::function<std::string(const Control&)> shortTip;

  // What a control explains itself by beyond its tool tip; empty where it has nothing to say now.
  std::function<std::string_view(const Control&)> helpOn;
  std::string_view HelpOn(const Control& control) const {
    return helpOn ? helpOn(control) : std::string_view();
  }
  // That, with the tool tip as its last line.
  std::string ExplanationOf(const Control& control) const;
  // Says that helpOn gives other answers from now on.
  void HelpChanged() { Changed(); }

  // Outer size in twips. Setting a size runs the resize event, as a user's resizing does.
  int Width() const { return width_; }
  int Height() const { return height_; }
  void Resize(int width, int height);
  WindowState GetWindowState() const { return state_; }
  // Minimised, maximised or back to normal; runs the resize event.
  void SetWindowState(WindowState state);
  UserOutcome UserResizes(int width, int height);  // Refused while the window is hidden
  std::function<void()> onResize;

  // Runs after whatever a user has done in this window, when its own handlers are through; with the control
  // that he did it to, nullptr for the window itself.
  std::function<void(const Control*)> onUserActed;
  void Acted(const Control* by);

  // The boxes, lists and labels that say what came of an action on a control, whether or not they say
  // something new; none where nothing but changes is worth telling.
  virtual std::vector<const Control*> ResultsOf(const Control&) const { return {}; }
  // Tells those who listen to the window what it shows by now.
  void Announce(std::string_view text);
  const std::string& Announcement() const { return announcement_; }
  int AnnouncementsMade() const { return announcementsMade_; }

  // What is typed on the bare window, line by line, blank lines included. A letter goes to the last line.
  const std::vector<CanvasLine>& Canvas() const { return canvas_; }
  void StartCanvasLine(int left);
  void TypeOnCanvas(char letter);
  void ClearCanvas();

  // Takes over what another window of the same design shows: caption, controls, whether it is shown, and,
  // unless the user has this one maximised or minimised, its size. Runs the resize event and no other.
  void TakeStateOf(const Form& other);

  // Stands at the foot of the window in place of the hint, in UTF-8, as it may name a file; empty if nothing.
  const std::string& Status() const { return status_; }
  void SetStatus(std::string_view status);

  // Makes a control of this window: Add<Button>({"cmdExit"}, "Exit").
  template <class T, class... Args>
  T& Add(Control::Identity identity, Args&&... args) {
    auto control = std::make_unique<T>(*this, std::move(identity), std::forward<Args>(args)...);
    T& made = *control;
    Register(std::move(control));
    return made;
  }

  // A group of choices of this window, or a table of controls.
  ChoiceGroup& AddGroup() { return AddFocusGroup<ChoiceGroup>(); }
  ControlTable& AddTable() { return AddFocusGroup<ControlTable>(); }
  const std::vector<std::unique_ptr<FocusGroup>>& FocusGroups() const { return groups_; }

  // The control of that name ("optTimePeriodPast(2)", "cmdExit"), nullptr if there is none.
  Control* Find(std::string_view fullName) const;
  Control* Find(std::string_view name, int index) const;
  // The control of that name, or all elements of that array in the order of their indices.
  std::vector<Control*> FindAll(std::string_view name) const;
  // The control of that name and type. Throws Fault(Index) if there is none.
  template <class T>
  T& Get(std::string_view name, int index = kNoIndex) const {
    return dynamic_cast<T&>(*Require(name, index));
  }

  // All controls in the order they were made: containers before what stands in them, and otherwise
  // the order of reading, which is also that of the Tab key.
  const std::vector<std::unique_ptr<Control>>& Controls() const { return controls_; }
  // All controls by name (byte order), elements of arrays by index.
  std::vector<Control*> ControlsByName() const;

  void SetListener(FormListener* listener) { listener_ = listener; }
  FormListener* Listener() const { return listener_; }

 protected:
  void SetShown(bool shown);

 private:
  using NameAndIndex = std::pair<std::string_view, int>;

  template <class T>
  T& AddFocusGroup() {
    auto group = std::make_unique<T>();
    T& made = *group;
    groups_.push_back(std::move(group));
    return made;
  }
  void Register(std::unique_ptr<Control> control);
  Control* Require(std::string_view name, int index) const;
  void Changed();
  void HintChanged();
  std::string TipOf(const Control* control) const;

  std::string name_;
  std::string caption_;
  std::string status_;
  bool shown_ = false;
  int timesShown_ = 0;
  int width_ = 0;
  int height_ = 0;
  WindowState state_ = WindowState::Normal;
  HintLine hint_;
  std::vector<CanvasLine> canvas_;
  std::string announcement_;
  int announcementsMade_ = 0;
  std::vector<std::unique_ptr<Control>> controls_;
  std::vector<std::unique_ptr<FocusGroup>> groups_;
  std::map<NameAndIndex, Control*> byName_;  // the names live in the controls
  FormListener* listener_ = nullptr;
};

}  // namespace vicetoll
