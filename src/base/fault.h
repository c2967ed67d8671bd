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
