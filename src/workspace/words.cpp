// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/words.h"

#include "workspace/workspace_design.h"

namespace vicetoll {
namespace {

template <class T>
const T& Known(const std::optional<T>& value, const char* what) {
  if (!value) throw std::logic_error(std::string("it stands on no side, but its text asks for ") + what);
  return *value;
}

int Known(int number, int unknown, const char* what) {
  if (number == unknown) throw std::logic_error(std::string("its text asks for ") + what);
  return number;
}

}  // namespace

std::string Words::Fill(const Spot& spot) const {
  std::string room;
  const std::string_view filled = FillIn(room, spot);
  return filled.data() == room.data() ? room : std::string(filled);
}

std::string_view Words::FillIn(std::string& room, const Spot& spot) const {
  std::string_view rest = text_[spot.side.value_or(Side::Past)];
  std::size_t open = rest.find('{');
  if (open == rest.npos) return rest;
  room.clear();
  for (; open != rest.npos; open = rest.find('{')) {
    const std::size_t end = rest.find('}', open) + 1;
    room += rest.substr(0, open);
    AppendFilling(room, rest.substr(open, end - open), spot);
    rest.remove_prefix(end);
  }
  return room += rest;
}

void Words::AppendFilling(std::string& text, std::string_view gap, const Spot& spot) const {
  const auto number = [&](int value) { text += std::to_string(value); };
  if (gap == "{Fut}") {
    text += ControlSuffix(Known(spot.side, "one"));
  } else if (gap == "{Future}") {
    text += OperationSuffix(Known(spot.side, "one"));
  } else if (gap == "{title}") {
    text += spot.sin.titleWord;
  } else if (gap == "{web}") {
    text += kWebAddress;
  } else if (gap == "{page}") {
    number(Known(spot.page, kAnyPage, "a tab"));
  } else if (gap == "{i}") {
    number(Known(spot.index, kNoIndex, "an index"));
  } else if (gap == "{n}") {
    number((Known(spot.index, kNoIndex, "a period") - 1) % kPeriodCount + 1);
  } else {
    const std::string_view word =
        word_.sided != nullptr ? (spot.sin.*word_.sided)[Known(spot.side, "one")] : spot.sin.*word_.alike;
    if (word.empty()) throw std::logic_error("the sin has no word for it");
    text += word;
  }
}

}  // namespace vicetoll
