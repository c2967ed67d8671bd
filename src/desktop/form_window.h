// SPDX-License-Identifier: GPL-3.0-or-later
// One window of the program: a widget for each control of a form, with the control's name.
#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "controls/form.h"
#include "desktop/control_view.h"
#include "desktop/scale.h"

class QAction;
class QPainter;
class QScrollArea;

namespace vicetoll {

class BalloonWidget;
class Desktop;
class SpokenText;
class WindowKeys;

class FormWindow : public QWidget {
 public:
  FormWindow(Form& form, Desktop& desktop);
  ~FormWindow() override;

  // Bring in step: the window itself, or one control and the names that assistive tools read off it.
  void UpdateForm();
  void UpdateControl(Control& control);
  void UpdateHint();
  // The window of a workspace that this one stands beside or over, and never goes behind.
  void BelongTo(FormWindow& owner);
  // A maximised workspace that has become lower, as with the euro button, would cover itself with its bottom
  // row: only of windows that are not maximised the form limits the size.
  void KeepWhole();
  // Takes the colours of the theme in force.
  void TakeTheme();
  // Takes the scale that the font, the zoom and the screen of now ask for.
  void TakeScale();

  // The widget or menu entry of a control of this window. A widget that was never in front is made now.
  QWidget* WidgetOf(const Control& control);
  QAction* MenuEntryOf(const Control& control) const;

  // The user gives the window a size, in twips. Sizes that come from the window system arrive here when
  // they have settled.
  void TakeSize(int width, int height);

  // The control that has the focus of this window, also while another window is the active one; nullptr if
  // none has.
  Control* FocusedControl() const;
  // The control had the focus before widgets were brought in step. If it cannot hold it any more, the focus
  // goes on to a control nearby, and comes back when that control holds it still and the other one can again.
  void KeepFocus(Control* before);

  Form& Model() const { return form_; }
  // What the window shows, as large as the form in the scale in force; the window scrolls it where the screen
  // is too small.
  Sheet& GetSheet() const { return *sheet_; }
  const Scale& GetScale() const { return sheet_->GetScale(); }
  const BalloonWidget* ShownBalloon() const { return balloon_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void MakePagesInFront();
  template <class Picks>
  void MakeControls(const Picks& picks);
  void MakeControl(Control& control);
  void OrderTabStops();
  void MakeMenu();
  void MakeMenuEntry(MenuEntry& entry);
  void MakeSpokenTexts();
  void UpdateSpokenTexts();
  void ComeInPlaceOfAnother();
  void UpdateName(const ControlView& view);
  void UpdateDescription(const ControlView& view);
  void MakeSheet();
  QSize Twips() const { return {form_.Width(), form_.Height()}; }
  QSize Pixels() const { return GetScale().ToPixels(0, 0, form_.Width(), form_.Height()).size(); }
  bool FillsScreen() const { return isMaximized() || isFullScreen(); }
  QSize FreeRoom() const;
  void Rescale();
  void FitToForm();
  QSize WithBars(const QSize& pixels) const;
  void StayOnScreen();
  void TellSize();
  void TakeSettledSize();
  void TakeState();
  void GiveAccessKeys();
  template <class Picks>
  void GiveAccessKeys(QString (&taken)[4], const Picks& picks);

  bool ShowHover(QWidget* widget, const Control& control, QPoint pointer);
  void ShowBalloon(const Control& control, std::string_view text, QWidget* owner,
                   std::optional<QPoint> pointer);
  QWidget* NextOf(const Control& control) const;
  void ComeBeside(const FormWindow& owner);
  void ExplainFocus();
  void HideBalloon();
  QPoint CurrentPlace(const QPoint& otherwise) const;
  QRect RoomOfHint() const;
  QString FootText() const;
  void PaintGround();
  void PaintCanvas(QPainter& painter);

  Form& form_;
  Desktop& desktop_;
  QScrollArea* area_;
  Sheet* sheet_;
  bool flows_ = false;       // what the window shows makes use of all room that it gets
  QSize design_;             // of what flows, in twips: the scale is reckoned for it
  QSize known_;              // twips of the form when it was last shown
  QSize asked_;              // the window's size as the form has it; another one is the user's doing
  QSize told_;               // the window's size that the form was last told of
  bool resizing_ = false;    // the form is being told of a size
  bool filling_ = false;     // the scale is that of a maximised window
  bool newOnScreen_ = true;  // what the window manager adds to the window is not known yet
  std::vector<std::unique_ptr<ControlView>> views_;  // in the order they were made
  std::unordered_map<const Control*, ControlView*> viewOf_;
  std::unordered_map<const QObject*, Control*> controlOf_;
  // Whose names take in the caption of this control.
  std::unordered_map<const Control*, std::vector<const ControlView*>> namedBy_;
  std::unordered_map<const Control*, QAction*> menu_;
  std::unordered_map<const Control*, QChar> accessKeys_;  // of the buttons
  std::unique_ptr<WindowKeys> keys_;
  SpokenText* foot_ = nullptr;    // the line at the foot, for those who listen
  SpokenText* canvas_ = nullptr;  // what is typed on the bare window
  SpokenText* news_ = nullptr;    // what is announced
  int announced_ = 0;
  std::string status_;            // at the foot, as it was told last
  Control* displaced_ = nullptr;  // lost the focus to the next one
  Control* standIn_ = nullptr;    // has it in its place
  BalloonWidget* balloon_ = nullptr;
  QPointer<FormWindow> owner_;
  bool placed_ = false;  // beside its owner, once
  int broughtUp_ = 0;    // how often the form had been shown when the window came up last
  QTimer settled_;
};

}  // namespace vicetoll
