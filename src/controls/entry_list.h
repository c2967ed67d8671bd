// SPDX-License-Identifier: GPL-3.0-or-later
// The entries of a drop-down list, some of which come again and again.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace vicetoll {

// Entries at positions from 0. Lists that grow by the same entries at every change of tab hold them once,
// with a count: a long session costs neither memory nor time.
class EntryList {
 public:
  int Count() const { return count_; }
  // The entry at a position of 0..Count()-1.
  const std::string& At(int position) const;
  // The position of the first entry with this text, or -1.
  int Find(std::string_view text) const;
  // All of them, each copy for itself.
  std::vector<std::string> All() const;

  // Adds entries at the end. Those that were added last, once more, only count.
  void Append(std::vector<std::string> entries);
  // Adds an entry at a position of 0..Count().
  void Insert(int position, std::string_view entry);
  void Clear();

  // How many texts are held.
  int HeldTexts() const;

  // The same entries, held in the same way.
  bool operator==(const EntryList&) const = default;

 private:
  // Entries that stand one or more times behind each other.
  struct Stretch {
    std::vector<std::string> texts;  // never empty
    int times = 1;

    int Count() const { return static_cast<int>(texts.size()) * times; }
    bool operator==(const Stretch&) const = default;
  };

  // Takes one copy out of a stretch of many, so that it can change; returns where it stands.
  std::vector<Stretch>::iterator PartCopy(std::vector<Stretch>::iterator stretch, int copy);

  std::vector<Stretch> stretches_;
  int count_ = 0;
};

}  // namespace vicetoll
