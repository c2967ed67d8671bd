// SPDX-License-Identifier: GPL-3.0-or-later
// The file that keeps a user's entries: opening, saving, and what is asked before something is lost.
#pragma once

#include <cstdint>
#include <string>

namespace vicetoll {

class Program;

// Nothing is kept by itself. Paths are in the encoding of the file system.
class EntriesKeeper {
 public:
  explicit EntriesKeeper(Program& program) : program_(program) {}

  // What the three buttons do. A file that cannot be read or written gives a message with the reason, and
  // nothing changes.
  void Open();
  void Save();
  void SaveAs();

  // Replaces what is there by what the file keeps; it becomes the file in use. Says why if it cannot.
  void OpenFile(const std::string& path);

  // Whether the run may end: where a file is in use and something was set since, the user is asked.
  bool MayEnd();

  // The file in use, empty if there is none, and whether something was set since it was saved or opened.
  const std::string& Path() const { return path_; }
  bool Changed() const;

  // The file in use for the foot of the window, in UTF-8, with an asterisk if something was set since.
  std::string Status() const;

  // For a run that cannot go on, or is ended from outside: writes the entries to a new file in the folder,
  // which is made. Returns its path, empty if nothing was set since the last save or rescue, or it cannot be
  // written. Asks and throws nothing.
  std::string Rescue(const std::string& folder);

 private:
  bool MayReplace();
  bool SaveTo(const std::string& path);
  bool SaveToFileInUse();
  bool AskAndSave();
  void Keep(const std::string& path);

  Program& program_;
  std::string path_;
  std::uint64_t timesSetWhenKept_ = 0;
};

}  // namespace vicetoll
