// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/document_text.h"
#include "controls/grid.h"
#include "scenario/script.h"
#include "scenario/stage.h"

namespace vicetoll {

UserOutcome ControlStage::Focus(Control& control) { return control.UserFocuses(); }

UserOutcome ControlStage::Choose(DropDownList& list, int position) { return list.UserPicks(position); }

UserOutcome ControlStage::Click(Control& control) {
  if (auto* button = dynamic_cast<Button*>(&control)) return button->UserClicks();
  if (auto* choice = dynamic_cast<Choice*>(&control)) return choice->UserClicks();
  if (auto* panel = dynamic_cast<Panel*>(&control)) return panel->UserClicks();
  // A click on anything else does nothing.
  return control.Reachable() ? UserOutcome::Done : UserOutcome::Refused;
}

UserOutcome ControlStage::SelectTab(TabControl& tabs, int tab) { return tabs.UserSelects(tab); }

UserOutcome ControlStage::Type(Control& control, std::string_view text) {
  if (auto* list = dynamic_cast<DropDownList*>(&control)) return list->UserTypes(text);
  if (auto* document = dynamic_cast<DocumentText*>(&control)) return document->UserTypes(text);
  throw BadLine(control.FullName() + " takes no typing");
}

UserOutcome ControlStage::Resize(Form& form, int width, int height) {
  return form.UserResizes(width, height);
}

UserOutcome ControlStage::SelectText(DocumentText& document, int start, int length) {
  return document.UserSelects(start, length);
}

UserOutcome ControlStage::SelectCells(Grid& grid, const CellSpan& cells) {
  return grid.UserSelects(cells.row, cells.col, cells.rowSel, cells.colSel);
}

ControlState ControlStage::Read(Control& control) {
  ControlState state;
  state.enabled = control.Enabled();
  state.visible = control.Visible();
  if (auto* captioned = dynamic_cast<CaptionedControl*>(&control)) state.caption = captioned->Caption();
  if (auto* choice = dynamic_cast<Choice*>(&control)) {
    state.value = choice->Value();
    state.colour = choice->Colour();
  } else if (auto* list = dynamic_cast<DropDownList*>(&control)) {
    state.text = list->Text();
    state.position = list->Position();
    state.entries = list->Count();
  } else if (auto* box = dynamic_cast<TextBox*>(&control)) {
    state.text = box->Text();
  } else if (auto* tabs = dynamic_cast<TabControl*>(&control)) {
    state.tab = tabs->Tab();
  } else if (auto* grid = dynamic_cast<Grid*>(&control)) {
    state.rows = grid->RowCount();
  } else if (auto* document = dynamic_cast<DocumentText*>(&control)) {
    state.text = document->Text();
    state.length = document->Length();
  } else if (auto* chart = dynamic_cast<Chart*>(&control)) {
    state.points = chart->Count();
  }
  return state;
}

FormState ControlStage::Read(Form& form) {
  return {form.Caption(), form.Shown(), form.Width(), form.Height()};
}

std::vector<std::string> ControlStage::Entries(DropDownList& list) { return list.Entries().All(); }

std::vector<std::vector<std::string>> ControlStage::Rows(Grid& grid) {
  std::vector<std::vector<std::string>> rows(grid.RowCount());
  for (int r = 0; r < grid.RowCount(); ++r)
    for (int c = 0; c < grid.ColumnCount(); ++c) rows[r].emplace_back(grid.Cell(r, c));
  return rows;
}

CellSpan ControlStage::Selection(Grid& grid) {
  return {grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()};
}

ChartContents ControlStage::Plotted(Chart& chart) { return chart.Contents(); }

std::string ControlStage::Text(Control& control) { return Read(control).text; }

}  // namespace vicetoll
