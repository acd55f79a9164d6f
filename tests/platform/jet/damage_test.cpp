// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixtures.h"
#include "jet3fixture.h"
#include "platform/basic/error.h"
#include "platform/jet/marks/markwriter.h"
#include "support/errors.h"
#include <array>
#include <chrono>
#include <QTemporaryDir>
#include <random>

using namespace Qt::StringLiterals;

namespace kalvenor::jet {
namespace {

using testing::Pages;
using Bytes = std::vector<std::uint8_t>;

/// What reading all of the bytes comes to: the error's number and text, or the rows and the warnings.
struct Outcome {
    int error = 0;
    QString text;
    std::size_t rows = 0;
};

Outcome readAllOf(const Bytes &bytes)
{
    try {
        const auto database = Database::open(Image::fromBytes(u"mutant"_s, bytes));
        QStringList warnings;
        const std::size_t rows = testing::readEverything(*database, &warnings);
        return {0, warnings.join(u'\n'), rows};
    } catch (const basic::Error &error) {
        return {error.number(), QString(error.what()), 0};
    }
}

const Bytes &persons()
{
    static const Bytes bytes = [] {
        const QTemporaryDir folder;
        const QString file = folder.filePath(u"familie.mdb"_s);
        testing::makePersons(file, 60);
        return testing::readAll(file);
    }();
    return bytes;
}

Bytes jet3()
{
    testing::Jet3File file(1252);
    for (int i = 1; i <= 6; ++i)
        file.addRow({i, i % 2 == 0, QByteArray(40 * i, 'n'), QByteArray(30 * i, 'o')});
    return file.bytes();
}

/// The places of a sound database that the cases below damage.
struct Places {
    struct Spot {
        std::size_t page, offset;
    };
    Spot catalogue{2, 0}, definition, map, firstPage, firstRecord, firstEnd, memo;
    RowPlace first, second, longChain;

    explicit Places(Pages &pages)
    {
        const auto table = Database::open(Image::fromBytes({}, pages.bytes()))->table(u"Daten"_s);
        definition = {table->definitionPage(), 0};
        const std::uint32_t pointer = pages.get(definition.page, 55, 4);
        map = {pointer >> 8, pages.get(pointer >> 8, pages.slotAt(pointer & 0xff), 2) & 0x1fff};
        first = table->place(0);
        second = table->place(1);
        longChain = table->place(9); // the tenth row has a memo over several rows
        firstPage = {first.firstPage, 0};
        firstRecord = {first.firstPage, first.recordStart};
        firstEnd = {first.firstPage, std::size_t{first.recordStart} + first.recordLength};
        memo = memoOf(pages, longChain);
    }
    static Spot memoOf(Pages &pages, const RowPlace &row)
    {
        return {row.firstPage, row.recordStart + pages.get(row.firstPage, row.recordStart + row.recordLength - 7U, 2)};
    }
};

using Damaging = std::function<void(Pages &, const Places &)>;

Damaging put(Places::Spot Places::*spot, int offset, int size, std::uint32_t value)
{
    return [=](Pages &pages, const Places &at) {
        pages.put((at.*spot).page, (at.*spot).offset + static_cast<std::size_t>(offset), size, value);
    };
}

TEST(Damage, EachCaseEndsInItsErrorOrWarning)
{
    const std::size_t all = readAllOf(persons()).rows;
    ASSERT_GT(all, 60U);
    constexpr int secondColumn = 63 + 12 + 25;
    constexpr int firstSlot = 14;
    using P = Places;
    const struct {
        const char *name;
        int error;        ///< 0: read with a warning
        int lost;         ///< rows
        const char *text; ///< a part of the error or the warnings
        Damaging damage;
    } cases[] = {
        {"catalogue page", 3343, 0, "page 2: DefinitionDamaged", put(&P::catalogue, 0, 1, 1)},
        {"catalogue column", 3343, 0, "CatalogueDamaged",
         [](Pages &p, const Places &) {
             for (std::size_t at = 500; at < 2000; ++at) {
                 if (p.get(2, at, 4) == 0x00640049) // "Id"
                     p.at(2, at) = 'J';
             }
         }},
        {"definition page kind", 3343, 0, "WordOtherPage", put(&P::definition, 0, 1, 1)},
        {"definition loop", 3343, 0, "WordPageCircle",
         [](Pages &p, const Places &at) {
             p.put(at.definition.page, 4, 4, static_cast<std::uint32_t>(at.definition.page));
         }},
        {"definition beyond the end", 3343, 0, "WordPageBeyondEnd", put(&P::definition, 4, 4, 99999)},
        {"content length 0", 3343, 0, "WordLength", put(&P::definition, 8, 4, 0)},
        {"content length", 3343, 0, "WordLength", put(&P::definition, 8, 4, 0xffffffff)},
        {"content short", 3343, 0, "WordColumnsCut", put(&P::definition, 8, 4, 130)},
        {"columns", 3343, 0, "WordColumnCount", put(&P::definition, 45, 2, 256)},
        {"variable columns", 3343, 0, "WordVariableColumns", put(&P::definition, 43, 2, 200)},
        {"indexes", 3343, 0, "WordIndexCount", put(&P::definition, 51, 4, 0x7fffffff)},
        {"column type", 0, 0, "TypeUnknown (1, 14)", put(&P::definition, secondColumn, 1, 14)},
        {"column twice", 0, 0, "ColumnTwice", put(&P::definition, secondColumn + 5, 1, 0)},
        {"fixed offset", 0, 0, "FieldBeyondRow", put(&P::definition, 63 + 12 + 21, 2, 0xfff0)},
        {"map pointer", 3343, 0, "UsageMapMissing", put(&P::definition, 55, 4, 0xffffff00)},
        {"map kind", 3343, 0, "UsageMapMissing", put(&P::map, 0, 1, 2)},
        {"map first page", 0, 60, "RowsMissing (0, 60)", put(&P::map, 1, 4, 0xfffffff8)},
        {"slot count", 0, 14, "TooManyRows", put(&P::firstPage, 12, 2, 0xffff)},
        {"slot in the slot table", 0, 14, "RowsWithoutPlace (0)", put(&P::firstPage, firstSlot, 2, 15)},
        {"slot flag", 0, 1, "WordUnknownFlag",
         [](Pages &p, const Places &at) {
             p.put(at.first.firstPage, p.slotAt(1), 2, at.second.recordStart | 0x2000U);
         }},
        {"overflow to itself", 0, 1, "WordMovedAway",
         [](Pages &p, const Places &at) {
             testing::makeOverflow(p, at.first, at.first);
             p.put(at.first.firstPage, p.slotAt(0), 2, at.first.recordStart | 0x4000U);
         }},
        {"overflow to another table", 0, 1, "WordMovedAway",
         [](Pages &p, const Places &at) {
             testing::makeOverflow(p, at.first, at.second);
             p.put(at.second.firstPage, p.slotAt(1), 2, at.second.recordStart);
             p.put(at.first.firstPage, at.first.recordStart, 4, static_cast<std::uint32_t>(at.map.page << 8));
         }},
        {"two rows with one record", 0, 2, "WordRecordTaken",
         [](Pages &p, const Places &at) {
             testing::makeOverflow(p, at.first, at.second);
             testing::makeOverflow(p, at.longChain, at.second);
         }},
        {"one long value for all", 3343, 0, "LongValuesShared",
         [](Pages &p, const Places &at) {
             const auto table = Database::open(Image::fromBytes({}, p.bytes()))->table(u"Daten"_s);
             for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
                 const Places::Spot memo = Places::memoOf(p, table->place(row));
                 for (std::size_t i = 0; i < 12; ++i)
                     p.at(memo.page, memo.offset + i) = p.at(at.memo.page, at.memo.offset + i);
             }
         }},
        {"record count", 0, 1, "WordOffsets", put(&P::firstRecord, 0, 2, 7777)},
        {"offsets descend", 0, 1, "WordOffsets", put(&P::firstEnd, -5, 2, 0x0fff)},
        {"long value kind 3", 0, 0, "WordLongKind", put(&P::memo, 3, 1, 0xc0)},
        {"long value length", 0, 0, "WordLongTooShort", put(&P::memo, 0, 4, 0x3fffffff)},
        {"long value loop", 0, 0, "WordLongCircle",
         [](Pages &p, const Places &at) {
             p.put(at.memo.page, at.memo.offset, 4, 0x3fffffff);
             const std::uint32_t row = p.get(at.memo.page, at.memo.offset + 4, 4);
             p.put(row >> 8, p.get(row >> 8, p.slotAt(row & 0xff), 2), 4, row);
         }},
    };
    for (const auto &damaged : cases) {
        SCOPED_TRACE(damaged.name);
        Pages pages(persons(), 4096);
        const Places places(pages);
        damaged.damage(pages, places);
        const Outcome outcome = readAllOf(pages.bytes());
        EXPECT_EQ(outcome.error, damaged.error);
        EXPECT_TRUE(outcome.text.contains(QLatin1String(damaged.text))) << outcome.text.toStdString();
        if (damaged.error == 0) {
            EXPECT_EQ(static_cast<int>(all - outcome.rows), damaged.lost) << outcome.text.toStdString();
        }
    }
}

TEST(Damage, OtherFilesAreRefusedByName)
{
    const QTemporaryDir folder;
    const auto withHead = [](std::vector<std::pair<std::size_t, int>> changes) {
        Bytes bytes = persons();
        for (const auto &[at, value] : changes)
            bytes[at] = static_cast<std::uint8_t>(value);
        return bytes;
    };
    const struct {
        const char *name;
        Bytes bytes;
        const char *part;
    } cases[] = {
        {"empty", {}, "FileTooShort (0)"},
        {"two pages", Bytes(persons().begin(), persons().begin() + 8192), "FileTooShort (8192)"},
        {"text", Bytes(20000, 'x'), "OtherKindOfFile"},
        {"ACE name", withHead({{13, 'A'}, {14, 'C'}, {15, 'E'}, {16, ' '}, {17, 'D'}, {18, 'B'}}), "AceFormat"},
        {"version 2", withHead({{0x14, 2}}), "AceFormat"},
        {"encoded without being it", withHead({{0x3e, persons()[0x3e] ^ 0x55}}), "NotDecoded"},
    };
    for (const auto &[name, bytes, part] : cases) {
        SCOPED_TRACE(name);
        const QString file = folder.filePath(u"a.mdb"_s);
        testing::writeAll(file, bytes);
        const auto found = test::thrownBy([&] { Database::open(file); });
        ASSERT_TRUE(found) << "was opened";
        EXPECT_EQ(found->number(), 3343);
        EXPECT_EQ(found->place().file, file);
        EXPECT_TRUE(QString(found->what()).contains(QLatin1String(part))) << found->what();
    }
    EXPECT_EQ(test::kindOf([&] { Database::open(folder.filePath(u"none.mdb"_s)); }), basic::ErrorKind::FileNotFound);
    EXPECT_EQ(test::kindOf([&] { Database::open(folder.path()); }), basic::ErrorKind::FileUnreadable);
}

TEST(Damage, EveryPrefixAndEveryHoleEndInAnErrorOrInAWarning)
{
    for (const Bytes &whole : {persons(), jet3()}) {
        const std::size_t pageSize = whole[0x14] == 0 ? 2048 : 4096;
        const std::size_t rows = readAllOf(whole).rows;
        for (std::size_t size = 0; size < whole.size(); size += pageSize / 2) {
            const Outcome outcome = readAllOf(Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)));
            EXPECT_TRUE(outcome.error == 3343 || !outcome.text.isEmpty()) << size;
            EXPECT_LE(outcome.rows, rows);
        }
        for (std::size_t page = 1; page < whole.size() / pageSize; ++page) {
            Bytes holed = whole;
            std::fill_n(holed.begin() + static_cast<std::ptrdiff_t>(page * pageSize), pageSize, std::uint8_t{0});
            const Outcome outcome = readAllOf(holed);
            EXPECT_TRUE(outcome.rows == rows || outcome.error == 3343 || !outcome.text.isEmpty()) << "hole " << page;
        }
    }
}

TEST(Damage, AMapOfFreePagesMayRunAheadOfTheEnd)
{
    Pages pages(persons(), 4096);
    const std::size_t map = pages.get(1, pages.slotAt(0), 2) & 0x1fff;
    for (std::size_t page = pages.count(); page < pages.count() + 20; ++page)
        pages.at(1, map + 5 + page / 8) &= static_cast<std::uint8_t>(~(1U << page % 8)); // in use
    EXPECT_TRUE(readAllOf(pages.bytes()).text.isEmpty());
}

TEST(Damage, AFileThatWasCutSaysHowMuchIsMissing)
{
    const std::size_t pages = persons().size() / 4096;
    for (std::size_t i = 2 * (pages - 1); i > 7; --i) {
        const std::size_t left = i / 2;
        SCOPED_TRACE(left);
        Bytes cut(persons().begin(), persons().begin() + static_cast<std::ptrdiff_t>(left * 4096));
        cut.resize(i % 2 == 0 ? cut.size() : persons().size()); // a broken copy may keep the size
        std::shared_ptr<Database> database;
        if (test::thrownBy([&] { database = Database::open(Image::fromBytes({}, cut)); }))
            continue; // not even a catalogue
        EXPECT_GT(database->missingPages(), 0U);
        EXPECT_LE(database->missingPages(), pages - left);
        const basic::Fault refusal = test::faultOf([&] {
            const auto table = database->table(u"Daten"_s);
            MarkWriter(database, table, table->columnOf(u"Markierung"), 0);
        });
        EXPECT_TRUE(refusal == basic::Fault::FileCutShort || refusal == basic::Fault::IncompleteNotMarked)
            << basic::nameOf(refusal);
    }
}

/// One to eight bytes changed, mostly in the heads of pages, where the structures are.
Bytes mutant(const Bytes &sound, std::mt19937 &random)
{
    Bytes bytes = sound;
    const std::size_t pageSize = sound[0x14] == 0 ? 2048 : 4096;
    for (unsigned changes = 1 + random() % 8; changes > 0; --changes) {
        const std::size_t page = random() % (bytes.size() / pageSize);
        const std::size_t inPage = random() % 4 == 0 ? random() % pageSize : random() % 80;
        std::uint8_t &byte = bytes[page * pageSize + inPage];
        switch (random() % 4) {
        case 0:
            byte = static_cast<std::uint8_t>(random());
            break;
        case 1:
            byte = 0xff;
            break;
        case 2:
            byte = 0;
            break;
        default:
            byte ^= static_cast<std::uint8_t>(1U << random() % 8);
        }
    }
    return bytes;
}

TEST(Damage, ThousandsOfMutantsAreReadOrRefused)
{
    std::vector<Bytes> sound{persons(), jet3()};
    for (const QString &file : testing::sampleDatabases()) {
        Bytes bytes = testing::readAll(testing::sample(file));
        if (bytes.size() < 150000)
            sound.push_back(std::move(bytes));
    }
    std::mt19937 random(20260101);
    std::array<int, 2> outcomes{};
    for (int i = 0; i < 3000; ++i) {
        const Bytes bytes = mutant(sound[static_cast<std::size_t>(i) % sound.size()], random);
        const auto begin = std::chrono::steady_clock::now();
        const Outcome outcome = readAllOf(bytes);
        ASSERT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1)) << i;
        EXPECT_TRUE(outcome.error == 0 || outcome.error == 3343) << i << ": " << outcome.text.toStdString();
        ++outcomes[outcome.error == 0 ? 0 : 1];
    }
    EXPECT_GT(outcomes[0], 300);
    EXPECT_GT(outcomes[1], 300);
}

} // namespace
} // namespace kalvenor::jet
