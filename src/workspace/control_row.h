// SPDX-License-Identifier: GPL-3.0-or-later
// One control of a workspace's window, whole in one row: what it is, who has it, where it stands, what it
// says and shows, what explains and names it, and by which field the rules reach it.
#pragma once

#include <optional>
#include <type_traits>

#include "workspace/sin_workspace.h"
#include "workspace/words.h"

namespace vicetoll {

// A number that differs between the sides.
struct Turn {
  constexpr Turn() = default;
  constexpr Turn(int both) : past(both), future(both) {}
  constexpr Turn(int pastTurn, int futureTurn) : past(pastTurn), future(futureTurn) {}
  constexpr int operator[](Side side) const { return side == Side::Past ? past : future; }

  int past = 0, future = 0;
};

// Enters a control in a field of the workspace. Says what is wrong with it, nullptr if nothing is.
using FieldEntry = const char* (*)(SinWorkspace&, std::optional<Side>, Control&);

namespace fields {

template <class Owner, class T>
Owner OwnerOf(T Owner::*);

template <class T>
const char* Enter(T*& field, Control& control) {
  if (field != nullptr) return "its field holds another control";
  field = dynamic_cast<T*>(&control);
  return field == nullptr ? "its field is of another kind" : nullptr;
}

template <class T, int N>
const char* Enter(ControlArray<T, N>& field, Control& control) {
  if (control.Index() < 1 || control.Index() > N) return "its field has no such element";
  if (field.Has(control.Index())) return "its field holds another control";
  auto* element = dynamic_cast<T*>(&control);
  if (element == nullptr) return "its field is of another kind";
  field.Set(control.Index(), *element);
  return nullptr;
}

template <auto Field>
const char* EnterIn(SinWorkspace& ws, std::optional<Side> side, Control& control) {
  if constexpr (std::is_same_v<decltype(OwnerOf(Field)), SideControls>) {
    if (!side) return "its field belongs to a side, and it stands on none";
    return Enter(ws.Of(*side).*Field, control);
  } else {
    return Enter(ws.*Field, control);
  }
}

}  // namespace fields

// Whether a sin has the control.
using HasControl = bool (*)(const SinRow&);

class ControlRow {
  // A changed copy. It stands first, since some compilers read the bodies in order and need this one at once.
  template <class Change>
  constexpr ControlRow With(Change change) const {
    ControlRow row = *this;
    change(row);
    return row;
  }

 public:
  // In twips relative to the container, as everywhere; no container is the window itself. The container's
  // name is whole: with its index where it is an element of an array.
  constexpr ControlRow(ControlKind kindOf, Words nameOf, Words containerOf, Place placeOf,
                       Words captionOf = {})
      : kind(kindOf), name(nameOf), container(containerOf), place(placeOf), caption(captionOf) {}

  // A control array: so many elements from an index on, `right` and `down` apart, so many in a line. Rows
  // of arrays of one length that follow each other are made across: all first elements, then all second.
  constexpr ControlRow Array(Turn firstIndex, int elements, int right, int down, int inALine = 1) const {
    return With([=](ControlRow& row) {
      row.first = firstIndex, row.count = elements;
      row.stepRight = right, row.stepDown = down, row.columns = inALine;
    });
  }

  constexpr ControlRow OnlyIn(HasControl sins) const {
    return With([=](ControlRow& row) { row.onlyIn = sins; });
  }
  constexpr ControlRow OnlyOn(Side side) const {
    return With([=](ControlRow& row) { row.onlyOn = side; });
  }
  // Where it stands in sins of that kind.
  constexpr ControlRow At(HasControl sins, Place there) const {
    return With([=](ControlRow& row) {
      (row.otherPlaces[0].sins == nullptr ? row.otherPlaces[0] : row.otherPlaces[1]) = {sins, there};
    });
  }

  // The field by which the rules reach it.
  template <auto Field>
  constexpr ControlRow Is() const {
    return With([](ControlRow& row) { row.enter = fields::EnterIn<Field>; });
  }

  // Whose captions name it to those who cannot see where it stands, in this order: whole names.
  constexpr ControlRow NamedBy(Words label, Words secondLabel = {}) const {
    return With([=](ControlRow& row) { row.labels[0] = label, row.labels[1] = secondLabel; });
  }

  // The tool tip; of an array, from that element on.
  constexpr ControlRow Tip(Words text, int firstElement = 1) const {
    return With([=](ControlRow& row) { row.tip = text, row.firstTip = firstElement; });
  }

  // The balloon, which hangs at all elements of that name, also those of another row. Balloons are
  // attached in the order of their turns, and of the table where these are equal. A control may have two:
  // it shows the later one.
  constexpr ControlRow Balloon(Turn turn, BySide text) const {
    return With([=](ControlRow& row) {
      (row.balloons[0].text.past.empty() ? row.balloons[0] : row.balloons[1]) = {turn, text};
    });
  }

  // When it fades away in the identification sequence, with all elements of that name: some do twice. The
  // future side's controls go kFutureFades later.
  constexpr ControlRow Fades(int turn, int secondTurn = 0) const {
    return With([=](ControlRow& row) { row.fades[0] = turn, row.fades[1] = secondTurn; });
  }

  // How it starts: the choice of its group that is on (of an array, the first element), text, colour,
  // alignment. Without these a control is open, empty and left-aligned, a choice off.
  constexpr ControlRow On(HasControl sins = [](const SinRow&) { return true; }) const {
    return With([=](ControlRow& row) { row.on = sins; });
  }
  constexpr ControlRow Disabled() const {
    return With([](ControlRow& row) { row.disabled = true; });
  }
  constexpr ControlRow Hidden() const {
    return With([](ControlRow& row) { row.hidden = true; });
  }
  constexpr ControlRow Shows(const char* words) const {
    return With([=](ControlRow& row) { row.shownText = words; });
  }
  constexpr ControlRow Coloured(int number) const {
    return With([=](ControlRow& row) { row.colour = number; });
  }
  constexpr ControlRow Aligned(Label::Align side) const {
    return With([=](ControlRow& row) { row.align = side; });
  }
  // The captions of a tab control's pages, an ampersand before the letter of the access key.
  constexpr ControlRow Pages(std::array<std::string_view, kTabCount> captions) const {
    return With([=](ControlRow& row) { row.pages = captions; });
  }

  bool StandsIn(const SinRow& sin, std::optional<Side> side) const {
    return (onlyIn == nullptr || onlyIn(sin)) && (!onlyOn || onlyOn == side);
  }

  ControlKind kind;
  Words name, container;
  Place place;
  Words caption;

  Turn first;
  int count = 0;  // 0: no array
  int stepRight = 0, stepDown = 0, columns = 1;
  HasControl onlyIn = nullptr;
  std::optional<Side> onlyOn;
  struct {
    HasControl sins = nullptr;
    Place place;
  } otherPlaces[2];
  FieldEntry enter = nullptr;
  Words labels[2];
  Words tip;
  struct {
    Turn turn;
    BySide text;
  } balloons[2];
  int fades[2] = {};
  HasControl on = nullptr;
  const char* shownText = nullptr;
  int colour = -1;
  Label::Align align = Label::Align::Left;
  int firstTip = 1;  // the element that the tool tip begins with
  bool disabled = false, hidden = false;
  std::array<std::string_view, kTabCount> pages{};
};

}  // namespace vicetoll
