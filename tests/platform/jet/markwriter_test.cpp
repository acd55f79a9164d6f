// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixtures.h"
#include "jet3fixture.h"
#include "platform/basic/error.h"
#include "platform/jet/creator/creator.h"
#include "platform/jet/marks/markwriter.h"
#include "platform/jet/marks/pagelock.h"
#include "support/errors.h"
#include "support/faultystorage.h"
#include <array>
#include <bit>
#include <QDeadlineTimer>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

using testing::makePersons;
using testing::Pages;
using testing::readAll;

constexpr std::uint32_t Key = 0x4b1d5eed;

struct Opened {
    std::shared_ptr<Database> database;
    std::shared_ptr<const Table> table;
    int mark, counter;

    explicit Opened(const QString &file, const QString &name = u"Daten"_s)
        : database(Database::open(file)), table(database->table(name)), mark(table->columnOf(u"Markierung")),
          counter(table->columnOf(u"Counter"))
    {
    }
    MarkWriter writer() const { return {database, table, mark, counter}; }
    std::vector<std::uint32_t> write(const std::vector<Mark> &marks, const basic::Progress &progress = {}) const
    {
        return writer().write(marks, progress).changed;
    }
    std::vector<bool> marks() const
    {
        std::vector<bool> all(table->rowCount());
        for (std::uint32_t row = 0; row < table->rowCount(); ++row)
            all[row] = table->boolean(row, mark);
        return all;
    }
};

int differentBits(const std::vector<std::uint8_t> &a, const std::vector<std::uint8_t> &b)
{
    EXPECT_EQ(a.size(), b.size());
    int bits = 0;
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i)
        bits += std::popcount(static_cast<unsigned>(a[i] ^ b[i]));
    return bits;
}

basic::Error errorOf(const std::function<void()> &action)
{
    return test::thrownBy(action).value_or(basic::Error(basic::Fault::None));
}

class MarkWriterTest : public ::testing::Test {
protected:
    QTemporaryDir m_folder;
    QString m_file = m_folder.filePath(u"familie.mdb"_s);
};

TEST_F(MarkWriterTest, ChangesOneBitARowAndBackAgain)
{
    const struct {
        const char *name;
        std::uint32_t key;
        bool overflow;
        bool isJet3;
    } cases[] = {{"plain", 0, false, false},
                 {"encoded", Key, false, false},
                 {"overflow", 0, true, false},
                 {"overflow, encoded", Key, true, false},
                 {"Jet 3", 0, false, true}};
    for (const auto &[name, key, overflow, isJet3] : cases) {
        SCOPED_TRACE(name);
        makePersons(m_file, 200, key);
        if (overflow) {
            const Opened opened(m_file);
            Pages pages = Pages::of(m_file, key);
            testing::makeOverflow(pages, opened.table->place(0), opened.table->place(150));
            testing::makeOverflow(pages, opened.table->place(199), opened.table->place(3));
            pages.save(m_file);
        }
        if (isJet3) {
            testing::Jet3File file(1252);
            for (int i = 1; i <= 5; ++i)
                file.addRow({i, i % 3 == 0, QByteArray(100 * i % 255, 'n'), QByteArray(70 * i % 255, 'o')});
            testing::writeAll(m_file, file.bytes());
        }
        const auto before = readAll(m_file);
        const Opened opened(m_file);
        const std::uint32_t last = opened.table->rowCount() - 1;
        const std::vector<bool> marks = opened.marks();
        // Row 2 is marked already; of the two wishes for row 1 the last one counts.
        std::vector<bool> wished = marks;
        wished[0] = wished[1] = wished[3] = wished[last] = true;
        const auto changed = opened.write({{last, true}, {2, marks[2]}, {1, false}, {0, true}, {3, true}, {1, true}});
        int expected = 0;
        for (std::uint32_t row = 0; row <= last; ++row)
            expected += marks[row] != wished[row];
        EXPECT_EQ(static_cast<int>(changed.size()), expected);
        EXPECT_EQ(differentBits(before, readAll(m_file)), expected);
        EXPECT_EQ(opened.marks(), wished);
        EXPECT_EQ(Opened(m_file).marks(), wished);
        EXPECT_FALSE(opened.database->isStale());
        EXPECT_TRUE(opened.write({{0, true}, {1, true}}).empty());

        std::vector<Mark> back;
        for (const std::uint32_t row : changed)
            back.push_back({row, marks[row]});
        EXPECT_EQ(opened.write(back).size(), changed.size());
        EXPECT_EQ(readAll(m_file), before);
    }
}

TEST_F(MarkWriterTest, RefusesWhatItMustNotWrite)
{
    makePersons(m_file, 3);
    const auto expect = [this](basic::Fault expected, const std::function<void()> &action) {
        const basic::Error error = errorOf(action);
        EXPECT_EQ(error.fault(), expected) << basic::nameOf(expected) << ": " << error.what();
        EXPECT_TRUE(error.place().file.startsWith(m_file));
        EXPECT_FALSE(Opened(m_file).marks()[0]);
    };
    const auto columns = [this](int mark, int key) {
        const Opened opened(m_file);
        MarkWriter(opened.database, opened.table, mark, key);
    };
    expect(basic::Fault::NoYesNoColumn, [&] { columns(0, 0); });
    expect(basic::Fault::MarkColumnMissing, [&] { columns(-1, 0); });
    expect(basic::Fault::KeyNotLong, [&] { columns(2, 1); });
    expect(basic::Fault::RowMissing, [&] { Opened(m_file).write({{0, true}, {3, true}}); });
    QFile::setPermissions(m_file, QFile::ReadOwner);
    expect(basic::Fault::ReadOnlyFile, [&] { Opened(m_file).write({{0, true}}); });
    QFile::setPermissions(m_file, QFile::ReadOwner | QFile::WriteOwner);
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::ExeOwner);
    expect(basic::Fault::ReadOnlyFolder, [&] { Opened(m_file).write({{0, true}}); });
    QFile::setPermissions(m_folder.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    Pages pages = Pages::of(m_file);
    pages.at(Opened(m_file).table->definitionPage(), 63 + 12 + 2 * 25 + 16) = 0xc0;
    pages.save(m_file);
    expect(basic::Fault::MarkCalculated, [&] { Opened(m_file).writer(); });

    Creator creator;
    const QString mark = u"Markierung"_s;
    creator.addTable(u"Daten"_s, {{u"Counter"_s}, {mark, ColumnType::Boolean}}, {{mark, {mark}, false}})
        .addRow({1, false});
    creator.write(m_file);
    expect(basic::Fault::MarkIndexed, [&] { Opened(m_file).writer(); });
}

TEST_F(MarkWriterTest, LeavesRowsThatCannotTakeAMark)
{
    constexpr std::size_t columns = 63 + 12; // descriptors of 25 bytes, the number at 5
    const auto onDefinition = [this](std::uint32_t key, const std::function<void(Pages &, std::size_t)> &change) {
        Pages pages = Pages::of(m_file, key);
        change(pages, Opened(m_file).table->definitionPage());
        pages.save(m_file);
    };
    const auto moveMark = [](std::uint32_t number) {
        return [number](Pages &pages, std::size_t definition) {
            pages.put(definition, 41, 2, 9); // columns the table ever had
            pages.put(definition, columns + 2 * 25 + 5, 2, number);
        };
    };
    const auto leftOf = [this](const std::vector<Mark> &marks) {
        std::vector<std::pair<std::uint32_t, basic::Fault>> left;
        for (const LeftRow &row : Opened(m_file).writer().write(marks).left)
            left.emplace_back(row.row, row.why);
        return left;
    };
    using Left = std::vector<std::pair<std::uint32_t, basic::Fault>>;
    // The rows have 5 columns and a mask of one byte: one more bit than it holds, or a column between that is unknown.
    for (const std::uint32_t number : {8U, 6U}) {
        makePersons(m_file, 3);
        onDefinition(0, moveMark(number));
        const auto before = readAll(m_file);
        EXPECT_EQ(leftOf({{0, true}, {1, false}, {2, true}}),
                  (Left{{0, basic::Fault::RecordTooOld}, {2, basic::Fault::RecordTooOld}}));
        EXPECT_EQ(readAll(m_file), before);
    }
    makePersons(m_file, 30, 0, true); // the last two have one key; row 29 is marked
    EXPECT_EQ(leftOf({{0, true}, {28, true}, {29, true}}), (Left{{28, basic::Fault::KeyRepeated}}));
    EXPECT_TRUE(Opened(m_file).marks()[0]);

    // A row that is raised: the bits of the columns it gets are 0 whatever was there, and reading shows the rest as
    // before.
    for (const std::uint32_t key : {0U, Key}) {
        makePersons(m_file, 3, key);
        onDefinition(key, moveMark(5));
        Pages pages = Pages::of(m_file, key);
        const RowPlace place = Opened(m_file).table->place(1);
        pages.at(place.recordPage, place.recordStart + place.recordLength - 1U) |= 0xe0; // bits without meaning
        pages.save(m_file);
        const Opened opened(m_file);
        EXPECT_EQ(opened.marks(), std::vector<bool>(3));
        const auto before = readAll(m_file);
        EXPECT_EQ(opened.write({{0, false}, {1, true}}), std::vector<std::uint32_t>{1});
        EXPECT_EQ(opened.marks(), (std::vector<bool>{false, true, false}));
        EXPECT_FALSE(opened.database->isStale());
        EXPECT_EQ(differentBits(before, readAll(m_file)), 2)
            << "5 columns become 6; the mark's own bit was set by chance";
        const Opened again(m_file);
        EXPECT_EQ(again.marks(), opened.marks());
        EXPECT_EQ(again.table->text(1, 1), opened.table->text(1, 1));
        EXPECT_TRUE(again.table->damage().empty());
        EXPECT_EQ(again.write({{1, false}}).size(), 1U);
        EXPECT_EQ(Opened(m_file).marks(), std::vector<bool>(3));
    }
}

TEST_F(MarkWriterTest, ComparesEachPageWithTheFileBeforeItWrites)
{
    // The row to be marked is an overflow row whose record lies elsewhere. Bits of one byte are turned.
    enum From { Page, Slot, Record, RecordEnd, OwnPlace };
    const struct {
        const char *name;
        From from;
        std::size_t offset;
        std::uint8_t bits;
    } cases[] = {{"page of another kind", Page, 0, 4}, {"page of another table", Page, 4, 7},
                 {"record moved", Slot, 0, 1},         {"record deleted", Slot, 1, 0x40},
                 {"another key", Record, 2, 1},        {"another mark", RecordEnd, 0, 4},
                 {"another count", Record, 0, 1},      {"overflow pointer changed", OwnPlace, 0, 1}};
    for (const std::uint32_t key : {0U, Key}) {
        for (const auto &tampered : cases) {
            SCOPED_TRACE(tampered.name);
            makePersons(m_file, 100, key);
            const Opened made(m_file);
            const RowPlace first = made.table->place(0);
            const RowPlace record = made.table->place(99);
            Pages pages = Pages::of(m_file, key);
            testing::makeOverflow(pages, first, record);
            pages.save(m_file);
            const Opened opened(m_file);
            ASSERT_EQ(opened.table->rowCount(), 99U);
            const std::pair<std::size_t, std::size_t> starts[] = {
                {record.firstPage, 0},
                {record.firstPage, pages.slotAt(record.firstSlot)},
                {record.firstPage, record.recordStart},
                {record.firstPage, std::size_t{record.recordStart} + record.recordLength - 1},
                {first.firstPage, first.recordStart}};
            const auto &[page, start] = starts[tampered.from];
            pages.at(page, start + tampered.offset) ^= tampered.bits;
            pages.save(m_file);
            // Without this the stamp alone would show the change.
            opened.database->image()->setStamp(Image::stampOf(m_file));
            const auto before = readAll(m_file);
            // Row 20 lies on a page before the record's one.
            const basic::Error error = errorOf([&] { opened.write({{0, true}, {20, !opened.marks()[20]}}); });
            EXPECT_EQ(error.kind(), basic::ErrorKind::ChangedElsewhere);
            EXPECT_TRUE(QString(error.what()).endsWith(u"; RowsChangedBefore (1)"_s)) << error.what();
            EXPECT_EQ(differentBits(before, readAll(m_file)), 1);
            EXPECT_TRUE(opened.database->isStale());
        }
    }
}

TEST_F(MarkWriterTest, WaitsForWhoeverHasLockedThePage)
{
    makePersons(m_file, 3);
    const Opened opened(m_file);
    const QString lockFile = m_folder.filePath(u"familie.ldb"_s);
    testing::writeAll(lockFile, {});
    const std::uint32_t page = opened.table->place(0).recordPage;
    const auto before = readAll(m_file);
    const auto expectLocked = [&] {
        const basic::Error error = errorOf([&] { opened.write({{0, true}}); });
        EXPECT_EQ(error.fault(), basic::Fault::PageLocked) << error.what();
        EXPECT_EQ(readAll(m_file), before);
    };
    { // as the engine does it: 256 bytes and its user's number
        storage::File engine =
            storage::File::open(basic::NativePath(lockFile), storage::File::Mode::ReadWrite, nullptr);
        ASSERT_EQ(engine.lock(0x20000001 + page * 0x200, 256 + 7), storage::File::Lock::Taken);
        expectLocked();
    }
    ASSERT_TRUE(QFile::remove(lockFile));
    storage::File other = storage::File::open(basic::NativePath(m_file), storage::File::Mode::ReadWrite, nullptr);
    PageLocks locks(other, m_file);
    {
        const PageLock lock(locks, page);
        expectLocked();
    }
    const PageLock lock(locks, page + 1);
    EXPECT_EQ(opened.write({{0, true}}).size(), 1U);
}

TEST_F(MarkWriterTest, NoticesWhatOthersWriteMeanwhile)
{
    test::FaultyStorage storage;
    std::optional<Opened> opened;
    makePersons(m_file, 40);
    const auto original = readAll(m_file);
    const RowPlace place = Opened(m_file).table->place(0);
    const auto changeName = [&] {
        QFile other(m_file);
        ASSERT_TRUE(other.open(QIODevice::ReadWrite) && other.seek(place.recordPage * 4096 + place.recordStart + 20));
        ASSERT_TRUE(other.putChar('x'));
    };
    bool refused = false;
    const auto write = [&] {
        refused = false;
        try {
            opened->write({{0, true}});
        } catch (const basic::Error &error) {
            refused = true;
            EXPECT_EQ(error.fault(), basic::Fault::FileChanged) << error.what();
        }
    };
    const auto check = [&](test::Call struck) {
        EXPECT_EQ(Opened(m_file).marks()[0], !refused);
        // At once, though the size is the same and perhaps the time: it was the page that was written.
        EXPECT_EQ(opened->database->isStale(), struck != test::Call::None);
    };
    test::atEachCall(
        storage, test::Fault::OtherFirst,
        [&] {
            opened.reset();
            testing::writeAll(m_file, original);
            opened.emplace(m_file);
        },
        write, check, changeName);
}

TEST_F(MarkWriterTest, ComparesTheFileWhereItsTimeSaysNothing)
{
    for (const std::uint32_t key : {0U, Key}) {
        makePersons(m_file, 3, key);
        const Opened opened(m_file);
        QFile other(m_file);
        ASSERT_TRUE(other.open(QIODevice::ReadWrite) && other.seek(4 * 4096 + 4000) && other.putChar('x'));
        other.close();
        opened.database->image()->setStamp(Image::stampOf(m_file)); // as if within one tick
        const QDeadlineTimer limit(5000);
        while (!opened.database->isStale() && !limit.hasExpired()) {
        }
        EXPECT_TRUE(opened.database->isStale());
    }
}

TEST_F(MarkWriterTest, StopsBetweenPagesWhenAskedTo)
{
    makePersons(m_file, 2000);
    const Opened opened(m_file);
    const auto before = readAll(m_file);
    std::vector<Mark> marks;
    for (std::uint32_t row = 0; row < opened.table->rowCount(); ++row)
        marks.push_back({row, true});
    const basic::Error error = errorOf([&] { opened.write(marks, [](qint64 done, qint64) { return done == 0; }); });
    EXPECT_EQ(error.kind(), basic::ErrorKind::Cancelled);
    const int changed = differentBits(before, readAll(m_file));
    EXPECT_GT(changed, 0);
    EXPECT_LT(changed, 1000);
    EXPECT_TRUE(QString(error.what()).endsWith(u"; RowsChangedBefore (%1)"_s.arg(changed))) << error.what();

    const Opened again(m_file);
    qint64 reported = 0;
    again.write(marks, [&](qint64 done, qint64 total) {
        EXPECT_EQ(total, 2000);
        EXPECT_GE(done, reported);
        reported = done;
        return true;
    });
    EXPECT_EQ(reported, 2000);
    EXPECT_EQ(again.marks(), std::vector<bool>(2000, true));
}

} // namespace
} // namespace kalvenor::jet
