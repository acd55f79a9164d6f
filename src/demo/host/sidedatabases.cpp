// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/sidedatabases.h"

#include "demo/family/calendar.h"
#include "demo/family/names.h"
#include "demo/host/familytables.h"
#include "demo/host/icons.h"
#include "language/texts/catalogue.h"
#include <set>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

using jet::ColumnType;

namespace {

QString text(const char16_t *units)
{
    return QString::fromUtf16(units);
}

struct History {
    int year;
    int month;
    int day;
    const char16_t *title;
};

constexpr History HistoryRows[] = {
    {1517, 10, 31, u"Thesen Martin Luthers in Wittenberg"},
    {1525, 5, 15, u"Schlacht bei Frankenhausen, Ende des Bauernkriegs in Thüringen"},
    {1555, 9, 25, u"Augsburger Religionsfriede"},
    {1582, 10, 15, u"Gregorianischer Kalender in katholischen Ländern"},
    {1618, 5, 23, u"Prager Fenstersturz, Beginn des Dreißigjährigen Krieges"},
    {1648, 10, 24, u"Westfälischer Friede"},
    {1683, 9, 12, u"Schlacht am Kahlenberg vor Wien"},
    {1700, 3, 1, u"Verbesserter Kalender in den evangelischen Ständen"},
    {1740, 5, 31, u"Friedrich II. wird König in Preußen"},
    {1756, 8, 29, u"Beginn des Siebenjährigen Krieges"},
    {1763, 2, 15, u"Friede von Hubertusburg"},
    {1789, 7, 14, u"Sturm auf die Bastille"},
    {1806, 8, 6, u"Ende des Heiligen Römischen Reiches"},
    {1813, 10, 16, u"Völkerschlacht bei Leipzig"},
    {1815, 6, 9, u"Schlußakte des Wiener Kongresses"},
    {1835, 12, 7, u"Erste Eisenbahn zwischen Nürnberg und Fürth"},
    {1848, 5, 18, u"Nationalversammlung in der Paulskirche"},
    {1866, 7, 3, u"Schlacht bei Königgrätz"},
    {1871, 1, 18, u"Gründung des Deutschen Reiches"},
    {1876, 1, 1, u"Standesämter im ganzen Deutschen Reich"},
    {1914, 8, 1, u"Deutschland tritt in den Ersten Weltkrieg ein"},
    {1918, 11, 11, u"Waffenstillstand von Compiègne"},
    {1923, 11, 15, u"Einführung der Rentenmark"},
    {1939, 9, 1, u"Beginn des Zweiten Weltkriegs"},
    {1945, 5, 8, u"Ende des Zweiten Weltkriegs in Europa"},
    {1949, 5, 23, u"Grundgesetz der Bundesrepublik Deutschland"},
    {1961, 8, 13, u"Bau der Berliner Mauer"},
    {1989, 11, 9, u"Öffnung der Berliner Mauer"},
    {1990, 10, 3, u"Deutsche Einheit"},
};

void addEventTable(jet::Creator &creator, const QString &language, bool german)
{
    const QString index = u"Index"_s;
    auto &table = creator.addTable(language,
                                   {longColumn(u"Index"), textColumn(u"txtzeichen", 20), textColumn(u"Art", 60),
                                    column(u"Icon_Druck", ColumnType::Ole)},
                                   {{.name = index, .columns = {index}, .unique = true, .primary = true}});
    for (const EventKind &kind : eventKinds())
        table.addRow({kind.number, text(german ? kind.symbol : kind.symbolEnglish),
                      text(german ? kind.deutsch : kind.english), iconBitmap(kind)});
}

} // namespace

void writeEventDatabase(const QString &file)
{
    jet::Creator creator;
    addEventTable(creator, u"Deutsch"_s, true);
    addEventTable(creator, u"English"_s, false);
    auto &fonts = creator.addTable(u"Namenfont"_s,
                                   {longColumn(u"Counter"), textColumn(u"Fontname", 60), longColumn(u"Fontsize"),
                                    column(u"Fontbold", ColumnType::Boolean)},
                                   counterIndex());
    fonts.addRow({1, u"Arial"_s, 10, false});
    fonts.addRow({2, u"Courier New"_s, 9, false});
    creator.write(file);
}

void writeHistoryDatabase(const QString &file)
{
    jet::Creator creator;
    auto &table = creator.addTable(
        u"Ereignis"_s, {longColumn(u"Counter"), longColumn(u"Datum"), longColumn(u"Jahr"), textColumn(u"Titel", 120)},
        counterIndex());
    int counter = 0;
    for (const History &event : HistoryRows)
        table.addRow({++counter, dayOf(event.year, event.month, event.day), event.year, text(event.title)});
    creator.write(file);
}

void writeNameDatabase(const QString &file)
{
    jet::Creator creator;
    auto &table = creator.addTable(
        u"Namen"_s, {longColumn(u"Counter"), textColumn(u"Name", 60), textColumn(u"Geschlecht", 1)}, counterIndex());
    std::set<QString> seen; // names of several epochs
    int counter = 0;
    for (int number = 0; number < givenNameCount(); ++number) {
        if (seen.insert(givenName(number)).second)
            table.addRow({++counter, givenName(number), isWomansName(number) ? u"W"_s : u"M"_s});
    }
    creator.write(file);
}

void writePlaceDatabase(const QString &file)
{
    jet::Creator creator;
    auto &table = creator.addTable(u"Orte"_s,
                                   {longColumn(u"Counter"), textColumn(u"Name", 80), textColumn(u"Land", 40),
                                    column(u"Breite", ColumnType::Double), column(u"Laenge", ColumnType::Double)},
                                   counterIndex());
    for (int number = 0; number < placeCount(); ++number) {
        const Place &town = place(number);
        table.addRow({number + 1, town.name, text(town.country), town.latitude, town.longitude});
    }
    creator.write(file);
}

void writeLanguageDatabase(const QString &file)
{
    jet::Creator creator;
    auto &table = creator.addTable(u"Languages"_s,
                                   {longColumn(u"Counter"), textColumn(u"Deutsch", 255), textColumn(u"English", 255)},
                                   counterIndex());
    for (const language::CatalogueText &entry : language::catalogue())
        table.addRow({static_cast<int>(entry.id), text(entry.deutsch), text(entry.english)});
    creator.write(file);
}

} // namespace kalvenor::demo
