// SPDX-License-Identifier: GPL-3.0-or-later
// What a scenario is played on: the bare controls, or widgets that show them.
//
// A stage does what a user does and reads what the user would see. Both stages run the same program; only
// the hands and the eyes differ.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "controls/chart.h"
#include "controls/document_text.h"
#include "controls/drop_down_list.h"
#include "controls/form.h"
#include "controls/grid.h"

namespace vicetoll {

// What is seen of a control. A stage fills what its kind has.
struct ControlState {
  std::string text;     // list, text box
  std::string caption;  // captioned controls
  int position = -1;    // list
  int entries = 0;      // list
  bool value = false;   // choices
  int colour = -1;      // option
  int tab = 0;          // tab control
  int rows = 0;         // grid
  int length = 0;       // document text
  int points = 0;       // chart: its months or bars
  bool enabled = true;
  bool visible = true;
};

struct FormState {
  std::string caption;
  bool shown = false;
  int width = 0, height = 0;  // twips
};

// Selected cells, by the numbers of the grid.
struct CellSpan {
  int row = 0, col = 0, rowSel = 0, colSel = 0;
};

class Stage {
 public:
  virtual ~Stage() = default;

  // Hands.
  virtual UserOutcome Focus(Control& control) = 0;
  virtual UserOutcome Choose(DropDownList& list, int position) = 0;
  virtual UserOutcome Click(Control& control) = 0;
  virtual UserOutcome SelectTab(TabControl& tabs, int tab) = 0;
  virtual UserOutcome Type(Control& control, std::string_view text) = 0;
  virtual UserOutcome Resize(Form& form, int width, int height) = 0;
  virtual UserOutcome SelectText(DocumentText& document, int start, int length) = 0;
  virtual UserOutcome SelectCells(Grid& grid, const CellSpan& cells) = 0;

  // Eyes.
  virtual ControlState Read(Control& control) = 0;
  virtual FormState Read(Form& form) = 0;
  virtual std::vector<std::string> Entries(DropDownList& list) = 0;
  virtual std::string Text(Control& control) = 0;  // of a text box, a list or a document text
  virtual std::vector<std::vector<std::string>> Rows(Grid& grid) = 0;  // heading first, eleven cells each
  virtual CellSpan Selection(Grid& grid) = 0;
  virtual ChartContents Plotted(Chart& chart) = 0;
};

// The bare controls.
std::unique_ptr<Stage> MakeControlStage();

}  // namespace vicetoll
