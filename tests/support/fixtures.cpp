// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/fixtures.h"

#include "platform/basic/codepage.h"
#include "platform/basic/error.h"
#include "platform/basic/path.h"
#include "platform/jet/creator/creator.h"
#include "platform/jet/reader/database.h"
#include <QDir>
#include <QFile>
#include <set>

using namespace Qt::StringLiterals;

namespace kalvenor::test {

namespace {

using jet::ColumnType;
using jet::NewColumn;
using jet::NewValue;

struct TestTable {
    QString name;
    std::vector<NewColumn> columns; ///< beside Counter
    std::vector<std::vector<NewValue>> rows;
};

NewColumn column(const char *name, ColumnType type = ColumnType::Long)
{
    return {.name = QLatin1String(name), .type = type};
}

NewColumn text(const char *name, int length = 120)
{
    return {.name = QLatin1String(name), .type = ColumnType::Text, .length = length};
}

NewValue some(const char *words)
{
    return QString::fromUtf8(words);
}

NewValue orNull(const QString &words)
{
    return words.isEmpty() ? NewValue() : NewValue(words);
}

NewValue orNull(std::optional<qint32> number)
{
    return number ? NewValue(*number) : NewValue();
}

std::vector<jet::NewIndex> counterIndex(bool unique = true)
{
    return {{.name = u"Counter"_s, .columns = {u"Counter"_s}, .unique = unique}};
}

/// The rows get the counters 1, 2, …
void addTable(jet::Creator &creator, const TestTable &table)
{
    std::vector<NewColumn> columns = table.columns;
    columns.insert(columns.begin(), column("Counter"));
    auto &added = creator.addTable(table.name, columns, counterIndex());
    std::vector<NewValue> withCounter;
    for (const std::vector<NewValue> &row : table.rows) {
        withCounter.clear();
        withCounter.emplace_back(static_cast<std::int32_t>(added.rowCount() + 1));
        for (const NewValue &value : row)
            withCounter.push_back(value);
        added.addRow(withCounter);
    }
}

void addPersons(jet::Creator &creator, const std::vector<TestPerson> &persons)
{
    std::set<qint32> counters;
    for (const TestPerson &person : persons)
        counters.insert(person.counter);
    auto &table = creator.addTable(u"Daten"_s,
                                   {column("Counter"), text("Listname"), column("Markierung", ColumnType::Boolean),
                                    text("nnamen"), text("vnamen"), text("Geschlecht", 1), column("Geburtsdatum"),
                                    text("Geburt_XX", 10), column("Sterbedatum"), text("sterbe_XX", 10),
                                    column("Vater"), column("Mutter"), column("geaendert")},
                                   counterIndex(counters.size() == persons.size()));
    for (const TestPerson &person : persons) {
        const qsizetype comma = person.listname.indexOf(u',');
        const QString surname = comma < 0 ? person.listname : person.listname.left(comma);
        const QString firstNames = comma < 0 ? QString() : person.listname.mid(comma + 1).trimmed();
        table.addRow({person.counter, person.listname, person.marked, surname, orNull(firstNames), person.sex,
                      orNull(person.birth), orNull(person.birthXX), orNull(person.death), orNull(person.deathXX),
                      person.father, person.mother, person.changed});
    }
}

std::vector<TestTable> otherFamilyTables()
{
    return {
        {u"Baum"_s, {text("Name"), column("Person")}, {{some("Vorfahren"), 1}}},
        {u"Baum_DS"_s, {column("Baum"), column("x", ColumnType::Double)}, {{1, 12.5}}},
        {u"Bilder"_s, {text("Datei"), column("Vorschau", ColumnType::Ole)}, {{some("bild.jpg"), {}}}},
        {u"Daten_DS"_s, {column("Person"), text("Wert", 255)}, {{1, some("Schmied")}}},
        {u"Dokument"_s, {text("Datei"), column("Datum", ColumnType::DateTime)}, {{some("brief.txt"), 36526.25}}},
        {u"Ereignis"_s, {text("Bezeichnung"), column("aktiv", ColumnType::Boolean)}, {{some("Taufe"), true}}},
        {u"Ereignis_DS"_s, {column("Person"), column("Text", ColumnType::Memo)}, {{1, some("getauft")}}},
        {u"Familie"_s, {column("Vater"), column("Mutter")}, {{1, 2}}},
        {u"Galerie"_s, {text("Titel")}, {{some("Hof")}}},
        {u"Galerie_DS"_s, {column("Galerie"), column("Bild")}, {{1, 1}}},
        {u"Namen_DS"_s, {column("Person"), text("Name")}, {{1, some("Müller")}}},
        {u"Namen"_s, {text("Name")}, {{some("Müller")}, {some("Weiß")}}},
        {u"Quellen_DS"_s, {column("Person"), column("Quelle", ColumnType::Memo)}, {{1, some("Kirchenbuch")}}},
        {u"Referenz"_s, {column("von"), column("nach")}, {{1, 2}}},
        {u"Ort"_s, {text("Name")}, {{some("Nürnberg")}}},
        {u"Stichwort"_s, {text("Stichwort")}, {{some("Auswanderer")}}},
        {u"Stichwort_DS"_s, {column("Stichwort"), column("Person")}, {{1, 1}}},
        {u"Adressen"_s, {text("Ort")}, {{some("Köln")}}},
        {u"Adressen_DS "_s, {column("Adresse"), column("Person")}, {{1, 1}}}, // the blank belongs to it
        {u"Version"_s, {text("Version", 20)}, {{some("1.0")}}},
    };
}

void writeDatabase(const QString &file, const std::vector<TestTable> &tables)
{
    jet::Creator creator;
    for (const TestTable &table : tables)
        addTable(creator, table);
    creator.write(file);
}

TestTable eventKinds(const char *language, const char *birth, const char *death)
{
    return {QLatin1String(language),
            {column("Index"), text("txtzeichen", 10), text("Art"), column("Icon_Druck", ColumnType::Ole)},
            {{1, some("*"), some(birth), {}}, {2, some("+"), some(death), {}}}};
}

/// Counter is the text's identifier here.
void writeTexts(const QString &file)
{
    const struct {
        std::int32_t id;
        const char *deutsch;
        const char *english;
    } texts[] = {
        {100, "Die Familiendatenbank wurde nicht gefunden.", "The family database was not found."},
        {911, "Auswahlkriterien", "Selection criteria"},
        {926, "Es wurden 1000 Personen bearbeitet.", "1000 persons were processed."},
        {930, "Markierungen werden aufgehoben", "Removing marks"},
        {1201, "Verwandte markieren", "Mark relatives"},
        {1204, "#PROGNAME#Statistik", "#PROGNAME#Statistics"},
        {1205, "Statistik", "Statistics"},
    };
    jet::Creator creator;
    auto &languages = creator.addTable(u"Languages"_s, {column("Counter"), text("Deutsch", 255), text("English", 255)},
                                       counterIndex());
    for (const auto &row : texts)
        languages.addRow({row.id, some(row.deutsch), some(row.english)});
    creator.write(file);
}

} // namespace

void addOtherTables(jet::Creator &creator, const QString &without)
{
    for (const TestTable &table : otherFamilyTables()) {
        if (table.name != without)
            addTable(creator, table);
    }
}

void writeFamily(const QString &file, const std::vector<TestPerson> &persons, std::uint32_t encodingKey,
                 const QString &without)
{
    jet::Creator creator;
    if (without != u"Daten")
        addPersons(creator, persons);
    addOtherTables(creator, without);
    creator.write(file, encodingKey);
}

void damageFamily(const QString &file)
{
    const qint64 page = jet::Database::open(file)->table(u"Daten"_s)->place(0).firstPage;
    QFile bytes(file);
    if (!bytes.open(QIODevice::ReadWrite) || !bytes.seek(page * 4096 + 12) || bytes.write("\xff\xff", 2) != 2)
        throw basic::Error(basic::Fault::NotWritten, {.file = file}, {bytes.errorString()});
}

void writeHost(const QString &folder, const std::vector<TestPerson> &persons)
{
    const QDir host(folder + u"/QV"_s);
    for (const char *part : {"Kalvenor", "Familie", "Ausgabe"}) {
        if (!host.mkpath(QLatin1String(part)))
            throw basic::Error(basic::Fault::FolderNotMade, {.file = host.path()});
    }
    const QString family = host.filePath(u"Familie/familie.mdb"_s);
    writeFamily(family, persons);
    writeDatabase(host.filePath(u"Ereignis.mdb"_s), {eventKinds("Deutsch", "Geburt", "Tod"),
                                                     eventKinds("English", "Birth", "Death"),
                                                     eventKinds("Dansk", "Fødsel", "Død"),
                                                     {u"Namenfont"_s, {text("Name")}, {{some("Arial")}}}});
    writeDatabase(host.filePath(u"Geschichte.mdb"_s),
                  {{u"Ereignis"_s, {column("Jahr"), text("Text")}, {{1648, some("Friede")}}}});
    writeDatabase(host.filePath(u"namen.mdb"_s), {{u"Namen"_s, {text("Name")}, {{some("Johann")}}}});
    writeDatabase(host.filePath(u"orte.mdb"_s), {{u"Orte"_s, {text("Name")}, {{some("Nürnberg")}}}});
    writeTexts(host.filePath(u"ADD-IN-LANGUAGE.MDB"_s));
    writeTexts(host.filePath(u"language.mdb"_s));

    const QString settings =
        u"[Ansicht]\r\nSprache=Deutsch\r\nKurzhilfe=1\r\nAddInonTop=0\r\n"
        "[QV-Files]\r\n0=%1\r\n[Verzeichnisse]\r\nPrints=%2\r\n"_s.arg(
            basic::windowsPath(family).text(), basic::windowsPath(host.filePath(u"Ausgabe"_s)).text());
    QFile file(host.filePath(u"programm.ini"_s));
    const QByteArray bytes = basic::encodeAnsi(settings);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        throw basic::Error(basic::Fault::NotWritten, {.file = file.fileName()}, {file.errorString()});
}

} // namespace kalvenor::test
