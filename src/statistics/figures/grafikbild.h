// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "host/host.h"
#include "language/texts/sprache.h"
#include "platform/chart/chart.h"
#include "statistics/figures/grafik.h"

// How the chart looks in the window, in the report and as a picture.
namespace kalvenor::statistics {

/// Texts in the person's language, fonts by the setting `Fontfaktor` (default 3). `emptyText` asks to mark persons.
chart::ChartLook grafiklook(language::Sprachmodul &texts, const host::Host &host, const Statistik &statistik);

/// Why there is no chart, for a table that is empty.
language::Text leerGrund(const Personenzahlen &persons);

} // namespace kalvenor::statistics
