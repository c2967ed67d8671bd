// Where the controls of a workspace stand in its design, and which labels name which lists and boxes.
#pragma once

#include <span>
#include <string_view>

#include "controls/control.h"
#include "sins/catalogue.h"

namespace vicetoll {

// A control, or a run of elements of a control array, each so far from the one before. Names are those of
// the design without the suffix of their side. Names in angle brackets stand for controls whose names
// differ between sins. In twips, relative to the container.
struct DesignPlace {
  std::string_view name;
  int first, last;  // of an array; kNoIndex both for a single control
  Place place;
  int right = 0, down = 0;
};

// The two side tabs share one layout.
std::span<const DesignPlace> SidePlaces();
// Rows that stand in the place of some of those in sins of that class.
std::span<const DesignPlace> CostPlacesOf(CostClass costClass);
// The summary of a side on the TOTAL tab.
std::span<const DesignPlace> SummaryPlaces();
// What stands once on the TOTAL tab and around the tabs.
std::span<const DesignPlace> SinglePlaces();

// Whose words a list or a box is named by; of arrays, the elements with the same index.
struct NamedBy {
  std::string_view name;
  std::string_view label, secondLabel{};
};
std::span<const NamedBy> SideNames();
std::span<const NamedBy> SingleNames();

}  // namespace vicetoll
