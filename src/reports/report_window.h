// SPDX-License-Identifier: GPL-3.0-or-later
// What the two report windows share: a report over the width of the window, three buttons below it, and a
// right-click menu that opens on both.
#pragma once

#include <functional>
#include <string>

#include "controls/form.h"
#include "reports/result_buttons.h"
#include "workspace/workspaces.h"

namespace vicetoll {

class ReportWindow : public Form {
 public:
  std::string_view MenuTitle() const override { return "Edit"; }
  Button* EscapeButton() const override { return cmdExit_; }
  Control* FirstFocus() const override { return report_; }

 protected:
  // In which the two differ. Twips.
  struct Shape {
    int height;  // at the start; both are as wide
    int smallestWidth, smallestHeight;
    int buttonsLeft;  // behind the report's left edge
    int buttonsGap;   // below the report
  };

  ReportWindow(const char* name, const char* caption, Workspaces& workspaces, ReportStyle style,
               const Shape& shape);

  // Adds buttons and menu behind the controls that are there, and gives the window its size. `report` is
  // the control that shows the report.
  void Furnish(Control& report);
  // Makes what comes after all that: additions, the last for the Tab key.
  virtual void AddMore() {}
  Button& AddButton(const char* name, const char* caption, std::function<void()> action);
  void AddMenuEntry(const char* name, const char* caption, std::function<void()> action);

  Workspaces& AllWorkspaces() const { return workspaces_; }
  Platform& GetPlatform() const { return workspaces_.GetSession().platform; }

  // What is selected goes to the clipboard.
  void Copy();

  virtual std::string Selection() const = 0;
  virtual void SelectAll() = 0;
  virtual void Print() = 0;
  // What a saved file holds.
  virtual std::string FileBytes() = 0;
  // Before the window goes.
  virtual void Leave() {}
  // Places what stands in the row of the buttons besides them. `left` is the report's edge.
  virtual void PlaceBeside(int /*left*/, int /*top*/) {}
  // The room between the buttons at the left and that at the right, and below them, in twips.
  Place RoomBetweenButtons() const;

 private:
  void PlaceControls();
  void OnResize();
  void SaveAs();
  void Exit();

  Workspaces& workspaces_;
  ReportStyle style_;
  Shape shape_;
  std::string filePath_;  // the name the save dialog holds
  Control* report_ = nullptr;
  Button* cmdPrint_ = nullptr;
  Button* cmdSaveAs_ = nullptr;
  Button* cmdExit_ = nullptr;
};

}  // namespace vicetoll
