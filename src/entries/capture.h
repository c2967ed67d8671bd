// SPDX-License-Identifier: GPL-3.0-or-later
// From the windows to entries and back.
#pragma once

#include "entries/entries.h"
#include "workspace/workspaces.h"

namespace vicetoll {

// What the user has entered in the sins visited. Changes nothing and throws nothing but Fault(Conversion),
// for a period whose texts are no numbers.
Entries Capture(Workspaces& program);

// The same of one sin.
SinEntries CaptureSin(SinWorkspace& ws);

// A program as it has just started, which takes entries.
class FreshProgram : public Workspaces {
 public:
  // Goes to the sin at a position as a user would; at its first visit it is prepared.
  virtual SinWorkspace& Enter(int position) = 0;
  virtual void TurnToEuro() = 0;
};

// Does what its user would have done: sets the periods in order, switches off those that are off, and goes to
// the sin and tab. Months that the date lists of today do not offer are set all the same. The results are
// those that stood on screen when the entries were captured. Throws Fault where a figure runs out of its
// range; the program is then to be thrown away.
void Apply(FreshProgram& program, const Entries& entries);

}  // namespace vicetoll
