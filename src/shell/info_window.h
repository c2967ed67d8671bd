// SPDX-License-Identifier: GPL-3.0-or-later
// The window that shows the two help texts.
#pragma once

#include <string>
#include <string_view>

#include "base/platform.h"
#include "controls/document_text.h"
#include "controls/form.h"

namespace vicetoll {

// The texts are files that lie beside the program, written in Markdown. One window shows either.
class InfoWindow : public Form {
 public:
  explicit InfoWindow(Platform& platform);

  Button* CloseButton() const override { return cmdExit_; }
  Control* FirstFocus() const override { return rtfInfo_; }

  // Show the window with the manual, or with questions and answers. A missing file shows a sentence that
  // names it.
  void ShowHelpFile();
  void ShowInfoFile();
  // Shows what the program says of itself.
  void ShowAbout();

  // The path of the file shown, in the encoding of the file system; empty before the first showing. The
  // pictures that a text names lie beside it.
  const std::string& File() const { return file_; }

 private:
  void Open(std::string_view file, std::string_view caption);
  void PlaceControls();

  Platform& platform_;
  DocumentText* rtfInfo_;
  Button* cmdExit_;
  Button* cmdAbout_;
  std::string file_;
};

}  // namespace vicetoll
