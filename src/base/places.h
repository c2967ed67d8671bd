// SPDX-License-Identifier: GPL-3.0-or-later
// Where the program finds what belongs to it: in any prefix it is installed in, and in the build tree.
#pragma once

#include <string>

namespace vicetoll {

// The folder of the help texts and their pictures.
std::string TextsFolder();

// The folder of the modules that are loaded at their first use.
std::string ModulesFolder();

}  // namespace vicetoll
