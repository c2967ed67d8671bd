// SPDX-License-Identifier: GPL-3.0-or-later
// Workspaces and report windows on a fake outside world, with periods written straight into the store.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "calendar/money.h"
#include "reports/report_operations.h"
#include "reports/report_windows.h"
#include "scenario/scripted_platform.h"
#include "vocabulary/text_functions.h"
#include "workspace/loading.h"

namespace vicetoll {

class ReportWorld : public Workspaces, public ReportWindows {
 public:
  ScriptedPlatform platform;
  Session session{platform};

  // A workspace is loaded on both sides at its creation, its result buttons connected.
  SinWorkspace& At(int position) override {
    auto& slot = workspaces_.at(position);
    if (slot == nullptr) {
      slot = std::make_unique<SinWorkspace>(session, position);
      LoadParameters(slot->Of(Side::Past));
      LoadParameters(slot->Of(Side::Future));
      ConnectReports(*slot, *this, *this);
    }
    return *slot;
  }
  SinWorkspace& At(std::string_view key) { return At(SinPosition(key)); }
  bool Exists(std::string_view key) const { return workspaces_.at(SinPosition(key)) != nullptr; }
  Session& GetSession() override { return session; }

  SpdWindow& Spd() override {
    if (spd_ == nullptr) spd_ = std::make_unique<SpdWindow>(*this);
    return *spd_;
  }
  DocWindow& Doc() override {
    if (doc_ == nullptr) doc_ = std::make_unique<DocWindow>(*this);
    return *doc_;
  }
  bool DocExists() const { return doc_ != nullptr; }

  // Makes the sin current and returns its workspace.
  SinWorkspace& Switch(std::string_view key) {
    session.CurrentSinKey = key;
    return At(key);
  }

 private:
  std::array<std::unique_ptr<SinWorkspace>, kSinCount> workspaces_;
  std::unique_ptr<SpdWindow> spd_;
  std::unique_ptr<DocWindow> doc_;
};

// A period to write into the store: set, enabled, its cost box open. The costs stay what they are (initial
// and final cost alike, no increase), so that every month of it costs the same. Without a quantity position
// it has the sin's default: one pack, "$20", three coffees.
struct TestPeriod {
  std::string start, stop;
  std::string interest = "12%", inflation = "0%";
  std::string cost = "$2.00";
  std::string reasonable = "$0.50";
  bool enabled = true;
};

inline PeriodRecord& Write(SinWorkspace& ws, Side side, int p, const TestPeriod& period) {
  PeriodRecord& record = ws.Of(side).Record(p);
  record.PeriodSet = true;
  record.PeriodEnabled = period.enabled;
  record.StartLabel = period.start;
  record.StopLabel = period.stop;
  record.InterestRateText = period.interest;
  record.InflationRateText = period.inflation;
  record.PercentIncreaseText = "0%";
  record.InitialCostText = record.FinalCostText = period.cost;
  record.ReasonableCostText = period.reasonable;
  record.CostModeFlag = false;
  ws.Of(side).txtResultsPeriod(p).SetAvailable(period.enabled);
  return record;
}

// A cell as rows and table lines have it: padded, a blank, a tab.
inline std::string CellText(std::string_view text, std::int16_t width = 0) {
  return PadRight(text, width) + " \t";
}

// The cells of a row without their padding.
inline std::vector<std::string> Trimmed(std::string_view row) {
  std::vector<std::string> cells(1);
  for (char c : row) {
    if (c == '\t')
      cells.emplace_back();
    else
      cells.back() += c;
  }
  for (std::string& cell : cells) cell.erase(cell.find_last_not_of(' ') + 1);
  return cells;
}

// The lines of a text; each must end in CR LF.
inline std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = text.find("\r\n", at);
    if (end == std::string::npos) {
      lines.push_back("no line end: " + text.substr(at));
      break;
    }
    lines.push_back(text.substr(at, end - at));
    at = end + 2;
  }
  return lines;
}

}  // namespace vicetoll
