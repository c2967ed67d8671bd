// SPDX-License-Identifier: GPL-3.0-or-later
// The movers between screen and store, and the quantity lists that they bring back.
//
// SetSmokingParametersPast, GetDrinkingParametersFuture and their like are the four operations below,
// under the names their sins give them.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "workspace/sin_workspace.h"

namespace vicetoll {

// Makes the period (its number as text) the selected one of the side and titles frmDaily with it.
void SetPeriodParameters(WorkspaceSide& side, std::string_view period);

// Screen to store.
void SetParameters(WorkspaceSide& side, int period);

// Store to screen: as clicks on the stored options and picks of the stored entries would show it.
void GetParameters(WorkspaceSide& side, int period);

// The part of GetParameters that all sins share: dates and rates.
void LoadSharedParameters(WorkspaceSide& side, int period);

// Opens the options of periods 2 to n, or the frames and radios of those, and closes the rest. What
// belongs to period 1 is left alone.
void OpenPeriodOptions(WorkspaceSide& side, int n);
void OpenPeriodRadios(WorkspaceSide& side, int n);

// Shows packs or cigarettes (Smoking), with the label of the unit.
void ShowPacksOrCigarettes(WorkspaceSide& side);
// Empties the quantity list and fills it for the unit option that is on (all sins but Smoking), with the
// label of the unit. The text becomes the entry at the position, the last one for a position past the end.
void RefillUnitList(WorkspaceSide& side, int position);
// Shows the cost lists of the cost mode that is on, with their labels.
void ShowCostMode(WorkspaceSide& side);

// The text of the quantity that a stored period counts with: the entry at its position in the list of the
// unit option that is on now, the last entry for a position past the end.
const std::string& QuantityText(const WorkspaceSide& side, int period);

// The entries of a value list, in the currency of the run.
std::vector<std::string> EntriesOf(const SinWorkspace& ws, const ListDefinition& definition);
// The same in another format than the list's own.
std::vector<std::string> EntriesIn(const NumberFormat& format, const ListDefinition& definition);

// Appends the entries of a value list.
void AppendEntries(const SinWorkspace& ws, DropDownList& list, const ListDefinition& definition);

// The number of entries of a value list.
int EntryCount(const ListDefinition& definition);

// The quantity list's definition in a unit (Smoking: packs for per day, cigarettes for per month).
const ListDefinition& UnitList(const SinRow& sin, Unit unit);

}  // namespace vicetoll
