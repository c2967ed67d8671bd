// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/identification.h"

#include <map>
#include <string>

#include "workspace/control_rows.h"

namespace vicetoll {
namespace {

constexpr int kDelay = 100;  // milliseconds, between controls and between letters

// The tab control and its panels go first and come last.
constexpr int kLastOfHead = 10;

// The names of the controls that fade, by their turns. An array's name means all its elements.
std::multimap<int, std::string> FadingOf(const SinRow& sin) {
  std::multimap<int, std::string> names;
  ForEachRow(sin, [&](const ControlRow& row, const DesignSection& section) {
    for (const int turn : row.fades)
      if (turn != 0)
        names.insert({turn + (section.side == Side::Future ? kFutureFades : 0),
                      row.name.Fill({sin, section.side, section.page})});
  });
  return names;
}

struct RevealLine {
  std::string_view text;
  int left;             // twips
  int blankLinesAfter;  // line ends
};

// Who wrote this, and where they lived.
constexpr RevealLine kRevealLines[] = {
    {"The Writer and Developer Of", 1500, 2},
    {"The Vicetoll Financial Calculator and", 100, 1},
    {"The Ashtoll Financial Calculator", 100, 2},
    {"Is the Orvane Team", 2200, 2},
    {"As of Nov 1, 2007,", 3000, 2},
    {"Who lived in Fernholt", 2900, 2},
    {"In the Lower Wendle District", 900, 2},
};

void AskAndReveal(SinWorkspace& ws) {
  const Answer answer = ws.GetPlatform().ShowMessage(
      "Program Writer/Developer Identification",
      "Clicking OK will generate a sequence of events that will identify \r\n"
      "the writer/developer of this and other programs.  Please note that \r\n"
      "no harm will come to this program or your computer if you click OK \r\n"
      "and one one can restore the program to its original state by clicking \r\n"
      "the Retore Program Button or by exiting and restarting the program",
      MessageButtons::OkCancel);
  if (answer == Answer::Ok) RevealDeveloper(ws);
}

}  // namespace

void ConnectIdentification(SinWorkspace& ws) {
  if (ws.Find("cmdRevealDeveloper", kNoIndex) == nullptr) return;
  ws.Get<Button>("cmdRevealDeveloper").onClick = [&ws] { AskAndReveal(ws); };
  ws.Get<Button>("cmdRestoreProgram").onClick = [&ws] { RestoreProgram(ws); };
}

void RevealDeveloper(SinWorkspace& ws) {
  ws.cmdExit->SetEnabled(false);
  SetSummaryVisibility(ws, false, kDelay);
  WriteRevealText(ws);
  ws.cmdExit->SetEnabled(true);
}

void SetSummaryVisibility(SinWorkspace& ws, bool visible, int delay) {
  ws.SSTab_PastFutureSwitch->SetTab(kTotalTab);
  for (const auto& [turn, name] : FadingOf(ws.Sin())) {
    for (Control* control : ws.FindAll(name)) control->SetVisible(visible);
    // On the way out the head goes without a pause.
    if (visible || turn > kLastOfHead) ws.GetPlatform().Pause(delay);
  }
}

void WriteRevealText(SinWorkspace& ws) {
  for (const RevealLine& line : kRevealLines)
    TypeLine(ws, line.text, kDelay, line.left, 0, line.blankLinesAfter);
  ws.Get<Button>("cmdRestoreProgram").SetVisible(true);
}

void TypeLine(SinWorkspace& ws, std::string_view text, int delay, int left, int blankLinesBefore,
              int blankLinesAfter) {
  for (int i = 0; i < blankLinesBefore; ++i) ws.StartCanvasLine(0);
  ws.StartCanvasLine(left);
  for (const char letter : text) {
    ws.GetPlatform().Pause(delay);
    ws.TypeOnCanvas(letter);
  }
  // The first line end closes the line itself.
  for (int i = 1; i < blankLinesAfter; ++i) ws.StartCanvasLine(0);
}

void RestoreProgram(SinWorkspace& ws) {
  ws.Get<Button>("cmdRestoreProgram").SetVisible(false);
  ws.ClearCanvas();
  SetSummaryVisibility(ws, true, kDelay);
  ws.Get<Button>("cmdRevealDeveloper").SetVisible(false);
  ws.identificationOver = true;
}

}  // namespace vicetoll
