// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/control_view.h"

#include <QShortcut>

#include "controls/choice.h"
#include "controls/document_text.h"
#include "controls/drop_down_list.h"
#include "controls/grid.h"
#include "desktop/chart_module.h"
#include "desktop/desktop.h"
#include "desktop/document_view.h"
#include "desktop/grid_view.h"
#include "desktop/look.h"
#include "desktop/scale.h"
#include "desktop/text.h"
#include "desktop/widgets.h"

namespace vicetoll {
namespace {

// A view that knows its control and its widget by their types.
template <class C, class W>
class ViewOf : public ControlView {
 public:
  ViewOf(C& control, W* widget) : ControlView(control, widget), control_(control), widget_(widget) {}

 protected:
  C& control_;
  W* widget_;
};

class ListView : public ViewOf<DropDownList, BlueList> {
 public:
  ListView(DropDownList& list, QWidget* parent, Desktop& desktop) : ViewOf(list, new BlueList(parent)) {
    QObject::connect(widget_, &QComboBox::activated,
                     [&list, &desktop](int position) { desktop.Enter([&] { list.UserPicks(position); }); });
    if (!list.TakesTyping()) return;
    widget_->setEditable(true);
    widget_->setCompleter(nullptr);
    QObject::connect(widget_->lineEdit(), &QLineEdit::textEdited, [&list, &desktop](const QString& text) {
      desktop.Enter([&] { list.UserTypes(FromQt(text)); });
    });
  }
  void TakeTheme() override { widget_->TakeTheme(); }

 protected:
  void UpdateContents() override {
    widget_->SetEntries(control_.Entries());
    widget_->SetShown(ToQt(control_.Text()), control_.Position());
  }
};

class BoxView : public ViewOf<TextBox, ResultBox> {
 public:
  BoxView(TextBox& box, QWidget* parent) : ViewOf(box, new ResultBox(parent)) {}
  void TakeScale() override { widget_->Fit(); }

 protected:
  void UpdateContents() override {
    const QString text = ToQt(control_.Text());
    if (widget_->text() != text) widget_->SetText(text);
  }
};

class ButtonView : public ViewOf<Button, CaptionButton> {
 public:
  ButtonView(Button& button, QWidget* parent, Desktop& desktop) : ViewOf(button, new CaptionButton(parent)) {
    QObject::connect(widget_, &QPushButton::clicked,
                     [&button, &desktop] { desktop.Enter([&] { button.UserClicks(); }); });
    if (button.Keys().empty()) return;
    // As the button's child it sleeps while the button is disabled or hidden.
    auto* keys = new QShortcut(QKeySequence(ToQt(button.Keys()), QKeySequence::PortableText), widget_);
    QObject::connect(keys, &QShortcut::activated, widget_, &QPushButton::click);
  }

 protected:
  void UpdateContents() override { widget_->SetCaption(ToQt(control_.Caption())); }
};

template <class W>
class ChoiceView : public ViewOf<Choice, W> {
 public:
  ChoiceView(Choice& choice, QWidget* parent, Desktop& desktop) : ViewOf<Choice, W>(choice, new W(parent)) {
    QObject::connect(this->widget_, &QAbstractButton::clicked,
                     [&choice, &desktop] { desktop.Enter([&] { choice.UserClicks(); }); });
  }

 protected:
  void UpdateContents() override {
    this->widget_->setText(AsItStands(ToQt(this->control_.Caption())));
    this->widget_->SetColour(this->control_.Colour());
    this->widget_->setChecked(this->control_.Value());
  }
};

class LabelView : public ViewOf<Label, CaptionLabel> {
 public:
  LabelView(Label& label, QWidget* parent) : ViewOf(label, new CaptionLabel(parent)) {}

 protected:
  void UpdateContents() override {
    constexpr Qt::Alignment kAlignments[] = {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight};
    widget_->setText(ToQt(control_.Caption()));
    widget_->setAlignment(kAlignments[static_cast<int>(control_.GetAlign())] | Qt::AlignVCenter);
  }
};

class FrameView : public ViewOf<Frame, CaptionFrame> {
 public:
  FrameView(Frame& frame, QWidget* parent) : ViewOf(frame, new CaptionFrame(parent)) {}

 protected:
  void UpdateContents() override {
    widget_->setTitle(ToQt(control_.Caption()));
    widget_->update();
  }
};

class PanelView : public ViewOf<Panel, PanelWidget> {
 public:
  PanelView(Panel& panel, QWidget* parent, Desktop& desktop) : ViewOf(panel, new PanelWidget(parent)) {
    widget_->onClick = [&panel, &desktop] { desktop.Enter([&] { panel.UserClicks(); }); };
  }

 protected:
  void UpdateContents() override {}
};

class TabView : public ViewOf<TabControl, TabPages> {
 public:
  TabView(TabControl& tabs, QWidget* parent, Desktop& desktop)
      : ViewOf(tabs, new TabPages(tabs.PageCaptions(), parent)) {
    QObject::connect(widget_->Bar(), &QTabBar::currentChanged,
                     [&tabs, &desktop](int tab) { desktop.Enter([&] { tabs.UserSelects(tab); }); });
    AddKeys({QStringLiteral("Ctrl+Tab"), QStringLiteral("Ctrl+PgDown")}, 1, desktop);
    AddKeys({QStringLiteral("Ctrl+Shift+Tab"), QStringLiteral("Ctrl+PgUp")}, -1, desktop);
  }
  QWidget* Ground(int page) const override { return page == kAnyPage ? widget_ : widget_->Page(page); }
  QWidget* Hand() const override { return widget_->Bar(); }
  void TakeScale() override { widget_->TakeScale(); }

 protected:
  void UpdateContents() override { widget_->SetTab(control_.Tab()); }

 private:
  // Keys that turn so many tabs on, round and round.
  void AddKeys(const QStringList& keys, int step, Desktop& desktop) {
    for (const QString& key : keys) {
      auto* shortcut = new QShortcut(QKeySequence(key, QKeySequence::PortableText), widget_->Bar());
      QObject::connect(shortcut, &QShortcut::activated, [this, step, &desktop] {
        const int count = widget_->Bar()->count();
        desktop.Enter([&] { control_.UserSelects((control_.Tab() + step + count) % count); });
      });
    }
  }
};

}  // namespace

void ControlView::Update() {
  const Place& place = control_.GetPlace();
  const QRect room = ScaleOf(widget_).ToPixels(place.left, place.top, place.width, place.height);
  widget_->setGeometry(room);
  UpdateContents();  // figures are fitted into that room
  if (toolTip_ != control_.ToolTip()) {
    toolTip_ = control_.ToolTip();
    widget_->setToolTip(ToQt(toolTip_));
  }
  widget_->setEnabled(control_.Enabled());
  widget_->setVisible(control_.Visible());
}

std::unique_ptr<ControlView> MakeView(Control& control, QWidget* parent, Desktop& desktop) {
  switch (control.Kind()) {
    case ControlKind::List:
      return std::make_unique<ListView>(dynamic_cast<DropDownList&>(control), parent, desktop);
    case ControlKind::TextBox:
      return std::make_unique<BoxView>(dynamic_cast<TextBox&>(control), parent);
    case ControlKind::Button:
      return std::make_unique<ButtonView>(dynamic_cast<Button&>(control), parent, desktop);
    case ControlKind::Option:
    case ControlKind::Radio:
      return std::make_unique<ChoiceView<RadioWidget>>(dynamic_cast<Choice&>(control), parent, desktop);
    case ControlKind::CheckBox:
      return std::make_unique<ChoiceView<CheckWidget>>(dynamic_cast<Choice&>(control), parent, desktop);
    case ControlKind::Label:
      return std::make_unique<LabelView>(dynamic_cast<Label&>(control), parent);
    case ControlKind::Frame:
      return std::make_unique<FrameView>(dynamic_cast<Frame&>(control), parent);
    case ControlKind::TabControl:
      return std::make_unique<TabView>(dynamic_cast<TabControl&>(control), parent, desktop);
    case ControlKind::Panel:
      return std::make_unique<PanelView>(dynamic_cast<Panel&>(control), parent, desktop);
    case ControlKind::Grid:
      return MakeGridView(dynamic_cast<Grid&>(control), parent, desktop);
    case ControlKind::DocumentText:
      return MakeDocumentView(dynamic_cast<DocumentText&>(control), parent, desktop);
    case ControlKind::Chart:
      return MakeChartView(dynamic_cast<Chart&>(control), parent, desktop);
    case ControlKind::MenuEntry:
      break;
  }
  return nullptr;
}

}  // namespace vicetoll
