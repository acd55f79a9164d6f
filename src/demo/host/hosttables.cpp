// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/hosttables.h"

#include "demo/family/calendar.h"
#include "demo/family/names.h"
#include "demo/host/icons.h"
#include <algorithm>
#include <QStringList>

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

struct HostTable {
    const char *file;
    const char16_t *name;
    const char16_t *columns; ///< behind the indexed Counter, each with the kind of its values
    int rows;                ///< in a database of 2,000 persons
};
constexpr const char *Family = "Familie.mdb";
constexpr HostTable HostTables[] = {{Family, u"Ereignis", u"Bezeichnung:t aktiv:b Sortierung:n", 12},
                                    {Family, u"Ereignis_DS", u"Person:p Ereignis:n Datum:d Ort:y Text:m", 600},
                                    {Family, u"Bilder", u"Datei:t Titel:t Vorschau:o", 40},
                                    {Family, u"Galerie", u"Titel:t", 3},
                                    {Family, u"Galerie_DS", u"Galerie:n Bild:n", 40},
                                    {Family, u"Dokument", u"Datei:t Titel:t Datum:k", 30},
                                    {Family, u"Daten_DS", u"Person:p Feld:t Wert:s", 60},
                                    {Family, u"Namen", u"Name:s Herkunft:y", 60},
                                    {Family, u"Namen_DS", u"Person:p Name:s", 60},
                                    {Family, u"Quellen_DS", u"Person:p Quelle:m", 60},
                                    {Family, u"Referenz", u"von:p nach:p Art:t", 60},
                                    {Family, u"Ort", u"Name:y Breite:x Laenge:x", 40},
                                    {Family, u"Stichwort", u"Stichwort:t", 6},
                                    {Family, u"Stichwort_DS", u"Stichwort:n Person:p", 60},
                                    {Family, u"Adressen", u"Name:s Strasse:t Ort:y", 60},
                                    {Family, u"Adressen_DS ", u"Adresse:n Person:p", 60},
                                    {Family, u"Baum", u"Name:t Person:p Daten_X:m", 3},
                                    {Family, u"Baum_DS", u"Baum:n Person:p x:x y:x", 21},
                                    {Family, u"Version", u"Version:t", 1},
                                    {"Ereignis.mdb", u"Namenfont", u"Fontname:t Fontsize:n Fontbold:b", 2},
                                    {"Geschichte.mdb", u"Ereignis", u"Datum:d Titel:t", 30},
                                    {"namen.mdb", u"Namen", u"Name:s", 60},
                                    {"orte.mdb", u"Orte", u"Name:y Breite:x Laenge:x", 60}};

ColumnType typeOf(char16_t kind)
{
    switch (kind) {
    case u't':
    case u'y':
    case u's':
        return ColumnType::Text;
    case u'm':
        return ColumnType::Memo;
    case u'o':
        return ColumnType::Ole;
    case u'k':
        return ColumnType::DateTime;
    case u'x':
        return ColumnType::Double;
    case u'b':
        return ColumnType::Boolean;
    default:
        return ColumnType::Long;
    }
}

NewValue valueOf(char16_t kind, const QString &column, int row, const std::vector<std::int32_t> &counters,
                 Random &random)
{
    switch (kind) {
    case u't':
        return u"%1 %2"_s.arg(column).arg(row);
    case u'y':
        return place(drawPlace(random));
    case u's':
        return surname(drawSurname(random));
    case u'm':
        return u"Kirchenbuch Band %1, Blatt %2"_s.arg(row % 7 + 1).arg(row);
    case u'o':
        return iconBitmap(random.pick(eventKinds()));
    case u'k':
        return static_cast<double>(random.between(dayOf(1996), Today));
    case u'x':
        return random.below(9000) / 100.0;
    case u'b':
        return true;
    case u'p':
        return random.pick(std::span(counters));
    case u'd':
        return random.between(dayOf(1600), dayOf(2000));
    default:
        return row;
    }
}

void addHostTable(jet::Creator &creator, const HostTable &host, const std::vector<std::int32_t> &counters,
                  Random &random)
{
    const QStringList columns = QString::fromUtf16(host.columns).split(u' ');
    std::vector<jet::NewColumn> made{longColumn(u"Counter")};
    for (const QString &text : columns)
        made.push_back({.name = text.chopped(2), .type = typeOf(text.back().unicode())});
    auto &table = creator.addTable(QString::fromUtf16(host.name), made, counterIndex());
    const auto persons = static_cast<qint64>(counters.size());
    const auto rows = std::clamp<qint64>(host.rows * persons / 2000, std::min(host.rows, 3), 10 * host.rows);
    for (int row = 1; row <= rows; ++row) {
        std::vector<NewValue> values{row};
        for (const QString &text : columns)
            values.push_back(valueOf(text.back().unicode(), text.chopped(2), row, counters, random));
        table.addRow(values);
    }
}

} // namespace

void addHostTables(jet::Creator &creator, const QString &fileName, const std::vector<std::int32_t> &counters,
                   Random &random)
{
    for (const HostTable &host : HostTables) {
        if (fileName == QLatin1String(host.file))
            addHostTable(creator, host, counters, random);
    }
}

} // namespace kalvenor::demo
