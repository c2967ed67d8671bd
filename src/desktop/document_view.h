// SPDX-License-Identifier: GPL-3.0-or-later
// A document text as an editor; the help window's text as a page that is read.
#pragma once

#include <QPlainTextEdit>
#include <QTextBrowser>
#include <functional>
#include <memory>
#include <string>

#include "controls/document_text.h"
#include "desktop/control_view.h"

namespace vicetoll {

// The document's font and size on paper.
QFont PrintedDocumentFont();

// Editors know one character for an end of line; in the control's text it is two. Positions are turned
// from the one into the other here.
class DocumentEdit : public QPlainTextEdit {
 public:
  explicit DocumentEdit(QWidget* parent);

  void SetText(const std::string& text);
  // The same text with something replaced in it, which the user can undo.
  void Edit(const std::string& text);
  // Takes the scale of its sheet: the font, and the columns of a table.
  void TakeScale();
  // The control has taken what was typed. It is shown already, but for characters that the program's texts
  // cannot hold, which give way to "?".
  void KeepTyped(const std::string& text);
  // The text with its ends of line as CR LF.
  std::string Text() const;

  void Select(int start, int length);
  // Position and length of the selection, by the control's reckoning.
  std::pair<int, int> Selection() const;

  // Asked before a text that is dropped or pasted by the middle button goes in.
  std::function<bool(const std::string&)> takes;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  QMimeData* createMimeDataFromSelection() const override;

 private:
  QString PlainText() const;
  int ControlPosition(int position) const;
  int EditorPosition(int position) const;
  void SetColumns(const QString& text);

  std::string shown_;
};

// A text in Markdown, with the pictures that lie beside its file.
class PageBrowser : public QTextBrowser {
 public:
  explicit PageBrowser(QWidget* parent);

  void SetText(const std::string& text, const QString& folder);
  const std::string& Text() const { return shown_; }
  // Gives the links the colour of the theme in force.
  void ColourLinks();
  // Sets paragraphs and headings apart, by parts of a line of text.
  void SpaceOut();

 protected:
  // Pictures that are wider than the page are made to fit it.
  QVariant loadResource(int type, const QUrl& name) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  std::string shown_;
};

std::unique_ptr<ControlView> MakeDocumentView(DocumentText& document, QWidget* parent, Desktop& desktop);

}  // namespace vicetoll
