// SPDX-License-Identifier: GPL-3.0-or-later
// The table over all sins: twelve rows, six columns of money, a total for each column.
//
// It has no arithmetic of its own for the sins: it reads what their workspaces, hidden or not, show. Its
// figures are a snapshot; nothing refreshes them when a workspace changes.
#pragma once

#include <array>
#include <string>

#include "charts/sins_points.h"
#include "controls/drop_down_list.h"
#include "controls/form.h"
#include "exports/sins_export.h"
#include "workspace/workspaces.h"

namespace vicetoll {

class CombinedResults : public Form {
 public:
  explicit CombinedResults(Workspaces& workspaces);

  Button* CloseButton() const override { return cmdExit_; }
  Control* FirstFocus() const override { return chkWhichSins_[0]; }
  // The totals.
  std::vector<const Control*> ResultsOf(const Control& by) const override;

  // Fills all twelve rows and the totals.
  void PopulateCombResultsText();

  // Fills the row of a sin. Its workspace's balance over both sides is brought up to date first.
  // Throws Fault(Index) for a row outside 0..11.
  void GetIndividualSinValues(SinWorkspace& workspace, int index, SideIndex pastSide, SideIndex futureSide);

  // Fills the totals from the rows that are ticked.
  void PopulateTotals();

  // What the table shows of the sins that are ticked.
  SinsAsShown TickedRows() const;
  // The right-click menu, and Ctrl+C in the whole window, copy that.
  std::string_view MenuTitle() const override { return "Edit"; }

  // The amounts that the table shows: of each sin that is ticked and has one, and the totals.
  SinFigures Figures() const;

 private:
  enum Column { kPastCost, kPastBalance, kFutureCost, kFutureBalance, kCost, kBalance, kColumns };

  struct ColumnControls {
    std::array<TextBox*, kSinCount> cells{};
    TextBox* total = nullptr;
  };

  void MakeColumns();
  void MakeTicks();
  void MakeBottom();
  void JoinTable();
  void ShowRow(int index);
  // What a cell shows for a sin that has no figure there.
  const std::string& NoData();
  std::string Money(double amount) const;
  std::string LastShownBalance(const SideControls& side, const std::string& noData) const;
  std::string Joined(const std::string& past, const std::string& future, double both,
                     const std::string& noData) const;

  Workspaces& workspaces_;
  std::array<ColumnControls, kColumns> columns_;
  std::array<CheckBox*, kSinCount> chkWhichSins_{};
  DropDownList* comDataRep_ = nullptr;
  Button* cmdUpdate_ = nullptr;
  Button* cmdExit_ = nullptr;
  std::string noData_;
};

}  // namespace vicetoll
