// How the windows look: colours, sizes, and texts that fit where they stand.
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

class QApplication;
class QPainter;
class QWidget;

namespace vicetoll {

// 15 twips are a pixel at 96 dots to the inch.
inline constexpr int kTwipsPerPixel = 15;
constexpr int ToPixels(int twips) { return (twips + (twips < 0 ? -7 : 7)) / kTwipsPerPixel; }
constexpr int ToTwips(int pixels) { return pixels * kTwipsPerPixel; }

namespace look {

inline constexpr QRgb kInk = qRgb(0, 0, 150);          // captions of frames, balloons
inline constexpr QRgb kListGround = qRgb(0, 0, 255);   // lists are white on blue
inline constexpr QRgb kListOff = qRgb(136, 140, 168);  // a disabled list
inline constexpr QRgb kPanelGround = qRgb(236, 238, 244);
inline constexpr QRgb kFrameGround = qRgb(248, 249, 252);
inline constexpr QRgb kFrameLine = qRgb(176, 182, 200);
inline constexpr QRgb kFocus = qRgb(230, 120, 0);  // the ring around the control that has the focus

}  // namespace look

// Style, palette and hints of the whole program: the same look on any desktop.
void ApplyLook(QApplication& application);

// The font in which the text, wrapped at words, fits the room: the given one, or a smaller one where a
// large system font would be cut off.
QFont FittedFont(const QString& text, const QSize& room, const QFont& font);

// Draws the text wrapped and fitted. `text` may mark its access key by "&".
void DrawFitted(QPainter& painter, const QRect& room, int alignment, const QString& text, const QFont& font);

// The ring around the control that has the focus.
void DrawFocusRing(QPainter& painter, const QRect& room);

// The colour, darkened until it can be read on a light ground (contrast at least 4.5 to 1).
QColor Readable(QColor colour);

// A text in which nothing marks an access key.
QString WithoutAccessKey(const QString& text);

}  // namespace vicetoll
