// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of picture files that the program writes.
#pragma once

namespace vicetoll {

enum class PictureFormat { Png, Svg, Pdf };

}  // namespace vicetoll
