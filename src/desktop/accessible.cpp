// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/accessible.h"

#include <QAccessibleWidget>
#include <QComboBox>
#include <QKeySequence>
#include <QPointer>
#include <QTabBar>
#include <vector>

#include "desktop/chart_widget.h"
#include "desktop/form_window.h"
#include "desktop/look.h"
#include "desktop/widgets.h"

namespace vicetoll {
namespace {

class WindowInterface : public QAccessibleWidget {
 public:
  explicit WindowInterface(QWidget* window) : QAccessibleWidget(window, QAccessible::Window) {}
};

class SpokenTextInterface : public QAccessibleWidget {
 public:
  explicit SpokenTextInterface(SpokenText* text) : QAccessibleWidget(text, text->Role()) {}
};

// Qt's own takes radio buttons that do not switch each other for check boxes.
class OptionInterface : public QAccessibleWidget {
 public:
  explicit OptionInterface(RadioWidget* option)
      : QAccessibleWidget(option, QAccessible::RadioButton), option_(*option) {}

  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = option_.isChecked();
    return state;
  }
  QStringList actionNames() const override {
    return QStringList(QAccessibleActionInterface::pressAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    name == QAccessibleActionInterface::pressAction() ? option_.click() : QAccessibleWidget::doAction(name);
  }

 private:
  RadioWidget& option_;
};

// Qt's own calls a list by its value on this system, also in its dialogs. Here the label is the name, and the
// entry shown is the text: a screen reader says both, and the text again when it changes.
class ListInterface : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit ListInterface(QComboBox* list) : QAccessibleWidget(list, QAccessible::ComboBox), list_(*list) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? Shown() : QAccessibleWidget::text(kind);
  }
  QAccessible::State state() const override {
    QAccessible::State state = QAccessibleWidget::state();
    state.hasPopup = state.expandable = true;
    state.editable = list_.isEditable();
    return state;
  }
  void* interface_cast(QAccessible::InterfaceType kind) override {
    if (kind == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    return QAccessibleWidget::interface_cast(kind);
  }

  QStringList actionNames() const override {
    return QStringList(QAccessibleActionInterface::showMenuAction()) + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& name) override {
    name == QAccessibleActionInterface::showMenuAction() ? list_.showPopup()
                                                         : QAccessibleWidget::doAction(name);
  }

  // The text, to be read.
  QString text(int start, int end) const override { return Shown().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(Shown().size()); }
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  int selectionCount() const override { return 0; }
  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  QRect characterRect(int) const override { return rect(); }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int, int* start, int* end) const override {
    *start = 0;
    *end = characterCount();
    return {};
  }

 private:
  QString Shown() const {
    const auto* blue = dynamic_cast<const BlueList*>(&list_);
    return blue != nullptr ? blue->ShownText() : list_.currentText();
  }

  QComboBox& list_;
};

class TabInterface : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  TabInterface(QTabBar* bar, int tab) : bar_(bar), tab_(tab) {}

  bool isValid() const override { return bar_ != nullptr && tab_ < bar_->count(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(bar_.data()); }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QAccessible::Role role() const override { return QAccessible::PageTab; }
  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    if (kind == QAccessible::Name) return WithoutAccessKey(bar_->tabText(tab_));
    if (kind == QAccessible::Accelerator) return QKeySequence::mnemonic(bar_->tabText(tab_)).toString();
    return kind == QAccessible::Description ? bar_->tabToolTip(tab_) : QString();
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    if (!isValid()) return {};
    const QRect room = bar_->tabRect(tab_);
    return {bar_->mapToGlobal(room.topLeft()), room.size()};
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.invalid = !isValid();
    if (state.invalid) return state;
    state.invisible = !bar_->isVisible();
    state.disabled = !bar_->isEnabled() || !bar_->isTabEnabled(tab_);
    state.selectable = state.focusable = true;
    state.selected = bar_->currentIndex() == tab_;
    state.focused = state.selected && bar_->hasFocus();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType kind) override {
    return kind == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override { return {pressAction()}; }
  QStringList keyBindingsForAction(const QString&) const override { return {text(QAccessible::Accelerator)}; }
  void doAction(const QString& name) override {
    if (isValid() && name == pressAction()) bar_->setCurrentIndex(tab_);
  }

 private:
  QPointer<QTabBar> bar_;
  int tab_;
};

// Qt's own calls a bar by the tab in front, as if it were that tab.
class TabBarInterface : public QAccessibleWidget {
 public:
  explicit TabBarInterface(QTabBar* bar) : QAccessibleWidget(bar, QAccessible::PageTabList), bar_(*bar) {}
  ~TabBarInterface() override {
    for (const QAccessible::Id tab : tabs_) QAccessible::deleteAccessibleInterface(tab);
  }

  int childCount() const override { return bar_.count(); }
  QAccessibleInterface* child(int tab) const override {
    if (tab < 0 || tab >= bar_.count()) return nullptr;
    while (static_cast<int>(tabs_.size()) <= tab) {
      auto* made = new TabInterface(&bar_, static_cast<int>(tabs_.size()));
      tabs_.push_back(QAccessible::registerAccessibleInterface(made));
    }
    return QAccessible::accessibleInterface(tabs_[static_cast<std::size_t>(tab)]);
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    return child(bar_.tabAt(bar_.mapFromGlobal(QPoint(x, y))));
  }
  int indexOfChild(const QAccessibleInterface* tab) const override {
    for (int i = 0; i < childCount(); ++i)
      if (child(i) == tab) return i;
    return -1;
  }
  QAccessibleInterface* focusChild() const override {
    return bar_.hasFocus() ? child(bar_.currentIndex()) : nullptr;
  }

 private:
  QTabBar& bar_;
  mutable std::vector<QAccessible::Id> tabs_;  // as they are asked for
};

class TabPageInterface : public QAccessibleWidget {
 public:
  explicit TabPageInterface(TabPage* page) : QAccessibleWidget(page, QAccessible::Grouping) {}
};

class ChartInterface : public QAccessibleWidget {
 public:
  explicit ChartInterface(ChartWidget* chart) : QAccessibleWidget(chart, QAccessible::Chart) {}
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  if (auto* list = dynamic_cast<QComboBox*>(object)) return new ListInterface(list);
  if (auto* bar = dynamic_cast<QTabBar*>(object)) return new TabBarInterface(bar);
  if (auto* page = dynamic_cast<TabPage*>(object)) return new TabPageInterface(page);
  if (auto* option = dynamic_cast<RadioWidget*>(object)) return new OptionInterface(option);
  if (auto* chart = dynamic_cast<ChartWidget*>(object)) return new ChartInterface(chart);
  if (auto* text = dynamic_cast<SpokenText*>(object)) return new SpokenTextInterface(text);
  if (auto* window = dynamic_cast<FormWindow*>(object)) return new WindowInterface(window);
  return nullptr;
}

}  // namespace

void InstallAccessibles() { QAccessible::installFactory(MakeInterface); }

SpokenText::SpokenText(QWidget* parent, QAccessible::Role role) : QWidget(parent), role_(role) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
  hide();
}

void SpokenText::Show(const QString& text, const QRect& place) {
  if (geometry() != place) setGeometry(place);
  if (accessibleName() != text) setAccessibleName(text);
  if (isHidden() != text.isEmpty()) setVisible(!text.isEmpty());
}

// Screen readers speak a notification when it comes up.
void SpokenText::Announce(const QString& text, const QRect& place) {
  hide();
  Show(text, place);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

}  // namespace vicetoll
