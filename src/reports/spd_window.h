// The spreadsheet results window: month rows in a grid, to read, print, save and copy.
#pragma once

#include <string>

#include "controls/form.h"
#include "controls/grid.h"
#include "workspace/workspaces.h"

namespace vicetoll {

class SpdWindow : public Form {
 public:
  // One window serves all sins. Its caption speaks of smoking and never changes: the reports write their
  // titles into the document window's. There is no way out but cmdExit.
  explicit SpdWindow(Workspaces& workspaces);

  std::string_view MenuTitle() const override { return "Edit"; }

  Grid& Rows() { return *fgdAdvResultsSpd_; }

 private:
  void Design();
  void PlaceControls();
  void OnResize();
  void Print();
  void SaveAs();
  void SelectAll();
  void Copy();
  void Exit();

  Workspaces& workspaces_;
  std::string filePath_;  // the name the save dialog holds
  Grid* fgdAdvResultsSpd_ = nullptr;
  Button* cmdPrint_ = nullptr;
  Button* cmdSaveAs_ = nullptr;
  Button* cmdExit_ = nullptr;
};

}  // namespace vicetoll
