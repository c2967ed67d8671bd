// SPDX-License-Identifier: GPL-3.0-or-later
#include "soak/invariants.h"

#include <algorithm>
#include <vector>

#include "calendar/date_label.h"
#include "engine/side_chain.h"

namespace vicetoll {
namespace {

constexpr int kBoxes = 2 * kPeriodCount;
constexpr int kTotalBox = 0;

std::string WithSuffix(std::string_view name, Side side) {
  return std::string(name) + std::string(ControlSuffix(side));
}

bool ClicksPeriodControl(const UserAction& action, std::string_view name, Side side) {
  return action.kind == ActionKind::Click && action.control.starts_with(WithSuffix(name, side) + "(");
}

bool Presses(const UserAction& action, Side side) {
  return action.Clicks(WithSuffix("cmdSetPeriodParams", side));
}

bool ClicksRadio(const UserAction& action, Side side) {
  return ClicksPeriodControl(action, "rbnEnabledPeriod", side) ||
         ClicksPeriodControl(action, "rbnDisabledPeriod", side);
}

// Actions that bring the totals over both sides up to date: they fill the boxes of the TOTAL tab and
// write "0" into a side's total that was empty.
bool BringsTotals(const UserAction& action) {
  return action.kind == ActionKind::Tab || action.window == "frmCombRes" ||
         action.Clicks("cmdCombinedResults") || action.Clicks("cmdCumulativeFutureDateTot") ||
         action.Clicks("cmdRevealDeveloper") || action.Clicks("cmdRestoreProgram");
}

// Seen and usable, but for the tab in front.
bool InPlace(const Control& control) {
  for (const Control* c = &control; c != nullptr; c = c->Container())
    if (!c->Visible() || !c->Enabled()) return false;
  return true;
}

template <class Visit>
void ForEachBox(SinWorkspace& ws, Side side, Visit visit) {
  SideControls& c = ws.Of(side);
  for (int i = 1; i <= kBoxes; ++i) {
    visit(i, c.txtResultsPeriod(i));
    visit(i, c.txtCumulativeResultsPeriod(i));
  }
  visit(kTotalBox, *c.txtResultsTotal);
}

}  // namespace

SinWorkspace* Invariants::WorkspaceOf(const UserAction& action) const {
  for (Form* window : program_.Windows())
    if (window->Name() == action.window) return dynamic_cast<SinWorkspace*>(window);
  return nullptr;
}

void Invariants::Before(const UserAction& action) {
  violation_.reset();
  texts_.clear();
  for (Form* window : program_.Windows())
    if (auto* ws = dynamic_cast<SinWorkspace*>(window))
      for (Side side : kSides) ForEachBox(*ws, side, [&](int, TextBox& box) { texts_[&box] = box.Text(); });
  SinWorkspace* ws = WorkspaceOf(action);
  if (ws == nullptr || action.kind == ActionKind::AnswerBox) return;
  for (Side side : kSides) {
    NoteDates(*ws, side, action);
    for (int p = 1; p <= kPeriodCount; ++p)
      if (ClicksRadio(action, side)) radios_[p] = ws->Of(side).rbnEnabledPeriod(p).Value();
  }
}

// What lets dates get out of order. With yearly ("coarse") lists alone there is one thing:
//
// A future period that stops at the far end of its list leaves no month for the next one, which is offered
// all the same: a side is closed at the present, on the future side at the wrong end of time. The lists of
// the next period then run backwards, from the month behind the end to the end. Its dates may lie anywhere.
//
// All else comes of monthly ("fine") lists:
//
// A period that is seeded while a date list is fine keeps the ends that its lists had stored before, and
// these may begin ahead of the period before it. Its dates may lie anywhere, too.
//
// A date list that is rebuilt while one is fine may reach past the other date of its own period: from June
// the future's lists run eighteen months ahead; from any month of the present year that counts as near, the
// past's run up to the present; the stops of a later period begin right behind the period before it. And a
// date that was picked in a monthly list comes back as the first entry of the yearly one, or at the place
// of the other date. All of these stay behind the period before, except that in a December the whole
// present year counts as near on the future side and moves the lower end back to its January.
void Invariants::NoteDates(SinWorkspace& ws, Side side, const UserAction& action) {
  SideHistory& history = histories_[ws.Of(side).Index().Number()];
  SideControls& c = ws.Of(side);
  const bool fine = c.optFineDateStart->Value() || c.optFineDateStop->Value();
  if (side == Side::Future && action.kind == ActionKind::Tab && action.numbers[0] == kFutureTab &&
      !ws.Of(side).Record(1).PeriodSet)
    history = {};
  if (action.kind == ActionKind::Focus && fine &&
      (action.control == WithSuffix("comStart", side) || action.control == WithSuffix("comStop", side)))
    history.rebuiltFine[ws.Of(side).state.CurrentPeriod] = true;
  if (ClicksPeriodControl(action, "optTimePeriod", side)) {
    const int p = action.control[action.control.size() - 2] - '0';
    const bool seeds = p != 1 && p > ws.Of(side).state.PreviousPeriod && ws.Of(side).Record(p).PeriodFresh;
    if (seeds) {
      const std::string& previousStop = ws.Of(side).Record(p - 1).StopLabel;
      const bool atTheEnd =
          side == Side::Future && MonthsBetween(previousStop, Present(ws.GetSession()).Label(1, 75)) <= 0;
      history.seededLoose[p] = fine || atTheEnd;
      history.rebuiltFine[p] = fine;
    }
  }
}

std::optional<Violation> Invariants::After(const UserAction& action) {
  if (action.kind == ActionKind::AnswerBox || program_.Ended()) return std::nullopt;
  if (SinWorkspace* ws = WorkspaceOf(action))
    for (Side side : kSides) NoteEvaluation(*ws, side, action);
  CheckLists();
  CheckBoxes(action);
  CheckFront();
  SinWorkspace& front = program_.Current();
  for (Side side : kSides) {
    CheckPeriods(front, side);
    CheckDates(front, side);
    CheckTotal(front, side);
    CheckSetButton(front, side);
  }
  return violation_;
}

void Invariants::NoteEvaluation(SinWorkspace& ws, Side side, const UserAction& action) {
  SideHistory& history = histories_[ws.Of(side).Index().Number()];
  if (Presses(action, side) && ws.Of(side).Record(1).PeriodSet) history.evaluated = Evaluated::ByPress;
  if (!ClicksRadio(action, side) || !ws.Of(side).Record(1).PeriodSet) return;
  for (int p = 1; p <= kPeriodCount; ++p)
    if (ws.Of(side).rbnEnabledPeriod(p).Value() != radios_[p]) history.evaluated = Evaluated::ByRadio;
}

// A list's position is that of an entry with its text, and -1 only while no entry has it.
void Invariants::CheckLists() {
  for (Form* window : program_.Windows()) {
    for (const auto& control : window->Controls()) {
      const auto* list = dynamic_cast<const DropDownList*>(control.get());
      if (list == nullptr) continue;
      const bool agrees = list->Position() == -1 ? list->Find(list->Text()) == -1
                                                 : list->Position() < list->Count() &&
                                                       list->Entry(list->Position()) == list->Text();
      if (!agrees)
        Fail("position", window->Name() + " " + list->FullName() + " \"" + list->Text() + "\" at " +
                             std::to_string(list->Position()));
    }
  }
}

// Result boxes, hidden or not, are written by an evaluation of their side alone, and never emptied.
void Invariants::CheckBoxes(const UserAction& action) {
  for (Form* window : program_.Windows()) {
    auto* ws = dynamic_cast<SinWorkspace*>(window);
    if (ws == nullptr) continue;
    for (Side side : kSides) {
      ForEachBox(*ws, side, [&](int i, TextBox& box) {
        const auto before = texts_.find(&box);
        if (before == texts_.end() || before->second == box.Text()) return;
        if (box.Text().empty() || !MayWrite(*ws, side, i, action))
          Fail("box", ws->Name() + " " + box.FullName() + " from \"" + before->second + "\" to \"" +
                          box.Text() + "\"");
      });
    }
  }
}

bool Invariants::MayWrite(SinWorkspace& ws, Side side, int box, const UserAction& action) const {
  if (box > kPeriodCount || box == kTotalBox) {
    if (BringsTotals(action)) return true;
    if (box > kPeriodCount) return false;
  }
  return action.window == ws.Name() && (Presses(action, side) || ClicksRadio(action, side));
}

void Invariants::CheckFront() {
  int shown = 0;
  for (Form* window : program_.Windows())
    if (dynamic_cast<SinWorkspace*>(window) != nullptr && window->Shown()) ++shown;
  SinWorkspace& front = program_.Current();
  if (shown != 1 || !front.Shown())
    Fail("front", std::to_string(shown) + " workspaces shown, current " + front.Name());
  if (!front.cmdSwitchSins->Enabled() && !program_.Chooser().Shown())
    Fail("chooser", "no way to the chooser from " + front.Name());
}

// The periods set are the first ones of their side, and their options say so.
void Invariants::CheckPeriods(SinWorkspace& ws, Side side) {
  for (int p = 1; p <= kPeriodCount; ++p) {
    const PeriodRecord& record = ws.Of(side).Record(p);
    const std::string which = ws.Name() + " " + WithSuffix("period ", side) + " " + std::to_string(p);
    if (p > 1 && record.PeriodSet && !ws.Of(side).Record(p - 1).PeriodSet) Fail("periods set", which);
    const Option& option = ws.Of(side).optTimePeriod(p);
    if (record.PeriodSet != (option.Colour() == kGreen)) Fail("period colour", which);
    if (record.PeriodSet && !option.Enabled()) Fail("period option", which);
  }
}

void Invariants::CheckDates(SinWorkspace& ws, Side side) {
  const SideHistory& history = histories_[ws.Of(side).Index().Number()];
  const bool december = side == Side::Future && Present(ws.GetSession()).M == 12;
  for (int p = 1; p <= kPeriodCount && ws.Of(side).Record(p).PeriodSet; ++p) {
    const PeriodRecord& record = ws.Of(side).Record(p);
    const std::string dates = ws.Name() + " " + WithSuffix("period ", side) + " " + std::to_string(p) + ": " +
                              record.StartLabel + " to " + record.StopLabel;
    const bool mayTurn = history.seededLoose[p] || history.rebuiltFine[p];
    const bool mayOverlap = history.seededLoose[p] || (december && history.rebuiltFine[p]);
    if (!mayTurn && MonthsBetween(record.StartLabel, record.StopLabel) < 0) Fail("start after stop", dates);
    if (p == 1 || mayOverlap) continue;
    const std::string& previousStop = ws.Of(side).Record(p - 1).StopLabel;
    for (const std::string& date : {record.StartLabel, record.StopLabel})
      if (MonthsBetween(previousStop, date) <= 0) Fail("overlap", dates + " after " + previousStop);
  }
}

// A press adds all four boxes, disabled periods too; a radio adds what it leaves to be seen.
void Invariants::CheckTotal(SinWorkspace& ws, Side side) {
  const Evaluated evaluated = histories_[ws.Of(side).Index().Number()].evaluated;
  if (evaluated == Evaluated::Never) return;
  const SideControls& c = ws.Of(side);
  double sum = 0;
  for (int p = 1; p <= kPeriodCount; ++p) {
    // Counted boxes are the enabled ones: the identification sequence hides all, and takes none out of a sum.
    const TextBox& box = c.txtResultsPeriod(p);
    if (evaluated == Evaluated::ByPress || box.Enabled()) sum += MoneyToNumber(box.Text());
    // A press also clears what is not set.
    if (evaluated == Evaluated::ByPress && !ws.Of(side).Record(p).PeriodSet &&
        (box.Text() != "0" || c.txtCumulativeResultsPeriod(p).Text() != "0"))
      Fail("closed period", ws.Name() + " " + box.FullName() + " " + box.Text());
  }
  // As texts: a sum has no more digits than are shown. The currency may have changed since.
  const std::string expected = FormatMoney(Currency::Dollar, sum, kResultFormat);
  const std::string total =
      FormatMoney(Currency::Dollar, MoneyToNumber(c.txtResultsTotal->Text()), kResultFormat);
  if (total != expected)
    Fail("total",
         ws.Name() + " " + c.txtResultsTotal->FullName() + " " + total + ", the boxes add up to " + expected);
}

// Arrival on a side's tab or the focus of its interest list makes the set button work, so these stay
// within reach.
void Invariants::CheckSetButton(SinWorkspace& ws, Side side) {
  if (const Control* restore = ws.Find("cmdRestoreProgram"); restore != nullptr && restore->Visible()) return;
  const SideControls& c = ws.Of(side);
  if (!InPlace(*ws.SSTab_PastFutureSwitch) || !InPlace(*c.comInterestRate1))
    Fail("set button", ws.Name() + " " + c.cmdSetPeriodParams->FullName() + " cannot be enabled");
  if (!c.cmdSetPeriodParams->Visible() || !InPlace(*c.cmdSetPeriodParams->Container()))
    Fail("set button", ws.Name() + " " + c.cmdSetPeriodParams->FullName() + " cannot be seen");
}

void Invariants::Fail(const std::string& check, const std::string& detail) {
  if (!violation_) violation_ = Violation{check, detail};
}

}  // namespace vicetoll
