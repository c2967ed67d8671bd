// SPDX-License-Identifier: GPL-3.0-or-later
// The window of one sin: three tabs, PAST, FUTURE and TOTAL, over one set of rules.
//
// There is one class and twelve instances; what differs is the sin's row of the catalogue. The two sides
// are one code: it is handed the WorkspaceSide it is to work on. This header has the state; the rules stand
// in the files named after them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>

#include "base/fault.h"
#include "base/side.h"
#include "controls/drop_down_list.h"
#include "controls/form.h"
#include "sins/catalogue.h"
#include "workspace/session.h"

namespace vicetoll {

// The height by which Smoking's window makes room for its euro button, in twips.
inline constexpr int kEuroRow = 750;

enum Tab { kPastTab = 0, kFutureTab = 1, kTotalTab = 2 };
inline constexpr int kTabCount = 3;

// An array of controls indexed 1..N, as the periods are. Throws Fault(Index) outside.
template <class T, int N>
class ControlArray {
 public:
  T& operator()(int index) const { return *elements_[Place(index)]; }
  bool Has(int index) const { return elements_[Place(index)] != nullptr; }
  void Set(int index, T& control) { elements_[Place(index)] = &control; }

 private:
  static std::size_t Place(int index) {
    if (index < 1 || index > N) throw Fault(FaultKind::Index, "A control array has no such element.");
    return static_cast<std::size_t>(index - 1);
  }

  std::array<T*, N> elements_{};
};

// The controls of one side that the rules reach, named as the vocabulary names them without the side.
// Those that only some sins have are nullptr in the others.
struct SideControls {
  DropDownList* comStart = nullptr;
  DropDownList* comStop = nullptr;
  Option* optFineDateStart = nullptr;
  Option* optCourseDateStart = nullptr;
  Option* optFineDateStop = nullptr;
  Option* optCourseDateStop = nullptr;
  Frame* frmSetStart = nullptr;
  Frame* frmSetStop = nullptr;
  Frame* frmDaily = nullptr;
  Frame* frmCostChange = nullptr;
  Frame* frmRates = nullptr;

  // Smoking: OptPacksPerDay and OptCigsPerDay; the others: optPerDay and optPerMonth.
  Option* firstUnit = nullptr;
  Option* secondUnit = nullptr;
  // comPacksPerDay, comPerPeriod or comCostof.
  DropDownList* quantity = nullptr;
  DropDownList* comCigsPerDay = nullptr;  // Smoking; in Drinking it stands there unused
  Label* quantityLabel = nullptr;         // lblSmokesPerDay ...; in the flat-rate class lblCostOf

  Option* OptCigPercentCostIncrease = nullptr;
  Option* OptCigInitialFinalCostIncrease = nullptr;
  DropDownList* comInitialCost = nullptr;
  DropDownList* comFinalCost = nullptr;
  DropDownList* comSubCost = nullptr;
  DropDownList* comPercentIncrease = nullptr;
  Label* costLabel = nullptr;  // lblCigCost ...
  Label* percentLabel = nullptr;

  DropDownList* comInterestRate1 = nullptr;
  DropDownList* comInflationRate1 = nullptr;

  ControlArray<Frame, 4> frmEnabledDisabledPeriod;
  ControlArray<Radio, 4> rbnEnabledPeriod;
  ControlArray<Radio, 4> rbnDisabledPeriod;
  ControlArray<Option, 4> optTimePeriod;
  Button* cmdSetPeriodParams = nullptr;

  // Positions 1..4 on the side's tab, 5..8 on the TOTAL tab. These texts are the memory of the results.
  ControlArray<TextBox, 8> txtResultsPeriod;
  ControlArray<TextBox, 8> txtCumulativeResultsPeriod;
  TextBox* txtResultsTotal = nullptr;
  TextBox* txtResultsTotalSummary = nullptr;
  ControlArray<Label, 4> lblFirstDate;
  ControlArray<Label, 4> lblLastDate;

  // The result buttons: of the side's tab and of the TOTAL tab.
  Button* cmdAdvResultsSpd = nullptr;
  Button* cmdAdvResultsDoc = nullptr;
  Button* cmdAdvResultsSpdSummary = nullptr;
  Button* cmdAdvResultsDocSummary = nullptr;
  std::array<Button*, 4> ResultButtons() const {
    return {cmdAdvResultsDoc, cmdAdvResultsSpd, cmdAdvResultsDocSummary, cmdAdvResultsSpdSummary};
  }
};

// The fields of a side that steps and reports keep between events.
struct SideState {
  int CurrentPeriod = 0;   // on screen
  int PreviousPeriod = 0;  // selected before it
  // Where the figure at the chosen future date starts: the stop of the last period that counts.
  std::string BeginManualDate;
};

class SinWorkspace;

// One side of a workspace: its controls, what it keeps between events, and the way to its records. It belongs
// to its workspace, and those who work on one side are handed it by reference.
class WorkspaceSide : public SideControls {
 public:
  WorkspaceSide(SinWorkspace& ws, Side which) : ws_(ws), which_(which) {}
  WorkspaceSide(const WorkspaceSide&) = delete;
  WorkspaceSide& operator=(const WorkspaceSide&) = delete;

  SinWorkspace& Workspace() { return ws_; }
  const SinWorkspace& Workspace() const { return ws_; }
  Side Which() const { return which_; }
  bool IsPast() const { return which_ == Side::Past; }
  // Its number in the store, under which its own records are. Operations that take a SideIndex beside a side
  // read what counts under that number, and all else under the side's own.
  SideIndex Index() const;
  PeriodRecord& Record(int period) const { return Store().At(period, Index()); }

  // Of the workspace.
  Session& GetSession() const;
  PeriodStore& Store() const { return GetSession().store; }
  const SinRow& Sin() const;
  CostClass Class() const { return Sin().costClass; }
  std::string Money(double value, std::string_view format) const;

  SideState state;

 private:
  SinWorkspace& ws_;
  Side which_;
};

// What the figure at a future date is reckoned with, as the three lists of the TOTAL tab show it.
struct FutureDateTerms {
  std::string date, interest, inflation;  // a label, and percent a year: "5%"
  bool operator==(const FutureDateTerms&) const = default;
};

// For the result buttons: which were enabled when a results window opened, in the order
// Past, Fut, SummaryPast, SummaryFut, SummaryTot.
struct ResultButtonFlags {
  bool Past = false, Fut = false, SummaryPast = false, SummaryFut = false, SummaryTot = false;
};

class SinWorkspace : public Form {
 public:
  // Makes all controls in their design state; loads nothing.
  SinWorkspace(Session& session, int position);

  Button* CloseButton() const override { return cmdExit; }
  // It ends the program: a key that people press to get rid of something must not.
  Button* EscapeButton() const override { return nullptr; }
  // Of a set button the boxes of the period in hand and the total.
  std::vector<const Control*> ResultsOf(const Control& by) const override;
  bool SharesPlace() const override { return true; }

  Session& GetSession() const { return session_; }
  PeriodStore& Store() const { return session_.store; }
  Platform& GetPlatform() const { return session_.platform; }
  const SinRow& Sin() const { return sin_; }
  int Position() const { return position_; }
  CostClass Class() const { return sin_.costClass; }

  WorkspaceSide& Of(Side side) { return sides_[static_cast<std::size_t>(side)]; }
  const WorkspaceSide& Of(Side side) const { return sides_[static_cast<std::size_t>(side)]; }

  // Takes over all that another workspace of the same sin shows and remembers.
  void TakeStateOf(const SinWorkspace& other);

  // Money in the currency of the run.
  std::string Money(double value, std::string_view format) const;

  TabControl* SSTab_PastFutureSwitch = nullptr;
  ControlArray<Label, 8> lblTo;
  TextBox* txtResultsTotalSummaryTot = nullptr;
  TextBox* txtCumulativeResultsTotalSummaryTot = nullptr;
  TextBox* txtCumulativeFutureDateTot = nullptr;
  DropDownList* comCumulativeFutureDateTot = nullptr;
  DropDownList* comInterestRateFutureDateTot = nullptr;
  DropDownList* comInflationRateFutureDateTot = nullptr;
  Button* cmdCumulativeFutureDateTot = nullptr;
  Button* cmdAdvResultsSpdSummaryTot = nullptr;
  Button* cmdAdvResultsDocSummaryTot = nullptr;
  Button* cmdSwitchSins = nullptr;
  Button* cmdExit = nullptr;
  Button* cmdEuro = nullptr;  // Smoking only

  // Whose start labels a report uses, and what it shows: 1 past, 2 future, 3 both.
  std::int16_t FuturePast_Flag = 0;
  // The report being built: rows so far, and its two running sums.
  std::int16_t CurrentIndexSub = 0;
  double CurrentCumulativeCost = 0;
  double CurrentCumulativeCostWithInterest = 0;
  // The identification sequence was shown and undone: its button stays hidden.
  bool identificationOver = false;
  // What the figure at a future date was last reckoned with; none while it never was.
  std::optional<FutureDateTerms> evaluatedAt;
  ResultButtonFlags cmdAdvResultsSpd_Flag;
  ResultButtonFlags cmdAdvResultsDoc_Flag;

 private:
  Session& session_;
  int position_;
  const SinRow& sin_;
  std::array<WorkspaceSide, 2> sides_{WorkspaceSide(*this, Side::Past), WorkspaceSide(*this, Side::Future)};
};

inline SideIndex WorkspaceSide::Index() const { return SideIndexOf(ws_.Position(), which_); }
inline Session& WorkspaceSide::GetSession() const { return ws_.GetSession(); }
inline const SinRow& WorkspaceSide::Sin() const { return ws_.Sin(); }
inline std::string WorkspaceSide::Money(double value, std::string_view format) const {
  return ws_.Money(value, format);
}

}  // namespace vicetoll
