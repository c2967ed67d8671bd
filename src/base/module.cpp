// SPDX-License-Identifier: GPL-3.0-or-later
#include "base/module.h"

#include <dlfcn.h>

#include "base/places.h"

namespace vicetoll {

void* FindInModule(const char* module, const char* name, std::string& error) {
  const std::string path = ModulesFolder() + "/libvicetoll_" + module + ".so";
  void* const loaded = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* const found = loaded == nullptr ? nullptr : dlsym(loaded, name);
  if (found == nullptr) error = dlerror();
  return found;
}

}  // namespace vicetoll
