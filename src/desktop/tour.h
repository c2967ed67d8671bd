// SPDX-License-Identifier: GPL-3.0-or-later
// A short walk through the program, for machines without a display.
#pragma once

#include <QString>

namespace vicetoll {

// Sets two past periods and a future one of smoking, opens the TOTAL tab, goes on to coffee; prints the
// figures and draws each step into a PNG file in the folder, which is made if need be. Needs an application;
// returns the exit status, 1 where a picture could not be written.
int TakeTour(const QString& folder);

}  // namespace vicetoll
