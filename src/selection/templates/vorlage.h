// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <QByteArray>
#include <QString>
#include <vector>

namespace kalvenor::selection {

/// Entries of the list `Grafiktyp`; a template holds the index of one, from 0.
inline constexpr int Grafiktypen = 12;

/// What a statistic shows, apart from its persons: lines 2 to 10 of a template.
struct Statistikwerte {
    QString titel;
    QByteArray rtf; ///< the introduction as RTF, empty for none
    int grafiktyp = 1;
    int legende = 1;                                   ///< 0 or 1
    std::array<qint16, 4> geschlechtalter{1, 1, 1, 1}; ///< 0 or 1 each: men and women of the age list, of the chart
    bool nachGeburtsjahr = true;                       ///< the chart goes by year of birth, else by year of death

    bool operator==(const Statistikwerte &) const = default;
};

/// A selection template (.kvl): a statistic with the database it was made on and its persons.
struct Vorlage : Statistikwerte {
    QString familienpfad;         ///< of the family database, in Windows notation
    std::vector<qint32> counters; ///< the marked persons
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
