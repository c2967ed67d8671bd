// The balloon help: which control explains itself by which text. The same in all sins.
#pragma once

#include <span>
#include <string_view>

namespace vicetoll {

// One balloon text. A control array stands under its bare name: the balloon hangs at all its elements.
// Lines are broken by CR LF.
struct BalloonRow {
  std::string_view control;
  std::string_view text;
};

// The balloons in the order in which they are attached. The out-of-pocket boxes come twice.
std::span<const BalloonRow> BalloonRows();

// The last balloon of the Smoking workspace, which alone has the button.
const BalloonRow& EuroBalloon();

}  // namespace vicetoll
