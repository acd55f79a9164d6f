// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlagespeichern.h"

#include "data/datevalue.h"
#include "platform/basic/number.h"

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

namespace {

constexpr qint64 PersonsBetweenReports = 4096;

/// The number without its decimals where it lies within the bounds, else the fallback.
int numberWithin(const QString &text, int from, int to, int fallback)
{
    const double number = basic::leadingNumber(text);
    return number >= from && number < to + 1 ? static_cast<int>(number) : fallback;
}

} // namespace

qsizetype vorlagespeichern(const host::Host &host, const data::Datenbankmodul &databases, const QString &File,
                           const Statistikwerte &werte, const basic::Progress &progress)
{
    if (File.isEmpty())
        return 0;
    Vorlage vorlage{werte, host.Familienpfad, {}};
    const auto persons =
        databases.Familiendatenbank->openQuery(u"SELECT Counter FROM Daten WHERE Markierung = -1 ;"_s, progress);
    const int field = persons->fieldIndex(u"Counter"_s);
    const qint64 count = persons->recordCount();
    vorlage.counters.reserve(static_cast<std::size_t>(count));
    for (; !persons->eof(); persons->moveNext()) {
        if (progress && persons->position() % PersonsBetweenReports == 0 && !progress(persons->position(), count))
            throw basic::Error(basic::ErrorKind::Cancelled, {}, u"Stopped; the template was not saved."_s);
        if (const auto counter = persons->integer(field))
            vorlage.counters.push_back(*counter);
    }
    persons->close();
    writeVorlage(host.native(File), vorlage);
    return static_cast<qsizetype>(vorlage.counters.size());
}

Statistikwerte vorlageclear(const host::Host &host)
{
    const auto read = [&](const char *section, const char *key, const char *fallback) {
        return host.inilesen(host.ownSettingsFile(), QLatin1String(section), QLatin1String(key),
                             QLatin1String(fallback));
    };
    Statistikwerte werte;
    werte.grafiktyp = numberWithin(read("Grafik", "Grafiktyp", "1"), 0, Grafiktypen - 1, werte.grafiktyp);
    werte.legende = basic::leadingNumber(read("Grafik", "Legende", "1")) != 0 ? 1 : 0;
    // One key for all four boxes; the boxes themselves are stored under other keys.
    for (qint16 &box : werte.geschlechtalter)
        box = static_cast<qint16>(numberWithin(read("Geschlecht", "a%", "1"), 0, 1, 1));
    const QString byBirth = read("Grafik", "Gebgest", "1");
    werte.nachGeburtsjahr = data::textwahr(byBirth) || basic::leadingNumber(byBirth) != 0;
    return werte;
}

} // namespace kalvenor::selection
