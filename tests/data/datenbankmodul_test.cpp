// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "data/datenbankmodul.h"

#include "support/errors.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QFile>

using namespace kalvenor;

namespace {

/// What the start says of an installation, and of which kind it is.
QString refusal(const test::Installation &installation, basic::ErrorKind kind)
{
    test::FakeDesktop desktop;
    app::Program program(installation.programFolder(), desktop);
    const auto error = test::thrownBy([&] { program.Main(); });
    EXPECT_EQ(error.value().kind(), kind);
    return error->what();
}

} // namespace

TEST(Datenbankoeffnen, NamesTheFileThatIsMissing)
{
    for (const QString file : {"Ereignis.mdb", "Geschichte.mdb", "namen.mdb", "orte.mdb"}) {
        const test::Installation installation;
        ASSERT_TRUE(QFile::remove(installation.hostFolder() + "/" + file));
        EXPECT_TRUE(refusal(installation, basic::ErrorKind::FileNotFound).contains(file)) << file.toStdString();
    }
}

TEST(Datenbankoeffnen, NamesTheTableThatIsMissing)
{
    int needed = 0;
    for (const data::HostTable &table : data::hostTables("Deutsch")) {
        if (table.database != data::HostDatabase::Family)
            continue;
        ++needed;
        const test::Installation installation;
        test::writeFamily(installation.hostFolder() + "/Familie/familie.mdb", {}, 0, table.name);
        const QString said = refusal(installation, basic::ErrorKind::TableNotFound);
        EXPECT_TRUE(said.contains("TableMissing (" + table.name + ")") && said.contains("familie.mdb"))
            << said.toStdString();
    }
    EXPECT_EQ(needed, 21);

    const test::Installation finnish;
    test::FakeDesktop desktop;
    host::Host(finnish.programFolder(), desktop).inischreiben(finnish.settings(), "Ansicht", "Sprache", "Suomi");
    const QString said = refusal(finnish, basic::ErrorKind::TableNotFound);
    EXPECT_TRUE(said.contains("Suomi") && said.contains("Ereignis.mdb")) << "event kinds: " << said.toStdString();
}
