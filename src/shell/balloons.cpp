#include "shell/balloons.h"

#include "base/fault.h"
#include "shell/balloon_texts.h"

namespace vicetoll {

void Balloons::AttachToolTips(int position, SinWorkspace& workspace) {
  At(position).balloons.clear();
  At(position).active = true;
  for (const BalloonRow& row : BalloonRows())
    if (!workspace.FindAll(row.control).empty()) AddBalloon(position, row.control, row.text);
  if (workspace.cmdEuro != nullptr) AddBalloon(position, EuroBalloon().control, EuroBalloon().text);
}

void Balloons::AddBalloon(int position, std::string_view control, std::string_view text) {
  At(position).balloons.push_back({std::string(control), std::string(text)});
  Changed(position);
}

Balloons::OfSin& Balloons::At(int position) {
  if (position < 0 || position >= kSinCount) throw Fault(FaultKind::Index, "There is no such sin.");
  return sins_[position];
}

void Balloons::ConnectOptions(SinWorkspace& workspace) {
  const int position = workspace.Position();
  const bool shared = workspace.Sin().switchesAllBalloons;
  for (const bool on : {true, false})
    workspace.Get<Option>(on ? "optToolTipEnable" : "optToolTipDisable").onClick = [=, this] {
      shared ? SwitchAll(on) : SwitchOne(position, on);
    };
}

std::string_view Balloons::TextFor(int position, const Control& control) const {
  const OfSin& sin = sins_.at(position);
  if (!sin.active) return {};
  // A control that has two balloons shows the one attached last.
  for (auto balloon = sin.balloons.rbegin(); balloon != sin.balloons.rend(); ++balloon)
    if (balloon->control == control.Name()) return balloon->text;
  return {};
}

void Balloons::SwitchOne(int position, bool on) {
  // A sin that was never visited has no balloons to switch; those it gets later are active.
  if (sins_.at(position).balloons.empty()) return;
  sins_.at(position).active = on;
  Changed(position);
}

void Balloons::Changed(int position) const {
  if (onChanged) onChanged(position);
}

void Balloons::SwitchAll(bool on) {
  for (int i = 0; i < kSinCount; ++i) SwitchOne(i, on);
  for (int i = 0; i < kSinCount; ++i) {
    workspaces_.At(i).Get<Option>("optToolTipEnable").SetValue(on);
    workspaces_.At(i).Get<Option>("optToolTipDisable").SetValue(!on);
  }
}

}  // namespace vicetoll
