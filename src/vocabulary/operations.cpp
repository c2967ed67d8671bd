// SPDX-License-Identifier: GPL-3.0-or-later
#include "vocabulary/operations.h"

#include <charconv>
#include <cmath>

#include "base/checked_int.h"
#include "vocabulary/operation_table.h"

namespace vicetoll {
namespace {

// Whether the name is the pattern's in this sin, on this side.
bool Matches(std::string_view pattern, std::string_view name, const SinRow& sin, Side side) {
  while (!pattern.empty()) {
    std::string_view expected = pattern.substr(0, 1);
    std::size_t used = 1;
    if (pattern.front() == '{') {
      used = pattern.find('}') + 1;
      const std::string_view what = pattern.substr(0, used);
      expected = what == "{Key}"    ? sin.key
                 : what == "{Stem}" ? sin.stem
                 : what == "{Side}" ? OperationSuffix(side)
                                    : ControlSuffix(side);
    }
    if (!name.starts_with(expected)) return false;
    name.remove_prefix(expected.size());
    pattern.remove_prefix(used);
  }
  return name.empty();
}

bool Has(const SinRow& sin, InSins sins) {
  if (sins == InSins::All) return true;
  return (sins == InSins::FlatRate) == (sin.costClass == CostClass::FlatRateClass);
}

struct Found {
  const Operation* operation;
  Side side;
};

// Throws BadCall where the sin has no such name.
Found FindOperation(std::string_view name, const SinRow& sin) {
  for (const Operation& operation : Operations()) {
    if (!Has(sin, operation.sins)) continue;
    for (Side side : kSides)
      if (Matches(operation.name, name, sin, side)) return {&operation, side};
  }
  throw BadCall("no operation: " + std::string(name));
}

}  // namespace

const std::string& Arguments::Text(std::size_t i) const {
  if (i >= texts_.size()) throw BadCall("an argument is missing");
  return texts_[i];
}

double Arguments::Number(std::size_t i) const {
  const std::string& text = Text(i);
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(value))
    throw BadCall("no number: " + text);
  return value;
}

std::int16_t Arguments::Int16(std::size_t i) const { return RoundToInt16(Number(i)); }

bool Arguments::Flag(std::size_t i) const { return Number(i) != 0; }

DropDownList& Arguments::List(std::size_t i, const Form& form) const {
  auto* list = dynamic_cast<DropDownList*>(form.Find(Text(i)));
  if (list == nullptr) throw BadCall("no list: " + Text(i));
  return *list;
}

std::string_view ModuleOfOperation(const SinRow& sin, std::string_view name) {
  return FindOperation(name, sin).operation->module;
}

OperationValue CallOperation(Program& program, SinWorkspace& workspace, std::string_view name,
                             const Arguments& arguments) {
  const auto [operation, side] = FindOperation(name, workspace.Sin());
  if (arguments.Count() != operation->function.texts)
    throw BadCall("wrong number of arguments for " + std::string(name));
  return operation->function.run(Call{program, workspace, side, arguments});
}

}  // namespace vicetoll
