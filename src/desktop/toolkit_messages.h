// SPDX-License-Identifier: GPL-3.0-or-later
// What the toolkit says on standard error.
#pragma once

namespace vicetoll {

// From here on what the toolkit says in normal use, of a runtime folder that is not set or of what a platform
// without a screen cannot do, is dropped; and where it can open no window, a sentence says so and the program
// ends with status 1 instead of aborting. Everything else is said as before.
void FilterToolkitMessages();

}  // namespace vicetoll
