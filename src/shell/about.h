// SPDX-License-Identifier: GPL-3.0-or-later
// What the program says of itself: version, licence, what it is made with.
#pragma once

#include <string>

namespace vicetoll {

// In Markdown, like the help texts; in the program's code page.
std::string AboutText();

}  // namespace vicetoll
