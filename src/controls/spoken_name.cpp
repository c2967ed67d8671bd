// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/spoken_name.h"

#include <algorithm>

#include "controls/form.h"

namespace vicetoll {
namespace {

const Frame* FrameAround(const Control& control) {
  for (const Control* c = control.Container(); c != nullptr; c = c->Container())
    if (const auto* frame = dynamic_cast<const Frame*>(c)) return frame;
  return nullptr;
}

bool HasTwin(const CaptionedControl& control) {
  return std::ranges::any_of(control.Window().Controls(), [&](const auto& other) {
    return other.get() != &control && other->Kind() == control.Kind() &&
           static_cast<const CaptionedControl&>(*other).Caption() == control.Caption();
  });
}

}  // namespace

bool FillsWindow(const Control& control) {
  return control.Kind() == ControlKind::Grid || control.Kind() == ControlKind::DocumentText ||
         control.Kind() == ControlKind::Chart || control.Kind() == ControlKind::TabControl;
}

std::vector<const CaptionedControl*> Namers(const Control& control) {
  if (FillsWindow(control) || !control.OwnName().empty()) return {};
  if (!control.LabelledBy().empty()) return control.LabelledBy();
  if (!control.TakesFocus()) return {};
  const Frame* frame = FrameAround(control);
  if (frame == nullptr) return {};
  const auto* captioned = dynamic_cast<const CaptionedControl*>(&control);
  if (captioned == nullptr) return {frame};
  if (!HasTwin(*captioned)) return {};
  return {frame, captioned};
}

std::string SpokenName(const Control& control) {
  if (!control.OwnName().empty()) return control.OwnName();
  if (FillsWindow(control)) return control.Window().Caption();
  std::string name;
  for (const CaptionedControl* namer : Namers(control)) {
    if (!name.empty()) name += ", ";
    name += namer->Caption();
  }
  if (!name.empty()) return name;
  const auto* captioned = dynamic_cast<const CaptionedControl*>(&control);
  return captioned == nullptr ? std::string() : captioned->Caption();
}

}  // namespace vicetoll
