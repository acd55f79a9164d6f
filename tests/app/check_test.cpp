// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/check.h"

#include "platform/jet/creator/creator.h"
#include "support/files.h"
#include "support/startedprogram.h"
#include <functional>
#include <gtest/gtest.h>
#include <QFile>

using namespace kalvenor;

namespace {

const std::vector<test::TestPerson> Persons{{.counter = 1, .listname = "A"},
                                            {.counter = 2, .listname = "B", .marked = true}};

QString familyFile(const test::Installation &installation)
{
    test::FakeDesktop desktop;
    const host::Host host(installation.programFolder(), desktop);
    return host.native(host.readPath(installation.settings(), "QV-Files", "0", {}));
}

} // namespace

TEST(Check, FindsAWholeInstallationSound)
{
    const test::Installation installation(Persons);
    const auto result = app::checkInstallation(installation.programFolder());
    EXPECT_TRUE(result.problems.isEmpty()) << result.problems.join('\n').toStdString();
    EXPECT_TRUE(result.good.join('\n').contains("2 Personen, davon 1 markiert"));
}

TEST(Check, NamesWhatIsWrongWithEachPart)
{
    using Spoil = std::function<void(const test::Installation &)>;
    const auto remove = [](const QString &name) -> Spoil {
        return [name](const test::Installation &it) {
            EXPECT_TRUE(QFile::remove(it.hostFolder() + '/' + name));
        };
    };
    const auto setting = [](const QString &section, const QString &key, const QString &value) -> Spoil {
        return [=](const test::Installation &it) {
            test::FakeDesktop desktop;
            host::Host(it.programFolder(), desktop).inischreiben(it.settings(), section, key, value);
        };
    };
    const Spoil bare = [](const test::Installation &it) { // a table without columns and index, and nothing beside
        jet::Creator family;
        using jet::ColumnType;
        auto &persons = family.addTable("Daten", {{.name = "Counter"},
                                                  {.name = "Listname", .type = ColumnType::Text},
                                                  {.name = "Markierung", .type = ColumnType::Boolean}});
        persons.addRow({1, QString("A"), false});
        family.write(familyFile(it));
    };
    const struct {
        const char *what;
        Spoil spoil;
        QStringList words; ///< all of them in one line, which begins with the first
        QString unsaid;    ///< in no line
    } rows[] = {
        {"no settings", remove("programm.ini"), {"fehlt", "programm.ini"}, "\"\""},
        {"no host texts", remove("language.mdb"), {"fehlt", "language.mdb"}, {}},
        {"no texts", remove("ADD-IN-LANGUAGE.MDB"), {"fehlt", "ADD-IN-LANGUAGE.MDB"}, {}},
        {"no database",
         [](const test::Installation &it) { test::writeFile(it.hostFolder() + "/namen.mdb", "no database at all"); },
         {"beschädigt", "namen.mdb"},
         {}},
        {"no output folder", setting("Verzeichnisse", "Prints", "\\nirgends"), {"fehlt", "/nirgends"}, {}},
        {"no path", setting("QV-Files", "0", ""), {"fehlt", "QV-Files"}, {}},
        {"unmapped drive",
         setting("QV-Files", "0", "C:\\Daten\\f.mdb"),
         {"fehlt", "C:\\Daten\\f.mdb", "Laufwerke"},
         "/dev/null"},
        {"other language", setting("Ansicht", "Sprache", "Suomi"), {"missing", "Ereignis.mdb", "Suomi"}, {}},
        {"read-only database",
         [](const test::Installation &it) { QFile::setPermissions(familyFile(it), QFile::ReadOwner); },
         {"gesperrt", "familie.mdb", "schreibgeschützt"},
         "können markiert werden"},
        {"damaged page",
         [](const test::Installation &it) { test::damageFamily(familyFile(it)); },
         {"beschädigt", "familie.mdb", "Tabelle Daten", "Seite"},
         {}},
        {"persons twice",
         [](const test::Installation &it) {
             test::writeFamily(familyFile(it), {{.counter = 1, .listname = "A"}, {.counter = 1, .listname = "B"}});
         },
         {"beschädigt", "familie.mdb", "1 Personen haben einen Counter"},
         "können markiert werden"},
        {"no tables", bare, {"fehlt", "Baum_DS"}, {}},
        {"nor one in whose name a space stands", bare, {"fehlt", "Adressen_DS "}, {}},
        {"no column", bare, {"fehlt", "Daten", "Geburtsdatum"}, {}},
        {"no index", bare, {"fehlt", "Daten", "Index", "Counter"}, {}},
    };
    for (const auto &row : rows) {
        const test::Installation installation(Persons);
        row.spoil(installation);
        const auto result = app::checkInstallation(installation.programFolder());
        const auto isSaid = [&](const QString &line) {
            return line.startsWith(row.words.front()) && !line.contains('\n') &&
                   std::all_of(row.words.begin(), row.words.end(),
                               [&](const QString &word) { return line.contains(word); });
        };
        EXPECT_TRUE(std::any_of(result.problems.begin(), result.problems.end(), isSaid))
            << row.what << ":\n"
            << result.problems.join('\n').toStdString();
        if (!row.unsaid.isEmpty()) {
            EXPECT_FALSE((result.good + result.problems).join('\n').contains(row.unsaid)) << row.what;
        }
    }
}
