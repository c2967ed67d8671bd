// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/entry_list.h"

#include <algorithm>
#include <utility>

namespace vicetoll {

const std::string& EntryList::At(int position) const {
  auto stretch = stretches_.begin();
  for (; position >= stretch->Count(); ++stretch) position -= stretch->Count();
  return stretch->texts[position % stretch->texts.size()];
}

int EntryList::Find(std::string_view text) const {
  int begin = 0;
  for (const Stretch& stretch : stretches_) {
    const auto found = std::find(stretch.texts.begin(), stretch.texts.end(), text);
    if (found != stretch.texts.end()) return begin + static_cast<int>(found - stretch.texts.begin());
    begin += stretch.Count();
  }
  return -1;
}

std::vector<std::string> EntryList::All() const {
  std::vector<std::string> all;
  all.reserve(count_);
  for (const Stretch& stretch : stretches_)
    for (int i = 0; i < stretch.times; ++i) all.insert(all.end(), stretch.texts.begin(), stretch.texts.end());
  return all;
}

void EntryList::Append(std::vector<std::string> entries) {
  if (entries.empty()) return;
  count_ += static_cast<int>(entries.size());
  if (!stretches_.empty() && stretches_.back().texts == entries)
    ++stretches_.back().times;
  else
    stretches_.push_back({std::move(entries)});
}

void EntryList::Insert(int position, std::string_view entry) {
  ++count_;
  for (auto stretch = stretches_.begin(); stretch != stretches_.end(); ++stretch) {
    const int count = stretch->Count();
    if (position > count || (position == count && stretch->times > 1)) {
      position -= count;
      continue;
    }
    const int size = static_cast<int>(stretch->texts.size());
    if (stretch->times > 1) {
      stretch = PartCopy(stretch, position / size);
      position %= size;
    }
    stretch->texts.emplace(stretch->texts.begin() + position, entry);
    return;
  }
  stretches_.push_back({{std::string(entry)}});
}

std::vector<EntryList::Stretch>::iterator EntryList::PartCopy(std::vector<Stretch>::iterator stretch,
                                                              int copy) {
  const int behind = stretch->times - copy - 1;
  const std::vector<std::string> texts = stretch->texts;
  stretch->times = 1;
  if (behind > 0) stretch = stretches_.insert(stretch + 1, {texts, behind}) - 1;
  if (copy > 0) stretch = stretches_.insert(stretch, {texts, copy}) + 1;
  return stretch;
}

void EntryList::Clear() {
  stretches_.clear();
  count_ = 0;
}

int EntryList::HeldTexts() const {
  int held = 0;
  for (const Stretch& stretch : stretches_) held += static_cast<int>(stretch.texts.size());
  return held;
}

}  // namespace vicetoll
