// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/check.h"

#include "platform/jet/creator.h"
#include "support/startedprogram.h"
#include <gtest/gtest.h>
#include <QDir>
#include <QFile>

using namespace kalvenor;

namespace {

const std::vector<test::TestPerson> Persons{{.counter = 1, .listname = "A"},
                                            {.counter = 2, .listname = "B", .marked = true}};

QString familyFile(const test::Installation &installation)
{
    test::FakeDesktop desktop;
    const host::Host host(installation.programFolder(), desktop);
    return host.native(host.inilesen(installation.settings(), "QV-Files", "0", ""));
}

} // namespace

TEST(Check, FindsAWholeInstallationSound)
{
    const test::Installation installation(Persons);
    const auto result = app::checkInstallation(installation.programFolder());
    EXPECT_TRUE(result.problems.isEmpty()) << result.problems.join('\n').toStdString();
    EXPECT_TRUE(result.good.join('\n').contains("2 persons, 1 of them marked"));
}

TEST(Check, SaysEachThingInALineOfItsOwn)
{
    const test::Installation installation(Persons);
    const QDir host(installation.hostFolder());
    ASSERT_TRUE(QFile::remove(host.filePath("orte.mdb")));
    ASSERT_TRUE(QFile::remove(host.filePath("ADD-IN-LANGUAGE.MDB")));
    QFile names(host.filePath("namen.mdb"));
    ASSERT_TRUE(names.open(QIODevice::WriteOnly));
    names.write("no database at all");
    names.close();
    jet::Creator family;
    using jet::ColumnType;
    auto &persons = family.addTable("Daten", {{.name = "Counter"},
                                              {.name = "Listname", .type = ColumnType::Text},
                                              {.name = "Markierung", .type = ColumnType::Boolean}});
    persons.addRow({1, QString("A"), false});
    family.write(familyFile(installation));

    const QStringList problems = app::checkInstallation(installation.programFolder()).problems;
    const struct {
        QString word;
        QStringList names;
    } rows[] = {
        {"missing", {"orte.mdb"}},
        {"missing", {"ADD-IN-LANGUAGE.MDB"}},
        {"damaged", {"namen.mdb"}},
        {"missing", {"Baum_DS"}},
        {"missing", {"\"Adressen_DS \""}},
        {"missing", {"Daten", "Geburtsdatum"}},
        {"missing", {"Daten", "index", "Counter"}},
    };
    for (const auto &row : rows) {
        const auto says = [&](const QString &line) {
            return line.startsWith(row.word) && !line.contains('\n') &&
                   std::all_of(row.names.begin(), row.names.end(),
                               [&](const QString &name) { return line.contains(name); });
        };
        EXPECT_TRUE(std::any_of(problems.begin(), problems.end(), says)) << row.names.join(' ').toStdString() << " in\n"
                                                                         << problems.join('\n').toStdString();
    }
}

TEST(Check, SaysWhyMarkingIsImpossible)
{
    const test::Installation installation({{.counter = 1, .listname = "A"}, {.counter = 1, .listname = "Doppelt"}});
    QStringList problems = app::checkInstallation(installation.programFolder()).problems;
    ASSERT_EQ(problems.size(), 1) << problems.join('\n').toStdString();
    EXPECT_TRUE(problems[0].contains("two persons have the Counter 1"));
}
