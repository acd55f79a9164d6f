// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "platform/basic/progress.h"
#include "statistics/ages/alter.h"
#include "statistics/options/statistik.h"
#include <QString>
#include <vector>

namespace kalvenor::statistics {

/// One item of the age list; the person's `Counter` is the item's data.
struct Alterszeile {
    qint32 Counter = 0;
    Geschlecht geschlecht = Geschlecht::Unbekannt;
    double tage = 0; ///< of life
    QString listname;

    /// As the list shows it: the age text in 7 characters and the shortened list name.
    QString text() const { return alterstext(tage) + gekuerzterListname(listname); }
};
using Altersliste = std::vector<Alterszeile>;

/// Fills the age list with a line for each marked person whose age at death can be computed and whose sex is selected,
/// in `Listname` order. Rebuilds it from nothing; where an error (or Error(Cancelled)) ends it, the lines added so far
/// stay. With both boxes 0 the list is only cleared. Progress counts the marked persons; returns how many were read.
qint64 alterslistenausgabe(data::Datenbankmodul &databases, const GeschlechtAlter &geschlechtalter, Altersliste &list,
                           const basic::Progress &progress = {});

} // namespace kalvenor::statistics
