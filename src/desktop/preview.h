// SPDX-License-Identifier: GPL-3.0-or-later
// The preview of pages before they are printed: Qt's dialog, made usable without a mouse and without eyes.
#pragma once

#include <QPrintPreviewDialog>

#include "desktop/zoom_input.h"

class QToolButton;

namespace vicetoll {

// Its tools take the focus and have names; the keys and the wheel that zoom windows zoom the page, Ctrl+P
// prints.
class PreviewDialog : public QPrintPreviewDialog {
 public:
  PreviewDialog(QPrinter* printer, QWidget* parent);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void NameParts();
  void OpenTools();
  QToolButton* Tool(const char* text) const;
  void Press(const char* text, int times = 1);

  ZoomWheel wheel_;
};

}  // namespace vicetoll
