// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/form_window.h"

#include <QAction>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>
#include <QToolTip>
#include <QWindow>
#include <algorithm>
#include <map>

#include "controls/spoken_name.h"
#include "desktop/accessible.h"
#include "desktop/balloon.h"
#include "desktop/desktop.h"
#include "desktop/document_view.h"
#include "desktop/grid_view.h"
#include "desktop/look.h"
#include "desktop/text.h"
#include "desktop/themes.h"
#include "desktop/widgets.h"
#include "desktop/window_keys.h"
#include "shell/layout.h"

namespace vicetoll {
namespace {

// A window manager tells of a new size and of a new state in two events, and of many sizes while an edge
// is dragged: sizes are taken when none has come for so long.
constexpr int kSettleMilliseconds = 60;

// What is typed on the bare window: bold, 30 points (40 pixels of the design), narrow enough for the longest
// line. Letters come in whole pixels, lines do not: rounded, the last of them would come down on the buttons.
constexpr int kCanvasPixels = 40;
constexpr int kCanvasLine = 46;
constexpr int kCanvasStretch = 72;

// Pixels that a window's title takes before the window manager has said so.
constexpr int kTitleHeight = 28;

constexpr double kNarrowestHint = 120;  // pixels of the design

constexpr int kEveryPage = 3;  // of a button that stands on no tab

bool IsModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta;
}

// The user's keys for entries of the right-click menu that have them everywhere.
QKeySequence::StandardKey KeysFor(const std::string& caption) {
  if (caption == "Select All") return QKeySequence::SelectAll;
  if (caption == "Copy") return QKeySequence::Copy;
  if (caption == "Cut") return QKeySequence::Cut;
  if (caption == "Paste") return QKeySequence::Paste;
  return QKeySequence::UnknownKey;
}

// The first capital of the caption that is not taken, else its first letter that is not; none if all are.
QChar FreeLetter(const QString& caption, const QString& taken) {
  for (const bool capitals : {true, false})
    for (const QChar letter : caption)
      if (letter.isLetter() && (letter.isUpper() || !capitals) && !taken.contains(letter.toUpper()))
        return letter;
  return {};
}

// The letter behind the "&", as a capital.
QString AccessKeyOf(const QString& caption) { return caption.section(u'&', 1, 1).left(1).toUpper(); }

// Only dialogs are kept before another window by every window system.
Qt::WindowFlags FlagsFor(const Form& form) {
  const Qt::WindowFlags kind = form.SharesPlace() ? Qt::Window : Qt::Dialog;
  const Qt::WindowFlags flags =
      kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowMinMaxButtonsHint;
  return form.HasCloseEntry() ? flags | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint : flags;
}

// What a balloon over the control says where it is the help on `told`, itself or what it stands in: its own
// tool tip ends it.
std::string BalloonText(const Form& form, const Control& control, const Control& told) {
  std::string text = form.ExplanationOf(told);
  if (&told != &control && !control.ToolTip().empty()) text += "\r\n" + control.ToolTip();
  return text;
}

// The same for the pointer: a label is explained by its frame, where nothing is said of itself.
std::string HoverText(const Form& form, const Control& control) {
  const Control* told = &control;
  if (control.Kind() == ControlKind::Label)
    while (told != nullptr && form.HelpOn(*told).empty()) told = told->Container();
  return told == nullptr || form.HelpOn(*told).empty() ? std::string() : BalloonText(form, control, *told);
}

}  // namespace

FormWindow::FormWindow(Form& form, Desktop& desktop) : form_(form), desktop_(desktop) {
  setObjectName(ToQt(form.Name()));
  setWindowFlags(FlagsFor(form));
  setPalette(ThemePalette(CurrentTheme()));
  MakeSheet();
  MakeMenu();
  GiveAccessKeys();
  keys_ = std::make_unique<WindowKeys>(*this, desktop);
  MakePagesInFront();
  MakeSpokenTexts();
  settled_.setSingleShot(true);
  settled_.setInterval(kSettleMilliseconds);
  connect(&settled_, &QTimer::timeout, this, &FormWindow::TakeSettledSize);
}

FormWindow::~FormWindow() = default;

void FormWindow::MakeSheet() {
  area_ = new QScrollArea(this);
  area_->setFrameShape(QFrame::NoFrame);
  area_->setFocusPolicy(Qt::NoFocus);
  area_->setAlignment(Qt::AlignCenter);
  sheet_ = new Sheet;
  sheet_->onPaint = [this] { PaintGround(); };
  area_->setWidget(sheet_);
  sheet_->setAutoFillBackground(false);
  for (const auto& control : form_.Controls()) {
    const ControlKind kind = control->Kind();
    flows_ = flows_ || kind == ControlKind::Grid || kind == ControlKind::DocumentText ||
             kind == ControlKind::Chart;
  }
  design_ = Twips();
  Rescale();
}

// The widgets of a page are made when it first comes to the front: those of the pages behind it would make up
// two thirds of what a switch to another sin costs, and many are never looked at.
void FormWindow::MakePagesInFront() {
  MakeControls([](const Control& control) { return control.StandsOnPageInFront(); });
}

template <class Picks>
void FormWindow::MakeControls(const Picks& picks) {
  const std::size_t before = views_.size();
  for (const auto& control : form_.Controls())
    if (control->Kind() != ControlKind::MenuEntry && !viewOf_.contains(control.get()) && picks(*control))
      MakeControl(*control);
  for (std::size_t i = before; i < views_.size(); ++i) {
    ControlView& view = *views_[i];
    view.Update();
    UpdateName(view);
    UpdateDescription(view);
    keys_->Watch(view.Model(), *view.Hand());
    for (const CaptionedControl* namer : Namers(view.Model())) {
      namedBy_[namer].push_back(&view);
      const auto found = viewOf_.find(namer);
      auto* label = found == viewOf_.end() ? nullptr : dynamic_cast<CaptionLabel*>(found->second->Widget());
      if (label != nullptr && label->buddy() == nullptr) label->setBuddy(view.Hand());
    }
  }
  if (before == 0 || before == views_.size()) return;
  OrderTabStops();
  for (std::size_t i = before; i < views_.size(); ++i) {
    QAccessibleEvent made(views_[i]->Widget(), QAccessible::ObjectCreated);
    QAccessible::updateAccessibility(&made);
  }
}

void FormWindow::MakeControl(Control& control) {
  QWidget* ground = sheet_;
  if (const Control* container = control.Container()) ground = viewOf_.at(container)->Ground(control.Page());
  ControlView& view = *views_.emplace_back(MakeView(control, ground, desktop_));
  viewOf_[&control] = &view;
  view.Widget()->setObjectName(ToQt(control.FullName()));
  if (const auto key = accessKeys_.find(&control); key != accessKeys_.end())
    static_cast<CaptionButton*>(view.Widget())->SetAccessKey(key->second);
  for (QWidget* widget : {view.Widget(), view.Hand()}) {
    widget->installEventFilter(this);
    controlOf_[widget] = &control;
  }
}

// What is made later would come last for the Tab key.
void FormWindow::OrderTabStops() {
  QWidget* before = nullptr;
  for (const auto& control : form_.Controls()) {
    const auto view = viewOf_.find(control.get());
    if (view == viewOf_.end() || view->second->Hand()->focusPolicy() == Qt::NoFocus) continue;
    QWidget* const hand = view->second->Hand();
    if (before != nullptr) setTabOrder(before, hand);
    before = hand;
  }
}

void FormWindow::MakeMenu() {
  for (const auto& control : form_.Controls())
    if (auto* entry = dynamic_cast<MenuEntry*>(control.get())) MakeMenuEntry(*entry);
}

void FormWindow::MakeMenuEntry(MenuEntry& entry) {
  auto* action = new QAction(ToQt(entry.Caption()), this);
  action->setObjectName(ToQt(entry.FullName()));
  action->setShortcuts(KeysFor(entry.Caption()));
  connect(action, &QAction::triggered, this, [this, &entry] { desktop_.Enter([&] { entry.UserClicks(); }); });
  addAction(action);
  menu_[&entry] = action;
}

// Buttons on different tabs are never in front together and may share a letter; those that are always in
// front have the first choice after the tabs, whose letters stand in their captions, and those that are given
// theirs; those with keys of their own have the last.
void FormWindow::GiveAccessKeys() {
  QString taken[4];
  for (const auto& control : form_.Controls())
    if (const auto* tabs = dynamic_cast<const TabControl*>(control.get()))
      for (const std::string& caption : tabs->PageCaptions()) taken[kEveryPage] += AccessKeyOf(ToQt(caption));
  GiveAccessKeys(taken, [](const Button& button, int) { return button.AccessKey() != 0; });
  const auto isPlain = [](const Button& button) { return button.AccessKey() == 0 && button.Keys().empty(); };
  GiveAccessKeys(taken,
                 [&](const Button& button, int page) { return isPlain(button) && page == kEveryPage; });
  GiveAccessKeys(taken,
                 [&](const Button& button, int page) { return isPlain(button) && page != kEveryPage; });
  for (int page = 0; page < kEveryPage; ++page) taken[kEveryPage] += taken[page];
  GiveAccessKeys(taken,
                 [](const Button& button, int) { return button.AccessKey() == 0 && !button.Keys().empty(); });
}

template <class Picks>
void FormWindow::GiveAccessKeys(QString (&taken)[4], const Picks& picks) {
  for (const auto& control : form_.Controls()) {
    if (control->Kind() != ControlKind::Button) continue;
    const auto& button = static_cast<const Button&>(*control);
    int page = kEveryPage;
    for (const Control* c = &button; c != nullptr; c = c->Container())
      if (c->Page() != kAnyPage) page = c->Page();
    if (!picks(button, page)) continue;
    const QChar letter = button.AccessKey() != 0
                             ? QChar(button.AccessKey())
                             : FreeLetter(ToQt(button.Caption()), taken[kEveryPage] + taken[page]);
    if (letter.isNull()) continue;
    accessKeys_[&button] = letter;
    taken[page] += letter.toUpper();
  }
}

void FormWindow::MakeSpokenTexts() {
  foot_ = new SpokenText(sheet_, QAccessible::StaticText);
  canvas_ = new SpokenText(sheet_, QAccessible::StaticText);
  news_ = new SpokenText(sheet_, QAccessible::Notification);
}

void FormWindow::UpdateSpokenTexts() {
  QStringList lines;
  for (const CanvasLine& line : form_.Canvas()) lines << ToQt(line.text);
  canvas_->Show(lines.join(u'\n').trimmed(), sheet_->rect());
  foot_->Show(lines.isEmpty() ? FootText() : QString(), RoomOfHint());

  QStringList news;
  if (std::exchange(announced_, form_.AnnouncementsMade()) != form_.AnnouncementsMade())
    news << ToQt(form_.Announcement());
  if (std::exchange(status_, form_.Status()) != form_.Status() && !form_.Status().empty())
    news << QString::fromStdString(form_.Status());
  if (!news.isEmpty()) news_->Announce(news.join(u'\n'), RoomOfHint());
}

void FormWindow::TakeTheme() {
  setPalette(ThemePalette(CurrentTheme()));
  for (const auto& view : views_) view->TakeTheme();
}

QWidget* FormWindow::WidgetOf(const Control& control) {
  if (!viewOf_.contains(&control)) MakeControls([](const Control&) { return true; });
  const auto view = viewOf_.find(&control);
  return view == viewOf_.end() ? nullptr : view->second->Widget();
}

QAction* FormWindow::MenuEntryOf(const Control& control) const {
  const auto action = menu_.find(&control);
  return action == menu_.end() ? nullptr : action->second;
}

// ---- Scale ----

// The client area that a window can have on its screen. Its sides may hang over by the pixel or two that a
// frame takes.
QSize FormWindow::FreeRoom() const {
  const int title = isVisible() ? frameGeometry().height() - height() : 0;
  return desktop_.GetScaling().FreeArea(*this) - QSize(0, std::max(title, kTitleHeight));
}

// Takes the scale that goes with the font, the zoom and the room of now.
void FormWindow::Rescale() {
  const Scaling& scaling = desktop_.GetScaling();
  filling_ = FillsScreen() && !flows_;
  const Scale scale = filling_ ? scaling.Filling(Twips(), size(), devicePixelRatioF())
                               : scaling.Opening(flows_ ? design_ : Twips(), FreeRoom(), devicePixelRatioF());
  const QFont letters = scaling.FontAt(scale);
  if (scale == GetScale() && sheet_->font() == letters) return;
  HideBalloon();
  told_ = QSize();
  sheet_->SetScale(scale);
  sheet_->setFont(letters);
  for (const auto& view : views_) {
    view->Update();
    view->TakeScale();
  }
}

void FormWindow::TakeScale() {
  Rescale();
  // Where the text flows the window keeps its size, and has room for more or less of it.
  if (flows_) TellSize();
  FitToForm();
}

// The sheet is as large as the form. So is the window, unless it is maximised or the screen has no room.
void FormWindow::FitToForm() {
  const QSize pixels = Pixels();
  sheet_->resize(pixels);
  sheet_->update();
  if (!FillsScreen() && !isMinimized()) {
    asked_ = WithBars(pixels).boundedTo(FreeRoom().expandedTo(resizing_ ? size() : QSize()));
    const bool grows = asked_.width() > width() || asked_.height() > height();
    if (asked_ != size()) resize(asked_);
    if (grows && isVisible()) StayOnScreen();
  }
  if (flows_ && pixels != size() && told_ != size()) settled_.start();
}

// With room for the bar of a direction in which the screen is too small: it would cover something, which
// would then scroll too.
QSize FormWindow::WithBars(const QSize& pixels) const {
  if (flows_) return pixels;
  const QSize room = FreeRoom();
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, area_);
  return pixels + QSize(pixels.height() > room.height() ? bar : 0, pixels.width() > room.width() ? bar : 0);
}

// A window that has grown does not hang over the edge; its title stays in reach.
void FormWindow::StayOnScreen() {
  const QRect room = screen()->availableGeometry(), frame = frameGeometry();
  const QPoint place(std::max(room.left(), std::min(frame.left(), room.right() + 1 - frame.width())),
                     std::max(room.top(), std::min(frame.top(), room.bottom() + 1 - frame.height())));
  if (place != pos()) move(place);
}

void FormWindow::KeepWhole() {
  if (FillsScreen() && form_.SharesPlace() && form_.Height() < kWindowHeight)
    form_.Resize(form_.Width(), kWindowHeight);
}

void FormWindow::TellSize() {
  told_ = size();
  TakeSize(GetScale().ToTwips(width()), GetScale().ToTwips(height()));
}

void FormWindow::UpdateForm() {
  setWindowTitle(ToQt(form_.Caption()));
  MakePagesInFront();
  const bool comesUp = form_.Shown() && !isVisible();
  if (comesUp || (Twips() != known_ && !resizing_)) Rescale();
  known_ = Twips();
  FitToForm();
  if (form_.Shown() && (!isVisible() || broughtUp_ != form_.TimesShown())) {
    broughtUp_ = form_.TimesShown();
    if (!isVisible()) ComeInPlaceOfAnother();
    if (FormWindow* const front = desktop_.FrontWorkspace(); front != nullptr && !form_.SharesPlace()) {
      BelongTo(*front);
      ComeBeside(*front);
    }
    isMinimized() ? showNormal() : show();
    raise();
    activateWindow();
    if (Control* const first = form_.FirstFocus()) keys_->FocusOn(*first);
  } else if (!form_.Shown() && isVisible()) {
    HideBalloon();
    hide();
  }
  for (const auto& view : views_) {
    if (FillsWindow(view->Model())) UpdateName(*view);
    UpdateDescription(*view);
  }
  keys_->UpdateStops();
  UpdateSpokenTexts();
}

Control* FormWindow::FocusedControl() const {
  const auto found = controlOf_.find(focusWidget());
  return found == controlOf_.end() ? nullptr : found->second;
}

void FormWindow::KeepFocus(Control* before) {
  keys_->UpdateStops();
  if (before != nullptr && !before->Reachable() && form_.Shown()) {
    displaced_ = before;
    standIn_ = form_.FocusBehind(*before);
    if (standIn_ != nullptr)
      keys_->FocusOn(*standIn_);
    else if (QWidget* focus = focusWidget())
      focus->clearFocus();
    return;
  }
  if (displaced_ == nullptr || displaced_ == before) return;
  if (FocusedControl() != standIn_)
    displaced_ = nullptr;
  else if (displaced_->Reachable())
    keys_->FocusOn(*std::exchange(displaced_, nullptr));
}

void FormWindow::UpdateHint() {
  UpdateSpokenTexts();
  sheet_->update(RoomOfHint());
}

// ---- Windows beside a workspace ----

void FormWindow::BelongTo(FormWindow& owner) {
  if (owner_ == &owner) return;
  owner_ = &owner;
  create();
  windowHandle()->setTransientParent(owner.windowHandle());
  if (!isVisible()) return;
  // Window systems ask only when a window comes up. It does so anew, and leaves the focus where it is.
  setAttribute(Qt::WA_ShowWithoutActivating);
  hide();
  show();
  setAttribute(Qt::WA_ShowWithoutActivating, false);
}

// Beside the workspace where the screen has room, else over it; once, for then it stays where the user wants.
void FormWindow::ComeBeside(const FormWindow& owner) {
  constexpr int kStep = 32;  // pixels: a title can be got hold of
  if (std::exchange(placed_, true)) return;
  const QRect room = owner.screen()->availableGeometry();
  const QRect frame = owner.frameGeometry();
  QRect place(frame.topLeft() + QPoint(kStep, kStep), size());
  if (frame.right() + width() < room.right())
    place.moveTopLeft(frame.topRight() + QPoint(1, 0));
  else if (frame.left() - width() > room.left())
    place.moveTopLeft(frame.topLeft() - QPoint(width() + 1, 0));
  for (const auto& other : desktop_.Windows())
    if (other.get() != this && other->isVisible() && other->pos() == place.topLeft())
      place.translate(kStep, kStep);
  place.moveLeft(std::max(room.left(), std::min(place.left(), room.right() - place.width())));
  place.moveTop(std::max(room.top(), std::min(place.top(), room.bottom() - place.height() - kStep)));
  move(place.topLeft());
}

// One sin takes the place of another, also on the screen.
void FormWindow::ComeInPlaceOfAnother() {
  if (!form_.SharesPlace()) return;
  for (const auto& other : desktop_.Windows())
    if (other->isVisible() && other->form_.SharesPlace()) {
      // One that has only just been shown has none yet: it goes, and the window manager finds this one the
      // place that it would have had.
      if (other->testAttribute(Qt::WA_Moved) || other->windowHandle()->isExposed())
        move(other->pos());
      else
        other->hide();
      if (other->FillsScreen()) setWindowState(other->windowState());
    }
}

void FormWindow::UpdateControl(Control& control) {
  if (control.Kind() == ControlKind::TabControl) MakePagesInFront();
  if (const auto view = viewOf_.find(&control); view != viewOf_.end()) {
    view->second->Update();
    UpdateName(*view->second);
    UpdateDescription(*view->second);
    if (const auto named = namedBy_.find(&control); named != namedBy_.end())
      for (const ControlView* other : named->second) UpdateName(*other);
  }
  if (const auto action = menu_.find(&control); action != menu_.end()) {
    action->second->setEnabled(control.Enabled());
    action->second->setVisible(control.Visible());
  }
}

// Setting a name or a description tells assistive tools of it, so only a new one is set. What has none is
// taken by Qt to bear that of the frame around it.
void FormWindow::UpdateName(const ControlView& view) {
  const QString name = ToQt(SpokenName(view.Model()));
  if (view.Hand()->accessibleName() == name) return;
  view.Hand()->setAccessibleName(name);
  if (auto* list = dynamic_cast<BlueList*>(view.Hand()); list != nullptr && list->isEditable())
    list->lineEdit()->setAccessibleName(name);
}

void FormWindow::UpdateDescription(const ControlView& view) {
  std::string text = form_.ExplanationOf(view.Model());
  if (const auto* button = dynamic_cast<const Button*>(&view.Model()); button != nullptr && text.empty())
    text = button->Keys();
  const QString description = ToQt(text);
  if (view.Hand()->accessibleDescription() != description) view.Hand()->setAccessibleDescription(description);
}

// ---- What users do ----

void FormWindow::TakeSettledSize() {
  TakeState();
  if (isMinimized()) return;
  // A size of whole pixels stands for all twips that round to it.
  const bool usersDoing = flows_ ? size() != Pixels() && size() != told_ : !FillsScreen() && size() != asked_;
  const bool tooHigh = newOnScreen_ && asked_.height() > FreeRoom().height();
  newOnScreen_ = false;
  if (filling_ || tooHigh || (FillsScreen() && !flows_)) {
    Rescale();
    FitToForm();
  } else if (usersDoing) {
    TellSize();
    FitToForm();
  }
}

void FormWindow::TakeSize(int width, int height) {
  settled_.stop();
  resizing_ = true;
  desktop_.Enter([&] { form_.UserResizes(width, height); });
  resizing_ = false;
}

void FormWindow::TakeState() {
  WindowState state = WindowState::Normal;
  if (isMinimized()) state = WindowState::Minimised;
  if (isMaximized() || isFullScreen()) state = WindowState::Maximised;
  if (state != form_.GetWindowState()) desktop_.Enter([&] { form_.SetWindowState(state); });
}

void FormWindow::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  if (!newOnScreen_) return;
  connect(windowHandle(), &QWindow::screenChanged, this, &FormWindow::TakeScale);
  settled_.start();
}

void FormWindow::resizeEvent(QResizeEvent*) {
  HideBalloon();
  area_->resize(size());
  if (isVisible() && (size() != asked_ || FillsScreen())) settled_.start();
}

void FormWindow::changeEvent(QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) settled_.start();
  if (event->type() == QEvent::ActivationChange) HideBalloon();
  QWidget::changeEvent(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The form says whether the window goes.
  event->ignore();
  desktop_.Enter([&] { form_.UserCloses(); });
}

void FormWindow::contextMenuEvent(QContextMenuEvent* event) {
  if (menu_.empty()) return;
  QMenu menu(this);
  menu.addSection(ToQt(form_.MenuTitle()));
  menu.addActions(actions());
  if (event->reason() == QContextMenuEvent::Keyboard) {
    menu.setActiveAction(actions().front());
    menu.exec(CurrentPlace(event->globalPos()));
  } else {
    menu.exec(event->globalPos());
  }
}

// Where the keys work, on the screen: below the current cell, or below the caret.
QPoint FormWindow::CurrentPlace(const QPoint& otherwise) const {
  if (const auto* grid = dynamic_cast<GridWidget*>(focusWidget()))
    return grid->viewport()->mapToGlobal(grid->visualRect(grid->currentIndex()).bottomLeft());
  if (const auto* edit = dynamic_cast<DocumentEdit*>(focusWidget()))
    return edit->viewport()->mapToGlobal(edit->cursorRect().bottomLeft());
  return otherwise;
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  const auto found = controlOf_.find(watched);
  if (found == controlOf_.end()) return QWidget::eventFilter(watched, event);
  Control& control = *found->second;
  switch (event->type()) {
    case QEvent::FocusIn: {
      if (!FillsWindow(control)) area_->ensureWidgetVisible(static_cast<QWidget*>(watched), 0, 0);
      // The focus comes back by itself with the window, and from a list's own popup: that is no arrival.
      const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
      if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        desktop_.Enter([&] { control.UserFocuses(); });
      break;
    }
    case QEvent::ToolTip:
      return ShowHover(static_cast<QWidget*>(watched), control, static_cast<QHelpEvent*>(event)->globalPos());
    case QEvent::KeyPress: {
      const auto* key = static_cast<QKeyEvent*>(event);
      if (key->key() == Qt::Key_F1 && key->modifiers() == Qt::ShiftModifier) {
        ExplainFocus();
        return true;
      }
      if (!IsModifier(key->key())) HideBalloon();
      break;
    }
    case QEvent::MouseButtonPress:
      HideBalloon();
      break;
    case QEvent::Enter:
      // A container is not left by the pointer that goes on to what stands in it.
      if (balloon_ != nullptr && balloon_->Owner() != watched) HideBalloon();
      desktop_.Enter([&] { form_.UserPointsAt(&control); });
      break;
    case QEvent::Leave:
      desktop_.Enter([&] { form_.UserPointsAt(nullptr); });
      [[fallthrough]];
    case QEvent::FocusOut:
    case QEvent::Hide:
      if (balloon_ != nullptr && balloon_->Owner() == watched) HideBalloon();
      break;
    default:
      break;
  }
  return QWidget::eventFilter(watched, event);
}

// ---- Help ----

// True if the event ends here: a container's help is for its own ground alone.
bool FormWindow::ShowHover(QWidget* widget, const Control& control, QPoint pointer) {
  if (balloon_ != nullptr && balloon_->Owner() == widget) return true;
  HideBalloon();
  std::string text = HoverText(form_, control);
  // A number that is cut is told in full.
  if (const auto* box = dynamic_cast<const ResultBox*>(widget); box != nullptr && box->IsCut())
    text = FromQt(box->text()) + (text.empty() ? "" : "\r\n") + text;
  if (text.empty()) return control.ToolTip().empty();
  ShowBalloon(control, text, widget, mapFromGlobal(pointer));
  return true;
}

void FormWindow::ShowBalloon(const Control& control, std::string_view text, QWidget* owner,
                             std::optional<QPoint> pointer) {
  balloon_ = new BalloonWidget(ToQtLines(text), owner, this, NextOf(control), pointer);
}

// What takes the focus behind a control, in the order of reading: of a frame that is what stands in it.
QWidget* FormWindow::NextOf(const Control& control) const {
  bool behind = false;
  for (const auto& next : form_.Controls()) {
    const auto view = viewOf_.find(next.get());
    QWidget* const hand = view == viewOf_.end() ? nullptr : view->second->Hand();
    if (behind && hand != nullptr && hand->focusPolicy() != Qt::NoFocus && hand->isVisible() &&
        hand->isEnabled())
      return hand;
    behind = behind || next.get() == &control;
  }
  return nullptr;
}

// The focused control's help, or that of the frame it stands in.
void FormWindow::ExplainFocus() {
  QWidget* focus = focusWidget();
  const auto found = controlOf_.find(focus);
  if (found == controlOf_.end()) return;
  const bool shown = balloon_ != nullptr;
  HideBalloon();
  if (shown) return;
  for (const Control* c = found->second; c != nullptr; c = c->Container()) {
    if (!form_.HelpOn(*c).empty())
      return ShowBalloon(*found->second, BalloonText(form_, *found->second, *c), focus, std::nullopt);
    if (!c->ToolTip().empty()) {
      QToolTip::showText(focus->mapToGlobal(QPoint(0, focus->height())), ToQt(c->ToolTip()), focus);
      return;
    }
  }
}

// Qt may be on its way through all that stands in the window, to hide it, and comes by the balloon yet.
void FormWindow::HideBalloon() {
  if (balloon_ == nullptr) return;
  balloon_->hide();
  std::exchange(balloon_, nullptr)->deleteLater();
}

// ---- The bare window ----

// At the foot, two lines high: the widest gap between the controls that stand there. None that is too narrow
// for words.
QRect FormWindow::RoomOfHint() const {
  const Scale& scale = GetScale();
  const int margin = scale.Of(8);
  const QRect foot(margin, sheet_->height() - scale.Of(36), sheet_->width() - 2 * margin, scale.Of(34));
  std::map<int, int> taken;  // from the left edge to behind the right one
  for (const auto& view : views_)
    if (const QWidget* widget = view->Widget();
        widget->parentWidget() == sheet_ && !widget->isHidden() && widget->geometry().intersects(foot))
      taken[widget->x()] = std::max(taken[widget->x()], widget->x() + widget->width());
  taken[foot.right() + 1 + margin] = 0;
  QRect room(foot.topLeft(), QSize(0, foot.height()));
  int left = foot.left();
  for (const auto& [begin, end] : taken) {
    const int width = begin - margin - left;
    if (width > std::max(room.width(), scale.Of(kNarrowestHint)))
      room = QRect(left, foot.top(), width, foot.height());
    left = std::max(left, end + margin);
  }
  return room;
}

QString FormWindow::FootText() const {
  const QString hint = QString::fromStdString(form_.Hint());
  const QString status = QString::fromStdString(form_.Status());
  return status.isEmpty() || hint.isEmpty() ? status + hint : status + QStringLiteral("  |  ") + hint;
}

void FormWindow::PaintGround() {
  QPainter painter(sheet_);
  const QString foot = FootText();
  if (!foot.isEmpty() && form_.Canvas().empty()) {
    painter.setPen(Colour(Tone::Hint));
    DrawFitted(painter, RoomOfHint(), Qt::AlignLeft | Qt::AlignVCenter, foot, sheet_->font());
  }
  if (!form_.Canvas().empty()) PaintCanvas(painter);
}

void FormWindow::PaintCanvas(QPainter& painter) {
  QFont letters = sheet_->font();
  letters.setPixelSize(GetScale().Of(kCanvasPixels));
  letters.setBold(true);
  letters.setStretch(kCanvasStretch);
  painter.setFont(letters);
  painter.setPen(Colour(Tone::Ink));
  const int ascent = painter.fontMetrics().ascent();
  int lines = 0;
  for (const CanvasLine& line : form_.Canvas())
    painter.drawText(GetScale().ToPixels(line.left), GetScale().Of(kCanvasLine * lines++) + ascent,
                     ToQt(line.text));
}

}  // namespace vicetoll
