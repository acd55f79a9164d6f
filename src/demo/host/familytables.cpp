// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/familytables.h"

#include "demo/family/calendar.h"
#include "demo/family/names.h"
#include "demo/host/icons.h"
#include <algorithm>

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

using jet::ColumnType;
using jet::NewValue;

jet::NewColumn column(const char16_t *name, ColumnType type)
{
    return {.name = QString::fromUtf16(name), .type = type};
}

jet::NewColumn longColumn(const char16_t *name)
{
    return column(name, ColumnType::Long);
}

jet::NewColumn textColumn(const char16_t *name, int length)
{
    return {.name = QString::fromUtf16(name), .type = ColumnType::Text, .length = length};
}

std::vector<jet::NewIndex> counterIndex()
{
    const QString counter = u"Counter"_s;
    return {{.name = counter, .columns = {counter}, .unique = true, .primary = true}};
}

namespace {

class FamilyTables {
public:
    FamilyTables(jet::Creator &creator, const Population &population, const std::vector<std::int32_t> &counters,
                 Random &random)
        : m_creator(creator), m_population(population), m_counters(counters), m_random(random)
    {
    }

    void addFamilies();
    void addEvents();
    void addPictures();
    void addNotes();
    void addPlaces();
    void addTrees();
    void addVersion();

private:
    /// A table whose first column is the indexed Counter.
    jet::Creator::Table &table(const char16_t *name, std::vector<jet::NewColumn> columns)
    {
        columns.insert(columns.begin(), longColumn(u"Counter"));
        return m_creator.addTable(QString::fromUtf16(name), columns, counterIndex());
    }
    int anyPerson()
    {
        return m_counters[static_cast<std::size_t>(m_random.below(static_cast<int>(m_counters.size())))];
    }
    /// So many rows in a database of 2,000 persons, fewer in a smaller one, at most ten times as many.
    int rows(int usual) const
    {
        const auto persons = static_cast<qint64>(m_counters.size());
        return static_cast<int>(std::clamp<qint64>(usual * persons / 2000, std::min(usual, 3), 10 * usual));
    }

    jet::Creator &m_creator;
    const Population &m_population;
    const std::vector<std::int32_t> &m_counters;
    Random &m_random;
};

void FamilyTables::addFamilies()
{
    auto &families = table(u"Familie", {longColumn(u"Vater"), longColumn(u"Mutter"), longColumn(u"Heiratsdatum"),
                                        textColumn(u"Heirat_XX", 10), textColumn(u"Heiratsort", 80)});
    int counter = 0;
    for (const Couple &couple : m_population.couples) {
        const bool known = m_random.chance(8000);
        const auto husband = static_cast<std::size_t>(couple.husband);
        families.addRow({++counter, m_counters[husband], m_counters[static_cast<std::size_t>(couple.wife)],
                         known ? couple.wedding : UnknownDay, known ? NewValue() : NewValue(u"XXX_______"_s),
                         known ? NewValue(place(m_population.persons[husband].birthPlace).name) : NewValue()});
    }
}

void FamilyTables::addEvents()
{
    auto &kinds = table(u"Ereignis", {textColumn(u"Bezeichnung", 60), column(u"aktiv", ColumnType::Boolean),
                                      longColumn(u"Sortierung")});
    const auto events = eventKinds();
    for (const EventKind &kind : events)
        kinds.addRow({kind.number, QString::fromUtf16(kind.deutsch), true, kind.number * 10});

    auto &uses = table(u"Ereignis_DS", {longColumn(u"Person"), longColumn(u"Ereignis"), longColumn(u"Datum"),
                                        textColumn(u"Ort", 80), column(u"Text", ColumnType::Memo)});
    for (int i = 1; i <= rows(600); ++i)
        uses.addRow({i, anyPerson(), m_random.pick(events).number, m_random.between(dayOf(1600), dayOf(2000)),
                     place(m_random.below(placeCount())).name,
                     i % 9 == 0 ? NewValue(u"Zeugen sind im Register genannt."_s) : NewValue()});
}

void FamilyTables::addPictures()
{
    const int count = rows(40);
    auto &pictures =
        table(u"Bilder", {textColumn(u"Datei", 120), textColumn(u"Titel", 80), column(u"Vorschau", ColumnType::Ole)});
    for (int i = 1; i <= count; ++i)
        pictures.addRow({i, u"Bild%1.jpg"_s.arg(i, 4, 10, QChar(u'0')), u"Familienbild %1"_s.arg(i),
                         iconBitmap(m_random.pick(eventKinds()))});
    auto &galleries = table(u"Galerie", {textColumn(u"Titel", 80)});
    const char16_t *const titles[] = {u"Hochzeiten", u"Grabsteine", u"Häuser und Höfe"};
    int counter = 0;
    for (const char16_t *title : titles)
        galleries.addRow({++counter, QString::fromUtf16(title)});
    auto &members = table(u"Galerie_DS", {longColumn(u"Galerie"), longColumn(u"Bild")});
    for (int i = 1; i <= count; ++i)
        members.addRow({i, m_random.between(1, counter), i});
    auto &documents = table(
        u"Dokument", {textColumn(u"Datei", 120), textColumn(u"Titel", 80), column(u"Datum", ColumnType::DateTime)});
    for (int i = 1; i <= rows(30); ++i)
        documents.addRow({i, u"Urkunde%1.doc"_s.arg(i), u"Abschrift der Urkunde Nr. %1"_s.arg(i),
                          double(m_random.between(dayOf(1996), Today))});
}

void FamilyTables::addNotes()
{
    auto &fields = table(u"Daten_DS", {longColumn(u"Person"), textColumn(u"Feld", 40), textColumn(u"Wert", 120)});
    auto &names = table(u"Namen", {textColumn(u"Name", 60), textColumn(u"Herkunft", 80)});
    auto &nameUses = table(u"Namen_DS", {longColumn(u"Person"), textColumn(u"Name", 60)});
    auto &sources = table(u"Quellen_DS", {longColumn(u"Person"), column(u"Quelle", ColumnType::Memo)});
    auto &references = table(u"Referenz", {longColumn(u"von"), longColumn(u"nach"), textColumn(u"Art", 30)});
    auto &keywords = table(u"Stichwort", {textColumn(u"Stichwort", 60)});
    auto &keywordUses = table(u"Stichwort_DS", {longColumn(u"Stichwort"), longColumn(u"Person")});
    auto &addresses = table(u"Adressen", {textColumn(u"Name", 80), textColumn(u"Strasse", 80), textColumn(u"Ort", 80)});
    auto &addressUses = table(u"Adressen_DS ", {longColumn(u"Adresse"), longColumn(u"Person")});

    const char16_t *const words[] = {u"Auswanderer", u"Hofbesitzer", u"Müller",
                                     u"Pfarrer",     u"Soldat",      u"Bürgermeister"};
    int keywordCount = 0;
    for (const char16_t *word : words)
        keywords.addRow({++keywordCount, QString::fromUtf16(word)});
    for (int i = 1; i <= rows(60); ++i) {
        const QString &name = surname(m_random.below(surnameCount()));
        const QString &town = place(m_random.below(placeCount())).name;
        fields.addRow({i, anyPerson(), u"Hausname"_s, u"beim "_s + name});
        names.addRow({i, name, u"Hofname bei "_s + town});
        nameUses.addRow({i, anyPerson(), name});
        sources.addRow({i, anyPerson(), u"Kirchenbuch %1, Band %2, Blatt %3"_s.arg(town).arg(i % 7 + 1).arg(i)});
        references.addRow({i, anyPerson(), anyPerson(), u"Pate"_s});
        keywordUses.addRow({i, m_random.between(1, keywordCount), anyPerson()});
        addresses.addRow({i, u"Pfarramt "_s + town, u"Kirchgasse %1"_s.arg(i % 30 + 1), town});
        addressUses.addRow({i, i, anyPerson()});
    }
}

void FamilyTables::addPlaces()
{
    auto &places = table(u"Ort", {textColumn(u"Name", 80), column(u"Breite", ColumnType::Double),
                                  column(u"Laenge", ColumnType::Double), textColumn(u"Land", 40)});
    for (int i = 0; i < placeCount(); ++i)
        places.addRow(
            {i + 1, place(i).name, place(i).latitude, place(i).longitude, QString::fromUtf16(place(i).country)});
}

void FamilyTables::addTrees()
{
    auto &trees =
        table(u"Baum", {textColumn(u"Name", 80), longColumn(u"Person"), column(u"Daten_X", ColumnType::Memo)});
    auto &nodes = table(u"Baum_DS", {longColumn(u"Baum"), longColumn(u"Person"), column(u"x", ColumnType::Double),
                                     column(u"y", ColumnType::Double)});
    int node = 0;
    for (int i = 1; i <= 3; ++i) {
        trees.addRow({i, u"Stammbaum %1"_s.arg(i), anyPerson(), u"Ausrichtung=oben;Generationen=4"_s});
        for (int j = 0; j < 7; ++j) {
            ++node;
            nodes.addRow({node, i, anyPerson(), j * 120.5, (j % 3) * 80.0});
        }
    }
}

void FamilyTables::addVersion()
{
    m_creator.addTable(u"Version"_s, {longColumn(u"Counter"), textColumn(u"Version", 20)}).addRow({1, u"4.1.0"_s});
}

} // namespace

void addFamilyTables(jet::Creator &creator, const Population &population, const std::vector<std::int32_t> &counters,
                     Random &random)
{
    FamilyTables tables(creator, population, counters, random);
    tables.addFamilies();
    tables.addEvents();
    tables.addPictures();
    tables.addNotes();
    tables.addPlaces();
    tables.addTrees();
    tables.addVersion();
}

} // namespace kalvenor::demo
