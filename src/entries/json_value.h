// SPDX-License-Identifier: GPL-3.0-or-later
// A value of a JSON text together with its place, for messages that name it. Included by sources only: the
// library's header stays out of ours.
#pragma once

#include <initializer_list>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>

#include "entries/entries_file.h"

namespace vicetoll {

// The text in quotation marks, shortened, and without what is no character.
std::string Quotation(std::string_view text);

class JsonValue {
 public:
  using Json = nlohmann::ordered_json;

  JsonValue(const Json& json, std::string place) : json_(json), place_(std::move(place)) {}

  // `what` follows the place: sins.Smoking.past[1].quantity: "1.03" is no entry of the list.
  [[noreturn]] void Fail(const std::string& what) const;

  const std::string& Text() const;
  bool Flag() const;
  int Number() const;

  // The place of the word among those allowed.
  int Word(std::initializer_list<std::string_view> words) const;

  // A field of an object; Member must be there.
  JsonValue Member(std::string_view key) const;
  std::optional<JsonValue> Optional(std::string_view key) const;
  // Refuses fields other than these.
  void HasOnly(std::initializer_list<std::string_view> keys) const;
  template <class Visit>
  void EachMember(const Visit& visit) const {
    RequireObject();
    for (const auto& [key, value] : json_.items()) visit(key, JsonValue(value, Below(key)));
  }

  // The elements of a list, counted from 1 as periods are.
  std::size_t Count() const;
  JsonValue At(std::size_t number) const;

 private:
  void RequireObject() const;
  std::string Below(std::string_view key) const;

  const Json& json_;
  std::string place_;
};

// The text as JSON. Throws EntriesRefused for what is none, for a key that an object has twice, and for lists
// and objects nested deeper than any file of ours.
JsonValue::Json ParseJson(std::string_view bytes);

}  // namespace vicetoll
