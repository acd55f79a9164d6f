// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What is left of a database where the disk fails or another program writes, at each single call.
#include "family.h"
#include "platform/jet/reader/record.h"
#include "support/faultystorage.h"
#include "support/files.h"
#include <algorithm>
#include <array>
#include <QDeadlineTimer>
#include <QFile>
#include <QSet>

using namespace Qt::StringLiterals;

namespace kalvenor::test {

namespace {

/// 120 persons on several pages; each tenth is not marked.
class Faults : public Family {
protected:
    void SetUp() override
    {
        for (int i = 1; i <= 120; ++i)
            persons.push_back({.counter = i, .listname = u"Person %1"_s.arg(i), .marked = i % 10 != 0});
        file = folder.filePath(u"familie.mdb"_s);
        writeFamily(file, persons);
        original = contentOf(file);
        const auto state = jet::Database::open(file);
        const auto table = state->table(u"Daten"_s);
        const jet::Column &mark = table->columns()[static_cast<std::size_t>(table->columnOf(u"Markierung"))];
        QSet<std::uint32_t> pages;
        for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
            const jet::RowPlace &place = table->place(row);
            pages.insert(place.recordPage);
            const auto byte = jet::Record(table->layout(), table->record(row)).maskByte(mark.number);
            const qint64 offset = place.recordPage * qint64{4096} + place.recordStart + static_cast<qint64>(byte);
            masks[offset] = static_cast<char>(1 << (mark.number % 8));
            offsets[table->integer(row, 0).value_or(0)] = offset;
        }
        ASSERT_GE(pages.size(), 3);
    }

    /// The file as it was, not open.
    void restore()
    {
        engine.close();
        writeFile(file, original);
    }
    void restoreAndOpen()
    {
        restore();
        database = engine.openDatabase(file);
    }

    /// Another program's change, which takes no locks.
    void unmarkElsewhere(std::initializer_list<int> counters) const
    {
        QFile other(file);
        ASSERT_TRUE(other.open(QIODevice::ReadWrite));
        for (const int counter : counters) {
            char byte = 0;
            ASSERT_TRUE(other.seek(offsets[counter]) && other.getChar(&byte) && other.seek(offsets[counter]));
            ASSERT_TRUE(other.putChar(static_cast<char>(byte & ~masks[offsets[counter]])));
        }
    }

    QList<int> inFile() const
    {
        dao::Engine other;
        QList<int> found;
        const auto rows = other.openDatabase(file)->openQuery(u"SELECT Counter FROM Daten WHERE Markierung = -1 ;"_s);
        for (; !rows->eof(); rows->moveNext())
            found << rows->integer(0).value_or(0);
        return found;
    }

    void expectOnlyMarksDiffer() const
    {
        const QByteArray now = contentOf(file);
        ASSERT_EQ(now.size(), original.size());
        for (qsizetype i = 0; i < now.size(); ++i) {
            if (now[i] != original[i]) {
                ASSERT_EQ((now[i] ^ original[i]) & ~masks.value(i, 0), 0) << "byte " << i;
            }
        }
    }

    QByteArray original;
    QHash<qint64, char> masks;  ///< by place in the file: the bit that may change
    QHash<int, qint64> offsets; ///< of the byte with a person's mark
    FaultyStorage storage;
};

TEST_F(Faults, MarksAreWholeOrAnErrorIsTold)
{
    const auto counters = [](auto wanted) {
        QList<int> found;
        for (int i = 1; i <= 120; ++i) {
            if (wanted(i))
                found << i;
        }
        return found;
    };
    const struct {
        const char *name;
        std::function<void()> work;
        QList<int> then;
    } rows[] = {
        {"one person",
         [&] {
             const auto table = database->openTable(u"Daten"_s);
             table->setIndex(u"Counter"_s);
             table->seekEqual(70);
             table->edit();
             table->setValue(u"Markierung"_s, true);
             EXPECT_TRUE(table->update());
         },
         counters([](int i) { return i % 10 != 0 || i == 70; })},
        {"all", [&] { (void)database->execute(u"Update Daten SET Markierung = -1 WHERE Markierung = 0 "_s); },
         counters([](int) { return true; })},
        {"undo",
         [&] {
             (void)database->setMarks(u"Daten"_s, std::array{1, 61, 119}, false);
             (void)database->setMarks(u"Daten"_s, std::array{10, 120}, true);
         },
         counters([](int i) { return (i % 10 != 0 || i == 10 || i == 120) && i != 1 && i != 61 && i != 119; })},
    };
    const QList<int> before = counters([](int i) { return i % 10 != 0; });
    for (const auto &row : rows) {
        SCOPED_TRACE(row.name);
        for (const Fault fault : {Fault::Fails, Fault::FailsFromOn, Fault::CutShort, Fault::Pretends}) {
            std::optional<basic::ErrorKind> error;
            const auto check = [&](Call struck) {
                const bool writes = struck == Call::Write || struck == Call::Sync;
                EXPECT_TRUE(error || fault != Fault::Fails || !writes);
                EXPECT_TRUE(!error || (struck != Call::None && fault != Fault::CutShort));
                expectOnlyMarksDiffer();
                const QList<int> now = inFile();
                EXPECT_TRUE(error || now == row.then);
                for (int i = 1; i <= 120; ++i)
                    EXPECT_TRUE(now.contains(i) == row.then.contains(i) || now.contains(i) == before.contains(i)) << i;
                database->refresh();
                EXPECT_EQ(marked(), now) << "what is in memory is what the file says";
            };
            atEachCall(
                storage, fault, [&] { restoreAndOpen(); }, [&] { error = kindOf(row.work); }, check);
        }
    }
}

TEST_F(Faults, AnotherProgramMayWriteBeforeAnyCall)
{
    std::optional<basic::ErrorKind> error;
    dao::Execution done;
    const auto work = [&] {
        error = kindOf([&] { done = database->execute(u"Update Daten SET Markierung = -1 ;"_s); });
    };
    const auto check = [&](Call) {
        expectOnlyMarksDiffer();
        const QList<int> now = inFile();
        EXPECT_EQ(marked(), now) << "what it wrote is noticed, also within one tick of the clock";
        if (error) { // it came between our writing and our reading back
            EXPECT_EQ(*error, basic::ErrorKind::WriteFailed);
            return;
        }
        QList<int> missing;
        for (int i = 1; i <= 120; ++i)
            missing << (now.contains(i) ? QList<int>{} : QList<int>{i});
        // Its own two, where it came last.
        EXPECT_TRUE(missing.isEmpty() || missing == QList<int>{119} || missing == (QList<int>{10, 119}));
        EXPECT_EQ(std::ranges::adjacent_find(done.changedKeys), done.changedKeys.end()) << "nobody is told twice";
        EXPECT_EQ(QSet<qint32>(done.changedKeys.begin(), done.changedKeys.end()).size(),
                  static_cast<qsizetype>(done.changedKeys.size()));
    };
    // On the first page it takes back what was just marked, on the last one it changes what is still to be compared.
    atEachCall(
        storage, Fault::OtherFirst, [&] { restoreAndOpen(); }, work, check,
        [&] {
            unmarkElsewhere({10, 119});
        });
}

TEST_F(Faults, AnotherFileMayTakeItsPlaceBeforeAnyCall)
{
    std::optional<basic::ErrorKind> error;
    const auto work = [&] {
        error = kindOf([&] { (void)database->execute(u"Update Daten SET Markierung = -1 ;"_s); });
    };
    const auto check = [&](Call struck) { // unnoticed only where it comes behind the last look
        EXPECT_TRUE(error || inFile().size() == 120 || struck == Call::State) << int(struck);
        database->refresh();
        EXPECT_EQ(marked(), inFile());
    };
    atEachCall(
        storage, Fault::OtherFirst, [&] { restoreAndOpen(); }, work, check,
        [&] {
            QFile copy(file + u".new"_s);
            ASSERT_TRUE(copy.open(QIODevice::WriteOnly) && copy.write(original) == original.size());
            copy.close();
            ASSERT_EQ(std::rename(qPrintable(copy.fileName()), qPrintable(file)), 0);
        });
}

TEST_F(Faults, AnOpenedFileIsOneStateOfIt)
{
    for (const Fault fault : {Fault::OtherFirst, Fault::CutShort, Fault::Fails}) {
        std::optional<basic::ErrorKind> error;
        const auto open = [&] {
            error = kindOf([&] { database = engine.openDatabase(file); });
        };
        const auto check = [&](Call struck) {
            EXPECT_EQ(error.has_value(), fault == Fault::Fails && struck != Call::None);
            if (error)
                return;
            // Within one tick of the clock a change behind the reading shows only afterwards.
            const QDeadlineTimer limit(5000);
            while (marked() != inFile() && !limit.hasExpired()) {
            }
            EXPECT_EQ(marked(), inFile());
        };
        atEachCall(
            storage, fault, [&] { restore(); }, open, check,
            [&] {
                unmarkElsewhere({1, 119});
            });
    }
}

} // namespace

} // namespace kalvenor::test
