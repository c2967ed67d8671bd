// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/widgets.h"

#include <QAbstractItemView>
#include <QAbstractListModel>
#include <QAccessible>
#include <QAction>
#include <QKeyEvent>
#include <QKeySequence>
#include <QListView>
#include <QMouseEvent>
#include <QPainter>
#include <QShortcutEvent>
#include <QStyleOptionButton>
#include <QStyledItemDelegate>
#include <QWheelEvent>
#include <QtMath>

#include "controls/typed_search.h"
#include "desktop/look.h"
#include "desktop/scale.h"
#include "desktop/text.h"
#include "desktop/themes.h"

namespace vicetoll {
namespace {

// Pixels of the design.
constexpr int kArrowRoom = 20;     // at the right end of a list
constexpr int kListMargin = 7;     // between a list's left end and its text
constexpr int kButtonMargin = 5;   // between a button's sides and its caption
constexpr int kBoxMargin = 1;      // between a box's line and its text
constexpr int kIndicatorLeft = 4;  // in front of the mark of a choice, clear of the focus ring
constexpr int kCorner = 3;         // the radius of corners
constexpr int kIndicator = 14;     // across the mark of a choice
constexpr int kIndicatorGap = 3;   // between it and the caption, at any scale
constexpr int kTabHeight = 46, kTabTop = 8, kTabLeft = 8;
constexpr int kTabWidth = 96, kTabPadding = 9;

constexpr int kPopupRows = 18;
constexpr int kTypingPause = 1500;  // milliseconds after which typing in a list begins anew
constexpr double kRowHeight = 1.6;  // of an entry in a popup, in heights of its text

// Pixels of a figure in a box below which it is cut rather than made smaller, and what stands for the rest.
constexpr int kSmallestFigure = 7;
constexpr int kLineEditMargin = 2;  // that Qt keeps free at both ends
constexpr int kCaretWidth = 1;

// Rows that a finger or an unsteady hand can hit.
class RowDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return {size.width(), std::max(size.height(), qCeil(option.fontMetrics.height() * kRowHeight))};
  }
};

}  // namespace

// ---- Lists ----

// The entries of a list, in the core's code page until somebody looks at them.
class EntryModel : public QAbstractListModel {
 public:
  using QAbstractListModel::QAbstractListModel;

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : entries_.Count(); }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
    return ToQt(entries_.At(index.row()));
  }
  const EntryList& Entries() const { return entries_; }
  void SetEntries(const EntryList& entries) {
    beginResetModel();
    entries_ = entries;
    endResetModel();
  }

 private:
  EntryList entries_;
};

BlueList::BlueList(QWidget* parent) : QComboBox(parent), entries_(new EntryModel(this)) {
  setPlaceholderText(QStringLiteral(" "));
  setModel(entries_);
  setMaxVisibleItems(kPopupRows);
  setInsertPolicy(QComboBox::NoInsert);
  setFocusPolicy(Qt::StrongFocus);
  TakeTheme();
}

void BlueList::TakeTheme() {
  QPalette colours;
  colours.setColor(QPalette::Base, Colour(Tone::ListGround));
  colours.setColor(QPalette::Disabled, QPalette::Base, Colour(Tone::ListOffGround));
  colours.setColor(QPalette::Text, Colour(Tone::ListText));
  colours.setColor(QPalette::Disabled, QPalette::Text, Colour(Tone::ListOffText));
  // The entry under the pointer is turned about.
  colours.setColor(QPalette::Highlight, Colour(Tone::ListText));
  colours.setColor(QPalette::HighlightedText, Colour(Tone::ListGround));
  setPalette(colours);
}

void BlueList::SetEntries(const EntryList& entries) {
  if (entries != entries_->Entries()) entries_->SetEntries(entries);
}

const EntryList& BlueList::Entries() const { return entries_->Entries(); }

void BlueList::SetShown(const QString& text, int position) {
  // Assistive tools read the current entry, and this where there is none. Without it, be it but a blank, a
  // list picks its first entry by itself.
  setPlaceholderText(text.isEmpty() ? QStringLiteral(" ") : text);
  const int caret = isEditable() ? lineEdit()->cursorPosition() : 0;
  if (currentIndex() != position) setCurrentIndex(position);
  if (isEditable() && lineEdit()->text() != text) {
    lineEdit()->setText(text);
    lineEdit()->setCursorPosition(caret);
  }
  if (text_ == text) return;
  // Who listens hears the entry that the keys have brought.
  if (hasFocus()) {
    QAccessibleTextUpdateEvent change(this, 0, text_, text);
    QAccessible::updateAccessibility(&change);
  }
  text_ = text;
  update();
}

QString BlueList::ShownText() const { return isEditable() ? lineEdit()->text() : text_; }

void BlueList::showPopup() {
  // The popup is made at its first use; making it earlier would cost every list of a window.
  if (dynamic_cast<RowDelegate*>(view()->itemDelegate()) == nullptr)
    view()->setItemDelegate(new RowDelegate(view()));
  view()->setPalette(palette());
  view()->setFont(font());
  view()->setAccessibleName(accessibleName());
  view()->installEventFilter(this);
  // Rows of one height: a list of many thousand entries need not be measured row by row.
  if (auto* rows = qobject_cast<QListView*>(view())) rows->setUniformItemSizes(true);
  QComboBox::showPopup();
}

void BlueList::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const Scale scale = ScaleOf(this);
  const int arrowRoom = scale.Of(kArrowRoom);
  const QColor ground = palette().color(QPalette::Base);
  DrawBox(painter, rect(), ground, isEnabled() ? Colour(Tone::ListLine) : ground, kCorner);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Text));
  if (!isEditable())
    DrawFitted(painter, rect().adjusted(scale.Of(kListMargin), 1, -arrowRoom, -1),
               Qt::AlignLeft | Qt::AlignVCenter, AsItStands(text_), font());
  PaintArrow(painter, QRect(width() - arrowRoom, 0, arrowRoom, height()));
  if (hasFocus()) {
    DrawFocusRing(painter, rect());
    painter.setPen(Colour(Tone::FocusGap));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), 2, 2);
  }
}

void BlueList::PaintArrow(QPainter& painter, const QRect& room) const {
  const QPointF c = QRectF(room).center();
  const double part = room.width() / static_cast<double>(kArrowRoom);
  const QPolygonF arrow({c + part * QPointF(-4, -2), c + part * QPointF(4, -2), c + part * QPointF(0, 3)});
  painter.setBrush(palette().color(QPalette::Text));
  painter.setPen(Qt::NoPen);
  painter.drawPolygon(arrow);
}

// A blank is a letter only within what is being typed: else it opens the list.
bool BlueList::TakesLetter(const QKeyEvent& key) const {
  const bool bare = (key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) == 0;
  if (isEditable() || !bare || key.text().isEmpty() || !key.text()[0].isPrint()) return false;
  return key.text() != QStringLiteral(" ") ||
         (sinceTyped_.isValid() && !sinceTyped_.hasExpired(kTypingPause));
}

// The entry that is meant by all that was typed without a pause; -1, and the letter forgotten, if none is.
int BlueList::Search(const QString& letter, int from) {
  if (!sinceTyped_.isValid() || sinceTyped_.hasExpired(kTypingPause)) typed_.clear();
  sinceTyped_.start();
  typed_ += letter;
  const int found = FindTyped(Entries().All(), FromQt(typed_), from);
  // "jun -" means no other entry than "jun".
  if (found == -1) typed_.chop(letter.size());
  return found;
}

// The letters of one that is typed into begin where those of the others do.
void BlueList::resizeEvent(QResizeEvent* event) {
  QComboBox::resizeEvent(event);
  if (!isEditable()) return;
  const int margin = ScaleOf(this).Of(kListMargin) - lineEdit()->x() - kLineEditMargin;
  lineEdit()->setTextMargins(std::max(margin, 0), 0, 0, 0);
}

void BlueList::keyPressEvent(QKeyEvent* event) {
  if (!TakesLetter(*event)) return QComboBox::keyPressEvent(event);
  const int found = Search(event->text(), currentIndex());
  if (found == -1 || found == currentIndex()) return;
  setCurrentIndex(found);
  emit activated(found);
}

// The open list finds as the closed one does.
bool BlueList::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress && watched == view()) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (TakesLetter(key)) {
      const int found = Search(key.text(), view()->currentIndex().row());
      if (found != -1) view()->setCurrentIndex(model()->index(found, 0));
      return true;
    }
  }
  return QComboBox::eventFilter(watched, event);
}

void BlueList::wheelEvent(QWheelEvent* event) {
  // A wheel that turns over a list on its way elsewhere must not change it.
  if (hasFocus())
    QComboBox::wheelEvent(event);
  else
    event->ignore();
}

// ---- Boxes, buttons, choices ----

ResultBox::ResultBox(QWidget* parent) : QLineEdit(parent) {
  setReadOnly(true);
  setFrame(false);
  setTextMargins(kBoxMargin, 0, kBoxMargin, 0);
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setFocusPolicy(Qt::StrongFocus);
}

void ResultBox::SetText(const QString& text) {
  setText(text);
  setCursorPosition(0);  // what is cut is cut at the end
  Fit();
}

void ResultBox::Fit() {
  if (fitting_) return;
  fitting_ = true;
  setFont(QFont());  // the sheet's, as all have it
  const int room = width() - 2 * (kBoxMargin + kLineEditMargin) - kCaretWidth;
  const int smallest = std::min(kSmallestFigure, font().pixelSize());
  const QFont fitted = FittedLine(text(), room, font(), smallest);
  if (fitted.pixelSize() != font().pixelSize()) setFont(fitted);
  cut_ = QFontMetricsF(fitted).horizontalAdvance(text()) > room;
  fitting_ = false;
  update();
}

// Where the window itself has something to copy, its keys are not the box's.
bool ResultBox::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy))
    for (const QAction* action : window()->actions())
      if (action->shortcuts().contains(QKeySequence(QKeySequence::Copy))) {
        event->ignore();
        return false;
      }
  return QLineEdit::event(event);
}

void ResultBox::resizeEvent(QResizeEvent* event) {
  QLineEdit::resizeEvent(event);
  Fit();
}

void ResultBox::changeEvent(QEvent* event) {
  QLineEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange) Fit();
}

void ResultBox::paintEvent(QPaintEvent* event) {
  const bool marked = cut_ && !hasFocus();
  if (!marked) QLineEdit::paintEvent(event);
  QPainter painter(this);
  DrawBox(painter, rect(), marked ? palette().color(QPalette::Base) : QColor(Qt::transparent),
          Colour(Tone::FrameLine), kCorner);
  if (marked) {
    const QRect room = rect().adjusted(kLineEditMargin, 0, -kLineEditMargin, 0);
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
  }
  if (hasFocus()) DrawFocusRing(painter, rect());
}

CaptionButton::CaptionButton(QWidget* parent) : QPushButton(parent) { setAutoDefault(false); }

void CaptionButton::SetCaption(const QString& caption) {
  if (caption == caption_) return;
  caption_ = caption;
  QString text = AsItStands(caption);
  const qsizetype at = accessKey_.isNull() ? -1 : text.indexOf(accessKey_);
  if (at >= 0) text.insert(at, u'&');
  setText(text);
}

// The access key comes with the focus, as the mouse does: what had it before must know that it is left.
bool CaptionButton::event(QEvent* event) {
  if (event->type() == QEvent::Shortcut && !static_cast<QShortcutEvent*>(event)->isAmbiguous())
    setFocus(Qt::ShortcutFocusReason);
  return QPushButton::event(event);
}

void CaptionButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  Tone ground = option.state & QStyle::State_MouseOver ? Tone::ButtonHover : Tone::ButtonGround;
  if (option.state & QStyle::State_Sunken) ground = Tone::ButtonDown;
  QColor line = Colour(Tone::FrameLine);
  if (!isEnabled()) line.setAlpha(kFaint);
  DrawBox(painter, rect(), Colour(ground), line, kCorner);
  painter.setPen(palette().color(QPalette::ButtonText));
  const int across = ScaleOf(this).Of(kButtonMargin), down = across / 2;
  DrawFitted(painter, rect().adjusted(across, down, -across, -down), Qt::AlignCenter, text(), font());
  if (hasFocus()) DrawFocusRing(painter, rect());
}

template <class Base>
CaptionChoice<Base>::CaptionChoice(QWidget* parent) : Base(parent) {
  // Which of a group is on is not for the widgets to say.
  this->setAutoExclusive(false);
  this->setFocusPolicy(Qt::StrongFocus);
}

template <class Base>
void CaptionChoice<Base>::SetColour(int colour) {
  if (colour_ == colour) return;
  colour_ = colour;
  this->update();
}

// In small windows the gap gives way before the letters do: a caption smaller than those beside it is worse.
template <class Base>
QRect CaptionChoice<Base>::CaptionBeside(const QRect& mark, int gap) const {
  const QString plain = WithoutAccessKey(this->text());
  for (gap = std::max(gap, kIndicatorGap);; --gap) {
    const QRect room = this->rect().adjusted(mark.right() + 1 + gap, 0, gap > 1 ? -2 : 0, 0);
    if (gap <= 1 || FittedFont(plain, room.size(), this->font()) == this->font()) return room;
  }
}

template <class Base>
void CaptionChoice<Base>::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionButton option;
  this->initStyleOption(&option);
  constexpr bool isRadio = std::is_same_v<Base, QRadioButton>;
  const Scale scale = ScaleOf(this);
  const int mark = scale.Of(kIndicator);
  const QRect place(scale.Of(kIndicatorLeft), (this->height() - mark) / 2, mark, mark);
  DrawIndicator(painter, place, isRadio, option);
  QColor ink = this->palette().color(QPalette::WindowText);
  if (colour_ != -1) {
    ink = Readable(QColor(colour_ & 0xFF, colour_ >> 8 & 0xFF, colour_ >> 16 & 0xFF),
                   vicetoll::Colour(Tone::FrameGround));
    if (!this->isEnabled()) ink.setAlpha(kFaint);
  }
  painter.setPen(ink);
  DrawFitted(painter, CaptionBeside(place, scale.Of(kIndicatorGap)), Qt::AlignLeft | Qt::AlignVCenter,
             this->text(), this->font());
  if (this->hasFocus()) DrawFocusRing(painter, this->rect());
}

template class CaptionChoice<QRadioButton>;
template class CaptionChoice<QCheckBox>;

// ---- Labels and containers ----

CaptionLabel::CaptionLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void CaptionLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  DrawFitted(painter, rect(), static_cast<int>(alignment()), AsItStands(text()), font());
}

void CaptionFrame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawBox(painter, rect(), Colour(Tone::FrameGround), Colour(Tone::FrameLine), kCorner);
  const Scale scale = ScaleOf(this);
  int contents = height();
  for (const QObject* child : children())
    if (const auto* widget = qobject_cast<const QWidget*>(child)) contents = std::min(contents, widget->y());
  QFont bold = font();
  bold.setBold(true);
  QColor ink = Colour(Tone::Ink);
  if (!isEnabled()) ink.setAlpha(kFaint);
  painter.setPen(ink);
  DrawFitted(painter, QRect(scale.Of(8), scale.Of(3), width() - scale.Of(12), contents - scale.Of(3)),
             Qt::AlignLeft | Qt::AlignTop, title(), bold);
}

void PanelWidget::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton && IsBare(event->position().toPoint());
}

// A click that nobody took arrives here too, from a frame or from a disabled control.
void PanelWidget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !std::exchange(pressed_, false)) return;
  if (IsBare(event->position().toPoint()) && onClick) onClick();
}

// ---- Tabs ----

namespace {

class TallTabBar : public QTabBar {
 public:
  using QTabBar::QTabBar;

 protected:
  QSize tabSizeHint(int index) const override {
    const Scale scale = ScaleOf(this);
    const int text = fontMetrics().horizontalAdvance(WithoutAccessKey(tabText(index)));
    return {std::max(text + 2 * scale.Of(kTabPadding), scale.Of(kTabWidth)), scale.Of(kTabHeight)};
  }
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    for (int tab = 0; tab < count(); ++tab) PaintTab(painter, tab);
    if (hasFocus()) DrawFocusRing(painter, tabRect(currentIndex()).adjusted(4, 6, -4, -2));
  }
  // The key of a tab brings the focus, as those of buttons do.
  bool event(QEvent* event) override {
    if (event->type() == QEvent::Shortcut) setFocus(Qt::ShortcutFocusReason);
    return QTabBar::event(event);
  }
  // A notch of the wheel on the way elsewhere must not change the tab.
  void wheelEvent(QWheelEvent* event) override { event->ignore(); }

 private:
  // A tab's lower edge is hidden by the page; the tab in front stands higher and bears a stripe.
  void PaintTab(QPainter& painter, int tab) {
    const bool inFront = tab == currentIndex();
    const QRect room = tabRect(tab).adjusted(1, inFront ? 0 : 4, -1, 8);
    DrawBox(painter, room, Colour(inFront ? Tone::PanelGround : Tone::ButtonGround), Colour(Tone::FrameLine),
            kCorner);
    if (inFront) painter.fillRect(room.left() + 2, room.top() + 1, room.width() - 4, 3, Colour(Tone::Ink));
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(tabRect(tab), Qt::AlignCenter | Qt::TextShowMnemonic, tabText(tab));
  }
};

}  // namespace

TabPages::TabPages(const std::vector<std::string>& captions, QWidget* parent)
    : QWidget(parent), bar_(new TallTabBar(this)) {
  QFont bold;  // all but its weight is the sheet's
  bold.setBold(true);
  bar_->setFont(bold);
  bar_->setDrawBase(false);
  bar_->setExpanding(false);
  bar_->setUsesScrollButtons(false);
  bar_->setElideMode(Qt::ElideNone);
  bar_->setFocusPolicy(Qt::StrongFocus);
  for (const std::string& caption : captions) {
    bar_->addTab(ToQt(caption));
    pages_.push_back(new TabPage(this));
    pages_.back()->setAccessibleName(WithoutAccessKey(ToQt(caption)));
  }
  bar_->raise();
  SetTab(0);
}

void TabPages::SetTab(int tab) {
  bar_->setCurrentIndex(tab);
  for (std::size_t i = 0; i < pages_.size(); ++i) pages_[i]->setVisible(static_cast<int>(i) == tab);
}

void TabPages::TakeScale() {
  bar_->setTabText(0, bar_->tabText(0));  // reckons the sizes of the tabs anew
  const Scale scale = ScaleOf(this);
  bar_->setGeometry({{scale.Of(kTabLeft), scale.Of(kTabTop)}, bar_->sizeHint()});
}

void TabPages::resizeEvent(QResizeEvent*) {
  TakeScale();
  for (QWidget* page : pages_) page->setGeometry(rect());
}

void TabPages::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  DrawBox(painter, rect().adjusted(2, ScaleOf(this).Of(kTabTop + kTabHeight) - 2, -2, 0),
          Colour(Tone::PanelGround), Colour(Tone::FrameLine), kCorner);
}

}  // namespace vicetoll
