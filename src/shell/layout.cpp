#include "shell/layout.h"

#include "shell/design_places.h"
#include "shell/strip.h"
#include "workspace/workspace_design.h"

namespace vicetoll {
namespace {

constexpr int kStretchedWidth = 16000;
constexpr int kStretchedHeight = 15000;
constexpr int kColumnStep = 2550;

Control& Bottom(SinWorkspace& ws, const char* name) { return ws.Get<Control>(name); }

void SetTop(Control& control, int top) {
  Place place = control.GetPlace();
  place.top = top;
  control.SetPlace(place);
}

void SetLeft(Control& control, int left) {
  Place place = control.GetPlace();
  place.left = left;
  control.SetPlace(place);
}

void SetSize(Control& control, int width, int height) {
  Place place = control.GetPlace();
  place.width = width;
  place.height = height;
  control.SetPlace(place);
}

// Left edges from left to right, tops from the window's bottom. Sizes stay.
void PlaceBottomRow(SinWorkspace& ws) {
  const int H = ws.Height();
  Control& switchSins = *ws.cmdSwitchSins;
  Control& combined = Bottom(ws, "cmdCombinedResults");
  Control& tips = Bottom(ws, "frmToolTipOnOff");
  Control& exit = *ws.cmdExit;
  Control& help = Bottom(ws, "cmdHelp");
  Control& faq = Bottom(ws, "cmdFaq");
  const auto fromBottom = [H](const Control& control, int margin) {
    return H - control.GetPlace().height - margin;
  };
  SetLeft(switchSins, 0);
  SetTop(switchSins, fromBottom(switchSins, 600));
  SetLeft(combined, switchSins.GetPlace().left + kColumnStep);
  SetTop(combined, fromBottom(combined, 600));
  SetLeft(tips, combined.GetPlace().left + kColumnStep);
  SetTop(tips, combined.GetPlace().top - 50);
  SetLeft(exit, tips.GetPlace().left + 2900);
  SetTop(exit, fromBottom(exit, 600));
  SetLeft(help, exit.GetPlace().left + 2225);
  SetTop(help, fromBottom(help, 1025));
  SetLeft(faq, help.GetPlace().left);
  SetTop(faq, help.GetPlace().top + 450);
  PlaceStrip(ws);
}

void SizeBottomRow(SinWorkspace& ws) {
  Control& exit = *ws.cmdExit;
  SetSize(*ws.cmdSwitchSins, 2500, 800);
  SetSize(Bottom(ws, "cmdCombinedResults"), 2500, 800);
  SetSize(Bottom(ws, "frmToolTipOnOff"), 2800, Bottom(ws, "frmToolTipOnOff").GetPlace().height);
  SetSize(exit, 2500 - 300, 800 + 75);
  for (const char* name : {"cmdHelp", "cmdFaq"})
    SetSize(Bottom(ws, name), exit.GetPlace().width - 550, exit.GetPlace().height / 2);
}

// ---- The design ----

// The names that differ between sins or do not end in the control's suffix of their side.
std::string SpecialName(const SinWorkspace& ws, Side side, std::string_view name) {
  const SideControls& c = ws.Of(side);
  const SinRow& sin = ws.Sin();
  const bool past = side == Side::Past;
  const std::string suffix(ControlSuffix(side));
  if (name == "<time period frame>") return past ? std::string(sin.timePeriodFrameName) : "SSFrame1";
  if (name == "<enable frame>") return std::string(sin.enableFrameName) + suffix;
  if (name == "<first unit>") return c.firstUnit->Name();
  if (name == "<second unit>") return c.secondUnit->Name();
  if (name == "<quantity>") return c.quantity->Name();
  if (name == "<quantity label>") return c.quantityLabel->Name();
  if (name == "<cost label>") return c.costLabel != nullptr ? c.costLabel->Name() : std::string();
  if (name == "<percent label>") return c.percentLabel->Name();
  if (name == "<total label>") return past ? "lblResultsPastTotal" : std::string(sin.futureTotalLabelName);
  if (name == "<out of pocket label>") return "lblIndividualPeriod" + std::string(OperationSuffix(side));
  if (name == "<cumulative label>") return "lblCumulativePeriods" + std::string(OperationSuffix(side));
  if (name == "<summary out of pocket label>") return past ? "Label2" : "Label6";
  return past ? "Label1" : "Label4";  // the summary's cumulative heading
}

std::string NameOnSide(const SinWorkspace& ws, Side side, std::string_view name) {
  if (name.starts_with('<')) return SpecialName(ws, side, name);
  if (name == "lblTo" || name == "cmdOrvaneWebsite") return std::string(name);
  return std::string(name) + std::string(ControlSuffix(side));
}

// Sins differ in their controls: a row whose control is not there says nothing.
void PlaceRow(SinWorkspace& ws, const std::string& name, const DesignPlace& row) {
  for (int index = row.first; index <= row.last; ++index) {
    Control* control = ws.Find(name, index);
    if (control == nullptr) continue;
    Place place = row.place;
    place.left += (index - row.first) * row.right;
    place.top += (index - row.first) * row.down;
    control->SetPlace(place);
  }
}

// The labels that name one control, by its index if they are arrays too. A box on the TOTAL tab is headed
// by the summary's headings.
std::vector<const CaptionedControl*> LabelsFor(SinWorkspace& ws, const Side* side, const Control& control,
                                               const NamedBy& row) {
  std::vector<const CaptionedControl*> labels;
  for (std::string_view label : {row.label, row.secondLabel}) {
    if (label.empty()) continue;
    std::string name(label);
    if (side != nullptr) {
      const bool summary = control.Index() > kPeriodCount;
      if (summary && label == "<out of pocket label>") name = "<summary out of pocket label>";
      if (summary && label == "<cumulative label>") name = "<summary cumulative label>";
      name = NameOnSide(ws, *side, name);
    }
    Control* found = ws.Find(name, control.Index());
    if (found == nullptr) found = ws.Find(name, kNoIndex);
    if (const auto* captioned = dynamic_cast<CaptionedControl*>(found)) labels.push_back(captioned);
  }
  return labels;
}

void NameRow(SinWorkspace& ws, const Side* side, const NamedBy& row) {
  const std::string name = side != nullptr ? NameOnSide(ws, *side, row.name) : std::string(row.name);
  for (Control* control : ws.FindAll(name)) control->SetLabelledBy(LabelsFor(ws, side, *control, row));
}

// Headings stand over right-aligned figures.
void AlignHeadings(SinWorkspace& ws, Side side) {
  for (std::string_view heading : {"<out of pocket label>", "<cumulative label>",
                                   "<summary out of pocket label>", "<summary cumulative label>"})
    ws.Get<Label>(SpecialName(ws, side, heading)).SetAlign(Label::Align::Right);
}

}  // namespace

void PlaceDesign(SinWorkspace& ws) {
  ws.Resize(kWindowWidth, kWindowHeight);
  ws.SSTab_PastFutureSwitch->SetPlace({0, 0, 11990, 8950});
  for (int i = kPastTab; i <= kTotalTab; ++i) ws.Get<Panel>("SSPanel_BackColor", i).SetPlace({150, 0, 0, 0});
  FitPanels(ws);
  for (const DesignPlace& row : SinglePlaces()) PlaceRow(ws, std::string(row.name), row);
  for (const NamedBy& row : SingleNames()) NameRow(ws, nullptr, row);
  for (Side side : kSides) {
    for (const auto& rows : {SidePlaces(), CostPlacesOf(ws.Class()), SummaryPlaces()})
      for (const DesignPlace& row : rows) PlaceRow(ws, NameOnSide(ws, side, row.name), row);
    for (const NamedBy& row : SideNames()) NameRow(ws, &side, row);
    AlignHeadings(ws, side);
  }
  for (int p = 1; p <= kPeriodCount; ++p) {
    ws.lblTo(p + kPeriodCount).SetPlace(ws.lblTo(p).GetPlace());
    for (const int to : {p, p + kPeriodCount}) ws.lblTo(to).SetAlign(Label::Align::Centre);
  }
  SizeBottomRow(ws);
  PlaceBottomRow(ws);
}

void ApplyFormLayout(SinWorkspace& ws) {
  ws.Resize(kWindowWidth, kWindowHeight);
  SizeBottomRow(ws);
  PlaceBottomRow(ws);
  FitPanels(ws);
  ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
}

void PlaceWorkspaceControls(SinWorkspace& ws) {
  const bool extended = ws.cmdEuro != nullptr && ws.cmdEuro->Visible();
  const int ownHeight = kWindowHeight + (extended ? kEuroRow : 0);
  if (ws.GetWindowState() == WindowState::Normal) {
    if (ws.Width() > kStretchedWidth || ws.Width() < kWindowWidth) ws.Resize(kWindowWidth, ownHeight);
    if (ws.Height() > kStretchedHeight || ws.Height() < kWindowHeight) ws.Resize(kWindowWidth, ownHeight);
  }
  PlaceBottomRow(ws);
  PlaceEuroButton(ws);
}

void PlaceEuroButton(SinWorkspace& ws) {
  if (ws.cmdEuro == nullptr) return;
  const Place switchSins = ws.cmdSwitchSins->GetPlace();
  Place place = ws.cmdEuro->GetPlace();
  place.left = switchSins.left;
  place.top = ws.Height() - place.height - switchSins.height - 700;
  ws.cmdEuro->SetPlace(place);
}

void PlaceIdentification(SinWorkspace& ws) {
  Control& restore = Bottom(ws, "cmdRestoreProgram");
  const Place exit = ws.cmdExit->GetPlace();
  restore.SetPlace({exit.left, exit.top - 1500, exit.width, exit.height - 300});
  restore.SetVisible(false);
  const RevealSquare& square = *ws.Sin().revealSquare;
  const Place panel = ws.Get<Panel>("SSPanel_BackColor", square.tab).GetPlace();
  ws.Get<Button>("cmdRevealDeveloper")
      .SetPlace({panel.width + square.right, panel.height + square.below, 60, 60});
}

}  // namespace vicetoll
