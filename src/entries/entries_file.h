// SPDX-License-Identifier: GPL-3.0-or-later
// Entries as a file: UTF-8 JSON, described in docs/entries.md.
#pragma once

#include <initializer_list>
#include <stdexcept>
#include <string>
#include <string_view>

#include "entries/entries.h"

namespace vicetoll {

// A file larger than this is none of ours.
inline constexpr std::size_t kMostEntriesBytes = 1 << 20;

// Why a file is not read. `what()` names the place and what is wrong there, in UTF-8:
// sins.Smoking.past[1].quantity: "1.03" is no entry of the list (1.00, 1.05)
class EntriesRefused : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The file's bytes: keys in a fixed order, one line a field. Months that have no year of four digits cannot
// be written; then it throws EntriesRefused.
std::string WriteEntries(const Entries& entries);

// What the file says of the periods of these sides, as one JSON list: each with its side behind.
std::string WritePeriods(const SinEntries& sin, std::initializer_list<Side> sides);

// Reads a file's bytes, whatever they are. Throws EntriesRefused.
Entries ReadEntries(std::string_view bytes);

// The bytes of a file of sane size. Throws EntriesRefused for one that cannot be read, is larger than
// kMostEntriesBytes or no regular file, with the reason.
std::string ReadEntriesBytes(const std::string& path);

}  // namespace vicetoll
