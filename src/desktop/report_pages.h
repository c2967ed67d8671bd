// SPDX-License-Identifier: GPL-3.0-or-later
// Pages of a report on paper: title, a small table, a picture, and a long table with its heading on each
// page.
#pragma once

#include <QByteArray>
#include <QPagedPaintDevice>
#include <functional>
#include <optional>

#include "base/pages.h"

namespace vicetoll {

// The paper of reports: that of the default printer, A4 where there is no printer.
QPageSize ReportPaper();

// The same for a printer whose paper is known. One that is none, or too small for a report (a printer of
// labels has such), gives way to A4.
QPageSize ReportPaperOf(const QPageSize& printersPaper);

// Turns the paper so that the long table fits.
void TurnPaper(const Pages& pages, QPagedPaintDevice& device);

// Asked before each page but the first, with the number of those that are done and of all; false gives up.
using GoOn = std::function<bool(int done, int of)>;

// Paints the pages on the device's paper, as it is turned. False if the device takes nothing, or it was given
// up.
bool PaintPages(const Pages& pages, QPagedPaintDevice& device, const GoOn& goOn = {});

// The pages as a PDF file on that paper: fonts embedded, text as text, title and language noted. Empty if it
// cannot be made, none if it was given up.
std::optional<QByteArray> MakePdf(const Pages& pages, const QPageSize& paper = ReportPaper(),
                                  const GoOn& goOn = {});

}  // namespace vicetoll
