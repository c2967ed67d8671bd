// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/page_progress.h"

#include <QApplication>
#include <QProgressDialog>
#include <memory>

#include "desktop/qt_platform.h"

namespace vicetoll {

GoOn ShowPageProgress(int longerThan) {
  auto dialog =
      std::make_shared<QProgressDialog>(QStringLiteral("The pages are laid out ..."),
                                        QStringLiteral("Cancel"), 0, 0, QApplication::activeWindow());
  dialog->setWindowTitle(ProgramName());
  dialog->setWindowModality(Qt::ApplicationModal);
  dialog->setMinimumDuration(longerThan);
  return [dialog](int done, int of) {
    dialog->setMaximum(of);
    dialog->setValue(done);
    return !dialog->wasCanceled();
  };
}

}  // namespace vicetoll
