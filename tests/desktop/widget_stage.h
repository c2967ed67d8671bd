// SPDX-License-Identifier: GPL-3.0-or-later
// The stage made of real widgets: a user's hands are mouse, keyboard and focus events, what is seen is
// read off the widgets, and so is what a user cannot reach.
#pragma once

#include <exception>

#include "desktop/desktop.h"
#include "scenario/scripted_platform.h"
#include "scenario/stage.h"

class QWidget;

namespace vicetoll {

class FormWindow;

class WidgetStage : public Stage {
 public:
  explicit WidgetStage(Program& program);

  Desktop& GetDesktop() { return desktop_; }

  UserOutcome Focus(Control& control) override;
  UserOutcome Choose(DropDownList& list, int position) override;
  UserOutcome Click(Control& control) override;
  UserOutcome SelectTab(TabControl& tabs, int tab) override;
  UserOutcome Type(Control& control, std::string_view text) override;
  UserOutcome Resize(Form& form, int width, int height) override;
  UserOutcome SelectText(DocumentText& document, int start, int length) override;
  UserOutcome SelectCells(Grid& grid, const CellSpan& cells) override;

  ControlState Read(Control& control) override;
  FormState Read(Form& form) override;
  std::vector<std::string> Entries(DropDownList& list) override;
  std::string Text(Control& control) override;
  std::vector<std::vector<std::string>> Rows(Grid& grid) override;
  CellSpan Selection(Grid& grid) override;
  ChartContents Plotted(Chart& chart) override;

 private:
  // The window of a form, in step with the core and able to take the focus.
  FormWindow& Window(Form& form);
  template <class W>
  W& Widget(Control& control);
  bool Reaches(Control& control);
  void Activate(QWidget& window);
  // What the last action came to; throws what ended the run.
  UserOutcome Done();

  Desktop desktop_;
  std::exception_ptr failure_;
};

// The scripted world with real message boxes: each is shown, and its button pressed, as the queue says.
class WidgetPlatform : public ScriptedPlatform {
 public:
  using ScriptedPlatform::ScriptedPlatform;
  Desktop* desktop = nullptr;

  std::optional<std::string> PdfOf(const Pages& pages) override;
  Answer ShowMessage(std::string_view title, std::string_view text, MessageButtons buttons) override;
};

}  // namespace vicetoll
