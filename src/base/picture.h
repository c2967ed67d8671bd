// The kinds of picture files that the program writes.
#pragma once

namespace vicetoll {

enum class PictureFormat { Png, Svg, Pdf };

}  // namespace vicetoll
