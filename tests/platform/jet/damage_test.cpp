// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "fixtures.h"
#include "jet3fixture.h"
#include "platform/basic/error.h"
#include "platform/jet/marks/markwriter.h"
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
    std::uint32_t definition, map, mapRow;
    RowPlace first, second, longChain;

    explicit Places(Pages &pages)
    {
        const auto table = Database::open(Image::fromBytes({}, pages.bytes()))->table(u"Daten"_s);
        definition = table->definitionPage();
        const std::uint32_t pointer = pages.get(definition, 55, 4);
        map = pointer >> 8;
        mapRow = pages.get(map, pages.slotAt(pointer & 0xff), 2) & 0x1fff;
        first = table->place(0);
        second = table->place(1);
        longChain = table->place(9); // the tenth row has a memo over several rows
    }
};

TEST(Damage, EachCaseEndsInItsErrorOrWarning)
{
    const std::size_t all = readAllOf(persons()).rows;
    ASSERT_GT(all, 60U);
    struct Case {
        const char *name;
        int error;        ///< 0: read with a warning
        int lost;         ///< rows
        const char *text; ///< a part of the error or the warnings
        std::function<void(Pages &, const Places &)> damage;
    };
    const std::array<Case, 29> cases{{
        {"catalogue page", 3343, 0, "page 2: DefinitionDamaged",
         [](Pages &p, const Places &) {
             p.at(2, 0) = 1;
         }},
        {"catalogue column", 3343, 0, "CatalogueDamaged",
         [](Pages &p, const Places &) {
             for (std::size_t at = 500; at < 2000; ++at) {
                 if (p.get(2, at, 4) == 0x00640049) // "Id"
                     p.at(2, at) = 'J';
             }
         }},
        {"definition page kind", 3343, 0, "WordOtherPage",
         [](Pages &p, const Places &at) {
             p.at(at.definition, 0) = 1;
         }},
        {"definition loop", 3343, 0, "WordPageCircle",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 4, 4, at.definition);
         }},
        {"definition beyond the end", 3343, 0, "WordPageBeyondEnd",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 4, 4, 99999);
         }},
        {"content length 0", 3343, 0, "WordLength",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 8, 4, 0);
         }},
        {"content length", 3343, 0, "WordLength",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 8, 4, 0xffffffff);
         }},
        {"content short", 3343, 0, "WordColumnsCut",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 8, 4, 130);
         }},
        {"columns", 3343, 0, "WordColumnCount",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 45, 2, 256);
         }},
        {"variable columns", 3343, 0, "WordVariableColumns",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 43, 2, 200);
         }},
        {"indexes", 3343, 0, "WordIndexCount",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 51, 4, 0x7fffffff);
         }},
        {"column type", 0, 0, "TypeUnknown (1, 14)",
         [](Pages &p, const Places &at) {
             p.at(at.definition, 63 + 12 + 25) = 14;
         }},
        {"column twice", 0, 0, "ColumnTwice",
         [](Pages &p, const Places &at) {
             p.at(at.definition, 63 + 12 + 25 + 5) = 0;
         }},
        {"fixed offset", 0, 0, "FieldBeyondRow",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 63 + 12 + 21, 2, 0xfff0);
         }},
        {"map pointer", 3343, 0, "UsageMapMissing",
         [](Pages &p, const Places &at) {
             p.put(at.definition, 55, 4, 0xffffff00);
         }},
        {"map kind", 3343, 0, "UsageMapMissing",
         [](Pages &p, const Places &at) {
             p.at(at.map, at.mapRow) = 2;
         }},
        {"map first page", 0, 60, "RowsMissing (0, 60)",
         [](Pages &p, const Places &at) {
             p.put(at.map, at.mapRow + 1, 4, 0xfffffff8);
         }},
        {"slot count", 0, 14, "TooManyRows",
         [](Pages &p, const Places &at) {
             p.put(at.first.firstPage, 12, 2, 0xffff);
         }},
        {"slot in the slot table", 0, 14, "RowsWithoutPlace (0)",
         [](Pages &p, const Places &at) {
             p.put(at.first.firstPage, p.slotAt(0), 2, 15);
         }},
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
             p.put(at.first.firstPage, at.first.recordStart, 4, at.map << 8);
         }},
        {"two rows with one record", 0, 2, "WordRecordTaken",
         [](Pages &p, const Places &at) {
             testing::makeOverflow(p, at.first, at.second);
             testing::makeOverflow(p, at.longChain, at.second);
         }},
        {"one long value for all", 3343, 0, "LongValuesShared",
         [](Pages &p, const Places &at) {
             const auto memoOf = [&p](const RowPlace &row) {
                 return row.recordStart + p.get(row.firstPage, row.recordStart + row.recordLength - 7U, 2);
             };
             const auto table = Database::open(Image::fromBytes({}, p.bytes()))->table(u"Daten"_s);
             const std::size_t head = memoOf(at.longChain);
             for (std::uint32_t row = 0; row < table->rowCount(); ++row) {
                 for (std::size_t i = 0; i < 12; ++i)
                     p.at(table->place(row).firstPage, memoOf(table->place(row)) + i) =
                         p.at(at.longChain.firstPage, head + i);
             }
         }},
        {"record count", 0, 1, "WordOffsets",
         [](Pages &p, const Places &at) {
             p.put(at.first.firstPage, at.first.recordStart, 2, 7777);
         }},
        {"offsets descend", 0, 1, "WordOffsets",
         [](Pages &p, const Places &at) {
             const std::size_t end = at.first.recordStart + at.first.recordLength;
             p.put(at.first.firstPage, end - 5, 2, 0x0fff);
         }},
        {"long value kind 3", 0, 0, "WordLongKind",
         [](Pages &p, const Places &at) {
             const std::size_t end = at.longChain.recordStart + at.longChain.recordLength;
             const std::size_t memo = at.longChain.recordStart + p.get(at.longChain.firstPage, end - 7, 2);
             p.at(at.longChain.firstPage, memo + 3) |= 0xc0;
         }},
        {"long value length", 0, 0, "WordLongTooShort",
         [](Pages &p, const Places &at) {
             const std::size_t end = at.longChain.recordStart + at.longChain.recordLength;
             const std::size_t memo = at.longChain.recordStart + p.get(at.longChain.firstPage, end - 7, 2);
             p.put(at.longChain.firstPage, memo, 4, 0x3fffffff);
         }},
        {"long value loop", 0, 0, "WordLongCircle",
         [](Pages &p, const Places &at) {
             const std::size_t end = at.longChain.recordStart + at.longChain.recordLength;
             const std::size_t memo = at.longChain.recordStart + p.get(at.longChain.firstPage, end - 7, 2);
             p.put(at.longChain.firstPage, memo, 4, 0x3fffffff);
             const std::uint32_t row = p.get(at.longChain.firstPage, memo + 4, 4);
             const std::size_t start = p.get(row >> 8, p.slotAt(row & 0xff), 2);
             p.put(row >> 8, start, 4, row);
         }},
    }};
    for (const Case &damaged : cases) {
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
    const Bytes text(20000, 'x');
    const struct {
        const char *name;
        Bytes bytes;
        int error;
        const char *part;
    } cases[] = {
        {"empty", {}, 3343, "FileTooShort (0)"},
        {"two pages", Bytes(persons().begin(), persons().begin() + 8192), 3343, "FileTooShort (8192)"},
        {"text", text, 3343, "OtherKindOfFile"},
        {"ACE name", withHead({{13, 'A'}, {14, 'C'}, {15, 'E'}, {16, ' '}, {17, 'D'}, {18, 'B'}}), 3343, "AceFormat"},
        {"version 2", withHead({{0x14, 2}}), 3343, "AceFormat"},
        {"encoded without being it", withHead({{0x3e, persons()[0x3e] ^ 0x55}}), 3343, "NotDecoded"},
    };
    for (const auto &[name, bytes, error, part] : cases) {
        SCOPED_TRACE(name);
        const QString file = folder.filePath(u"a.mdb"_s);
        testing::writeAll(file, bytes);
        try {
            Database::open(file);
            ADD_FAILURE() << "was opened";
        } catch (const basic::Error &found) {
            EXPECT_EQ(found.number(), error);
            EXPECT_EQ(found.place().file, file);
            EXPECT_TRUE(QString(found.what()).contains(QLatin1String(part))) << found.what();
        }
    }
    const auto kindOf = [](const QString &file) {
        try {
            Database::open(file);
        } catch (const basic::Error &error) {
            return error.kind();
        }
        return basic::ErrorKind::Overflow;
    };
    EXPECT_EQ(kindOf(folder.filePath(u"none.mdb"_s)), basic::ErrorKind::FileNotFound);
    EXPECT_EQ(kindOf(folder.path()), basic::ErrorKind::FileUnreadable);
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
        std::shared_ptr<Database> database;
        try {
            Bytes bytes(persons().begin(), persons().begin() + static_cast<std::ptrdiff_t>(left * 4096));
            bytes.resize(i % 2 == 0 ? bytes.size() : persons().size()); // a broken copy may keep the size
            database = Database::open(Image::fromBytes({}, bytes));
        } catch (const basic::Error &) {
            continue; // not even a catalogue
        }
        EXPECT_GT(database->missingPages(), 0U);
        EXPECT_LE(database->missingPages(), pages - left);
        try {
            const auto table = database->table(u"Daten"_s);
            jet::MarkWriter(database, table, table->columnOf(u"Markierung"), 0);
            ADD_FAILURE() << "would be written to";
        } catch (const basic::Error &error) {
            EXPECT_TRUE(error.fault() == basic::Fault::FileCutShort ||
                        error.fault() == basic::Fault::IncompleteNotMarked)
                << error.what();
        }
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
