// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "selection/templates/vorlage.h"

namespace kalvenor::selection {

/// Saves the statistic with the open family database and all marked persons. An empty path
/// writes nothing. Gives back how many persons it holds. Throws as the engine and writeVorlage; the former
/// file is then still there.
qsizetype vorlagespeichern(const host::Host &host, const data::Datenbankmodul &databases,
                           const basic::WindowsPath &File, const statistics::Statistik &statistik,
                           const basic::Progress &progress = {});

/// The clean state of a statistic: no title, no introduction, the chart options from the print settings
/// (Kalvenor.ini). Options that the file lacks or that cannot be give the bar chart by year of birth, with legend.
statistics::Statistik vorlageclear(const host::Host &host);

} // namespace kalvenor::selection
