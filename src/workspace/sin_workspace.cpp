// SPDX-License-Identifier: GPL-3.0-or-later
#include "workspace/sin_workspace.h"

#include "workspace/events.h"
#include "workspace/workspace_design.h"

namespace vicetoll {

SinWorkspace::SinWorkspace(Session& session, int position)
    : Form(Catalogue().at(position).key, Catalogue().at(position).designCaption),
      session_(session),
      position_(position),
      sin_(Catalogue().at(position)) {
  DesignWorkspace(*this);
  ConnectEvents(*this);
}

void SinWorkspace::TakeStateOf(const SinWorkspace& other) {
  for (Side side : kSides) Of(side).state = other.Of(side).state;
  FuturePast_Flag = other.FuturePast_Flag;
  CurrentIndexSub = other.CurrentIndexSub;
  CurrentCumulativeCost = other.CurrentCumulativeCost;
  CurrentCumulativeCostWithInterest = other.CurrentCumulativeCostWithInterest;
  identificationOver = other.identificationOver;
  evaluatedAt = other.evaluatedAt;
  cmdAdvResultsSpd_Flag = other.cmdAdvResultsSpd_Flag;
  cmdAdvResultsDoc_Flag = other.cmdAdvResultsDoc_Flag;
  Form::TakeStateOf(other);
}

std::vector<const Control*> SinWorkspace::ResultsOf(const Control& by) const {
  for (Side side : kSides) {
    const WorkspaceSide& c = Of(side);
    if (&by != c.cmdSetPeriodParams) continue;
    const int period = c.state.CurrentPeriod;
    return {&c.txtResultsPeriod(period), &c.txtCumulativeResultsPeriod(period), c.txtResultsTotal};
  }
  return {};
}

std::string SinWorkspace::Money(double value, std::string_view format) const {
  return FormatMoney(session_.currency, value, format);
}

}  // namespace vicetoll
