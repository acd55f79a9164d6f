// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include <span>
#include <vector>

namespace kalvenor::selection {

/// Sets the mark of these persons, each by seek, edit and update of its row. Returns the `Counter` of those whose mark
/// really changed; a person that is not found changes nothing. Throws the engine's Error; marks written so far stay.
std::vector<qint32> markPersons(data::Datenbankmodul &databases, std::span<const qint32> counters, bool marked,
                                const Progress &progress = {});

/// Those of the persons that the person table does not hold.
std::vector<qint32> unknownPersons(data::Datenbankmodul &databases, std::span<const qint32> counters);

} // namespace kalvenor::selection
