// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "platform/basic/progress.h"
#include <array>
#include <QString>
#include <vector>

namespace kalvenor::statistics {

/// One item of the age list: its text and the person's `Counter` as the item's data.
struct Alterszeile {
    QString text;
    qint32 Counter = 0;
};
using Altersliste = std::vector<Alterszeile>;

/// The sex boxes: 0 men and 1 women of the age list, 2 men and 3 women of the chart. Checked is exactly 1.
using GeschlechtAlter = std::array<qint16, 4>;

/// Fills the age list with a line for each marked person whose age at death can be computed and whose sex is selected,
/// in `Listname` order. Rebuilds it from nothing; where an error (or Error(Cancelled)) ends it, the lines added so far
/// stay. With both boxes 0 the list is only cleared. Progress counts the marked persons; returns how many were read.
qint64 alterslistenausgabe(data::Datenbankmodul &databases, const GeschlechtAlter &geschlechtalter, Altersliste &list,
                           const basic::Progress &progress = {});

} // namespace kalvenor::statistics
