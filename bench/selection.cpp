// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// selection PROGRAM-FOLDER PATTERN: times what a person does in the lists, inside the process, on an opened host.
// One line a measure: name, median seconds, how many persons.
#include "app/start/program.h"
#include "selection/filter/filtern.h"
#include "selection/marking/marking.h"
#include "statistics/ages/altersliste.h"
#include "statistics/figures/grafik.h"
#include <algorithm>
#include <cstdio>
#include <functional>
#include <QElapsedTimer>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::selection;

namespace {

constexpr int Rounds = 7;
constexpr int FirstPage = 100;

using Query = std::shared_ptr<dao::Recordset>;

/// A part of the start or of one long action, done once.
void phase(const char *name, const std::function<void()> &work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    std::printf("phase_%s %.6f 0\n", name, static_cast<double>(clock.nsecsElapsed()) / 1e9);
}

/// Runs it several times and prints the median; the result is how many persons it concerned.
void measure(const char *name, const std::function<qint64()> &work)
{
    std::vector<qint64> times;
    qint64 persons = 0;
    for (int round = 0; round < Rounds; ++round) {
        QElapsedTimer clock;
        clock.start();
        persons = work();
        times.push_back(clock.nsecsElapsed());
    }
    std::sort(times.begin(), times.end());
    std::printf("%s %.6f %lld\n", name, static_cast<double>(times[Rounds / 2]) / 1e9, static_cast<long long>(persons));
}

/// The query's first page of names, as a list shows it.
qint64 showFirstPage(dao::Database &family, const QString &query)
{
    const Query rows = family.openQuery(query);
    const int listname = rows->fieldIndex(u"Listname"_s);
    for (int shown = 0; shown < FirstPage && !rows->eof(); rows->moveNext(), ++shown)
        rows->text(listname);
    return rows->recordCount();
}

/// Somebody with many descendants: the earliest born of a sample with the most.
qint32 ancestorOfMany(data::Datenbankmodul &databases)
{
    const Query rows = databases.Familiendatenbank->openQuery(
        u"SELECT * FROM Daten WHERE Geburtsdatum < -100000 AND Vater = 0 ORDER BY Listname;"_s);
    qint32 best = 1;
    std::size_t most = 0;
    for (int tried = 0; tried < 40 && !rows->eof(); rows->moveNext(), ++tried) {
        const qint32 counter = rows->integer(rows->fieldIndex(u"Counter"_s)).value_or(0);
        const auto found = markPersons(databases, std::vector{counter}, true, {.children = true});
        markPersons(databases, found.changed, false);
        if (found.changed.size() > most) {
            most = found.changed.size();
            best = counter;
        }
        if (found.limitReached)
            break;
    }
    return best;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fputs("usage: selection PROGRAM-FOLDER PATTERN\n", stderr);
        return 2;
    }
    try {
        desktop::TerminalDesktop desktop;
        app::Program program(basic::windowsPath(QString::fromLocal8Bit(argv[1])), desktop);
        bool started = false;
        phase("start", [&] { started = program.Main(); });
        if (!started)
            return 1;
        data::Datenbankmodul &databases = program.databases;
        dao::Database &family = *databases.Familiendatenbank;
        const auto showBoth = [&] {
            return showFirstPage(family, plainListQuery(PersonList::Unmarked)) +
                   showFirstPage(family, plainListQuery(PersonList::Marked));
        };
        phase("order", showBoth); // made once for the life of the program
        phase("mark", [&] { family.execute(u"Update Daten SET Markierung = -1 ;"_s); });
        statistics::Altersliste ages;
        phase("ages", [&] { statistics::alterslistenausgabe(databases, {1, 1, 1, 1}, ages); });
        phase("chart", [&] { statistics::grafikermitteln(databases, {}); });
        phase("unmark", [&] { family.execute(u"Update Daten SET Markierung = 0 ;"_s); });

        const QString pattern = QString::fromLocal8Bit(argv[2]);
        measure("filter", [&] {
            return showFirstPage(family, filtern({.Presse = pattern}, basic::systemDateOrder()).queries[0]);
        });
        bool marked = false;
        const Query first = family.openQuery(plainListQuery(PersonList::Unmarked));
        const std::vector person{first->integer(first->fieldIndex(u"Counter"_s)).value_or(0)};
        measure("move", [&] {
            marked = !marked;
            const auto moved = markPersons(databases, person, marked).changed.size();
            showBoth();
            return static_cast<qint64>(moved);
        });
        markPersons(databases, person, false);
        const std::vector ancestor{ancestorOfMany(databases)};
        bool line = false;
        measure("walk", [&] {
            line = !line;
            return static_cast<qint64>(markPersons(databases, ancestor, line, {.children = true}).changed.size());
        });
        markPersons(databases, ancestor, false, {.children = true});
    } catch (const basic::Error &error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
