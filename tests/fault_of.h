// SPDX-License-Identifier: GPL-3.0-or-later
// Asks what fault a piece of code ends in.
#pragma once

#include <optional>
#include <ostream>

#include "base/fault.h"

namespace vicetoll {

// The kind of the fault that the call throws; nothing if it throws none.
template <class Call>
std::optional<FaultKind> FaultOf(Call&& call) {
  try {
    call();
    return std::nullopt;
  } catch (const Fault& fault) {
    return fault.Kind();
  }
}

inline void PrintTo(FaultKind kind, std::ostream* out) { *out << FaultName(kind); }

}  // namespace vicetoll
