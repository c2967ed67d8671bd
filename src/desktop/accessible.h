// SPDX-License-Identifier: GPL-3.0-or-later
// What assistive tools are told where Qt tells them too little, or nothing.
#pragma once

#include <QAccessible>
#include <QWidget>

namespace vicetoll {

// Windows are windows, options are radio buttons, lists have names that are not their values. Called once,
// before the first window.
void InstallAccessibles();

// A text that stands in the tree for those who listen, and is not drawn: who sees, sees it elsewhere.
class SpokenText : public QWidget {
 public:
  SpokenText(QWidget* parent, QAccessible::Role role);

  QAccessible::Role Role() const { return role_; }
  // Puts the text there; the empty text takes it away.
  void Show(const QString& text, const QRect& place);
  // Has the text spoken now, also the same one again.
  void Announce(const QString& text, const QRect& place);

 private:
  QAccessible::Role role_;
};

}  // namespace vicetoll
