// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include <span>
#include <vector>

namespace kalvenor::selection {

/// Which related persons go along: the boxes `quellenpincl`(0) and (1).
struct Relatives {
    bool children = false; ///< all descendants of the direct line
    bool parents = false;  ///< all ancestors of the direct line

    bool operator==(const Relatives &) const = default;
};

/// Related persons one walk takes along at most.
inline constexpr int RelativesLimit = 1000;

struct MarkingResult {
    std::vector<qint32> changed;    ///< `Counter` of those whose mark really changed
    std::vector<dao::LeftRow> left; ///< those whose mark could not be changed
    bool limitReached = false;      ///< the walk ended at the limit; the marks written so far stay
};

/// Sets the mark of these persons and of their relatives. A person that is not found changes nothing. Each person is
/// taken once, so loops in the data are harmless. Throws the engine's Error, also for a single person that cannot be
/// marked; marks written before stay.
MarkingResult markPersons(data::Datenbankmodul &databases, std::span<const qint32> counters, bool marked,
                          Relatives relatives = {}, const basic::Progress &progress = {});

/// Those of the persons that the person table does not hold.
std::vector<qint32> unknownPersons(data::Datenbankmodul &databases, std::span<const qint32> counters);

} // namespace kalvenor::selection
