// SPDX-License-Identifier: GPL-3.0-or-later
// The twelve workspaces, as those see them who stand above a single one.
#pragma once

#include "workspace/sin_workspace.h"

namespace vicetoll {

class Workspaces {
 public:
  virtual ~Workspaces() = default;

  // The workspace of the sin at a position from 0, created at the first reference, hidden. Throws
  // Fault(Index) outside 0..11.
  virtual SinWorkspace& At(int position) = 0;

  virtual Session& GetSession() = 0;

  // The workspace of the current sin key.
  SinWorkspace& Current() { return At(SinPosition(GetSession().CurrentSinKey)); }
};

}  // namespace vicetoll
