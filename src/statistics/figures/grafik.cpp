// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "statistics/figures/grafik.h"

#include "platform/basic/date.h"
#include "platform/basic/number.h"
#include "statistics/ages/markierte.h"
#include <algorithm>
#include <cmath>
#include <functional>

using namespace Qt::StringLiterals;

namespace kalvenor::statistics {

namespace {

constexpr int FirstCentury = 1;
constexpr int LastCentury = 99;
constexpr int LatestFirstRow = 18;

/// The first days of the centuries 1 to 99, and of the year 10000.
const std::array<double, LastCentury + 1> &centuryStarts()
{
    static const auto starts = [] {
        std::array<double, LastCentury + 1> days{};
        for (int century = FirstCentury; century <= LastCentury; ++century)
            days[static_cast<std::size_t>(century - FirstCentury)] =
                static_cast<double>(*basic::dayNumber(century * 100, 1, 1));
        days.back() = static_cast<double>(*basic::dayNumber(9999, 12, 31) + 1);
        return days;
    }();
    return starts;
}

/// With its time of day a date may round up to the next day, and below day 0 its fraction counts forwards.
int centuryOfMoment(double tag)
{
    return basic::formatDate(tag, u"dd-mm-yyyy").mid(6, 2).toInt();
}

/// The chart counts a person of unknown sex with the women.
Gruppe groupOf(Geschlecht geschlecht)
{
    return geschlecht == Geschlecht::Mann ? Maenner : Frauen;
}

QString averageText(double days, qint64 persons)
{
    if (persons < 1)
        return u"-"_s;
    return basic::trimmedNumberText(std::floor(days / 365 / static_cast<double>(persons) * 10) / 10);
}

} // namespace

int jahrhundert(double tag)
{
    const auto &starts = centuryStarts();
    int century = 0;
    if (tag != std::trunc(tag)) {
        century = centuryOfMoment(tag);
    } else if (tag < starts.back()) {
        const auto next = std::upper_bound(starts.begin(), starts.end(), tag);
        century = static_cast<int>(next - starts.begin()); // 0 before the first
    }
    if (century < FirstCentury)
        throw basic::Error(basic::Fault::DayOutOfRange, {}, {basic::trimmedNumberText(tag)});
    return century;
}

std::optional<int> Grafikermittlung::add(std::optional<double> geburtsdatum, std::optional<double> sterbedatum,
                                         Geschlecht geschlecht)
{
    ++m_personen.markiert;
    if (!istBekannt(geburtsdatum) || !istBekannt(sterbedatum)) {
        ++m_personen.ohneDatum;
        return std::nullopt;
    }
    const auto days = lebenstage(geburtsdatum, sterbedatum);
    if (!days) {
        ++m_personen.nichtNachGeburt;
        return std::nullopt;
    }

    const auto count = [&](Gruppe group) {
        m_tage[group] += *days;
        ++m_anzahl[group];
    };
    if (geschlecht == Geschlecht::Mann)
        count(Maenner);
    else if (geschlecht == Geschlecht::Frau)
        count(Frauen);
    else
        ++m_personen.ohneGeschlecht;
    count(Alle);

    if (passes(geschlecht)) {
        m_niedrigstes = std::min(m_niedrigstes, *days);
        m_hoechstes = std::max(m_hoechstes, *days);
        m_jahrhundert = jahrhundert(m_statistik.nachGeburtsjahr ? *geburtsdatum : *sterbedatum);
    }
    addToCentury(geschlecht, *days);
    return m_jahrhundert;
}

bool Grafikermittlung::passes(Geschlecht geschlecht) const
{
    const GeschlechtAlter &boxes = m_statistik.geschlechtalter;
    return (geschlecht == Geschlecht::Mann && boxes[2] == 1) || (geschlecht == Geschlecht::Frau && boxes[3] == 1);
}

/// Surprising, and so decided: a person who does not pass the boxes still counts, in the century of the last one who
/// did, and a person of unknown sex counts with the women.
void Grafikermittlung::addToCentury(Geschlecht geschlecht, double days)
{
    const auto century = static_cast<std::size_t>(m_jahrhundert);
    if (century >= m_jahrhunderte.size())
        m_jahrhunderte.resize(century + 1);
    for (const Gruppe group : {groupOf(geschlecht), Alle}) {
        Zelle &cell = m_jahrhunderte[century][group];
        ++cell.anzahl;
        cell.jahre += days / 365;
    }
}

Grafikzahlen Grafikermittlung::zahlen() const
{
    Grafikzahlen figures;
    for (const Gruppe group : {Maenner, Frauen, Alle}) {
        figures.anzahl[group] = QString::number(m_anzahl[group]);
        figures.durchschnitt[group] = averageText(m_tage[group], m_anzahl[group]);
    }
    // 999 is not where the lowest age starts; kept so.
    const double lowest = m_niedrigstes == 999 ? 0 : m_niedrigstes;
    if (lowest < m_hoechstes)
        figures.spanne =
            basic::numberText(altersjahre(lowest)) + u" | "_s + basic::numberText(altersjahre(m_hoechstes));
    figures.ohneDatum = basic::numberText(static_cast<double>(m_personen.ohneDatum)) + u" ohne * / + Datum"_s;
    fillTable(figures);
    figures.zahlen = m_personen;
    figures.zahlen.gezaehlt = m_anzahl[Alle];
    return figures;
}

void Grafikermittlung::fillTable(Grafikzahlen &figures) const
{
    static const std::array<QString, 3> Labels{u"M"_s, u"W"_s, u"Alle"_s};
    const bool men = m_statistik.geschlechtalter[2] == 1;
    const bool women = m_statistik.geschlechtalter[3] == 1;
    std::vector<Gruppe> columns{men ? Maenner : women ? Frauen : Alle};
    if (men && women)
        columns = {Maenner, Frauen, Alle};
    for (const Gruppe column : columns)
        figures.tabelle.columnLabels << Labels[column];
    figures.gruppen = columns;

    // Whoever passed has left years in a century from 1 on, so that without a first century there is nothing to show.
    const auto hasYears = [](const auto &cells) {
        return cells[Maenner].jahre != 0 || cells[Frauen].jahre != 0;
    };
    if (m_jahrhunderte.empty())
        return;
    const auto first = std::find_if(m_jahrhunderte.begin() + 1, m_jahrhunderte.end(), hasYears);
    if (first == m_jahrhunderte.end())
        return;

    const auto begin = std::min<std::size_t>(static_cast<std::size_t>(first - m_jahrhunderte.begin()), LatestFirstRow);
    figures.erstesJahrhundert = static_cast<int>(begin);
    for (std::size_t century = begin; century < m_jahrhunderte.size(); ++century) {
        figures.tabelle.rowLabels << basic::numberText(static_cast<double>(century)) + u"00-99"_s;
        QStringList averages;
        std::vector<qint64> persons;
        for (const Gruppe column : columns) {
            const Zelle &cell = m_jahrhunderte[century][column];
            // The runtime's own conversion would write the system's decimal comma; the chart takes a point.
            averages << basic::trimmedNumberText(cell.jahre / static_cast<double>(std::max<qint64>(cell.anzahl, 1)));
            persons.push_back(cell.anzahl);
        }
        figures.tabelle.data.push_back(averages);
        figures.personen.push_back(persons);
    }
}

namespace {

/// Shows the visitor each marked person and the century in which the person counts. Returns how many are marked.
qint64 gatherMarked(data::Datenbankmodul &databases, Grafikermittlung &figures, const basic::Progress &progress,
                    const std::function<void(const Markierter &, std::optional<int>)> &visit)
{
    return jedenMarkierten(databases, basic::Fault::StoppedChart, progress, [&](const Markierter &person) {
        try {
            const auto century = figures.add(person.Geburtsdatum, person.Sterbedatum, person.geschlecht);
            if (visit)
                visit(person, century);
        } catch (const basic::Error &error) {
            throw error.at({.item = u"%1 (%2)"_s.arg(person.listname()).arg(person.Counter)});
        }
    });
}

} // namespace

Grafikzahlen grafikermitteln(data::Datenbankmodul &databases, const Statistik &statistik,
                             const basic::Progress &progress)
{
    Grafikermittlung figures(statistik);
    const qint64 marked = gatherMarked(databases, figures, progress, {});
    Grafikzahlen result = figures.zahlen();
    result.zahlen.markiert = marked;
    return result;
}

Saeule saeule(data::Datenbankmodul &databases, const Statistik &statistik, Gruppe gruppe, int jahrhundert,
              const basic::Progress &progress)
{
    Saeule result;
    Grafikermittlung figures(statistik);
    gatherMarked(databases, figures, progress, [&](const Markierter &person, std::optional<int> century) {
        const bool counts = century == jahrhundert && (gruppe == Alle || gruppe == groupOf(person.geschlecht));
        (counts ? result.personen : result.uebrige).push_back(person.Counter);
    });
    return result;
}

} // namespace kalvenor::statistics
