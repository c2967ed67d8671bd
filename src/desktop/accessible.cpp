// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/accessible.h"

#include <QAccessibleWidget>

#include "desktop/chart_widget.h"
#include "desktop/form_window.h"
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

// Qt's own calls a list by its value on this system. Here the label is the name, and the entry shown is the
// text: a screen reader says both, and the text again when it changes.
class ListInterface : public QAccessibleWidget, public QAccessibleTextInterface {
 public:
  explicit ListInterface(BlueList* list) : QAccessibleWidget(list, QAccessible::ComboBox), list_(*list) {}

  QString text(QAccessible::Text kind) const override {
    return kind == QAccessible::Value ? list_.ShownText() : QAccessibleWidget::text(kind);
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
  QString text(int start, int end) const override { return list_.ShownText().mid(start, end - start); }
  int characterCount() const override { return static_cast<int>(list_.ShownText().size()); }
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
  BlueList& list_;
};

class ChartInterface : public QAccessibleWidget {
 public:
  explicit ChartInterface(ChartWidget* chart) : QAccessibleWidget(chart, QAccessible::Chart) {}
};

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  if (auto* list = dynamic_cast<BlueList*>(object)) return new ListInterface(list);
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
