// SPDX-License-Identifier: GPL-3.0-or-later
// The widgets that controls are shown by. They look like something and pass on what a user does; what they
// show is set from outside, and a user's action changes nothing of it by itself.
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <functional>
#include <string>
#include <vector>

#include "controls/entry_list.h"

namespace vicetoll {

class EntryModel;

// A drop-down list, white on blue. It can show a text that is none of its entries.
class BlueList : public QComboBox {
 public:
  explicit BlueList(QWidget* parent);

  // Replaces the entries, where they differ from what is there.
  void SetEntries(const EntryList& entries);
  const EntryList& Entries() const;
  void SetShown(const QString& text, int position);
  QString ShownText() const;

  // Takes the colours of the theme in force.
  void TakeTheme();

  void showPopup() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void PaintArrow(QPainter& painter, const QRect& room) const;
  bool TakesLetter(const QKeyEvent& key) const;
  int Search(const QString& letter, int from);

  EntryModel* entries_;
  QString text_;
  QString typed_;  // to find an entry, letter by letter
  QElapsedTimer sinceTyped_;
};

// A box that shows a result: right-aligned, to be read, selected and copied, not to be typed into.
// A number is never shown in part: its letters shrink, and if that is not enough its end gives way to a mark.
class ResultBox : public QLineEdit {
 public:
  explicit ResultBox(QWidget* parent);

  void SetText(const QString& text);
  // Gives the letters the size at which the number fits.
  void Fit();
  // Whether the text is cut, and marked so.
  bool IsCut() const { return cut_; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  bool cut_ = false;
  bool fitting_ = false;
};

class CaptionButton : public QPushButton {
 public:
  explicit CaptionButton(QWidget* parent);

  // Alt and this letter, or none. It must occur in the caption to be underlined there.
  void SetAccessKey(QChar letter) { accessKey_ = letter; }
  void SetCaption(const QString& caption);
  const QString& Caption() const { return caption_; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString caption_;
  QChar accessKey_;
};

// An option, a radio or a check box. A click leaves its value as it is: whoever hears of the click sets it.
template <class Base>
class CaptionChoice : public Base {
 public:
  explicit CaptionChoice(QWidget* parent);

  // A colour of the core's making for the caption, -1 for the window's own.
  void SetColour(int colour);
  int Colour() const { return colour_; }

 protected:
  void nextCheckState() override {}
  bool hitButton(const QPoint& point) const override { return this->rect().contains(point); }
  void paintEvent(QPaintEvent* event) override;

 private:
  QRect CaptionBeside(const QRect& mark, int gap) const;

  int colour_ = -1;
};
using RadioWidget = CaptionChoice<QRadioButton>;
using CheckWidget = CaptionChoice<QCheckBox>;

class CaptionLabel : public QLabel {
 public:
  explicit CaptionLabel(QWidget* parent);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A frame with its caption in the room above what stands in it.
class CaptionFrame : public QGroupBox {
 public:
  explicit CaptionFrame(QWidget* parent) : QGroupBox(parent) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// A background panel that takes clicks on its bare ground, not those on what stands on it. Its ground is
// that of the tabs.
class PanelWidget : public QWidget {
 public:
  explicit PanelWidget(QWidget* parent) : QWidget(parent) {}
  std::function<void()> onClick;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  bool IsBare(const QPoint& point) const { return rect().contains(point) && childAt(point) == nullptr; }

  bool pressed_ = false;
};

// What stands on one tab; named by it for those who listen.
class TabPage : public QWidget {
 public:
  using QWidget::QWidget;
};

// A tab control: a bar over three pages, of which one is in front. The pages cover all of it, so that what
// stands on them may stand beside the bar too.
class TabPages : public QWidget {
 public:
  // An ampersand in a caption stands before the letter of its access key.
  TabPages(const std::vector<std::string>& captions, QWidget* parent);

  QTabBar* Bar() const { return bar_; }
  QWidget* Page(int page) const { return pages_.at(page); }
  void SetTab(int tab);
  // Sizes the bar to the scale of its sheet.
  void TakeScale();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QTabBar* bar_;
  std::vector<QWidget*> pages_;
};

}  // namespace vicetoll
