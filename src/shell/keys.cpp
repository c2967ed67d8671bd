// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/keys.h"

namespace vicetoll {
namespace {

struct AccessKey {
  std::string_view name;
  char letter;  // as the caption has it
};

// Buttons that can be in front together have different letters, none of them one of the tabs' P, U and T.
// A button that only some sins have takes none away from the others.
// clang-format off
constexpr AccessKey kAccessKeys[] = {
    // around the tabs
    {"cmdSwitchSins",              'w'},
    {"cmdCombinedResults",         'b'},
    {"cmdExit",                    'x'},
    {"cmdHelp",                    'H'},
    {"cmdFaq",                     'Q'},
    {"cmdEuro",                    'y'},
    {"cmdRestoreProgram",          'g'},
    // the strip
    {"cmdOpenEntries",             'O'},
    {"cmdSaveEntries",             'v'},
    {"cmdSaveEntriesAs",           'A'},
    {"cmdGrowthChart",             'r'},
    // PAST and FUTURE
    {"cmdSetPeriodParamsPast",     'm'}, {"cmdSetPeriodParamsFut",      'm'},
    {"cmdAdvResultsSpdPast",       'S'}, {"cmdAdvResultsSpdFut",        'S'},
    {"cmdAdvResultsDocPast",       'D'}, {"cmdAdvResultsDocFut",        'D'},
    {"cmdHideAdvertisingPast",     'k'}, {"cmdHideAdvertisingFut",      'k'},
    {"cmdOrvaneWebsite",           'i'},
    // TOTAL
    {"cmdAdvResultsSpdSummaryPast",'S'}, {"cmdAdvResultsDocSummaryPast",'D'},
    {"cmdAdvResultsSpdSummaryFut", 'l'}, {"cmdAdvResultsDocSummaryFut", 'n'},
    {"cmdAdvResultsSpdSummaryTot", 'c'}, {"cmdAdvResultsDocSummaryTot", 'm'},
    {"cmdCumulativeFutureDateTot", 'e'},
};
// clang-format on

}  // namespace

void GiveKeys(SinWorkspace& ws) {
  for (const AccessKey& key : kAccessKeys)
    if (auto* button = dynamic_cast<Button*>(ws.Find(key.name))) button->SetAccessKey(key.letter);
  ws.Get<Button>("cmdHelp").SetKeys("F1");
  ws.Get<Button>("cmdExit").SetKeys("Ctrl+Q");
}

}  // namespace vicetoll
