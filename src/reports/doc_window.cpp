// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/doc_window.h"

#include "base/line_ends.h"
#include "reports/report_operations.h"
#include "reports/total_reports.h"

namespace vicetoll {
namespace {

// Twips. The frame of the layout options is narrow enough for all three buttons beside it in the smallest
// window.
constexpr int kFrameWidth = 2600, kFrameHeight = 1000;
constexpr int kFrameGap = 50;
constexpr Place kCsvPlace{30, 160, 2560, 330};
constexpr Place kDocPlace{30, 510, 2560, 330};

}  // namespace

DocWindow::DocWindow(Workspaces& workspaces)
    : ReportWindow("frmAdvResultsDoc", "Advanced Smoking Results - Document Style (Rich Text Format)",
                   workspaces, ReportStyle::Document,
                   {.height = 8345,
                    .smallestWidth = 8000,
                    .smallestHeight = 5500,
                    .buttonsLeft = kFrameWidth + kFrameGap,
                    .buttonsGap = 50}) {
  rtfAdvResultsDoc_ = &Add<DocumentText>({"rtfAdvResultsDoc"});
  rtfAdvResultsDoc_->SetToolTip("Maximize Window in Comma Separated Mode to Align Columns");
  rtfAdvResultsDoc_->onNoRoom = [this] {
    GetPlatform().ShowMessage("", "The text was not pasted: it has a line that is too long to be shown.",
                              MessageButtons::Ok);
  };
  AddLayouts();
  Furnish(*rtfAdvResultsDoc_);
  AddMenuEntry("cmdCut", "Cut", [this] { Cut(); });
  AddMenuEntry("cmdPaste", "Paste", [this] { Paste(); });
}

void DocWindow::AddLayouts() {
  SSFrame1_DocResults_ = &Add<Frame>({"SSFrame1_DocResults"}, "");
  SSFrame1_DocResults_->SetOwnName("Layout");
  ChoiceGroup& layouts = AddGroup();
  const auto option = [&](const char* name, const char* caption, const Place& place) {
    Option& made = Add<Option>({name, kNoIndex, SSFrame1_DocResults_}, caption);
    made.JoinGroup(layouts);
    made.SetPlace(place);
    return &made;
  };
  Opt_Csv_ = option("Opt_Csv", "Comma Separated Data", kCsvPlace);
  Opt_Doc_ = option("Opt_Doc", "Descriptive Text", kDocPlace);
  Opt_Csv_->SetValue(true);
  Opt_Csv_->onClick = [this] { CsvDocument(); };
  Opt_Doc_->onClick = [this] { DocDocument(); };
}

void DocWindow::PlaceBeside(int left, int top) {
  SSFrame1_DocResults_->SetPlace({left, top, kFrameWidth, kFrameHeight});
}

void DocWindow::RefillForCurrentSin(bool docFlag) {
  const SinWorkspace& current = AllWorkspaces().Current();
  const int source = SinPosition(current.Sin().layoutSwitchReads);
  if (source == -1) return;
  DocSinData(AllWorkspaces().At(source), current.Of(Side::Past).Index(), current.Of(Side::Future).Index(),
             docFlag);
}

void DocWindow::DocSinData(SinWorkspace& ws, SideIndex past, SideIndex future, bool docFlag) {
  std::int16_t index = ws.CurrentIndexSub;  // the workspace's own stays
  switch (ws.FuturePast_Flag) {
    case kShowsPast:
      Text().SetText(DocText(ws.Of(Side::Past), docFlag, true, index, past));
      break;
    case kShowsFuture:
      Text().SetText(DocText(ws.Of(Side::Future), docFlag, true, index, future));
      break;
    case kShowsBoth:
      Text().SetText(TotalDocText(ws, docFlag, past, future, IndexUse::Kept));
      break;
    default:
      break;
  }
}

void DocWindow::Print() {
  const bool selection = Text().SelLength() > 0;
  GetPlatform().Print(selection ? Text().SelText() : Text().Text(), selection);
}

std::string DocWindow::FileBytes() {
  // The whole text is one quoted field over many lines; nothing in it is escaped.
  if (Text().SelLength() == 0) SelectAll();
  std::string bytes = "\"";
  bytes += Text().SelText();
  bytes += '"';
  bytes += kLineEnd;
  return bytes;
}

void DocWindow::Cut() {
  Copy();
  if (Text().SelLength() > 0) Text().ReplaceSelection("");
}

void DocWindow::Paste() {
  const std::string text = GetPlatform().Clipboard();
  if (Text().HasRoomFor(text))
    Text().ReplaceSelection(text);
  else
    Text().onNoRoom();
}

}  // namespace vicetoll
