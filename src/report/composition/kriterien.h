// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "language/texts/sprache.h"
#include "selection/filter/filtern.h"
#include "selection/marking/marking.h"
#include "statistics/figures/grafik.h"
#include <QStringList>

namespace kalvenor::report {

/// What the persons were chosen by, and what the figures rest on.
struct Auswahlkriterien {
    selection::Filter filter = {};       ///< as the filter controls stand
    bool filtered = false;               ///< a list shows the filter at this moment
    selection::Relatives relatives = {}; ///< taken along when persons are moved

    bool operator==(const Auswahlkriterien &) const = default;
};

/// One line for each criterion that is active, in fixed order: name pattern, sex, dates of birth, death, last change
/// and the filtered list (these while a filter is shown), relatives, grouping of the chart, then number of persons,
/// averages, range and who was left out: without a date, not died after birth, not of the age list's sexes.
QStringList kriterien(const Auswahlkriterien &criteria, const statistics::Statistik &statistik,
                      const statistics::Grafikzahlen &figures, std::size_t listedPersons,
                      language::Sprachmodul &language);

} // namespace kalvenor::report
