// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "demo/host/sidedatabases.h"

#include "demo/host/hosttables.h"
#include "demo/host/icons.h"
#include "language/texts/catalogue.h"

using namespace Qt::StringLiterals;

namespace kalvenor::demo {

using jet::ColumnType;

namespace {

QString text(const char16_t *units)
{
    return QString::fromUtf16(units);
}

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
    Random random(1);
    addHostTables(creator, u"Ereignis.mdb"_s, {}, random);
    creator.write(file);
}

void writeUnreadDatabase(const QString &folder, const QString &fileName)
{
    jet::Creator creator;
    Random random(1);
    addHostTables(creator, fileName, {}, random);
    creator.write(folder + u'/' + fileName);
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
