// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/basic/error.h"
#include "platform/dao/dao.h"
#include "platform/jet/database.h"
#include "platform/jet/markwriter.h"
#include "platform/jet/sortkey.h"
#include "support/fixtures.h"
#include <gtest/gtest.h>
#include <QTemporaryDir>

namespace kalvenor {

inline void PrintTo(ErrorKind kind, std::ostream *out)
{
    *out << "kind " << static_cast<int>(kind);
}

} // namespace kalvenor

namespace kalvenor::test {

/// The kind of error that the work ends with, and its text for those who ask.
template <class Work>
std::optional<ErrorKind> errorOf(Work work, QString *message = nullptr)
{
    try {
        work();
        return {};
    } catch (const Error &error) {
        if (message != nullptr)
            *message = error.message();
        return error.kind();
    }
}

/// A fresh family database for each test. In General order: Ärmel, Armin, Müller A, MÜLLER B, Muth, O'Brien, Weiß, zu
/// Berg.
class Family : public ::testing::Test {
protected:
    void SetUp() override
    {
        using P = TestPerson;
        persons = {
            P{.counter = 10,
              .listname = QStringLiteral("zu Berg, Karl"),
              .marked = true,
              .birth = 18263,
              .death = 30000},
            P{.counter = 20,
              .listname = QStringLiteral("Müller, Anna"),
              .sex = QStringLiteral("W"),
              .birth = -30000,
              .father = 10,
              .mother = 30},
            P{.counter = 30, .listname = QStringLiteral("Weiß, Eva"), .sex = QStringLiteral("W"), .death = -70000},
            P{.counter = 40,
              .listname = QStringLiteral("O'Brien, Sean"),
              .marked = true,
              .birth = -620911,
              .father = 10},
            P{.counter = 50,
              .listname = QStringLiteral("MÜLLER, Bert"),
              .birth = -620911,
              .birthXX = QStringLiteral("XXX_______"),
              .changed = 39000},
            P{.counter = 60, .listname = QStringLiteral("Ärmel, Paul"), .marked = true},
            P{.counter = 70, .listname = QStringLiteral("Armin, Otto"), .sex = QString(QChar(u'm')), .birth = 700},
            P{.counter = 80, .listname = QStringLiteral("Muth, Ida"), .sex = QStringLiteral("W"), .father = 40},
        };
        file = folder.filePath(QStringLiteral("familie.mdb"));
        writeFamily(file, persons);
        database = engine.workspace(0).openDatabase(file);
    }

    /// The first field of each row.
    QList<int> numbers(const QString &sql) const
    {
        QList<int> found;
        for (const auto rows = database->openQuery(sql); !rows->eof(); rows->moveNext())
            found << rows->integer(0).value_or(-99);
        return found;
    }
    QList<int> marked() const { return numbers(QStringLiteral("SELECT Counter FROM Daten WHERE Markierung = -1 ;")); }

    /// What another program does to the same file.
    void markElsewhere(int counter, bool on) const
    {
        const auto other = jet::Database::open(file);
        const auto table = other->table(QStringLiteral("Daten"));
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
