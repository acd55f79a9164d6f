// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "language/texts/catalogue.h"

#include "language/texts/sprache.h"
#include "language/texts/textfile.h"
#include "platform/basic/codepage.h"
#include "platform/basic/path.h"
#include <gtest/gtest.h>
#include <map>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStringList>
#include <set>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using namespace kalvenor::language;

namespace {

const QString Sources = u"" KALVENOR_SOURCE_DIR "/src/"_s;

QString read(const QString &file)
{
    QFile source(file);
    EXPECT_TRUE(source.open(QIODevice::ReadOnly)) << file.toStdString();
    return QString::fromUtf8(source.readAll());
}

/// Every text and every fault with its number.
std::map<int, QString> enumerators()
{
    static const QRegularExpression text(u"^    (\\w+) = (\\d+),"_s, QRegularExpression::MultilineOption);
    static const QRegularExpression fault(u"^    F\\((\\w+), (\\d+),"_s, QRegularExpression::MultilineOption);
    std::map<int, QString> names;
    const auto add = [&](const QString &file, const QRegularExpression &line, const QString &prefix) {
        const QString source = read(Sources + file);
        for (auto it = line.globalMatch(source); it.hasNext();) {
            const auto match = it.next();
            const bool added = names.insert({match.captured(2).toInt(), prefix + match.captured(1)}).second;
            EXPECT_TRUE(added) << match.captured(0).toStdString();
        }
    };
    add(u"language/texts/text.h"_s, text, u"Text::"_s);
    add(u"platform/basic/fault.h"_s, fault, u"Fault::"_s);
    names.erase(0);
    return names;
}

std::set<QString> usedNames()
{
    static const QRegularExpression use(u"\\b(?:Text|Fault)::\\w+"_s);
    std::set<QString> used;
    for (QDirIterator files(Sources, {"*.cpp", "*.h"}, QDir::Files, QDirIterator::Subdirectories); files.hasNext();) {
        const QString file = files.next();
        if (file.contains(u"/language/texts/catalogue_"_s))
            continue;
        const QString source = read(file);
        for (auto it = use.globalMatch(source); it.hasNext();)
            used.insert(it.next().captured(0));
    }
    return used;
}

QStringList placesOf(const QString &text)
{
    static const QRegularExpression place(u"%[0-9sd]"_s);
    QStringList found;
    for (auto it = place.globalMatch(text); it.hasNext();)
        found += it.next().captured();
    found.sort(); // the other language may turn their order round
    return found;
}

/// Of each part of the text, as menus and lists of choices have them: whether it has an access key.
QList<qsizetype> accessKeysOf(const QString &text)
{
    static const QRegularExpression key(u"&[^ &]"_s);
    QList<qsizetype> counts;
    for (const QString &part : text.split(u'|'))
        counts << part.count(key);
    return counts;
}

} // namespace

TEST(Catalogue, HoldsEveryTextOnceInTheOrderOfTheNumbers)
{
    const auto names = enumerators();
    std::vector<int> numbers, expected;
    for (const CatalogueText &entry : catalogue())
        numbers.push_back(static_cast<int>(entry.id));
    for (const auto &[number, name] : names)
        expected.push_back(number);
    EXPECT_EQ(numbers, expected);
    EXPECT_GT(numbers.size(), 350U);
}

TEST(Catalogue, HoldsNoTextThatNobodyShows)
{
    const std::set<QString> used = usedNames();
    for (const auto &[number, name] : enumerators()) {
        // What belongs to the host is written for it, used by us or not.
        EXPECT_TRUE(number < FirstOwnText || used.contains(name)) << name.toStdString();
    }
}

TEST(Catalogue, HoldsWhatTheHostsNumbersStandFor)
{
    // Captions that forms carry at design time.
    const std::pair<int, const char *> captions[] = {{180, "&Drucken"},
                                                     {181, "&Speichern"},
                                                     {182, "&Druckvorlage"},
                                                     {183, "&Fenster schließen"},
                                                     {184, "&Hilfe"},
                                                     {1204, "Liste auf neuer Seite beginnen"},
                                                     {1217, "Liste aller Personen nach Alter sortiert"}};
    for (const auto &[id, caption] : captions)
        EXPECT_EQ(wording(static_cast<Text>(id), CatalogueLanguage::German), QString::fromUtf8(caption));
    EXPECT_EQ(wording(static_cast<Text>(189), CatalogueLanguage::German).count(u'|'), 3) << "the zooms";
    EXPECT_EQ(basic::fileNamePart(wording(Text::ReportName, CatalogueLanguage::German)),
              wording(Text::ReportName, CatalogueLanguage::German))
        << "an exported file is named with it";
}

TEST(Catalogue, SaysTheSameInBothLanguages)
{
    std::set<std::pair<QString, QString>> own;
    for (const CatalogueText &entry : catalogue()) {
        const int id = static_cast<int>(entry.id);
        SCOPED_TRACE(id);
        const QString german = wording(entry.id, CatalogueLanguage::German);
        const QString english = wording(entry.id, CatalogueLanguage::English);
        EXPECT_EQ(placesOf(german), placesOf(english));
        EXPECT_EQ(accessKeysOf(german), accessKeysOf(english));
        for (const QString &text : {german, english}) {
            EXPECT_FALSE(text.trimmed().isEmpty());
            EXPECT_LE(text.size(), 255);
            EXPECT_FALSE(text.contains(u"NAME#"_s)) << "the lookup removes such placeholders";
            EXPECT_EQ(basic::decodeAnsi(basic::encodeAnsi(text)), text);
        }
        EXPECT_FALSE(german[0].isDigit()) << "a form's caption is the number, directly followed by the German text";
        EXPECT_TRUE(id < 2000 || id >= FirstOwnText);
        EXPECT_TRUE(id < FirstOwnText || own.insert({german, english}).second) << "stands twice";
    }
    EXPECT_TRUE(wording(Text::None, CatalogueLanguage::German).isNull());
}

/// A language is added by its file alone.
TEST(TextFiles, HoldTextsOfTheCatalogueWithTheSamePlaces)
{
    const TextFile two = readTextFile(u"# Suomi\r\n20005\t%1 / %2\r\n\nno number\t1\n21412\tNimetön\n20006\t\n"_s);
    EXPECT_EQ(two, (TextFile{{20005, u"%1 / %2"_s}, {21412, u"Nimetön"_s}}));
    EXPECT_TRUE(textsOfLanguage(u"Suomi"_s).empty());
    for (QDirIterator files(u"" KALVENOR_SOURCE_DIR "/resources/texts"_s, {"*.txt"}); files.hasNext();) {
        const TextFile texts = readTextFile(read(files.next()));
        EXPECT_FALSE(texts.empty());
        EXPECT_EQ(texts, textsOfLanguage(files.fileInfo().completeBaseName()));
        for (const auto &[id, text] : texts) {
            const QString english = wording(static_cast<Text>(id), CatalogueLanguage::English);
            EXPECT_EQ(placesOf(text), placesOf(english)) << files.fileName().toStdString() << id;
        }
    }
}
