// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/options/statistik.h"
#include <QString>
#include <vector>

namespace kalvenor::selection {

/// A selection template (.kvl): a statistic with the database it was made on and its persons.
struct Vorlage {
    QString familienpfad;            ///< line 1: of the family database, in Windows notation
    statistics::Statistik statistik; ///< lines 2 to 10
    std::vector<qint32> counters;    ///< the marked persons, a line each
    bool operator==(const Vorlage &) const = default;
};

/// Reads and checks the whole file. A file that ends inside a line is refused, for it would name another person; one
/// that was cut behind a line cannot be told from a shorter template. Throws Error (FileNotFound, FileUnreadable,
/// Damaged) naming file and line. `nativeFile` is a native path.
Vorlage readVorlage(const QString &nativeFile);

/// Writes the file, in one step: the old or the new one is there, whatever happens. Throws Error: Refused where path or
/// title hold characters beyond Windows-1252, which a template cannot keep; WriteFailed.
void writeVorlage(const QString &nativeFile, const Vorlage &vorlage);

} // namespace kalvenor::selection
