// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include "platform/dao/dao.h"
#include "platform/jet/marks/markwriter.h"
#include "platform/jet/order/sortkey.h"
#include "platform/jet/reader/database.h"
#include "support/errors.h"
#include "support/fixtures.h"
#include <gtest/gtest.h>
#include <QDateTime>
#include <QFile>
#include <QTemporaryDir>

namespace kalvenor {

using namespace Qt::StringLiterals;

inline void PrintTo(basic::ErrorKind kind, std::ostream *out)
{
    *out << "kind " << static_cast<int>(kind);
}

} // namespace kalvenor

namespace kalvenor::test {

/// A fresh family database for each test. In General order: Ärmel, Armin, Müller A, MÜLLER B, Muth, O'Brien, Weiß, zu
/// Berg.
class Family : public ::testing::Test {
protected:
    void SetUp() override
    {
        using P = TestPerson;
        persons = {
            P{.counter = 10, .listname = u"zu Berg, Karl"_s, .marked = true, .birth = 18263, .death = 30000},
            P{.counter = 20, .listname = u"Müller, Anna"_s, .sex = u"W"_s, .birth = -30000, .father = 10, .mother = 30},
            P{.counter = 30, .listname = u"Weiß, Eva"_s, .sex = u"W"_s, .death = -70000},
            P{.counter = 40, .listname = u"O'Brien, Sean"_s, .marked = true, .birth = -620911, .father = 10},
            P{.counter = 50,
              .listname = u"MÜLLER, Bert"_s,
              .birth = -620911,
              .birthXX = u"XXX_______"_s,
              .changed = 39000},
            P{.counter = 60, .listname = u"Ärmel, Paul"_s, .marked = true},
            P{.counter = 70, .listname = u"Armin, Otto"_s, .sex = QString(QChar(u'm')), .birth = 700},
            P{.counter = 80, .listname = u"Muth, Ida"_s, .sex = u"W"_s, .father = 40},
        };
        file = folder.filePath(u"familie.mdb"_s);
        writeFamily(file, persons);
        // So that what a test writes right afterwards has another time: the clock of files ticks in milliseconds.
        QFile made(file);
        ASSERT_TRUE(made.open(QIODevice::ReadWrite));
        ASSERT_TRUE(made.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFileDevice::FileModificationTime));
        made.close();
        database = engine.openDatabase(file);
    }

    /// The first field of each row.
    QList<int> numbers(const QString &sql) const
    {
        QList<int> found;
        for (const auto rows = database->openQuery(sql); !rows->eof(); rows->moveNext())
            found << rows->integer(0).value_or(-99);
        return found;
    }
    QList<int> marked() const { return numbers(u"SELECT Counter FROM Daten WHERE Markierung = -1 ;"_s); }

    /// What another program does to the same file.
    void markElsewhere(int counter, bool on) const
    {
        const auto other = jet::Database::open(file);
        const auto table = other->table(u"Daten"_s);
        for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
            if (table->integer(row, 0) == counter) {
                const jet::Mark mark{row, on};
                jet::MarkWriter(other, table, table->columnOf(u"Markierung"), 0).write({&mark, 1});
            }
        }
    }

    QTemporaryDir folder;
    QString file;
    std::vector<TestPerson> persons;
    dao::Engine engine;
    std::shared_ptr<dao::Database> database;
};

} // namespace kalvenor::test
