// SPDX-License-Identifier: GPL-3.0-or-later
// What a control is: state with a name, events that a user can raise, a listener that hears of changes.
//
// Controls are the model of the windows. The program's rules read and write them; a widget or a test
// driver shows them and hands on what a user does. Setting something by program raises no user event;
// the two exceptions, change events of radios and tabs, say so.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vicetoll {

class CaptionedControl;
class Form;

// What a user's action came to.
enum class UserOutcome {
  Done,
  Refused,  // the user could not reach the control; nothing happened
  NoEntry,  // a list has no such entry; nothing happened
};

enum class ControlKind {
  List,
  TextBox,
  Button,
  MenuEntry,
  Option,
  Radio,
  CheckBox,
  Label,
  Frame,
  TabControl,
  Panel,
  Grid,
  DocumentText,
  Chart,
};

// A rectangle in twips (1440 to the inch), relative to the control's container.
struct Place {
  int left = 0, top = 0, width = 0, height = 0;
};

inline constexpr int kNoIndex = -1;
inline constexpr int kAnyPage = -1;

// Colours are the numbers blue * 65536 + green * 256 + red.
inline constexpr int kRed = 255;
inline constexpr int kGreen = 49152;

class Control {
 public:
  // What a control is made of. `index` is its place in a control array, kNoIndex if it is in none.
  // `container` is the frame, panel or tab control it stands in (nullptr: the window itself), `page` the
  // tab it stands on where the container is a tab control.
  struct Identity {
    std::string name;
    int index = kNoIndex;
    Control* container = nullptr;
    int page = kAnyPage;
  };

  Control(Form& form, Identity identity);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual ControlKind Kind() const = 0;

  const std::string& Name() const { return identity_.name; }
  int Index() const { return identity_.index; }
  std::string FullName() const;  // "optTimePeriodPast(2)"
  Control* Container() const { return identity_.container; }
  int Page() const { return identity_.page; }
  Form& Window() const { return form_; }

  bool Enabled() const { return enabled_; }
  bool Visible() const { return visible_; }
  void SetEnabled(bool enabled);
  void SetVisible(bool visible);

  // Enables and shows, or disables and hides. What is hidden keeps its text.
  void SetAvailable(bool available);

  const std::string& ToolTip() const { return toolTip_; }
  void SetToolTip(std::string_view text);

  // What the control is called by those who cannot see where it stands; where there are no words of its own
  // for that, it is named by captions.
  const std::string& OwnName() const { return ownName_; }
  void SetOwnName(std::string_view name) { ownName_ = name; }
  // Whose captions, in this order, say what the control is to those who cannot see where it stands.
  const std::vector<const CaptionedControl*>& LabelledBy() const { return labelledBy_; }
  void SetLabelledBy(std::vector<const CaptionedControl*> labels) { labelledBy_ = std::move(labels); }

  const Place& GetPlace() const { return place_; }
  void SetPlace(const Place& place);

  // Whether a user can get at the control: its window is shown, it and all its containers are visible
  // and enabled, and it stands on the tab in front.
  bool Reachable() const { return visible_ && enabled_ && StandsInFront(); }
  // Whether the place where it stands is one that a user can get at.
  bool StandsInFront() const;
  // Whether neither it nor what it stands in is on a tab behind another. Nothing is said of what is hidden.
  bool StandsOnPageInFront() const;

  // Takes over what the control of the same name in another window of the same design shows. Raises no event.
  virtual void TakeStateOf(const Control& other);

  // Whether it is a control that can have the input focus.
  bool TakesFocus() const;

  // The input focus arrives.
  UserOutcome UserFocuses();
  std::function<void()> onFocus;

 protected:
  void Changed();
  // Ends a user's action that was carried out: tells the window of it.
  UserOutcome Acted();
  // Whether children on `page` are in front.
  virtual bool ShowsPage(int) const { return true; }

 private:
  Form& form_;
  Identity identity_;
  bool enabled_ = true;
  bool visible_ = true;
  std::string toolTip_;
  std::string ownName_;
  std::vector<const CaptionedControl*> labelledBy_;
  Place place_;
};

// A control with a caption: button, menu entry, label, frame, and the base of the choices.
class CaptionedControl : public Control {
 public:
  CaptionedControl(Form& form, Identity identity, std::string_view caption)
      : Control(form, std::move(identity)), caption_(caption) {}

  const std::string& Caption() const { return caption_; }
  void SetCaption(std::string_view caption);
  void TakeStateOf(const Control& other) override;

 private:
  std::string caption_;
};

class Button : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  ControlKind Kind() const override { return ControlKind::Button; }

  UserOutcome UserClicks();
  std::function<void()> onClick;

  // The keys that press the button from anywhere in its window, "Ctrl+G"; empty if there are none.
  const std::string& Keys() const { return keys_; }
  void SetKeys(std::string_view keys) { keys_ = keys; }

  // The letter of the caption that presses the button together with Alt, as it is written there; 0: any that
  // is free.
  char AccessKey() const { return accessKey_; }
  void SetAccessKey(char letter) { accessKey_ = letter; }

 private:
  std::string keys_;
  char accessKey_ = 0;
};

// The button that takes what a window shows along, the same in each window that has one.
inline constexpr std::string_view kExportCaption = "Export\x85", kExportKeys = "Ctrl+E";

// An entry of a window's right-click menu.
class MenuEntry : public Button {
 public:
  using Button::Button;
  ControlKind Kind() const override { return ControlKind::MenuEntry; }
};

class Label : public CaptionedControl {
 public:
  enum class Align { Left, Centre, Right };

  using CaptionedControl::CaptionedControl;
  ControlKind Kind() const override { return ControlKind::Label; }

  Align GetAlign() const { return align_; }
  void SetAlign(Align align) { align_ = align; }

 private:
  Align align_ = Align::Left;
};

class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  ControlKind Kind() const override { return ControlKind::Frame; }
};

// A background panel; it takes clicks.
class Panel : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::Panel; }

  UserOutcome UserClicks();
  std::function<void()> onClick;
};

// A box that shows a text and takes no typing.
class TextBox : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::TextBox; }

  const std::string& Text() const { return text_; }
  void SetText(std::string_view text);
  void TakeStateOf(const Control& other) override;

 private:
  std::string text_;
};

// A tab control. Its change event runs on every change of the tab in front, by user or program.
class TabControl : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::TabControl; }

  int Tab() const { return tab_; }
  void SetTab(int tab);
  void TakeStateOf(const Control& other) override;

  // One for each tab; an ampersand stands before the letter of its access key.
  const std::vector<std::string>& PageCaptions() const { return pageCaptions_; }
  void SetPageCaptions(std::vector<std::string> captions) { pageCaptions_ = std::move(captions); }

  UserOutcome UserSelects(int tab);
  std::function<void()> onChange;

 protected:
  bool ShowsPage(int page) const override { return page == kAnyPage || page == tab_; }

 private:
  int tab_ = 0;
  std::vector<std::string> pageCaptions_;
};

}  // namespace vicetoll
