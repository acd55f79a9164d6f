// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/check.h"

#include "app/start/startedprogram.h"
#include "data/datenbankmodul.h"
#include "host/host.h"
#include "language/texts/errormessage.h"
#include "platform/desktop/terminal.h"
#include "platform/jet/marks/markwriter.h"
#include "platform/jet/reader/database.h"
#include "platform/jet/reader/record.h"
#include <algorithm>
#include <QFileInfo>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

using jet::ColumnType;

struct NeededColumn {
    QString name;
    std::vector<ColumnType> types; ///< empty: any
};

const std::vector<ColumnType> Numbers{ColumnType::Byte,  ColumnType::Integer, ColumnType::Long,
                                      ColumnType::Float, ColumnType::Double,  ColumnType::DateTime};
const std::vector<ColumnType> WholeNumbers{ColumnType::Byte, ColumnType::Integer, ColumnType::Long};
const std::vector<ColumnType> Texts{ColumnType::Text, ColumnType::Memo};

std::vector<NeededColumn> personColumns()
{
    return {{u"Counter"_s, {ColumnType::Long}},
            {u"Listname"_s, Texts},
            {u"Markierung"_s, {ColumnType::Boolean}},
            {u"Geburtsdatum"_s, Numbers},
            {u"Geburt_XX"_s, Texts},
            {u"Sterbedatum"_s, Numbers},
            {u"sterbe_XX"_s, Texts},
            {u"geaendert"_s, Numbers},
            {u"Geschlecht"_s, Texts},
            {u"Vater"_s, {ColumnType::Long}},
            {u"Mutter"_s, {ColumnType::Long}},
            {u"vnamen"_s, Texts},
            {u"nnamen"_s, Texts}};
}

std::vector<NeededColumn> eventColumns()
{
    return {{u"Index"_s, Numbers}, {u"txtzeichen"_s, Texts}, {u"Art"_s, Texts}, {u"Icon_Druck"_s, {}}};
}

QString placeOf(const jet::Table &table)
{
    return u"%1, table \"%2\""_s.arg(table.image().file(), table.name());
}

class Checker {
public:
    explicit Checker(const basic::WindowsPath &programFolder) : m_host(programFolder, m_desktop)
    {
        m_host.Hostverzeichnis = host::uebergeordnetesverzeichnis(m_host.programFolder());
        m_host.Sprache = u"Deutsch"_s; // what start-up takes where no setting says otherwise
    }
    CheckResult run();

private:
    using Table = std::shared_ptr<const jet::Table>;

    void ok(const QString &line) { m_result.good << u"ok       "_s + line; }
    void note(const QString &line) { m_result.notes << u"note     "_s + line; }
    void missing(const QString &line) { m_result.problems << u"missing  "_s + line; }
    void damaged(const QString &line) { m_result.problems << u"damaged  "_s + line; }
    void locked(const QString &line) { m_result.problems << u"locked   "_s + line; }
    void report(const basic::Error &error);

    bool checkFolders();
    void checkOutputFolder();
    void checkLanguageDatabase(const basic::WindowsPath &file, bool holdsOurTexts);
    void checkFamilyDatabase();
    void checkSideDatabase(data::HostDatabase side);
    void checkPersonTable(const std::shared_ptr<jet::Database> &database, const Table &persons);
    void checkTables(const std::shared_ptr<jet::Database> &database, data::HostDatabase which);
    std::shared_ptr<jet::Database> open(const basic::WindowsPath &path);
    Table table(jet::Database &database, const QString &name);
    bool hasColumns(const jet::Table &table, const std::vector<NeededColumn> &columns);
    bool hasCounterIndex(const jet::Table &table);

    desktop::TerminalDesktop m_desktop;
    host::Host m_host;
    CheckResult m_result;
};

/// In English, as the lines around it.
void Checker::report(const basic::Error &error)
{
    switch (error.kind()) {
    case basic::ErrorKind::FileNotFound:
    case basic::ErrorKind::TableNotFound:
    case basic::ErrorKind::ColumnNotFound:
        return missing(language::errorMessage(language::CatalogueLanguage::English, error));
    case basic::ErrorKind::FileUnreadable:
    case basic::ErrorKind::ReadOnly:
    case basic::ErrorKind::NotMarkable:
        return locked(language::errorMessage(language::CatalogueLanguage::English, error));
    default:
        return damaged(language::errorMessage(language::CatalogueLanguage::English, error));
    }
}

CheckResult Checker::run()
{
    if (!checkFolders())
        return m_result;
    checkLanguageDatabase(m_host.Hostverzeichnis + u"\\ADD-IN-LANGUAGE.MDB"_s, true);
    checkLanguageDatabase(m_host.Hostverzeichnis + u"\\language.mdb"_s, false);
    checkFamilyDatabase();
    for (const auto side : {data::HostDatabase::Events, data::HostDatabase::History, data::HostDatabase::Names,
                            data::HostDatabase::Places})
        checkSideDatabase(side);
    checkOutputFolder();
    return m_result;
}

bool Checker::checkFolders()
{
    const QString program = m_host.native(m_host.programFolder());
    if (!QFileInfo(program).isDir()) {
        missing(program + u": the program's folder is not there"_s);
        return false;
    }
    if (QFileInfo(program).isWritable())
        ok(program + u": program folder, writable"_s);
    else
        locked(program + u": the program's folder is read-only; print settings cannot be kept in it"_s);

    const basic::WindowsPath settings = m_host.hostSettingsFile();
    if (m_host.dir(settings).isEmpty()) {
        missing(m_host.native(settings) + u": the host's settings file is not there, so no family database is known"_s);
        return true;
    }
    const auto setting = [&](const char *section, const char *key, const QString &fallback) {
        return m_host.inilesen(settings, QLatin1String(section), QLatin1String(key), fallback);
    };
    m_host.Sprache = setting("Ansicht", "Sprache", u"Deutsch"_s);
    m_host.Familienpfad = m_host.readPath(settings, u"QV-Files"_s, u"0"_s, {});
    ok(u"%1: host settings, language \"%2\""_s.arg(m_host.native(settings), m_host.Sprache));
    return true;
}

void Checker::checkOutputFolder()
{
    const QString folder = m_host.native(m_host.readPath(m_host.hostSettingsFile(), u"Verzeichnisse"_s, u"Prints"_s,
                                                         m_host.Hostverzeichnis + u"\\Ausdrucke"_s));
    if (!QFileInfo(folder).isDir())
        missing(folder + u": the output folder is not there"_s);
    else if (!QFileInfo(folder).isWritable())
        locked(folder + u": the output folder is read-only"_s);
    else
        ok(folder + u": output folder, writable"_s);
}

std::shared_ptr<jet::Database> Checker::open(const basic::WindowsPath &path)
{
    if (m_host.hasUnmappedDrive(path)) {
        missing(unknownDrive(m_host, path, language::CatalogueLanguage::English));
        return nullptr;
    }
    try {
        auto database = jet::Database::open(m_host.native(path));
        for (const QString &warning : database->warnings())
            damaged(u"%1: %2"_s.arg(database->file(), warning));
        return database;
    } catch (const basic::Error &error) {
        report(error);
        return nullptr;
    }
}

Checker::Table Checker::table(jet::Database &database, const QString &name)
{
    try {
        Table found = database.table(name);
        for (const QString &warning : found->warnings())
            damaged(u"%1: %2"_s.arg(placeOf(*found), warning));
        return found;
    } catch (const basic::Error &error) {
        report(error);
        return nullptr;
    }
}

bool Checker::hasColumns(const jet::Table &table, const std::vector<NeededColumn> &columns)
{
    bool complete = true;
    for (const NeededColumn &needed : columns) {
        const QString place = placeOf(table);
        const int column = table.columnOf(needed.name);
        if (column < 0) {
            missing(u"%1: there is no column \"%2\""_s.arg(place, needed.name));
            complete = false;
        } else if (const auto type = table.columns()[static_cast<std::size_t>(column)].type;
                   !needed.types.empty() &&
                   std::find(needed.types.begin(), needed.types.end(), type) == needed.types.end()) {
            damaged(u"%1: the column \"%2\" has a type that cannot be used"_s.arg(place, needed.name));
            complete = false;
        }
    }
    return complete;
}

bool Checker::hasCounterIndex(const jet::Table &table)
{
    const bool there = std::any_of(table.indexes().begin(), table.indexes().end(), [](const jet::Index &index) {
        return index.name.compare(u"Counter", Qt::CaseInsensitive) == 0;
    });
    if (!there)
        missing(placeOf(table) + u": there is no index \"Counter\""_s);
    return there;
}

void Checker::checkLanguageDatabase(const basic::WindowsPath &file, bool holdsOurTexts)
{
    const auto database = open(file);
    if (!database)
        return;
    const Table languages = table(*database, u"Languages"_s);
    if (!languages)
        return;
    bool sound = hasColumns(*languages, {{u"Counter"_s, WholeNumbers}}) && hasCounterIndex(*languages);
    // The host's own language database is only opened at the end; its columns are the host's affair.
    if (holdsOurTexts)
        sound = hasColumns(*languages, {{m_host.Sprache, Texts}}) && sound;
    if (sound)
        ok(u"%1: %2 texts"_s.arg(database->file(), QString::number(languages->rowCount())));
}

void Checker::checkFamilyDatabase()
{
    if (m_host.Familienpfad.isEmpty()) {
        missing(m_host.native(m_host.hostSettingsFile()) +
                u": no family database is named (section QV-Files, key 0); open one in the host program"_s);
        return;
    }
    const auto database = open(m_host.Familienpfad);
    if (!database)
        return;
    checkTables(database, data::HostDatabase::Family);
    const QString lockFile = database->file().left(database->file().lastIndexOf(u'.')) + u".ldb"_s;
    if (QFileInfo::exists(lockFile))
        note(lockFile + u": the family database is open in another program, or was not closed cleanly"_s);
}

void Checker::checkSideDatabase(data::HostDatabase side)
{
    const auto database = open(m_host.Hostverzeichnis + data::sideDatabaseFile(side));
    if (database)
        checkTables(database, side);
}

void Checker::checkTables(const std::shared_ptr<jet::Database> &database, data::HostDatabase which)
{
    int sound = 0;
    int needed = 0;
    for (const data::HostTable &entry : data::hostTables(m_host.Sprache)) {
        if (entry.database != which)
            continue;
        ++needed;
        const Table found = table(*database, entry.name);
        if (!found)
            continue;
        ++sound;
        if (which == data::HostDatabase::Family && entry.name == u"Daten")
            checkPersonTable(database, found);
        if (which == data::HostDatabase::Events && entry.name == m_host.Sprache)
            hasColumns(*found, eventColumns());
    }
    if (sound < needed)
        return;
    const QString what = needed == 0   ? u"readable"_s
                         : needed == 1 ? u"its table is there"_s
                                       : u"all %1 tables are there"_s.arg(needed);
    ok(u"%1: %2"_s.arg(database->file(), what));
}

void Checker::checkPersonTable(const std::shared_ptr<jet::Database> &database, const Table &persons)
{
    const bool complete = hasColumns(*persons, personColumns());
    if (!hasCounterIndex(*persons) || !complete)
        return;
    const int counter = persons->columnOf(u"Counter");
    const int mark = persons->columnOf(u"Markierung");
    std::unordered_set<qint32> counters;
    counters.reserve(persons->rowCount());
    quint32 marked = 0;
    quint32 without = 0;
    quint32 older = 0;
    const qsizetype problemsBefore = m_result.problems.size();
    const std::uint16_t markNumber = persons->columns()[static_cast<std::size_t>(mark)].number;
    for (quint32 row = 0; row < persons->rowCount(); ++row) {
        const auto value = persons->integer(row, counter);
        without += value ? 0 : 1;
        if (value && !counters.insert(*value).second)
            damaged(u"%1: two persons have the Counter %2"_s.arg(placeOf(*persons), QString::number(*value)));
        marked += persons->boolean(row, mark) ? 1 : 0;
        older += jet::Record(persons->layout(), persons->record(row)).has(markNumber) ? 0 : 1;
    }
    const auto lines = [&](quint32 count, const char *what) {
        if (count > 0)
            damaged(u"%1: %2 %3"_s.arg(placeOf(*persons), QString::number(count), QLatin1String(what)));
    };
    lines(without, "persons have no Counter");
    lines(older,
          "persons are older than the column \"Markierung\" and cannot be marked until the host saves them again");
    ok(u"%1: %2 persons, %3 of them marked"_s.arg(database->file(), QString::number(persons->rowCount()),
                                                  QString::number(marked)));
    try {
        const jet::MarkWriter writer(database, persons, mark, counter);
        if (m_result.problems.size() > problemsBefore)
            return;
        writer.requireWritable();
        ok(database->file() + u": writable, persons can be marked"_s);
    } catch (const basic::Error &error) {
        report(error);
    }
}

} // namespace

CheckResult checkInstallation(const basic::WindowsPath &programFolder)
{
    return Checker(programFolder).run();
}

int runCheck(const basic::WindowsPath &programFolder)
{
    const CheckResult result = checkInstallation(programFolder);
    for (const QString &line : result.good + result.notes + result.problems)
        desktop::writeOutput((line + u'\n').toUtf8());
    desktop::flushOutput();
    return result.problems.isEmpty() ? 0 : 1;
}

} // namespace kalvenor::app
