// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/entries_keeper.h"

#include <exception>
#include <filesystem>

#include "base/fault.h"
#include "base/file_writer.h"
#include "base/quiet_platform.h"
#include "entries/entries_file.h"
#include "shell/program.h"

namespace vicetoll {
namespace {

std::string NameOf(const std::string& path) { return path.substr(path.rfind('/') + 1); }

std::string CannotBeOpened(const std::string& path, const std::string& reason) {
  return "The file \"" + path + "\" cannot be opened.\r\n\r\n" + reason;
}

}  // namespace

bool EntriesKeeper::Changed() const { return program_.GetSession().timesSet != timesSetWhenKept_; }

std::string EntriesKeeper::Status() const {
  if (path_.empty()) return {};
  return NameOf(path_) + (Changed() ? " *" : "");
}

void EntriesKeeper::Keep(const std::string& path) {
  path_ = path;
  timesSetWhenKept_ = program_.GetSession().timesSet;
  program_.Current().SetStatus(Status());
}

void EntriesKeeper::Open() {
  if (!MayReplace()) return;
  const auto path = program_.GetSession().platform.AskEntriesPath(FilePurpose::OpenEntries, path_);
  if (path) OpenFile(*path);
}

void EntriesKeeper::Save() { SaveToFileInUse(); }
void EntriesKeeper::SaveAs() { AskAndSave(); }

void EntriesKeeper::OpenFile(const std::string& path) {
  Platform& platform = program_.GetSession().platform;
  std::string reason;
  try {
    // All of it happens beside the program, which takes over what came of it in one go.
    QuietPlatform quiet(platform.Now());
    Program fresh(quiet);
    Apply(fresh, ReadEntries(ReadEntriesBytes(path)));
    program_.TakeStateOf(fresh);
    Keep(path);
    return program_.Current().Say("The entries are those of " + path);
  } catch (const EntriesRefused& refused) {
    reason = refused.what();
  } catch (const Fault& fault) {
    reason = fault.what();
  }
  platform.ShowFileMessage(CannotBeOpened(path, reason), MessageButtons::Ok);
}

// Asks what becomes of what was set since the last save; what is saved may be replaced.
bool EntriesKeeper::MayReplace() {
  if (!Changed()) return true;
  const std::string what = path_.empty()
                               ? std::string("What you entered is in no file.")
                               : "What you entered last is not yet in the file \"" + NameOf(path_) + "\".";
  switch (program_.GetSession().platform.ShowFileMessage(what + "\r\n\r\nSave it?",
                                                         MessageButtons::SaveDiscardCancel)) {
    case Answer::Ok:
      return SaveToFileInUse();
    case Answer::No:
      return true;
    case Answer::Cancel:
      break;
  }
  return false;
}

bool EntriesKeeper::MayEnd() { return path_.empty() || MayReplace(); }

bool EntriesKeeper::SaveToFileInUse() { return path_.empty() ? AskAndSave() : SaveTo(path_); }

bool EntriesKeeper::AskAndSave() {
  const auto path = program_.GetSession().platform.AskEntriesPath(FilePurpose::SaveEntries, path_);
  return path && SaveTo(*path);
}

bool EntriesKeeper::SaveTo(const std::string& path) {
  Platform& platform = program_.GetSession().platform;
  try {
    platform.WriteFile(path, WriteEntries(Capture(program_)));
    Keep(path);
    program_.Current().Say("Saved in " + path);
    return true;
  } catch (const Fault& fault) {
    platform.ShowFileMessage(fault.what(), MessageButtons::Ok);
  } catch (const EntriesRefused& refused) {
    platform.ShowFileMessage(refused.what(), MessageButtons::Ok);
  }
  return false;
}

std::string EntriesKeeper::Rescue(const std::string& folder) {
  if (folder.empty() || !Changed()) return {};
  try {
    std::filesystem::create_directories(folder);
    std::string path = folder + "/rescued.vicetoll";
    for (int number = 2; std::filesystem::exists(path); ++number)
      path = folder + "/rescued-" + std::to_string(number) + ".vicetoll";
    if (ReplaceFile(path, WriteEntries(Capture(program_))) != 0) return {};
    timesSetWhenKept_ = program_.GetSession().timesSet;
    return path;
  } catch (const std::exception&) {
    return {};  // there is no second rescue
  }
}

}  // namespace vicetoll
