// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/info_window.h"

#include "base/code_page.h"
#include "base/file_reader.h"
#include "shell/about.h"

namespace vicetoll {
namespace {

// In twips.
constexpr int kInfoWidth = 10500, kInfoHeight = 9000;
constexpr int kInfoMargin = 200;

constexpr int kLargestText = 2'000'000;  // bytes; the manual has a hundredth of it

}  // namespace

InfoWindow::InfoWindow(Platform& platform) : Form("frmInfo", ""), platform_(platform) {
  rtfInfo_ = &Add<DocumentText>({"rtfInfo"});
  rtfInfo_->SetReadOnly(true);
  cmdAbout_ = &Add<Button>({"cmdAbout"}, "About");
  cmdAbout_->SetPlace({0, 0, 1500, 500});
  cmdAbout_->onClick = [this] { ShowAbout(); };
  cmdExit_ = &Add<Button>({"cmdExit"}, "Exit");
  cmdExit_->SetPlace({0, 0, 1500, 500});
  cmdExit_->onClick = [this] { Hide(); };
  onResize = [this] { PlaceControls(); };
  Resize(kInfoWidth, kInfoHeight);
}

void InfoWindow::PlaceControls() {
  const Place text = {kInfoMargin, kInfoMargin, Width() - 2 * kInfoMargin, Height() - 1400};
  rtfInfo_->SetPlace(text);
  Place exit = cmdExit_->GetPlace();
  exit.left = kInfoMargin + text.width - exit.width;
  exit.top = text.top + text.height + 400;
  cmdExit_->SetPlace(exit);
  exit.left = text.left;
  cmdAbout_->SetPlace(exit);
}

void InfoWindow::ShowHelpFile() { Open("Sin_help.hlp", "info for The Vicetoll Financial Calculator"); }

void InfoWindow::ShowInfoFile() { Open("Sin_Info.hlp", "Info and FAQ on The Vicetoll Financial Calculator"); }

void InfoWindow::ShowAbout() {
  Show();
  file_.clear();
  rtfInfo_->SetText(AboutText());
  SetCaption("About The Vicetoll Financial Calculator");
}

void InfoWindow::Open(std::string_view file, std::string_view caption) {
  Show();
  file_ = platform_.ProgramFolder() + "/" + std::string(file);
  if (const auto text = ReadWholeFile(file_, kLargestText))
    rtfInfo_->SetText(FromUtf8(*text));
  else
    rtfInfo_->SetText("This text is missing: the file " + std::string(file) +
                      " should lie beside the program, in the folder " + FromUtf8(platform_.ProgramFolder()) +
                      ".");
  SetCaption(caption);
}

}  // namespace vicetoll
