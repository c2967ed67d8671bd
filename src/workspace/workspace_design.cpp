// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/workspace_design.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace vicetoll {
namespace {

// Makes the controls of one window from their rows.
class Designer {
 public:
  explicit Designer(SinWorkspace& workspace) : ws_(workspace), sin_(workspace.Sin()) {}

  void Make(const DesignSection& section) {
    section_ = &section;
    const std::span<const ControlRow> rows = section.rows;
    for (std::size_t i = 0, end; i < rows.size(); i = end) {
      for (end = i + 1; end < rows.size() && rows[i].count > 0 && rows[end].count == rows[i].count;) ++end;
      MakeRun(rows.subspan(i, end - i));
    }
  }

  // Comes last, as a label may be made after what it names.
  void NameControls() const {
    for (const Unnamed& unnamed : unnamed_) NameControl(unnamed);
  }

 private:
  [[noreturn]] void Refuse(const ControlRow& row, std::string_view why) const {
    throw std::logic_error(ws_.Name() + ": the control " + std::string(row.name.Pattern()) + ": " +
                           std::string(why) + ".");
  }

  struct Unnamed {
    const ControlRow& row;
    Control& control;
    Spot at;
  };

  std::string_view FillIn(std::string& room, const ControlRow& row, const Words& words,
                          const Spot& at) const {
    try {
      return words.FillIn(room, at);
    } catch (const std::logic_error& error) {
      Refuse(row, error.what());
    }
  }

  Spot SpotOf(const ControlRow& row, int element) const {
    const int index = row.count == 0 ? kNoIndex : row.first[section_->side.value_or(Side::Past)] + element;
    return {sin_, section_->side, section_->page, index};
  }

  // A row, or rows of arrays of one length.
  void MakeRun(std::span<const ControlRow> run) {
    for (int element = 0; element < std::max(run.front().count, 1); ++element)
      for (const ControlRow& row : run)
        if (row.StandsIn(sin_, section_->side)) MakeControl(row, element);
  }

  void MakeControl(const ControlRow& row, int element) {
    const Spot at = SpotOf(row, element);
    Control& control = Add(row, at);
    if (!row.labels[0].IsEmpty()) unnamed_.push_back({row, control, at});
    if (row.enter != nullptr)
      if (const char* complaint = row.enter(ws_, section_->side, control)) Refuse(row, complaint);
    Put(row, control, element);
    if (!row.tip.IsEmpty() && (row.count == 0 || at.index >= row.firstTip)) {
      std::string room;
      control.SetToolTip(FillIn(room, row, row.tip, at));
    }
    control.SetEnabled(!row.disabled);
    control.SetVisible(!row.hidden);
    if (row.kind == ControlKind::Option || row.kind == ControlKind::Radio)
      Prepare(row, static_cast<Choice&>(control));
    if (row.shownText != nullptr) Show(row, control);
    if (row.align != Label::Align::Left) Require<Label>(row, control).SetAlign(row.align);
    if (!row.pages[0].empty())
      Require<TabControl>(row, control).SetPageCaptions({row.pages.begin(), row.pages.end()});
  }

  Control& Add(const ControlRow& row, const Spot& at) {
    std::string room;
    Control* const container = ContainerOf(row, at);
    Control::Identity identity{std::string(FillIn(room, row, row.name, at)), at.index, container};
    if (ws_.Find(identity.name, identity.index) != nullptr) Refuse(row, "there is one of that name already");
    // The panels are an array over the tabs.
    if (container != nullptr && container->Kind() == ControlKind::TabControl)
      identity.page = at.index == kNoIndex ? at.page : at.index;
    const std::string_view caption = FillIn(room, row, row.caption, at);
    switch (row.kind) {
      case ControlKind::List:
        return ws_.Add<DropDownList>(std::move(identity));
      case ControlKind::TextBox:
        return ws_.Add<TextBox>(std::move(identity));
      case ControlKind::Button:
        return ws_.Add<Button>(std::move(identity), caption);
      case ControlKind::Option:
        return ws_.Add<Option>(std::move(identity), caption);
      case ControlKind::Radio:
        return ws_.Add<Radio>(std::move(identity), caption);
      case ControlKind::Label:
        return ws_.Add<Label>(std::move(identity), caption);
      case ControlKind::Frame:
        return ws_.Add<Frame>(std::move(identity), caption);
      case ControlKind::TabControl:
        return ws_.Add<TabControl>(std::move(identity));
      case ControlKind::Panel:
        return ws_.Add<Panel>(std::move(identity));
      default:
        Refuse(row, "a workspace has no controls of that kind");
    }
  }

  Control* ContainerOf(const ControlRow& row, const Spot& at) {
    std::string room;
    const std::string_view name = FillIn(room, row, row.container, at);
    if (name.empty()) return nullptr;
    // Most rows stand where the one before does.
    if (name == lastContainerName_) return lastContainer_;
    Control* container = ws_.Find(name);
    if (container == nullptr) Refuse(row, "its container " + std::string(name) + " is not there");
    const ControlKind kind = container->Kind();
    if (kind != ControlKind::Frame && kind != ControlKind::Panel && kind != ControlKind::TabControl)
      Refuse(row, "its container " + std::string(name) + " holds no controls");
    lastContainerName_ = name;
    return lastContainer_ = container;
  }

  void Put(const ControlRow& row, Control& control, int element) const {
    Place place = row.place;
    for (const auto& other : row.otherPlaces)
      if (other.sins != nullptr && other.sins(sin_)) place = other.place;
    place.left += element % row.columns * row.stepRight;
    place.top += element / row.columns * row.stepDown;
    control.SetPlace(place);
  }

  // The choices of one frame are a group, of which the first that is to be on is on.
  void Prepare(const ControlRow& row, Choice& choice) {
    ChoiceGroup*& group = groups_[choice.Container()];
    if (group == nullptr) group = &ws_.AddGroup();
    choice.JoinGroup(*group);
    if (row.colour != -1) choice.SetColour(row.colour);
    if (row.on == nullptr || !row.on(sin_)) return;
    for (const Choice* member : group->Members())
      if (member->Value()) return;
    choice.SetValue(true);
  }

  void Show(const ControlRow& row, Control& control) const {
    if (row.kind == ControlKind::List)
      Require<DropDownList>(row, control).SetText(row.shownText);
    else
      Require<TextBox>(row, control).SetText(row.shownText);
  }

  void NameControl(const Unnamed& unnamed) const {
    const auto& [row, control, at] = unnamed;
    std::vector<const CaptionedControl*> labels;
    std::string room;
    for (const Words& words : row.labels) {
      if (words.IsEmpty()) continue;
      const std::string_view name = FillIn(room, row, words, at);
      const Control* label = ws_.Find(name);
      if (label == nullptr) Refuse(row, "its label " + std::string(name) + " is not there");
      labels.push_back(&Require<const CaptionedControl>(row, *label));
    }
    control.SetLabelledBy(std::move(labels));
  }

  template <class T, class From>
  T& Require(const ControlRow& row, From& control) const {
    auto* wanted = dynamic_cast<T*>(&control);
    if (wanted == nullptr) Refuse(row, control.FullName() + " is of the wrong kind");
    return *wanted;
  }

  SinWorkspace& ws_;
  const SinRow& sin_;
  const DesignSection* section_ = nullptr;
  Control* lastContainer_ = nullptr;
  std::string lastContainerName_;
  std::map<const Control*, ChoiceGroup*> groups_;
  std::vector<Unnamed> unnamed_;
};

}  // namespace

void DesignWorkspace(SinWorkspace& workspace, std::span<const DesignSection> design) {
  Designer designer(workspace);
  for (const DesignSection& section : design) designer.Make(section);
  designer.NameControls();
}

void FitPanels(SinWorkspace& workspace) {
  constexpr int kHead = 900, kMargins = 310;
  const Place tab = workspace.SSTab_PastFutureSwitch->GetPlace();
  for (int i = kPastTab; i <= kTotalTab; ++i) {
    Panel& panel = workspace.Get<Panel>("SSPanel_BackColor", i);
    panel.SetPlace({panel.GetPlace().left, kHead, tab.width - kMargins, tab.height - kHead});
  }
}

}  // namespace vicetoll
