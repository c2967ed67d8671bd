// SPDX-License-Identifier: GPL-3.0-or-later
// The table of the vocabulary's names.
#pragma once

#include <span>
#include <string_view>

#include "vocabulary/operations.h"

namespace vicetoll {

struct Call {
  Program& program;
  SinWorkspace& ws;
  Side side;  // of the name that was called, where the name has a side
  const Arguments& args;
};

// A function as the table holds it.
struct BoundFunction {
  std::size_t texts;  // that it reads
  OperationValue (*run)(const Call&);
};

// The sins that have an operation under that name.
enum class InSins { All, FlatRate, NotFlatRate };

// In a name, {Key} stands for the sin's key, {Stem} for its name stem, {Side} for Past or Future, {Suffix}
// for Past or Fut.
struct Operation {
  std::string_view name;
  std::string_view module;  // that the vocabulary puts it in, or the window that has it
  BoundFunction function;
  InSins sins = InSins::All;
};

std::span<const Operation> Operations();

}  // namespace vicetoll
