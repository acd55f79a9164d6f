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
        family.write(it.family());
    };
    const Spoil noDatabase = [](const test::Installation &it) {
        test::writeFile(it.hostFolder() + "/namen.mdb", "no database at all");
    };
    const Spoil readOnly = [](const test::Installation &it) {
        QFile::setPermissions(it.family(), QFile::ReadOwner);
    };
    const Spoil damaged = [](const test::Installation &it) {
        test::damageFamily(it.family());
    };
    const Spoil twice = [](const test::Installation &it) {
        test::writeFamily(it.family(), {{.counter = 1, .listname = "A"}, {.counter = 1, .listname = "B"}});
    };
    const struct {
        Spoil spoil;
        QStringList words;   ///< all of them in one line, which begins with the first
        QString unsaid = {}; ///< in no line
    } rows[] = {
        {remove("programm.ini"), {"fehlt", "programm.ini"}, "\"\""},
        {remove("language.mdb"), {"fehlt", "language.mdb"}},
        {remove("ADD-IN-LANGUAGE.MDB"), {"fehlt", "ADD-IN-LANGUAGE.MDB"}},
        {setting("Verzeichnisse", "Prints", "\\nirgends"), {"fehlt", "/nirgends"}},
        {setting("QV-Files", "0", ""), {"fehlt", "QV-Files"}},
        {setting("QV-Files", "0", "C:\\D\\f.mdb"), {"fehlt", "C:\\D\\f.mdb", "Laufwerke"}, "/dev/null"},
        {setting("Ansicht", "Sprache", "Suomi"), {"missing", "Ereignis.mdb", "Suomi"}},
        {noDatabase, {"beschädigt", "namen.mdb"}},
        {readOnly, {"gesperrt", "familie.mdb", "schreibgeschützt"}, "können markiert werden"},
        {damaged, {"beschädigt", "familie.mdb", "Tabelle Daten", "Seite"}},
        {twice, {"beschädigt", "familie.mdb", "1 Personen haben einen Counter"}, "können markiert werden"},
        {bare, {"fehlt", "Baum_DS"}},
        {bare, {"fehlt", "Adressen_DS "}},
        {bare, {"fehlt", "Daten", "Geburtsdatum"}},
        {bare, {"fehlt", "Daten", "Index", "Counter"}},
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
            << row.words.join(' ').toStdString() << ":\n"
            << result.problems.join('\n').toStdString();
        if (!row.unsaid.isEmpty()) {
            EXPECT_FALSE((result.good + result.problems).join('\n').contains(row.unsaid)) << row.unsaid.toStdString();
        }
    }
}
