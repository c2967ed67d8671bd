// SPDX-License-Identifier: GPL-3.0-or-later
#include "entries/json_value.h"

#include <algorithm>
#include <set>
#include <vector>

namespace vicetoll {
namespace {

using Json = JsonValue::Json;
using Event = Json::parse_event_t;

constexpr int kMostNesting = 8;
constexpr std::size_t kMostQuoted = 40;

// Without what is no character, and no longer than a message needs.
std::string Shortened(std::string_view text) {
  std::string shown;
  std::size_t characters = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if ((byte & 0xC0) != 0x80 && ++characters > kMostQuoted) return shown + "...";
    shown += byte < 32 || byte == 127 ? '?' : c;
  }
  return shown;
}

std::string Join(const std::string& place, std::string_view key) {
  return place.empty() ? std::string(key) : place + "." + std::string(key);
}

// Follows the parser to know where it is, and what it has met there.
class Watcher {
 public:
  bool operator()(int, Event event, Json& parsed) {
    switch (event) {
      case Event::object_start:
      case Event::array_start:
        CountElement();
        if (open_.size() == kMostNesting) throw EntriesRefused(Place() + ": nested too deep");
        open_.push_back({event == Event::array_start, 0, {}, {}});
        break;
      case Event::object_end:
      case Event::array_end:
        open_.pop_back();
        break;
      case Event::key:
        open_.back().key = Shortened(parsed.get_ref<const std::string&>());
        if (!open_.back().keys.insert(parsed.get_ref<const std::string&>()).second)
          throw EntriesRefused(Place() + ": stands here twice");
        break;
      case Event::value:
        CountElement();
        break;
    }
    return true;
  }

 private:
  struct Level {
    bool isList;
    int number;
    std::string key;
    std::set<std::string> keys;
  };

  void CountElement() {
    if (!open_.empty() && open_.back().isList) ++open_.back().number;
  }

  std::string Place() const {
    std::string place;
    for (const Level& level : open_) {
      if (level.isList)
        place.append("[").append(std::to_string(level.number)).append("]");
      else
        place = Join(place, level.key);
    }
    return place;
  }

  std::vector<Level> open_;
};

std::string LineAndColumn(std::string_view bytes, std::size_t at) {
  const std::string_view before = bytes.substr(0, std::min(at == 0 ? 0 : at - 1, bytes.size()));
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t lineStart = before.rfind('\n') + 1;  // npos + 1 is 0
  return "line " + std::to_string(line) + ", column " + std::to_string(before.size() - lineStart + 1);
}

}  // namespace

std::string Quotation(std::string_view text) { return "\"" + Shortened(text) + "\""; }

void JsonValue::Fail(const std::string& what) const {
  throw EntriesRefused((place_.empty() ? "the file" : place_) + ": " + what);
}

const std::string& JsonValue::Text() const {
  if (!json_.is_string()) Fail("must be a text in quotation marks");
  return json_.get_ref<const std::string&>();
}

bool JsonValue::Flag() const {
  if (!json_.is_boolean()) Fail("must be true or false");
  return json_.get<bool>();
}

int JsonValue::Number() const {
  constexpr std::uint64_t kMost = 1'000'000;
  if (!json_.is_number_unsigned() || json_.get<std::uint64_t>() > kMost)
    Fail("must be a whole number, without quotation marks");
  return json_.get<int>();
}

int JsonValue::Word(std::initializer_list<std::string_view> words) const {
  const auto found = std::find(words.begin(), words.end(), Text());
  if (found != words.end()) return static_cast<int>(found - words.begin());
  std::string allowed;
  for (std::string_view word : words) allowed += (allowed.empty() ? "" : ", ") + Quotation(word);
  Fail(Quotation(Text()) + " is none of " + allowed);
}

void JsonValue::RequireObject() const {
  if (!json_.is_object()) Fail("must be an object in braces");
}

std::string JsonValue::Below(std::string_view key) const { return Join(place_, Shortened(key)); }

std::optional<JsonValue> JsonValue::Optional(std::string_view key) const {
  RequireObject();
  const auto found = json_.find(key);
  if (found == json_.end()) return std::nullopt;
  return JsonValue(*found, Below(key));
}

JsonValue JsonValue::Member(std::string_view key) const {
  if (auto member = Optional(key)) return *member;
  Fail("has no " + Quotation(key));
}

void JsonValue::HasOnly(std::initializer_list<std::string_view> keys) const {
  EachMember([&](const std::string& key, const JsonValue& member) {
    if (std::find(keys.begin(), keys.end(), key) == keys.end()) member.Fail("there is no such field");
  });
}

std::size_t JsonValue::Count() const {
  if (!json_.is_array()) Fail("must be a list in brackets");
  return json_.size();
}

JsonValue JsonValue::At(std::size_t number) const {
  return JsonValue(json_.at(number - 1), place_ + "[" + std::to_string(number) + "]");
}

Json ParseJson(std::string_view bytes) {
  Watcher watcher;
  const auto watch = [&watcher](int depth, Event event, Json& parsed) {
    return watcher(depth, event, parsed);
  };
  try {
    return Json::parse(bytes.begin(), bytes.end(), watch);
  } catch (const Json::parse_error& error) {
    throw EntriesRefused(LineAndColumn(bytes, error.byte) + ": this is no JSON");
  } catch (const Json::exception&) {  // a number beyond all bounds
    throw EntriesRefused("the file: a number is too large");
  }
}

}  // namespace vicetoll
