// SPDX-License-Identifier: GPL-3.0-or-later
// The document results window: the months of a report as a text that the user may read, edit, switch
// between two layouts, print and save.
#pragma once

#include <string>

#include "controls/document_text.h"
#include "reports/report_window.h"

namespace vicetoll {

class DocWindow : public ReportWindow {
 public:
  // One window serves all sins; it starts in the table layout. There is no way out but cmdExit.
  explicit DocWindow(Workspaces& workspaces);

  DocumentText& Text() const { return *rtfAdvResultsDoc_; }
  // Whether the block layout is on.
  bool BlockLayout() const { return Opt_Doc_->Value(); }

  // Refill the text for the current sin in the block or the table layout; what the user had edited is
  // lost. With jail time current the text comes from the workspace of sloth; with sloth or tobacco current
  // nothing happens. Users know it so.
  void DocDocument() { RefillForCurrentSin(true); }
  void CsvDocument() { RefillForCurrentSin(false); }

  // Refills the text with what the workspace's last report showed: past, future or both. A workspace that
  // made none leaves it alone. Past and future are the numbers under which the counted periods are read.
  void DocSinData(SinWorkspace& ws, SideIndex past, SideIndex future, bool docFlag);

 private:
  void AddLayouts();
  void RefillForCurrentSin(bool docFlag);
  std::string Selection() const override { return std::string(Text().SelText()); }
  void SelectAll() override { Text().SelectAll(); }
  void Print() override;
  std::string FileBytes() override;
  void PlaceBeside(int left, int top) override;
  void Cut();
  void Paste();

  DocumentText* rtfAdvResultsDoc_ = nullptr;
  Frame* SSFrame1_DocResults_ = nullptr;
  Option* Opt_Csv_ = nullptr;
  Option* Opt_Doc_ = nullptr;
};

}  // namespace vicetoll
