// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/text.h"
#include "platform/chart/chart.h"
#include <array>
#include <optional>
#include <QByteArray>
#include <QString>
#include <vector>

namespace kalvenor::statistics {

/// One entry of `Grafiktyp`: its type is the item's data, its place the number that templates and settings keep.
struct ChartTypeEntry {
    chart::ChartType type;
    language::Text name;
};
const std::vector<ChartTypeEntry> &chartTypeEntries();

/// The place of a chart control's type in the list; nothing where there is no such type.
std::optional<int> grafiktypAus(int chartType);

/// The sex boxes: 0 men and 1 women of the age list, 2 men and 3 women of the chart. Checked is exactly 1.
using GeschlechtAlter = std::array<qint16, 4>;

/// A statistic apart from its persons: what its controls hold, a template keeps and the report shows.
struct Statistik {
    QString titel = {};
    QByteArray rtf = {}; ///< the introduction as RTF, empty for none
    int grafiktyp = 1;   ///< place in chartTypeEntries()
    bool legende = true;
    GeschlechtAlter geschlechtalter{1, 1, 1, 1};
    bool nachGeburtsjahr = true; ///< the chart goes by year of birth, else by year of death

    chart::ChartType type() const;
    bool operator==(const Statistik &) const = default;
};

/// The options as they were when the window was closed last: `Kalvenor.ini`, section "Grafik" keys "Grafiktyp",
/// "Legende", "Gebgest" (1 by year of birth, 0 by year of death), section "Geschlecht" keys "0" to "3". What is missing
/// or makes no sense stays as at the first start. No title, no introduction.
Statistik readOptions(const host::Host &host);
void writeOptions(const host::Host &host, const Statistik &statistik);

} // namespace kalvenor::statistics
