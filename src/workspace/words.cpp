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
  std::string_view rest = text_[spot.side.value_or(Side::Past)];
  std::string filled;
  for (std::size_t open = rest.find('{'); open != rest.npos; open = rest.find('{')) {
    const std::size_t end = rest.find('}', open) + 1;
    filled += rest.substr(0, open);
    filled += Filling(rest.substr(open, end - open), spot);
    rest.remove_prefix(end);
  }
  return filled += rest;
}

std::string Words::Filling(std::string_view gap, const Spot& spot) const {
  if (gap == "{Fut}") return std::string(ControlSuffix(Known(spot.side, "one")));
  if (gap == "{Future}") return std::string(OperationSuffix(Known(spot.side, "one")));
  if (gap == "{title}") return std::string(spot.sin.titleWord);
  if (gap == "{web}") return std::string(kWebAddress);
  if (gap == "{page}") return std::to_string(Known(spot.page, kAnyPage, "a tab"));
  if (gap == "{i}") return std::to_string(Known(spot.index, kNoIndex, "an index"));
  if (gap == "{n}") return std::to_string((Known(spot.index, kNoIndex, "a period") - 1) % kPeriodCount + 1);
  const std::string_view word =
      word_.sided != nullptr ? (spot.sin.*word_.sided)[Known(spot.side, "one")] : spot.sin.*word_.alike;
  if (word.empty()) throw std::logic_error("the sin has no word for it");
  return std::string(word);
}

}  // namespace vicetoll
