// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/demohost.h"

#include "demo/demofixture.h"
#include "language/texts/catalogue.h"
#include "platform/basic/error.h"
#include "support/errors.h"
#include "support/files.h"
#include <map>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {
namespace {

using test::DemoTest;

/// All files below the folder but the settings, which name the folder itself.
std::map<QString, QByteArray> databasesAndPages(const QString &folder)
{
    std::map<QString, QByteArray> all;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        if (!path.endsWith(u"/programm.ini"))
            all[QDir(folder).relativeFilePath(path)] = kalvenor::test::contentOf(path);
    }
    return all;
}

TEST(DemoHost, SameSeedSameBytesOtherSeedOtherPersons)
{
    const QTemporaryDir first;
    const QTemporaryDir second;
    const QTemporaryDir third;
    makeDemoHost({.folder = first.path(), .persons = 400, .seed = 5});
    makeDemoHost({.folder = second.path(), .persons = 400, .seed = 5});
    const DemoHost other = makeDemoHost({.folder = third.path(), .persons = 400, .seed = 6});
    const auto all = databasesAndPages(first.path());
    EXPECT_GE(all.size(), 8u);
    EXPECT_TRUE(all == databasesAndPages(second.path()));
    const QString file = u"QV/Daten/Familie.mdb"_s;
    EXPECT_NE(all.at(file), kalvenor::test::contentOf(other.familyDatabase));
}

TEST(DemoHost, RefusesWithAClearErrorAndLeavesNothingBehind)
{
    const QTemporaryDir folder;
    const QDir top(folder.path());
    top.mkpath(u"full/QV"_s);
    top.mkpath(u"file"_s);
    for (const QString &name : {u"full/QV/.mine"_s, u"file/QV"_s, u"plain"_s}) {
        kalvenor::test::writeFile(top.filePath(name));
    }
    const struct {
        QString folder;
        int persons;
        basic::Fault fault;
    } cases[] = {
        {u"a"_s, 0, basic::Fault::DemoSize},
        {u"a"_s, -3, basic::Fault::DemoSize},
        {u"a"_s, 2'000'001, basic::Fault::DemoSize},
        {u"full"_s, 10, basic::Fault::FolderNotEmpty},
        {u"file"_s, 10, basic::Fault::FileInTheWay},
        {u"plain/below"_s, 10, basic::Fault::FolderNotMade},
        {QString(250, u'x'), 10, basic::Fault::PathTooLong},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(basic::nameOf(row.fault));
        const QString target = top.filePath(row.folder);
        const auto before = databasesAndPages(folder.path());
        EXPECT_EQ(kalvenor::test::faultOf([&] { makeDemoHost({.folder = target, .persons = row.persons}); }),
                  row.fault);
        EXPECT_TRUE(before == databasesAndPages(folder.path()));
    }
}

TEST(DemoHost, CancellingRemovesWhatWasBegun)
{
    const QTemporaryDir folder;
    for (const qint64 stopAt : {qint64(1), qint64(15'000)}) {
        qint64 last = -1;
        const basic::Progress progress = [&](qint64 done, qint64 total) {
            EXPECT_GE(done, last);
            EXPECT_LE(done, total);
            last = done;
            return done < stopAt;
        };
        const DemoOptions wanted{.folder = folder.filePath(u"a/b"_s), .persons = 10'000};
        EXPECT_EQ(kalvenor::test::kindOf([&] { makeDemoHost(wanted, progress); }), basic::ErrorKind::Cancelled);
        EXPECT_FALSE(QFile::exists(folder.filePath(u"a"_s))) << "folders that were made go, too";
    }
}

TEST(DemoHost, AnyNumberOfPersonsMakesAWholeDatabase)
{
    for (const int persons : {1, 2, 7, 999, 1000}) {
        const QTemporaryDir folder;
        const DemoHost host = makeDemoHost({.folder = folder.path(), .persons = persons});
        const auto table = jet::Database::open(host.familyDatabase)->table(u"Daten"_s);
        EXPECT_EQ(table->rowCount(), static_cast<std::uint32_t>(persons));
        EXPECT_EQ(host.persons, persons);
    }
}

TEST_F(DemoTest, AllTablesOfAHostAreThere)
{
    const std::pair<const char16_t *, int> cases[] = {
        {u"Daten/Familie.mdb", 21}, {u"Ereignis.mdb", 3},        {u"Geschichte.mdb", 1}, {u"namen.mdb", 1},
        {u"orte.mdb", 1},           {u"ADD-IN-LANGUAGE.MDB", 1}, {u"language.mdb", 1}};
    for (const auto &[file, tables] : cases) {
        const auto database = open(QString::fromUtf16(file));
        EXPECT_TRUE(database->damage().empty());
        int found = 0;
        for (const jet::CatalogueEntry &entry : database->entries()) {
            if (entry.system)
                continue;
            ++found;
            const auto table = database->table(entry.name);
            EXPECT_GT(table->rowCount(), 0u) << qPrintable(entry.name);
            if (entry.name == u"Languages") {
                EXPECT_EQ(table->rowCount(), language::catalogue().size());
                EXPECT_EQ(table->indexes().at(0).name, u"Counter"_s);
            }
        }
        EXPECT_EQ(found, tables) << qPrintable(database->file());
    }
}

TEST_F(DemoTest, EventKindsHaveDistinctPictures)
{
    const auto database = open(u"Ereignis.mdb"_s);
    const auto german = database->table(u"Deutsch"_s);
    const auto english = database->table(u"English"_s);
    ASSERT_EQ(german->rowCount(), english->rowCount());
    std::map<QByteArray, int> pictures;
    for (std::uint32_t row = 0; row < german->rowCount(); ++row) {
        EXPECT_EQ(german->integer(row, german->columnOf(u"Index")), english->integer(row, english->columnOf(u"Index")));
        EXPECT_FALSE(german->text(row, german->columnOf(u"txtzeichen")).isEmpty());
        const QByteArray bytes = german->bytes(row, german->columnOf(u"Icon_Druck"));
        QImage image;
        ASSERT_TRUE(image.loadFromData(bytes, "BMP")) << row;
        EXPECT_EQ(image.size(), QSize(16, 16));
        EXPECT_EQ(++pictures[bytes], 1) << row;
    }
    // The sign of death is a cross: upright above its lower arm, not upside down.
    QImage cross;
    ASSERT_TRUE(cross.loadFromData(german->bytes(6, german->columnOf(u"Icon_Druck"))));
    EXPECT_EQ(german->text(6, german->columnOf(u"Art")), u"Tod"_s);
    EXPECT_EQ(cross.pixelColor(3, 4), QColor(0x20, 0x20, 0x20));
    EXPECT_EQ(cross.pixelColor(3, 11), QColor(Qt::white));
}

TEST_F(DemoTest, PrintedPagesBelongToPersonsWithAnAge)
{
    const auto table = family()->table(u"Daten"_s);
    std::map<int, std::uint32_t> rows;
    for (std::uint32_t row = 0; row < table->rowCount(); ++row)
        rows[*table->integer(row, table->columnOf(u"Counter"))] = row;
    const QDir prints(host().hostFolder + u"/Ausdrucke"_s);
    const auto pages = prints.entryList({u"*-D.html"_s});
    EXPECT_GE(pages.size(), 4);
    for (const QString &page : pages) {
        const auto person = rows.find(page.section(u'-', 0, 0).toInt());
        ASSERT_NE(person, rows.end()) << qPrintable(page);
        EXPECT_LT(table->integer(person->second, table->columnOf(u"Geburtsdatum")),
                  table->integer(person->second, table->columnOf(u"Sterbedatum")));
        EXPECT_TRUE(kalvenor::test::contentOf(prints.filePath(page))
                        .contains(table->text(person->second, table->columnOf(u"nnamen")).toHtmlEscaped().toUtf8()));
    }
}

} // namespace
} // namespace kalvenor::demo
