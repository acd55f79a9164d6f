// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/demohost.h"

#include "demo/demofixture.h"
#include "platform/basic/error.h"
#include "platform/basic/path.h"
#include "platform/profile/profile.h"
#include <map>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QImage>

namespace kalvenor {
namespace {

using test::DemoTest;

QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// All files below the folder but the settings, which name the folder itself.
std::map<QString, QByteArray> databasesAndPages(const QString &folder)
{
    std::map<QString, QByteArray> all;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        if (!path.endsWith(u"/programm.ini"))
            all[QDir(folder).relativeFilePath(path)] = contents(path);
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
    const QString file = QStringLiteral("QV/Daten/Familie.mdb");
    EXPECT_NE(all.at(file), contents(other.familyDatabase));
}

TEST(DemoHost, RefusesWithAClearErrorAndLeavesNothingBehind)
{
    const QTemporaryDir folder;
    const QDir top(folder.path());
    top.mkpath(QStringLiteral("full/QV"));
    top.mkpath(QStringLiteral("file"));
    for (const QString &name : {QStringLiteral("full/QV/.mine"), QStringLiteral("file/QV"), QStringLiteral("plain")}) {
        QFile file(top.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    const struct {
        QString folder;
        int persons;
        ErrorKind kind;
        const char *word;
    } cases[] = {
        {QStringLiteral("a"), 0, ErrorKind::InvalidProcedureCall, "not 0"},
        {QStringLiteral("a"), -3, ErrorKind::InvalidProcedureCall, "not -3"},
        {QStringLiteral("a"), 2'000'001, ErrorKind::InvalidProcedureCall, "not 2000001"},
        {QStringLiteral("full"), 10, ErrorKind::Refused, "not empty"},
        {QStringLiteral("file"), 10, ErrorKind::Refused, "a file of this name"},
        {QStringLiteral("plain/below"), 10, ErrorKind::WriteFailed, "cannot be made"},
        {QStringLiteral("Καλό"), 10, ErrorKind::Refused, "Windows-1252"},
        {QString(250, u'x'), 10, ErrorKind::Refused, "255"},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.word);
        const QString target = top.filePath(row.folder);
        const auto before = databasesAndPages(folder.path());
        try {
            makeDemoHost({.folder = target, .persons = row.persons});
            ADD_FAILURE() << "was not refused";
        } catch (const Error &error) {
            EXPECT_EQ(error.kind(), row.kind);
            EXPECT_NE(QByteArray(error.what()).indexOf(row.word), -1) << error.what();
        }
        EXPECT_TRUE(before == databasesAndPages(folder.path()));
    }
}

TEST(DemoHost, CancellingRemovesWhatWasBegun)
{
    const QTemporaryDir folder;
    for (const qint64 stopAt : {qint64(1), qint64(15'000)}) {
        qint64 last = -1;
        const Progress progress = [&](qint64 done, qint64 total) {
            EXPECT_GE(done, last);
            EXPECT_LE(done, total);
            last = done;
            return done < stopAt;
        };
        try {
            makeDemoHost({.folder = folder.path(), .persons = 10'000}, progress);
            ADD_FAILURE() << "was not cancelled";
        } catch (const Error &error) {
            EXPECT_EQ(error.kind(), ErrorKind::Cancelled);
        }
        EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("QV"))));
    }
}

TEST(DemoHost, AnyNumberOfPersonsMakesAWholeDatabase)
{
    for (const int persons : {1, 2, 7, 999, 1000}) {
        const QTemporaryDir folder;
        const DemoHost host = makeDemoHost({.folder = folder.path(), .persons = persons});
        const auto table = jet::Database::open(host.familyDatabase)->table(QStringLiteral("Daten"));
        EXPECT_EQ(table->rowCount(), static_cast<std::uint32_t>(persons));
        EXPECT_EQ(host.persons, persons);
    }
}

TEST_F(DemoTest, SettingsLeadToTheFiles)
{
    const QString settings = host().hostFolder + QStringLiteral("/programm.ini");
    const QString prints = host().hostFolder + QStringLiteral("/Ausdrucke");
    const struct {
        const char *section;
        const char *key;
        QByteArray value;
    } cases[] = {
        {"Ansicht", "Sprache", "Deutsch"},
        {"Ansicht", "Kurzhilfe", "1"},
        {"Ansicht", "AddInonTop", "0"},
        {"Ansicht", "Bildminhoehe", "2000"},
        {"QV-Files", "0", windowsPath(host().familyDatabase).toLatin1()},
        {"Verzeichnisse", "Prints", windowsPath(prints).toLatin1()},
        {"Grafik", "JPG-Faktor", "70"},
    };
    for (const auto &row : cases)
        EXPECT_EQ(getPrivateProfileString(row.section, row.key, "?", 256, settings), row.value) << row.key;
    EXPECT_TRUE(QDir(host().programFolder).exists());
    EXPECT_EQ(QFileInfo(host().programFolder).path(), host().hostFolder);
    EXPECT_EQ(contents(settings).count('\n'), contents(settings).count("\r\n"));
}

TEST_F(DemoTest, AllTablesOfAHostAreThere)
{
    const struct {
        QString file;
        std::vector<const char *> tables;
    } cases[] = {
        {QStringLiteral("Daten/Familie.mdb"),
         {"Baum",        "Baum_DS", "Bilder",    "Daten",        "Daten_DS", "Dokument",     "Ereignis",
          "Ereignis_DS", "Familie", "Galerie",   "Galerie_DS",   "Namen_DS", "Namen",        "Quellen_DS",
          "Referenz",    "Ort",     "Stichwort", "Stichwort_DS", "Adressen", "Adressen_DS ", "Version"}},
        {QStringLiteral("Ereignis.mdb"), {"Deutsch", "English", "Namenfont"}},
        {QStringLiteral("Geschichte.mdb"), {"Ereignis"}},
        {QStringLiteral("namen.mdb"), {"Namen"}},
        {QStringLiteral("orte.mdb"), {"Orte"}},
        {QStringLiteral("ADD-IN-LANGUAGE.MDB"), {"Languages"}},
        {QStringLiteral("language.mdb"), {"Languages"}},
    };
    for (const auto &row : cases) {
        const auto database = open(row.file);
        for (const char *name : row.tables) {
            const auto *entry = database->entry(QString::fromLatin1(name));
            ASSERT_NE(entry, nullptr) << name;
            EXPECT_EQ(entry->name, QString::fromLatin1(name));
            EXPECT_GT(database->table(entry->name)->rowCount(), 0u) << name;
        }
        EXPECT_TRUE(database->warnings().isEmpty());
    }
}

TEST_F(DemoTest, EventKindsHaveDistinctPictures)
{
    const auto database = open(QStringLiteral("Ereignis.mdb"));
    const auto german = database->table(QStringLiteral("Deutsch"));
    const auto english = database->table(QStringLiteral("English"));
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
    EXPECT_EQ(german->text(6, german->columnOf(u"Art")), QStringLiteral("Tod"));
    EXPECT_EQ(cross.pixelColor(3, 4), QColor(0x20, 0x20, 0x20));
    EXPECT_EQ(cross.pixelColor(3, 11), QColor(Qt::white));
}

TEST_F(DemoTest, PrintedPagesBelongToPersonsWithAnAge)
{
    const auto table = family()->table(QStringLiteral("Daten"));
    std::map<int, std::uint32_t> rows;
    for (std::uint32_t row = 0; row < table->rowCount(); ++row)
        rows[*table->integer(row, table->columnOf(u"Counter"))] = row;
    const QDir prints(host().hostFolder + QStringLiteral("/Ausdrucke"));
    const auto pages = prints.entryList({QStringLiteral("*-D.html")});
    EXPECT_GE(pages.size(), 4);
    for (const QString &page : pages) {
        const auto person = rows.find(page.section(u'-', 0, 0).toInt());
        ASSERT_NE(person, rows.end()) << qPrintable(page);
        EXPECT_LT(table->integer(person->second, table->columnOf(u"Geburtsdatum")),
                  table->integer(person->second, table->columnOf(u"Sterbedatum")));
        EXPECT_TRUE(contents(prints.filePath(page))
                        .contains(table->text(person->second, table->columnOf(u"nnamen")).toHtmlEscaped().toUtf8()));
    }
}

} // namespace
} // namespace kalvenor
