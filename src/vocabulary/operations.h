// SPDX-License-Identifier: GPL-3.0-or-later
// Every public operation under its name: those of a workspace as its sin names them, and the shared ones.
//
// The names are the system's vocabulary (CommitPeriodPast, SetDrinkingParametersFuture,
// LabelMakerSmokePast). Behind a pair of names for past and future, or twelve names of the sins, stands
// one implementation. The names stand in operation_table.cpp.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "shell/program.h"
#include "vocabulary/month_functions.h"

namespace vicetoll {

// A call that names no operation or gives it the wrong arguments.
class BadCall : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The arguments of a call, in their documented order, as texts: numbers as they are, flags as -1 or 0.
class Arguments {
 public:
  explicit Arguments(std::vector<std::string> texts) : texts_(std::move(texts)) {}

  std::size_t Count() const { return texts_.size(); }
  // These throw BadCall for a missing or malformed argument, Int16 also Fault(Overflow).
  const std::string& Text(std::size_t i) const;
  double Number(std::size_t i) const;
  std::int16_t Int16(std::size_t i) const;
  bool Flag(std::size_t i) const;
  // A list control of the form, by its name.
  DropDownList& List(std::size_t i, const Form& form) const;

 private:
  std::vector<std::string> texts_;
};

// What an operation returns: nothing, a number, a text, or the cells of a month.
using OperationValue = std::variant<std::monostate, double, std::string, MonthCostCells>;

// Calls the operation of that name on the workspace. Throws BadCall if there is none.
OperationValue CallOperation(Program& program, SinWorkspace& workspace, std::string_view name,
                             const Arguments& arguments);

// The module that the vocabulary puts the operation in (VTL_General, VTL_CombFunctions, ToolTipMod,
// VTL_Developer), or the window that has it. Throws BadCall if there is none.
std::string_view ModuleOfOperation(const SinRow& sin, std::string_view name);

}  // namespace vicetoll
