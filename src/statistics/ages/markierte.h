// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "platform/basic/error.h"
#include "platform/basic/progress.h"
#include "statistics/ages/alter.h"
#include <functional>
#include <QString>

// The persons of all statistics: those that are marked.
namespace kalvenor::statistics {

/// What the statistics read of a person. Valid until the visitor returns.
class Markierter {
public:
    Markierter(const dao::Recordset &row, int listname) : m_row(row), m_listname(listname) {}
    qint32 Counter = 0;
    std::optional<double> Geburtsdatum; ///< day number; nothing where the field is empty
    std::optional<double> Sterbedatum;
    Geschlecht geschlecht = Geschlecht::Unbekannt;
    /// Valid until the next call.
    QStringView listname() const { return m_row.text(m_listname, m_name); }

private:
    const dao::Recordset &m_row;
    int m_listname;
    mutable QString m_name;
};

/// Calls the visitor for each marked person in `Listname` order; one that the index "Counter" does not find is passed
/// over. Returns how many are marked, found or not. Progress counts them; asked to end, it throws
/// Error(Cancelled) with the text `stopped`.
qint64 jedenMarkierten(data::Datenbankmodul &databases, basic::Fault stopped, const basic::Progress &progress,
                       const std::function<void(const Markierter &)> &visit);

} // namespace kalvenor::statistics
