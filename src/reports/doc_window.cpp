#include "reports/doc_window.h"

#include <algorithm>

#include "reports/report_file.h"
#include "reports/report_operations.h"
#include "reports/result_buttons.h"
#include "reports/total_reports.h"

namespace vicetoll {
namespace {

// Twips.
constexpr int kWidth = 9000, kHeight = 8345;
constexpr int kSmallestWidth = 8000, kSmallestHeight = 5500;
constexpr int kTextLeft = 350, kTextTop = 200;
constexpr int kBesideText = 800, kBelowText = 2000;  // of the window's size, what the text leaves
constexpr int kButtonWidth = 1500, kButtonHeight = 500;
// The frame of the layout options is narrow enough for all three buttons beside it in the smallest window.
constexpr int kFrameWidth = 2550, kFrameHeight = 1000;
constexpr int kFrameGap = 100;
constexpr Place kCsvPlace{60, 250, 2460, 300};
constexpr Place kDocPlace{60, 600, 2460, 300};

}  // namespace

DocWindow::DocWindow(Workspaces& workspaces)
    : Form("frmAdvResultsDoc", "Advanced Smoking Results - Document Style (Rich Text Format)"),
      workspaces_(workspaces) {
  Design();
  onResize = [this] { OnResize(); };
  Resize(kWidth, kHeight);
}

void DocWindow::Design() {
  rtfAdvResultsDoc_ = &Add<DocumentText>({"rtfAdvResultsDoc"});
  rtfAdvResultsDoc_->SetToolTip("Maximize Window in Comma Separated Mode to Align Columns");
  SSFrame1_DocResults_ = &Add<Frame>({"SSFrame1_DocResults"}, "");
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

  const auto connect = [this](Button& button, void (DocWindow::*action)()) {
    button.onClick = [this, action] { (this->*action)(); };
    return &button;
  };
  cmdPrint_ = connect(Add<Button>({"cmdPrint"}, "Print Results"), &DocWindow::Print);
  cmdSaveAs_ = connect(Add<Button>({"cmdSaveAs"}, "File (Save As)"), &DocWindow::SaveAs);
  cmdExit_ = connect(Add<Button>({"cmdExit"}, "Exit"), &DocWindow::Exit);
  connect(Add<MenuEntry>({"cmdSelectAll"}, "Select All"), &DocWindow::SelectAll);
  connect(Add<MenuEntry>({"cmdCopy"}, "Copy"), &DocWindow::Copy);
  connect(Add<MenuEntry>({"cmdCut"}, "Cut"), &DocWindow::Cut);
  connect(Add<MenuEntry>({"cmdPaste"}, "Paste"), &DocWindow::Paste);
}

void DocWindow::PlaceControls() {
  const Place text{kTextLeft, kTextTop, Width() - kBesideText, Height() - kBelowText};
  const int top = text.top + text.height + 50;
  const int buttons = text.left + kFrameWidth + kFrameGap;
  rtfAdvResultsDoc_->SetPlace(text);
  SSFrame1_DocResults_->SetPlace({text.left, top, kFrameWidth, kFrameHeight});
  cmdPrint_->SetPlace({buttons, top, kButtonWidth, kButtonHeight});
  cmdSaveAs_->SetPlace({buttons + kButtonWidth, top, kButtonWidth, kButtonHeight});
  cmdExit_->SetPlace({text.left + text.width - 1550, top, kButtonWidth + 50, kButtonHeight});
}

void DocWindow::OnResize() {
  if (GetWindowState() == WindowState::Minimised) return;
  PlaceControls();
  Resize(std::max(Width(), kSmallestWidth), std::max(Height(), kSmallestHeight));
}

void DocWindow::RefillForCurrentSin(bool docFlag) {
  const SinWorkspace& current = workspaces_.Current();
  const int source = SinPosition(current.Sin().layoutSwitchReads);
  if (source == -1) return;
  DocSinData(workspaces_.At(source), current.SideIndex(Side::Past), current.SideIndex(Side::Future), docFlag);
}

void DocWindow::DocSinData(SinWorkspace& ws, std::int16_t past, std::int16_t future, bool docFlag) {
  std::int16_t index = ws.CurrentIndexSub;  // the workspace's own stays
  switch (ws.FuturePast_Flag) {
    case kShowsPast:
      Text().SetText(DocText(ws, Side::Past, docFlag, true, index, past));
      break;
    case kShowsFuture:
      Text().SetText(DocText(ws, Side::Future, docFlag, true, index, future));
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
  workspaces_.GetSession().platform.Print(selection ? Text().SelText() : Text().Text(), selection);
}

void DocWindow::SaveAs() {
  // The whole text is one quoted field over many lines; nothing in it is escaped.
  if (Text().SelLength() == 0) SelectAll();
  std::string bytes = "\"";
  bytes += Text().SelText();
  bytes += "\"\r\n";
  SaveReport(workspaces_.GetSession().platform, filePath_, bytes);
}

void DocWindow::SelectAll() { Text().SelectAll(); }

void DocWindow::Copy() { workspaces_.GetSession().platform.SetClipboard(Text().SelText()); }

void DocWindow::Cut() {
  Copy();
  if (Text().SelLength() > 0) Text().ReplaceSelection("");
}

void DocWindow::Paste() { Text().ReplaceSelection(workspaces_.GetSession().platform.Clipboard()); }

void DocWindow::Exit() {
  Hide();
  RestoreResultButtonsOfSin(workspaces_, ReportStyle::Document);
}

}  // namespace vicetoll
