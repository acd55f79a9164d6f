// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "statistics/options/statistik.h"
#include <QString>
#include <vector>

namespace kalvenor::selection {

/// A selection template (.kvl): a statistic with the database it was made on and its persons.
struct Vorlage {
    basic::WindowsPath familienpfad; ///< line 1: of the family database
    statistics::Statistik statistik; ///< lines 2 to 10
    std::vector<qint32> counters;    ///< the marked persons, a line each
    bool lastIsOpen = false;         ///< read from a file that ends behind the last person's number without a line end
    bool operator==(const Vorlage &) const = default;
};

/// Reads and checks the whole file: Windows-1252, or UTF-8 with a byte order mark. A file that ends inside its first
/// ten lines is refused. A number that ends the file without a line end is taken as it stands and told (lastIsOpen):
/// such is what some editors leave, but a file cut inside the number would name another person, and nothing in it can
/// tell. One that was cut behind a line cannot be told from a shorter template. Throws Error (FileNotFound,
/// FileUnreadable, Damaged) naming file and line.
Vorlage readVorlage(const basic::NativePath &file);

/// Writes the file, in one step: the old or the new one is there, whatever happens. In Windows-1252 where path and
/// title fit it, else in UTF-8 with a byte order mark. Throws Error: Refused where something else than a template or an
/// empty file is there; WriteFailed.
void writeVorlage(const basic::NativePath &file, const Vorlage &vorlage);

} // namespace kalvenor::selection
