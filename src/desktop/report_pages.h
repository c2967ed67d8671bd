// SPDX-License-Identifier: GPL-3.0-or-later
// Pages of a report on paper: title, a small table, a picture, and a long table with its heading on each
// page.
#pragma once

#include <QByteArray>
#include <QPagedPaintDevice>

#include "base/pages.h"

namespace vicetoll {

// Turns the paper so that the long table fits.
void TurnPaper(const Pages& pages, QPagedPaintDevice& device);

// Paints the pages on the device's paper, as it is turned. False if the device takes nothing.
bool PaintPages(const Pages& pages, QPagedPaintDevice& device);

// The pages as a PDF file on A4: fonts embedded, text as text, title and language noted.
QByteArray MakePdf(const Pages& pages);

}  // namespace vicetoll
