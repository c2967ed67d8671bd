// SPDX-License-Identifier: GPL-3.0-or-later
// What the editor of a report does with texts that are out of the ordinary.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFile>
#include <QInputMethodEvent>
#include <QMimeData>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTextBlock>

#include "desktop/desktop.h"
#include "desktop/document_view.h"
#include "desktop/form_window.h"
#include "scenario/scripted_platform.h"

namespace vicetoll {
namespace {

class DocumentEditor : public testing::Test {
 protected:
  DocumentEditor() {
    desktop.Enter([this] { window.Show(); });
    QApplication::processEvents();
  }

  void Set(const std::string& text) {
    desktop.Enter([&] { window.Text().SetText(text); });
  }
  void Paste(const std::string& text) {
    platform.clipboard = text;
    desktop.Enter([this] { window.Get<MenuEntry>("cmdPaste").UserClicks(); });
    QApplication::processEvents();
  }
  // What is dropped or pasted by the middle button arrives as this.
  void Insert(const QString& text) {
    QMimeData data;
    data.setText(text);
    QMetaObject::invokeMethod(&edit, [&] { static_cast<Opened&>(edit).insertFromMimeData(&data); });
    QApplication::processEvents();
  }

  // Opens what Qt keeps to itself.
  class Opened : public DocumentEdit {
   public:
    using DocumentEdit::createMimeDataFromSelection;
    using DocumentEdit::insertFromMimeData;
  };

  ScriptedPlatform platform;
  Program program{platform};
  Desktop desktop{program};
  DocWindow& window = program.Doc();
  DocumentEdit& edit = dynamic_cast<DocumentEdit&>(*desktop.WindowOf(window).WidgetOf(window.Text()));
};

// The blank that keeps words together is the byte 160.
TEST_F(DocumentEditor, KeepsNonBreakingBlanksWhenTyping) {
  Set("1\xA0"
      "000");
  QTest::keyClick(&edit, Qt::Key_End);
  QTest::keyClicks(&edit, " $");
  EXPECT_EQ(window.Text().Text(),
            "1\xA0"
            "000 $");
  EXPECT_EQ(edit.Text(),
            "1\xA0"
            "000 $");
}

// A face is two characters to Qt, and one question mark to the report.
TEST_F(DocumentEditor, KeepsTheCaretBehindACharacterThatATextCannotHold) {
  Set("abcd");
  desktop.Enter([this] { window.Text().UserSelects(2, 0); });
  QInputMethodEvent face;
  face.setCommitString(QStringLiteral("\U0001F600"));
  QApplication::sendEvent(&edit, &face);
  QTest::keyClicks(&edit, "!");
  EXPECT_EQ(window.Text().Text(), "ab?!cd");
  EXPECT_EQ(edit.Text(), "ab?!cd");
}

TEST_F(DocumentEditor, KeepsNonBreakingBlanksWhenTextIsDragged) {
  Set("1\xA0"
      "000\r\n2");
  edit.selectAll();
  const std::unique_ptr<QMimeData> data(static_cast<Opened&>(edit).createMimeDataFromSelection());
  EXPECT_EQ(data->text(), QStringLiteral("1\u00A0000\n2"));
}

TEST_F(DocumentEditor, ShowsAPasteIntoACutEndOfLine) {
  Set("a\r\nb");
  desktop.Enter([this] { window.Text().UserSelects(2, 0); });
  Paste("X");
  EXPECT_EQ(window.Text().Text(), "a\r\nX\r\nb");
  EXPECT_EQ(edit.Text(), window.Text().Text());
}

// To look for the ends of words took a minute for the longest line, and as long for each key.
TEST_F(DocumentEditor, BreaksALongLineWithoutBlanksAnywhere) {
  Paste(std::string(kLongestLine, 'x'));
  EXPECT_EQ(window.Text().Length(), kLongestLine);
  QTest::keyClick(&edit, Qt::Key_Backspace);
  QApplication::processEvents();
  EXPECT_EQ(window.Text().Length(), kLongestLine - 1);
  EXPECT_EQ(edit.wordWrapMode(), QTextOption::WrapAnywhere);
  Set("words again");
  EXPECT_EQ(edit.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
}

TEST_F(DocumentEditor, RefusesALongerLineAndSaysSo) {
  Set("kept");
  Paste(std::string(kLongestLine + 1, 'x'));
  EXPECT_EQ(window.Text().Text(), "kept");
  ASSERT_EQ(platform.messages.size(), 1u);
  Insert(QString(kLongestLine + 1, u'x'));
  EXPECT_EQ(window.Text().Text(), "kept");
  EXPECT_EQ(platform.messages.size(), 2u);
  Insert(QStringLiteral("!"));
  EXPECT_EQ(window.Text().Length(), 5);
}

// ---- The help window ----

TEST(HelpText, ItsPartsStandApart) {
  PageBrowser page(nullptr);
  page.resize(800, 600);
  page.SetText("# Top\n\nOne.\n\nTwo.\n\n- an item\n- another\n\nThree.\n\n## Next\n\nFour.\n", {});
  page.show();
  const QTextDocument& text = *page.document();
  ASSERT_EQ(text.blockCount(), 8);
  // The room below a block, which is one line, in lines of text.
  const auto below = [&](int block) {
    const auto line = [&](int i) { return page.cursorRect(QTextCursor(text.findBlockByNumber(i))); };
    return (line(block + 1).top() - line(block).bottom()) / QFontMetricsF(page.font()).height();
  };
  EXPECT_GT(below(1), 0.4);       // between paragraphs
  EXPECT_LT(below(3), below(4));  // items stand closer than what follows the list
  EXPECT_GT(below(5), 0.8);       // above a heading
  EXPECT_LT(below(6), below(5));  // which belongs to what follows it
}

// ---- Its pictures ----

int WidthOfPicture(const PageBrowser& page, const QString& name) {
  return page.document()->resource(QTextDocument::ImageResource, QUrl(name)).value<QImage>().width();
}

// The widths of a document's pictures, in the order of their names.
QList<int> WidthsOfPictures(const std::string& folder, const QStringList& names) {
  PageBrowser page(nullptr);
  page.resize(800, 600);
  std::string text;
  for (const QString& name : names) text += "![" + name.toStdString() + "](" + name.toStdString() + ")\n\n";
  page.SetText(text, QString::fromStdString(folder));
  QList<int> widths;
  for (const QString& name : names) widths.push_back(WidthOfPicture(page, name));
  return widths;
}

TEST(HelpPictures, FitAPageThatBecomesNarrowerOrWider) {
  const QTemporaryDir room;
  QImage picture(700, 30, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(room.filePath(QStringLiteral("wide.png"))));
  PageBrowser page(nullptr);
  page.resize(800, 600);
  page.show();
  page.SetText("![wide](wide.png)", room.path());
  EXPECT_EQ(WidthOfPicture(page, QStringLiteral("wide.png")), 700);
  page.resize(400, 600);
  EXPECT_LT(WidthOfPicture(page, QStringLiteral("wide.png")), 400);
  EXPECT_EQ(page.horizontalScrollBar()->maximum(), 0);
  page.resize(800, 600);
  EXPECT_EQ(WidthOfPicture(page, QStringLiteral("wide.png")), 700);
}

TEST(HelpPictures, WhatIsNoPictureOfASaneSizeIsShownAsMissing) {
  const QTemporaryDir room;
  QImage picture(40, 30, QImage::Format_RGB32);
  picture.fill(Qt::red);
  ASSERT_TRUE(picture.save(room.filePath(QStringLiteral("good.png"))));
  ASSERT_EQ(mkfifo(qPrintable(room.filePath(QStringLiteral("pipe.png"))), 0600), 0);
  ASSERT_TRUE(QFile::link(QStringLiteral("/dev/zero"), room.filePath(QStringLiteral("zeros.png"))));
  const QList<int> widths =
      WidthsOfPictures(room.path().toStdString(), {QStringLiteral("good.png"), QStringLiteral("pipe.png"),
                                                   QStringLiteral("zeros.png"), QStringLiteral("none.png")});
  EXPECT_EQ(widths[0], 40);
  // A box with a sentence stands in their place.
  for (int i = 1; i < 4; ++i) EXPECT_GT(widths[i], 100) << i;
}

}  // namespace
}  // namespace vicetoll
