// SPDX-License-Identifier: GPL-3.0-or-later
// The one exception of the system: a fault that ends the run.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace vicetoll {

enum class FaultKind {
  Conversion,  // a text that had to be a number is none
  Overflow,    // a 16-bit number or a double ran out of its range
  Index,       // an index outside its table
  File,        // a file that cannot be written
};

// "conversion", "overflow", "index", "file".
constexpr std::string_view FaultName(FaultKind kind) {
  constexpr std::string_view kNames[] = {"conversion", "overflow", "index", "file"};
  return kNames[static_cast<int>(kind)];
}

// What a user does otherwise next time.
constexpr std::string_view HowToAvoid(FaultKind kind) {
  switch (kind) {
    case FaultKind::File:
      return "To avoid this, give each report a name, in a folder that you may write to and that has room, "
             "and do not cancel its first save.";
    case FaultKind::Overflow:
      return "To avoid this, choose shorter periods, or lower amounts, costs and rates.";
    case FaultKind::Conversion:
    case FaultKind::Index:
      return "To avoid this, choose the dates of a period anew before you set it, and set the periods of a "
             "side in their order.";
  }
  return {};
}

// Thrown by whatever cannot go on; caught where the events of users enter the core (and by the date
// lists, which recover). `what()` says in plain words what happened, in UTF-8: it may
// name a file.
class Fault : public std::runtime_error {
 public:
  Fault(FaultKind kind, const std::string& what) : std::runtime_error(what), kind_(kind) {}
  FaultKind Kind() const { return kind_; }

 private:
  FaultKind kind_;
};

}  // namespace vicetoll
