// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/document_view.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QResizeEvent>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimer>
#include <algorithm>

#include "base/file_reader.h"
#include "desktop/desktop.h"
#include "desktop/scale.h"
#include "desktop/text.h"
#include "desktop/themes.h"
#include "shell/info_window.h"

namespace vicetoll {
namespace {

// Pixels of the design; 8.5 points are 11.33 of them.
constexpr double kDocumentPoints = 8.5;
constexpr double kDocumentLetters = kDocumentPoints * 96 / 72;
constexpr double kNarrowestColumn = 80, kWidestColumn = 160, kColumnGap = 6;
constexpr int kTableLinesRead = 40;
constexpr qsizetype kLongestLineOfWords = 20'000;  // characters; longer ones are broken anywhere
constexpr int kPictureEdge = 20;                   // pixels: a scroll bar may come
constexpr int kLargestPicture = 10'000'000;        // bytes of its file; the manual has none of a fiftieth

QFont DocumentFont() {
  QFont font;
  // The second is the metric twin that Debian has.
  font.setFamilies({QStringLiteral("Century Schoolbook"), QStringLiteral("C059"),
                    QStringLiteral("Century Schoolbook L"), QStringLiteral("DejaVu Serif")});
  font.setPointSizeF(kDocumentPoints);
  return font;
}

// On the screen its letters come in whole pixels, like all others.
QFont DocumentFont(const Scale& scale) {
  QFont font = DocumentFont();
  font.setPixelSize(std::max(static_cast<int>(kDocumentLetters * scale.Factor()), 1));
  return font;
}

// The distance of tab stops at which each cell of the text's table stays in its own column: the widest cell
// of its first lines, headings among them.
double TabDistance(const QString& text, const QFontMetricsF& metrics, const Scale& scale) {
  double widest = kNarrowestColumn * scale.Factor();
  int lines = 0;
  for (const QStringView line : QStringView(text).split(u'\n')) {
    if (!line.contains(u'\t')) continue;
    for (const QStringView cell : line.split(u'\t'))
      widest = std::max(widest, metrics.horizontalAdvance(cell.toString()) + kColumnGap * scale.Factor());
    if (++lines == kTableLinesRead) break;
  }
  return std::min(widest, kWidestColumn * scale.Factor());
}

// Whether lines are broken between words. To look for the ends of words takes time by the square of a line's
// length.
bool WrapsWords(const QString& text) {
  for (const QStringView line : QStringView(text).split(u'\n'))
    if (line.size() > kLongestLineOfWords) return false;
  return true;
}

// What stands in the place of a picture that is not there.
QImage MissingPicture(const QString& name, const QFont& font) {
  const QString text = QStringLiteral("The picture %1 is missing.").arg(name);
  const QFontMetrics metrics(font);
  QImage picture(metrics.horizontalAdvance(text) + metrics.height(), 2 * metrics.height(),
                 QImage::Format_RGB32);
  picture.fill(Qt::white);
  QPainter painter(&picture);
  painter.setFont(font);
  painter.drawRect(picture.rect().adjusted(0, 0, -1, -1));
  painter.drawText(picture.rect(), Qt::AlignCenter, text);
  return picture;
}

}  // namespace

QFont PrintedDocumentFont() { return DocumentFont(); }

DocumentEdit::DocumentEdit(QWidget* parent) : QPlainTextEdit(parent) {
  setFont(DocumentFont(ScaleOf(parent)));
  setTabChangesFocus(true);
  setContextMenuPolicy(Qt::NoContextMenu);
}

bool DocumentEdit::event(QEvent* event) {
  // These keys belong to the window's menu, which works on the control.
  if (event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Copy) || key->matches(QKeySequence::Cut) ||
        key->matches(QKeySequence::Paste) || key->matches(QKeySequence::SelectAll)) {
      event->ignore();
      return true;
    }
  }
  return QPlainTextEdit::event(event);
}

// A line ends in one way only; the other one that the key with Shift brings has no place in the text.
void DocumentEdit::keyPressEvent(QKeyEvent* event) {
  const bool end = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!end) return QPlainTextEdit::keyPressEvent(event);
  insertPlainText(QStringLiteral("\n"));
  ensureCursorVisible();
}

void DocumentEdit::insertFromMimeData(const QMimeData* source) {
  QString text = source->text();
  text.replace(QChar::LineSeparator, u'\n').replace(QChar::ParagraphSeparator, u'\n');
  const std::string known = FromQt(text);
  if (!takes || takes(known)) insertPlainText(ToQt(known));
}

// Qt's own would give plain blanks for those that keep words together.
QMimeData* DocumentEdit::createMimeDataFromSelection() const {
  auto* selected = new QMimeData;
  selected->setText(textCursor().selectedText().replace(QChar::ParagraphSeparator, u'\n'));
  return selected;
}

void DocumentEdit::KeepTyped(const std::string& text) {
  shown_ = text;
  const QString known = ToQtLines(text);
  setWordWrapMode(WrapsWords(known) ? QTextOption::WrapAtWordBoundaryOrAnywhere : QTextOption::WrapAnywhere);
  const QString typed = PlainText();
  if (known == typed) return;
  // One character gives way to one "?", also where it is two to Qt.
  const QString before = typed.left(textCursor().position());
  const auto pairs = std::ranges::count_if(before, [](QChar c) { return c.isLowSurrogate(); });
  setPlainText(known);
  QTextCursor cursor = textCursor();
  cursor.setPosition(std::min(static_cast<int>(before.size() - pairs), document()->characterCount() - 1));
  setTextCursor(cursor);
}

void DocumentEdit::SetText(const std::string& text) {
  if (text == shown_) return;
  shown_ = text;
  const QString shown = ToQtLines(text);
  // The lines of a table are as long as they are: one scrolls to their ends.
  setLineWrapMode(shown.contains(u'\t') ? NoWrap : WidgetWidth);
  SetColumns(shown);
  // The old text is not laid out in the way of the new one, nor the new one in that of the old.
  const bool words = WrapsWords(shown);
  if (!words) setWordWrapMode(QTextOption::WrapAnywhere);
  setPlainText(shown);
  if (words) setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void DocumentEdit::Edit(const std::string& text) {
  if (text == shown_) return;
  shown_ = text;
  const QString before = PlainText();
  const QString after = ToQtLines(text);
  const bool words = WrapsWords(after);
  if (!words) setWordWrapMode(QTextOption::WrapAnywhere);
  // Only what differs changes: the rest stays where it is on the screen.
  const qsizetype shorter = std::min(before.size(), after.size());
  qsizetype head = 0, tail = 0;
  while (head < shorter && before[head] == after[head]) ++head;
  while (tail < shorter - head && before[before.size() - 1 - tail] == after[after.size() - 1 - tail]) ++tail;
  QTextCursor cursor(document());
  cursor.setPosition(static_cast<int>(head));
  cursor.setPosition(static_cast<int>(before.size() - tail), QTextCursor::KeepAnchor);
  cursor.insertText(after.mid(head, after.size() - head - tail));
  if (words) setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
}

void DocumentEdit::TakeScale() {
  setFont(DocumentFont(ScaleOf(this)));
  SetColumns(PlainText());
}

void DocumentEdit::SetColumns(const QString& text) {
  setTabStopDistance(TabDistance(text, QFontMetricsF(font()), ScaleOf(this)));
}

std::string DocumentEdit::Text() const { return WithLineEnds(FromQt(PlainText())); }

// toPlainText would turn the blanks that keep words together into plain ones.
QString DocumentEdit::PlainText() const {
  return document()->toRawText().replace(QChar::ParagraphSeparator, u'\n');
}

int DocumentEdit::ControlPosition(int position) const {
  return position + document()->findBlock(position).blockNumber();
}

int DocumentEdit::EditorPosition(int position) const {
  int lines = 0;
  const std::size_t end = static_cast<std::size_t>(position);
  for (std::size_t i = shown_.find(kLineEnd); i != std::string::npos && i + kLineEnd.size() <= end;
       i = shown_.find(kLineEnd, i + kLineEnd.size()))
    ++lines;
  return position - lines;
}

void DocumentEdit::Select(int start, int length) {
  if (Selection() == std::pair(start, length)) return;
  QTextCursor cursor = textCursor();
  const int last = document()->characterCount() - 1;
  cursor.setPosition(std::min(EditorPosition(start), last));
  cursor.setPosition(std::min(EditorPosition(start + length), last), QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

std::pair<int, int> DocumentEdit::Selection() const {
  const int start = ControlPosition(textCursor().selectionStart());
  return {start, ControlPosition(textCursor().selectionEnd()) - start};
}

PageBrowser::PageBrowser(QWidget* parent) : QTextBrowser(parent) {
  setOpenExternalLinks(true);
  // One reads with the caret too.
  setTextInteractionFlags(Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard);
  document()->setDocumentMargin(14);
}

void PageBrowser::SetText(const std::string& text, const QString& folder) {
  if (text == shown_) return;
  shown_ = text;
  setSearchPaths({folder});
  setMarkdown(ToQt(text));
  ColourLinks();
  SpaceOut();
}

// Markdown says nothing of the room between its parts, and Qt leaves none.
void PageBrowser::SpaceOut() {
  constexpr double kAboveHeading = 0.9, kBelowHeading = 0.3, kBelowItem = 0.15, kBelowText = 0.5;
  const double line = QFontMetricsF(font()).height();
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
    QTextCursor cursor(block);
    if (cursor.currentTable() != nullptr) continue;
    QTextBlockFormat space;
    const bool withinList = block.textList() != nullptr && block.next().textList() != nullptr;
    if (block.blockFormat().headingLevel() > 0) {
      space.setTopMargin(block == document()->begin() ? 0 : kAboveHeading * line);
      space.setBottomMargin(kBelowHeading * line);
    } else {
      space.setBottomMargin((withinList ? kBelowItem : kBelowText) * line);
    }
    cursor.mergeBlockFormat(space);
  }
}

// Pictures keep the size that they were loaded in: a page of another width loads them anew.
void PageBrowser::resizeEvent(QResizeEvent* event) {
  const bool anew = event->size().width() != event->oldSize().width();
  if (anew)
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
      for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
        const QTextImageFormat picture = piece.fragment().charFormat().toImageFormat();
        if (!picture.isValid()) continue;
        const QUrl name(picture.name());
        document()->addResource(QTextDocument::ImageResource, name,
                                loadResource(QTextDocument::ImageResource, name));
        document()->markContentsDirty(piece.fragment().position(), piece.fragment().length());
      }
  QTextBrowser::resizeEvent(event);
}

void PageBrowser::ColourLinks() {
  QTextCharFormat link;
  link.setForeground(Colour(Tone::Link));
  for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
    for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
      const QTextFragment fragment = piece.fragment();
      if (!fragment.charFormat().isAnchor()) continue;
      QTextCursor cursor(document());
      cursor.setPosition(fragment.position());
      cursor.setPosition(fragment.position() + fragment.length(), QTextCursor::KeepAnchor);
      cursor.mergeCharFormat(link);
    }
}

QVariant PageBrowser::loadResource(int type, const QUrl& name) {
  const QString path = QDir(searchPaths().value(0)).filePath(name.path());
  const auto bytes = ReadWholeFile(QFile::encodeName(path).toStdString(), kLargestPicture);
  if (type != QTextDocument::ImageResource)
    return bytes ? QVariant(QByteArray::fromStdString(*bytes)) : QVariant();
  QImage picture;
  if (bytes) picture.loadFromData(QByteArray::fromStdString(*bytes));
  if (picture.isNull()) return MissingPicture(name.path(), font());
  // A picture that is too wide shrinks to the window's width, in as many pixels as the screen has for it.
  const double room = viewport()->width() - 2 * document()->documentMargin() - kPictureEdge;
  if (room <= 0 || picture.width() <= room) return picture;
  const int pixels = std::min(picture.width(), static_cast<int>(room * devicePixelRatioF()));
  picture = picture.convertToFormat(QImage::Format_RGB32).scaledToWidth(pixels, Qt::SmoothTransformation);
  picture.setDevicePixelRatio(pixels / room);
  return picture;
}

namespace {

class EditView : public ControlView {
 public:
  EditView(DocumentText& document, QWidget* parent, Desktop& desktop)
      : ControlView(document, new DocumentEdit(parent)),
        document_(document),
        edit_(*static_cast<DocumentEdit*>(Widget())) {
    QObject::connect(&edit_, &QPlainTextEdit::textChanged,
                     [this, &desktop] { desktop.Enter([this] { TakeSelection(); }); });
    for (const auto signal : {&QPlainTextEdit::selectionChanged, &QPlainTextEdit::cursorPositionChanged})
      QObject::connect(&edit_, signal, [this, &desktop] { desktop.Enter([this] { TakeSelection(); }); });
    edit_.takes = [this, &desktop](const std::string& text) {
      if (document_.HasRoomFor(text)) return true;
      // After the drop, which is not to wait for an answer.
      QTimer::singleShot(0, &edit_, [this, &desktop] { desktop.Enter(document_.onNoRoom); });
      return false;
    };
  }
  void TakeScale() override { edit_.TakeScale(); }

 protected:
  void UpdateContents() override {
    // A new text begins a new history.
    if (textsSet_ == document_.TextsSet())
      edit_.Edit(document_.Text());
    else
      edit_.SetText(document_.Text());
    textsSet_ = document_.TextsSet();
    taken_ = edit_.document()->revision();
    edit_.Select(document_.SelStart(), document_.SelLength());
  }

 private:
  void TakeText() {
    if (edit_.document()->revision() == taken_) return;
    document_.UserTypes(edit_.Text());
    // To show it anew would move the cursor.
    edit_.KeepTyped(document_.Text());
    taken_ = edit_.document()->revision();
  }
  // The editor tells of a cursor that moved by typing before it tells of what was typed.
  void TakeSelection() {
    TakeText();
    const auto [start, length] = edit_.Selection();
    if (start != document_.SelStart() || length != document_.SelLength())
      document_.UserSelects(start, length);
  }

  DocumentText& document_;
  DocumentEdit& edit_;
  int textsSet_ = -1;  // of the control, when its text was last shown
  int taken_ = 0;      // the revision of the editor's document that the control has
};

class PageView : public ControlView {
 public:
  PageView(DocumentText& document, QWidget* parent, const InfoWindow& window)
      : ControlView(document, new PageBrowser(parent)), document_(document), window_(window) {}
  void TakeTheme() override { static_cast<PageBrowser*>(Widget())->ColourLinks(); }
  void TakeScale() override { static_cast<PageBrowser*>(Widget())->SpaceOut(); }

 protected:
  void UpdateContents() override {
    const QFileInfo file(QFile::decodeName(window_.File().c_str()));
    static_cast<PageBrowser*>(Widget())->SetText(document_.Text(), file.path());
  }

 private:
  DocumentText& document_;
  const InfoWindow& window_;
};

}  // namespace

std::unique_ptr<ControlView> MakeDocumentView(DocumentText& document, QWidget* parent, Desktop& desktop) {
  if (const auto* window = dynamic_cast<const InfoWindow*>(&document.Window()))
    return std::make_unique<PageView>(document, parent, *window);
  return std::make_unique<EditView>(document, parent, desktop);
}

}  // namespace vicetoll
