// SPDX-License-Identifier: GPL-3.0-or-later
// Parts of the program that few runs need and that bring large libraries with them: they lie beside it as
// modules and are loaded at their first use, as they would cost every start if they were linked.
#pragma once

#include <string>

namespace vicetoll {

// The address of what the module offers under the name; nullptr and the reason where there is none. A module
// that was loaded stays.
void* FindInModule(const char* module, const char* name, std::string& error);

// A function of that type.
template <class Function>
Function FromModule(const char* module, const char* name, std::string& error) {
  return reinterpret_cast<Function>(FindInModule(module, name, error));
}

}  // namespace vicetoll
