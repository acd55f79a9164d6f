// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/commands/check.h"

#include "app/start/hostlanguage.h"
#include "app/start/startedprogram.h"
#include "data/datenbankmodul.h"
#include "host/host.h"
#include "language/texts/errormessage.h"
#include "platform/desktop/terminal.h"
#include "platform/jet/marks/markwriter.h"
#include "platform/jet/reader/database.h"
#include <algorithm>
#include <QFileInfo>
#include <unordered_set>

using namespace Qt::StringLiterals;

namespace kalvenor::app {

namespace {

using jet::ColumnType;
using language::Text;

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

constexpr qsizetype ExamplesShown = 3;

/// The first ones, and how many there are.
struct Found {
    qint64 count = 0;
    QStringList examples{};

    void add(const QString &example)
    {
        if (++count <= ExamplesShown)
            examples << example;
    }
    QString first() const { return examples.join(u", "_s) + (count > ExamplesShown ? u" …"_s : QString()); }
};

class Checker {
public:
    explicit Checker(const basic::WindowsPath &programFolder) : m_host(programFolder, m_desktop)
    {
        speakAsHost(m_host);
        m_language = language::catalogueLanguage(m_host);
        m_host.Sprache = u"Deutsch"_s; // what start-up takes where no setting says otherwise
    }
    CheckResult run();

private:
    using Table = std::shared_ptr<const jet::Table>;

    QString text(Text id) const { return language::wording(id, m_language); }
    template <class... Values>
    QString text(Text id, const QString &first, const Values &...values) const
    {
        return text(id).arg(first, values...);
    }
    QString line(Text kind, const QString &what) const;
    void ok(const QString &what) { m_result.good << line(Text::CheckOk, what); }
    void note(const QString &what) { m_result.notes << line(Text::CheckNote, what); }
    void missing(const QString &what) { m_result.problems << line(Text::CheckMissing, what); }
    void damaged(const QString &what) { m_result.problems << line(Text::CheckDamaged, what); }
    void locked(const QString &what) { m_result.problems << line(Text::CheckLocked, what); }
    void report(const basic::Error &error);
    void report(const std::vector<jet::Damage> &damage);
    QString placeOf(const jet::Table &table) const;

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
    language::CatalogueLanguage m_language = language::CatalogueLanguage::English;
    CheckResult m_result;
};

/// The first words of all lines are equally wide.
QString Checker::line(Text kind, const QString &what) const
{
    qsizetype width = 0;
    for (const Text word : {Text::CheckOk, Text::CheckNote, Text::CheckMissing, Text::CheckDamaged, Text::CheckLocked})
        width = std::max(width, text(word).size());
    return text(kind).leftJustified(width + 2) + what;
}

void Checker::report(const basic::Error &error)
{
    const QString what = language::errorMessage(m_language, error);
    switch (error.kind()) {
    case basic::ErrorKind::FileNotFound:
    case basic::ErrorKind::TableNotFound:
    case basic::ErrorKind::ColumnNotFound:
        return missing(what);
    case basic::ErrorKind::FileUnreadable:
    case basic::ErrorKind::ReadOnly:
    case basic::ErrorKind::NotMarkable:
        return locked(what);
    default:
        return damaged(what);
    }
}

void Checker::report(const std::vector<jet::Damage> &damage)
{
    for (const jet::Damage &kind : damage)
        damaged(language::damageLine(m_language, kind));
}

QString Checker::placeOf(const jet::Table &table) const
{
    return u"%1, %2"_s.arg(table.image().file(), text(Text::PlaceTable, table.name()));
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
        missing(text(Text::CheckNoProgramFolder, program));
        return false;
    }
    if (QFileInfo(program).isWritable())
        ok(text(Text::CheckProgramFolder, program));
    else
        locked(text(Text::CheckProgramFolderReadOnly, program));

    const basic::WindowsPath settings = m_host.hostSettingsFile();
    if (m_host.dir(settings).isEmpty()) {
        missing(text(Text::CheckNoSettings, m_host.native(settings)));
        return true;
    }
    const auto setting = [&](const char *section, const char *key, const QString &fallback) {
        return m_host.inilesen(settings, QLatin1String(section), QLatin1String(key), fallback);
    };
    m_host.Sprache = setting("Ansicht", "Sprache", u"Deutsch"_s);
    m_host.Familienpfad = m_host.readPath(settings, u"QV-Files"_s, u"0"_s, {});
    ok(text(Text::CheckSettings, m_host.native(settings), m_host.Sprache));
    return true;
}

void Checker::checkOutputFolder()
{
    const QString folder = m_host.native(m_host.readPath(m_host.hostSettingsFile(), u"Verzeichnisse"_s, u"Prints"_s,
                                                         m_host.Hostverzeichnis + u"\\Ausdrucke"_s));
    if (!QFileInfo(folder).isDir())
        missing(text(Text::CheckNoOutputFolder, folder));
    else if (!QFileInfo(folder).isWritable())
        locked(text(Text::CheckOutputFolderReadOnly, folder));
    else
        ok(text(Text::CheckOutputFolder, folder));
}

std::shared_ptr<jet::Database> Checker::open(const basic::WindowsPath &path)
{
    if (m_host.hasUnmappedDrive(path)) {
        missing(unknownDrive(m_host, path, m_language));
        return nullptr;
    }
    try {
        auto database = jet::Database::open(m_host.native(path));
        report(database->damage());
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
        report(found->damage());
        return found;
    } catch (const basic::Error &error) {
        if (error.fault() != basic::Fault::FileCutShort) // that was said of the file already
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
            missing(text(Text::CheckColumnMissing, place, needed.name));
            complete = false;
        } else if (const auto type = table.columns()[static_cast<std::size_t>(column)].type;
                   !needed.types.empty() &&
                   std::find(needed.types.begin(), needed.types.end(), type) == needed.types.end()) {
            damaged(text(Text::CheckColumnUnusable, place, needed.name));
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
        missing(text(Text::CheckIndexMissing, placeOf(table)));
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
        ok(text(Text::CheckTexts, database->file(), QString::number(languages->rowCount())));
}

void Checker::checkFamilyDatabase()
{
    if (m_host.Familienpfad.isEmpty()) {
        missing(text(Text::CheckNoFamilyNamed, m_host.native(m_host.hostSettingsFile())));
        return;
    }
    const auto database = open(m_host.Familienpfad);
    if (!database)
        return;
    checkTables(database, data::HostDatabase::Family);
    const QString lockFile = database->file().left(database->file().lastIndexOf(u'.')) + u".ldb"_s;
    if (QFileInfo::exists(lockFile))
        note(text(Text::CheckOpenElsewhere, lockFile));
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
    if (needed == 0)
        ok(text(Text::CheckReadable, database->file()));
    else if (needed == 1)
        ok(text(Text::CheckTableThere, database->file()));
    else
        ok(text(Text::CheckTablesThere, database->file(), QString::number(needed)));
}

void Checker::checkPersonTable(const std::shared_ptr<jet::Database> &database, const Table &persons)
{
    const bool complete = hasColumns(*persons, personColumns());
    if (!hasCounterIndex(*persons) || !complete)
        return;
    const int counter = persons->columnOf(u"Counter");
    const int mark = persons->columnOf(u"Markierung");
    const qsizetype problemsBefore = m_result.problems.size();
    try {
        const jet::MarkWriter writer(database, persons, mark, counter);
        std::unordered_set<qint32> counters;
        counters.reserve(persons->rowCount());
        qint64 marked = 0;
        qint64 without = 0;
        Found repeated;
        Found older;
        for (quint32 row = 0; row < persons->rowCount(); ++row) {
            const auto value = persons->integer(row, counter);
            without += value ? 0 : 1;
            if (value && !counters.insert(*value).second)
                repeated.add(QString::number(*value));
            marked += persons->boolean(row, mark) ? 1 : 0;
            if (!writer.canMark(row))
                older.add(QString::number(value.value_or(0)));
        }
        const QString place = placeOf(*persons);
        if (repeated.count > 0)
            damaged(text(Text::CheckCounterRepeated, place, QString::number(repeated.count), repeated.first()));
        if (without > 0)
            damaged(text(Text::CheckNoCounter, place, QString::number(without)));
        if (older.count > 0)
            damaged(text(Text::CheckTooOld, place, QString::number(older.count), older.first()));
        ok(text(Text::CheckPersons, database->file(), QString::number(persons->rowCount()), QString::number(marked)));
        if (m_result.problems.size() > problemsBefore)
            return;
        writer.requireWritable();
        ok(text(Text::CheckWritable, database->file()));
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
