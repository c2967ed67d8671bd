// SPDX-License-Identifier: GPL-3.0-or-later
// From the texts of a call to the arguments of a function: the function's signature says what to read.
//
// Each parameter is either lent by the run (the workspace, the side of the name, a window) or read from the
// call's texts, from left to right. So a row of the table is a name and a function, and a function that
// takes its arguments in another order or type than the documented one stands there as a lambda.
#pragma once

#include <array>
#include <concepts>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>

#include "shell/program.h"
#include "vocabulary/operation_table.h"

namespace vicetoll {

// Where an argument of type T comes from. This one reads a number, for all types made of a 16-bit one.
template <class T>
struct Source {
  static_assert(std::constructible_from<T, std::int16_t>, "the vocabulary cannot read this type");
  static constexpr bool kFromTexts = true;
  static T Take(const Call& call, std::size_t i) { return T(call.args.Int16(i)); }
};

struct FromTexts {
  static constexpr bool kFromTexts = true;
};
template <>
struct Source<double> : FromTexts {
  static double Take(const Call& call, std::size_t i) { return call.args.Number(i); }
};
template <>
struct Source<bool> : FromTexts {
  static bool Take(const Call& call, std::size_t i) { return call.args.Flag(i); }
};
template <>
struct Source<std::string> : FromTexts {
  static std::string Take(const Call& call, std::size_t i) { return call.args.Text(i); }
};
template <>
struct Source<std::string_view> : FromTexts {
  static std::string_view Take(const Call& call, std::size_t i) { return call.args.Text(i); }
};
template <>
struct Source<DropDownList> : FromTexts {
  static std::reference_wrapper<DropDownList> Take(const Call& call, std::size_t i) {
    return call.args.List(i, call.ws);
  }
};

// Lent by the run.
struct FromRun {
  static constexpr bool kFromTexts = false;
};
// clang-format off
template <> struct Source<Currency>        : FromRun { static auto Take(const Call& c, std::size_t) { return c.ws.GetSession().currency; } };
template <> struct Source<SinWorkspace>    : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.ws); } };
template <> struct Source<WorkspaceSide>   : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.ws.Of(c.side)); } };
template <> struct Source<Program>         : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.program); } };
template <> struct Source<Workspaces>      : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref<Workspaces>(c.program); } };
template <> struct Source<SinChooser>      : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.program.Chooser()); } };
template <> struct Source<CombinedResults> : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.program.Combined()); } };
template <> struct Source<InfoWindow>      : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.program.Info()); } };
template <> struct Source<Balloons>        : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.program.GetBalloons()); } };
template <> struct Source<DocWindow>       : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.program.Doc()); } };
template <> struct Source<DocumentText>    : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.program.Doc().Text()); } };
template <> struct Source<Grid>            : FromRun { static auto Take(const Call& c, std::size_t) { return std::ref(c.program.Spd().Rows()); } };
// clang-format on

inline OperationValue ValueOf(double number) { return number; }
inline OperationValue ValueOf(std::string_view text) { return std::string(text); }
inline OperationValue ValueOf(const MonthCostCells& cells) { return cells; }

// A function that takes these parameters, of a member function first its object.
template <class Result, class... Parameters>
struct Caller {
  template <class T>
  using SourceOf = Source<std::remove_cvref_t<T>>;

  static constexpr std::size_t kTexts = (0u + ... + std::size_t{SourceOf<Parameters>::kFromTexts});

  template <auto function>
  static OperationValue Run(const Call& call) {
    return RunWith<function>(call, std::index_sequence_for<Parameters...>());
  }

 private:
  // The texts that the parameters before the one at `parameter` take.
  static constexpr std::size_t TextsBefore(std::size_t parameter) {
    constexpr std::array<bool, sizeof...(Parameters)> kReads{SourceOf<Parameters>::kFromTexts...};
    std::size_t texts = 0;
    for (std::size_t i = 0; i < parameter; ++i) texts += kReads[i];
    return texts;
  }

  template <auto function, std::size_t... i>
  static OperationValue RunWith([[maybe_unused]] const Call& call, std::index_sequence<i...>) {
    // What a function writes into a reference (an index that moves on) is not given back.
    auto taken = std::tuple{SourceOf<Parameters>::Take(call, TextsBefore(i))...};
    if constexpr (std::is_void_v<Result>) {
      std::invoke(function, static_cast<Parameters>(std::get<i>(taken))...);
      return {};
    } else {
      return ValueOf(std::invoke(function, static_cast<Parameters>(std::get<i>(taken))...));
    }
  }
};

template <class Function>
struct CallerOf : CallerOf<decltype(&Function::operator())>::OfLambda {};
template <class Result, class... Parameters>
struct CallerOf<Result (*)(Parameters...)> : Caller<Result, Parameters...> {};
template <class Result, class Object, class... Parameters>
struct CallerOf<Result (Object::*)(Parameters...)> : Caller<Result, Object&, Parameters...> {};
template <class Result, class Object, class... Parameters>
struct CallerOf<Result (Object::*)(Parameters...) const> : Caller<Result, const Object&, Parameters...> {
  using OfLambda = Caller<Result, Parameters...>;
};

template <auto function>
inline constexpr BoundFunction kCalls{CallerOf<decltype(function)>::kTexts,
                                      CallerOf<decltype(function)>::template Run<function>};

}  // namespace vicetoll
