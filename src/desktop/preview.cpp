// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/preview.h"

#include <QAction>
#include <QComboBox>
#include <QGraphicsView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPrintPreviewWidget>
#include <QScreen>
#include <QToolBar>
#include <QToolButton>
#include <QWheelEvent>
#include <cstdlib>

namespace vicetoll {
namespace {

// Qt's own names of its tools.
constexpr const char* kZoomIn = "Zoom in";
constexpr const char* kZoomOut = "Zoom out";
constexpr const char* kFitPage = "Fit page";
constexpr const char* kPrint = "Print";

}  // namespace

PreviewDialog::PreviewDialog(QPrinter* printer, QWidget* parent) : QPrintPreviewDialog(printer, parent) {
  setWindowTitle(QStringLiteral("Preview"));
  // All of its tools and a page that can be read, where the screen has the room.
  resize(QSize(900, 800).boundedTo(screen()->availableSize() - QSize(20, 60)));
  NameParts();
  OpenTools();
}

void PreviewDialog::NameParts() {
  const QString pages = QStringLiteral("Pages");
  for (auto* part : findChildren<QPrintPreviewWidget*>()) part->setAccessibleName(pages);
  for (auto* part : findChildren<QGraphicsView*>()) {
    part->setAccessibleName(pages);
    part->viewport()->setAccessibleName(pages);
    part->viewport()->installEventFilter(this);
  }
  const auto* zoom = findChild<QComboBox*>();
  for (auto* edit : findChildren<QLineEdit*>())
    edit->setAccessibleName(zoom != nullptr && edit == zoom->lineEdit() ? QStringLiteral("Zoom")
                                                                        : QStringLiteral("Page"));
  for (auto* list : findChildren<QComboBox*>()) list->setAccessibleName(QStringLiteral("Zoom"));
  for (auto* bar : findChildren<QToolBar*>()) bar->setAccessibleName(QStringLiteral("Tools"));
}

void PreviewDialog::OpenTools() {
  installEventFilter(this);
  for (auto* button : findChildren<QToolButton*>()) {
    if (button->defaultAction() == nullptr) continue;  // of a bar that is too short for its tools
    button->setFocusPolicy(Qt::StrongFocus);
    button->installEventFilter(this);
  }
  if (QToolButton* print = Tool(kPrint)) print->defaultAction()->setShortcut(QKeySequence::Print);
}

QToolButton* PreviewDialog::Tool(const char* text) const {
  for (auto* button : findChildren<QToolButton*>())
    if (const QAction* action = button->defaultAction();
        action != nullptr && action->text() == QPrintPreviewDialog::tr(text))
      return button;
  return nullptr;
}

// Some tools hear their buttons alone, not their actions.
void PreviewDialog::Press(const char* text, int times) {
  if (QToolButton* tool = Tool(text))
    for (int i = 0; i < times; ++i) tool->click();
}

bool PreviewDialog::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    const auto& wheel = *static_cast<QWheelEvent*>(event);
    if (!ZoomWheel::Zooms(wheel)) return false;
    const int notches = wheel_.Turn(wheel);
    Press(notches > 0 ? kZoomIn : kZoomOut, std::abs(notches));
    return true;
  }
  if (event->type() == QEvent::KeyPress) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    auto* tool = qobject_cast<QToolButton*>(watched);
    if (tool != nullptr && (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter)) {
      tool->click();
      return true;
    }
    switch (ZoomOf(key)) {
      case Zoom::In:
        Press(kZoomIn);
        return true;
      case Zoom::Out:
        Press(kZoomOut);
        return true;
      case Zoom::Reset:
        Press(kFitPage);
        return true;
      case Zoom::None:
        break;
    }
  }
  return QPrintPreviewDialog::eventFilter(watched, event);
}

}  // namespace vicetoll
