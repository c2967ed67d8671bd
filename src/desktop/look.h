// SPDX-License-Identifier: GPL-3.0-or-later
// How the windows look: style, sizes, what widgets are drawn with, and texts that fit where they stand. The
// colours are in themes.h.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

class QApplication;
class QPainter;
class QStyleOption;
class QWidget;

namespace vicetoll {

// The style of the whole program: the same look on any desktop, in the colours of the system.
void ApplyLook(QApplication& application);

// What is disabled is drawn in its colours with this alpha.
inline constexpr int kFaint = 110;

// The font in which the text, wrapped at words, fits the room: the given one, whose size is in pixels, or a
// smaller one where it would be cut off.
QFont FittedFont(const QString& text, const QSize& room, const QFont& font);

// Draws the text wrapped and fitted; one that stands in the middle in lines of about one length. `text` may
// mark its access key by "&".
void DrawFitted(QPainter& painter, const QRect& room, int alignment, const QString& text, const QFont& font);

// The same for a text in one line, down to `smallest` pixels.
QFont FittedLine(const QString& text, int width, const QFont& font, int smallest);

// The ring around the control that has the focus.
void DrawFocusRing(QPainter& painter, const QRect& room);

// A ground with a line around it, as boxes and buttons have it; `radius` of its corners in pixels.
void DrawBox(QPainter& painter, const QRect& room, const QColor& ground, const QColor& line, double radius);

// The mark of a choice: a round one for options, a square one for check boxes.
void DrawIndicator(QPainter& painter, const QRect& room, bool round, const QStyleOption& state);

// From a text in which "&" marks an access key to the one that is shown, and back from a plain one to a text
// in which nothing marks one.
QString WithoutAccessKey(const QString& text);
QString AsItStands(QString plain);

}  // namespace vicetoll
