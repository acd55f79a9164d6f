// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datenbankmodul.h"

#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QFile>

using namespace kalvenor;

TEST(Datenbankoeffnen, OpensFiveDatabasesAndAllTables)
{
    test::StartedProgram started({{.counter = 7, .listname = "Abel, Anna"}});
    const auto &open = started.program.engine.workspace(0).databases();
    QStringList files;
    for (const auto &database : open)
        files << QFileInfo(database->file()).fileName();
    EXPECT_EQ(files.mid(2), QStringList({"Ereignis.mdb", "Geschichte.mdb", "namen.mdb", "orte.mdb"}));
    EXPECT_EQ(open[1], started.program.databases.Familiendatenbank);

    dao::Recordset &persons = *started.program.databases.Datentabelle;
    persons.setIndex("Counter");
    persons.seekEqual(7);
    ASSERT_FALSE(persons.noMatch());
    EXPECT_EQ(persons.value("LISTNAME").toString(), "Abel, Anna");
}

TEST(Datenbankoeffnen, NamesWhatIsMissing)
{
    const struct {
        QString removed; ///< file below the host folder
        QString named;
    } rows[] = {{"Ereignis.mdb", "Ereignis.mdb"},
                {"Geschichte.mdb", "Geschichte.mdb"},
                {"namen.mdb", "namen.mdb"},
                {"orte.mdb", "orte.mdb"}};
    for (const auto &row : rows) {
        const test::Installation installation;
        ASSERT_TRUE(QFile::remove(installation.hostFolder() + "/" + row.removed));
        test::FakeDesktop desktop;
        app::Program program(installation.programFolder(), desktop);
        try {
            program.Main();
            FAIL() << row.removed.toStdString();
        } catch (const basic::Error &error) {
            EXPECT_EQ(error.kind(), basic::ErrorKind::FileNotFound);
            EXPECT_TRUE(error.message().contains(row.named)) << error.what();
        }
    }
}

TEST(Datenbankoeffnen, NeedsEachTableOfTheFamilyDatabase)
{
    int needed = 0;
    for (const data::HostTable &table : data::hostTables("Deutsch")) {
        if (table.database != data::HostDatabase::Family)
            continue;
        ++needed;
        const test::Installation installation;
        test::writeFamily(installation.hostFolder() + "/Familie/familie.mdb", {}, 0, table.name);
        test::FakeDesktop desktop;
        app::Program program(installation.programFolder(), desktop);
        try {
            program.Main();
            ADD_FAILURE() << table.name.toStdString();
        } catch (const basic::Error &error) {
            EXPECT_EQ(error.kind(), basic::ErrorKind::TableNotFound);
            EXPECT_TRUE(error.message().contains('"' + table.name + '"')) << error.what();
            EXPECT_TRUE(error.message().contains("familie.mdb")) << error.what();
        }
    }
    EXPECT_EQ(needed, 21);
}

TEST(Datenbankoeffnen, NeedsATableOfEventKindsForTheLanguage)
{
    const test::Installation installation;
    test::FakeDesktop desktop;
    app::Program program(installation.programFolder(), desktop);
    program.host.inischreiben(installation.settings(), "Ansicht", "Sprache", "Suomi");
    try {
        program.Main();
        FAIL();
    } catch (const basic::Error &error) {
        EXPECT_EQ(error.kind(), basic::ErrorKind::TableNotFound);
        EXPECT_TRUE(error.message().contains("Suomi")) << error.what();
        EXPECT_TRUE(error.message().contains("Ereignis.mdb")) << error.what();
    }
}
