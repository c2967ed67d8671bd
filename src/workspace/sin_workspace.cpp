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

std::string SinWorkspace::Money(double value, std::string_view format) const {
  return FormatMoney(session_.currency, value, format);
}

}  // namespace vicetoll
