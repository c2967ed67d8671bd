// SPDX-License-Identifier: GPL-3.0-or-later
// The stage made of real widgets: a user's hands are mouse, keyboard and focus events, what is seen is
// read off the widgets, and so is what a user cannot reach.
#pragma once

#include <memory>

#include "desktop/desktop.h"
#include "scenario/scripted_platform.h"
#include "scenario/stage.h"

namespace vicetoll {

// The scripted world with real message boxes: each is shown, and its button pressed, as the queue says.
class WidgetPlatform : public ScriptedPlatform {
 public:
  using ScriptedPlatform::ScriptedPlatform;
  Desktop* desktop = nullptr;  // of the stage that is played on

  std::optional<std::string> PdfOf(const Pages& pages) override;
  Answer ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) override;
};

std::unique_ptr<Stage> MakeWidgetStage(Program& program, WidgetPlatform& platform);

}  // namespace vicetoll
