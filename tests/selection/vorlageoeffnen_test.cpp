// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "selection/templates/vorlageoeffnen.h"

#include "selection/lists/listquery.h"
#include "selection/templates/vorlagespeichern.h"
#include "support/errors.h"
#include "support/faultystorage.h"
#include "support/files.h"
#include "support/startedprogram.h"
#include <algorithm>
#include <gtest/gtest.h>
#include <QFile>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::selection;

namespace {

/// Persons 1 to 9, of whom 2 and 3 are marked, and a second database beside theirs with 3 to 5, of whom 5 is.
struct Opening : testing::Test, test::StartedProgram {
    Opening() : test::StartedProgram(nine())
    {
        test::writeFamily(native(other), {{.counter = 3, .listname = "C"},
                                          {.counter = 4, .listname = "D"},
                                          {.counter = 5, .listname = "E", .marked = true}});
        QObject::connect(&program, &data::Session::databaseClosing, [this] { ++closings; });
        QObject::connect(&program, &data::Session::databaseExchanged,
                         [this](bool isOther) { news.push_back(isOther); });
    }
    static std::vector<test::TestPerson> nine()
    {
        std::vector<test::TestPerson> persons;
        for (qint32 i = 1; i <= 9; ++i)
            persons.push_back({.counter = i, .listname = QString("Person %1").arg(i), .marked = i == 2 || i == 3});
        return persons;
    }
    basic::NativePath native(const basic::WindowsPath &path) const { return program.host.native(path); }
    basic::WindowsPath save(const basic::WindowsPath &familienpfad, std::vector<qint32> counters) const
    {
        Vorlage vorlage;
        vorlage.familienpfad = familienpfad;
        vorlage.statistik.titel = u"Titel"_s;
        vorlage.counters = std::move(counters);
        writeVorlage(native(file), vorlage);
        return file;
    }
    OpenedVorlage open(const basic::WindowsPath &path, const basic::Progress &progress = {})
    {
        return vorlageoeffnen(program, path, progress, useOpenDatabase);
    }
    std::vector<qint32> marked() { return inFile(native(family)); }
    static std::vector<qint32> inFile(const QString &nativeFile)
    {
        return test::countersIn(nativeFile, plainListQuery(PersonList::Marked));
    }
    /// What opening says where it must fail; everything is then as before.
    QString refusal(const basic::WindowsPath &path, const basic::Progress &progress = {})
    {
        const QString said = test::refusalOf([&] { open(path, progress); });
        EXPECT_EQ(marked(), (std::vector<qint32>{2, 3}));
        EXPECT_EQ(program.host.Familienpfad, family);
        EXPECT_EQ(program.databases.Familiendatenbank->openQuery(plainListQuery(PersonList::Marked))->recordCount(), 2);
        EXPECT_EQ(program.language.text(language::Text::AgeStatistic), texts);
        return said;
    }

    basic::WindowsPath family = program.host.Familienpfad;
    QString texts = program.language.text(language::Text::AgeStatistic);
    basic::WindowsPath other = host::uebergeordnetesverzeichnis(family) + u"\\andere.mdb"_s;
    basic::WindowsPath file = basic::windowsPath(folder.filePath("a.kvl"));
    int closings = 0;
    std::vector<bool> news; ///< whether another database is open
    UseOpenDatabase useOpenDatabase;
};

} // namespace

TEST_F(Opening, MarksExactlyThePersonsOfTheTemplate)
{
    const OpenedVorlage opened = open(save(family, {9, 3, 77, 3, -1, 1}));
    EXPECT_EQ(marked(), (std::vector<qint32>{1, 3, 9}));
    EXPECT_EQ(opened.found, 3);
    EXPECT_EQ(opened.missing, (std::vector<qint32>{77, -1}));
    EXPECT_EQ(opened.vorlage.statistik.titel, u"Titel"_s);
    EXPECT_FALSE(opened.otherDatabase);
    EXPECT_EQ(closings, 0);

    MarkHistory history;
    history.record(opened.changes);
    history.undo(program.databases);
    EXPECT_EQ(marked(), (std::vector<qint32>{2, 3}));
    history.redo(program.databases);
    EXPECT_EQ(marked(), (std::vector<qint32>{1, 3, 9}));
    EXPECT_EQ(open(save(family, {})).found, 0);
    EXPECT_TRUE(marked().empty());
}

TEST_F(Opening, WhatWasSavedComesBack)
{
    statistics::Statistik statistik;
    statistik.titel = u"Ä \"B\""_s;
    statistik.rtf = "{\\rtf1 x\r\n}";
    statistik.grafiktyp = 11;
    EXPECT_EQ(vorlagespeichern(program.host, program.databases, {}, statistik), 0);
    EXPECT_EQ(vorlagespeichern(program.host, program.databases, file, statistik), 2);
    program.databases.Familiendatenbank->setMarks("Daten", std::vector<qint32>{2, 5}, false);
    const OpenedVorlage opened = open(file);
    EXPECT_EQ(opened.vorlage.statistik, statistik);
    EXPECT_EQ(opened.vorlage.familienpfad, family);
    EXPECT_EQ(marked(), (std::vector<qint32>{2, 3}));
}

TEST_F(Opening, GoesOverToTheTemplatesDatabase)
{
    const OpenedVorlage opened = open(save(other, {3, 4, 9}));
    EXPECT_TRUE(opened.otherDatabase);
    EXPECT_TRUE(opened.changes.isEmpty());
    EXPECT_EQ(opened.missing, std::vector<qint32>{9});
    EXPECT_EQ(inFile(native(other)), (std::vector<qint32>{3, 4}));
    EXPECT_EQ(marked(), (std::vector<qint32>{2, 3})); // the former database is left alone
    EXPECT_EQ(program.host.Familienpfad, other);
    EXPECT_EQ(program.databases.Familiendatenbank->file(), native(other).text());
    EXPECT_EQ(program.language.text(language::Text::AgeStatistic), texts);
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(news, std::vector<bool>{true});
}

TEST_F(Opening, AMissingDatabaseIsTheUsersChoice)
{
    save(basic::WindowsPath(u"C:\\weg.mdb"_s), {1});
    EXPECT_TRUE(refusal(file).contains("TemplateFamilyMissing (C:\\weg.mdb); DriveUnknown"));
    basic::WindowsPath asked;
    bool answer = false;
    useOpenDatabase = [&](const basic::WindowsPath &familienpfad) {
        asked = familienpfad;
        return answer;
    };
    EXPECT_TRUE(refusal(file).contains("Stopped"));
    EXPECT_EQ(asked.text(), u"C:\\weg.mdb"_s);
    answer = true;
    EXPECT_EQ(open(file).found, 1);
    EXPECT_EQ(marked(), std::vector<qint32>{1});
    EXPECT_EQ(program.host.Familienpfad, family);
}

TEST_F(Opening, AFailureLeavesMarksAndDatabaseAsTheyWere)
{
    const auto atOnce = [](qint64, qint64) {
        return false;
    };
    const auto atTheEnd = [](qint64 done, qint64 total) {
        return done < total;
    };
    EXPECT_TRUE(refusal(save(family, {1}), atOnce).contains("Stopped"));
    EXPECT_TRUE(refusal(save(family, {1}), atTheEnd).contains("Stopped"));
    EXPECT_TRUE(refusal(basic::windowsPath(folder.filePath("nicht.kvl"))).contains("nicht.kvl"));
    EXPECT_EQ(closings, 0);

    EXPECT_TRUE(refusal(save(other, {3}), atOnce).contains("Stopped"));
    EXPECT_EQ(inFile(native(other)), std::vector<qint32>{5});
    test::writeFamily(native(other), {{.counter = 3, .listname = "C"}}, 0, "Galerie");
    EXPECT_TRUE(refusal(save(other, {3})).contains("Galerie"));
    test::writeFile(native(other), "no database");
    EXPECT_TRUE(refusal(save(other, {3})).contains("andere.mdb"));
    EXPECT_EQ(closings, 6); // there and back, three times
    EXPECT_EQ(news, std::vector<bool>(3, false));
}

TEST_F(Opening, AWriteThatFailsHalfWayIsTakenBack)
{
    save(family, {1, 4});
    bool readOnly = false;
    const auto failOnceCleared = [&](qint64, qint64) {
        if (!marked().empty())
            return true;
        if (readOnly)
            QFile::setPermissions(native(family), QFile::ReadOwner);
        throw basic::Error(basic::Fault::NotSynced, {}, {u"disk full"_s});
    };
    EXPECT_EQ(refusal(file, failOnceCleared), u"NotSynced (disk full)"_s);
    readOnly = true;
    EXPECT_TRUE(test::refusalOf([&] { open(file, failOnceCleared); }).contains("MarksNotPutBack"));
    QFile::setPermissions(native(family), QFile::ReadOwner | QFile::WriteOwner);
}

TEST_F(Opening, ResetTakesTheOptionsFromThePrintSettings)
{
    const struct {
        const char *ini;
        int type;
        bool legend;
        int box;
        bool byBirth;
    } rows[] = {
        {"", 1, true, 1, true},
        {"[Grafik]\nGrafiktyp=4\nLegende=0\nGebgest=0\n[Geschlecht]\n0=0\n1=0\n2=0\n3=0\n", 4, false, 1, false},
        {"[Geschlecht]\na%=0\n[Grafik]\nGebgest=Wahr\nGrafiktyp=0\n", 0, true, 0, true},
        {"[Grafik]\nGebgest=Falsch\nGrafiktyp=12\nLegende=-1\n", 1, true, 1, false},
        {"[Grafik]\nGebgest=-1\nGrafiktyp=1e99\nLegende=\n[Geschlecht]\na%=x\n", 1, false, 0, true},
    };
    for (const auto &row : rows) {
        test::writeFile(native(program.host.ownSettingsFile()), row.ini);
        const auto box = static_cast<qint16>(row.box);
        const statistics::Statistik expected{{}, {}, row.type, row.legend, {box, box, box, box}, row.byBirth};
        EXPECT_EQ(vorlageclear(program.host), expected) << row.ini;
    }
}

TEST_F(Opening, AndUndoAreWholeOrAsBeforeWhereTheDiskFails)
{
    test::FaultyStorage storage;
    const basic::WindowsPath path = save(family, {9, 3, 1});
    const std::vector<qint32> before{2, 3}, then{1, 3, 9};
    const MarkStep step{{1, 9}, {2}};
    const struct {
        const char *name;
        bool rollsBack;
        std::function<void()> work;
    } rows[] = {
        {"opening", true,
         [&] {
             open(path);
         }},
        {"undo", false,
         [&] {
             MarkHistory history;
             history.record({{2}, {1, 9}});
             history.undo(program.databases);
         }},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        for (const test::Fault fault : {test::Fault::Fails, test::Fault::CutShort, test::Fault::Pretends}) {
            std::optional<QString> said;
            const auto prepare = [&] {
                dao::Database &database = *program.databases.Familiendatenbank;
                database.setMarks("Daten", step.marked, false);
                database.setMarks("Daten", step.unmarked, true);
            };
            const auto work = [&] {
                const auto error = test::thrownBy(row.work);
                said = error ? std::optional(error->message()) : std::nullopt;
            };
            const auto check = [&](test::Call struck) {
                const bool isWrite = struck == test::Call::Write;
                const bool harms = fault == test::Fault::Fails ? isWrite || struck == test::Call::Sync
                                                               : fault == test::Fault::Pretends && isWrite;
                EXPECT_TRUE(said || !harms);
                EXPECT_TRUE(!said || (struck != test::Call::None && fault != test::Fault::CutShort));
                program.databases.Familiendatenbank->refresh();
                if (!said || row.rollsBack) {
                    EXPECT_EQ(marked(), said ? before : then);
                }
                EXPECT_EQ(
                    program.databases.Familiendatenbank->openQuery(plainListQuery(PersonList::Marked))->recordCount(),
                    static_cast<qint64>(marked().size()));
            };
            test::atEachCall(storage, fault, prepare, work, check);
        }
    }
}
