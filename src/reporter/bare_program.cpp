// SPDX-License-Identifier: GPL-3.0-or-later
#include "reporter/bare_program.h"

#include "workspace/loading.h"

namespace vicetoll {

SinWorkspace& BareProgram::At(int position) {
  auto& slot = workspaces_.at(static_cast<std::size_t>(position));
  if (!slot) slot = std::make_unique<SinWorkspace>(session_, position);
  return *slot;
}

SinWorkspace& BareProgram::Enter(int position) {
  SinWorkspace& ws = At(position);
  session_.CurrentSinKey = ws.Sin().key;
  WorkspaceSide& past = ws.Of(Side::Past);
  session_.CurrentSinNumber = past.Index();
  ws.SSTab_PastFutureSwitch->SetTab(kPastTab);
  if (past.state.CurrentPeriod == 0) LoadParameters(past);
  return ws;
}

}  // namespace vicetoll
