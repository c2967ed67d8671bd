// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/document_text.h"
#include "controls/grid.h"
#include "scenario/script.h"
#include "scenario/stage.h"

namespace vicetoll {
namespace {

class ControlStage : public Stage {
 public:
  UserOutcome Focus(Control& control) override { return control.UserFocuses(); }

  UserOutcome Choose(DropDownList& list, int position) override { return list.UserPicks(position); }

  UserOutcome Click(Control& control) override {
    if (auto* button = dynamic_cast<Button*>(&control)) return button->UserClicks();
    if (auto* choice = dynamic_cast<Choice*>(&control)) return choice->UserClicks();
    if (auto* panel = dynamic_cast<Panel*>(&control)) return panel->UserClicks();
    // A click on anything else does nothing.
    return control.Reachable() ? UserOutcome::Done : UserOutcome::Refused;
  }

  UserOutcome SelectTab(TabControl& tabs, int tab) override { return tabs.UserSelects(tab); }

  UserOutcome Type(Control& control, std::string_view text) override {
    if (auto* list = dynamic_cast<DropDownList*>(&control)) return list->UserTypes(text);
    if (auto* document = dynamic_cast<DocumentText*>(&control)) return document->UserTypes(text);
    throw BadLine(control.FullName() + " takes no typing");
  }

  UserOutcome Resize(Form& form, int width, int height) override { return form.UserResizes(width, height); }

  UserOutcome SelectText(DocumentText& document, int start, int length) override {
    return document.UserSelects(start, length);
  }

  UserOutcome SelectCells(Grid& grid, const CellSpan& cells) override {
    return grid.UserSelects(cells.row, cells.col, cells.rowSel, cells.colSel);
  }

  ControlState Read(Control& control) override {
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

  FormState Read(Form& form) override { return {form.Caption(), form.Shown(), form.Width(), form.Height()}; }

  std::vector<std::string> Entries(DropDownList& list) override { return list.Entries().All(); }

  std::vector<std::vector<std::string>> Rows(Grid& grid) override {
    std::vector<std::vector<std::string>> rows(grid.RowCount());
    for (int r = 0; r < grid.RowCount(); ++r)
      for (int c = 0; c < grid.ColumnCount(); ++c) rows[r].emplace_back(grid.Cell(r, c));
    return rows;
  }

  CellSpan Selection(Grid& grid) override { return {grid.Row(), grid.Col(), grid.RowSel(), grid.ColSel()}; }

  ChartContents Plotted(Chart& chart) override { return chart.Contents(); }

  std::string Text(Control& control) override { return Read(control).text; }
};

}  // namespace

std::unique_ptr<Stage> MakeControlStage() { return std::make_unique<ControlStage>(); }

}  // namespace vicetoll
