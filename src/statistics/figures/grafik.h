// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "data/datenbankmodul.h"
#include "platform/basic/progress.h"
#include "platform/chart/chart.h"
#include "statistics/ages/alter.h"
#include "statistics/options/statistik.h"
#include <array>
#include <optional>
#include <QString>
#include <vector>

// The average age at death per century, and the figures beside the chart.
namespace kalvenor::statistics {

/// The places of men, women and all in what is kept for each.
enum Gruppe : std::size_t { Maenner, Frauen, Alle };

/// How many of the marked persons take part and why the others do not.
struct Personenzahlen {
    qint64 markiert = 0;
    qint64 gezaehlt = 0;
    qint64 ohneDatum = 0;       ///< birth or death not known
    qint64 nichtNachGeburt = 0; ///< both known, death not after birth
    qint64 ohneGeschlecht = 0;  ///< of those counted
};

/// Texts exactly as labels and chart show them.
struct Grafikzahlen {
    std::array<QString, 3> anzahl;       ///< persons counted: men, women, all
    std::array<QString, 3> durchschnitt; ///< years, "-" without persons
    std::optional<QString> spanne;       ///< " 12.3 |  98"; nothing where the label is not written
    QString ohneDatum;                   ///< " 7 ohne * / + Datum"
    /// A row a century; three columns with both sexes, else one. Empty where no person passes the boxes.
    chart::ChartTable tabelle;
    std::vector<std::vector<qint64>> personen; ///< behind each figure of the table
    std::vector<Gruppe> gruppen;               ///< of its columns
    int erstesJahrhundert = 0;                 ///< of its rows
    Personenzahlen zahlen;
};

/// First two digits of a day number's year, as "dd-mm-yyyy" shows them. Throws Error(Overflow) for a day outside the
/// years 100 to 9999.
int jahrhundert(double tag);

/// Gathers the figures, person by person in `Listname` order.
class Grafikermittlung {
public:
    explicit Grafikermittlung(const Statistik &statistik) : m_statistik(statistik) {}
    /// The century in which the person counts; nothing where the person does not count at all. Throws Error(Overflow)
    /// where the chosen date lies outside the calendar; the totals then have the person already.
    std::optional<int> add(std::optional<double> geburtsdatum, std::optional<double> sterbedatum,
                           Geschlecht geschlecht);
    /// The figures of all added so far; zahlen.markiert is how often add was called.
    Grafikzahlen zahlen() const;

private:
    struct Zelle {
        qint64 anzahl = 0;
        double jahre = 0;
    };
    bool passes(Geschlecht geschlecht) const;
    void addToCentury(Geschlecht geschlecht, double days);
    void fillTable(Grafikzahlen &zahlen) const;

    Statistik m_statistik; ///< its grouping and its boxes 2 and 3
    // The counters were 16 bits wide once; a million persons need more.
    std::array<qint64, 3> m_anzahl{};
    std::array<double, 3> m_tage{};
    double m_niedrigstes = 99999; ///< days
    double m_hoechstes = 0;
    int m_jahrhundert = 0;                            ///< of the last person who passed the boxes
    std::vector<std::array<Zelle, 3>> m_jahrhunderte; ///< by century
    Personenzahlen m_personen;
};

/// The figures of the marked persons. Progress counts them. Throws Error(Cancelled), Error(Overflow) naming a person
/// whose date lies outside the calendar, and the engine's errors.
Grafikzahlen grafikermitteln(data::Datenbankmodul &databases, const Statistik &statistik,
                             const basic::Progress &progress = {});

/// The marked persons, by whether they are behind one figure of the chart.
struct Saeule {
    std::vector<qint32> personen; ///< `Counter` of those who count in it
    std::vector<qint32> uebrige;  ///< of all others
};
/// Whose ages the figure of that group and century averages, as grafikermitteln counts. Errors as there.
Saeule saeule(data::Datenbankmodul &databases, const Statistik &statistik, Gruppe gruppe, int jahrhundert,
              const basic::Progress &progress = {});

} // namespace kalvenor::statistics
