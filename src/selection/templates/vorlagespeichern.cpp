// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlagespeichern.h"

#include "platform/basic/number.h"

using namespace Qt::StringLiterals;

namespace kalvenor::selection {

namespace {

constexpr qint64 PersonsBetweenReports = 4096;

} // namespace

qsizetype vorlagespeichern(const host::Host &host, const data::Datenbankmodul &databases,
                           const basic::WindowsPath &File, const statistics::Statistik &statistik,
                           const basic::Progress &progress)
{
    if (File.isEmpty())
        return 0;
    Vorlage vorlage{host.Familienpfad, statistik, {}};
    const auto persons =
        databases.Familiendatenbank->openQuery(u"SELECT Counter FROM Daten WHERE Markierung = -1 ;"_s, progress);
    const int field = persons->fieldIndex(u"Counter"_s);
    const qint64 count = persons->recordCount();
    vorlage.counters.reserve(static_cast<std::size_t>(count));
    for (; !persons->eof(); persons->moveNext()) {
        if (progress && persons->position() % PersonsBetweenReports == 0 && !progress(persons->position(), count))
            throw basic::Error(basic::Fault::StoppedSaving);
        if (const auto counter = persons->integer(field))
            vorlage.counters.push_back(*counter);
    }
    persons->close();
    writeVorlage(host.native(File), vorlage);
    return static_cast<qsizetype>(vorlage.counters.size());
}

statistics::Statistik vorlageclear(const host::Host &host)
{
    statistics::Statistik statistik = statistics::readOptions(host);
    // One key for all four boxes; the boxes themselves are stored under other keys.
    const double box = basic::leadingNumber(host.inilesen(host.ownSettingsFile(), u"Geschlecht"_s, u"a%"_s, u"1"_s));
    statistik.geschlechtalter.fill(box >= 0 && box < 1 ? 0 : 1);
    return statistik;
}

} // namespace kalvenor::selection
