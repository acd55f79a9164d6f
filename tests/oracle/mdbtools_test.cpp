// SPDX-FileCopyrightText: 2026 The Kalvenor authors
// SPDX-License-Identifier: GPL-3.0-or-later
// What mdb-export of mdbtools reads from a database equals what we read.
#include "demo/host/demohost.h"
#include "platform/basic/date.h"
#include "platform/jet/creator/creator.h"
#include "platform/jet/reader/database.h"
#include "platform/jet/samples.h"
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <QDirIterator>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QUuid>

using namespace Qt::StringLiterals;

using namespace kalvenor;
using jet::ColumnType;

namespace {

const QString NullText = u"\\N"_s;

QString outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    process.waitForFinished(60'000);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

/// What mdb-export writes of a table, a row of fields each; the first one are the names.
std::vector<QStringList> exported(const QString &file, const QString &table)
{
    const QString fieldEnd = u"\x1f|\x1f"_s, rowEnd = u"\x1e|\x1e"_s, day = u"%Y-%m-%d %H:%M:%S"_s; // in no text
    std::vector<QStringList> rows;
    for (const QString &row : outputOf("mdb-export", {"-Q", "-d", fieldEnd, "-R", rowEnd, "-0", NullText, "-b", "hex",
                                                      "-D", day, "-T", day, file, table})
                                  .split(rowEnd, Qt::SkipEmptyParts))
        rows.push_back(row.split(fieldEnd));
    return rows;
}

/// True where the exported field shows our value.
bool isSame(const QString &theirs, const jet::Table &table, quint32 row, int column)
{
    const jet::Column &definition = table.columns()[static_cast<std::size_t>(column)];
    if (definition.type == ColumnType::Boolean)
        return theirs == (table.boolean(row, column) ? "1" : "0");
    if (table.isNull(row, column))
        return theirs == NullText;
    switch (definition.type) {
    case ColumnType::Text:
    case ColumnType::Memo:
        return theirs == table.text(row, column);
    case ColumnType::Binary:
    case ColumnType::Ole:
        return theirs.compare(QLatin1String(table.bytes(row, column).toHex()), Qt::CaseInsensitive) == 0;
    case ColumnType::DateTime:
        // mdb-export shows no date before day 0.
        return *table.number(row, column) < 0 ||
               theirs == basic::formatDate(*table.number(row, column), u"yyyy-mm-dd hh:nn:ss");
    case ColumnType::Guid:
        return theirs.contains(table.value(row, column).toUuid().toString(QUuid::WithoutBraces), Qt::CaseInsensitive);
    case ColumnType::Byte:
    case ColumnType::Integer:
    case ColumnType::Long:
        return theirs == QString::number(*table.integer(row, column));
    default:
        return std::abs(theirs.toDouble() - *table.number(row, column)) <=
               (definition.type == ColumnType::Float ? 1e-6 : 1e-14) * std::abs(*table.number(row, column));
    }
}

/// Looks for each row of a table where mdb-export has it, and for one that was moved on other places, too; it writes
/// columns in their display order.
void compareTable(jet::Database &database, const QString &name)
{
    const auto table = database.table(name);
    EXPECT_TRUE(table->damage().empty());
    const auto theirs = exported(database.file(), name);
    ASSERT_FALSE(theirs.empty());
    ASSERT_EQ(theirs.front().size(), static_cast<qsizetype>(table->columns().size()));
    ASSERT_EQ(theirs.size() - 1, table->rowCount());
    std::vector<int> columns;
    for (const QString &field : theirs.front())
        columns.push_back(table->columnOf(field));
    ASSERT_EQ(std::ranges::count(columns, -1), 0);
    for (quint32 row = 0; row < table->rowCount(); ++row) {
        const auto isRow = [&](const QStringList &fields) {
            for (std::size_t i = 0; i < columns.size(); ++i) {
                if (!isSame(fields.value(static_cast<qsizetype>(i)), *table, row, columns[i]))
                    return false;
            }
            return true;
        };
        ASSERT_TRUE(isRow(theirs[row + 1]) || std::ranges::any_of(theirs, isRow))
            << "row " << row << ": mdb-export has " << theirs[row + 1].join(u'|').toStdString();
    }
}

void compareFile(const QString &file)
{
    const auto database = jet::Database::open(file);
    EXPECT_TRUE(database->damage().empty());
    for (const auto &entry : database->entries()) {
        SCOPED_TRACE((file + ", table " + entry.name).toStdString());
        if (!entry.system)
            compareTable(*database, entry.name);
    }
}

class Mdbtools : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable("mdb-export").isEmpty())
            GTEST_SKIP() << "mdb-export is missing (apt-get install mdbtools)";
    }
};

} // namespace

TEST_F(Mdbtools, ReadsTheDemonstrationHostAsWeDo)
{
    const QTemporaryDir folder;
    const demo::DemoHost host = demo::makeDemoHost({.folder = folder.path(), .persons = 1500, .seed = 3});
    QDirIterator files(host.hostFolder, {"*.mdb", "*.MDB"}, QDir::Files, QDirIterator::Subdirectories);
    int compared = 0;
    for (; files.hasNext(); ++compared)
        compareFile(files.next());
    EXPECT_EQ(compared, 7) << "family, four side databases, two language databases";
}

TEST_F(Mdbtools, ReadsWhatWeCreateAsWeDo)
{
    jet::Creator creator;
    auto &table = creator.addTable("Größen",
                                   {{"Counter", ColumnType::Long, 0, true, true},
                                    {"Name", ColumnType::Text, 40},
                                    {"Ja", ColumnType::Boolean},
                                    {"Tag", ColumnType::DateTime},
                                    {"Maß", ColumnType::Double},
                                    {"Notiz", ColumnType::Memo}},
                                   {{"Counter", {"Counter"}, true, true}, {"Name", {"Name"}, false}});
    table.addRow({1, QString("Müller €"), true, 36526.25, -0.5, QString(5000, u'ä')});
    table.addRow({-2, {}, false, {}, {}, QString("kurz")});
    creator.addTable("Leer ", {{"A"}});
    const QTemporaryDir folder;
    const QString file = folder.filePath("new.mdb");
    for (const std::uint32_t key : {0U, 77U}) {
        creator.write(file, key);
        compareFile(file);
        EXPECT_EQ(outputOf("mdb-tables", {"-1", file}), "Größen\nLeer \n");
        const QString schema = outputOf("mdb-schema", {"--indexes", file, "postgres"});
        for (const char *words : {"\"counter\"\t\t\tSERIAL", "VARCHAR (40)", "PRIMARY KEY (\"counter\")",
                                  "INDEX \"größen_name_idx\" ON \"größen\" (\"name\")"})
            EXPECT_TRUE(schema.contains(QString::fromUtf8(words))) << words << " in " << schema.toStdString();
    }
}

TEST_F(Mdbtools, ReadsFilesOfOtherMakersAsWeDo)
{
    SKIP_WITHOUT_SAMPLES();
    for (const QString &file : kalvenor::testing::sampleDatabases())
        compareFile(kalvenor::testing::sample(file));
}
