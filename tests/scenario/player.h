// SPDX-License-Identifier: GPL-3.0-or-later
// Plays a scenario file: reads its lines, has a stage do what they say, and prints the answers.
#pragma once

#include <istream>
#include <memory>
#include <string>

#include "scenario/scripted_platform.h"
#include "scenario/stage.h"
#include "shell/program.h"

namespace vicetoll {

// Exit statuses of the drivers.
enum class PlayResult { Done = 0, Fault = 1, BadLine = 2 };

class Player {
 public:
  // `makeStage` is called when the program has started.
  Player(ScriptedPlatform& platform, PrintLine print,
         std::function<std::unique_ptr<Stage>(Program&)> makeStage)
      : platform_(platform), print_(std::move(print)), makeStage_(std::move(makeStage)) {}

  // Plays the lines to the end, to a fault (printed as `fault KIND`), to a line that cannot be understood
  // (its number and why on standard error), or until the program ends.
  PlayResult Play(std::istream& lines);

 private:
  struct Line;

  void Run(Line& line);
  bool RunUserLine(Line& line);
  void RunQuestion(Line& line);
  void Start();

  void Report(UserOutcome outcome, const std::string& control);
  void Answer(Line& line);
  void Resize(Line& line);
  void Choose(Line& line);
  void Select(Line& line);

  std::string StateLine(Control& control);
  std::string WindowLine();
  void Dump();
  void Results();
  void ShowEntries(DropDownList& list);
  void ShowRecord(int period, int side);
  void ShowFields();
  void ShowGlobals();
  void CallOperationLine(Line& line);
  void ShowFile(const std::string& path);
  void ShowExport(const std::string& path);
  void ShowTips();
  void ShowBalloons();
  void ShowPlace(const std::string& name);
  void ShowCanvas();
  void ShowEntriesFile();
  void ShowText(Control& control);
  void ShowRows();
  void ShowChart(Chart& chart);
  void ShowSelection();

  Control& Find(const std::string& name);
  template <class T>
  T& FindOf(const std::string& name, const char* kind);
  SinWorkspace& Workspace();

  ScriptedPlatform& platform_;
  PrintLine print_;
  std::function<std::unique_ptr<Stage>(Program&)> makeStage_;
  std::unique_ptr<Program> program_;
  std::unique_ptr<Stage> stage_;
  Form* window_ = nullptr;
  SinWorkspace* workspace_ = nullptr;  // addressed last
};

}  // namespace vicetoll
