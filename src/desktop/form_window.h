// One window of the program: a widget for each control of a form, with the control's name.
#pragma once

#include <QTimer>
#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "controls/form.h"
#include "desktop/control_view.h"

class QAction;

namespace vicetoll {

class BalloonWidget;
class Desktop;

class FormWindow : public QWidget {
 public:
  FormWindow(Form& form, Desktop& desktop);
  ~FormWindow() override;

  // Bring in step: the window itself, or one control and the names that assistive tools read off it.
  void UpdateForm();
  void UpdateControl(Control& control);
  // Takes the colours of the theme in force.
  void TakeTheme();

  // The widget or menu entry of a control of this window.
  QWidget* WidgetOf(const Control& control) const;
  QAction* MenuEntryOf(const Control& control) const;

  // The user gives the window a size, in twips. Sizes that come from the window system arrive here when
  // they have settled.
  void TakeSize(int width, int height);

  Form& Model() const { return form_; }
  const BalloonWidget* ShownBalloon() const { return balloon_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void MakeControls();
  void MakeMenuEntry(MenuEntry& entry);
  void ComeInPlaceOfAnother();
  void UpdateName(const ControlView& view);
  void UpdateDescription(const ControlView& view);
  void TakeSettledSize();
  void TakeState();
  void GiveAccessKeys();
  template <class Picks>
  void GiveAccessKeys(QString (&taken)[4], const Picks& picks);

  bool ShowHover(QWidget* widget, const Control& control);
  void ExplainFocus();
  void HideBalloon();
  QRect RoomOfHint() const;
  void PaintCanvas();

  Form& form_;
  Desktop& desktop_;
  std::vector<std::unique_ptr<ControlView>> views_;
  std::unordered_map<const Control*, ControlView*> viewOf_;
  std::unordered_map<const QObject*, Control*> controlOf_;
  // Whose names take in the caption of this control.
  std::unordered_map<const Control*, std::vector<const ControlView*>> namedBy_;
  std::unordered_map<const Control*, QAction*> menu_;
  BalloonWidget* balloon_ = nullptr;
  int broughtUp_ = 0;  // how often the form had been shown when the window came up last
  QTimer settled_;
};

}  // namespace vicetoll
