// SPDX-License-Identifier: GPL-3.0-or-later
#include "controls/hint_line.h"

#include <utility>

namespace vicetoll {

const std::string& HintLine::Text() const {
  for (const std::string* text : {&pointed_, &news_, &focused_})
    if (!text->empty()) return *text;
  return nextStep_;
}

void HintLine::Say(std::string news) {
  news_ = std::move(news);
  newsIsFresh_ = true;
  pointed_.clear();
}

void HintLine::EndAction() {
  if (!std::exchange(newsIsFresh_, false)) news_.clear();
  focused_.clear();
}

}  // namespace vicetoll
