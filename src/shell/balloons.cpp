// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/balloons.h"

#include <algorithm>
#include <map>

#include "base/fault.h"
#include "workspace/control_rows.h"

namespace vicetoll {
namespace {

// By their turns, and by the order of the design where these are equal.
std::multimap<int, Balloon> BalloonsOf(const SinRow& sin) {
  std::multimap<int, Balloon> balloons;
  ForEachRow(sin, [&](const ControlRow& row, const DesignSection& section) {
    const Side side = section.side.value_or(Side::Past);
    for (const auto& [turn, text] : row.balloons)
      if (!text[side].empty())
        balloons.insert(
            {turn[side], {row.name.Fill({sin, section.side, section.page}), std::string(text[side])}});
  });
  return balloons;
}

// The text on one line up to its first full stop, and without what stands in brackets there.
std::string FirstSentence(std::string_view text) {
  std::string sentence;
  bool inBrackets = false;
  for (char letter : text) {
    if (letter == '.' && !inBrackets) break;
    if (letter == '(') inBrackets = true;
    if (letter == '\r' || letter == '\n') letter = ' ';
    const bool secondBlank = letter == ' ' && sentence.ends_with(' ');
    if (!inBrackets && !secondBlank) sentence += letter;
    if (letter == ')') inBrackets = false;
  }
  while (sentence.ends_with(' ')) sentence.pop_back();
  return sentence;
}

}  // namespace

void Balloons::AttachToolTips(int position, SinWorkspace& workspace) {
  At(position).balloons.clear();
  At(position).active = true;
  for (const auto& [turn, balloon] : BalloonsOf(workspace.Sin()))
    AddBalloon(position, balloon.control, balloon.text);
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

std::string_view Balloons::OfSin::TextOn(const Control& control) const {
  // A control that has two balloons shows the one attached last.
  const auto last = std::find_if(balloons.rbegin(), balloons.rend(), [&control](const Balloon& balloon) {
    return balloon.control == control.Name();
  });
  return last == balloons.rend() ? std::string_view() : last->text;
}

std::string_view Balloons::TextFor(int position, const Control& control) const {
  const OfSin& sin = sins_.at(position);
  return sin.active ? sin.TextOn(control) : std::string_view();
}

std::string Balloons::SentenceOn(int position, const Control& control) const {
  for (const Control* c = &control; c != nullptr; c = c->Container())
    if (const std::string_view text = sins_.at(position).TextOn(*c); !text.empty())
      return FirstSentence(text);
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
