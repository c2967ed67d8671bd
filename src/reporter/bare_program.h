// SPDX-License-Identifier: GPL-3.0-or-later
// A program without the windows around its workspaces: entries are opened in it, and reports made of it.
#pragma once

#include <array>
#include <memory>

#include "entries/capture.h"

namespace vicetoll {

class BareProgram final : public FreshProgram {
 public:
  explicit BareProgram(Platform& platform) : session_(platform) {}

  SinWorkspace& At(int position) override;
  Session& GetSession() override { return session_; }
  SinWorkspace& Enter(int position) override;
  void TurnToEuro() override { session_.currency = Currency::Euro; }

 private:
  Session session_;
  std::array<std::unique_ptr<SinWorkspace>, kSinCount> workspaces_;
};

}  // namespace vicetoll
