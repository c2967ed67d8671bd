// SPDX-License-Identifier: GPL-3.0-or-later
// The colours of the windows: one table, a column for each theme. Widgets ask for a tone by its name and get
// the colour of the theme in force, which is the one that goes with the palette of the system:
//
//   painter.setPen(Colour(Tone::ChartLine1));
//
// A new thing that is drawn takes a tone that is there, or adds a row to the table, and names the ground it
// stands on among the pairs, from which a test computes what can be read.
#pragma once

#include <QColor>
#include <QPalette>
#include <span>

namespace vicetoll {

enum class Theme { Light, Dark, HighContrast };
inline constexpr int kThemeCount = 3;

enum class Tone {
  WindowGround,  // around the tabs
  PanelGround,   // of a tab's page
  FrameGround,   // inside a frame
  FrameLine,     // around frames, buttons, boxes and tabs
  Ink,           // captions of frames, the text of balloons, the mark of a choice
  Text,          // what else is written on a window, a panel or a frame
  Hint,          // a remark of less weight
  ButtonGround,
  ButtonHover,  // under the pointer
  ButtonDown,   // pressed
  CellLine,     // between the cells of a table
  BoxGround,    // of boxes, tables, texts, and of a choice's mark
  ListGround,   // drop-down lists
  ListText,
  ListLine,       // around a list
  ListOffGround,  // a disabled list
  ListOffText,
  Focus,      // the ring around the control that has the focus
  FocusGap,   // between that ring and a list
  Selection,  // the ground of selected cells and text
  SelectionText,
  Link,
  BalloonGround,
  ChartLine1,  // lines and areas of a chart, which stands on BoxGround
  ChartLine2,
  ChartLine3,
  ChartLine4,
  ChartGrid,  // the lines behind a chart
  Count
};

// The theme that goes with a palette of the system's: dark if its text is lighter than its ground, and of
// high contrast if that ground is black and the text white.
Theme ThemeFor(const QPalette& system);

// The theme in force: that of the application's palette, which is the system's.
Theme CurrentTheme();

QColor Colour(Tone tone, Theme theme);
QColor Colour(Tone tone);  // in the theme in force

// The palette of the program's windows: all its colours come from the table.
QPalette ThemePalette(Theme theme);

// What stands on what, and the contrast that it needs: 4.5 to be read, 3 to be seen. Disabled controls are
// none of them.
struct TonePair {
  Tone front, ground;
  double contrast;
};
std::span<const TonePair> TonePairs();

// The contrast of two colours, 1 to 21.
double Contrast(const QColor& one, const QColor& other);

// The nearest shade of the colour, of the same hue, that can be read on that ground.
QColor Readable(QColor colour, const QColor& ground);

}  // namespace vicetoll
