// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "platform/chart/chart.h"
#include "statistics/figures/grafik.h"
#include <vector>

namespace kalvenor::statistics {

/// One entry of `Grafiktyp`: its type is the item's data, its place the number that templates and settings keep.
struct ChartTypeEntry {
    chart::ChartType type;
    qint16 textId;
    const char *germanText; ///< UTF-8
};
const std::vector<ChartTypeEntry> &chartTypeEntries();

/// The statistic's controls as they stand.
struct StatisticsOptions {
    int grafiktyp = 1; ///< place in chartTypeEntries()
    bool legende = true;
    GeschlechtAlter geschlechtalter{1, 1, 1, 1};
    bool nachGeburtsjahr = true;

    Grafikwahl wahl() const { return {.geschlechtalter = geschlechtalter, .nachGeburtsjahr = nachGeburtsjahr}; }
    chart::ChartType type() const;
    bool operator==(const StatisticsOptions &) const = default;
};

/// As they were when the window was closed last: `Kalvenor.ini`, section "Grafik" keys "Grafiktyp", "Legende",
/// "Gebgest" (1 by year of birth, 0 by year of death), section "Geschlecht" keys "0" to "3". What is missing or makes
/// no sense stays as at the first start.
StatisticsOptions readOptions(const host::Host &host);
void writeOptions(const host::Host &host, const StatisticsOptions &options);

} // namespace kalvenor::statistics
